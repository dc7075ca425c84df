A log of the demo. The agent registers a metric of its own, which the tool must be told of:

  $ cat $TESTDIR/data/session.metrics
  # What the demo registers besides the metrics that are built in.
  302645266;int;displayEncoderQueue;0
  $ vmetrics check --definitions $TESTDIR/data/session.metrics $TESTDIR/data/session.log
  vmetrics: 20 records checked, no finding

Otherwise the metric is a finding:

  $ cp $TESTDIR/data/session.log .
  $ vmetrics check session.log
  session.log:16: unknown-id: metric 302645266 is not in the catalogue
  vmetrics: 20 records checked, 1 finding: 1 unknown-id
  [1]

The event "nox_user_operation" is unregistered on purpose; with a definition it is known all the
same:

  $ echo 'nox_user_operation;json;userOperation;0' >events
  $ vmetrics check --event-definitions events --definitions $TESTDIR/data/session.metrics session.log
  vmetrics: 20 records checked, no finding

Findings stand in the order of the files and lines:

  $ step() {
  >   printf '{"eventId":"E","timestamp":1700000000400,"terminalId":"0","type":"2","transactionId":"t","spanId":"%s","parentSpanId":"%s","args":{"stepName":"%s","errorCode":0,"isSuccess":1,"startTime":1700000000100,"endTime":1700000000400,"usedTime":%s}}\n' "$@"
  > }
  $ one=11111111-1111-1111-1111-111111111111
  $ two=22222222-2222-2222-2222-222222222222
  $ three=33333333-3333-3333-3333-333333333333
  $ step $one $three "first step" 300 >one.log
  $ step $one $two "second step" 200 >>one.log
  $ (step $two $one "third step" 400; echo fragment) >two.log
  $ vmetrics check one.log two.log
  one.log:1: missing-parent: no step here has the parent's span 33333333-3333-3333-3333-333333333333
  one.log:2: duplicate-span: spanId 11111111-1111-1111-1111-111111111111 is that of one.log:1, too
  one.log:2: used-time: usedTime is 200, but from start to end it is 300
  two.log:1: used-time: usedTime is 400, but from start to end it is 300
  two.log:2: not-json: no JSON object in 8 bytes
  vmetrics: 3 records checked, 5 findings: 1 not-json, 1 duplicate-span, 2 used-time, 1 missing-parent
  [1]

For a machine, one JSON object a finding:

  $ vmetrics check --format json one.log two.log
  {"file":"one.log","line":1,"kind":"missing-parent","message":"no step here has the parent's span 33333333-3333-3333-3333-333333333333"}
  {"file":"one.log","line":2,"kind":"duplicate-span","message":"spanId 11111111-1111-1111-1111-111111111111 is that of one.log:1, too"}
  {"file":"one.log","line":2,"kind":"used-time","message":"usedTime is 200, but from start to end it is 300"}
  {"file":"two.log","line":1,"kind":"used-time","message":"usedTime is 400, but from start to end it is 300"}
  {"file":"two.log","line":2,"kind":"not-json","message":"no JSON object in 8 bytes"}
  vmetrics: 3 records checked, 5 findings: 1 not-json, 1 duplicate-span, 2 used-time, 1 missing-parent
  [1]

Kinds that are not wanted are left out:

  $ vmetrics check --ignore missing-parent one.log two.log
  one.log:2: duplicate-span: spanId 11111111-1111-1111-1111-111111111111 is that of one.log:1, too
  one.log:2: used-time: usedTime is 200, but from start to end it is 300
  two.log:1: used-time: usedTime is 400, but from start to end it is 300
  two.log:2: not-json: no JSON object in 8 bytes
  vmetrics: 3 records checked, 4 findings: 1 not-json, 1 duplicate-span, 2 used-time
  [1]
  $ vmetrics check --ignore missing-parent,duplicate-span --ignore used-time one.log two.log
  two.log:2: not-json: no JSON object in 8 bytes
  vmetrics: 3 records checked, 1 finding: 1 not-json
  [1]
  $ vmetrics check --ignore missing-parent,duplicate-span,used-time,not-json one.log two.log
  vmetrics: 3 records checked, no finding

Not all need be shown; they count nevertheless:

  $ vmetrics check --max 2 one.log two.log
  one.log:1: missing-parent: no step here has the parent's span 33333333-3333-3333-3333-333333333333
  one.log:2: duplicate-span: spanId 11111111-1111-1111-1111-111111111111 is that of one.log:1, too
  vmetrics: 3 records checked, 5 findings (2 shown): 1 not-json, 1 duplicate-span, 2 used-time, 1 missing-parent
  [1]
  $ vmetrics check --max 0 one.log two.log
  vmetrics: 3 records checked, 5 findings (0 shown): 1 not-json, 1 duplicate-span, 2 used-time, 1 missing-parent
  [1]

