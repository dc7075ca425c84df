A log of two steps, an event, and metrics of one member and of several:

  $ . "$TESTDIR/data/steps.sh"
  $ {
  >   for milliseconds in 40 10 30 20; do step Connect $milliseconds; done
  >   step Connect 3000 -110
  >   step Connect 3100 -110
  >   step Connect 12 7
  >   step 'first frame' 5
  >   echo '{"eventId":"nox_user_connect","timestamp":1795186800000,"args":{"usedTime":9}}'
  >   metric 302710785 '{"displayFPS":60}'
  >   metric 302710785 '{"displayFPS":30}'
  >   metric 302645257 '{"average":8200,"peak":12400}'
  >   metric 789184515 '{"memoryUage":41.5}'
  >   metric 654966786 '{"fileshareFileSize":5368709120}'
  >   metric 302645253 '{"displayResolution":"1920x1080"}'
  > } > log

  $ vmetrics stats log
  STEP (ms)    COUNT  FAILED   RATE  MIN  MEDIAN   P95   P99   MAX
  Connect          7       3  42.9%   10      30  3100  3100  3100
      error codes: -110 (2), 7 (1)
  first frame      1       0   0.0%    5       5     5     5     5
  
  METRIC                         COUNT     MIN  MEDIAN     P95     P99     MAX
  average (302645257)                1    8200    8200    8200    8200    8200
  peak (302645257)                   1   12400   12400   12400   12400   12400
  displayFPS (302710785)             2      30      30      60      60      60
  fileshareFileSize (654966786)      1  5.369G  5.369G  5.369G  5.369G  5.369G
  memoryUage (789184515)             1    41.5    41.5    41.5    41.5    41.5

As JSON, an object a line:

  $ vmetrics stats --format json log
  {"step":"Connect","count":7,"failures":3,"errorCodes":{"-110":2,"7":1},"unusable":0,"min":10,"median":30,"p95":3100,"p99":3100,"max":3100,"relativeError":0}
  {"step":"first frame","count":1,"failures":0,"errorCodes":{},"unusable":0,"min":5,"median":5,"p95":5,"p99":5,"max":5,"relativeError":0}
  {"metric":"302645257","name":"average","count":1,"unusable":0,"min":8200,"median":8200,"p95":8200,"p99":8200,"max":8200,"relativeError":0}
  {"metric":"302645257","name":"peak","count":1,"unusable":0,"min":12400,"median":12400,"p95":12400,"p99":12400,"max":12400,"relativeError":0}
  {"metric":"302710785","name":"displayFPS","count":2,"unusable":0,"min":30,"median":30,"p95":60,"p99":60,"max":60,"relativeError":0}
  {"metric":"654966786","name":"fileshareFileSize","count":1,"unusable":0,"min":5368709120,"median":5368709120,"p95":5368709120,"p99":5368709120,"max":5368709120,"relativeError":0}
  {"metric":"789184515","name":"memoryUage","count":1,"unusable":0,"min":41.5,"median":41.5,"p95":41.5,"p99":41.5,"max":41.5,"relativeError":0}

As comma-separated values:

  $ vmetrics stats --format csv log
  kind,id,name,period,count,failures,unusable,min,median,p95,p99,max,relativeError,errorCodes
  step,,Connect,,7,3,0,10,30,3100,3100,3100,0,-110:2 7:1
  step,,first frame,,1,0,0,5,5,5,5,5,0,
  metric,302645257,average,,1,,0,8200,8200,8200,8200,8200,0,
  metric,302645257,peak,,1,,0,12400,12400,12400,12400,12400,0,
  metric,302710785,displayFPS,,2,,0,30,30,60,60,60,0,
  metric,654966786,fileshareFileSize,,1,,0,5368709120,5368709120,5368709120,5368709120,5368709120,0,
  metric,789184515,memoryUage,,1,,0,41.5,41.5,41.5,41.5,41.5,0,

