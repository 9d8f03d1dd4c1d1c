#!/usr/bin/env bash
# Makes a release of the last commit in build/warhost-VERSION: the package, the source and their checksums. If
# scripts/windows.sh has built the toolkit for Windows before, also the archive and the installer for Windows with the
# toolkit's source package. The version is the project's; configuring fails unless CHANGELOG.md begins with it.
set -euo pipefail
cd "$(dirname "$(readlink -f "$0")")/.."

changed=$(git status --porcelain)
if [ -n "$changed" ]; then
    printf 'Please commit or remove these first:\n%s\n' "$changed" >&2
    exit 1
fi
./test
scripts/package.sh
scripts/package_check.sh

windows=$(scripts/windows_toolkit.sh folder 2>/dev/null) || true
if [ -f "$windows/complete" ]; then
    scripts/windows.sh
else
    windows=
    echo 'Without the files for Windows: scripts/windows.sh makes their toolkit, which takes about 40 minutes.'
fi

name=warhost-$(dpkg-deb --field build/package/*.deb Version)
rm -rf "build/$name"
mkdir "build/$name"
cp build/package/*.deb "build/$name"
git archive --prefix="$name/" --output="build/$name/$name.tar.gz" HEAD
if [ -n "$windows" ]; then
    cp build/windows-release/*.zip build/windows-release/*.exe "$windows"/source-package/* "build/$name"
fi
cd "build/$name"
sha256sum -- * >SHA256SUMS
printf 'The release is in build/%s:\n' "$name"
cat SHA256SUMS
