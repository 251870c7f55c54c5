#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# check-fleet.sh CONNRECORD: what the program tells those who watch and collect the histories
# of many machines: metrics and deliveries.
set -euo pipefail
connrecord=$1
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
store=$work/history.db

fail() {
    echo "$1"
    exit 1
}
run() { "$connrecord" --store "$store" "$@"; }
# expect WHAT EXPECTED ACTUAL
expect() { [ "$2" = "$3" ] || fail "$1: expected
$2
but got
$3"; }
# refuse EXIT_CODE TEXT COMMAND...
refuse() {
    local code=0 error
    error=$(run "${@:3}" 2>&1 >"$work/output") || code=$?
    expect "${*:3}" "$1" "$code"
    [[ $error == *"$2"* ]] || fail "${*:3}: $error"
    expect "output of ${*:3}" '' "$(cat "$work/output")"
}
samples() { run metrics "${@:2}" | grep "^$1[{ ]" | cut -c $((${#1} + 1))- || true; }

run import --format csv - >/dev/null <<'CSV'
profile,start,end,connected_seconds,uploaded_bytes,downloaded_bytes,ending,interface,operator,operator_code,sim,roaming,technology
internet,2024-05-31T18:30:00Z,2024-05-31T18:31:00Z,60,5,7,normal,ppp0,,,8949000000000001234,roaming,
"a ""b\c
d é",2024-05-31T18:30:00Z,2024-05-31T18:31:00Z,60,1,2,normal,ppp0,,,,,
internet,2024-05-30T18:30:00Z,2024-05-30T18:32:00Z,120,3,4,normal,ppp0,,,8949000000000001234,home,
CSV
# One lasts, with an hour at home and one roaming.
sqlite3 "$store" "INSERT INTO open_connection (boot_id, interface_index, interface_name, profile,
        link_mark, start_utc, start_boot_ms, base_uploaded, base_downloaded, uploaded_bytes,
        downloaded_bytes, updated_utc, connected_seconds, ending, sim, roaming)
    VALUES ('boot', 3, 'ppp0', 'internet', '', 1717372800, 0, 0, 0, 110, 0, 1717376400, 3600,
        'normal', '8949000000000001234', 'home');
    INSERT INTO open_connection_hour VALUES (1, 1717372800, 0, 10, 0), (1, 1717372800, 1, 100, 0)"

sim='profile="internet",sim="8949000000000001234"'
expect 'bytes sent' "{profile=\"a \\\"b\\\\c\\nd é\",sim=\"\",roaming=\"home\"} 1
{$sim,roaming=\"home\"} 18
{$sim,roaming=\"roaming\"} 100" "$(samples connrecord_sent_bytes_total)"
expect 'connections' "{profile=\"a \\\"b\\\\c\\nd é\",sim=\"\",roaming=\"home\"} 1
{$sim,roaming=\"home\"} 2
{$sim,roaming=\"roaming\"} 1" "$(samples connrecord_connections_total)"
expect 'seconds' "{$sim,roaming=\"home\"} 3720
{$sim,roaming=\"roaming\"} 60" "$(samples connrecord_connected_seconds_total | tail -n 2)"

period=(--from 2024-01-01 --to 2999-12-31)
run plan set near --amount 150 --warn 50,80,95 "${period[@]}" >/dev/null
run plan set free "${period[@]}" >/dev/null
run plan set past --amount 1 --from 2024-01-01 --to 2024-01-31 >/dev/null
expect 'used' '{plan="free"} 132
{plan="near"} 132' "$(samples connrecord_plan_used_bytes)"
expect 'left' '{plan="near"} 18' "$(samples connrecord_plan_left_bytes)"
expect 'thresholds' '{plan="near",percent="50"} 1
{plan="near",percent="80"} 1
{plan="near",percent="95"} 0' "$(samples connrecord_plan_threshold_reached)"
expect 'states' '{plan="free",state="within"} 1
{plan="near",state="warned"} 1
{plan="past",state="no_period"} 1' "$(samples connrecord_plan_state | grep ' 1$')"

expect 'recording' ' 0' "$(samples connrecord_recording)"
: >"$store.recorder"
expect 'recording, beside a lock that nobody holds' ' 0' "$(samples connrecord_recording)"
# /proc/locks of a container tells no lock whose taker has ended.
expect 'recording, locked' 'connrecord_recording 1' \
    "$(flock "$store.recorder" "$connrecord" --store "$store" metrics | grep '^connrecord_recording ')"

if command -v promtool >/dev/null; then
    run metrics | promtool check metrics || fail 'promtool finds something'
fi
if /usr/bin/python3 -c 'import prometheus_client' 2>/dev/null; then
    expect 'OpenMetrics' '4 counters, 5 gauges' "$(run metrics --format openmetrics |
        /usr/bin/python3 -c '
import sys
from prometheus_client.openmetrics import parser
types = [family.type for family in parser.text_string_to_metric_families(sys.stdin.read())]
print("%d counters, %d gauges" % (types.count("counter"), types.count("gauge")))')"
fi
expect 'families of no history' 9 \
    "$("$connrecord" --store "$work/none.db" metrics | grep -c '^# TYPE')"
(umask 077 && run metrics --output "$work/connrecord.prom")
expect 'mode of a new file' 644 "$(stat -c %a "$work/connrecord.prom")"
chmod 640 "$work/connrecord.prom"
run metrics --output "$work/connrecord.prom"
expect 'mode of a file that was there' 640 "$(stat -c %a "$work/connrecord.prom")"
refuse 2 'prometheus|openmetrics' metrics --format xml
refuse 5 'belongs to the history' metrics --output "$store"

# Sums that no reader could hold, within a group and over several ones.
for places in 'home home' 'home roaming'; do
    (
        store="$work/huge $places.db"
        start=0
        for place in $places; do
            printf '%s\n' "$(run export)" "huge,2024-05-3$((start++))T18:30:00Z,2024-05-31T18:31:00Z,60,$(((1 << 63) - 1)),0,normal,ppp0,,,,$place," |
                run import --format csv - >/dev/null
        done
        refuse 1 'than can be added up' metrics
    )
done

# deliver KEY [OPTION...]
deliver() { run export --format jsonl --machine bus --after "$@"; }
keys() { deliver "$@" | sed -n 's/.*"key":\([0-9]*\).*"running":\([a-z]*\).*/\1 \2/p'; }
closing() { deliver "$1" | tail -n 1 | sed 's/"delivered":"[^"]*"/"delivered":"now"/'; }
expect 'all of it' '3 false
1 false
2 false
1 true' "$(keys 0)"
expect 'what came since' '3 false
1 true' "$(keys 2)"
expect 'the line on the delivery' '{"after":2,"connections":2,"delivered":"now","last_key":3,'\
'"machine":"bus","removed":[],"running":[1]}' "$(closing 2)"
expect 'one that lasts, in JSON' 1 "$(run export --json --after 3 | grep -c '"running": true')"
expect 'one that lasts, in CSV' 'internet,2024-06-03T00:00:00Z,,3600,110,0,normal,ppp0,,,'\
'8949000000000001234,home,' "$(run export --after 3 | tail -n 1)"
expect 'nothing else without the option' 3 "$(run export --json | grep -c '"key"')"
run remove --yes 1 3 >/dev/null
expect 'what is gone' '{"after":3,"connections":1,"delivered":"now","last_key":3,'\
'"machine":"bus","removed":[[1,1],[3,3]],"running":[1]}' "$(closing 3)"
refuse 1 'the last one is 3' export --after 4
refuse 2 'For --after, "three"' export --after three
refuse 2 '--limit' export --after 1 --limit 1
refuse 2 '--machine is for jsonl' export --machine bus
refuse 2 'the name is empty' export --format jsonl --machine ''
[[ $(run export --format jsonl) =~ \"machine\":\"[0-9a-f]{32}\" ]] || fail 'the number of the machine'

for format in csv json jsonl; do
    run export --format "$format" --after 0 >"$work/exported"
    copy=$work/$format.db
    "$connrecord" --store "$copy" import --format "$format" "$work/exported" >"$work/report"
    expect "$format comes back" 1 "$(grep -c '^Not used, the connection still lasted: 1;' "$work/report")"
    expect "$format comes back" "$(run export)" "$("$connrecord" --store "$copy" export)"
    expect "$format again" 'Added: 0' "$("$connrecord" --store "$copy" import --format "$format" \
        "$work/exported" | grep '^Added')"
done
echo '{"key":1' >"$work/exported"
refuse 4 'line 1' import --format jsonl "$work/exported"

# A log that knows more of a record than the history gives it a new key.
run import --format csv - >/dev/null <<'CSV'
profile,start,end,connected_seconds,uploaded_bytes,downloaded_bytes,ending,interface
ppp0,2024-11-10T17:02:09Z,2024-11-10T17:14:27Z,738,31981,20722,normal,
CSV
cat >"$work/log" <<'LOG'
2024-11-10T17:02:09+00:00 host pppd[9]: Connect: ppp0 <--> /dev/ttyUSB0
2024-11-10T17:02:09+00:00 host pppd[9]: local  IP address 198.51.100.7
2024-11-10T17:14:27+00:00 host pppd[9]: Connect time 12.3 minutes.
2024-11-10T17:14:27+00:00 host pppd[9]: Sent 31981 bytes, received 20722 bytes.
LOG
run import --format pppd --profile internet.example "$work/log" >"$work/report"
expect 'completed' 'Of these, completed: 1' "$(grep completed "$work/report")"
expect 'the completed record' '5 false
1 true' "$(keys 4)"
[[ $(closing 4) == *'"removed":[[1,1],[3,4]]'* ]] || fail "the former record: $(closing 4)"
run check >/dev/null
