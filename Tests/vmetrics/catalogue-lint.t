Definitions as they should be leave nothing to say. The sides of a group share names:

  $ cat >good.def <<'EOF'
  > # Metrics of the viewer.
  > 302645266;int;myMetric;0
  > 
  > 302710802;int;myMetric;0
  > 302710803;json;myJson;1;
  > EOF
  $ cat >good-events.def <<'EOF'
  > viewer_opened;json;opened;0
  > 7;string;displayFPS;1
  > EOF
  $ vmetrics catalogue lint --definitions good.def --event-definitions good-events.def
  $ vmetrics catalogue lint --definitions good.def --format json
  []
  $ vmetrics catalogue lint --definitions /dev/null

What the library refuses:

  $ cat >refused.def <<'EOF'
  > 302645266;int;myMetric
  > 302645266;int;;0
  > frames;int;myMetric;0
  > 0;int;myMetric;0
  > 0x120A0012;int;myMetric;0
  > 4294967296;int;myMetric;0
  > 302645249;int;myMetric;0
  > 302645266;int;myMetric;0
  > 302645266;int;myMetric;0
  > 4597612562;string;other;1
  >  # a comment begins at the beginning of a line
  > EOF
  $ vmetrics catalogue lint --definitions refused.def
  refused.def:1: refused: 3 of the four fields "ID;type;name;private", empty ones not counted
  refused.def:2: refused: 3 of the four fields "ID;type;name;private", empty ones not counted
  refused.def:2: surprise: an empty field does not count: those behind it move forward
  refused.def:3: refused: the ID "frames" is not a decimal number
  refused.def:4: refused: the ID "0" counts as 0
  refused.def:5: refused: the ID 0x120A0012 is not decimal: write 302645266
  refused.def:6: refused: of the ID 4294967296 only the low 32 bits count, which are 0
  refused.def:7: refused: the ID 302645249 (0x120A0001) is taken by displayFPS (int), built in
  refused.def:9: refused: the ID 302645266 (0x120A0012) is taken by myMetric (int), defined at refused.def:8
  refused.def:10: refused: the ID 302645266 (0x120A0012) is taken by myMetric (int), defined at refused.def:8
  refused.def:10: surprise: of the ID 4597612562 only the low 32 bits count, which are 302645266
  refused.def:11: refused: 1 of the four fields "ID;type;name;private", empty ones not counted
  11 definitions: 10 refused, 0 with surprises
  [1]
  $ cat >refused-events.def <<'EOF'
  > viewer_opened
  > viewer_opened;json;opened;0
  > viewer_opened;json;again;0
  > nox_user_connect;json;connected;0
  > EOF
  $ vmetrics catalogue lint --event-definitions refused-events.def
  refused-events.def:1: refused: 1 of the four fields "ID;type;name;private", empty ones not counted
  refused-events.def:3: refused: the event ID viewer_opened is taken by opened (json), defined at refused-events.def:2
  refused-events.def:4: refused: the event ID nox_user_connect is taken by vmConnect (json), built in
  4 definitions: 3 refused, 0 with surprises
  [1]

