Two logs: of twenty steps each, a step that takes longer, one that fails more often, one that takes a
little longer, one that is new, one that is gone, and one of which there are few records.

  $ . "$TESTDIR/data/steps.sh"
  $ {
  >   for i in $(seq 20); do
  >     step Connect $((100 + i)); step upload 10; step 'first frame' 1; step redirect 10
  >     metric 302710785 '{"displayFPS":60}'
  >   done
  >   step rare 1; step old 1; metric 7 '{"gone":0}'
  > } > old.log
  $ {
  >   for i in $(seq 20); do
  >     step Connect $((150 + i)); step upload 9; step 'first frame' 3
  >     step redirect 10 $((i % 5 ? 0 : -5))
  >     metric 302710785 '{"displayFPS":45}'
  >   done
  >   step rare 900; step new 1
  > } > new.log

  $ vmetrics stats --compare old.log new.log
    STEP (ms)     COUNT   FAILED %          MEDIAN                 P95
  ! Connect      20->20   0.0->0.0        110->160    +45.5%  119->169    +42.0%
  ! first frame  20->20   0.0->0.0            1->3   +200.0%      1->3   +200.0%
  + new             ->1      ->0.0             ->1                 ->1
  - old             1->      0.0->             1->                 1->
  ! rare           1->1   0.0->0.0          1->900 +89900.0%    1->900 +89900.0%
  ! redirect     20->20  0.0->20.0 +20.0    10->10              10->10
    upload       20->20   0.0->0.0           10->9    -10.0%     10->9    -10.0%
  
    METRIC                   COUNT  MEDIAN            P95
  - gone (7)                   1->     0->            0->
    displayFPS (302710785)  20->20  60->45 -25.0%  60->45 -25.0%
  
  ! worse: the median grew by more than 10%,
    or the failure rate by more than 10 percentage points
  + in the new log only
  - in the old log only
  4 steps are worse, 2 are not judged.
  [1]
  $ vmetrics stats --compare old.log --format json new.log
  {"step":"Connect","verdict":"worse","old":{"count":20,"failures":0,"failureRate":0,"median":110,"p95":119,"relativeError":0},"new":{"count":20,"failures":0,"failureRate":0,"median":160,"p95":169,"relativeError":0},"change":{"count":0,"failureRate":0,"median":50,"p95":50},"medianGrew":true,"failureRateGrew":false}
  {"step":"first frame","verdict":"worse","old":{"count":20,"failures":0,"failureRate":0,"median":1,"p95":1,"relativeError":0},"new":{"count":20,"failures":0,"failureRate":0,"median":3,"p95":3,"relativeError":0},"change":{"count":0,"failureRate":0,"median":2,"p95":2},"medianGrew":true,"failureRateGrew":false}
  {"step":"new","verdict":"added","new":{"count":1,"failures":0,"failureRate":0,"median":1,"p95":1,"relativeError":0}}
  {"step":"old","verdict":"gone","old":{"count":1,"failures":0,"failureRate":0,"median":1,"p95":1,"relativeError":0}}
  {"step":"rare","verdict":"worse","old":{"count":1,"failures":0,"failureRate":0,"median":1,"p95":1,"relativeError":0},"new":{"count":1,"failures":0,"failureRate":0,"median":900,"p95":900,"relativeError":0},"change":{"count":0,"failureRate":0,"median":899,"p95":899},"medianGrew":true,"failureRateGrew":false}
  {"step":"redirect","verdict":"worse","old":{"count":20,"failures":0,"failureRate":0,"median":10,"p95":10,"relativeError":0},"new":{"count":20,"failures":4,"failureRate":0.2,"median":10,"p95":10,"relativeError":0},"change":{"count":0,"failureRate":0.2,"median":0,"p95":0},"medianGrew":false,"failureRateGrew":true}
  {"step":"upload","verdict":"same","old":{"count":20,"failures":0,"failureRate":0,"median":10,"p95":10,"relativeError":0},"new":{"count":20,"failures":0,"failureRate":0,"median":9,"p95":9,"relativeError":0},"change":{"count":0,"failureRate":0,"median":-1,"p95":-1},"medianGrew":false,"failureRateGrew":false}
  {"metric":"7","name":"gone","verdict":"gone","old":{"count":1,"median":0,"p95":0,"relativeError":0}}
  {"metric":"302710785","name":"displayFPS","verdict":"none","old":{"count":20,"median":60,"p95":60,"relativeError":0},"new":{"count":20,"median":45,"p95":45,"relativeError":0},"change":{"count":0,"median":-15,"p95":-15}}
  [1]
  $ vmetrics stats --compare old.log --format csv new.log
  kind,id,name,verdict,oldCount,newCount,oldFailureRate,newFailureRate,oldMedian,newMedian,oldP95,newP95,oldRelativeError,newRelativeError
  step,,Connect,worse,20,20,0,0,110,160,119,169,0,0
  step,,first frame,worse,20,20,0,0,1,3,1,3,0,0
  step,,new,added,,1,,0,,1,,1,,0
  step,,old,gone,1,,0,,1,,1,,0,
  step,,rare,worse,1,1,0,0,1,900,1,900,0,0
  step,,redirect,worse,20,20,0,0.2,10,10,10,10,0,0
  step,,upload,same,20,20,0,0,10,9,10,9,0,0
  metric,7,gone,gone,1,,,,0,,0,,0,
  metric,302710785,displayFPS,none,20,20,,,60,45,60,45,0,0
  [1]

