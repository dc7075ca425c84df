The last transaction is the one whose last step ended last; an end long after the record was written
is none:

  $ printf '{"transactionId":"wild","timestamp":1000,"spanId":"w","args":{"stepName":"s","startTime":900,"endTime":253402300799999}}\n{"transactionId":"last","timestamp":2000,"spanId":"l","args":{"stepName":"s","startTime":1900,"endTime":2000}}\n' >wild.log
  $ vmetrics trace --last 1 wild.log
  last  1970-01-01 00:00:01.900 UTC  100 ms  1 step  0 failed
    step  start    took  0                                                  100 ms
    s      0 ms  100 ms  =========================================================
  $ vmetrics trace --last 1 --slower-than 1000000 wild.log
  wild  1970-01-01 00:00:00.900 UTC  2932897 d 00 h  1 step  0 failed
    step  start            took  0                                  2932897 d 00 h
    s      0 ms  2932897 d 00 h  =================================================

Of a long log the last transactions are shown, in memory that does not grow with it. Some more are
kept in case steps of them come late: here the first transaction comes back after 25,000 others, and
the one of which a step failed is found again.

  $ step() { printf '{"transactionId":"%s","spanId":"%s","args":{"stepName":"%s","errorCode":%s,"startTime":%s,"endTime":%s}}\n' "$@"; }
  $ {
  >   step first a early 0 1000 1010
  >   step failed b fails -5 2000 2010
  >   awk 'BEGIN { for (i = 0; i < 25000; i++)
  >     printf "{\"transactionId\":\"t%d\",\"spanId\":\"%d\",\"args\":{\"stepName\":\"s\",\"errorCode\":0,\"startTime\":%d,\"endTime\":%d}}\n",
  >            i, i, 3000 + i, 3001 + i }'
  >   step first c late 0 30000 30010
  > } >long.log
  $ vmetrics trace --last 2 long.log
  t24999  1970-01-01 00:00:27.999 UTC  1 ms  1 step  0 failed
    step  start  took  0                                                      1 ms
    s      0 ms  1 ms  ===========================================================
  
  first  1970-01-01 00:00:30.000 UTC  10 ms  1 step  0 failed
    step  start   took  0                                                    10 ms
    late   0 ms  10 ms  ==========================================================
    earlier steps are left out, as too many transactions lie in between
  $ vmetrics trace --last 2 --failed long.log
  failed  1970-01-01 00:00:02.000 UTC  10 ms  1 step  1 failed
    step   start   took  error  0                                            10 ms
    fails   0 ms  10 ms     -5  ==================================================
  $ vmetrics trace --transaction first long.log
  first  1970-01-01 00:00:01.000 UTC  29.01 s  2 steps  0 failed
    step         start     took  0                                         29.01 s
  * early         0 ms    10 ms  |
    (no step)    10 ms  28.99 s  ................................................
  * late       29.00 s    10 ms                                                  |
    * slowest path; longest on it: (no step), 28.99 s of 29.01 s
  $ vmetrics trace --last 2 --links long.log | tail -n 8
  * late       29.00 s    10 ms                                                  |
      no parent
    * slowest path; longest on it: (no step), 28.99 s of 29.01 s
  
  t24999  1970-01-01 00:00:27.999 UTC  1 ms  1 step  0 failed
    step  start  took  0                                                      1 ms
    s      0 ms  1 ms  ===========================================================
      no parent