Only some of them; an ID may be hexadecimal:

  $ vmetrics stats --step 'first frame' --metric 0x120B0001 --metric 789184515 log
  STEP (ms)    COUNT  FAILED  RATE  MIN  MEDIAN  P95  P99  MAX
  first frame      1       0  0.0%    5       5    5    5    5
  
  METRIC                  COUNT   MIN  MEDIAN   P95   P99   MAX
  displayFPS (302710785)      2    30      30    60    60    60
  memoryUage (789184515)      1  41.5    41.5  41.5  41.5  41.5
  $ vmetrics stats --step Connect --format json log
  {"step":"Connect","count":7,"failures":3,"errorCodes":{"-110":2,"7":1},"unusable":0,"min":10,"median":30,"p95":3100,"p99":3100,"max":3100,"relativeError":0}
  $ vmetrics stats --metric 1 log
  vmetrics: the logs hold nothing of what is asked for
  [1]

Several files are summed up together, and so is what comes from standard input:

  $ vmetrics stats --step Connect log log
  STEP (ms)  COUNT  FAILED   RATE  MIN  MEDIAN   P95   P99   MAX
  Connect       14       6  42.9%   10      30  3100  3100  3100
      error codes: -110 (4), 7 (2)
  $ vmetrics stats --step Connect < log
  STEP (ms)  COUNT  FAILED   RATE  MIN  MEDIAN   P95   P99   MAX
  Connect        7       3  42.9%   10      30  3100  3100  3100
      error codes: -110 (2), 7 (1)
  $ vmetrics stats --step Connect log - < log
  STEP (ms)  COUNT  FAILED   RATE  MIN  MEDIAN   P95   P99   MAX
  Connect       14       6  42.9%   10      30  3100  3100  3100
      error codes: -110 (4), 7 (2)

By day and by hour, in UTC; a time that is none has no period:

  $ {
  >   step Connect 10 0 1795132799999
  >   step Connect 20 0 1795132800000
  >   step Connect 30 -5 1795136400000
  >   step Connect 40 0 99999999999999999
  >   step Connect 50 0 '"now"'
  >   metric 302710785 '{"displayFPS":60}' 1795132799999
  > } > days
  $ vmetrics stats --by day days
  STEP (ms)     COUNT  FAILED   RATE  MIN  MEDIAN  P95  P99  MAX
  Connect
    no time         2       0   0.0%   40      40   50   50   50
    2026-11-19      1       0   0.0%   10      10   10   10   10
    2026-11-20      2       1  50.0%   20      20   30   30   30
      error codes: -5 (1)
  
  METRIC        COUNT  MIN  MEDIAN  P95  P99  MAX
  displayFPS (302710785)
    2026-11-19      1   60      60   60   60   60
  $ vmetrics stats --by hour days
  STEP (ms)           COUNT  FAILED    RATE  MIN  MEDIAN  P95  P99  MAX
  Connect
    no time               2       0    0.0%   40      40   50   50   50
    2026-11-19 23:00      1       0    0.0%   10      10   10   10   10
    2026-11-20 00:00      1       0    0.0%   20      20   20   20   20
    2026-11-20 01:00      1       1  100.0%   30      30   30   30   30
      error codes: -5 (1)
  
  METRIC              COUNT  MIN  MEDIAN  P95  P99  MAX
  displayFPS (302710785)
    2026-11-19 23:00      1   60      60   60   60   60
  $ vmetrics stats --by hour --format json days
  {"step":"Connect","period":"no time","count":2,"failures":0,"errorCodes":{},"unusable":0,"min":40,"median":40,"p95":50,"p99":50,"max":50,"relativeError":0}
  {"step":"Connect","period":"2026-11-19 23:00","count":1,"failures":0,"errorCodes":{},"unusable":0,"min":10,"median":10,"p95":10,"p99":10,"max":10,"relativeError":0}
  {"step":"Connect","period":"2026-11-20 00:00","count":1,"failures":0,"errorCodes":{},"unusable":0,"min":20,"median":20,"p95":20,"p99":20,"max":20,"relativeError":0}
  {"step":"Connect","period":"2026-11-20 01:00","count":1,"failures":1,"errorCodes":{"-5":1},"unusable":0,"min":30,"median":30,"p95":30,"p99":30,"max":30,"relativeError":0}
  {"metric":"302710785","name":"displayFPS","period":"2026-11-19 23:00","count":1,"unusable":0,"min":60,"median":60,"p95":60,"p99":60,"max":60,"relativeError":0}
  $ vmetrics stats --by day --format csv days
  kind,id,name,period,count,failures,unusable,min,median,p95,p99,max,relativeError,errorCodes
  step,,Connect,no time,2,0,0,40,40,50,50,50,0,
  step,,Connect,2026-11-19,1,0,0,10,10,10,10,10,0,
  step,,Connect,2026-11-20,2,1,0,20,20,30,30,30,0,-5:1
  metric,302710785,displayFPS,2026-11-19,1,,0,60,60,60,60,60,0,

