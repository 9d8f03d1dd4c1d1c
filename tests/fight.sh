#!/usr/bin/env bash
# fight.sh FIGHT: whether the battle in the terminal prints what it printed when fight.txt was made, and names what it
# cannot read.
set -euo pipefail
fight=$1
cd "$(dirname "$0")"
export LC_ALL=C.UTF-8

armies=(armies/korrins_anvil.Army armies/split_tusk.Army)
cd "$(dirname "$fight")"
diff "$OLDPWD/fight.txt" <("$fight" "${armies[@]}" 7)

# refused TEXT ARGUMENT...: the program fails and says TEXT.
refused()
{
    local output
    if output=$("$fight" "${@:2}" 2>&1 >/dev/null) || [[ $output != *"$1"* ]]; then
        printf 'fight %s said: %s\n' "${*:2}" "$output"
        exit 1
    fi
}
refused 'not found: none.Army' "${armies[0]}" none.Army
refused 'folder, not a file: armies' armies "${armies[1]}"
refused 'not a complete army' "${armies[0]}" modif.txt
refused 'SEED is a whole number' "${armies[@]}" -1
refused 'Usage' "${armies[0]}"
