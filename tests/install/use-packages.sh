#!/bin/bash
# SPDX-License-Identifier: MIT
# Run by check-packages.sh within the root that it has made: installs the packages that
# lie beside this script, uses them as a user does, removes them, and compares the root
# with what it was before.
set -euo pipefail
cd "$(dirname "$0")"

# What dpkg and its helpers write down for themselves is no trace.
all_files() {
    find / -xdev \( -path /checks -o -path /proc -o -path /sys -o -path /dev -o -path /tmp \
        -o -path /var/lib/dpkg -o -path /var/log \) -prune -o -print | sort
}

as_user() {
    setpriv --reuid=1000 --regid=1000 --clear-groups --no-new-privs \
        env -i HOME="$PWD/user" XDG_RUNTIME_DIR="$PWD/user" PATH="$PATH" LC_ALL=C.UTF-8 \
        QT_QPA_PLATFORM=offscreen QT_LOGGING_RULES=default.debug=false "$@"
}

names=()
for package in *.deb; do
    names+=("$(dpkg-deb --field "$package" Package)")
done
all_files >before
mkdir --mode=700 user
chown 1000:1000 user

echo "They are installed."
dpkg --install ./*.deb >install.log 2>&1 || { cat install.log; exit 1; }

echo "The programs run."
as_user connrecord --version
as_user refdialer --demo --screenshot user/history.png
[ "$(head -c 4 user/history.png | tail -c 3)" = PNG ]

echo "A host is built from the example and shows its records."
example=/usr/share/doc/netinforecord-dev/examples/minimal-host
as_user cmake -S "$example" -B user/host >build.log
as_user cmake --build user/host >>build.log
as_user cmake -D HOST="$PWD/user/host/minimal-host" \
    -D PLUGIN="$(pkg-config --variable=pluginfile netinforecord)" -P "$example/check-rows.cmake"

echo "They are removed without a trace."
dpkg --purge "${names[@]}" >purge.log 2>&1 || { cat purge.log; exit 1; }
all_files >after
diff before after