Standard input is read where no file is named, and for "-"; compressed files are unpacked:

  $ vmetrics check <one.log
  standard input:1: missing-parent: no step here has the parent's span 33333333-3333-3333-3333-333333333333
  standard input:2: duplicate-span: spanId 11111111-1111-1111-1111-111111111111 is that of standard input:1, too
  standard input:2: used-time: usedTime is 200, but from start to end it is 300
  standard input:2: missing-parent: no step here has the parent's span 22222222-2222-2222-2222-222222222222
  vmetrics: 2 records checked, 4 findings: 1 duplicate-span, 1 used-time, 2 missing-parent
  [1]
  $ gzip -n two.log
  $ cat one.log | vmetrics check --ignore used-time - two.log.gz
  standard input:1: missing-parent: no step here has the parent's span 33333333-3333-3333-3333-333333333333
  standard input:2: duplicate-span: spanId 11111111-1111-1111-1111-111111111111 is that of standard input:1, too
  two.log.gz:2: not-json: no JSON object in 8 bytes
  vmetrics: 3 records checked, 3 findings: 1 not-json, 1 duplicate-span, 1 missing-parent
  [1]

A file that is named twice has each span twice:

  $ vmetrics check session.log session.log --max 3
  session.log:16: unknown-id: metric 302645266 is not in the catalogue
  session.log:6: duplicate-span: spanId 342bdf4d-3521-7ce1-90e1-ee51acba503f is that of session.log:6, too
  session.log:7: duplicate-span: spanId 2179050f-b5d2-4236-9346-b0570f4d0e18 is that of session.log:7, too
  vmetrics: 40 records checked, 6 findings (3 shown): 2 unknown-id, 4 duplicate-span
  [1]

What cannot be read is trouble, but does not keep the others from being read:

  $ vmetrics check missing.log one.log . 
  vmetrics: missing.log: No such file or directory
  vmetrics: .: Is a directory
  one.log:1: missing-parent: no step here has the parent's span 33333333-3333-3333-3333-333333333333
  one.log:2: duplicate-span: spanId 11111111-1111-1111-1111-111111111111 is that of one.log:1, too
  one.log:2: used-time: usedTime is 200, but from start to end it is 300
  one.log:2: missing-parent: no step here has the parent's span 22222222-2222-2222-2222-222222222222
  vmetrics: 2 records checked, 4 findings: 1 duplicate-span, 1 used-time, 2 missing-parent
  [2]
  $ head -c 100 two.log.gz >cut.log.gz
  $ vmetrics check cut.log.gz
  vmetrics: cut.log.gz: the compressed data ends too early
  cut.log.gz:1: not-json: no JSON object in 81 bytes
  vmetrics: 0 records checked, 1 finding: 1 not-json
  [2]

So is a definition that is refused, and a file of definitions that cannot be read:

  $ echo '302645249;string;displayFrames;0' >refused
  $ vmetrics check --definitions refused $TESTDIR/data/session.log --ignore unknown-id
  vmetrics: refused:1: the ID 302645249 (0x120A0001) is taken by displayFPS (int)
  vmetrics: 20 records checked, no finding
  [2]
  $ vmetrics check --definitions missing session.log
  vmetrics: missing: No such file or directory
  [2]

Output that cannot be written is trouble, too:

  $ vmetrics check one.log >/dev/full
  vmetrics: standard output: No space left on device
  [2]
  $ vmetrics check missing one.log 2>/dev/full >/dev/null
  [2]

Wrong usage:

  $ vmetrics check --ignore nothing one.log
  vmetrics: --ignore: "nothing" is no kind of findings; see vmetrics check --help
  [2]
  $ vmetrics check --format xml one.log
  vmetrics: --format: "xml" is none of text, json; see vmetrics check --help
  [2]
  $ vmetrics check --max -1 one.log
  vmetrics: --max: "-1" is no whole number from 0 to 18446744073709551615; see vmetrics check --help
  [2]
  $ vmetrics check --max many one.log
  vmetrics: --max: "many" is no whole number from 0 to 18446744073709551615; see vmetrics check --help
  [2]
  $ vmetrics check --unknown
  vmetrics: not understood: --unknown; see vmetrics check --help
  [2]

