#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# run-unit.sh UNIT PROGRAM NAME FOLDER: fails if a service manager of a user's own cannot
# run the unit, with all that it takes from the program, which has this name on the session
# bus. It does so in namespaces of its own, as a user who owns nothing else.
set -euo pipefail
unit=$1 program=$2 name=$3 folder=$4 stage=${5:-outside}
user=nobody
groups=()

skip() {
    echo "SKIP: $1"
    exit 0
}

prepare() {
    [ "$(id -u)" -eq 0 ] || skip "only root can run a service manager for another user"
    unshare --mount --net --pid --fork setpriv --reuid="$user" --clear-groups \
        unshare --user true 2>/dev/null || skip "there are no namespaces to be had"
    case $program in
    /tmp/* | /var/tmp/*) skip "the unit does not let the program see $program" ;;
    esac
    rm -rf "$folder"
    mkdir -p "$folder/.config/systemd/user"
    sed "s#^ExecStart=[^ ]*#ExecStart=$program#" "$unit" \
        >"$folder/.config/systemd/user/connrecord.service"
    chown -R "$user" "$folder"
    setpriv --reuid="$user" --clear-groups test -x "$program" -a -w "$folder" ||
        skip "another user may not enter the folder of the build"
    # The user's manager divides the processes that are its own.
    local hierarchy
    for hierarchy in /sys/fs/cgroup /sys/fs/cgroup/systemd /sys/fs/cgroup/unified; do
        [ -e "$hierarchy/cgroup.procs" ] || continue
        mkdir "$hierarchy/run-unit-$$" 2>/dev/null || skip "there are no control groups to be had"
        groups+=("$hierarchy/run-unit-$$")
        chown -R "$user" "$hierarchy/run-unit-$$"
    done
}

clean_up() {
    local group
    for group in "${groups[@]}"; do
        find "$group" -depth -type d -exec rmdir {} \; || true
    done
}

# As on a system that systemd has started; of the two places for a unit's view of the
# files, newer versions use the second one.
enter() {
    local group
    for group in $GROUPS_TO_JOIN; do
        echo $$ >"$group/cgroup.procs"
    done
    mount -t tmpfs tmpfs /run
    mkdir -p /run/systemd/system /run/systemd/unit-root /run/systemd/mount-rootfs /run/user
    export HOME=$folder XDG_RUNTIME_DIR
    XDG_RUNTIME_DIR=/run/user/$(id -u "$user")
    export DBUS_SESSION_BUS_ADDRESS=unix:path=$XDG_RUNTIME_DIR/bus
    mkdir -m 700 "$XDG_RUNTIME_DIR"
    chown "$user" "$XDG_RUNTIME_DIR"
    cd /
    exec setpriv --reuid="$user" --clear-groups --inh-caps=-all \
        "$0" "$unit" "$program" "$name" "$folder" run
}

manage() {
    systemctl --user "$@"
}

run() {
    dbus-daemon --session --fork --address="$DBUS_SESSION_BUS_ADDRESS" 2>/dev/null
    /lib/systemd/systemd --user 2>"$folder/manager.log" &
    until manage --wait is-system-running 2>/dev/null | grep -qE 'running|degraded'; do
        if ! kill -0 $! 2>/dev/null || [ $SECONDS -gt 30 ]; then
            skip "systemd does not run here as a user's manager"
        fi
    done
    # A sanitizer that looks for leaks traces the program, which the unit does not let it.
    manage set-environment ASAN_OPTIONS=detect_leaks=0
    # It waits for the program to say that it is ready.
    manage start connrecord || {
        manage --no-pager status connrecord
        exit 1
    }
    [ "$(manage show --value -p StatusText connrecord)" = "Recording; connections that last: 0." ]
    gdbus wait --session --timeout 30 "$name"
    manage stop connrecord
    [ "$(manage show --value -p Result connrecord)" = success ]
    [ "$(stat -c %a "$folder/.local/share/refdialer/connections.db")" = 600 ]
}

case $stage in
outside)
    trap clean_up EXIT
    prepare
    GROUPS_TO_JOIN=${groups[*]} unshare --mount --net --pid --fork --kill-child --mount-proc \
        env -u NOTIFY_SOCKET -u XDG_DATA_HOME -u XDG_CONFIG_HOME \
        "$0" "$unit" "$program" "$name" "$folder" enter
    ;;
*) "$stage" ;;
esac
