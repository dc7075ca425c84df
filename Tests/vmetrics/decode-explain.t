Each field with its offset in the input, its bytes and what they say; then the line. The time of a
line is left out here:

  $ explain() {
  >   vmetrics decode --explain "$@" >lines 2>&1
  >   status=$?
  >   sed 's/"timestamp":[0-9]*/"timestamp":TICK/' lines
  >   return $status
  > }

  $ vmetrics encode 302710785 60 --terminal 7 >one.bin
  $ explain one.bin
  one.bin: record 1 at byte 0: 16 bytes
         0  07 00 00 00              terminalId     7
         4  01 00 0b 12              eventId        302710785 = 0x120B0001
                                                    moduleId 4619: group 0x12 (display), side 0x0B (client); index 1
                                                    displayFPS: int, not private
         8  04 00 00 00              dataLength     4
        12  3c 00 00 00              data           60
  {"eventId":"302710785","timestamp":TICK,"moduleId":4619,"terminalId":"7","args":{"displayFPS":60}}
  

All that a record with an event ID has; the zeros behind a text are counted:

  $ vmetrics encode nox_user_connect '{"isSuccess":1}' --terminal -1 --type 2 --user alice \
  >   --transaction order-7 --business-type connect --service zelviewer >event.bin
  $ explain --string event.bin
  event.bin: record 1 at byte 0: 411 bytes
         0  ff ff ff ff              terminalId     4294967295, rendered as -1
         4  02 00 00 00              type           2, of a client's connecting
         8  6e 6f 78 5f 75 73 65 72  eventId        "nox_user_connect"
            5f 63 6f 6e 6e 65 63 74                 vmConnect: json, not private
            00
            +111 zeros
       136  61 6c 69 63 65 00        userName       "alice"
            +122 zeros
       264  6f 72 64 65 72 2d 37 00  transactionId  "order-7"
            +56 zeros
       328  63 6f 6e 6e 65 63 74 00  businessType   "connect"
            +24 zeros
       360  7a 65 6c 76 69 65 77 65  serviceName    "zelviewer"
            72 00
            +22 zeros
       392  0f 00 00 00              dataLength     15
       396  7b 22 69 73 53 75 63 63  data           "{"isSuccess":1}"
            65 73 73 22 3a 31 7d
  {"eventId":"nox_user_connect","timestamp":TICK,"terminalId":"-1","type":"2","transactionId":"order-7","businessType":"connect","serviceName":"zelviewer","userName":"alice","args":{"isSuccess":1}}
  

A message:

  $ vmetrics encode --message 302645249 60 --source-module 4618 --destination-module -1 \
  >   --message-type 17 | explain --message
  standard input: record 1 at byte 0: 40 bytes
         0  00 00 00 00              reserved0      not read
         4  0a 12 00 00              srcModuleId    4618
         8  00 00 00 00              reserved8      not read
        12  ff ff ff ff              dstModuleId    -1
        16  11 00 00 00              msgType        17
        20  00 00 00 00              reserved20     not read
        24  00 00 00 00              terminalId     0
        28  01 00 0a 12              eventId        302645249 = 0x120A0001
                                                    moduleId 4618: group 0x12 (display), side 0x0A (server); index 1
                                                    displayFPS: int, not private
        32  04 00 00 00              dataLength     4
        36  3c 00 00 00              data           60
  {"eventId":"302645249","timestamp":TICK,"moduleId":4618,"terminalId":"0","args":{"displayFPS":60}}
  