The threshold is in percent of the median and in percentage points of the failure rate:

  $ vmetrics stats --compare old.log --threshold 50 new.log
    STEP (ms)     COUNT   FAILED %          MEDIAN                 P95
    Connect      20->20   0.0->0.0        110->160    +45.5%  119->169    +42.0%
  ! first frame  20->20   0.0->0.0            1->3   +200.0%      1->3   +200.0%
  + new             ->1      ->0.0             ->1                 ->1
  - old             1->      0.0->             1->                 1->
  ! rare           1->1   0.0->0.0          1->900 +89900.0%    1->900 +89900.0%
    redirect     20->20  0.0->20.0 +20.0    10->10              10->10
    upload       20->20   0.0->0.0           10->9    -10.0%     10->9    -10.0%
  
    METRIC                   COUNT  MEDIAN            P95
  - gone (7)                   1->     0->            0->
    displayFPS (302710785)  20->20  60->45 -25.0%  60->45 -25.0%
  
  ! worse: the median grew by more than 50%,
    or the failure rate by more than 50 percentage points
  + in the new log only
  - in the old log only
  2 steps are worse, 2 are not judged.
  [1]
  $ vmetrics stats --compare old.log --threshold 45 --step Connect new.log
    STEP (ms)   COUNT  FAILED %     MEDIAN              P95
  ! Connect    20->20  0.0->0.0   110->160 +45.5%  119->169 +42.0%
  
  ! worse: the median grew by more than 45%,
    or the failure rate by more than 45 percentage points
  1 step is worse.
  [1]

Who wants to hear less asks for a growth by some milliseconds, and for more records:

  $ vmetrics stats --compare old.log --min-growth 5 --min-count 10 new.log
    STEP (ms)     COUNT   FAILED %          MEDIAN                 P95
  ! Connect      20->20   0.0->0.0        110->160    +45.5%  119->169    +42.0%
    first frame  20->20   0.0->0.0            1->3   +200.0%      1->3   +200.0%
  + new             ->1      ->0.0             ->1                 ->1
  - old             1->      0.0->             1->                 1->
  ? rare           1->1   0.0->0.0          1->900 +89900.0%    1->900 +89900.0%
  ! redirect     20->20  0.0->20.0 +20.0    10->10              10->10
    upload       20->20   0.0->0.0           10->9    -10.0%     10->9    -10.0%
  
    METRIC                   COUNT  MEDIAN            P95
  - gone (7)                   1->     0->            0->
    displayFPS (302710785)  20->20  60->45 -25.0%  60->45 -25.0%
  
  ! worse: the median grew by more than 10% and at least 5 ms,
    or the failure rate by more than 10 percentage points
  ? not judged: fewer than 10 records in one of the logs
  + in the new log only
  - in the old log only
  2 steps are worse, 3 are not judged.
  [1]

