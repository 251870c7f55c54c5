#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# try.sh [MACHINES [CONNECTIONS [SEED]]]: simulates a fleet, delivers it into a PostgreSQL of
# its own, and compares the sums there with those of the machines.
set -euo pipefail
here=$(cd "$(dirname "$0")" && pwd)
machines=${1:-100} connections=${2:-10000} seed=${3:-1}

server=$(find /usr/lib/postgresql -path '*/bin/initdb' 2>/dev/null | sort -V | tail -n 1)
for tool in "${server:-initdb}" psql sqlite3 "${CONNRECORD:-connrecord}"; do
    command -v "$tool" >/dev/null || { echo "SKIP: $tool is not there"; exit 0; }
done
export PATH=${server%/initdb}:$PATH
# PostgreSQL does not run as root.
as_user=()
if [ "$(id -u)" -eq 0 ]; then
    as_user=(runuser -u "$(getent passwd postgres >/dev/null && echo postgres || echo nobody)" --)
fi

work=$(mktemp -d)
trap '"${as_user[@]}" pg_ctl -D "$work/server/data" -m immediate stop >/dev/null 2>&1 || true
      rm -rf "$work"' EXIT
chmod 755 "$work"
mkdir "$work/server"
[ ${#as_user[@]} -eq 0 ] || chown "${as_user[2]}" "$work/server"
cd "$work/server"
"${as_user[@]}" initdb -D data -U fleet --auth=trust --no-sync --no-locale -E UTF8 >/dev/null
"${as_user[@]}" pg_ctl -D data -l log -w -o "-k $work/server -c listen_addresses= -c timezone=UTC" \
    start >/dev/null || { cat log; exit 1; }
export PGHOST=$work/server PGUSER=fleet PGDATABASE=postgres PGOPTIONS='-c client_min_messages=warning'
query() { psql -v ON_ERROR_STOP=1 --no-psqlrc "$@"; }

seconds() { date +%s.%N; }
begin=$(seconds)
"$here/simulate.sh" "$work/fleet" "$machines" "$connections" "$seed"
simulated=$(seconds)
query -q -f "$here/schema.sql"
loads=0
# As they arrive; ten at a time where there are many.
while mapfile -t -n $((machines > 10 ? 10 : 1)) files && [ ${#files[@]} -gt 0 ]; do
    cat "${files[@]}" | query -f "$here/load.sql"
    loads=$((loads + 1))
done <"$work/fleet/order"
loaded=$(seconds)

query -At -c "SELECT machine, count(DISTINCT key), sum(uploaded_bytes), sum(downloaded_bytes)
              FROM (SELECT machine, key, uploaded_bytes, downloaded_bytes FROM connection
                    UNION ALL SELECT machine, -key, uploaded_bytes, downloaded_bytes FROM running)
                   AS all_of_them GROUP BY machine ORDER BY machine" >"$work/sums"
diff "$work/fleet/totals" "$work/sums" ||
    { echo 'The sums are not those of the machines.'; exit 1; }
query -q -c "INSERT INTO sim_cap SELECT DISTINCT sim, 1::bigint << 30 FROM connection WHERE sim <> ''" \
    -c "INSERT INTO tariff VALUES (false, 2), (true, 20)"
query -v today=2025-03-28 -f "$here/queries.sql" >"$work/answers"
rows=$(xargs cat <"$work/fleet/order" | grep -c '"key"')
awk -v rows="$rows" -v files="$(wc -l <"$work/fleet/order")" -v loads="$loads" \
    -v machines="$machines" -v begin="$begin" -v simulated="$simulated" -v loaded="$loaded" 'BEGIN {
    printf "%d machines, %d deliveries in %d loads: the sums are those of the machines.\n",
        machines, files, loads
    printf "Made in %.1f s; %d rows loaded in %.1f s, %d a second.\n", simulated - begin, rows,
        loaded - simulated, rows / (loaded - simulated)
}'
