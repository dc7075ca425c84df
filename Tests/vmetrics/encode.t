A record as the library's documents show it:

  $ vmetrics encode 302710785 60 --terminal 7 | od -An -tx1
   07 00 00 00 01 00 0b 12 04 00 00 00 3c 00 00 00
  $ vmetrics encode 0x120B0001 60 --terminal 7 --hex
  07 00 00 00              # terminalId: 7
  01 00 0b 12              # eventId: 302710785 = 0x120B0001; moduleId 4619: group 0x12 (display), side 0x0B (client); index 1; displayFPS: int, not private
  04 00 00 00              # dataLength: 4
  3c 00 00 00              # data: 60
  

Several values make several records:

  $ vmetrics encode --hex 302645249 60 -1
  00 00 00 00              # terminalId: 0
  01 00 0a 12              # eventId: 302645249 = 0x120A0001; moduleId 4618: group 0x12 (display), side 0x0A (server); index 1; displayFPS: int, not private
  04 00 00 00              # dataLength: 4
  3c 00 00 00              # data: 60
  
  00 00 00 00              # terminalId: 0
  01 00 0a 12              # eventId: 302645249 = 0x120A0001; moduleId 4618: group 0x12 (display), side 0x0A (server); index 1; displayFPS: int, not private
  04 00 00 00              # dataLength: 4
  ff ff ff ff              # data: -1
  

A record with an event ID:

  $ vmetrics encode --hex nox_user_connect '{"isSuccess":1}' --terminal -1 --type 2 --user alice \
  >   --transaction order-7 --business-type connect --service zelviewer
  ff ff ff ff                                      # terminalId: 4294967295, rendered as -1
  02 00 00 00                                      # type: 2, of a client's connecting
  6e 6f 78 5f 75 73 65 72 5f 63 6f 6e 6e 65 63 74  # eventId: "nox_user_connect"; vmConnect: json, not private
  00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00
  00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00
  00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00
  00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00
  00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00
  00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00
  00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00
  61 6c 69 63 65 00 00 00 00 00 00 00 00 00 00 00  # userName: "alice"
  00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00
  00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00
  00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00
  00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00
  00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00
  00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00
  00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00
  6f 72 64 65 72 2d 37 00 00 00 00 00 00 00 00 00  # transactionId: "order-7"
  00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00
  00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00
  00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00
  63 6f 6e 6e 65 63 74 00 00 00 00 00 00 00 00 00  # businessType: "connect"
  00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00
  7a 65 6c 76 69 65 77 65 72 00 00 00 00 00 00 00  # serviceName: "zelviewer"
  00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00
  0f 00 00 00                                      # dataLength: 15
  7b 22 69 73 53 75 63 63 65 73 73 22 3a 31 7d     # data: "{"isSuccess":1}"
  

A message:

  $ vmetrics encode --hex --message 302645249 60 --source-module 0x120A --destination-module -1 \
  >   --message-type 17
  00 00 00 00              # reserved0: not read
  0a 12 00 00              # srcModuleId: 4618
  00 00 00 00              # reserved8: not read
  ff ff ff ff              # dstModuleId: -1
  11 00 00 00              # msgType: 17
  00 00 00 00              # reserved20: not read
  00 00 00 00              # terminalId: 0
  01 00 0a 12              # eventId: 302645249 = 0x120A0001; moduleId 4618: group 0x12 (display), side 0x0A (server); index 1; displayFPS: int, not private
  04 00 00 00              # dataLength: 4
  3c 00 00 00              # data: 60
  

