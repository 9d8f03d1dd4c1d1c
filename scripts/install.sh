# Sourced from the project's folder by ./run, ./test, .ci/run and other scripts: installs required packages and builds.
# shellcheck shell=bash disable=SC2034

packages_program=(g++ cmake ninja-build qt6-base-dev fonts-dejavu-core)
packages_build=("${packages_program[@]}" libgtest-dev libgmock-dev libbenchmark-dev)
packages_check=(
    clang-14 clang-format-14 clang-tidy-14 libclang-rt-14-dev git
    xvfb dbus at-spi2-core python3-pyatspi # the accessibility bus
    locales
)
packages_windows=(
    cmake ninja-build googletest g++-mingw-w64-x86-64-posix
    qt6-base-dev qt6-base-dev-tools dpkg-dev # the toolkit's tools, and what unpacks its source
    wine wine64 fonts-dejavu-core nsis
    xvfb openbox xdotool imagemagick
)
packages_package=(dpkg-dev lintian desktop-file-utils appstream)
packages_package_check=(mmdebstrap xvfb xdotool)

# install_packages NAME...: installs those of the Debian packages that are missing. If it cannot, it lists them and
# stops the script. On other systems it continues: configuring the build reports what is missing.
install_packages()
{
    if ! command -v apt-get >/dev/null || ! command -v dpkg-query >/dev/null; then
        if [ ! -f build/release/build.ninja ]; then
            printf 'This is not a Debian system. Where something is missing, install what corresponds to:\n' >&2
            printf '    %s\n' "$@" >&2
        fi
        return 0
    fi

    local package installed missing=()
    installed=$(dpkg-query --show --showformat='${db:Status-Status} ${Package}\n' "$@" 2>/dev/null) || true
    for package; do
        [[ $'\n'$installed$'\n' == *$'\n'"installed $package"$'\n'* ]] || missing+=("$package")
    done
    [ ${#missing[@]} -gt 0 ] || return 0

    local as_root=()
    if [ "$(id -u)" -ne 0 ]; then
        if ! command -v sudo >/dev/null; then
            printf 'Please install these packages as root: %s\n' "${missing[*]}" >&2
            exit 1
        fi
        as_root=(sudo)
    fi
    printf 'Installing %s\n' "${missing[*]}"
    local apt_get=("${as_root[@]}" env DEBIAN_FRONTEND=noninteractive apt-get -qq -o DPkg::Lock::Timeout=300)
    local install=("${apt_get[@]}" install --no-install-recommends "${missing[@]}")
    # Updates the package lists only if the present ones are not sufficient.
    if ! "${install[@]}" </dev/null >/dev/null 2>&1; then
        "${apt_get[@]}" update </dev/null >/dev/null
        "${install[@]}" </dev/null >/dev/null
    fi
}

# make_debian CODENAME FOLDER PACKAGES: makes a clean Debian in the folder, with the essential packages and PACKAGES
# (separated by commas), from this machine's package sources. Fails if it cannot. Needs root and mmdebstrap.
# shellcheck disable=SC2016,SC1091 # apt's own variables; the system's own file
make_debian()
{
    local here
    here=$(. /etc/os-release && echo "$VERSION_CODENAME")
    rm -rf --one-file-system "$2"
    apt-get -qq update &&
        apt-get indextargets --format 'deb $(REPO_URI) $(RELEASE) $(COMPONENT)' 'Created-By: Packages' 'Origin: Debian' |
        sed "s/ $here/ $1/" | sort -u | mmdebstrap --quiet --variant=essential --include="$3" "$1" "$2" -
}

# mounts_allowed: whether processes here can have mounts of their own.
mounts_allowed()
{
    [ "$(id -u)" -eq 0 ] && unshare --mount-proc --fork true 2>/dev/null
}

# is_current TREE: whether it was configured with these presets and at this path.
is_current()
{
    [ "$1/build.ninja" -nt CMakePresets.json ] && grep -qxF "CMAKE_HOME_DIRECTORY:INTERNAL=$PWD" "$1/CMakeCache.txt"
}

# check_writable TREE: stops the script if the tree is not writable.
check_writable()
{
    if ! mkdir -p "$1" 2>/dev/null || [ ! -w "$1" ]; then
        printf 'Cannot write to %s: build in a copy of the source that you can write to.\n' "$PWD/$1" >&2
        exit 1
    fi
}

# configure PRESET OPTION...: runs cmake for build/PRESET.
configure()
{
    # Uses ccache if it is installed.
    export CMAKE_CXX_COMPILER_LAUNCHER=${CMAKE_CXX_COMPILER_LAUNCHER-$(command -v ccache || true)}
    cmake --preset "$@"
}

run_ninja()
{
    ninja -C "$@" | sed -u '/^ninja: Entering directory/d; /Re-checking globbed dir/d; /^ninja: no work to do/d'
}

# build PRESET OPTION...: configures build/PRESET with the additional options if necessary, and builds it. Prints
# nothing if nothing has changed.
build()
{
    local tree=build/$1
    check_writable "$tree"
    if ! is_current "$tree"; then
        configure "$1" --fresh "${@:2}"
    elif grep -qxF BUILD_TESTING:BOOL=OFF "$tree/CMakeCache.txt"; then
        configure "$1" # the preset turns on what build_program left out
    fi
    run_ninja "$tree"
}

# build_program: builds in build/release what ./run starts. A tree without tests does not need their libraries; a tree
# with tests keeps them.
build_program()
{
    check_writable build/release
    is_current build/release || configure release --fresh -DBUILD_TESTING=OFF -DWARHOST_BENCH=OFF
    run_ninja build/release warhost fight
}

# use_wine FOLDER: sets up Wine in the folder as Windows 10 with the DejaVu fonts, without menu entries on the desktop
# and without questions about optional parts, and ends it with the script.
use_wine()
{
    export WINEPREFIX=$1 WINEDLLOVERRIDES='winemenubuilder.exe=;mscoree=;mshtml=' WINEDEBUG=-all
    trap 'wineserver --kill || true' EXIT
    wine winecfg -v win10
    cp /usr/share/fonts/truetype/dejavu/DejaVuSans*.ttf "$WINEPREFIX/drive_c/windows/Fonts"
}