Durations that are none, such as that of a step whose clock was set back, and numbers that are too
large are counted, but not summed up. Of error codes the three most frequent are named:

  $ {
  >   step back 18446744073709551000
  >   step back -5
  >   step back 7
  >   for code in 1 1 1 2 2 2 3 3 4 5; do step failing 1 $code; done
  >   metric 7 '{"huge":1e400}'
  > } > odd
  $ vmetrics stats odd
  STEP (ms)  COUNT  FAILED    RATE  MIN  MEDIAN  P95  P99  MAX
  back           3       0    0.0%    7       7    7    7    7
      without a usable duration: 2
  failing       10      10  100.0%    1       1    1    1    1
      error codes: 1 (3), 2 (3), 3 (2), others (2)
  
  METRIC    COUNT  MIN  MEDIAN  P95  P99  MAX
  huge (7)      1    -       -    -    -    -
      without a usable value: 1
  $ vmetrics stats --format json odd
  {"step":"back","count":3,"failures":0,"errorCodes":{},"unusable":2,"min":7,"median":7,"p95":7,"p99":7,"max":7,"relativeError":0}
  {"step":"failing","count":10,"failures":10,"errorCodes":{"1":3,"2":3,"3":2,"others":2},"unusable":0,"min":1,"median":1,"p95":1,"p99":1,"max":1,"relativeError":0}
  {"metric":"7","name":"huge","count":1,"unusable":1,"min":null,"median":null,"p95":null,"p99":null,"max":null,"relativeError":0}
  $ vmetrics stats --format csv odd
  kind,id,name,period,count,failures,unusable,min,median,p95,p99,max,relativeError,errorCodes
  step,,back,,3,0,2,7,7,7,7,7,0,
  step,,failing,,10,10,0,1,1,1,1,1,0,1:3 2:3 3:2 others:2
  metric,7,huge,,1,,1,,,,,,0,

Too many different values to count each are counted in buckets:

  $ seq 65537 | sed 's/.*/{"eventId":"7","args":{"value":&}}/' > many
  $ vmetrics stats many
  METRIC     COUNT  MIN  MEDIAN     P95     P99    MAX
  value (7)  65537    1  ~32800  ~62240  ~64864  65537
  
  ~ within 0.098%: there are too many values to count each
  $ vmetrics stats --format json many
  {"metric":"7","name":"value","count":65537,"unusable":0,"min":1,"median":32800,"p95":62240,"p99":64864,"max":65537,"relativeError":0.0009765625}
  $ head -n 65536 many | vmetrics stats
  METRIC     COUNT  MIN  MEDIAN    P95    P99    MAX
  value (7)  65536    1   32768  62260  64881  65536

Private metrics are masked. None that is built in is a number, so the product's own are named:

  $ echo '7;int;secret;1' > definitions
  $ metric 7 '{"secret":42}' > private
  $ vmetrics stats --definitions definitions private
  METRIC      COUNT  MIN  MEDIAN  P95  P99  MAX
  secret (7)      1  ***     ***  ***  ***  ***
  $ vmetrics stats --definitions definitions --format json private
  {"metric":"7","name":"secret","count":1,"unusable":0,"min":"***","median":"***","p95":"***","p99":"***","max":"***","relativeError":0}
  $ vmetrics stats --definitions definitions --format csv private
  kind,id,name,period,count,failures,unusable,min,median,p95,p99,max,relativeError,errorCodes
  metric,7,secret,,1,,0,***,***,***,***,***,0,
  $ vmetrics stats --definitions definitions --show-private private
  METRIC      COUNT  MIN  MEDIAN  P95  P99  MAX
  secret (7)      1   42      42   42   42   42
  $ vmetrics stats private
  METRIC      COUNT  MIN  MEDIAN  P95  P99  MAX
  secret (7)      1   42      42   42   42   42