What is encoded decodes to the same, each type at its limits. Values are taken as they stand:

  $ there_and_back() {
  >   vmetrics encode "$@" | vmetrics decode | sed 's/.*"args"://; s/}$//'
  >   vmetrics encode --hex "$@" | vmetrics decode --hex | sed 's/.*"args"://; s/}$//' >by_hex
  >   vmetrics encode "$@" | vmetrics decode | sed 's/.*"args"://; s/}$//' | cmp - by_hex
  > }
  $ there_and_back 302645249 2147483647 -2147483648
  {"displayFPS":2147483647}
  {"displayFPS":-2147483648}
  $ there_and_back 654966786 0 18446744073709551615
  {"fileshareFileSize":0}
  {"fileshareFileSize":18446744073709551615}
  $ echo '5;int64_t;big;0' >definitions
  $ vmetrics encode --definitions definitions 5 9223372036854775807 -9223372036854775808 |
  >   vmetrics decode --definitions definitions | sed 's/.*"args"://; s/}$//'
  {"big":9223372036854775807}
  {"big":-9223372036854775808}
  $ there_and_back 789184515 41.5 1e-300 0.1 -- -0 nan -inf
  {"memoryUage":41.5}
  {"memoryUage":1e-300}
  {"memoryUage":0.1}
  {"memoryUage":-0}
  {"memoryUage":null}
  {"memoryUage":null}
  $ there_and_back 537526275 true false 1 0
  {"displayFirstFrameOrReconnect":true}
  {"displayFirstFrameOrReconnect":false}
  {"displayFirstFrameOrReconnect":true}
  {"displayFirstFrameOrReconnect":false}
  $ there_and_back 302645256 3 -1
  {"displayEncoderType":"3"}
  {"displayEncoderType":"-1"}
  $ there_and_back 302645253 1920x1080 '' 'ein Wort, "zwei"' '[1,2]' '{}' check 中 -- --hex
  {"displayResolution":"1920x1080"}
  {"displayResolution":""}
  {"displayResolution":"ein Wort, \"zwei\""}
  {"displayResolution":"[1,2]"}
  {"displayResolution":"{}"}
  {"displayResolution":"check"}
  {"displayResolution":"\xe4\xb8\xad"} (esc)
  {"displayResolution":"--hex"}
  $ there_and_back 302645257 '[1,2]' '{}' ' { "a" : 1e400 } ' null
  [1,2]
  {}
  {"a":1e400}
  null

Bytes are taken as they stand, whatever the catalogue says:

  $ vmetrics encode 302645249 --raw 3c --raw '' --raw '3c 00 00 00 ff' --hex
  00 00 00 00              # terminalId: 0
  01 00 0a 12              # eventId: 302645249 = 0x120A0001; moduleId 4618: group 0x12 (display), side 0x0A (server); index 1; displayFPS: int, not private
  01 00 00 00              # dataLength: 1
  3c                       # data: 60; 1 byte, shorter than its type (int has 4): zeros are added
  
  00 00 00 00              # terminalId: 0
  01 00 0a 12              # eventId: 302645249 = 0x120A0001; moduleId 4618: group 0x12 (display), side 0x0A (server); index 1; displayFPS: int, not private
  00 00 00 00              # dataLength: 0
                           # data: 0; no bytes, shorter than its type (int has 4): zeros are added
  
  00 00 00 00              # terminalId: 0
  01 00 0a 12              # eventId: 302645249 = 0x120A0001; moduleId 4618: group 0x12 (display), side 0x0A (server); index 1; displayFPS: int, not private
  05 00 00 00              # dataLength: 5
  3c 00 00 00 ff           # data: 60; 5 bytes, longer than its type (int has 4): the rest is unread
  
  $ vmetrics encode 2131427329 --raw ff | od -An -tx1
   00 00 00 00 01 00 0b 7f 01 00 00 00 ff
  $ vmetrics encode nobody --raw ff --hex | grep -v '^00'
  6e 6f 62 6f 64 79 00 00 00 00 00 00 00 00 00 00  # eventId: "nobody"; not in the catalogue
  01 00 00 00                                      # dataLength: 1
  ff                                               # data: 1 byte of unknown type
  

An event ID may look like a number:

  $ echo '302645249;string;odd;0' >events
  $ vmetrics encode --event-definitions events --string 302645249 x | wc -c
  397
  $ vmetrics encode --event-definitions events 302645249 1 | wc -c
  16

