#!/usr/bin/env bash
# Builds Warhost for Windows, runs its tests under Wine, builds the archive and the installer in build/windows-release,
# and tries them under Wine. Installs missing packages first; builds the toolkit once, which takes about 40 minutes.
set -euo pipefail
cd "$(dirname "$(readlink -f "$0")")/.."
source scripts/install.sh

install_packages "${packages_windows[@]}"
scripts/windows_toolkit.sh build
toolkit=$(scripts/windows_toolkit.sh folder)
libraries=-DWARHOST_WINDOWS_LIBRARIES=$toolkit/installed
if ! grep -qF "${libraries#-D*=}" build/windows/CMakeCache.txt 2>/dev/null; then
    rm -f build/windows/build.ninja
fi
build windows "$libraries"

use_wine "$PWD/build/windows/wine"
timeout -s KILL 1200 ctest --preset windows

version=$(sed -n 's/^project(.* VERSION \([0-9.]*\) .*/\1/p' CMakeLists.txt)
made=build/windows-release
name=warhost-$version
bundle=$made/$name
rm -rf "$made"
cmake --install build/windows --prefix "$bundle" --strip >/dev/null
x86_64-w64-mingw32-strip "$bundle"/lib*.dll
mkdir "$bundle/licences"
cp LICENSE "$bundle/licences/warhost.txt"
cp "$toolkit/toolkit-copyright.txt" "$bundle/licences"
cp /usr/share/common-licenses/GPL-3 "$bundle/licences/gpl-3.txt"
cp /usr/share/common-licenses/LGPL-3 "$bundle/licences/lgpl-3.txt"
cp /usr/share/doc/gcc-mingw-w64-base/copyright "$bundle/licences/compiler-copyright.txt"
cp /usr/share/doc/mingw-w64-common/copyright "$bundle/licences/runtime-copyright.txt"
sed "s/@TOOLKIT_VERSION@/$(cat "$toolkit/complete")/" data/windows/libraries.txt.in >"$bundle/licences/libraries.txt"

# Sets every file to the day of the release: the uninstaller recognises changed files by their time, and the installer
# stores only even seconds.
day=$(sed -n "s/^## $version (\(.*\))$/\1/p" CHANGELOG.md)
find "$bundle" -type f -exec touch -d "$day 12:00 UTC" {} +

(cd "$made" && cmake -E tar cf "$name-windows.zip" --format=zip "$name")

# The list of files for the installer; see there.
(cd "$bundle" && find . -type f -printf '%P\n' | LC_ALL=C sort) | while read -r file; do
    folder=${file%"${file##*/}"}
    case $file in
    modif.txt | armies/*) action=OWN_FILE_ACTION ;;
    *) action=FILE_ACTION ;;
    esac
    printf '!insertmacro ${%s} "%s" "%s" "%s"\n' $action "$file" "${folder//\//\\}" "${file##*/}"
done >"$made/files.nsh"
(cd "$bundle" && find . -mindepth 1 -depth -type d -printf '!insertmacro ${FOLDER_ACTION} "%P"\n' | tr / '\\') \
    >>"$made/files.nsh"
makensis -V2 -WX -DVERSION="$version" -DBUNDLE="$PWD/$bundle" -DFILES="$PWD/$made/files.nsh" \
    -DICON="$PWD/data/windows/warhost.ico" -DOUTPUT="$PWD/$made/$name-setup.exe" data/windows/installer.nsi
rm "$made/files.nsh"

scripts/windows_check.sh
ls -l "$made"/*.zip "$made"/*.exe