Names of files may be anything:

  $ step $one $one "first step" 200 >"$(printf 'a\033[31m\n.log')"
  $ vmetrics check a*.log
  a\u001b[31m\n.log:1: used-time: usedTime is 200, but from start to end it is 300
  vmetrics: 1 record checked, 1 finding: 1 used-time
  [1]
  $ vmetrics check --format json a*.log
  {"file":"a\u001b[31m\n.log","line":1,"kind":"used-time","message":"usedTime is 200, but from start to end it is 300"}
  vmetrics: 1 record checked, 1 finding: 1 used-time
  [1]

Findings that are too many to be sorted are written as they are found, those about parents last:

  $ for i in 1 2 3; do step $(printf %08d $i)-1111-1111-1111-111111111111 $three "a step" 300; done >many.log
  $ yes fragment | head -n 10000 >>many.log
  $ vmetrics check many.log | sed -n '1p;$p'
  vmetrics: 3 records checked, 10003 findings: 10000 not-json, 3 missing-parent
  many.log:4: not-json: no JSON object in 8 bytes
  many.log:3: missing-parent: no step here has the parent's span 33333333-3333-3333-3333-333333333333
  $ vmetrics check many.log | sed '/not-json/d'
  vmetrics: 3 records checked, 10003 findings: 10000 not-json, 3 missing-parent
  many.log:1: missing-parent: no step here has the parent's span 33333333-3333-3333-3333-333333333333
  many.log:2: missing-parent: no step here has the parent's span 33333333-3333-3333-3333-333333333333
  many.log:3: missing-parent: no step here has the parent's span 33333333-3333-3333-3333-333333333333
  $ vmetrics check --max 1 many.log
  many.log:4: not-json: no JSON object in 8 bytes
  vmetrics: 3 records checked, 10003 findings (1 shown): 10000 not-json, 3 missing-parent
  [1]

On a terminal the kinds stand out, of whatever width it is, but not under NO_COLOR:

  $ on_terminal() { TERM=xterm script -qec "stty cols $1; $2" /dev/null </dev/null; }
  $ on_terminal 60 "vmetrics check --ignore missing-parent one.log"
  one.log:2: \x1b[33mduplicate-span\x1b[0m: spanId 11111111-1111-1111-1111-111111111111 is that of one.log:1, too\r (esc)
  one.log:2: \x1b[33mused-time\x1b[0m: usedTime is 200, but from start to end it is 300\r (esc)
  vmetrics: 2 records checked, 2 findings: 1 duplicate-span, 1 used-time\r (esc)
  [1]
  $ on_terminal 200 "vmetrics check --ignore missing-parent one.log"
  one.log:2: \x1b[33mduplicate-span\x1b[0m: spanId 11111111-1111-1111-1111-111111111111 is that of one.log:1, too\r (esc)
  one.log:2: \x1b[33mused-time\x1b[0m: usedTime is 200, but from start to end it is 300\r (esc)
  vmetrics: 2 records checked, 2 findings: 1 duplicate-span, 1 used-time\r (esc)
  [1]
  $ on_terminal 60 "NO_COLOR=1 vmetrics check --ignore missing-parent one.log"
  one.log:2: duplicate-span: spanId 11111111-1111-1111-1111-111111111111 is that of one.log:1, too\r (esc)
  one.log:2: used-time: usedTime is 200, but from start to end it is 300\r (esc)
  vmetrics: 2 records checked, 2 findings: 1 duplicate-span, 1 used-time\r (esc)
  [1]

How it is used:

  $ vmetrics check --help
  Compares metrics logs with the catalogue and the rules of the library's records.
  Each finding is a line FILE:LINE: kind: message. The exit status is 1 if there
  is any.
  Usage: vmetrics check [OPTIONS] [file...]
  
  Positionals:
    file FILE ...               Metrics logs, plain or compressed by gzip; - or
                                none is standard input
  
  Options:
    -h,--help                   Print this help message and exit
    --definitions FILE          Add the metrics of FILE, "ID;type;name;private" a
                                line; may be repeated
    --event-definitions FILE    The same for metrics with an event ID
    --ignore KIND               Leave findings of the kind out; several are
                                separated by commas
    --max N                     Write at most N findings, but count all
    --format FORMAT             text, json; without this option text
    --show-private              Show the values of private metrics and user names,
                                masked otherwise
  
  Kinds of findings:
    not-json        a line without any JSON object
    glued           a record that shares its line with another one or a fragment
    too-long        a line that is longer than records can be
    no-record       a JSON object that is no record of the library
    member          a member that is missing, of a wrong type or of a wrong value
    extra-member    a member that does not belong to its record
    duplicate-key   two members of one name
    unknown-id      a metric that the catalogue lacks
    args            a value that does not fit its metric's entry in the catalogue
    no-args         a metric without its value
    span-form       an identifier of a span that is not 36 characters of the right form
    duplicate-span  two steps with one span identifier
    time            a step that ends before it starts
    used-time       a usedTime that is not the time from start to end
    is-success      an isSuccess that contradicts errorCode
    parent-step     a parentStepName where there should be none, or none where there should
    unlocked-parent a step whose parent is not known, as the span file could not be locked
    missing-parent  a step whose parent is not in the logs
  
  Example:
    vmetrics check --definitions own.txt session.log
      The log of a program that registers the metrics in own.txt.
    vmetrics check --format json --ignore missing-parent today.log.gz
      For a machine; today's first step may have its parent in yesterday's log.
