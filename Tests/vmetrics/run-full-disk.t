A full disk, which takes a user who may mount one for himself:

  $ alone() { unshare --map-root-user --mount "$@"; }
  $ mkdir disk
  $ alone mount -t tmpfs -o size=16k none disk 2>/dev/null || exit 80

  $ cat >on_full_disk <<'END'
  > mount -t tmpfs -o size=16k none disk
  > cd disk
  > : >log
  > cat /dev/zero >filler 2>/dev/null
  > vmetrics run --step s --metrics log -- sh -c 'exit 3'
  > echo "status $?, $(wc -c <log) bytes recorded"
  > rm filler
  > vmetrics run --step s --metrics log -- sh -c 'exit 4'
  > echo "status $?, $(wc -l <log) record"
  > END
  $ alone sh on_full_disk 2>&1 | sed -E 's/^[0-9-]{10}T[0-9:.]{12}Z/TIME/; s/:[0-9]+\]$/:LINE]/'
  TIME ERROR InsertRecord: write failed count = -1, spanId.size = 36 [Framework/VMetrics/src/DotRecord:LINE]
  TIME ERROR Metrics: metrics channel: a line is lost, maybe more to come: No space left on device [Platform/src/VLogger:LINE]
  vmetrics: log: cannot be written; the step is not recorded
  vmetrics: spanId: cannot be locked or written; the steps that follow do not find this one
  status 3, 0 bytes recorded
  status 4, 1 record