An ID may become another than is written:

  $ cat >ids.def <<'EOF'
  > 302645266x;int;trailing;0
  > 302645267 FPS;int;words;0
  > 4597612564;int;wide;0
  > 3000000000;int;unsigned;0
  > 99999999999999999999;int;huge;0
  > -302645266;int;negative;0
  > -4294967301;int;low;0
  > 302841877;int;side;0
  > 420085781;int;group;0
  > 1073807381;int;both;0
  > 7;int;small;0
  > EOF
  $ vmetrics catalogue lint --definitions ids.def
  ids.def:1: surprise: what follows the number 302645266 does not count: "x"
  ids.def:1: stored: ID 302645266 (0x120A0012), type "int", name "trailing", private "0"
  ids.def:2: surprise: what follows the number 302645267 does not count: "FPS"
  ids.def:2: stored: ID 302645267 (0x120A0013), type "int", name "words", private "0"
  ids.def:3: surprise: of the ID 4597612564 only the low 32 bits count, which are 302645268
  ids.def:3: stored: ID 302645268 (0x120A0014), type "int", name "wide", private "0"
  ids.def:4: surprise: the ID 3000000000 is beyond 31 bits: metrics lines show it as -1294967296
  ids.def:4: stored: ID -1294967296 (0xB2D05E00), type "int", name "unsigned", private "0"
  ids.def:5: surprise: the ID 99999999999999999999 is beyond 64 bits and counts as 9223372036854775807, of which the low 32 bits are -1
  ids.def:5: stored: ID -1 (0xFFFFFFFF), type "int", name "huge", private "0"
  ids.def:6: surprise: the ID -302645266 is negative: in a record it is 0xEDF5FFEE
  ids.def:6: stored: ID -302645266 (0xEDF5FFEE), type "int", name "negative", private "0"
  ids.def:7: surprise: of the ID -4294967301 only the low 32 bits count, which are -5
  ids.def:7: surprise: the ID -4294967301 is negative: in a record it is 0xFFFFFFFB
  ids.def:7: stored: ID -5 (0xFFFFFFFB), type "int", name "low", private "0"
  ids.def:8: surprise: the ID 0x120D0015 does not follow the convention: the side 0x0D is neither 0x0B (client) nor 0x0A (server)
  ids.def:8: stored: ID 302841877 (0x120D0015), type "int", name "side", private "0"
  ids.def:9: surprise: the ID 0x190A0015 does not follow the convention: the group 0x19 is none of the built-in metrics'
  ids.def:9: stored: ID 420085781 (0x190A0015), type "int", name "group", private "0"
  ids.def:10: surprise: the ID 0x40010015 does not follow the convention: the group 0x40 is none of the built-in metrics', the side 0x01 is neither 0x0B (client) nor 0x0A (server)
  ids.def:10: stored: ID 1073807381 (0x40010015), type "int", name "both", private "0"
  ids.def:11: surprise: the ID 0x00000007 does not follow the convention: the group 0x00 is none of the built-in metrics', the side 0x00 is neither 0x0B (client) nor 0x0A (server)
  ids.def:11: stored: ID 7 (0x00000007), type "int", name "small", private "0"
  11 definitions: 0 refused, 11 with surprises
  [1]

Fields may become others, and stand for something else:

  $ cat >fields.def <<'EOF'
  > ;302645266;;int;empty;;1
  > 302645267;int;fifth;0;a comment
  >  302645268 ; int; a name;0 
  > 302645269;Int;type;0
  > 302645270;int;flag;yes
  > 302645271;int;flag2;01
  > 302645272;int;displayFPS;0
  > 302710808;string;displayFPS;0
  > 302645273;int;fifth;0
  > EOF
  $ vmetrics catalogue lint --definitions fields.def
  fields.def:1: surprise: an empty field does not count: those behind it move forward
  fields.def:1: stored: ID 302645266 (0x120A0012), type "int", name "empty", private "1"
  fields.def:2: surprise: what follows the fourth field is ignored: "a comment"
  fields.def:2: stored: ID 302645267 (0x120A0013), type "int", name "fifth", private "0"
  fields.def:3: surprise: blanks around the ID are ignored: " 302645268 "
  fields.def:3: surprise: blanks around the type belong to it: " int"
  fields.def:3: surprise: blanks around the name belong to it: " a name"
  fields.def:3: surprise: blanks around the flag belong to it: "0 "
  fields.def:3: surprise: the type " int" is none of string, int, uint64_t, int64_t, double, bool, enum, json: such a value is written as {}
  fields.def:3: surprise: the flag "0 " is neither 0 nor 1: only 1 makes a metric private
  fields.def:3: stored: ID 302645268 (0x120A0014), type " int", name " a name", private "0 "
  fields.def:4: surprise: the type "Int" is none of string, int, uint64_t, int64_t, double, bool, enum, json: such a value is written as {}
  fields.def:4: stored: ID 302645269 (0x120A0015), type "Int", name "type", private "0"
  fields.def:5: surprise: the flag "yes" is neither 0 nor 1: only 1 makes a metric private
  fields.def:5: stored: ID 302645270 (0x120A0016), type "int", name "flag", private "yes"
  fields.def:6: surprise: the flag "01" is neither 0 nor 1: only 1 makes a metric private
  fields.def:6: stored: ID 302645271 (0x120A0017), type "int", name "flag2", private "01"
  fields.def:7: surprise: the name "displayFPS" is also that of 0x120A0001 (int), built in
  fields.def:7: stored: ID 302645272 (0x120A0018), type "int", name "displayFPS", private "0"
  fields.def:8: surprise: the name "displayFPS" is also that of 0x120A0001 (int), built in
  fields.def:8: stored: ID 302710808 (0x120B0018), type "string", name "displayFPS", private "0"
  fields.def:9: surprise: the name "fifth" is also that of 0x120A0013 (int), defined at fields.def:2
  fields.def:9: stored: ID 302645273 (0x120A0019), type "int", name "fifth", private "0"
  9 definitions: 0 refused, 9 with surprises
  [1]
  $ cat >events.def <<'EOF'
  >  viewer_opened;json;opened;0
  > viewer_opened;json;opened;0
  > viewer_closed;json;vmConnect;0
  > EOF
  $ printf '%0129d;json;long;0\n' 1 >>events.def
  $ vmetrics catalogue lint --event-definitions events.def
  events.def:1: surprise: blanks around the ID belong to it: " viewer_opened"
  events.def:1: stored: ID " viewer_opened", type "json", name "opened", private "0"
  events.def:2: surprise: the name "opened" is also that of " viewer_opened", defined at events.def:1
  events.def:2: stored: ID "viewer_opened", type "json", name "opened", private "0"
  events.def:3: surprise: the name "vmConnect" is also that of "nox_user_connect", built in
  events.def:3: stored: ID "viewer_closed", type "json", name "vmConnect", private "0"
  events.def:4: surprise: the event ID has 129 bytes, a record has room for 128
  events.def:4: stored: ID "000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000001", type "json", name "long", private "0"
  4 definitions: 0 refused, 4 with surprises
  [1]

