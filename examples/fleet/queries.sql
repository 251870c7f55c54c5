-- SPDX-License-Identifier: MIT
-- What an operator asks. Give another day with: psql -v today=2026-03-28 -f queries.sql
\if :{?today} \else
    SELECT current_date AS today \gset
\endif

\echo 'SIMs that have used 80 % of their cap this month'
SELECT sim, sum(uploaded_bytes + downloaded_bytes) AS used, bytes_a_month AS cap,
       round(100 * sum(uploaded_bytes + downloaded_bytes) / bytes_a_month) AS percent
FROM moved JOIN sim_cap USING (sim)
WHERE at >= date_trunc('month', :'today'::timestamptz)
  AND at < date_trunc('month', :'today'::timestamptz) + interval '1 month'
GROUP BY sim, bytes_a_month
HAVING sum(uploaded_bytes + downloaded_bytes) >= 0.8 * bytes_a_month
ORDER BY percent DESC, sim;

\echo 'Machines that have not delivered for two days'
SELECT machine, delivered, :'today'::timestamptz - delivered AS silent_for
FROM machine
WHERE delivered < :'today'::timestamptz - interval '2 days'
ORDER BY delivered;

\echo 'Cost by month'
SELECT to_char(at, 'YYYY-MM') AS month, roaming,
       sum(uploaded_bytes + downloaded_bytes) AS bytes,
       round(sum(uploaded_bytes + downloaded_bytes) / 1024 ^ 3::numeric * price_a_gigabyte, 2)
           AS cost
FROM moved JOIN tariff USING (roaming)
GROUP BY 1, 2, price_a_gigabyte
ORDER BY 1, 2;
