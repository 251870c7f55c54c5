#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# scripts/campaigns.sh [--seed=N] [CAMPAIGN...]: the long runs against bad luck and
# bad manners, in full; all of them if none is named:
#   host        1,000,000 steps of a hostile host with Qt 5, and under each compiler's
#               sanitizers with Qt 6, once with the statistics
#   kills       1,000 writers of a store and 1,000 recorders killed
#   power       1,000 cuts of the power while a store is made, written to and recovers
#   hands       1,000 times that another program records: windows and recorders in the
#               background that come, go and are killed while bytes flow
#   reconnects  1,000 connections of a real interface in a network of its own
#   fuzz        each fuzz target for half an hour, two at a time
#   texts       times, numbers and volumes as Qt reads and writes them, in a
#               million random cases each
#   abi         the binary interface, and a host of the other compiler
# NETINFORECORD_COUNT sets another number of steps, kills, cuts, changes, connections or
# cases, FUZZ_SECONDS another time. ./test runs a short form of each.
set -euo pipefail
cd "$(dirname "$0")/.."
source scripts/setup.sh

case "${1-}" in
--seed=*)
    export NETINFORECORD_SEED=${1#--seed=}
    shift
    ;;
esac
campaigns=("$@")
[ ${#campaigns[@]} -gt 0 ] || campaigns=(host kills power hands reconnects texts fuzz abi)

# run PRESET TESTS [COUNT]: builds a preset and runs the tests that match. A test
# that was skipped has shown nothing.
run() {
    build "$1"
    # QtTest would end a test after five minutes.
    QTEST_FUNCTION_TIMEOUT=14400000 NETINFORECORD_COUNT=${NETINFORECORD_COUNT:-${3-}} \
        ctest --preset "$1" --verbose --timeout 14400 --tests-regex "$2" |
        awk '/PASS|FAIL|SKIP|QINFO|tests passed|Test +#/
             /SKIP   :/ { skipped = 1 }
             END { exit skipped }'
}

# Each target writes what it finds to build/ci/tests/found, its own log beside.
fuzz() {
    build ci
    export QT_QPA_PLATFORM=offscreen TZ=Europe/Berlin LC_ALL=C.UTF-8
    export LSAN_OPTIONS=suppressions=$PWD/tests/leaks.supp:print_suppressions=0
    export FUZZ_SECONDS=${FUZZ_SECONDS:-1800}
    # shellcheck disable=SC2016  # the inner shell expands them
    xargs -a build/ci/tests/fuzzers -P 2 -L 1 bash -c '
        found=build/ci/tests/found/$0
        build/ci/tests/fuzz_"$0" -max_total_time="$FUZZ_SECONDS" -max_len="$1" \
            -timeout=10 -rss_limit_mb=4096 -artifact_prefix="$found-" "$found" "${@:2}" \
            >"$found.log" 2>&1 || { tail -n 40 "$found.log" >&2; exit 255; }
        printf "%s: %s\n" "$0" "$(grep -a "^Done" "$found.log")"'
}

for campaign in "${campaigns[@]}"; do
    say "== $campaign =="
    case "$campaign" in
    host)
        run qt5 tst_hostilehost 1000000
        run ci tst_hostilehost 1000000
        run gcc tst_hostilehost 1000000
        ;;
    kills) run qt5 'tst_(store|recorder)kills' 1000 ;;
    power) run qt5 tst_powercuts 1000 ;;
    hands) run qt5 tst_changesofhands 1000 ;;
    reconnects) run qt5 tst_networklosses 1000 ;;
    fuzz) fuzz ;;
    texts) run qt5 '^tst_(time|sdk|volume)text$' 1000000 ;;
    abi)
        run ci '^(tst_slots|tst_exports|tst_interface|minimal_host_.*|sdk_exports)$'
        run qt5 '^plugin_for_host_makers$'
        run dev '^plugin_for_host_makers$'
        ;;
    *)
        say "There is no campaign \"$campaign\"; there are host, kills, power, hands, reconnects, texts, fuzz and abi."
        exit 2
        ;;
    esac
done
say "All of it held: ${campaigns[*]}"
