#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# check-build-depends.sh SOURCE: the Debian packages are built with what ./run installs
# to build, besides the compiler and debhelper.
set -euo pipefail
cd "$1"
source scripts/setup.sh
named=$(awk '/^[A-Z]/ { on = sub(/^Build-Depends:/, "") } on { sub(/,/, ""); print $1 }' \
    packaging/debian/control)
diff <(printf '%s\n' "${build_packages[@]}" | grep -vxF g++ | sort) \
    <(grep -vxF debhelper-compat <<<"$named" | sort)
