#!/usr/bin/env bash
# Takes the pictures of the manual and the README from the real program.
set -euo pipefail
cd "$(dirname "$(readlink -f "$0")")/.."
source scripts/install.sh

install_packages "${packages_build[@]}"
build release
# The default screen of the off-screen platform is smaller than the window.
folder=$(mktemp -d)
trap 'rm -rf "$folder"' EXIT
printf '{"screens": [{"name": "one", "x": 0, "y": 0, "width": 2400, "height": 1800, "logicalDpi": 96, "dpr": 1}]}' >"$folder/screens.json"
mkdir -p data/help/images
# The platform would read a path beyond ASCII as Latin-1.
(root=$PWD && cd "$folder" && QT_QPA_PLATFORM=offscreen:configfile=screens.json QT_SCALE_FACTOR=2 \
    "$root/build/release/bin/pictures" "$root/data" "$root/data/help/images")
mv data/help/images/dark_theme.png docs # for the README alone
