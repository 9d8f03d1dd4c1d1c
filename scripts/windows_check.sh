#!/usr/bin/env bash
# Tries the results of scripts/windows.sh under Wine: runs the window's tests on a screen, installs the program silently
# into a fresh Wine, plays a battle through the system's own file dialogs, upgrades the program, removes it, and fails
# if anything but the user's files is left. Puts a picture of each window into build/windows-release/pictures.
set -euo pipefail
cd "$(dirname "$(readlink -f "$0")")/.."
source scripts/install.sh

install_packages "${packages_windows[@]}"
setup=$(echo "$PWD"/build/windows-release/warhost-*-setup.exe)
pictures=$PWD/build/windows-release/pictures
wine=$PWD/build/windows-check
rm -rf "$wine" "$pictures"
mkdir -p "$pictures"

exec 3< <(exec Xvfb -displayfd 1 -screen 0 1600x1200x24 2>/dev/null)
screen=$!
trap 'kill $screen' EXIT
read -r number <&3
export DISPLAY=:$number
openbox 2>/dev/null &
export HOME=$wine/home # where Wine puts the user's documents
mkdir -p "$HOME"
use_wine "$wine"
trap 'wineserver --kill || true; kill $screen' EXIT
user=$wine/drive_c/users/$(id -un)
programs=$user/AppData/Local/Programs
installed=$programs/Warhost

# The user's files and registry, except for what Wine itself records.
state()
{
    wine reg export 'HKCU\Software' 'C:\state.reg' /y >/dev/null
    iconv -f UTF-16 -t UTF-8 "$wine/drive_c/state.reg" | tr -d '\r' | grep '^\[' |
        grep -v '\\Wine\b\|\\Windows\\CurrentVersion\\Explorer' | LC_ALL=C sort
    rm "$wine/drive_c/state.reg"
    (cd "$wine" && find home drive_c/users -not -path '*/Temp/*' -not -path 'home/.*' | LC_ALL=C sort)
}

fail()
{
    printf '%s\n' "$1" >&2
    import -window root "$pictures/failed.png"
    exit 1
}

# window TITLE: waits for the window and activates it. TITLE is a regular expression. xdotool fails if windows vanish.
window()
{
    local id
    for ((tries = 0; tries < 120; ++tries)); do
        id=$(xdotool search --onlyvisible --name "^$1\$" 2>/dev/null | tail -n 1) || true
        if [ -n "$id" ] && timeout 5 xdotool windowactivate --sync "$id" 2>/dev/null; then
            sleep 1
            return
        fi
        sleep 0.5
    done
    fail "There is no window \"$1\"."
}

picture()
{
    sleep 1
    import -window root "$pictures/$1.png"
}

gone()
{
    for ((wait = 0; wait < 100; ++wait)); do
        xdotool search --onlyvisible --name "^$1\$" >/dev/null 2>&1 || return 0
        sleep 0.2
    done
    fail "The window \"$1\" stays."
}

# in_dialog TITLE FILE: types the name of a file into the system's dialog.
in_dialog()
{
    window "$1"
    xdotool key ctrl+a
    xdotool type --delay 20 "$2"
    picture "$3"
    xdotool key Return
    gone "$1"
    window Warhost
}

# Fonts that Windows has and Wine lacks.
for font in 'MS Shell Dlg' 'MS Shell Dlg 2' 'Segoe UI' Tahoma; do
    wine reg add 'HKCU\Software\Wine\Fonts\Replacements' /v "$font" /d 'DejaVu Sans' /f >/dev/null
done

# On the users' platform; Wine reads the toolkit's variables under different names. Skipped are the toolkit's file
# dialog, which does not appear there, the small screen, and a test that expects other widths of texts.
WINEQT_QPA_PLATFORM=windows timeout -s KILL 300 wine build/windows/bin/window_tests.exe \
    --gtest_filter=-FileChoice.*:SmallScreen.*:OutcomeBar.writes_each_share* --gtest_brief=1 2>/dev/null

# The keys that always exist on Windows.
for key in Classes 'Microsoft\Windows\CurrentVersion\Uninstall'; do
    wine reg add 'HKCU\Software\'"$key" /f >/dev/null
done

state >"$wine/before"
wine "$setup" /S
state | diff "$wine/before" - >"$pictures/installed.txt" || true
wine "$installed/warhost.exe" &
program=$!
window Warhost
if wine "$setup" /S; then fail 'The installer replaces a program that runs.'; fi

# Side A, then Side B, then the battle; Shift+Tab moves the focus from the name of an army to the tabs.
xdotool key ctrl+l
in_dialog 'Load Warhost Army File' korrins_anvil.Army load_dialog
picture army_screen
xdotool key ctrl+s
in_dialog 'Save Warhost Army File' 'Korrin s Anvil' save_dialog
wine build/windows/bin/fight.exe "$HOME/Korrin s Anvil.Army" data/armies/split_tusk.Army >"$wine/battle" 2>/dev/null || true
grep -q "^Side A: Garrison of Korrin's Anvil" "$wine/battle" || fail 'The saved army cannot be loaded.'
xdotool key shift+Tab Right
sleep 1
xdotool key ctrl+l
in_dialog 'Load Warhost Army File' "C:\\users\\$(id -un)\\AppData\\Local\\Programs\\Warhost\\armies\\split_tusk.Army" load_dialog_b
xdotool key shift+Tab Right
sleep 1
xdotool key space
picture combat_screen
xdotool key shift+Tab shift+Tab shift+Tab shift+Tab space
window 'Simulate N Battles'
picture question
xdotool key Return
window 'Warhost Simulation'
picture report
xdotool key Return
gone 'Warhost Simulation'
window Warhost
xdotool key alt+h a
window 'About Warhost'
picture about
xdotool key Return
gone 'About Warhost'
window Warhost
xdotool key alt+h h
window 'Welcome to Warhost - Warhost Help'
picture manual
xdotool key ctrl+w
gone 'Welcome to Warhost - Warhost Help'
window Warhost
xdotool key alt+F4
window 'Quit Warhost[?]'
picture quit
xdotool key Return
wait $program

printf 'Mine\r\n1,2\r\n' >>"$installed/modif.txt"
wine "$setup" /S
[ "$(tail -n 1 "$installed/modif.txt")" = $'1,2\r' ] || fail 'An upgrade has replaced the changed list.'
cmp "$installed/modif.new.txt" data/modif.txt
elsewhere="$user/War host"
wine "$setup" /S "/D=C:\\users\\$(id -un)\\War" host # the last option is not quoted
[ -e "$elsewhere/warhost.exe" ] || fail 'The folder for the program was not taken.'
[ ! -e "$installed/warhost.exe" ] || fail 'The version in the other folder is still there.'
wine "$elsewhere/uninstall.exe" /S
for ((tries = 0; tries < 100; ++tries)); do
    [ -e "$elsewhere/uninstall.exe" ] || break
    sleep 0.2
done
printf 'Left after uninstalling:\n'
{ state | diff "$wine/before" - || true; } | grep '^[<>]' | tee "$pictures/left.txt"
diff "$pictures/left.txt" - <<EOF
> ${programs#"$wine/"}
> ${installed#"$wine/"}
> ${installed#"$wine/"}/modif.txt
> home/Korrin s Anvil.Army
EOF
wineserver --kill || true
rm -rf "$wine"
