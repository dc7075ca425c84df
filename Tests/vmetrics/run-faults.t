What goes wrong with the record or the span file is told, and is not the command's failure.

  $ error_code() { tail -n 1 "${1:-log}" | sed -E 's/.*"errorCode":([^,]*),.*/\1/'; }
  $ without_time() { sed -E 's/^[0-9-]{10}T[0-9:.]{12}Z/TIME/; s/:[0-9]+\]$/:LINE]/'; }

A file that cannot be the metrics file: the command is not run, while there is time to choose another.

  $ vmetrics run --step s --metrics /dev/full -- echo hello
  vmetrics: /dev/full: Not a regular file; the command was not run
  [125]
  $ mkfifo fifo; vmetrics run --step s --metrics fifo -- echo hello
  vmetrics: fifo: Not a regular file; the command was not run
  [125]
  $ ln -s target link; vmetrics run --step s --metrics link -- echo hello
  vmetrics: link: A symbolic link, which is not followed; the command was not run
  [125]
  $ vmetrics run --step s --metrics - -- sh -c 'echo hello >&2' >&-
  vmetrics: standard output: Bad file descriptor; the command was not run
  [125]
  $ mkdir directory; vmetrics run --step s --metrics directory -- echo hello
  vmetrics: directory: Is a directory; the command was not run
  [125]
  $ vmetrics run --step s --metrics missing/log -- echo hello
  vmetrics: missing/log: No such file or directory; the command was not run
  [125]
  $ vmetrics run --step s --metrics '' -- echo hello
  vmetrics: "": No such file or directory; the command was not run
  [125]

A record that no longer fits:

  $ : >log
  $ sh -c 'ulimit -f 0; vmetrics run --step s --metrics log -- echo hello' 2>&1 | without_time
  hello
  TIME ERROR InsertRecord: write failed count = -1, spanId.size = 36 [Framework/VMetrics/src/DotRecord:LINE]
  TIME ERROR Metrics: metrics channel: a line is lost, maybe more to come: File too large [Platform/src/VLogger:LINE]
  vmetrics: log: cannot be written; the step is not recorded
  vmetrics: spanId: cannot be locked or written; the steps that follow do not find this one
  $ sh -c 'ulimit -f 0; vmetrics run --step s --metrics log -- sh -c "exit 3"; echo $?' 2>/dev/null
  3
  $ cat log

A span file that is refused: the step is recorded all the same.

  $ rm spanId
  $ ln -s elsewhere spanId
  $ vmetrics run --step s --metrics log -- sh -c 'exit 3'
  vmetrics: spanId: cannot be locked or written; the steps that follow do not find this one
  [3]
  $ error_code
  3
  $ ls elsewhere 2>/dev/null
  [2]
  $ vmetrics run --step s --span-directory missing --metrics log -- sh -c 'exit 4'
  vmetrics: missing/spanId: cannot be locked or written; the steps that follow do not find this one
  [4]
  $ error_code
  4

Where the parent was to come from it, the record has the word that stands for it:

  $ vmetrics run --step s --parent-from-file --metrics log -- true
  vmetrics: spanId: cannot be locked or written; the steps that follow do not find this one
  $ tail -n 1 log | grep -o '"parentSpanId":"[^"]*"'
  "parentSpanId":"ParentSpanId"

So it is while somebody keeps it locked:

  $ rm spanId
  $ flock spanId vmetrics run --step s --metrics log -- sh -c 'exit 5'
  vmetrics: spanId: cannot be locked or written; the steps that follow do not find this one
  [5]
  $ error_code
  5

Nobody reads standard error, or there is none:

  $ sh -c 'vmetrics run --step s -- sh -c "exit 3"; echo $? >status' 2>&1 | :
  $ cat status
  3
  $ vmetrics run --step s -- sh -c 'exit 4' 2>&-
  [4]
  $ vmetrics run --step s --metrics log -- sh -c 'exit 5' <&- >&- 2>&-
  [5]
  $ error_code
  5
  $ vmetrics run --step s --metrics log -- no-such-command <&- >&- 2>&-
  [127]
  $ vmetrics run --step s --metrics log -- no-such-command 2>/dev/full
  [127]
  $ error_code
  127
