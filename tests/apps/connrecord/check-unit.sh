#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# check-unit.sh UNIT PROGRAM FOLDER: fails if systemd does not understand the user unit
# in every line, for this program, or thinks that it leaves the program too much.
set -euo pipefail
unit=$1 program=$2 folder=$3
command -v systemd-analyze >/dev/null || {
    echo "SKIP: systemd-analyze (package systemd) is not there"
    exit 0
}
export XDG_RUNTIME_DIR=$folder/run
rm -rf "$folder"
mkdir -p "$folder"
mkdir -m 700 "$XDG_RUNTIME_DIR"
grep -q '^ExecStart=.*/connrecord record$' "$unit"
sed "s#^ExecStart=[^ ]*#ExecStart=$program#" "$unit" >"$folder/connrecord.service"
# What it does not understand it tells, and ignores.
complaints=$(systemd-analyze --user --man=no verify "$folder/connrecord.service" 2>&1)
if [ -n "$complaints" ]; then
    echo "$complaints"
    exit 1
fi
systemd-analyze security --offline=yes --threshold=40 "$folder/connrecord.service" |
    tail -n 1