A log does not differ from itself, and either may come from standard input:

  $ vmetrics stats --compare new.log --step Connect new.log
    STEP (ms)   COUNT  FAILED %     MEDIAN        P95
    Connect    20->20  0.0->0.0   160->160   169->169
  
  No step is worse.
  $ vmetrics stats --compare - --step Connect new.log < new.log
    STEP (ms)   COUNT  FAILED %     MEDIAN        P95
    Connect    20->20  0.0->0.0   160->160   169->169
  
  No step is worse.
  $ vmetrics stats --compare new.log --step Connect < new.log
    STEP (ms)   COUNT  FAILED %     MEDIAN        P95
    Connect    20->20  0.0->0.0   160->160   169->169
  
  No step is worse.

Where no step is in both logs, or has enough records there, nothing is known:

  $ vmetrics stats --compare /dev/null /dev/null
  vmetrics: no step could be compared: none is in both logs
  [2]
  $ vmetrics stats --compare /dev/null --step Connect new.log
    STEP (ms)  COUNT  FAILED %   MEDIAN     P95
  + Connect     ->20     ->0.0    ->160   ->169
  
  + in the new log only
  vmetrics: no step could be compared: none is in both logs
  [2]
  $ vmetrics stats --compare old.log --step Connect --format csv /dev/null
  kind,id,name,verdict,oldCount,newCount,oldFailureRate,newFailureRate,oldMedian,newMedian,oldP95,newP95,oldRelativeError,newRelativeError
  step,,Connect,gone,20,,0,,110,,119,,0,
  vmetrics: no step could be compared: none is in both logs
  [2]
  $ vmetrics stats --compare old.log --step rare --min-count 2 new.log
    STEP (ms)  COUNT  FAILED %   MEDIAN               P95
  ? rare        1->1  0.0->0.0   1->900 +89900.0%  1->900 +89900.0%
  
  ? not judged: fewer than 2 records in one of the logs
  vmetrics: no step could be compared: none has 2 records in both logs
  [2]

One record in each log is enough, and so is any growth beyond the threshold:

  $ step Connect 20 > once.log
  $ step Connect 23 > slower.log
  $ step Connect 22 > same.log
  $ step Connect 20 7 > failed.log
  $ vmetrics stats --compare once.log slower.log
    STEP (ms)  COUNT  FAILED %   MEDIAN            P95
  ! Connect     1->1  0.0->0.0   20->23 +15.0%  20->23 +15.0%
  
  ! worse: the median grew by more than 10%,
    or the failure rate by more than 10 percentage points
  1 step is worse.
  [1]
  $ vmetrics stats --compare once.log same.log
    STEP (ms)  COUNT  FAILED %   MEDIAN            P95
    Connect     1->1  0.0->0.0   20->22 +10.0%  20->22 +10.0%
  
  No step is worse.
  $ vmetrics stats --compare once.log failed.log
    STEP (ms)  COUNT    FAILED %         MEDIAN      P95
  ! Connect     1->1  0.0->100.0 +100.0  20->20   20->20
  
  ! worse: the median grew by more than 10%,
    or the failure rate by more than 10 percentage points
  1 step is worse.
  [1]