Bytes that do not belong into such a file:

  $ printf '\357\273\277302645266;int;marked;0\r\n302645267;int;return;1\r\n' >bytes.def
  $ printf '302645268;int;nul;0\0;1\n302645269;int;\377\376;0\n302645270;int;\033[2J;0' >>bytes.def
  $ vmetrics catalogue lint --definitions bytes.def
  bytes.def:1: refused: the ID "\xef\xbb\xbf302645266" is not a decimal number (esc)
  bytes.def:1: surprise: the file begins with a byte order mark, which is part of the ID
  bytes.def:1: surprise: the line ends in CR LF: who cuts at LF alone passes the CR on to the library
  bytes.def:2: surprise: the line ends in CR LF: who cuts at LF alone passes the CR on to the library
  bytes.def:2: stored: ID 302645267 (0x120A0013), type "int", name "return", private "1\r"
  bytes.def:3: surprise: a NUL byte ends the definition; bytes behind it that do not count: 2
  bytes.def:3: stored: ID 302645268 (0x120A0014), type "int", name "nul", private "0"
  bytes.def:4: surprise: bytes that are not UTF-8 become U+FFFD in metrics lines
  bytes.def:4: stored: ID 302645269 (0x120A0015), type "int", name "\xef\xbf\xbd\xef\xbf\xbd", private "0" (esc)
  bytes.def:5: surprise: control characters are written as escapes in metrics lines
  bytes.def:5: stored: ID 302645270 (0x120A0016), type "int", name "\u001b[2J", private "0"
  5 definitions: 1 refused, 4 with surprises
  [1]
  $ printf '\357\273\277viewer_opened;json;opened;0\n' >marked.def
  $ vmetrics catalogue lint --event-definitions marked.def
  marked.def:1: surprise: the file begins with a byte order mark, which is part of the ID
  marked.def:1: stored: ID "\xef\xbb\xbfviewer_opened", type "json", name "opened", private "0" (esc)
  1 definition: 0 refused, 1 with surprises
  [1]
  $ { head -c 5000000 /dev/zero | tr '\0' x; echo; cat good.def; } >long.def
  $ vmetrics catalogue lint --definitions long.def
  long.def:1: refused: the line has more than 4194304 bytes
  4 definitions: 1 refused, 0 with surprises
  [1]
  $ head -c 100000 /dev/zero >zero.def
  $ vmetrics catalogue lint --definitions zero.def
  zero.def:1: refused: 0 of the four fields "ID;type;name;private", empty ones not counted
  zero.def:1: surprise: a NUL byte ends the definition; bytes behind it that do not count: 99999
  1 definition: 1 refused, 0 with surprises
  [1]
  $ printf '302645266;int;\033[2J;0\n302645266;int;a;0\n' >'odd
  > name.def'
  $ vmetrics catalogue lint --definitions 'odd
  > name.def'
  odd\nname.def:1: surprise: control characters are written as escapes in metrics lines
  odd\nname.def:1: stored: ID 302645266 (0x120A0012), type "int", name "\u001b[2J", private "0"
  odd\nname.def:2: refused: the ID 302645266 (0x120A0012) is taken by \u001b[2J (int), defined at odd\nname.def:1
  2 definitions: 1 refused, 1 with surprises
  [1]

For programs, with a name for each rule:

  $ head -n 2 fields.def | vmetrics catalogue lint --definitions - --format json
  [
  {"file":"standard input","line":1,"severity":"surprise","rule":"empty-field","reason":"an empty field does not count: those behind it move forward","stored":{"eventId":"302645266","hexadecimal":"0x120A0012","type":"int","name":"empty","private":"1"}},
  {"file":"standard input","line":2,"severity":"surprise","rule":"fifth-field","reason":"what follows the fourth field is ignored: \"a comment\"","stored":{"eventId":"302645267","hexadecimal":"0x120A0013","type":"int","name":"fifth","private":"0"}}
  ]
  [1]
  $ vmetrics catalogue lint --event-definitions refused-events.def --format json
  [
  {"file":"refused-events.def","line":1,"severity":"refused","rule":"refused","reason":"1 of the four fields \"ID;type;name;private\", empty ones not counted"},
  {"file":"refused-events.def","line":3,"severity":"refused","rule":"refused","reason":"the event ID viewer_opened is taken by opened (json), defined at refused-events.def:2"},
  {"file":"refused-events.def","line":4,"severity":"refused","rule":"refused","reason":"the event ID nox_user_connect is taken by vmConnect (json), built in"}
  ]
  [1]
  $ vmetrics catalogue lint --definitions ids.def --definitions fields.def --definitions bytes.def \
  >   --event-definitions events.def --definitions long.def --definitions refused.def \
  >   --format json | sed -n 's/.*"rule":"\([^"]*\)".*/\1/p' | sort -u
  blanks
  byte-order-mark
  carriage-return
  control-character
  empty-field
  event-id-length
  fifth-field
  flag
  id-convention
  id-negative
  id-range
  id-trailing
  line-length
  name-clash
  not-utf8
  nul
  refused
  type

A file that cannot be read is trouble, the others are read:

  $ vmetrics catalogue lint --definitions nowhere.def --event-definitions marked.def
  vmetrics: nowhere.def: No such file or directory
  marked.def:1: surprise: the file begins with a byte order mark, which is part of the ID
  marked.def:1: stored: ID "\xef\xbb\xbfviewer_opened", type "json", name "opened", private "0" (esc)
  1 definition: 0 refused, 1 with surprises
  [2]
  $ gzip <fields.def | head -c 80 | vmetrics catalogue lint --definitions - --format json
  [
  {"file":"standard input","line":1,"severity":"surprise","rule":"empty-field","reason":"an empty field does not count: those behind it move forward","stored":{"eventId":"302645266","hexadecimal":"0x120A0012","type":"int","name":"empty","private":"1"}},
  {"file":"standard input","line":2,"severity":"surprise","rule":"fifth-field","reason":"what follows the fourth field is ignored: \"a comment\"","stored":{"eventId":"302645267","hexadecimal":"0x120A0013","type":"int","name":"fifth","private":"0"}}vmetrics: standard input: the compressed data ends too early
  
  ]
  [2]

Colours, on a terminal alone:

  $ TERM=xterm script -qec 'vmetrics catalogue lint --event-definitions refused-events.def' \
  >   /dev/null </dev/null | tr -d '\r' | sed 's/\x1b/ESC/g'
  refused-events.def:1: ESC[31mrefusedESC[0m: 1 of the four fields "ID;type;name;private", empty ones not counted
  refused-events.def:3: ESC[31mrefusedESC[0m: the event ID viewer_opened is taken by opened (json), defined at refused-events.def:2
  refused-events.def:4: ESC[31mrefusedESC[0m: the event ID nox_user_connect is taken by vmConnect (json), built in
  4 definitions: 3 refused, 0 with surprises

Wrong usage:

  $ vmetrics catalogue lint
  vmetrics: catalogue lint needs a file, --definitions FILE or --event-definitions FILE; see vmetrics catalogue lint --help
  [2]
  $ vmetrics catalogue lint good.def
  vmetrics: not understood: good.def; see vmetrics catalogue lint --help
  [2]
  $ vmetrics catalogue --definitions good.def lint
  vmetrics: --definitions stands in front of lint, whose options stand behind it; see vmetrics catalogue lint --help
  [2]
  $ vmetrics catalogue lint --definitions good.def --format csv
  vmetrics: --format: "csv" is none of text, json; see vmetrics catalogue lint --help
  [2]

  $ vmetrics catalogue lint --help
  Tells which definitions are refused or surprise
  Usage: vmetrics catalogue lint [OPTIONS]
  
  Options:
    -h,--help                   Print this help message and exit
    --definitions FILE          Add the metrics of FILE, "ID;type;name;private" a
                                line; may be repeated
    --event-definitions FILE    The same for metrics with an event ID
    --format FORMAT             text, json; without this option text
  
  Exit status: 0; 1 if there is something to say; 2 in trouble.
  
  Example:
    vmetrics catalogue lint --definitions viewer.def --event-definitions viewer-events.def
