#!/bin/bash
# SPDX-License-Identifier: MIT
# What connrecord costs with many connections, beside sqlite3 doing the same with the same
# rows: processor time and peak memory, the least of several runs.
#
#   benchmarks/tool.sh CONNRECORD [ROWS [RUNS]]
set -euo pipefail

connrecord=$(realpath "$1")
rows=${2:-1000000}
runs=${3:-3}
seed=1

for program in sqlite3 /usr/bin/time; do
    command -v "$program" >/dev/null || { echo "$program is needed" >&2; exit 1; }
done

folder=$(mktemp -d "${TMPDIR:-/var/tmp}/connrecord-benchmark-XXXXXX")
trap 'rm -rf "$folder"' EXIT
cd "$folder"
export TZ=Europe/Berlin

columns="profile,start,end,connected_seconds,uploaded_bytes,downloaded_bytes,ending,interface"
columns="$columns,operator,operator_code,sim,roaming,technology"
stored="profile,start_utc,end_utc,connected_seconds,uploaded_bytes,downloaded_bytes,ending"
stored="$stored,interface_name,operator_name,operator_code,sim,roaming,technology"

# Twenty years of connections, most of them from Latin letters alone.
connections() {
    TZ=UTC awk -v rows="$rows" -v seed="$seed" -v header="$columns" 'BEGIN {
        srand(seed)
        split("internet,web.example,business.apn,Übertragung,surf & mail", profiles, ",")
        split("Operator One,Opérateur,Operator Two,", operators, ",")
        split("26201,20801,26202,", codes, ",")
        print header
        start = 1100000000
        for (i = 0; i < rows; ++i) {
            start += int(rand() * 1200000000 / rows)
            seconds = 1 + int(rand() * 7200)
            operator = 1 + int(rand() * 4)
            printf "%s,%s,%s,%d,%d,%d,normal,wwan%d,%s,%s,%s,%s,%s\n",
                profiles[1 + int(rand() * 5)], strftime("%Y-%m-%dT%H:%M:%SZ", start),
                strftime("%Y-%m-%dT%H:%M:%SZ", start + seconds), seconds, rand() * 1e8,
                rand() * 1e9, rand() * 2, operators[operator], codes[operator],
                rand() < 0.5 ? "8949020000123456789" : "", rand() < 0.1 ? "roaming" : "home",
                rand() < 0.5 ? "lte" : "5gnr"
        }
    }'
}

# measure COMMAND...: "SECONDS KILOBYTES", each the least of the runs.
measure() {
    for ((run = 0; run < runs; ++run)); do
        eval "${before:-true}"
        /usr/bin/time -o cost -f '%U %S %M' "$@" >/dev/null 2>errors || {
            cat errors >&2
            return 1
        }
        awk '{ print $1 + $2, $3 }' cost
    done | awk 'NR == 1 || $1 < time { time = $1 } NR == 1 || $2 < memory { memory = $2 }
                END { print time, memory }'
}

# row WORK REACH MEGABYTES TOOL SQLITE: the costs as measure() prints them.
row() {
    awk -v work="$1" -v reach="$2" -v most="$3" -v tool="$4" -v plain="$5" 'BEGIN {
        split(tool, t, " "); split(plain, p, " ")
        ratio = p[1] > 0 ? t[1] / p[1] : 0
        factor = sprintf(ratio > reach ? "**%.2f**" : "%.2f", ratio)
        limit = most > 0 ? most " MB" : ""
        memory = sprintf(most > 0 && t[2] / 1000 > most ? "**%.1f**" : "%.1f", t[2] / 1000)
        printf "| %s | %.2f s | %.2f s | %s | %s | %s MB | %.1f MB | %s |\n", work, t[1], p[1],
            factor, reach, memory, p[2] / 1000, limit
    }'
}

local_time() { echo "strftime('$1',$2,'unixepoch','localtime')"; }

connections >input.csv
cat >import.sql <<EOF
CREATE TABLE connection ($columns);
CREATE INDEX connection_by_start ON connection (start);
.import --csv --skip 1 input.csv connection
EOF

echo "| $rows rows | connrecord | sqlite3 | times | at most | memory | sqlite3 | at most |"
echo "| --- | ---: | ---: | ---: | ---: | ---: | ---: | ---: |"

before='rm -f tool.db* plain.db*'
plain=$(measure sqlite3 plain.db ".read import.sql")
tool=$(measure "$connrecord" --store tool.db import --format csv input.csv)
row "import CSV" 1.3 40 "$tool" "$plain"
before=''

ordered="FROM connection ORDER BY start_utc, key"
tool=$(measure "$connrecord" --store tool.db export)
plain=$(measure sqlite3 -csv tool.db "SELECT $stored $ordered")
row "export CSV" 1.2 15 "$tool" "$plain"

tool=$(measure "$connrecord" --store tool.db export --json)
plain=$(measure sqlite3 -json tool.db "SELECT key, $stored $ordered")
row "export JSON" 1.2 15 "$tool" "$plain"

times="$(local_time '%Y-%m-%d %H:%M:%S' start_utc), $(local_time '%Y-%m-%d %H:%M:%S' end_utc)"
tool=$(measure "$connrecord" --store tool.db list)
plain=$(measure sqlite3 -list tool.db "SELECT key, profile, $times, connected_seconds,
    uploaded_bytes, downloaded_bytes, ending, interface_name, operator_name, sim, roaming $ordered")
row "list" 1.5 15 "$tool" "$plain"

tool=$(measure "$connrecord" --store tool.db list --json)
plain=$(measure sqlite3 -json tool.db "SELECT key, $stored $ordered")
row "list --json" 1.5 15 "$tool" "$plain"

sqlite3 tool.db "INSERT INTO connection_hour SELECT key, start_utc - start_utc % 3600, 0,
    uploaded_bytes, downloaded_bytes FROM connection"
tool=$(measure "$connrecord" --store tool.db totals --by profile,month)
plain=$(measure sqlite3 tool.db "SELECT profile, $(local_time %Y-%m hour_utc) AS month, count(*),
    sum(h.uploaded_bytes), sum(h.downloaded_bytes) FROM connection_hour AS h
    JOIN connection AS c ON c.key = h.connection GROUP BY profile, month")
row "totals by profile and month, bytes by the hour" 1 0 "$tool" "$plain"

for ((run = 0; run < 10; ++run)); do
    start=${EPOCHREALTIME/./}
    "$connrecord" --store tool.db list 2>/dev/null | head -n 1 >/dev/null || true
    echo $((${EPOCHREALTIME/./} - start))
done | sort -n | awk 'NR == 1 { printf "\nlist | head -1: %.0f ms, at most 50 ms\n", $1 / 1000 }'
