Steps whose times cannot be right are shown as they are, and do not spoil the scale of the others:

  $ cp "$TESTDIR/data/trace/odd.log" .
  $ trace() { vmetrics trace --transaction "$@" odd.log; }
  $ trace 'clock set back'
  clock set back  2026-11-21 16:20:57.733 UTC  1.00 s  3 steps  0 failed
    step       start     took  0                                            1.00 s
  * before      0 ms   400 ms  ====================
    set back  500 ms  -250 ms                           !
  * after     600 ms   400 ms                                =====================
    * slowest path; longest on it: before, 400 ms of 1.00 s
    ! 1 step ends before its start
  $ trace 'clock set forward'
  clock set forward  2026-11-21 16:20:58.033 UTC  500 ms  3 steps  0 failed
    step                start          took  0                              500 ms
    since 1970  -20778 d 16 h  20778 d 16 h  <
  * after                0 ms        500 ms  =====================================
    until 2100         400 ms  26703 d 08 h                               =======>
    * slowest path; longest on it: after, 500 ms of 500 ms
    2 steps begin or end more than 31 days away, beyond the scale
  $ step() { printf '{"transactionId":"t","spanId":"%s","args":{"stepName":"s","startTime":%s,"endTime":%s}}\n' "$@"; }
  $ (step 1 1000 1005; step 2 1002 1001; step 3 1004 1003; step 2 1000 9999999999; step 3 1001 1002) | vmetrics trace
  t  1970-01-01 00:00:01.000 UTC  5 ms  5 steps  0 failed
    step  start        took  0                                                5 ms
    s      0 ms  115 d 18 h  ====================================================>
  * s      0 ms        5 ms  =====================================================
  *   s    1 ms        1 ms            ===========
    s      2 ms       -1 ms                       !
    s      4 ms       -1 ms                                            !
    * slowest path; longest on it: s, 4 ms of 5 ms
    ! 2 steps end before their start
    1 step begins or ends more than 31 days away, beyond the scale
    2 steps have the span ID of another one
  $ trace 'forty days'
  forty days  2026-11-21 16:20:57.733 UTC  40 d 00 h  1 step  0 failed
    step  start       took  0                                            40 d 00 h
    long   0 ms  40 d 00 h  ======================================================
  $ trace 'no times'
  no times  at an unknown time  5 steps  0 failed
    step        start  took
    none            ?     ?  ?
    text            ?     ?  ?
    no integer      ?     ?  ?
    negative        ?     ?  ?
    too large       ?     ?  ?
    ? 5 steps have no times from 1970 to 9999
  $ trace 'some times'
  some times  2026-11-21 16:20:57.733 UTC  10 ms  2 steps  0 failed
    step  start   took  0                                                    10 ms
  * kept   0 ms  10 ms  ==========================================================
    lost      ?      ?  ?
    * slowest path; longest on it: kept, 10 ms of 10 ms
    ? 1 step has no times from 1970 to 9999

Steps without a transaction ID:

  $ trace ''
  (steps without a transaction ID)
    2026-11-21 16:20:57.733 UTC  70 ms  3 steps  0 failed
    step           start   took  0                                           70 ms
  * nameless        0 ms  30 ms  =====================
    (no step)      30 ms  10 ms                       .......
  * nameless, too  40 ms  10 ms                              =======
    (no step)      50 ms  10 ms                                     .......
  * numbered       60 ms  10 ms                                            =======
    * slowest path; longest on it: nameless, 30 ms of 70 ms

Results that are missing or none, and the longest:

  $ trace results
  results  2026-11-21 16:20:57.733 UTC  50 ms  5 steps  3 failed
    step       start   took        error  0                                  50 ms
  * no code     0 ms  10 ms            ?  ========
  * wide code  10 ms  10 ms                       ========
  * no result  20 ms  10 ms                               ========
  * lowest     30 ms  10 ms  -2147483648                          ========
  * code 0     40 ms  10 ms            ?                                  ========
    * slowest path; longest on it: no code, 10 ms of 50 ms

