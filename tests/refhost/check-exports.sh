#!/bin/sh
# SPDX-License-Identifier: MIT
# check-exports.sh LIBRARY LIST: fails, showing the difference, unless the library
# gives others exactly the symbols in the list.
set -eu
export LC_ALL=C
nm -DC --defined-only "$1" | cut -d' ' -f3- | sort -u | diff -u "$2" -
