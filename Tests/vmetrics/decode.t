The time of a line is that of its rendering; it is left out of what follows:

  $ decode() {
  >   vmetrics decode "$@" >lines 2>&1
  >   status=$?
  >   sed 's/"timestamp":[0-9]*/"timestamp":TICK/' lines
  >   return $status
  > }

The library's example, byte by byte:

  $ printf '\007\000\000\000\001\000\013\022\004\000\000\000\074\000\000\000' >one.bin
  $ decode one.bin
  {"eventId":"302710785","timestamp":TICK,"moduleId":4619,"terminalId":"7","args":{"displayFPS":60}}

A record of each type, from a file, from standard input, compressed, and in a row:

  $ for record in "302645249 60" "302645253 1920x1080" "789184515 41.5" "302645256 3" \
  >     "537526275 true" "654966786 5368709120" "302645257 {\"average\":8200,\"peak\":12400}"; do
  >   vmetrics encode --terminal 7 $record
  > done >all.bin
  $ decode all.bin
  {"eventId":"302645249","timestamp":TICK,"moduleId":4618,"terminalId":"7","args":{"displayFPS":60}}
  {"eventId":"302645253","timestamp":TICK,"moduleId":4618,"terminalId":"7","args":{"displayResolution":"1920x1080"}}
  {"eventId":"789184515","timestamp":TICK,"moduleId":12042,"terminalId":"7","args":{"memoryUage":41.5}}
  {"eventId":"302645256","timestamp":TICK,"moduleId":4618,"terminalId":"7","args":{"displayEncoderType":"3"}}
  {"eventId":"537526275","timestamp":TICK,"moduleId":8202,"terminalId":"7","args":{"displayFirstFrameOrReconnect":true}}
  {"eventId":"654966786","timestamp":TICK,"moduleId":9994,"terminalId":"7","args":{"fileshareFileSize":5368709120}}
  {"eventId":"302645257","timestamp":TICK,"moduleId":4618,"terminalId":"7","args":{"average":8200,"peak":12400}}
  $ decode --numeric <all.bin | tail -n 1
  {"eventId":"302645257","timestamp":TICK,"moduleId":4618,"terminalId":"7","args":{"average":8200,"peak":12400}}
  $ gzip -k all.bin
  $ decode all.bin.gz | head -n 1
  {"eventId":"302645249","timestamp":TICK,"moduleId":4618,"terminalId":"7","args":{"displayFPS":60}}
  $ decode one.bin - one.bin <one.bin
  {"eventId":"302710785","timestamp":TICK,"moduleId":4619,"terminalId":"7","args":{"displayFPS":60}}
  {"eventId":"302710785","timestamp":TICK,"moduleId":4619,"terminalId":"7","args":{"displayFPS":60}}
  {"eventId":"302710785","timestamp":TICK,"moduleId":4619,"terminalId":"7","args":{"displayFPS":60}}

Records with event IDs:

  $ vmetrics encode nox_user_connect '{"isSuccess":1}' --terminal -1 --type 2 --user alice \
  >   --transaction order-7 --business-type connect --service zelviewer >event.bin
  $ decode --string event.bin
  {"eventId":"nox_user_connect","timestamp":TICK,"terminalId":"-1","type":"2","transactionId":"order-7","businessType":"connect","serviceName":"zelviewer","userName":"alice","args":{"isSuccess":1}}

Messages:

  $ vmetrics encode --message 302645249 60 >message.bin
  $ decode --message message.bin
  {"eventId":"302645249","timestamp":TICK,"moduleId":4618,"terminalId":"0","args":{"displayFPS":60}}

Nothing and no value are no faults:

  $ decode /dev/null
  $ vmetrics encode 302645249 --raw '' | decode
  {"eventId":"302645249","timestamp":TICK,"moduleId":4618,"terminalId":"0","args":{"displayFPS":0}}

