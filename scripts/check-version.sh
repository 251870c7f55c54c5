#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# Fails if one of the documents that name the version names another one than the headers.
set -euo pipefail
cd "$(dirname "$0")/.."

version=$(sed -n 's/^#define NETINFORECORD_VERSION_[A-Z]* //p' host/NetInfoRecordVersion.h |
    paste -s -d .)

# names FILE PATTERN: whether the first line with that pattern has the version.
names() {
    grep -m 1 -- "$2" "$1" | grep -qwF -- "$version" || {
        printf '%s: the first line with "%s" should name version %s\n' "$1" "$2" "$version" >&2
        return 1
    }
}

wrong=0
names CHANGELOG.md '^## ' || wrong=1
names docs/refdialer.1 '^\.TH' || wrong=1
names apps/refdialer/data/org.example.refdialer.metainfo.xml '<release version' || wrong=1
exit $wrong
