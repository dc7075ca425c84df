Lines that a crash has left, and others that are no records:

  $ metric='{"eventId":"302645249","timestamp":1700000000240,"moduleId":4618,"terminalId":"7","args":{"displayFPS":60}}'
  $ cat >damaged.log <<END
  > $metric
  > {"eventId":"302645249","timest$metric
  > $metric$metric
  > {"eventId":"302645249","timest
  > ["eventId"]
  > {}
  > {"message":"hello"}
  > 12:00:00 host-1 $metric
  > $metric{"eventId":"302645249","timest
  > $metric [main.cpp:17]
  > 
  > END
  $ vmetrics check damaged.log
  damaged.log:2: glued: a record is glued to a fragment of another
  damaged.log:3: glued: 2 records are glued to each other
  damaged.log:4: not-json: no JSON object in 30 bytes
  damaged.log:5: not-json: no JSON object in 11 bytes
  damaged.log:6: no-record: a JSON object, but no record of the library
  damaged.log:7: no-record: a JSON object, but no record of the library
  damaged.log:9: glued: a record is glued to a fragment of another
  vmetrics: 9 records checked, 7 findings: 2 not-json, 3 glued, 2 no-record
  [1]

A line break may have a carriage return in front of it, and may be missing at the end:

  $ printf '%s\r\n%s\r\n\r\n%s' "$metric" "$metric" "$metric" >crlf.log
  $ vmetrics check crlf.log
  vmetrics: 3 records checked, no finding

An empty file, and one without any line:

  $ : >empty.log
  $ vmetrics check empty.log
  vmetrics: 0 records checked, no finding
  $ printf '\n\n' | vmetrics check
  vmetrics: 0 records checked, no finding

Rubbish, of which nothing gets to the terminal:

  $ printf '\000\377\033[31m{\000}\n\200' >rubbish.log
  $ vmetrics check rubbish.log
  rubbish.log:1: not-json: no JSON object in 10 bytes
  rubbish.log:2: not-json: no JSON object in 1 byte
  vmetrics: 0 records checked, 2 findings: 2 not-json
  [1]
  $ head -c 100000 /dev/zero | vmetrics check
  standard input:1: not-json: no JSON object in 100000 bytes
  vmetrics: 0 records checked, 1 finding: 1 not-json
  [1]

A line longer than any record:

  $ (echo "$metric"; head -c 5000000 /dev/zero | tr '\0' x; echo; echo fragment) | vmetrics check
  standard input:2: too-long: more than 4194304 bytes
  standard input:3: not-json: no JSON object in 8 bytes
  vmetrics: 1 record checked, 2 findings: 1 not-json, 1 too-long
  [1]

A file whose name a terminal would obey:

  $ f=$(printf 'b\302\23331m\033.log')
  $ echo '{}' >"$f"
  $ vmetrics check "$f"
  b\u009b31m\u001b.log:1: no-record: a JSON object, but no record of the library
  vmetrics: 1 record checked, 1 finding: 1 no-record
  [1]
  $ vmetrics check --format json "$f"
  {"file":"b\u009b31m\u001b.log","line":1,"kind":"no-record","message":"a JSON object, but no record of the library"}
  vmetrics: 1 record checked, 1 finding: 1 no-record
  [1]
