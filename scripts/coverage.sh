#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# Measures which lines and branches of the plug-in its tests reach. The whole
# report is build/coverage/report.html; the summary is printed.
set -euo pipefail
cd "$(dirname "$0")/.."
source scripts/setup.sh

install_packages "${build_packages[@]}" "${run_packages[@]}" gcovr
cmake --preset coverage >/dev/null
cmake --build --preset coverage
find build/coverage -name '*.gcda' -delete
ctest --test-dir build/coverage/tests/plugin --output-on-failure
# A branch that only an exception takes (of a container out of memory, mostly) is
# no decision of the code.
gcovr --root . --filter src/ --exclude-throw-branches --exclude-unreachable-branches \
    --html-details build/coverage/report.html --txt --print-summary build/coverage
