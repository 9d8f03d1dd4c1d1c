#!/usr/bin/env bash
# Runs every fuzz target for a number of seconds: scripts/fuzz.sh 600. New inputs go to build/fuzz/learnt. A finding
# stops the run and stays there.
set -euo pipefail
cd "$(dirname "$(readlink -f "$0")")/.."
source scripts/install.sh

install_packages "${packages_build[@]}" "${packages_check[@]}"
build fuzz
# The folder for files that the targets load and save; in memory if the system has such a folder.
files=$(mktemp -d -p "$([ -w /dev/shm ] && echo /dev/shm || echo "${TMPDIR:-/tmp}")")
trap 'rm -rf "$files"' EXIT
export TMPDIR=$files
for source in fuzz/*_fuzz.cpp; do
    target=$(basename "$source" _fuzz.cpp)
    learnt=build/fuzz/learnt/$target
    mkdir -p "$learnt"
    seeds=("fuzz/corpus/$target")
    [ "$target" != army ] || seeds+=(data/armies)
    printf 'Fuzzing %s for %s seconds\n' "$target" "$1"
    if ! "build/fuzz/bin/${target}_fuzz" -max_total_time="$1" -max_len=70000 -timeout=5 -rss_limit_mb=2048 \
        -artifact_prefix="$learnt/" "$learnt" "${seeds[@]}" 2>"$learnt.log"; then
        tail -40 "$learnt.log"
        exit 1
    fi
    tail -1 "$learnt.log"
done
