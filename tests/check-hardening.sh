#!/bin/sh
# SPDX-License-Identifier: MIT
# check-hardening.sh COMPILER FILE...: fails if one of these libraries and programs was
# built without the stack's protection, checked string functions, or write-protected
# tables of addresses.
set -eu
compiler=$1
shift
status=0
complain()
{
    echo "$1: $2"
    status=1
}
checked=0
for file in "$@"; do
    symbols=$(nm -D --undefined-only "$file")
    printf '%s\n' "$symbols" | grep -q '__stack_chk_fail' || complain "$file" 'no stack protector'
    if printf '%s\n' "$symbols" | grep -q '_chk@'; then checked=$((checked + 1)); fi
    readelf -lW "$file" | grep -q 'GNU_RELRO' || complain "$file" 'no RELRO'
    readelf -dW "$file" | grep -qE 'BIND_NOW|FLAGS_1.*NOW' || complain "$file" 'binds lazily'
done
# Not every file calls a function that has a checked form, and Clang sees at once that
# the calls of all of them fit.
[ "$checked" -gt 0 ] || [ "$compiler" != GNU ] || complain 'all files' 'no checked string functions'
exit $status