Span identifiers that are none of the library's, one that two steps have, one that the span file did
not give, and one that is its own parent:

  $ trace spans --links
  spans  2026-11-21 16:20:57.733 UTC  60 ms  5 steps  0 failed
    step           start   took  0                                           60 ms
  * one             0 ms  10 ms  ========
      no parent
    (no step)      10 ms  10 ms           .......
  * another        20 ms  10 ms                  =========
      no parent
  * no lock        30 ms  10 ms                          =========
      parent unknown, the span file could not be locked
  * child of one   40 ms  10 ms                                  =========
      parent S: one
  * its own child  50 ms  10 ms                                          =========
      parent V: its own child
    * slowest path; longest on it: one, 10 ms of 60 ms
    1 step has the span ID of another one

Names that a terminal would obey, none at all, wide and long ones:

  $ vmetrics trace odd.log | sed -n '/names/,/^$/p'
  names\n\u001b[31m  2026-11-21 16:20:57.733 UTC  25 ms  5 steps  0 failed
    step                             start  took  0                          25 ms
  * \u001b]0;title\u0007              0 ms  5 ms  ======
  * \u202eright to left               5 ms  5 ms        =======
  * ""                               10 ms  5 ms              =======
  * 打印发票                         15 ms  5 ms                     =======
  * a name that is much longer tha~  20 ms  5 ms                           =======
    * slowest path; longest on it: \u001b]0;title\u0007, 5 ms of 25 ms
  

Steps that touch, or take no time:

  $ trace touching
  touching  2026-11-21 16:20:57.733 UTC  12 ms  7 steps  0 failed
    step             start   took  0                                         12 ms
  * at its start      0 ms   0 ms  |
    outer             0 ms  10 ms  =======================================
    same as outer     0 ms  10 ms  =======================================
      within          5 ms   0 ms                     |
  * across            8 ms   4 ms                                 ================
  *   within across   9 ms   2 ms                                     ========
  *     at its end   10 ms   0 ms                                         |
    * slowest path; longest on it: across, 2 ms of 12 ms

