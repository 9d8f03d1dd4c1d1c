#!/usr/bin/env bash
# Builds the rules and the form for Windows and runs their tests under Wine. What is missing is installed first.
set -euo pipefail
cd "$(dirname "$(readlink -f "$0")")/.."
source scripts/install.sh

install_packages "${packages_windows[@]}"
build windows
ctest --preset windows