What the bytes of each type say:

  $ { vmetrics encode 302645253 1920x1080; vmetrics encode 789184515 41.5 -- -inf
  >   vmetrics encode 302645256 3; vmetrics encode 537526275 true
  >   vmetrics encode 654966786 5368709120; vmetrics encode 302645257 '[1]'; } >types.bin
  $ explain types.bin | grep -e data -e args
         8  09 00 00 00              dataLength     9
        12  31 39 32 30 78 31 30 38  data           "1920x1080"
  {"eventId":"302645253","timestamp":TICK,"moduleId":4618,"terminalId":"0","args":{"displayResolution":"1920x1080"}}
        29  08 00 00 00              dataLength     8
        33  00 00 00 00 00 c0 44 40  data           41.5
  {"eventId":"789184515","timestamp":TICK,"moduleId":12042,"terminalId":"0","args":{"memoryUage":41.5}}
        49  08 00 00 00              dataLength     8
        53  00 00 00 00 00 00 f0 ff  data           -inf, rendered as null
  {"eventId":"789184515","timestamp":TICK,"moduleId":12042,"terminalId":"0","args":{"memoryUage":null}}
        69  04 00 00 00              dataLength     4
        73  03 00 00 00              data           3, rendered as the text "3"
  {"eventId":"302645256","timestamp":TICK,"moduleId":4618,"terminalId":"0","args":{"displayEncoderType":"3"}}
        85  01 00 00 00              dataLength     1
        89  01                       data           true
  {"eventId":"537526275","timestamp":TICK,"moduleId":8202,"terminalId":"0","args":{"displayFirstFrameOrReconnect":true}}
        98  08 00 00 00              dataLength     8
       102  00 00 00 40 01 00 00 00  data           5368709120
  {"eventId":"654966786","timestamp":TICK,"moduleId":9994,"terminalId":"0","args":{"fileshareFileSize":5368709120}}
       118  03 00 00 00              dataLength     3
       122  5b 31 5d                 data           "[1]"
  {"eventId":"302645257","timestamp":TICK,"moduleId":4618,"terminalId":"0","args":[1]}

Values that are shorter or longer than their type, and a truth value that is neither:

  $ vmetrics encode 302645249 --raw 3c --raw 3c00000001 --raw '' | explain
  standard input: record 1 at byte 0: 13 bytes
         0  00 00 00 00              terminalId     0
         4  01 00 0a 12              eventId        302645249 = 0x120A0001
                                                    moduleId 4618: group 0x12 (display), side 0x0A (server); index 1
                                                    displayFPS: int, not private
         8  01 00 00 00              dataLength     1
        12  3c                       data           60
                                                    ! 1 byte, shorter than its type (int has 4): zeros are added
  {"eventId":"302645249","timestamp":TICK,"moduleId":4618,"terminalId":"0","args":{"displayFPS":60}}
  
  standard input: record 2 at byte 13: 17 bytes
        13  00 00 00 00              terminalId     0
        17  01 00 0a 12              eventId        302645249 = 0x120A0001
                                                    moduleId 4618: group 0x12 (display), side 0x0A (server); index 1
                                                    displayFPS: int, not private
        21  05 00 00 00              dataLength     5
        25  3c 00 00 00 01           data           60
                                                    ! 5 bytes, longer than its type (int has 4): the rest is unread
  {"eventId":"302645249","timestamp":TICK,"moduleId":4618,"terminalId":"0","args":{"displayFPS":60}}
  
  standard input: record 3 at byte 30: 12 bytes
        30  00 00 00 00              terminalId     0
        34  01 00 0a 12              eventId        302645249 = 0x120A0001
                                                    moduleId 4618: group 0x12 (display), side 0x0A (server); index 1
                                                    displayFPS: int, not private
        38  00 00 00 00              dataLength     0
        42                           data           0
                                                    ! no bytes, shorter than its type (int has 4): zeros are added
  {"eventId":"302645249","timestamp":TICK,"moduleId":4618,"terminalId":"0","args":{"displayFPS":0}}
  
  $ vmetrics encode 537526275 --raw 02 | explain | grep -A 1 data
         8  01 00 00 00              dataLength     1
        12  02                       data           true
                                                    ! neither 0 nor 1

Bytes behind the NUL of a text are not rendered; the NUL itself does no harm:

  $ vmetrics encode 302645253 --raw '61 62 00 63 64' --raw '61 62 00' | explain | grep -A 1 'data '
        12  61 62 00 63 64           data           "ab"
                                                    ! 2 bytes behind the NUL at byte 2 of it, not rendered
  --
        29  61 62 00                 data           "ab"
  {"eventId":"302645253","timestamp":TICK,"moduleId":4618,"terminalId":"0","args":{"displayResolution":"ab"}}

Only the beginning of a long value is shown:

  $ vmetrics encode 302645253 "$(head -c 300 /dev/zero | tr '\0' x)" | explain | head -n 15
  standard input: record 1 at byte 0: 312 bytes
         0  00 00 00 00              terminalId     0
         4  05 00 0a 12              eventId        302645253 = 0x120A0005
                                                    moduleId 4618: group 0x12 (display), side 0x0A (server); index 5
                                                    displayResolution: string, not private
         8  2c 01 00 00              dataLength     300
        12  78 78 78 78 78 78 78 78  data           "xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx~"
            78 78 78 78 78 78 78 78
            78 78 78 78 78 78 78 78
            78 78 78 78 78 78 78 78
            78 78 78 78 78 78 78 78
            78 78 78 78 78 78 78 78
            78 78 78 78 78 78 78 78
            78 78 78 78 78 78 78 78
            +236 more