Values that are none of their type:

  $ vmetrics encode 302645249 2147483648
  vmetrics: "2147483648" is no int, as 302645249 needs it: a whole number from -2147483648 to 2147483647; see vmetrics encode --help
  [2]
  $ vmetrics encode 302645249 1 2 x
  vmetrics: "x" is no int, as 302645249 needs it: a whole number from -2147483648 to 2147483647; see vmetrics encode --help
  [2]
  $ vmetrics encode 302645249 ''
  vmetrics: "" is no int, as 302645249 needs it: a whole number from -2147483648 to 2147483647; see vmetrics encode --help
  [2]
  $ vmetrics encode 654966786 -1
  vmetrics: "-1" is no uint64_t, as 654966786 needs it: a whole number from 0 to 18446744073709551615; see vmetrics encode --help
  [2]
  $ vmetrics encode --definitions definitions 5 9223372036854775808
  vmetrics: "9223372036854775808" is no int64_t, as 5 needs it: a whole number from -9223372036854775808 to 9223372036854775807; see vmetrics encode --help
  [2]
  $ vmetrics encode 789184515 1e999
  vmetrics: "1e999" is no double, as 789184515 needs it: a number within the range of 64 bits; see vmetrics encode --help
  [2]
  $ vmetrics encode 537526275 yes
  vmetrics: "yes" is no bool, as 537526275 needs it: true, false, 1 or 0; see vmetrics encode --help
  [2]
  $ vmetrics encode 302645256 1.5
  vmetrics: "1.5" is no enum, as 302645256 needs it: a whole number from -2147483648 to 2147483647; see vmetrics encode --help
  [2]
  $ vmetrics encode 302645257 '{"a":}'
  vmetrics: "{"a":}" is no json, as 302645257 needs it: a value is missing at byte 5 of it, '}'; see vmetrics encode --help
  [2]
  $ vmetrics encode 302645257 '{"a":1'
  vmetrics: "{"a":1" is no json, as 302645257 needs it: a comma or } is missing at byte 6 of it, where it ends; see vmetrics encode --help
  [2]
  $ vmetrics encode 302645257 "[$(head -c 300 /dev/zero | tr '\0' 1)"
  vmetrics: "[11111111111111111111111111111111111111111111111111111111111111111111111111111111111111111111111111~" is no json, as 302645257 needs it: a comma or ] is missing at byte 301 of it, where it ends; see vmetrics encode --help
  [2]
  $ echo '6;blob;odd;0' >types
  $ vmetrics encode --definitions types 6 x
  vmetrics: 6 is of type "blob", which has no values; --raw gives bytes instead; see vmetrics encode --help
  [2]

Metrics that the catalogue does not have:

  $ vmetrics encode 2131427329 1
  vmetrics: there is no metric "2131427329" in the catalogue, so the type of its value is unknown: name a file of --definitions, or give bytes by --raw; see vmetrics encode --help
  [2]
  $ vmetrics encode nobody 1
  vmetrics: there is no event ID "nobody" in the catalogue, so the type of its value is unknown: name a file of --event-definitions, or give bytes by --raw; see vmetrics encode --help
  [2]
  $ vmetrics encode 4294967296 1
  vmetrics: there is no event ID "4294967296" in the catalogue, so the type of its value is unknown: name a file of --event-definitions, or give bytes by --raw; see vmetrics encode --help
  [2]
  $ vmetrics encode '' 1
  vmetrics: there is no event ID "" in the catalogue, so the type of its value is unknown: name a file of --event-definitions, or give bytes by --raw; see vmetrics encode --help
  [2]
  $ vmetrics encode --definitions missing 5 1
  vmetrics: missing: No such file or directory
  [2]

Texts and values that are too long; the longest that are not:

  $ text() { head -c $1 /dev/zero | tr '\0' x; }
  $ vmetrics encode nox_user_connect '{}' --user "$(text 129)"
  vmetrics: --user has 129 bytes; its field holds 128; see vmetrics encode --help
  [2]
  $ vmetrics encode nox_user_connect '{}' --transaction "$(text 65)"
  vmetrics: --transaction has 65 bytes; its field holds 64; see vmetrics encode --help
  [2]
  $ vmetrics encode nox_user_connect '{}' --business-type "$(text 33)"
  vmetrics: --business-type has 33 bytes; its field holds 32; see vmetrics encode --help
  [2]
  $ vmetrics encode nox_user_connect '{}' --service "$(text 33)"
  vmetrics: --service has 33 bytes; its field holds 32; see vmetrics encode --help
  [2]
  $ vmetrics encode "$(text 129)" --raw 00
  vmetrics: the event ID has 129 bytes; its field holds 128; see vmetrics encode --help
  [2]
  $ vmetrics encode nox_user_connect '{}' --user "$(text 128)" --transaction "$(text 64)" \
  >   --business-type "$(text 32)" --service "$(text 32)" | wc -c
  398
  $ vmetrics encode 302645253 "$(text 65536)"
  vmetrics: a value has 65536 bytes; 65535 are the most that is rendered; see vmetrics encode --help
  [2]
  $ vmetrics encode 302645253 "$(text 65535)" | wc -c
  65547

