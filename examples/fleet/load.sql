-- SPDX-License-Identifier: MIT
-- Takes one or more deliveries from standard input: whole, in any order, however often.
--     psql -d fleet -f load.sql < delivery.jsonl
\set ON_ERROR_STOP on
\set QUIET on
BEGIN;
CREATE TEMPORARY TABLE staging (line jsonb NOT NULL) ON COMMIT DROP;
-- As lines, since neither character is in one.
\copy staging FROM PSTDIN WITH (FORMAT csv, QUOTE E'\x01', DELIMITER E'\x02')

DO $$
DECLARE
    cut text := (SELECT string_agg(machine, ', ')
                 FROM (SELECT line ->> 'machine' AS machine FROM staging GROUP BY 1
                       HAVING count(*) FILTER (WHERE line ? 'key')
                              IS DISTINCT FROM sum((line ->> 'connections')::bigint)) AS each);
BEGIN
    IF NOT EXISTS (SELECT FROM staging) THEN
        RAISE 'Nothing has arrived';
    END IF;
    IF cut IS NOT NULL THEN
        RAISE 'Not all of a delivery has arrived, let it be sent again: %', cut;
    END IF;
END
$$;

INSERT INTO machine AS known
SELECT DISTINCT ON (new.machine) new.*
FROM staging, jsonb_populate_record(NULL::machine, line) AS new
WHERE line ? 'last_key'
ORDER BY new.machine, new.last_key DESC, new.delivered DESC
ON CONFLICT (machine) DO UPDATE
SET (delivered, last_key, running, removed)
    = (excluded.delivered, excluded.last_key, excluded.running, excluded.removed)
WHERE (excluded.last_key, excluded.delivered) > (known.last_key, known.delivered);

INSERT INTO connection
SELECT new.* FROM staging, jsonb_populate_record(NULL::connection, line) AS new
WHERE line @> '{"running": false}'
ON CONFLICT DO NOTHING;

INSERT INTO running
SELECT DISTINCT ON (new.machine, new.key) new.*
FROM staging, jsonb_populate_record(NULL::running, line) AS new
WHERE line @> '{"running": true}'
ORDER BY new.machine, new.key, new.updated DESC
ON CONFLICT (machine, key) DO UPDATE
SET (profile, connected_seconds, uploaded_bytes, downloaded_bytes, hours, updated)
    = (excluded.profile, excluded.connected_seconds, excluded.uploaded_bytes,
       excluded.downloaded_bytes, excluded.hours, excluded.updated)
WHERE excluded.updated > running.updated;

-- What has ended or was removed, even if an old delivery of it has only come now.
DELETE FROM running USING machine
WHERE machine.machine = running.machine
  AND machine.machine IN (SELECT line ->> 'machine' FROM staging)
  AND NOT machine.running @> to_jsonb(running.key);
DELETE FROM connection USING machine, jsonb_array_elements(machine.removed) AS run
WHERE machine.machine = connection.machine
  AND machine.machine IN (SELECT line ->> 'machine' FROM staging)
  AND key BETWEEN (run ->> 0)::bigint AND (run ->> 1)::bigint;
COMMIT;
