#!/bin/sh
# The programs are hardened, as their files tell.
#   hardening_test.sh PROGRAM...
set -eu

status=0
# holds PROGRAM WHAT PATTERN COMMAND...: what the command prints has the pattern.
holds() {
    program=$1
    what=$2
    pattern=$3
    shift 3
    "$@" "$program" | grep -Eq "$pattern" || { echo "$program: no $what" >&2; status=1; }
}

for program; do
    holds "$program" "position-independent code" 'Type: +DYN' readelf -hW
    holds "$program" "read-only relocations" GNU_RELRO readelf -lW
    holds "$program" "immediate binding" 'FLAGS.*NOW' readelf -dW
    holds "$program" "stack protector" __stack_chk_fail readelf --dyn-syms -W
    holds "$program" "fortified functions" '__[a-z]+_chk' readelf --dyn-syms -W
    holds "$program" "assertions of the standard library" _ZSt21__glibcxx_assert_fail \
        readelf --dyn-syms -W
    # A large frame is touched page by page before it is used.
    holds "$program" "stack clash protection" 'or[a-z]* +[$]0x0,.*\(%rsp\)' objdump -d
done
exit "$status"
