The steps of each transaction, put together from the logs of two processes. Where the locale is one
of UTF-8, bars are made of block characters:

  $ cp "$TESTDIR"/data/trace/*.log .
  $ LC_ALL=C.UTF-8 vmetrics trace client.log agent.log
  3f2a9c1e-8b7d-4c3e-9a55-0f1e2d3c4b5a
    2026-11-21 16:04:17.733 UTC  4.21 s  7 steps  0 failed
    step                start    took  0                                    4.21 s
  * Login                0 ms  4.21 s  ███████████████████████████████████████████
  *   authenticate      10 ms  850 ms  ████████▊
  *   choose gateway   900 ms  550 ms           █████▊
  *   Connect          1.45 s  1.65 s                ▐████████████████▋
  *   create rds       3.40 s  500 ms                                    ▐████▊
  *     start encoder  3.45 s  250 ms                                     ██▊
  *   first frame      3.90 s  280 ms                                         ▐██▋
    * slowest path; longest on it: Connect, 1.65 s of 4.21 s
  
  session-42  2026-11-21 16:05:15.733 UTC  13.82 s  6 steps  2 failed
    step               start     took  error  0                            13.82 s
  * authenticate        0 ms   240 ms         ▋
  * Connect           240 ms  10.00 s   -104  ▐█████████████████████████▋
    (no step)        10.24 s   2.06 s                                    ·····
  * Connect          12.30 s   850 ms                                         ██▎
  * create rds       13.20 s   400 ms                                           █▍
  *   start encoder  13.26 s   240 ms     -5                                    ▐▏
  * first frame      13.60 s   220 ms                                            █
    * slowest path; longest on it: Connect, 10.00 s of 13.82 s

Otherwise of ASCII:

  $ vmetrics trace client.log agent.log
  3f2a9c1e-8b7d-4c3e-9a55-0f1e2d3c4b5a
    2026-11-21 16:04:17.733 UTC  4.21 s  7 steps  0 failed
    step                start    took  0                                    4.21 s
  * Login                0 ms  4.21 s  ===========================================
  *   authenticate      10 ms  850 ms  =========
  *   choose gateway   900 ms  550 ms           ======
  *   Connect          1.45 s  1.65 s                ==================
  *   create rds       3.40 s  500 ms                                    ======
  *     start encoder  3.45 s  250 ms                                     ===
  *   first frame      3.90 s  280 ms                                         ====
    * slowest path; longest on it: Connect, 1.65 s of 4.21 s
  
  session-42  2026-11-21 16:05:15.733 UTC  13.82 s  6 steps  2 failed
    step               start     took  error  0                            13.82 s
  * authenticate        0 ms   240 ms         =
  * Connect           240 ms  10.00 s   -104  ===========================
    (no step)        10.24 s   2.06 s                                    .....
  * Connect          12.30 s   850 ms                                         ==
  * create rds       13.20 s   400 ms                                           =
  *   start encoder  13.26 s   240 ms     -5                                    =
  * first frame      13.60 s   220 ms                                            =
    * slowest path; longest on it: Connect, 10.00 s of 13.82 s
  $ LANG=de_DE.utf8 LC_ALL= LC_CTYPE= vmetrics trace agent.log | head -n 4 | tail -n 1
  * create rds        0 ms  500 ms  ██████████████████████████████████████████████
  $ LANG=de_DE.utf8 LC_ALL= LC_CTYPE=de_DE vmetrics trace agent.log | head -n 4 | tail -n 1
  * create rds        0 ms  500 ms  ==============================================

The logs in another order, packed, and from standard input, alone or among others:

  $ vmetrics trace client.log agent.log >usual
  $ vmetrics trace agent.log client.log | cmp - usual
  $ gzip -k client.log
  $ vmetrics trace client.log.gz agent.log | cmp - usual
  $ vmetrics trace client.log.gz - <agent.log | cmp - usual
  $ cat agent.log client.log | vmetrics trace | cmp - usual

What is shown may be chosen. A transaction by its ID, or several:

  $ vmetrics trace --transaction session-42 agent.log
  session-42  2026-11-21 16:05:28.933 UTC  400 ms  2 steps  1 failed
    step             start    took  error  0                                400 ms
  * create rds        0 ms  400 ms         =======================================
  *   start encoder  60 ms  240 ms     -5       ========================
    * slowest path; longest on it: start encoder, 240 ms of 400 ms
  $ vmetrics trace --transaction session-42 agent.log --transaction 3f2a9c1e-8b7d-4c3e-9a55-0f1e2d3c4b5a | grep UTC
    2026-11-21 16:04:21.133 UTC  500 ms  2 steps  0 failed
  session-42  2026-11-21 16:05:28.933 UTC  400 ms  2 steps  1 failed
  $ vmetrics trace --transaction session-43 --transaction session-42 agent.log >/dev/null
  vmetrics: the logs hold no step of transaction session-43

Those that failed, those that took long, the last ones, and those that are all of that:

  $ vmetrics trace --failed client.log agent.log | grep UTC
  session-42  2026-11-21 16:05:15.733 UTC  13.82 s  6 steps  2 failed
  $ vmetrics trace --slower-than 4209 client.log agent.log | grep UTC
    2026-11-21 16:04:17.733 UTC  4.21 s  7 steps  0 failed
  session-42  2026-11-21 16:05:15.733 UTC  13.82 s  6 steps  2 failed
  $ vmetrics trace --slower-than 4210 client.log agent.log | grep UTC
  session-42  2026-11-21 16:05:15.733 UTC  13.82 s  6 steps  2 failed
  $ vmetrics trace --last 1 client.log agent.log | grep UTC
  session-42  2026-11-21 16:05:15.733 UTC  13.82 s  6 steps  2 failed
  $ vmetrics trace --last 2 client.log agent.log | cmp - usual
  $ vmetrics trace --last 1 --slower-than 1 --failed --transaction session-42 agent.log | grep UTC
  session-42  2026-11-21 16:05:28.933 UTC  400 ms  2 steps  1 failed

Where there is none, the exit status tells:

  $ vmetrics trace --slower-than 60000 client.log agent.log
  vmetrics: no transaction matches all that is asked for
  [1]
  $ vmetrics trace --transaction session-43 client.log agent.log
  vmetrics: the logs hold no step of transaction session-43
  [1]
  $ grep displayFPS agent.log | vmetrics trace
  vmetrics: the logs hold no step
  [1]

With the parents of the steps, in whatever transaction and log they are:

  $ vmetrics trace --links client.log agent.log
  3f2a9c1e-8b7d-4c3e-9a55-0f1e2d3c4b5a
    2026-11-21 16:04:17.733 UTC  4.21 s  7 steps  0 failed
    step                start    took  0                                    4.21 s
  * Login                0 ms  4.21 s  ===========================================
      parent 0bf445fb-c14e-ce72-361d-29233e2feb60: first frame
  *   authenticate      10 ms  850 ms  =========
        parent 7100cc2b-7296-d14e-acb7-78c81ea7ac82: not in the log
  *   choose gateway   900 ms  550 ms           ======
        parent f54773c9-981d-1687-f8b9-6e54f33227b7: authenticate
  *   Connect          1.45 s  1.65 s                ==================
        parent 945a4d67-57b1-e7ac-a403-e0a96b439d4e: choose gateway
  *   create rds       3.40 s  500 ms                                    ======
        parent 4d778220-f461-64aa-1e94-3718db12649a: start encoder; part of Connect
  *     start encoder  3.45 s  250 ms                                     ===
          parent de2b82ac-b6ae-8dc8-2aef-af344c9adca8: Connect
  *   first frame      3.90 s  280 ms                                         ====
        parent 04227625-8acc-a06b-7826-0bae4f827c4d: create rds
    * slowest path; longest on it: Connect, 1.65 s of 4.21 s
  
  session-42  2026-11-21 16:05:15.733 UTC  13.82 s  6 steps  2 failed
    step               start     took  error  0                            13.82 s
  * authenticate        0 ms   240 ms         =
      parent b6febeb1-07b6-e1dc-096e-4c813110c523: Login, in 3f2a9c1e-8b7d-4c3e-9a55-0f1e2d3c4b5a
  * Connect           240 ms  10.00 s   -104  ===========================
      parent 23f8293a-1c03-e17f-bb1c-6fedb45bf122: authenticate
    (no step)        10.24 s   2.06 s                                    .....
  * Connect          12.30 s   850 ms                                         ==
      parent 97118446-d8eb-1c9c-6b73-c61b254fa9f0: Connect
  * create rds       13.20 s   400 ms                                           =
      parent f9c68f4f-c63d-d9fb-a073-b1914f77014d: start encoder; part of Connect
  *   start encoder  13.26 s   240 ms     -5                                    =
        parent 86af2d61-5d9e-8373-c34e-7c9454afaec5: Connect
  * first frame      13.60 s   220 ms                                            =
      parent 575b14ed-2f96-f6a5-68fa-a08ecfe32749: create rds
    * slowest path; longest on it: Connect, 10.00 s of 13.82 s
  $ vmetrics trace --links --transaction session-42 client.log | grep -v '='
  session-42  2026-11-21 16:05:15.733 UTC  13.82 s  4 steps  1 failed
    step            start     took  error  0                               13.82 s
      parent b6febeb1-07b6-e1dc-096e-4c813110c523: Login, in 3f2a9c1e-8b7d-4c3e-9a55-0f1e2d3c4b5a
      parent 23f8293a-1c03-e17f-bb1c-6fedb45bf122: authenticate
    (no step)     10.24 s   2.06 s                                      .....
      parent 97118446-d8eb-1c9c-6b73-c61b254fa9f0: Connect
      parent 575b14ed-2f96-f6a5-68fa-a08ecfe32749: not in the log
    * slowest path; longest on it: Connect, 10.00 s of 13.82 s

For scripts:

  $ vmetrics trace --format json --links --transaction session-42 client.log agent.log
  [
  {"transactionId":"session-42","startTime":1795277115733,"endTime":1795277129553,"usedTime":13820,"failures":2,"copies":0,"sharedSpans":0,"isIncomplete":false,"longest":{"stepName":"Connect","usedTime":10001},"steps":[{"stepName":"authenticate","eventId":"CONNECT","spanId":"23f8293a-1c03-e17f-bb1c-6fedb45bf122","parentSpanId":"b6febeb1-07b6-e1dc-096e-4c813110c523","parent":{"stepName":"Login","transactionId":"3f2a9c1e-8b7d-4c3e-9a55-0f1e2d3c4b5a"},"errorCode":0,"isFailed":false,"startTime":1795277115733,"endTime":1795277115973,"usedTime":240,"offset":0,"gapBefore":0,"depth":0,"isOnSlowestPath":true},{"stepName":"Connect","eventId":"CONNECT","spanId":"97118446-d8eb-1c9c-6b73-c61b254fa9f0","parentSpanId":"23f8293a-1c03-e17f-bb1c-6fedb45bf122","parent":{"stepName":"authenticate","transactionId":"session-42"},"errorCode":-104,"isFailed":true,"startTime":1795277115973,"endTime":1795277125974,"usedTime":10001,"offset":240,"gapBefore":0,"depth":0,"isOnSlowestPath":true},{"stepName":"Connect","eventId":"CONNECT","spanId":"86af2d61-5d9e-8373-c34e-7c9454afaec5","parentSpanId":"97118446-d8eb-1c9c-6b73-c61b254fa9f0","parent":{"stepName":"Connect","transactionId":"session-42"},"errorCode":0,"isFailed":false,"startTime":1795277128033,"endTime":1795277128883,"usedTime":850,"offset":12300,"gapBefore":2059,"depth":0,"isOnSlowestPath":true},{"stepName":"create rds","eventId":"CONNECT","spanId":"575b14ed-2f96-f6a5-68fa-a08ecfe32749","parentSpanId":"f9c68f4f-c63d-d9fb-a073-b1914f77014d","parentStepName":"Connect","parent":{"stepName":"start encoder","transactionId":"session-42"},"errorCode":0,"isFailed":false,"startTime":1795277128933,"endTime":1795277129333,"usedTime":400,"offset":13200,"gapBefore":0,"depth":0,"isOnSlowestPath":true},{"stepName":"start encoder","eventId":"CONNECT","spanId":"f9c68f4f-c63d-d9fb-a073-b1914f77014d","parentSpanId":"86af2d61-5d9e-8373-c34e-7c9454afaec5","parent":{"stepName":"Connect","transactionId":"session-42"},"errorCode":-5,"isFailed":true,"startTime":1795277128993,"endTime":1795277129233,"usedTime":240,"offset":13260,"gapBefore":0,"depth":1,"isOnSlowestPath":true},{"stepName":"first frame","eventId":"CONNECT","spanId":"9d5b717f-7d63-79e7-b11e-384b54778f08","parentSpanId":"575b14ed-2f96-f6a5-68fa-a08ecfe32749","parent":{"stepName":"create rds","transactionId":"session-42"},"errorCode":0,"isFailed":false,"startTime":1795277129333,"endTime":1795277129553,"usedTime":220,"offset":13600,"gapBefore":0,"depth":0,"isOnSlowestPath":true}]}
  ]
  $ vmetrics trace --format json --last 1 --slower-than 60000 client.log agent.log
  []
  vmetrics: no transaction matches all that is asked for
  [1]

The help:

  $ vmetrics trace --help
  Shows the steps of each transaction as a waterfall: when each began, how long it
  took, which failed, and which made the others wait.
  Usage: vmetrics trace [OPTIONS] [file...]
  
  Positionals:
    file FILE ...               Metrics logs, plain or compressed by gzip; - or
                                none is standard input
  
  Options:
    -h,--help                   Print this help message and exit
    --transaction ID ...        Only the transaction of this ID; may be given
                                several times
    --failed                    Only transactions of which a step failed
    --slower-than MS            Only transactions that took more milliseconds than
                                this
    --last N                    Only the last so many of them, by the end of their
                                last step
    --links                     Show the parent span of each step, in whatever
                                transaction it is
    --format FORMAT             text, json; without this option text
  
  Example: the last transaction of which a step failed, with the parents of its steps
    vmetrics trace --failed --last 1 --links client.log agent.log.1.gz agent.log
  
  Exit status: 0 if a transaction is shown, 1 if there is none, 2 on wrong usage and for files
  that cannot be read. See vmetrics-trace(1).