A record whose ID is unknown goes out without args. It is told where it stands, and decoding goes
on; likewise one whose JSON is none:

  $ vmetrics encode 2131427329 --raw 01 >unknown.bin
  $ vmetrics encode 302645257 --raw 7b2261223a7d >bad.bin
  $ cat one.bin unknown.bin bad.bin one.bin >faults.bin
  $ decode faults.bin
  {"eventId":"302710785","timestamp":TICK,"moduleId":4619,"terminalId":"7","args":{"displayFPS":60}}
  {"eventId":"2131427329","timestamp":TICK,"moduleId":32523,"terminalId":"0"}
  vmetrics: faults.bin: record 2 at byte 16 has no args, as ID 2131427329 (0x7F0B0001) is not in the catalogue
  {"eventId":"302645257","timestamp":TICK,"moduleId":4618,"terminalId":"0"}
  vmetrics: faults.bin: record 3 at byte 29 has no args, as the value of displayBITRate is not JSON: a value is missing at byte 5 of it, '}'
  {"eventId":"302710785","timestamp":TICK,"moduleId":4619,"terminalId":"7","args":{"displayFPS":60}}
  [1]
  $ vmetrics encode nobody --raw 01 | decode --string
  {"eventId":"nobody","timestamp":TICK,"terminalId":"0","type":"0","transactionId":"","businessType":"","serviceName":"","userName":""}
  vmetrics: standard input: record 1 at byte 0 has no args, as ID "nobody" is not in the catalogue
  [1]
  $ vmetrics encode nox_user_connect --raw 5b | decode --string
  {"eventId":"nox_user_connect","timestamp":TICK,"terminalId":"0","type":"0","transactionId":"","businessType":"","serviceName":"","userName":""}
  vmetrics: standard input: record 1 at byte 0 has no args, as the value of vmConnect is not JSON: a value is missing at byte 1 of it, where it ends
  [1]

Unless its definition is named:

  $ echo '2131427329;bool;isThere;0' >numbers
  $ echo 'nobody;string;who;1' >events
  $ decode --definitions numbers unknown.bin
  {"eventId":"2131427329","timestamp":TICK,"moduleId":32523,"terminalId":"0","args":{"isThere":true}}
  $ vmetrics encode --event-definitions events nobody me | decode --string --event-definitions events
  {"eventId":"nobody","timestamp":TICK,"terminalId":"0","type":"0","transactionId":"","businessType":"","serviceName":"","userName":"","args":{"who":"me"}}
  $ echo '302645249;int;taken;0' >taken
  $ decode --definitions taken one.bin
  vmetrics: taken:1: the ID 302645249 (0x120A0001) is taken by displayFPS (int)
  {"eventId":"302710785","timestamp":TICK,"moduleId":4619,"terminalId":"7","args":{"displayFPS":60}}
  [2]
  $ decode --definitions missing one.bin
  vmetrics: missing: No such file or directory
  [2]

A value of one byte more than is rendered:

  $ { printf '\007\000\000\000\005\000\012\022\000\000\001\000'; head -c 65536 /dev/zero; } >long.bin
  $ cat long.bin one.bin | decode
  vmetrics: standard input: record 1 at byte 0 is not rendered, as it announces 65536 bytes of value; 65535 are the most
  {"eventId":"302710785","timestamp":TICK,"moduleId":4619,"terminalId":"7","args":{"displayFPS":60}}
  [1]

A length beyond that is taken for none, as nothing tells where the next record begins:

  $ printf '\007\000\000\000\005\000\012\022\001\000\001\000' >lost.bin
  $ cat one.bin lost.bin one.bin one.bin >stop.bin
  $ decode stop.bin one.bin
  {"eventId":"302710785","timestamp":TICK,"moduleId":4619,"terminalId":"7","args":{"displayFPS":60}}
  vmetrics: stop.bin: record 2 at byte 16 announces 65537 bytes of value, which is no length: where the next record begins is unknown
  {"eventId":"302710785","timestamp":TICK,"moduleId":4619,"terminalId":"7","args":{"displayFPS":60}}
  [1]
  $ vmetrics encode nox_user_connect '{}' | head -c 392 >lost.event
  $ printf '\377\377\377\377' >>lost.event
  $ decode --string lost.event
  vmetrics: lost.event: record 1 at byte 0 announces 4294967295 bytes of value, which is no length: where the next record begins is unknown
  [1]