Other wrong usage:

  $ vmetrics encode
  vmetrics: id is required; see vmetrics encode --help
  [2]
  $ vmetrics encode 302645249
  vmetrics: a value is missing; see vmetrics encode --help
  [2]
  $ vmetrics encode 302645249 1 --raw 00
  vmetrics: there are both values and --raw; see vmetrics encode --help
  [2]
  $ vmetrics encode 302645249 --raw 0x3c
  vmetrics: --raw:1:2: 'x' is no hexadecimal digit; see vmetrics encode --help
  [2]
  $ vmetrics encode 302645249 --raw 3
  vmetrics: --raw:1:1: the text ends in the middle of a byte, which has two digits; see vmetrics encode --help
  [2]
  $ vmetrics encode 302645249 1 --terminal x
  vmetrics: --terminal: "x" is no whole number from -2147483648 to 4294967295 or 0xFFFFFFFF; see vmetrics encode --help
  [2]
  $ vmetrics encode 302645249 1 --terminal 4294967296
  vmetrics: --terminal: "4294967296" is no whole number from -2147483648 to 4294967295 or 0xFFFFFFFF; see vmetrics encode --help
  [2]
  $ vmetrics encode 302645249 1 --user alice
  vmetrics: --user needs an event ID; see vmetrics encode --help
  [2]
  $ vmetrics encode 302645249 1 --source-module 1
  vmetrics: --source-module needs --message; see vmetrics encode --help
  [2]
  $ vmetrics encode nox_user_connect '{}' --message
  vmetrics: --message needs a metric with a number, not "nox_user_connect"; see vmetrics encode --help
  [2]
  $ vmetrics encode 302645249 --unknown 1
  vmetrics: not understood: --unknown; see vmetrics encode --help
  [2]

A terminal is no place for bytes:

  $ script -qec 'vmetrics encode 302645249 60' /dev/null </dev/null | tr -d '\r'
  vmetrics: a record is no text for a terminal: use --hex, or send it elsewhere; see vmetrics encode --help
  $ script -qec 'vmetrics encode --hex 302645249 60 | tail -n 2' /dev/null </dev/null | tr -d '\r'
  3c 00 00 00              # data: 60
  

A full disk:

  $ vmetrics encode 302645249 60 >/dev/full
  vmetrics: standard output: No space left on device
  [2]

Help:

  $ vmetrics encode --help
  Writes packed records, as decode reads them
  Usage: vmetrics encode [OPTIONS] id [value...]
  
  Positionals:
    id ID REQUIRED              The metric: a number in decimal or, behind 0x, in
                                hexadecimal; or an event ID
    value VALUE ...             Its value, as the metric's type asks; each makes a
                                record. Behind -- it may begin with a dash
  
  Options:
    -h,--help                   Print this help message and exit
    --raw HEX                   The value as bytes in hexadecimal, whatever the
                                metric's type and whether the catalogue has it or
                                not; may be given again
    --hex                       Write hexadecimal digits with comments, as decode
                                --hex reads them
    --string                    ID is an event ID even if it looks like a number
    --message                   Put the record into an IPC message (VMessage)
    --terminal N                The number of the terminal
    --type N                    The type code of a record with an event ID
    --user TEXT                 The user name of a record with an event ID
    --transaction TEXT          The transaction ID of a record with an event ID
    --business-type TEXT        The business type of a record with an event ID
    --service TEXT              The service name of a record with an event ID
    --source-module N           The module that sends the message
    --destination-module N      The module that the message is meant for
    --message-type N            The kind of message
    --definitions FILE          Add the metrics of FILE, "ID;type;name;private" a
                                line; may be repeated
    --event-definitions FILE    The same for metrics with an event ID
  
  Example:
    vmetrics encode 302645249 60 | vmetrics decode
