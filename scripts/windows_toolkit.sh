#!/usr/bin/env bash
# windows_toolkit.sh folder|build: the toolkit for Windows, built once from the source package of this machine's Debian.
# "folder" prints its folder, in the user's cache under its version and options. "build" builds it if it is missing,
# which takes about 40 minutes, and continues where an earlier run was interrupted. In the folder, installed/ is the
# toolkit, source-package/ its source, and the file complete marks a complete build and holds the version.
set -euo pipefail
cd "$(dirname "$(readlink -f "$0")")/.."

toolchain=$PWD/cmake/windows.cmake
options=(
    -DCMAKE_BUILD_TYPE=Release
    -DBUILD_SHARED_LIBS=ON # a user may put another build of the toolkit in place
    -DQT_BUILD_EXAMPLES=OFF
    -DQT_BUILD_TESTS=OFF
    -DQT_HOST_PATH=/usr
    -DFEATURE_pkg_config=OFF
    -DFEATURE_testlib=ON
    -DINPUT_opengl=no
)
for part in concurrent dbus glib gif icu jpeg network printsupport sql tabletevent vulkan xml zstd; do
    options+=(-DFEATURE_$part=OFF)
done
for library in doubleconversion freetype harfbuzz libb2 pcre2 png zlib; do
    options+=(-DFEATURE_system_$library=OFF)
done

version=$(dpkg-query --show --showformat '${source:Version}' qt6-base-dev)
compiler=$(x86_64-w64-mingw32-g++-posix -dumpfullversion)
key=$(printf '%s\n' "$compiler" "${options[@]}" | sha256sum | cut -c 1-8)
folder=${XDG_CACHE_HOME:-$HOME/.cache}/warhost/qt-${version%%+*}-windows-$key
prefix=$folder/installed

# Leaves the machine's apt settings unchanged: the entries for source packages, their lists and the caches are in the
# folder.
# shellcheck disable=SC2016 # apt's own variables
fetch_source()
{
    local apt=$folder/apt
    rm -rf --one-file-system "$apt"
    mkdir -p "$apt/lists/partial" "$apt/archives/partial"
    apt-get indextargets --format 'deb-src [signed-by=/usr/share/keyrings/debian-archive-keyring.gpg] $(REPO_URI) $(RELEASE) $(COMPONENT)' \
        'Created-By: Packages' 'Origin: Debian' | sort -u >"$apt/sources.list"
    local apt_get=(apt-get -qq -o Dir::Etc::SourceList="$apt/sources.list" -o Dir::Etc::SourceParts=/dev/null
        -o Dir::State::Lists="$apt/lists" -o Dir::Cache="$apt" -o APT::Sandbox::User=)
    "${apt_get[@]}" update
    (cd "$apt" && "${apt_get[@]}" source --only-source "qt6-base=$version")
    mkdir -p "$folder/source-package"
    mv "$apt"/*.dsc "$apt"/*.tar.* "$folder/source-package"
    cp "$apt"/qt6-base-*/debian/copyright "$folder/toolkit-copyright.txt"
    mv "$apt"/qt6-base-*/ "$folder/source" # the last, as it says that all is there
    rm -rf --one-file-system "$apt"
}

make_toolkit()
{
    mkdir -p "$folder"
    exec {lock}>"$folder/lock"
    flock "$lock"
    [ ! -f "$folder/complete" ] || return 0

    [ -d "$folder/source" ] || fetch_source
    printf 'Building the toolkit for Windows in %s; see build.log there.\n' "$folder"
    local log=$folder/build.log
    if [ ! -f "$folder/configured" ]; then
        local host_info
        host_info=$(dpkg-query --listfiles qt6-base-dev | grep '/Qt6HostInfoConfig.cmake$')
        cmake -G Ninja -S "$folder/source" -B "$folder/build" --fresh --toolchain "$toolchain" \
            -DCMAKE_INSTALL_PREFIX="$prefix" -DQt6HostInfo_DIR="$(dirname "$host_info")" "${options[@]}" >"$log" 2>&1 || { tail -n 20 "$log" >&2; exit 1; }
        touch "$folder/configured"
    fi
    nice -n 19 ninja -C "$folder/build" >>"$log" 2>&1 || { tail -n 50 "$log" >&2; exit 1; }
    cmake --install "$folder/build" --strip >/dev/null
    printf '%s\n' "$version" >"$folder/complete"
    rm -rf --one-file-system "$folder/build" "$folder/source" "$folder/configured" "$log"
}

case ${1-} in
folder) echo "$folder" ;;
build) make_toolkit ;;
*) sed -n 's/^# //; 2,5p' "$0" && exit 2 ;;
esac
