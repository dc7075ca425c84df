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
  vmetrics: 1 damaged line (standard input:1): 0 records recovered, 1 fragment left out; vmetrics check shows each
  $ { head -c 100 good; cat good; } | vmetrics stats
  STEP (ms)  COUNT  FAILED  RATE  MIN  MEDIAN  P95  P99  MAX
  Connect        2       0  0.0%   10      10   20   20   20
  vmetrics: 1 damaged line (standard input:1): 1 record recovered, 1 fragment left out; vmetrics check shows each

Empty, and of bytes that are no log:

  $ vmetrics stats /dev/null
  vmetrics: the logs hold no step and no number of a metric
  [1]
  $ head -c 100000 /dev/zero | vmetrics stats
  vmetrics: the logs hold no step and no number of a metric
  vmetrics: 1 damaged line (standard input:1): 0 records recovered, 1 fragment left out; vmetrics check shows each
  [1]
  $ printf '\377\376\0{\n}{}\n[]\n"x"\n' | vmetrics stats
  vmetrics: the logs hold no step and no number of a metric
  vmetrics: 3 damaged lines (the first: standard input:1): 0 records recovered, 3 fragments left out; vmetrics check shows each
  [1]
  $ { head -c 5000000 /dev/zero; echo; cat good; } | vmetrics stats
  STEP (ms)  COUNT  FAILED  RATE  MIN  MEDIAN  P95  P99  MAX
  Connect        2       0  0.0%   10      10   20   20   20
  vmetrics: 1 line (standard input:1) of more than 4194304 bytes left out

Whose lines are no records, or none that are asked for:

  $ sed 's/.*/{"log":"wrapped"}/' good | vmetrics stats
  vmetrics: the logs hold no step and no number of a metric
  [1]
  $ vmetrics stats --step unknown good
  vmetrics: the logs hold nothing of what is asked for
  [1]
  $ vmetrics stats --metric 7 --format json good
  vmetrics: the logs hold nothing of what is asked for
  [1]
  $ vmetrics stats --metric 7 --format csv good
  kind,id,name,period,count,failures,unusable,min,median,p95,p99,max,relativeError,errorCodes
  vmetrics: the logs hold nothing of what is asked for
  [1]

Where the first of several damaged lines is, is told:

  $ { cat good; head -c 100 good; cat good; head -c 40 good; } > torn
  $ vmetrics stats good torn
  STEP (ms)  COUNT  FAILED  RATE  MIN  MEDIAN  P95  P99  MAX
  Connect        6       0  0.0%   10      10   20   20   20
  vmetrics: 2 damaged lines (the first: torn:3): 1 record recovered, 2 fragments left out; vmetrics check shows each

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
  vmetrics: 1 damaged line (cut.gz:1): 0 records recovered, 1 fragment left out; vmetrics check shows each
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
