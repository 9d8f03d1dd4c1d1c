#!/usr/bin/env bash
# Prints how many lines of tests there are for a hundred lines of program, blank lines left out.
# Fails outside of a quarter to a third, with a little room on either side.
set -euo pipefail
cd "$(dirname "$(readlink -f "$0")")/.."

lines()
{
    find "$@" -type f \( -name '*.cpp' -o -name '*.h' \) -exec cat {} + | awk 'NF { ++n } END { print n + 0 }'
}

program=$(lines src examples)
tests=$(lines tests)
share=$((program > 0 ? 100 * tests / program : 0))
echo "Tests: $share % ($tests lines beside $program of the program)"
((share >= 25 && share <= 35))
