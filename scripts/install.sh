# Sourced, from the project's folder, by ./run, ./test, .ci/run and other scripts: what must be installed, and the
# building itself.
# shellcheck shell=bash disable=SC2034

packages_build=(
    g++ cmake ninja-build libgtest-dev libgmock-dev libbenchmark-dev qt6-base-dev fonts-dejavu-core
)
packages_check=(
    clang-14 clang-format-14 clang-tidy-14 libclang-rt-14-dev git
    xvfb dbus at-spi2-core python3-pyatspi # the accessibility bus
    locales
)
packages_windows=(cmake ninja-build googletest g++-mingw-w64-x86-64-posix wine wine64)
packages_package=(
    dpkg-dev lintian desktop-file-utils appstream
    mmdebstrap xvfb xdotool # the package installed
)

# install_packages NAME...: installs those of the Debian packages that are missing. Stops the script where that cannot
# be done, saying what to install.
install_packages()
{
    if ! command -v apt-get >/dev/null || ! command -v dpkg-query >/dev/null; then
        # Here only a configured tree tells that everything was found.
        [ ! -f build/release/build.ninja ] || return 0
        printf 'This is not a Debian system. Please install what there corresponds to these Debian packages:\n' >&2
        printf '    %s\n' "$@" >&2
        printf 'Then configure with "cmake --preset release" and start again.\n' >&2
        exit 1
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
    # The package lists are fetched only when those at hand do not do.
    if ! "${install[@]}" </dev/null >/dev/null 2>&1; then
        "${apt_get[@]}" update </dev/null >/dev/null
        "${install[@]}" </dev/null >/dev/null
    fi
}

# build PRESET: configures build/PRESET where that is needed and builds it; not a word when nothing has changed.
build()
{
    local tree=build/$1
    # A tree that was made for other presets, or for another place, begins afresh.
    if ! [ "$tree/build.ninja" -nt CMakePresets.json ] ||
        ! grep -qxF "CMAKE_HOME_DIRECTORY:INTERNAL=$PWD" "$tree/CMakeCache.txt"; then
        cmake --fresh --preset "$1"
    fi
    ninja -C "$tree" | sed -u '/^ninja: Entering directory/d; /Re-checking globbed dir/d; /^ninja: no work to do/d'
}