Texts of a header that fill their fields, or have something behind their terminator:

  $ vmetrics encode --string nox_user_connect '{}' --service 12345678901234567890123456789012 \
  >   --business-type 1234567890123456789012345678901 >full.bin
  $ explain --string full.bin | tail -n 15
            +127 zeros
       264  00                       transactionId  ""
            +63 zeros
       328  31 32 33 34 35 36 37 38  businessType   "1234567890123456789012345678901"
            39 30 31 32 33 34 35 36
            37 38 39 30 31 32 33 34
            35 36 37 38 39 30 31 00
       360  31 32 33 34 35 36 37 38  serviceName    "12345678901234567890123456789012\u0002"
            39 30 31 32 33 34 35 36                 ! no terminator within its 32 bytes: it runs on into what follows
            37 38 39 30 31 32 33 34
            35 36 37 38 39 30 31 32
       392  02 00 00 00              dataLength     2
       396  7b 7d                    data           "{}"
  {"eventId":"nox_user_connect","timestamp":TICK,"terminalId":"0","type":"0","transactionId":"","businessType":"1234567890123456789012345678901","serviceName":"12345678901234567890123456789012\u0002","userName":"","args":{}}
  
  $ { head -c 24 event.bin; printf '\000x\000y'; tail -c +29 event.bin; } >behind.bin
  $ explain --string behind.bin | head -n 7
  behind.bin: record 1 at byte 0: 411 bytes
         0  ff ff ff ff              terminalId     4294967295, rendered as -1
         4  02 00 00 00              type           2, of a client's connecting
         8  6e 6f 78 5f 75 73 65 72  eventId        "nox_user_connect"
            5f 63 6f 6e 6e 65 63 74                 vmConnect: json, not private
            00 78 00 79 00                          ! 2 bytes behind the terminator that are not zero and not rendered
            +107 zeros

Metrics that are private, of a type that renders nothing, or of no known side:

  $ cat >definitions <<END
  > 5;blob;odd;0
  > -1;string;secret;1
  > END
  $ { vmetrics encode 5 --raw 0102; vmetrics encode --definitions definitions -- -1 open; } >odd.bin
  $ explain --definitions definitions odd.bin
  odd.bin: record 1 at byte 0: 14 bytes
         0  00 00 00 00              terminalId     0
         4  05 00 00 00              eventId        5 = 0x00000005
                                                    moduleId 0: group 0x00, side 0x00; index 5
                                                    odd: blob, not private
         8  02 00 00 00              dataLength     2
        12  01 02                    data           2 bytes
                                                    ! blob is no type of value: an empty object is rendered
  {"eventId":"5","timestamp":TICK,"moduleId":0,"terminalId":"0","args":{}}
  
  odd.bin: record 2 at byte 14: 16 bytes
        14  00 00 00 00              terminalId     0
        18  ff ff ff ff              eventId        4294967295 = 0xFFFFFFFF, rendered as -1
                                                    moduleId 65535: group 0xFF, side 0xFF; index 65535
                                                    secret: string, private
        22  04 00 00 00              dataLength     4
        26  6f 70 65 6e              data           "open"
  {"eventId":"-1","timestamp":TICK,"moduleId":65535,"terminalId":"0","args":{"secret":"open"}}
  

Why there are no args: an unknown ID, or JSON that is none, with the place in the value:

  $ vmetrics encode 2131427329 --raw 01 | explain
  standard input: record 1 at byte 0: 13 bytes
         0  00 00 00 00              terminalId     0
         4  01 00 0b 7f              eventId        2131427329 = 0x7F0B0001
                                                    moduleId 32523: group 0x7F, side 0x0B (client); index 1
                                                    ! not in the catalogue
         8  01 00 00 00              dataLength     1
        12  01                       data           1 byte of unknown type
  {"eventId":"2131427329","timestamp":TICK,"moduleId":32523,"terminalId":"0"}
  the record has no args, as ID 2131427329 (0x7F0B0001) is not in the catalogue
  
  [1]
  $ vmetrics encode 302645257 --raw 7b2261223a7d | explain
  standard input: record 1 at byte 0: 18 bytes
         0  00 00 00 00              terminalId     0
         4  09 00 0a 12              eventId        302645257 = 0x120A0009
                                                    moduleId 4618: group 0x12 (display), side 0x0A (server); index 9
                                                    displayBITRate: json, not private
         8  06 00 00 00              dataLength     6
        12  7b 22 61 22 3a 7d        data           "{"a":}"
                                                    ! not JSON: a value is missing at byte 5 of it, '}'
  {"eventId":"302645257","timestamp":TICK,"moduleId":4618,"terminalId":"0"}
  the record has no args, as the value of displayBITRate is not JSON: a value is missing at byte 5 of it, '}'
  
  [1]
  $ vmetrics encode 302645257 --raw 5b2261 | explain | tail -n 5
        12  5b 22 61                 data           "["a"
                                                    ! not JSON: a string is not closed at byte 3 of it, where it ends
  {"eventId":"302645257","timestamp":TICK,"moduleId":4618,"terminalId":"0"}
  the record has no args, as the value of displayBITRate is not JSON: a string is not closed at byte 3 of it, where it ends
  

