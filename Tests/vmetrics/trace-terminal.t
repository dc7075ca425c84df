The width of the terminal is used, whatever it is:

  $ cp "$TESTDIR"/data/trace/*.log .
  $ at_width() { script -qec "stty cols $1; LC_ALL=C.UTF-8 NO_COLOR=1 vmetrics trace $2" /dev/null | tr -d '\r'; }
  $ at_width 60 "client.log agent.log"
  3f2a9c1e-8b7d-4c3e-9a55-0f1e2d3c4b5a
    2026-11-21 16:04:17.733 UTC  4.21 s  7 steps  0 failed
    step                start    took  0                4.21 s
  * Login                0 ms  4.21 s  ███████████████████████
  *   authenticate      10 ms  850 ms  ████▋
  *   choose gateway   900 ms  550 ms      ▐██▉
  *   Connect          1.45 s  1.65 s         ▐████████▉
  *   create rds       3.40 s  500 ms                    ▐██▎
  *     start encoder  3.45 s  250 ms                    ▐█▏
  *   first frame      3.90 s  280 ms                       █▊
    * slowest path; longest on it: Connect, 1.65 s of 4.21 s
  
  session-42
    2026-11-21 16:05:15.733 UTC  13.82 s  6 steps  2 failed
    step               start     took  error  0        13.82 s
  * authenticate        0 ms   240 ms         ▎
  * Connect           240 ms  10.00 s   -104  ███████████▊
    (no step)        10.24 s   2.06 s                     ··
  * Connect          12.30 s   850 ms                       █▏
  * create rds       13.20 s   400 ms                        ▋
  *   start encoder  13.26 s   240 ms     -5                 ▋
  * first frame      13.60 s   220 ms                        ▐
    * slowest path; longest on it: Connect, 10.00 s of 13.82 s
  $ at_width 200 "client.log agent.log"
  3f2a9c1e-8b7d-4c3e-9a55-0f1e2d3c4b5a  2026-11-21 16:04:17.733 UTC  4.21 s  7 steps  0 failed
    step                start    took  0                                                                                                                                                            4.21 s
  * Login                0 ms  4.21 s  ███████████████████████████████████████████████████████████████████████████████████████████████████████████████████████████████████████████████████████████████████
  *   authenticate      10 ms  850 ms  █████████████████████████████████▎
  *   choose gateway   900 ms  550 ms                                    ▐█████████████████████▏
  *   Connect          1.45 s  1.65 s                                                          ████████████████████████████████████████████████████████████████
  *   create rds       3.40 s  500 ms                                                                                                                                     ▐██████████████████▉
  *     start encoder  3.45 s  250 ms                                                                                                                                       ▐█████████▎
  *   first frame      3.90 s  280 ms                                                                                                                                                        ▐██████████▊
    * slowest path; longest on it: Connect, 1.65 s of 4.21 s
  
  session-42  2026-11-21 16:05:15.733 UTC  13.82 s  6 steps  2 failed
    step               start     took  error  0                                                                                                                                                    13.82 s
  * authenticate        0 ms   240 ms         ██▋
  * Connect           240 ms  10.00 s   -104    ▐████████████████████████████████████████████████████████████████████████████████████████████████████████████████▌
    (no step)        10.24 s   2.06 s                                                                                                                             ······················
  * Connect          12.30 s   850 ms                                                                                                                                                   ▐█████████▍
  * create rds       13.20 s   400 ms                                                                                                                                                              ████▌
  *   start encoder  13.26 s   240 ms     -5                                                                                                                                                       ▐██▍
  * first frame      13.60 s   220 ms                                                                                                                                                                  ▐██
    * slowest path; longest on it: Connect, 10.00 s of 13.82 s
  $ at_width 30 agent.log
  3f2a9c1e-8b7d-4c3e-9a55-0f1e2d3c4b5a
    2026-11-21 16:04:21.133 UTC  500 ms  2 steps  0 failed
    step      start    took  0   500 ms
  * create …   0 ms  500 ms  ██████████
  *   start…  50 ms  250 ms   █████
    * slowest path; longest on it: create rds, 250 ms of 500 ms
  
  session-42
    2026-11-21 16:05:28.933 UTC  400 ms  2 steps  1 failed
    step      start    took  error  0   400 ms
  * create …   0 ms  400 ms         ██████████
  *   start…  60 ms  240 ms     -5   ▐█████▌
    * slowest path; longest on it: start encoder, 240 ms of 400 ms
  $ at_width 1 agent.log | tail -n 2
  *   start…  60 ms  240 ms     -5   ▐█████▌
    * slowest path; longest on it: start encoder, 240 ms of 400 ms

Colours: failed steps are red, those on the slowest path yellow.

  $ script -qec "stty cols 80; TERM=xterm vmetrics trace --transaction session-42 agent.log" /dev/null | tr -d '\r'
  \x1b[1msession-42\x1b[0m  2026-11-21 16:05:28.933 UTC  400 ms  2 steps  \x1b[31m1 failed\x1b[0m (esc)
    \x1b[2mstep           \x1b[0m  \x1b[2mstart\x1b[0m  \x1b[2m  took\x1b[0m  \x1b[2merror\x1b[0m  \x1b[2m0                                400 ms\x1b[0m (esc)
  * create rds        0 ms  400 ms         \x1b[33m=======================================\x1b[0m (esc)
  * \x1b[31m  start encoder\x1b[0m  \x1b[31m60 ms\x1b[0m  \x1b[31m240 ms\x1b[0m  \x1b[31m   -5\x1b[0m  \x1b[31m     ========================\x1b[0m (esc)
    \x1b[2m* slowest path; longest on it: start encoder, 240 ms of 400 ms\x1b[0m (esc)
  $ script -qec "stty cols 80; TERM=dumb vmetrics trace --transaction session-42 agent.log" /dev/null | tr -d '\r' | head -n 1
  session-42  2026-11-21 16:05:28.933 UTC  400 ms  2 steps  1 failed