All of it for scripts:

  $ vmetrics trace --format json --links odd.log
  [
  {"transactionId":"clock set forward","startTime":1795278058033,"endTime":1795278058533,"usedTime":500,"failures":0,"copies":0,"sharedSpans":0,"isIncomplete":false,"longest":{"stepName":"after","usedTime":500},"steps":[{"stepName":"since 1970","eventId":"ODD","spanId":"6b469bfb-1719-8859-341d-316e99a4c421","errorCode":0,"isFailed":false,"startTime":0,"endTime":1795278058033,"problem":"farAway"},{"stepName":"after","eventId":"ODD","spanId":"229f8017-3725-ea9d-f9f0-05d011d6d902","errorCode":0,"isFailed":false,"startTime":1795278058033,"endTime":1795278058533,"usedTime":500,"offset":0,"gapBefore":0,"depth":0,"isOnSlowestPath":true},{"stepName":"until 2100","eventId":"ODD","spanId":"8ce66866-ad9f-a30f-4274-3897ca0c9ecc","errorCode":0,"isFailed":false,"startTime":1795278058433,"endTime":4102444800000,"problem":"farAway"}]},
  {"transactionId":"clock set back","startTime":1795278057733,"endTime":1795278058733,"usedTime":1000,"failures":0,"copies":0,"sharedSpans":0,"isIncomplete":false,"longest":{"stepName":"before","usedTime":400},"steps":[{"stepName":"before","eventId":"ODD","spanId":"07346060-53bf-6fa6-a491-13bf8f9732d0","errorCode":0,"isFailed":false,"startTime":1795278057733,"endTime":1795278058133,"usedTime":400,"offset":0,"gapBefore":0,"depth":0,"isOnSlowestPath":true},{"stepName":"set back","eventId":"ODD","spanId":"883f6492-029f-c4ce-b781-99402bef1877","errorCode":0,"isFailed":false,"startTime":1795278058233,"endTime":1795278057983,"problem":"endsBeforeStart"},{"stepName":"after","eventId":"ODD","spanId":"56024943-1ff3-24e7-01ee-7319ac889d9b","errorCode":0,"isFailed":false,"startTime":1795278058333,"endTime":1795278058733,"usedTime":400,"offset":600,"gapBefore":0,"depth":0,"isOnSlowestPath":true}]},
  {"transactionId":"no times","failures":0,"copies":0,"sharedSpans":0,"isIncomplete":false,"steps":[{"stepName":"none","eventId":"ODD","spanId":"b4612133-0653-c3cf-94a5-12a7516014cc","errorCode":0,"isFailed":false,"problem":"noDate"},{"stepName":"text","eventId":"ODD","spanId":"c10e9748-3c8a-0c7b-0d48-96b0807558f2","errorCode":0,"isFailed":false,"problem":"noDate"},{"stepName":"no integer","eventId":"ODD","spanId":"465a25de-1153-33e9-ae8c-e82ad354987b","errorCode":0,"isFailed":false,"problem":"noDate"},{"stepName":"negative","eventId":"ODD","spanId":"7db28b82-f10b-a8af-5fd9-a82706fb44a5","errorCode":0,"isFailed":false,"startTime":-5,"endTime":-1,"problem":"noDate"},{"stepName":"too large","eventId":"ODD","spanId":"0983d517-0cf6-50fb-cb4a-9057f4f54002","errorCode":0,"isFailed":false,"startTime":1795278057733,"problem":"noDate"}]},
  {"transactionId":"some times","startTime":1795278057733,"endTime":1795278057743,"usedTime":10,"failures":0,"copies":0,"sharedSpans":0,"isIncomplete":false,"longest":{"stepName":"kept","usedTime":10},"steps":[{"stepName":"kept","eventId":"ODD","spanId":"7d6bb679-6980-520a-3f66-f36b854108f4","errorCode":0,"isFailed":false,"startTime":1795278057733,"endTime":1795278057743,"usedTime":10,"offset":0,"gapBefore":0,"depth":0,"isOnSlowestPath":true},{"stepName":"lost","eventId":"ODD","spanId":"5ebf4370-6dbe-1a69-42b7-0fe1c6480a23","isFailed":false,"endTime":1795278057733,"problem":"noDate"}]},
  {"startTime":1795278057733,"endTime":1795278057803,"usedTime":70,"failures":0,"copies":0,"sharedSpans":0,"isIncomplete":false,"longest":{"stepName":"nameless","usedTime":30},"steps":[{"stepName":"nameless","eventId":"ODD","spanId":"da479ff4-b951-cd3e-f6af-a777dc6dfe05","errorCode":0,"isFailed":false,"startTime":1795278057733,"endTime":1795278057763,"usedTime":30,"offset":0,"gapBefore":0,"depth":0,"isOnSlowestPath":true},{"stepName":"nameless, too","eventId":"ODD","spanId":"7de85caf-7757-2d54-23c5-3934ff30afb5","errorCode":0,"isFailed":false,"startTime":1795278057773,"endTime":1795278057783,"usedTime":10,"offset":40,"gapBefore":10,"depth":0,"isOnSlowestPath":true},{"stepName":"numbered","eventId":"ODD","spanId":"b18e05be-e198-493f-4ebd-8a6ae7882ddb","errorCode":0,"isFailed":false,"startTime":1795278057793,"endTime":1795278057803,"usedTime":10,"offset":60,"gapBefore":10,"depth":0,"isOnSlowestPath":true}]},
  {"transactionId":"results","startTime":1795278057733,"endTime":1795278057783,"usedTime":50,"failures":3,"copies":0,"sharedSpans":0,"isIncomplete":false,"longest":{"stepName":"no code","usedTime":10},"steps":[{"stepName":"no code","eventId":"ODD","spanId":"35421990-4b4e-791c-c252-6bdd2842ed9e","isFailed":true,"startTime":1795278057733,"endTime":1795278057743,"usedTime":10,"offset":0,"gapBefore":0,"depth":0,"isOnSlowestPath":true},{"stepName":"wide code","eventId":"ODD","spanId":"c1d47f60-5c9b-f54e-0738-d92d1d2bdc9b","isFailed":false,"startTime":1795278057743,"endTime":1795278057753,"usedTime":10,"offset":10,"gapBefore":0,"depth":0,"isOnSlowestPath":true},{"stepName":"no result","eventId":"ODD","spanId":"d42337cb-f53f-3ef3-1e16-be7c8d710fa1","isFailed":false,"startTime":1795278057753,"endTime":1795278057763,"usedTime":10,"offset":20,"gapBefore":0,"depth":0,"isOnSlowestPath":true},{"stepName":"lowest","eventId":"ODD","spanId":"ff89d67b-d365-ccb7-aad2-0b32a7ca2363","errorCode":-2147483648,"isFailed":true,"startTime":1795278057763,"endTime":1795278057773,"usedTime":10,"offset":30,"gapBefore":0,"depth":0,"isOnSlowestPath":true},{"stepName":"code 0","eventId":"ODD","spanId":"5a3bc1c2-70d2-4a0e-9b07-d1d2c3a4b5f6","errorCode":0,"isFailed":true,"startTime":1795278057773,"endTime":1795278057783,"usedTime":10,"offset":40,"gapBefore":0,"depth":0,"isOnSlowestPath":true}]},
  {"transactionId":"spans","startTime":1795278057733,"endTime":1795278057793,"usedTime":60,"failures":0,"copies":0,"sharedSpans":1,"isIncomplete":false,"longest":{"stepName":"one","usedTime":10},"steps":[{"stepName":"one","eventId":"ODD","spanId":"S","errorCode":0,"isFailed":false,"startTime":1795278057733,"endTime":1795278057743,"usedTime":10,"offset":0,"gapBefore":0,"depth":0,"isOnSlowestPath":true},{"stepName":"another","eventId":"ODD","spanId":"S","errorCode":0,"isFailed":false,"startTime":1795278057753,"endTime":1795278057763,"usedTime":10,"offset":20,"gapBefore":10,"depth":0,"isOnSlowestPath":true},{"stepName":"no lock","eventId":"ODD","spanId":"T","parentSpanId":"ParentSpanId","errorCode":0,"isFailed":false,"startTime":1795278057763,"endTime":1795278057773,"usedTime":10,"offset":30,"gapBefore":0,"depth":0,"isOnSlowestPath":true},{"stepName":"child of one","eventId":"ODD","spanId":"U","parentSpanId":"S","parent":{"stepName":"one","transactionId":"spans"},"errorCode":0,"isFailed":false,"startTime":1795278057773,"endTime":1795278057783,"usedTime":10,"offset":40,"gapBefore":0,"depth":0,"isOnSlowestPath":true},{"stepName":"its own child","eventId":"ODD","spanId":"V","parentSpanId":"V","parent":{"stepName":"its own child","transactionId":"spans"},"errorCode":0,"isFailed":false,"startTime":1795278057783,"endTime":1795278057793,"usedTime":10,"offset":50,"gapBefore":0,"depth":0,"isOnSlowestPath":true}]},
  {"transactionId":"names\n\u001b[31m","startTime":1795278057733,"endTime":1795278057758,"usedTime":25,"failures":0,"copies":0,"sharedSpans":0,"isIncomplete":false,"longest":{"stepName":"\u001b]0;title\u0007","usedTime":5},"steps":[{"stepName":"\u001b]0;title\u0007","eventId":"ODD","spanId":"7243c5b0-65ec-1b1d-fe5b-7fccbcd90089","errorCode":0,"isFailed":false,"startTime":1795278057733,"endTime":1795278057738,"usedTime":5,"offset":0,"gapBefore":0,"depth":0,"isOnSlowestPath":true},{"stepName":"\u202eright to left","eventId":"ODD","spanId":"019ca6e6-a76b-b423-f7d2-113f07355422","errorCode":0,"isFailed":false,"startTime":1795278057738,"endTime":1795278057743,"usedTime":5,"offset":5,"gapBefore":0,"depth":0,"isOnSlowestPath":true},{"stepName":"","eventId":"ODD","spanId":"1eabdb4e-e3ca-d11d-215d-ddf896ca3d88","errorCode":0,"isFailed":false,"startTime":1795278057743,"endTime":1795278057748,"usedTime":5,"offset":10,"gapBefore":0,"depth":0,"isOnSlowestPath":true},{"stepName":"打印发票","eventId":"ODD","spanId":"f0ad88b8-e572-305b-3cdd-06dc3a9a932a","errorCode":0,"isFailed":false,"startTime":1795278057748,"endTime":1795278057753,"usedTime":5,"offset":15,"gapBefore":0,"depth":0,"isOnSlowestPath":true},{"stepName":"a name that is much longer than what there is room for, so that it is cut","eventId":"ODD","spanId":"e8f1fd0e-a6b1-6425-6999-cad37588fec7","errorCode":0,"isFailed":false,"startTime":1795278057753,"endTime":1795278057758,"usedTime":5,"offset":20,"gapBefore":0,"depth":0,"isOnSlowestPath":true}]},
  {"transactionId":"touching","startTime":1795278057733,"endTime":1795278057745,"usedTime":12,"failures":0,"copies":0,"sharedSpans":0,"isIncomplete":false,"longest":{"stepName":"across","usedTime":2},"steps":[{"stepName":"at its start","eventId":"ODD","spanId":"29833682-696a-0a6c-de1f-135a3a476937","errorCode":0,"isFailed":false,"startTime":1795278057733,"endTime":1795278057733,"usedTime":0,"offset":0,"gapBefore":0,"depth":0,"isOnSlowestPath":true},{"stepName":"outer","eventId":"ODD","spanId":"7be13d7d-be76-e2eb-c8fa-6fe131ad8a69","errorCode":0,"isFailed":false,"startTime":1795278057733,"endTime":1795278057743,"usedTime":10,"offset":0,"gapBefore":0,"depth":0,"isOnSlowestPath":false},{"stepName":"same as outer","eventId":"ODD","spanId":"9434a134-0e8c-4c54-60d2-ec8700414427","errorCode":0,"isFailed":false,"startTime":1795278057733,"endTime":1795278057743,"usedTime":10,"offset":0,"gapBefore":0,"depth":0,"isOnSlowestPath":false},{"stepName":"within","eventId":"ODD","spanId":"79b8b6ee-5b45-ac3b-75e8-fb5e7ef5f2fd","errorCode":0,"isFailed":false,"startTime":1795278057738,"endTime":1795278057738,"usedTime":0,"offset":5,"gapBefore":0,"depth":1,"isOnSlowestPath":false},{"stepName":"across","eventId":"ODD","spanId":"91919fb7-1de8-ee58-cfab-50f8db6f24b1","errorCode":0,"isFailed":false,"startTime":1795278057741,"endTime":1795278057745,"usedTime":4,"offset":8,"gapBefore":0,"depth":0,"isOnSlowestPath":true},{"stepName":"within across","eventId":"ODD","spanId":"410fcae9-8198-2187-a88c-87cec4c22efc","errorCode":0,"isFailed":false,"startTime":1795278057742,"endTime":1795278057744,"usedTime":2,"offset":9,"gapBefore":0,"depth":1,"isOnSlowestPath":true},{"stepName":"at its end","eventId":"ODD","spanId":"f221e31f-cdb6-9603-9561-d02324325037","errorCode":0,"isFailed":false,"startTime":1795278057743,"endTime":1795278057743,"usedTime":0,"offset":10,"gapBefore":0,"depth":2,"isOnSlowestPath":true}]},
  {"transactionId":"forty days","startTime":1795278057733,"endTime":1798734057733,"usedTime":3456000000,"failures":0,"copies":0,"sharedSpans":0,"isIncomplete":false,"longest":{"stepName":"long","usedTime":3456000000},"steps":[{"stepName":"long","eventId":"ODD","spanId":"0f64ac6a-6f2f-4d80-8d3c-3f6b4d0a7c11","errorCode":0,"isFailed":false,"startTime":1795278057733,"endTime":1798734057733,"usedTime":3456000000,"offset":0,"gapBefore":0,"depth":0,"isOnSlowestPath":true}]}
  ]

A record that the logs hold twice, as rotated and merged ones do, is shown once:

  $ cp "$TESTDIR/data/trace/agent.log" .
  $ head -n 1 agent.log >agent.log.1
  $ vmetrics trace agent.log.1 agent.log
  3f2a9c1e-8b7d-4c3e-9a55-0f1e2d3c4b5a
    2026-11-21 16:04:21.133 UTC  500 ms  2 steps  0 failed
    step             start    took  0                                       500 ms
  * create rds        0 ms  500 ms  ==============================================
  *   start encoder  50 ms  250 ms      ========================
    * slowest path; longest on it: create rds, 250 ms of 500 ms
  
  session-42  2026-11-21 16:05:28.933 UTC  400 ms  2 steps  1 failed
    step             start    took  error  0                                400 ms
  * create rds        0 ms  400 ms         =======================================
  *   start encoder  60 ms  240 ms     -5       ========================
    * slowest path; longest on it: start encoder, 240 ms of 400 ms
  vmetrics: 1 record left out, as the logs hold the same once more
  $ vmetrics trace agent.log >usual
  $ vmetrics trace agent.log agent.log agent.log | cmp - usual
  vmetrics: 8 records left out, as the logs hold the same once more
