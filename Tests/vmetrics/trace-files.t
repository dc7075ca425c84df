Lines that a crash has left, with a logger's prefix, in colour, with carriage returns and without a
last line break:

  $ cp "$TESTDIR/data/trace/agent.log" whole.log
  $ vmetrics trace whole.log >usual
  $ sed 's/^/Nov 21 16:04:21 host agent[731]: INFO /' whole.log | vmetrics trace | cmp - usual
  $ sed 's/.*/\x1b[32m&\x1b[0m/' whole.log | vmetrics trace | cmp - usual
  $ sed 's/$/\r/' whole.log | vmetrics trace | cmp - usual
  $ printf %s "$(cat whole.log)" | vmetrics trace | cmp - usual
  $ gzip <whole.log >whole.log.gz; vmetrics trace whole.log.gz | cmp - usual
  $ tr -d '\n' <whole.log >glued.log
  $ vmetrics trace glued.log | cmp - usual
  vmetrics: 1 damaged line (glued.log:1): 5 records recovered, 0 fragments left out; vmetrics check shows each
  $ (head -c 100 whole.log; cat whole.log; tail -n 1 whole.log | head -c 200) >torn.log
  $ vmetrics trace torn.log | cmp - usual
  vmetrics: 2 damaged lines (the first: torn.log:1): 1 record recovered, 2 fragments left out; vmetrics check shows each
  $ sed 's/$/{"eventId":"e","timest/' whole.log | vmetrics trace | cmp - usual
  vmetrics: 5 damaged lines (the first: standard input:1): 5 records recovered, 5 fragments left out; vmetrics check shows each
  $ sed 's/.*/{"eventId":"e","args":{"stepN&{"eventId":"e","ti/' whole.log | vmetrics trace | cmp - usual
  vmetrics: 5 damaged lines (the first: standard input:1): 5 records recovered, 10 fragments left out; vmetrics check shows each
  $ sed 's/"spanId":"/&\x00/' whole.log | vmetrics trace
  vmetrics: the logs hold no step
  vmetrics: 4 damaged lines (the first: standard input:1): 0 records recovered, 4 fragments left out; vmetrics check shows each
  [1]

No step in it:

  $ : >empty.log
  $ vmetrics trace empty.log
  vmetrics: the logs hold no step
  [1]
  $ head -c 10000 /dev/zero | vmetrics trace
  vmetrics: the logs hold no step
  vmetrics: 1 damaged line (standard input:1): 0 records recovered, 1 fragment left out; vmetrics check shows each
  [1]
  $ printf '\377\376{"a":\001}\n[]\n{}\nnull\n' | vmetrics trace
  vmetrics: the logs hold no step
  vmetrics: 3 damaged lines (the first: standard input:1): 0 records recovered, 3 fragments left out; vmetrics check shows each
  [1]
  $ vmetrics trace --format json empty.log
  []
  vmetrics: the logs hold no step
  [1]

Files that cannot be read do not keep the others from being shown:

  $ mkdir directory
  $ vmetrics trace missing.log directory whole.log >shown
  vmetrics: missing.log: No such file or directory
  vmetrics: directory: Is a directory
  [2]
  $ cmp shown usual
  $ gzip -c whole.log | head -c 200 >cut.log.gz
  $ vmetrics trace cut.log.gz >/dev/null
  vmetrics: cut.log.gz: the compressed data ends too early
  vmetrics: the logs hold no step
  vmetrics: 1 damaged line (cut.log.gz:1): 0 records recovered, 1 fragment left out; vmetrics check shows each
  [2]

A file that vanishes is read to its end where it had been opened before:

  $ cp whole.log vanishing.log
  $ { rm vanishing.log; vmetrics trace - | cmp - usual; vmetrics trace vanishing.log; } <vanishing.log
  vmetrics: vanishing.log: No such file or directory
  vmetrics: the logs hold no step
  [2]

Output that cannot be written:

  $ vmetrics trace whole.log >/dev/full
  vmetrics: standard output: No space left on device
  [2]

Wrong usage:

  $ vmetrics trace --last 0 whole.log
  vmetrics: --last: "0" is no whole number from 1 to 1000000000; see vmetrics trace --help
  [2]
  $ vmetrics trace --last many whole.log
  vmetrics: --last: "many" is no whole number from 1 to 1000000000; see vmetrics trace --help
  [2]
  $ vmetrics trace --last
  vmetrics: --last needs a value; see vmetrics trace --help
  [2]
  $ vmetrics trace --slower-than -1 whole.log
  vmetrics: --slower-than: "-1" is no whole number from 0 to 253402300799999; see vmetrics trace --help
  [2]
  $ vmetrics trace --slower-than 1s whole.log
  vmetrics: --slower-than: "1s" is no whole number from 0 to 253402300799999; see vmetrics trace --help
  [2]
  $ vmetrics trace --format xml whole.log
  vmetrics: --format: "xml" is none of text, json; see vmetrics trace --help
  [2]
  $ vmetrics trace --transaction
  vmetrics: --transaction needs a value; see vmetrics trace --help
  [2]
  $ vmetrics trace --unknown whole.log
  vmetrics: not understood: --unknown; see vmetrics trace --help
  [2]

Transactions that are there, but none that is asked for:

  $ vmetrics trace --slower-than 999999 whole.log
  vmetrics: no transaction matches all that is asked for
  [1]
  $ id=$(sed -n 's/.*"transactionId":"\([^"]*\)".*/\1/p' whole.log | head -n 1)
  $ vmetrics trace --transaction "$id" --slower-than 999999 --format json whole.log
  []
  vmetrics: no transaction matches all that is asked for
  [1]
