#!/usr/bin/env bash
# Takes the pictures of the manual and the README from the real program.
set -euo pipefail
cd "$(dirname "$(readlink -f "$0")")/.."
source scripts/install.sh

install_packages "${packages_build[@]}"
build release
mkdir -p data/help/images
QT_QPA_PLATFORM=offscreen QT_SCALE_FACTOR=2 build/release/bin/pictures data data/help/images
build release
