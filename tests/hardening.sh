#!/usr/bin/env bash
# hardening.sh PROGRAM: whether the built program has what it is hardened with.
set -euo pipefail
program=$1

fault() { printf '%s: %s\n' "$program" "$1"; faults=1; }
faults=0
symbols=$(readelf --wide --dyn-syms "$program")
[[ $(readelf --wide --file-header "$program") == *'Type: '*DYN* ]] || fault 'addresses are fixed'
[[ $(readelf --wide --dynamic "$program") == *BIND_NOW* ]] || fault 'symbols are bound late'
segments=$(readelf --wide --segments "$program")
[[ $segments == *GNU_RELRO* ]] || fault 'tables stay writable'
! grep -qE 'GNU_STACK .*RWE| RWE ' <<<"$segments" || fault 'memory is writable and executable'
[[ $symbols == *__stack_chk_fail* ]] || fault 'stacks are unchecked'
if [[ $(uname -m) == x86_64 ]]; then
    [[ $(objdump --disassemble=main "$program") == *endbr64* ]] || fault 'jumps are unchecked'
fi
! readelf --wide --dynamic "$program" | grep -qiE 'NEEDED.*(network|curl|ssl)' || fault 'network code is linked'
! grep -qE ' (socket|connect|getaddrinfo)(@|$)' <<<"$symbols" || fault 'network calls are made'
[ -z "$(find "$(dirname "$program")" -perm -o+w ! -type l)" ] || fault 'files beside it can be written by everyone'
exit $faults
