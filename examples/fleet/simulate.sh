#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# simulate.sh FOLDER MACHINES CONNECTIONS [SEED]: makes the histories of so many machines,
# with so many connections each, and their deliveries in FOLDER: four of each machine, while
# connections come, last, end and are removed. FOLDER/order names them as they arrive, some
# late and some twice, FOLDER/totals what the machines themselves add up.
set -euo pipefail
folder=$1 machines=$2 connections=$3 seed=${4:-1} pieces=4
connrecord=${CONNRECORD:-connrecord}
mkdir -p "$folder/stores" "$folder/deliveries"

# new_connections MACHINE PIECE: as CSV, at any time of 2025, so most are older than others
# that were delivered before.
new_connections() {
    awk -v seed="$((seed * 1000000 + $1 * pieces + $2))" -v machine="$1" \
        -v count="$((connections / pieces))" 'BEGIN {
        srand(seed)
        print "profile,start,end,connected_seconds,uploaded_bytes,downloaded_bytes,ending," \
              "interface,operator,operator_code,sim,roaming,technology"
        for (i = 0; i < count; ++i) {
            seconds = 30 + int(rand() * 7200)
            start = 1735689600 + int(rand() * 31500000)
            printf "internet.example,%s,%s,%d,%d,%d,normal,wwan0,Example,00101,8949%015d,%s,lte\n",
                strftime("%Y-%m-%dT%H:%M:%SZ", start, 1),
                strftime("%Y-%m-%dT%H:%M:%SZ", start + seconds, 1), seconds,
                int(rand() * 1000000), int(rand() * 20000000), machine,
                rand() < 0.1 ? "roaming" : "home"
        }
    }'
}

# Of machine $1, with store $2, in piece $3: one connection begins, moves more, and ends.
running_connection() {
    [ $(($1 % 2)) -eq 1 ] || return 0
    case $3 in
    1) sqlite3 "$2" "INSERT INTO open_connection (boot_id, interface_index, interface_name,
           profile, link_mark, start_utc, start_boot_ms, base_uploaded, base_downloaded,
           uploaded_bytes, downloaded_bytes, updated_utc, connected_seconds, ending)
           VALUES ('boot', 3, 'wwan0', 'internet.example', '', 1767200000, 0, 0, 0,
                   1000, 5000, 1767200100, 100, 'normal')" ;;
    2) sqlite3 "$2" "UPDATE open_connection SET downloaded_bytes = 9000,
           updated_utc = 1767200200, connected_seconds = 200" ;;
    3) sqlite3 "$2" "DELETE FROM open_connection"
       "$connrecord" --store "$2" add --profile internet.example --start 2025-12-31T16:53:20Z \
           --end 2025-12-31T17:03:20Z --up 2000 --down 12000 >/dev/null ;;
    esac
}

simulate_machine() {
    local name store piece after=0 file
    name=$(printf 'bus-%04d' "$1")
    store=$folder/stores/$name.db
    for ((piece = 1; piece <= pieces; ++piece)); do
        new_connections "$1" "$piece" |
            "$connrecord" --store "$store" import --format csv - >/dev/null
        running_connection "$1" "$store" "$piece"
        # Something that was delivered before is removed.
        [ "$piece" -ne 3 ] || [ $(($1 % 3)) -ne 0 ] ||
            "$connrecord" --store "$store" remove --yes 2 3 >/dev/null
        file=$folder/deliveries/$name-$piece.jsonl
        "$connrecord" --store "$store" export --format jsonl --machine "$name" \
            --after "$after" --output "$file"
        after=$(tail -n 1 "$file" | sed 's/.*"last_key":\([0-9]*\).*/\1/')
    done
    "$connrecord" --store "$store" totals --json | awk -v name="$name" -F '[ ,:]+' '
        { value[$2] = $3 }
        END { print name "|" value["\"connections\""] "|" value["\"uploaded_bytes\""] "|" \
                    value["\"downloaded_bytes\""] }' >>"$folder/totals"
}

: >"$folder/totals"
for ((machine = 1; machine <= machines; ++machine)); do
    simulate_machine "$machine"
done
find "$folder/deliveries" -name '*.jsonl' | sort |
    awk -v seed="$seed" 'BEGIN { srand(seed) }
        { print rand() "\t" $0 }
        rand() < 0.3 { print rand() "\t" $0 }' | sort | cut -f 2 >"$folder/order"
