#!/usr/bin/env bash
# package_check.sh [PACKAGE CODENAME]: installs the package into a clean Debian, uses the program there as an ordinary
# user, removes it, and fails if anything is left. Without arguments, it takes the package from scripts/package.sh and
# this machine's release of Debian. Needs root. The clean Debian stays in build/clean for the next run. The exit status
# is 77 if none can be made.
set -euo pipefail
cd "$(dirname "$(readlink -f "$0")")/.."
source scripts/install.sh

if [ "$(id -u)" -ne 0 ]; then
    echo 'Please run this as root: it installs the package into a Debian of its own.' >&2
    exit 1
fi
install_packages "${packages_package[@]}" "${packages_package_check[@]}"
package=${1:-$(echo build/package/*.deb)}
# shellcheck disable=SC1091 # the system's own file
codename=${2:-$(. /etc/os-release && echo "$VERSION_CODENAME")}
depends=$(dpkg-deb --field "$package" Depends)
debian=build/clean/$codename
home=/home/player
player=65534
export PKGSYSTEM_ENABLE_FSYNC=0 # the MIME database need not survive a power cut

# The packages that the clean Debian was made with, and everything in it.
listing()
{
    echo "$depends"
    find "$debian" -printf '%P %M %u %g %l\n' | LC_ALL=C sort
}

if [ "$(head -n 1 "$debian.list" 2>/dev/null)" != "$depends" ]; then
    rm -f "$debian.list"
    mkdir -p build/clean
    if ! make_debian "$codename" "$debian" "$(sed 's/ ([^)]*)//g; s/ |[^,]*//g; s/ //g' <<<"$depends")"; then
        echo 'Here no clean Debian can be made to try the package in.' >&2
        exit 77
    fi
    listing >"$debian.list"
fi

exec 3< <(exec Xvfb -displayfd 1 -screen 0 1600x1200x24 2>/dev/null)
screen=$!
trap 'kill $screen' EXIT
read -r number <&3
export DISPLAY=:$number

# window TITLE: waits for it to appear and prints its number.
window()
{
    if ! timeout 60 xdotool search --sync --onlyvisible --name "^$1\$"; then
        printf 'There is no window "%s".\n' "$1" >&2
        return 1
    fi
}

mv "$debian.list" "$debian.before" # and back when all is well: what fails may leave a Debian that is not clean
dpkg --root="$debian" --install "$package"
install --directory --mode=700 --owner=$player "$debian$home"
env --ignore-environment PATH=/usr/bin DISPLAY="$DISPLAY" HOME=$home XDG_RUNTIME_DIR=$home \
    unshare --mount-proc --root="$debian" --setuid=$player --setgid=$player warhost &
program=$!
trap 'kill $program $screen 2>/dev/null' EXIT
main_window=$(window Warhost)
xdotool windowfocus --sync "$main_window"
# Goes backwards from the first field to the last row of the list, then to the topic of that row in the manual.
xdotool key shift+Tab shift+Tab F1
window 'Misc. modifiers and feats - Warhost Help' >/dev/null
kill $program
trap 'kill $screen' EXIT

# An upgrade keeps the user's own list.
list=$debian/etc/warhost/modif.txt
printf 'A row of mine\r\n1\r\n' >>"$list"
dpkg --root="$debian" --install "$package"
grep -q 'A row of mine' "$list"

rmdir "$debian$home"
dpkg --root="$debian" --purge warhost
diff "$debian.before" <(listing)
mv "$debian.before" "$debian.list"
echo 'The package can be installed, the program finds its list and its manual, and nothing is left after its removal.'
