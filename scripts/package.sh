#!/usr/bin/env bash
# Builds the Debian package in build/package and checks its contents. Installs missing packages first.
set -euo pipefail
cd "$(dirname "$(readlink -f "$0")")/.."
source scripts/install.sh

install_packages "${packages_build[@]}" "${packages_package[@]}"
build release
made=build/package
rm -rf "$made"
umask 022 # the folders in the package are made with it
cpack --config build/release/CPackConfig.cmake -B "$made" >/dev/null
lintian --allow-root --display-info --pedantic --fail-on error,warning,info,pedantic "$made"/*.deb
dpkg-deb --extract "$made"/*.deb "$made/content"
desktop-file-validate "$made"/content/usr/share/applications/*.desktop
appstreamcli validate-tree --no-net "$made/content"
# The files that the manual page and the licences mention.
named=$(zcat "$made"/content/usr/share/man/man6/warhost.6.gz | cat - "$made/content/usr/share/doc/warhost/copyright" |
    grep -o '/[^ ]*/warhost/[a-z./]*')
for path in $named; do
    [ -e "$made/content$path" ] || { echo "The package names $path, which it does not contain."; exit 1; }
done
echo "$made"/*.deb