A record that is cut short:

  $ for size in 17 18 27 28 29 31; do cat one.bin one.bin | head -c $size | decode; done
  {"eventId":"302710785","timestamp":TICK,"moduleId":4619,"terminalId":"7","args":{"displayFPS":60}}
  vmetrics: standard input: record 2 at byte 16 is cut short: of its header of 12 bytes there is 1
  {"eventId":"302710785","timestamp":TICK,"moduleId":4619,"terminalId":"7","args":{"displayFPS":60}}
  vmetrics: standard input: record 2 at byte 16 is cut short: of its header of 12 bytes there are 2
  {"eventId":"302710785","timestamp":TICK,"moduleId":4619,"terminalId":"7","args":{"displayFPS":60}}
  vmetrics: standard input: record 2 at byte 16 is cut short: of its header of 12 bytes there are 11
  {"eventId":"302710785","timestamp":TICK,"moduleId":4619,"terminalId":"7","args":{"displayFPS":60}}
  vmetrics: standard input: record 2 at byte 16 is cut short: of its value of 4 bytes there are 0
  {"eventId":"302710785","timestamp":TICK,"moduleId":4619,"terminalId":"7","args":{"displayFPS":60}}
  vmetrics: standard input: record 2 at byte 16 is cut short: of its value of 4 bytes there is 1
  {"eventId":"302710785","timestamp":TICK,"moduleId":4619,"terminalId":"7","args":{"displayFPS":60}}
  vmetrics: standard input: record 2 at byte 16 is cut short: of its value of 4 bytes there are 3
  [1]
  $ head -c 35 message.bin | decode --message
  vmetrics: standard input: record 1 at byte 0 is cut short: of its header of 36 bytes there are 35
  [1]
  $ decode --string one.bin
  vmetrics: one.bin: record 1 at byte 0 is cut short: of its header of 396 bytes there are 16
  [1]

What is no record at all is mostly cut short or lost:

  $ echo 'this is no record' | decode
  vmetrics: standard input: record 1 at byte 0 announces 1914728302 bytes of value, which is no length: where the next record begins is unknown
  [1]

Files that cannot be read; the others are:

  $ mkdir directory
  $ head -c 20 all.bin.gz >cut.gz
  $ decode directory missing cut.gz one.bin
  vmetrics: directory: Is a directory
  vmetrics: missing: No such file or directory
  vmetrics: cut.gz: the compressed data ends too early
  {"eventId":"302710785","timestamp":TICK,"moduleId":4619,"terminalId":"7","args":{"displayFPS":60}}
  [2]

File names are taken as they stand:

  $ cp one.bin '[one,two]'
  $ decode '[one,two]'
  {"eventId":"302710785","timestamp":TICK,"moduleId":4619,"terminalId":"7","args":{"displayFPS":60}}

Wrong usage:

  $ vmetrics decode --numeric --string one.bin
  vmetrics: decode takes one of --numeric, --string and --message; see vmetrics decode --help
  [2]
  $ vmetrics decode --string --message one.bin
  vmetrics: decode takes one of --numeric, --string and --message; see vmetrics decode --help
  [2]
  $ vmetrics decode --unknown
  vmetrics: not understood: --unknown; see vmetrics decode --help
  [2]

A full disk:

  $ vmetrics decode one.bin >/dev/full
  vmetrics: standard output: No space left on device
  [2]

Help:

  $ vmetrics decode --help
  Shows packed records as the lines that the library makes of them
  Usage: vmetrics decode [OPTIONS] [file...]
  
  Positionals:
    file FILE ...               Packed records one after the other, plain or
                                compressed by gzip; - or none is standard input
  
  Options:
    -h,--help                   Print this help message and exit
    --numeric                   The records have numeric IDs (VMetricsData); the
                                default
    --string                    The records have event IDs (VMetricsDataString)
    --message                   The records are IPC messages (VMessage) that carry
                                one with a numeric ID each
    --hex                       The input is hexadecimal digits, with white space
                                anywhere and comments from # to the end of a line
    --explain                   Show each field with its offset, bytes and
                                meaning, then the line, then why there is none or
                                what it lacks
    --definitions FILE          Add the metrics of FILE, "ID;type;name;private" a
                                line; may be repeated
    --event-definitions FILE    The same for metrics with an event ID
  
  Example:
    vmetrics encode 302645249 60 | vmetrics decode --explain
