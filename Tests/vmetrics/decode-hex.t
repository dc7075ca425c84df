The input as hexadecimal digits, with white space and comments anywhere:

  $ decode() {
  >   vmetrics decode --hex "$@" >lines 2>&1
  >   status=$?
  >   sed 's/"timestamp":[0-9]*/"timestamp":TICK/' lines
  >   return $status
  > }

  $ decode <<END
  > # The library's example.
  > 07 00 00 00   # terminalId 7
  > 01 00 0B 12   # eventId
  > 04000000      # dataLength
  > 3 c 00
  > 00 00
  > END
  {"eventId":"302710785","timestamp":TICK,"moduleId":4619,"terminalId":"7","args":{"displayFPS":60}}

As other programs print bytes, and with line breaks of another system:

  $ vmetrics encode 302645253 1920x1080 >one.bin
  $ od -An -tx1 -v one.bin
   00 00 00 00 05 00 0a 12 09 00 00 00 31 39 32 30
   78 31 30 38 30
  $ od -An -tx1 -v one.bin | decode
  {"eventId":"302645253","timestamp":TICK,"moduleId":4618,"terminalId":"0","args":{"displayResolution":"1920x1080"}}
  $ od -An -tx1 -v one.bin | sed 's/$/\r/' | decode
  {"eventId":"302645253","timestamp":TICK,"moduleId":4618,"terminalId":"0","args":{"displayResolution":"1920x1080"}}
  $ od -An -tx1 -v one.bin | tr -d ' \n' | decode
  {"eventId":"302645253","timestamp":TICK,"moduleId":4618,"terminalId":"0","args":{"displayResolution":"1920x1080"}}
  $ vmetrics encode --hex 302645253 1920x1080 | decode
  {"eventId":"302645253","timestamp":TICK,"moduleId":4618,"terminalId":"0","args":{"displayResolution":"1920x1080"}}

A character that is no digit. What precedes it is decoded:

  $ od -An -tx1 -v one.bin >good.hex
  $ { cat good.hex; echo '07 0x00'; } >bad.hex
  $ decode bad.hex good.hex
  {"eventId":"302645253","timestamp":TICK,"moduleId":4618,"terminalId":"0","args":{"displayResolution":"1920x1080"}}
  vmetrics: bad.hex:3:5: 'x' is no hexadecimal digit
  {"eventId":"302645253","timestamp":TICK,"moduleId":4618,"terminalId":"0","args":{"displayResolution":"1920x1080"}}
  [2]
  $ decode one.bin
  vmetrics: one.bin:1:1: byte 0x00 is no hexadecimal digit
  [2]
  $ printf '\357\273\27707' | decode
  vmetrics: standard input:1:1: byte 0xEF is no hexadecimal digit
  [2]
  $ printf '# zeros\n00 00\n*\n' | decode
  vmetrics: standard input:3:1: '*' stands for lines that were left out; od -v shows them
  [2]
  $ printf '07 00 0' | decode
  vmetrics: standard input:1:7: the text ends in the middle of a byte, which has two digits
  [2]

Nothing but comments is no record:

  $ echo '# 07' | decode
