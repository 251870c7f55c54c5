#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# scripts/measure-recorder.sh PROGRAM [SECONDS]: what "connrecord record" costs on a line
# that is up and idle, and while none is up, on a session bus on which nobody watches it,
# beside vnstatd in the same network namespace. Needs the right to make one, and the
# packages iproute2, vnstat, dbus-daemon and systemd.
set -euo pipefail

program=$(realpath "$1")
seconds=${2:-300}
if [ -z "${IN_NAMESPACE:-}" ]; then
    IN_NAMESPACE=1 exec unshare --net --mount "$0" "$program" "$seconds"
fi

folder=$(mktemp -d)
bus='' vnstatd='' recorder=''
trap 'kill $recorder $vnstatd $bus 2>/dev/null || true; wait; rm -rf "$folder"' EXIT
echo 1 >/proc/sys/net/ipv6/conf/default/disable_ipv6
ip link add wwan0 type veth peer name far0
ip addr add 10.0.0.1/24 dev wwan0
ip link set far0 up

mkdir "$folder/vnstat"
printf '%s\n' "DatabaseDir \"$folder/vnstat\"" 'DaemonUser ""' 'UseLogging 0' \
    "PidFile \"$folder/vnstat.pid\"" >"$folder/vnstat.conf"
vnstatd --nodaemon --config "$folder/vnstat.conf" >/dev/null 2>&1 &
vnstatd=$!

export DBUS_SESSION_BUS_ADDRESS="unix:path=$folder/bus"
dbus-daemon --session --nofork --address="$DBUS_SESSION_BUS_ADDRESS" &
bus=$!

# With copies of its own, all of Qt counts as this program's, whatever else runs.
mkdir "$folder/lib"
ldd "$program" | awk '$1 ~ /^libQt/ { print $3 }' | xargs cp -t "$folder/lib"
LD_LIBRARY_PATH=$folder/lib "$program" --store "$folder/connections.db" record \
    2>"$folder/said" &
recorder=$!

kilobytes() {
    awk -v name="$2:" '$1 == name { print $2 }' "/proc/$1/smaps_rollup"
}
nanoseconds() {
    cat /proc/"$1"/task/*/schedstat | awk '{ sum += $1 } END { print sum }'
}
wakeups() {
    cat /proc/"$1"/task/*/status | awk '/^voluntary/ { sum += $2 } END { print sum }'
}
written() {
    awk '$1 == "write_bytes:" { print $2 }' "/proc/$1/io"
}

# measure NAME PID: starts measuring; report NAME PID: ends it.
declare -A before
measure() {
    before[$1]="$(nanoseconds "$2") $(wakeups "$2") $(written "$2")"
}
report() {
    local time wakes bytes
    read -r time wakes bytes <<<"${before[$1]}"
    awk -v name="$1" -v seconds="$seconds" -v pss="$(kilobytes "$2" Pss)" \
        -v rss="$(kilobytes "$2" Rss)" -v time="$(($(nanoseconds "$2") - time))" \
        -v wakes="$(($(wakeups "$2") - wakes))" -v bytes="$(($(written "$2") - bytes))" \
        'BEGIN { printf "%-12s PSS %.1f MB, RSS %.1f MB, processor %.3f s/h, " \
                        "%.0f wake-ups/h, written %.0f kB/h\n", name, pss / 1024, rss / 1024,
                        time / 1e9 * 3600 / seconds, wakes * 3600 / seconds,
                        bytes / 1024 * 3600 / seconds }'
}
both() {
    "$1" connrecord "$recorder"
    "$1" vnstatd "$vnstatd"
}

# Both have settled then, and have taken note of what has changed.
settle() {
    sleep 15
}

settle
busctl --user --no-pager list | grep -q '\.ConnectionRecorder1'
echo "While no line is up:"
both measure
sleep "$seconds"
both report

ip link set wwan0 up
settle
grep -q 'Connected: wwan0' "$folder/said"
echo "While a line is up and idle:"
both measure
sleep "$seconds"
both report
