#!/usr/bin/env bash
# Builds Warhost in a clean Debian 13 as an ordinary user, runs every test, builds the package, and tries it in another
# clean Debian 13. Needs root. Both systems stay under build/ for the next run, as does the build tree in
# build/debian13/built. The exit status is 77 if no clean Debian can be made.
set -euo pipefail
cd "$(dirname "$(readlink -f "$0")")/.."
source scripts/install.sh

if ! mounts_allowed; then
    echo 'Please run this as root where processes can have mounts of their own.' >&2
    exit 1
fi
install_packages "${packages_package_check[@]}"
codename=trixie
packages=$(IFS=, && echo "apt,${packages_build[*]},${packages_package[*]}")
debian=build/debian13/system
built=build/debian13/built
builder=65534

if [ "$(cat "$debian.packages" 2>/dev/null)" != "$packages" ]; then
    mkdir -p build/debian13
    rm -f "$debian.packages"
    if ! make_debian "$codename" "$debian" "$packages"; then
        echo 'Here no clean Debian 13 can be made.' >&2
        exit 77
    fi
    echo "$packages" >"$debian.packages"
fi

# in_debian COMMAND: runs it there in the project's folder, with a separate build/ folder. Its mounts end with it.
in_debian()
{
    # shellcheck disable=SC2016 # the parameters of the inner shell
    unshare --mount --pid --fork bash -euc '
        mount --bind . "$1/warhost"
        mount --bind "$2" "$1/warhost/build"
        mount -t proc proc "$1/proc"
        exec chroot --userspec="$3:$3" "$1" env --ignore-environment PATH=/usr/bin LC_ALL=C.UTF-8 TMPDIR=/tmp HOME=/tmp \
            bash -euc "cd /warhost; $4"
        ' bash "$debian" "$built" $builder "$1"
}

mkdir -p "$debian/warhost" "$built"
chown $builder:$builder "$built"
in_debian './test && scripts/package.sh'
scripts/package_check.sh "$(echo "$built"/package/*.deb)" "$codename"
