#!/bin/sh
# SPDX-License-Identifier: MIT
# Prints every symbol that the library gives to others beyond its two interfaces,
# and fails if there is one, or if one of the four functions is missing.
set -eu
symbols=$(nm -DC --defined-only "$1" | cut -d' ' -f3-)
strangers=$(printf '%s\n' "$symbols" | grep -vE '^(KORA_Statistics_|refhost::StatisticsStore::)' || true)
if [ -n "$strangers" ]; then
    printf 'exported beyond the interfaces:\n%s\n' "$strangers"
    exit 1
fi
for name in GetAllConnRecord ConnRecord_RemoveRecord ReleaseConnRecord GetLastConnRecord; do
    printf '%s\n' "$symbols" | grep -qx "KORA_Statistics_$name" || {
        echo "not exported: KORA_Statistics_$name"
        exit 1
    }
done
if readelf -d "$1" | grep -q 'NEEDED.*libQt'; then
    echo "the library depends on Qt"
    exit 1
fi
