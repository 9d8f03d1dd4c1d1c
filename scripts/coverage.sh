#!/usr/bin/env bash
# Prints the line coverage of each folder of the program and writes the details to build/coverage/lines/index.html.
# Installs missing packages first.
set -euo pipefail
cd "$(dirname "$(readlink -f "$0")")/.."
source scripts/install.sh

install_packages "${packages_build[@]}" gcovr
build coverage
find build/coverage -name '*.gcda' -delete # of the runs before
ctest --preset coverage -j2
mkdir -p build/coverage/lines
gcovr --root . --filter src/ --object-directory build/coverage --csv build/coverage/lines.csv \
    --html-details build/coverage/lines/index.html
awk -F , '
    function row(name)
    {
        printf "%-12s %6d of %6d lines, %5.1f %%\n", name, ran[name], all[name], 100 * ran[name] / all[name]
    }
    NR > 1 {
        folder = $1
        sub(/\/[^\/]*$/, "", folder)
        if (!(folder in all)) folders[++count] = folder
        all[folder] += $2; all["in all"] += $2
        ran[folder] += $3; ran["in all"] += $3
    }
    END { for (i = 1; i <= count; ++i) row(folders[i]); row("in all") }
' build/coverage/lines.csv
