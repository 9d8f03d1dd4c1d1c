#!/usr/bin/env bash
# Whether includes run one way: the screen knows the form, the form knows the rules, never back; and whether only the
# two halves of replacing a file know the system.
set -euo pipefail
cd "$(dirname "$0")/../src"

# only FOLDER FOLDERS...: all that the files of the first may include of ours.
only()
{
    local IFS='|'
    ! grep -HE '^ *# *include "' "$1"/*.cpp "$1"/*.h | grep -vE "\"($*)/[^/]*\"" || faults=1
}
faults=0
only army
only battle army
only files army
only ui army battle files
! grep -rE '^ *# *include <Q' --exclude-dir=qt . || faults=1
! grep -rE '^ *# *include <(windows|unistd|fcntl|sys/)' --exclude='replace_file_*' --exclude-dir=qt . || faults=1
exit $faults
