#!/usr/bin/env bash
# Prints the share of the tests in the lines of tests and program that are not blank. Fails outside 25 to 28 %.
set -euo pipefail
cd "$(dirname "$(readlink -f "$0")")/.."

lines()
{
    find "$@" -type f \( -name '*.cpp' -o -name '*.h' \) -exec cat {} + | awk 'NF { ++n } END { print n + 0 }'
}

program=$(lines src examples)
tests=$(lines tests)
permille=$((1000 * tests / (program + tests)))
printf 'Tests: %d.%d %% of all lines (%d of tests, %d of the program)\n' \
    $((permille / 10)) $((permille % 10)) "$tests" "$program"
((permille >= 250 && permille <= 280))
