#!/usr/bin/env bash
# Tries under Wine what scripts/windows.sh has made: installs it silently into a fresh Wine, plays a battle with it through
# the system's own file dialogs, upgrades it, removes it, and fails if anything is left but what is the user's. Puts a
# picture of each window into build/windows-release/pictures.
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
use_wine "$wine"
trap 'wineserver --kill || true; kill $screen' EXIT
user=$wine/drive_c/users/$(id -un)
installed=$user/AppData/Local/Programs/Warhost

# Everything of the user's, files and registry, except what Wine notes of its own.
state()
{
    wine reg export 'HKCU\Software' 'C:\state.reg' /y >/dev/null
    iconv -f UTF-16 -t UTF-8 "$wine/drive_c/state.reg" | tr -d '\r' | grep '^\[' |
        grep -v '\\Wine\b\|\\Windows\\CurrentVersion\\Explorer'
    rm "$wine/drive_c/state.reg"
    (cd "$user" && find . | sort)
}

# window TITLE: waits for it, and makes it the active one.
window()
{
    local id
    if ! id=$(timeout 60 xdotool search --sync --onlyvisible --name "^$1\$" | tail -n 1) || [ -z "$id" ]; then
        printf 'There is no window "%s".\n' "$1" >&2
        import -window root "$pictures/failed.png"
        return 1
    fi
    xdotool windowactivate --sync "$id"
    sleep 1
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
    printf 'The window "%s" stays.\n' "$1" >&2
    return 1
}

# in_dialog TITLE FILE: gives the name of a file to the system's dialog.
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

state >"$wine/before"
wine "$setup" /S
wine "$installed/warhost.exe" &
program=$!
window Warhost
xdotool key ctrl+l
in_dialog 'Load Warhost Army File' korrins_anvil.Army load
picture army_screen
