#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# Runs a command where a made-up USB modem is plugged in: in namespaces of its own with
# a network interface wwan0 (its far end is far0), and a serial line ttyACM0 for
# whoever makes /dev/ttyACM0. Everything ends with the command.
#     with-modem-network.sh COMMAND ARGUMENT...
# The command finds "ready" in MODEM_NETWORK, or why there is no such place for it.
set -euo pipefail
PATH=$PATH:/usr/sbin:/sbin
self=$(realpath "$0")
usb=/sys/devices/pci0000:00/0000:00:14.0/usb1
device=$usb/1-1

put() {
    printf '%s\n' "$2" >"$device/$1"
}

# usb_interface NUMBER CLASS SUBCLASS PROTOCOL DRIVER
usb_interface() {
    local folder=$device/1-1:1.$1
    mkdir -p "$folder"
    put "1-1:1.$1/bInterfaceNumber" "0$1"
    put "1-1:1.$1/bInterfaceClass" "$2"
    put "1-1:1.$1/bInterfaceSubClass" "$3"
    put "1-1:1.$1/bInterfaceProtocol" "$4"
    ln -s /sys/bus/usb "$folder/subsystem"
    ln -s "/sys/bus/usb/drivers/$5" "$folder/driver"
}

# show_network_interface NAME FOLDER: in FOLDER of our own /sys, the kernel's own one.
show_network_interface() {
    mkdir -p "$2"
    mount --bind "/mnt/sys/devices/virtual/net/$1" "$2"
    ln -s "$2" "/sys/class/net/$1"
}

make_network() {
    echo 1 >/proc/sys/net/ipv6/conf/default/disable_ipv6 # whose greetings nobody asked for
    ip link set lo up
    ip link add wwan0 type veth peer name far0
    ip link set far0 up
}

# Terminals of our own, so that one may be called ttyACM0.
make_devices() {
    mount --rbind /dev /mnt/dev
    mount -t tmpfs -o mode=755 tmpfs /dev
    local name
    for name in null zero full random urandom tty; do
        : >"/dev/$name"
        mount --bind "/mnt/dev/$name" "/dev/$name"
    done
    mkdir /dev/pts /dev/shm
    mount -t devpts -o newinstance,ptmxmode=0666,mode=620 devpts /dev/pts
    ln -s pts/ptmx /dev/ptmx
}

# One USB device of u-blox, whose modems are driven by AT commands and have a network
# interface nevertheless.
make_modem() {
    mount -t sysfs sysfs /mnt/sys
    mount -t tmpfs -o mode=755 tmpfs /sys
    mkdir -p /sys/bus/usb/drivers/{usb,cdc_acm,cdc_ether} /sys/class/{net,tty} "$device"
    put idVendor 1546
    put idProduct 1107
    put bcdDevice 0100
    put manufacturer Test
    put product Modem
    ln -s /sys/bus/usb "$device/subsystem"
    ln -s /sys/bus/usb/drivers/usb "$device/driver"
    usb_interface 0 02 02 01 cdc_acm
    mkdir -p "$device/1-1:1.0/tty/ttyACM0"
    ln -s /sys/class/tty "$device/1-1:1.0/tty/ttyACM0/subsystem"
    ln -s "$device/1-1:1.0/tty/ttyACM0" /sys/class/tty/ttyACM0
    usb_interface 2 02 06 00 cdc_ether
    mkdir -p "$usb/class/net" # where the link "subsystem" of wwan0 leads from there
    show_network_interface wwan0 "$device/1-1:1.2/net/wwan0"
    show_network_interface lo /sys/devices/virtual/net/lo
    show_network_interface far0 /sys/devices/virtual/net/far0
}

run_without() {
    local reason=$1
    shift
    MODEM_NETWORK="$(tr '\n' ' ' <<<"$reason")" exec "$@"
}

case "$1" in
--set-up)
    mount -t tmpfs tmpfs /mnt
    mkdir /mnt/dev /mnt/sys
    make_network
    make_devices
    make_modem
    ;;
--inside)
    shift
    complaint=$("$self" --set-up 2>&1) || run_without "a made-up modem is not permitted: $complaint" "$@"
    # Not as the first process of the namespace, which has no parent and no signals.
    MODEM_NETWORK=ready "$@" || exit
    ;;
*)
    for package in iproute2:ip dbus-daemon:dbus-daemon modemmanager:ModemManager python3:/usr/bin/python3; do
        command -v "${package#*:}" >/dev/null ||
            run_without "${package#*:} is missing (package ${package%:*})" "$@"
    done
    /usr/bin/python3 -c 'import dbusmock' 2>/dev/null ||
        run_without "dbusmock for Python is missing (package python3-dbusmock)" "$@"
    namespaces=(--mount --net --pid --fork --kill-child --mount-proc)
    [ "$(id -u)" -eq 0 ] || namespaces+=(--map-root-user)
    complaint=$(unshare "${namespaces[@]}" true 2>&1) ||
        run_without "namespaces are not permitted: $complaint" "$@"
    exec unshare "${namespaces[@]}" "$self" --inside "$@"
    ;;
esac