Why a record is not rendered: a value of one byte more than is; a length that is none; no more bytes:

  $ { printf '\007\000\000\000\005\000\012\022\000\000\001\000'; head -c 65536 /dev/zero; } | explain
  standard input: record 1 at byte 0: 65548 bytes
         0  07 00 00 00              terminalId     7
         4  05 00 0a 12              eventId        302645253 = 0x120A0005
                                                    moduleId 4618: group 0x12 (display), side 0x0A (server); index 5
                                                    displayResolution: string, not private
         8  00 00 01 00              dataLength     65536
                                                    ! 65535 are the most
        12  00                       data           65536 bytes
            +65535 zeros
  the record is not rendered, as it announces 65536 bytes of value; 65535 are the most
  
  [1]
  $ printf '\007\000\000\000\005\000\012\022\377\377\377\377more' | explain
  standard input: record 1 at byte 0: 12 bytes
         0  07 00 00 00              terminalId     7
         4  05 00 0a 12              eventId        302645253 = 0x120A0005
                                                    moduleId 4618: group 0x12 (display), side 0x0A (server); index 5
                                                    displayResolution: string, not private
         8  ff ff ff ff              dataLength     4294967295
                                                    ! 65535 are the most
  the record announces 4294967295 bytes of value, which is no length: where the next record begins is unknown
  
  [1]
  $ head -c 13 one.bin | explain
  standard input: record 1 at byte 0: 13 bytes
         0  07 00 00 00              terminalId     7
         4  01 00 0b 12              eventId        302710785 = 0x120B0001
                                                    moduleId 4619: group 0x12 (display), side 0x0B (client); index 1
                                                    displayFPS: int, not private
         8  04 00 00 00              dataLength     4
        12  3c                       data           ! cut short: 1 of 4 bytes
  the record is cut short: of its value of 4 bytes there is 1
  
  [1]
  $ head -c 12 one.bin | explain
  standard input: record 1 at byte 0: 12 bytes
         0  07 00 00 00              terminalId     7
         4  01 00 0b 12              eventId        302710785 = 0x120B0001
                                                    moduleId 4619: group 0x12 (display), side 0x0B (client); index 1
                                                    displayFPS: int, not private
         8  04 00 00 00              dataLength     4
        12                           data           ! cut short: 0 of 4 bytes
  the record is cut short: of its value of 4 bytes there are 0
  
  [1]
  $ head -c 6 one.bin | explain
  standard input: record 1 at byte 0: 6 bytes
         0  07 00 00 00              terminalId     7
         4  01 00                    eventId        ! cut short: 2 of 4 bytes
  the record is cut short: of its header of 12 bytes there are 6
  
  [1]
  $ head -c 150 event.bin | explain --string | tail -n 6
            00
            +111 zeros
       136  61 6c 69 63 65 00        userName       ! cut short: 14 of 128 bytes
            +8 zeros
  the record is cut short: of its header of 396 bytes there are 150
  

Nothing in a record reaches the terminal that it would obey:

  $ vmetrics encode 302645253 --raw 1b5b33316d0a | explain | tail -n 3
        12  1b 5b 33 31 6d 0a        data           "\u001b[31m\n"
  {"eventId":"302645253","timestamp":TICK,"moduleId":4618,"terminalId":"0","args":{"displayResolution":"\u001b[31m\n"}}
  
  $ printf '\033' | explain
  standard input: record 1 at byte 0: 1 byte
         0  1b                       terminalId     ! cut short: 1 of 4 bytes
  the record is cut short: of its header of 12 bytes there is 1
  
  [1]

