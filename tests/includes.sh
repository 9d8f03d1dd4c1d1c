#!/usr/bin/env bash
# Whether includes run one way: the screen knows the form, the form knows the rules, never back; and whether only files
# named for a platform know the system.
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
! grep -rE '^ *# *include <(windows|unistd|fcntl|dirent|sys/)' --exclude='*_linux.*' --exclude='*_windows.*' --exclude-dir=qt . || faults=1
exit $faults
