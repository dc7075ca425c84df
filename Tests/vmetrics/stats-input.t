Every kind of file. A good one, to compare with:

  $ . "$TESTDIR/data/steps.sh"
  $ { step Connect 10; step Connect 20; } > good
  $ vmetrics stats good
  STEP (ms)  COUNT  FAILED  RATE  MIN  MEDIAN  P95  P99  MAX
  Connect        2       0  0.0%   10      10   20   20   20

With carriage returns, without a last line break, compressed:

  $ sed 's/$/\r/' good | vmetrics stats
  STEP (ms)  COUNT  FAILED  RATE  MIN  MEDIAN  P95  P99  MAX
  Connect        2       0  0.0%   10      10   20   20   20
  $ printf %s "$(cat good)" | vmetrics stats
  STEP (ms)  COUNT  FAILED  RATE  MIN  MEDIAN  P95  P99  MAX
  Connect        2       0  0.0%   10      10   20   20   20
  $ gzip < good > good.gz
  $ vmetrics stats good.gz
  STEP (ms)  COUNT  FAILED  RATE  MIN  MEDIAN  P95  P99  MAX
  Connect        2       0  0.0%   10      10   20   20   20
  $ vmetrics stats < good.gz
  STEP (ms)  COUNT  FAILED  RATE  MIN  MEDIAN  P95  P99  MAX
  Connect        2       0  0.0%   10      10   20   20   20

With a logger's prefix, torn and glued lines:

  $ sed 's/^/2026-11-21 16:04:17 INFO /' good | vmetrics stats
  STEP (ms)  COUNT  FAILED  RATE  MIN  MEDIAN  P95  P99  MAX
  Connect        2       0  0.0%   10      10   20   20   20
  $ { head -c 100 good; echo; cat good; } | vmetrics stats
  STEP (ms)  COUNT  FAILED  RATE  MIN  MEDIAN  P95  P99  MAX
  Connect        2       0  0.0%   10      10   20   20   20
  vmetrics: 0 records recovered from damaged lines, 1 fragment without any left out
  $ { head -c 100 good; cat good; } | vmetrics stats
  STEP (ms)  COUNT  FAILED  RATE  MIN  MEDIAN  P95  P99  MAX
  Connect        2       0  0.0%   10      10   20   20   20
  vmetrics: 1 record recovered from damaged lines, 1 fragment without any left out

Empty, and of bytes that are no log:

  $ vmetrics stats /dev/null
  $ head -c 100000 /dev/zero | vmetrics stats
  vmetrics: 0 records recovered from damaged lines, 1 fragment without any left out
  $ printf '\377\376\0{\n}{}\n[]\n"x"\n' | vmetrics stats
  vmetrics: 0 records recovered from damaged lines, 3 fragments without any left out
  $ { head -c 5000000 /dev/zero; echo; cat good; } | vmetrics stats
  STEP (ms)  COUNT  FAILED  RATE  MIN  MEDIAN  P95  P99  MAX
  Connect        2       0  0.0%   10      10   20   20   20
  vmetrics: 1 line of more than 4194304 bytes left out

What cannot be read is told, and the others are read:

  $ vmetrics stats missing good .
  vmetrics: missing: No such file or directory
  vmetrics: .: Is a directory
  STEP (ms)  COUNT  FAILED  RATE  MIN  MEDIAN  P95  P99  MAX
  Connect        2       0  0.0%   10      10   20   20   20
  [2]
  $ head -c 60 good.gz > cut.gz
  $ vmetrics stats cut.gz good
  vmetrics: cut.gz: the compressed data ends too early
  STEP (ms)  COUNT  FAILED  RATE  MIN  MEDIAN  P95  P99  MAX
  Connect        2       0  0.0%   10      10   20   20   20
  vmetrics: 0 records recovered from damaged lines, 1 fragment without any left out
  [2]

More different steps than are kept apart:

  $ seq 50002 | sed 's/.*/{"spanId":"s","args":{"stepName":"&","usedTime":1}}/' > names
  $ vmetrics stats --format csv names > result
  vmetrics: values left out, as there are too many steps, metrics and periods: 2; choose some by --step or --metric
  [2]
  $ wc -l < result
  50001

A full disk:

  $ vmetrics stats good > /dev/full
  vmetrics: standard output: No space left on device
  [2]
