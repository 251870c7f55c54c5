#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# scripts/coverage.sh [FOLDER...]: measures which lines and branches of a folder its own
# tests reach, of each of src, history, recorder, modem and usage if none is named. Fails
# below 98 % and 90 % of src, and 95 % and 85 % of the others. Reports with every line are
# build/coverage/FOLDER.html; what is not reached and the sums are printed. Branches that
# only an exception takes are left out.
set -euo pipefail
cd "$(dirname "$0")/.."
source scripts/setup.sh

folders=("$@")
[ ${#folders[@]} -gt 0 ] || folders=(src history recorder modem usage)

# measure FOLDER TESTS LINES BRANCHES: with what that folder's tests need at least.
measure() {
    find build/coverage -name '*.gcda' -delete
    ctest --test-dir "build/coverage/tests/$2" --output-on-failure --parallel "$(nproc)" &&
        gcovr --root . --filter "$1/" --exclude-throw-branches --exclude-unreachable-branches \
            --html-details "build/coverage/$1.html" --txt --print-summary \
            --fail-under-line "$3" --fail-under-branch "$4" build/coverage
}

install_packages "${build_packages[@]}" "${run_packages[@]}" "${test_packages[@]}" gcovr
cmake --preset coverage >/dev/null
cmake --build --preset coverage
missed=()
for folder in "${folders[@]}"; do
    say "== $folder =="
    case "$folder" in
    src) measure src plugin 98 90 || missed+=(src) ;;
    history | recorder | modem | usage) measure "$folder" "$folder" 95 85 || missed+=("$folder") ;;
    *)
        say "There is no folder \"$folder\" to measure; there are src, history, recorder, modem and usage."
        exit 2
        ;;
    esac
done
[ ${#missed[@]} -eq 0 ] || {
    say "Too little was reached, or a test failed: ${missed[*]}"
    exit 1
}
