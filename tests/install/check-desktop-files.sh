#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# check-desktop-files.sh DATA REFDIALER: what desktops read about refdialer is
# valid, its icons have the sizes of their folders, and its window has the class by
# which a desktop finds the program's entry.
set -euo pipefail
data=$1 refdialer=$2

desktop-file-validate --warn-kde "$data"/*.desktop
appstreamcli validate --pedantic --no-net "$data"/*.metainfo.xml

# The two numbers that follow a PNG file's first chunk header, most significant byte first.
png_size() {
    od -A n -t u1 -j 16 -N 8 "$1" |
        awk '{ print $1 * 2^24 + $2 * 2^16 + $3 * 2^8 + $4, $5 * 2^24 + $6 * 2^16 + $7 * 2^8 + $8 }'
}
for size in 16 22 24 32 48 64 128 256; do
    icon=$data/icons/$size.png
    [ "$(png_size "$icon")" = "$size $size" ] || {
        echo "$icon is not of $size by $size pixels."
        exit 1
    }
done

# A server that starts anew when its last client leaves would turn away one that is just coming.
coproc SCREEN { exec Xvfb -displayfd 1 -noreset -nolisten tcp 2>/dev/null; }
read -r number <&"${SCREEN[0]}"
export DISPLAY=:$number QT_QPA_PLATFORM=xcb
"$refdialer" --demo &
program=$!
trap 'kill "$program" && wait "$program"; kill "$SCREEN_PID"' EXIT
until shown=$(xprop -name "Connection history" WM_CLASS 2>/dev/null); do
    kill -0 "$program"
done
expected=$(sed -n 's/^StartupWMClass=//p' "$data"/*.desktop)
[ "${shown##*, }" = "\"$expected\"" ] || {
    echo "The window's class is ${shown##*, }, but the desktop file says \"$expected\"."
    exit 1
}
