#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# Measures which lines and branches of the plug-in its tests reach; fails below 98 %
# and 90 %. The whole report is build/coverage/report.html; the summary is printed.
set -euo pipefail
cd "$(dirname "$0")/.."
source scripts/setup.sh

install_packages "${build_packages[@]}" "${run_packages[@]}" gcovr
cmake --preset coverage >/dev/null
cmake --build --preset coverage
find build/coverage -name '*.gcda' -delete
ctest --test-dir build/coverage/tests/plugin --output-on-failure
gcovr --root . --filter src/ --exclude-throw-branches --exclude-unreachable-branches \
    --html-details build/coverage/report.html --txt --print-summary \
    --fail-under-line 98 --fail-under-branch 90 build/coverage
