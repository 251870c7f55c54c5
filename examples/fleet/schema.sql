-- SPDX-License-Identifier: MIT
-- A place for the histories of many machines. Columns are named as the members of
-- what connrecord export --format jsonl writes.

-- What the newest delivery of each machine says of the machine.
CREATE TABLE machine (
    machine text PRIMARY KEY,
    delivered timestamptz NOT NULL,
    last_key bigint NOT NULL,
    running jsonb NOT NULL, -- the keys of the connections that last
    removed jsonb NOT NULL  -- the first and the last key of each run of removed records
);

-- A record never changes under its key.
CREATE TABLE connection (
    machine text NOT NULL,
    key bigint NOT NULL,
    profile text NOT NULL,
    start timestamptz NOT NULL,
    "end" timestamptz NOT NULL,
    connected_seconds bigint NOT NULL,
    uploaded_bytes bigint NOT NULL,
    downloaded_bytes bigint NOT NULL,
    ending text NOT NULL,
    interface text NOT NULL,
    operator text NOT NULL,
    operator_code text NOT NULL,
    sim text NOT NULL,
    roaming text NOT NULL,
    technology text NOT NULL,
    hours jsonb, -- null where nobody knows when the bytes were moved
    PRIMARY KEY (machine, key)
);
CREATE INDEX connection_by_start ON connection (start);

-- Connections that last have keys of their own, and change.
CREATE TABLE running (
    LIKE connection,
    updated timestamptz NOT NULL,
    PRIMARY KEY (machine, key)
);
ALTER TABLE running ALTER "end" DROP NOT NULL;

-- The bytes in the hour in which they were moved, else at the start of their connection.
CREATE VIEW moved AS
SELECT machine, key, profile, sim,
       coalesce(h.hour, start) AS at,
       coalesce(h.roaming, false) AS roaming,
       coalesce(h.uploaded_bytes, c.uploaded_bytes) AS uploaded_bytes,
       coalesce(h.downloaded_bytes, c.downloaded_bytes) AS downloaded_bytes
FROM (SELECT machine, key, profile, sim, start, uploaded_bytes, downloaded_bytes, hours
      FROM connection
      UNION ALL
      SELECT machine, key, profile, sim, start, uploaded_bytes, downloaded_bytes, hours
      FROM running) AS c
LEFT JOIN LATERAL jsonb_to_recordset(c.hours) AS h (
    hour timestamptz, roaming boolean, uploaded_bytes bigint, downloaded_bytes bigint) ON true;

-- What the operator has agreed on with the provider.
CREATE TABLE sim_cap (sim text PRIMARY KEY, bytes_a_month bigint NOT NULL);
CREATE TABLE tariff (roaming boolean PRIMARY KEY, price_a_gigabyte numeric NOT NULL);
