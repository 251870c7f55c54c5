#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# check-packages.sh FOLDER: installs the Debian packages in FOLDER into a root of its
# own, uses and removes them there. The picture that refdialer drew stays in FOLDER.
# Ends with 77 where the system does not let it make a root.
set -euo pipefail
folder=$(cd "$1" && pwd)
here=$(cd "$(dirname "$0")" && pwd)

namespaces=(--mount)
[ "$(id -u)" -eq 0 ] || namespaces+=(--user --map-root-user)
if ! unshare "${namespaces[@]}" true; then
    echo "Skipped: a root cannot be made without namespaces of mounts and users." >&2
    exit 77
fi

# All that the packages depend on but themselves; dpkg checks the versions.
dependencies() {
    local package
    for package in "$@"; do dpkg-deb --field "$package" Depends; done |
        tr ',' '\n' | sed 's/^ *//; s/[ (|].*//' | sort -u | grep -vxF "$(names "$@")"
}

names() {
    local package
    for package in "$@"; do dpkg-deb --field "$package" Package; done
}

shopt -s nullglob
packages=()
for package in "$folder"/*.deb; do
    [[ $package == *-dbgsym_* ]] || packages+=("$package")
done
[ ${#packages[@]} -gt 0 ] || {
    echo "There are no packages in $folder; packaging/build-deb makes them." >&2
    exit 1
}
# A maker of hosts brings the compiler; the rest comes with netinforecord-dev.
builders=(cmake g++ make pkg-config)
include=$(dependencies "${packages[@]}" | paste -s -d ,),$(IFS=,; echo "${builders[*]}")
suite=$(. /etc/os-release && echo "$VERSION_CODENAME")

# The hooks' own $1 is the root.
# shellcheck disable=SC2016
mmdebstrap --quiet --variant=minbase --include="$include" --format=null \
    --customize-hook='mkdir "$1/checks"' \
    --customize-hook="copy-in ${packages[*]} $here/use-packages.sh /checks" \
    --customize-hook='chroot "$1" /checks/use-packages.sh' \
    --customize-hook="download /checks/user/history.png $folder/history.png" \
    "$suite" /dev/null