Too many different values to count each are counted in buckets:

  $ seq 65537 | sed 's/.*/{"eventId":"7","args":{"value":&}}/' > many
  $ vmetrics stats --compare old.log --metric 7 many
    METRIC       COUNT    MEDIAN        P95
  - gone (7)       1->       0->        0->
  + value (7)  ->65537  ->~32800   ->~62240
  
  ~ within 0.098%: there are too many values to count each
  + in the new log only
  - in the old log only
  $ vmetrics stats --compare many --metric 7 many
    METRIC            COUNT          MEDIAN              P95
    value (7)  65537->65537  ~32800->~32800   ~62240->~62240
  
  ~ within 0.098%: there are too many values to count each
  $ vmetrics stats --compare many --metric 7 --format json many
  {"metric":"7","name":"value","verdict":"none","old":{"count":65537,"median":32800,"p95":62240,"relativeError":0.0009765625},"new":{"count":65537,"median":32800,"p95":62240,"relativeError":0.0009765625},"change":{"count":0,"median":0,"p95":0}}
  $ vmetrics stats --compare many --metric 7 --format csv many
  kind,id,name,verdict,oldCount,newCount,oldFailureRate,newFailureRate,oldMedian,newMedian,oldP95,newP95,oldRelativeError,newRelativeError
  metric,7,value,none,65537,65537,,,32800,32800,62240,62240,0.0009765625,0.0009765625

A log that cannot be read leaves nothing to rely on, whatever else is found:

  $ vmetrics stats --compare missing.log --step Connect new.log
  vmetrics: missing.log: No such file or directory
    STEP (ms)  COUNT  FAILED %   MEDIAN     P95
  + Connect     ->20     ->0.0    ->160   ->169
  
  + in the new log only
  vmetrics: no step could be compared: none is in both logs
  [2]
  $ vmetrics stats --compare old.log --step Connect new.log missing.log
  vmetrics: missing.log: No such file or directory
    STEP (ms)   COUNT  FAILED %     MEDIAN              P95
  ! Connect    20->20  0.0->0.0   110->160 +45.5%  119->169 +42.0%
  
  ! worse: the median grew by more than 10%,
    or the failure rate by more than 10 percentage points
  1 step is worse.
  [2]

Values of private metrics are masked:

  $ echo '302710785;int;displayFPS;1' > taken
  $ vmetrics stats --compare old.log --metric 8 --definitions taken new.log
  vmetrics: taken:1: the ID 302710785 (0x120B0001) is taken by displayFPS (int)
  [2]
  $ echo '8;int;secret;1' > definitions
  $ metric 8 '{"secret":4}' > private.log
  $ metric 8 '{"secret":5}' > private2.log
  $ vmetrics stats --compare private.log --definitions definitions --metric 8 private2.log
    METRIC      COUNT    MEDIAN        P95
    secret (8)   1->1  ***->***   ***->***
  $ vmetrics stats --compare private.log --definitions definitions --metric 8 --format json private2.log
  {"metric":"8","name":"secret","verdict":"none","old":{"count":1,"median":"***","p95":"***","relativeError":0},"new":{"count":1,"median":"***","p95":"***","relativeError":0},"change":{"count":0,"median":"***","p95":"***"}}
  $ vmetrics stats --compare private.log --definitions definitions --metric 8 --format csv private2.log
  kind,id,name,verdict,oldCount,newCount,oldFailureRate,newFailureRate,oldMedian,newMedian,oldP95,newP95,oldRelativeError,newRelativeError
  metric,8,secret,none,1,1,,,***,***,***,***,0,0

So are the names of members that the catalogue does not give:

  $ echo '9;json;top;1' > definitions
  $ metric 9 '{"alice.exe":12,"bob.exe":3}' > private.log
  $ metric 9 '{"carol.exe":4}' > private2.log
  $ vmetrics stats --compare private.log --definitions definitions --metric 9 private2.log
    METRIC   COUNT    MEDIAN        P95
    *** (9)   2->1  ***->***   ***->***
  $ vmetrics stats --compare private.log --definitions definitions --metric 9 --format json private2.log
  {"metric":"9","name":"***","verdict":"none","old":{"count":2,"median":"***","p95":"***","relativeError":0},"new":{"count":1,"median":"***","p95":"***","relativeError":0},"change":{"count":-1,"median":"***","p95":"***"}}
  $ vmetrics stats --compare private.log --definitions definitions --metric 9 --format csv private2.log
  kind,id,name,verdict,oldCount,newCount,oldFailureRate,newFailureRate,oldMedian,newMedian,oldP95,newP95,oldRelativeError,newRelativeError
  metric,9,***,none,2,1,,,***,***,***,***,0,0