A number may be the ID of an event that a host has registered:

  $ vmetrics stats --event-definitions definitions private
  METRIC   COUNT  MIN  MEDIAN  P95  P99  MAX
  *** (7)      1  ***     ***  ***  ***  ***

The names of the members of a private metric are data but for the one that the catalogue gives. All
others of one metric are counted together:

  $ echo '9;json;top;1' > definitions
  $ metric 9 '{"alice.exe":12,"bob.exe":3}' > private
  $ metric 9 '{"alice.exe":4,"top":1}' >> private
  $ vmetrics stats --definitions definitions private
  METRIC   COUNT  MIN  MEDIAN  P95  P99  MAX
  *** (9)      3  ***     ***  ***  ***  ***
  top (9)      1  ***     ***  ***  ***  ***
  $ vmetrics stats --definitions definitions --by day private
  METRIC        COUNT  MIN  MEDIAN  P95  P99  MAX
  *** (9)
    2026-11-20      3  ***     ***  ***  ***  ***
  top (9)
    2026-11-20      1  ***     ***  ***  ***  ***
  $ vmetrics stats --definitions definitions --format json private
  {"metric":"9","name":"***","count":3,"unusable":0,"min":"***","median":"***","p95":"***","p99":"***","max":"***","relativeError":0}
  {"metric":"9","name":"top","count":1,"unusable":0,"min":"***","median":"***","p95":"***","p99":"***","max":"***","relativeError":0}
  $ vmetrics stats --definitions definitions --format csv private
  kind,id,name,period,count,failures,unusable,min,median,p95,p99,max,relativeError,errorCodes
  metric,9,***,,3,,0,***,***,***,***,***,0,
  metric,9,top,,1,,0,***,***,***,***,***,0,
  $ vmetrics stats --definitions definitions --show-private private
  METRIC         COUNT  MIN  MEDIAN  P95  P99  MAX
  alice.exe (9)      2    4       4   12   12   12
  bob.exe (9)        1    3       3    3    3    3
  top (9)            1    1       1    1    1    1
  $ metric 789250054 '{"C:/Users/alice/x.exe":12.5}' | vmetrics stats
  METRIC           COUNT  MIN  MEDIAN  P95  P99  MAX
  *** (789250054)      1  ***     ***  ***  ***  ***

Names are shown as what they are, whatever they would do to a terminal or a table:

  $ {
  >   step '' 1
  >   step '\u001b[31mred\nline' 1
  >   step 'a,\"b\"' 1
  >   step '连接' 1
  > } > names
  $ vmetrics stats names
  STEP (ms)            COUNT  FAILED  RATE  MIN  MEDIAN  P95  P99  MAX
  ""                       1       0  0.0%    1       1    1    1    1
  \u001b[31mred\nline      1       0  0.0%    1       1    1    1    1
  a,"b"                    1       0  0.0%    1       1    1    1    1
  \xe8\xbf\x9e\xe6\x8e\xa5                     1       0  0.0%    1       1    1    1    1 (esc)
  $ vmetrics stats --format json names
  {"step":"","count":1,"failures":0,"errorCodes":{},"unusable":0,"min":1,"median":1,"p95":1,"p99":1,"max":1,"relativeError":0}
  {"step":"\u001b[31mred\nline","count":1,"failures":0,"errorCodes":{},"unusable":0,"min":1,"median":1,"p95":1,"p99":1,"max":1,"relativeError":0}
  {"step":"a,\"b\"","count":1,"failures":0,"errorCodes":{},"unusable":0,"min":1,"median":1,"p95":1,"p99":1,"max":1,"relativeError":0}
  {"step":"\xe8\xbf\x9e\xe6\x8e\xa5","count":1,"failures":0,"errorCodes":{},"unusable":0,"min":1,"median":1,"p95":1,"p99":1,"max":1,"relativeError":0} (esc)
  $ vmetrics stats --format csv names
  kind,id,name,period,count,failures,unusable,min,median,p95,p99,max,relativeError,errorCodes
  step,,,,1,0,0,1,1,1,1,1,0,
  step,,\u001b[31mred\nline,,1,0,0,1,1,1,1,1,0,
  step,,"a,""b""",,1,0,0,1,1,1,1,1,0,
  step,,\xe8\xbf\x9e\xe6\x8e\xa5,,1,0,0,1,1,1,1,1,0, (esc)