In a terminal of 60 columns and one of 200, with colours and without:

  $ in_terminal() {
  >   script -qec "stty cols $1; TERM=xterm NO_COLOR=$2 vmetrics decode --explain faults.bin" \
  >     /dev/null | sed 's/"timestamp":[0-9]*/"timestamp":TICK/; s/\r$//; s/\x1b/ESC/g'
  > }
  $ { cat one.bin; vmetrics encode 302645257 --raw 7b226176657261676522; } >faults.bin
  $ in_terminal 60 1
  faults.bin: record 1 at byte 0: 16 bytes
         0  07 00 00 00  terminalId     7
         4  01 00 0b 12  eventId        302710785 = 0x120B0001
                                        moduleId 4619: group 0x12 (display), side 0x0B (client); index 1
                                        displayFPS: int, not private
         8  04 00 00 00  dataLength     4
        12  3c 00 00 00  data           60
  {"eventId":"302710785","timestamp":TICK,"moduleId":4619,"terminalId":"7","args":{"displayFPS":60}}
  
  faults.bin: record 2 at byte 16: 22 bytes
        16  00 00 00 00  terminalId     0
        20  09 00 0a 12  eventId        302645257 = 0x120A0009
                                        moduleId 4618: group 0x12 (display), side 0x0A (server); index 9
                                        displayBITRate: json, not private
        24  0a 00 00 00  dataLength     10
        28  7b 22 61 76  data           "{"average""
            65 72 61 67                 ! not JSON: a colon is missing at byte 10 of it, where it ends
            65 22
  {"eventId":"302645257","timestamp":TICK,"moduleId":4618,"terminalId":"0"}
  the record has no args, as the value of displayBITRate is not JSON: a colon is missing at byte 10 of it, where it ends
  
  $ in_terminal 200 ''
  ESC[1mfaults.bin: record 1 at byte 0: 16 bytesESC[0m
         0  07 00 00 00                                      terminalId     7
         4  01 00 0b 12                                      eventId        302710785 = 0x120B0001
                                                                            moduleId 4619: group 0x12 (display), side 0x0B (client); index 1
                                                                            displayFPS: int, not private
         8  04 00 00 00                                      dataLength     4
        12  3c 00 00 00                                      data           60
  {"eventId":"302710785","timestamp":TICK,"moduleId":4619,"terminalId":"7","args":{"displayFPS":60}}
  
  ESC[1mfaults.bin: record 2 at byte 16: 22 bytesESC[0m
        16  00 00 00 00                                      terminalId     0
        20  09 00 0a 12                                      eventId        302645257 = 0x120A0009
                                                                            moduleId 4618: group 0x12 (display), side 0x0A (server); index 9
                                                                            displayBITRate: json, not private
        24  0a 00 00 00                                      dataLength     10
        28  7b 22 61 76 65 72 61 67 65 22                    data           "{"average""
                                                                            ESC[33m! not JSON: a colon is missing at byte 10 of it, where it endsESC[0m
  {"eventId":"302645257","timestamp":TICK,"moduleId":4618,"terminalId":"0"}
  ESC[31mthe record has no args, as the value of displayBITRate is not JSON: a colon is missing at byte 10 of it, where it endsESC[0m
  

A line on a terminal has nothing in it that the terminal would obey, whatever the record:

  $ vmetrics encode 302645253 --raw c29b33316d >control.bin
  $ vmetrics decode control.bin | grep -c "$(printf '\302\233')"
  1
  $ script -qec 'vmetrics decode control.bin' /dev/null | sed 's/.*"args"://; s/\r$//'
  {"displayResolution":"\u009b31m"}}

The types of events that have a meaning of their own, and others:

  $ for type in 0 1 2 3; do
  >   vmetrics encode nox_user_connect '{}' --type $type | vmetrics decode --string --explain | sed -n 3p
  > done
         4  00 00 00 00              type           0, of the framework's modules
         4  01 00 00 00              type           1
         4  02 00 00 00              type           2, of a client's connecting
         4  03 00 00 00              type           3, of the transport

A byte that is no letter where JSON goes wrong:

  $ vmetrics encode nox_user_connect --raw 7b017d | vmetrics decode --string 2>&1 >/dev/null
  vmetrics: standard input: record 1 at byte 0 has no args, as the value of vmConnect is not JSON: a member's name in quotes is missing at byte 1 of it, 0x01
  [1]
