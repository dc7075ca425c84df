Values of private metrics do not appear in findings, and neither do user names:

  $ check() { vmetrics check "$@" 2>/dev/null | cut -d : -f 3- | cut -c 2-; }
  $ cat >private.log <<END
  > {"eventId":"386596864","timestamp":1,"moduleId":5899,"terminalId":"7","args":{"printerList":4711}}
  > {"eventId":"386596864","timestamp":1,"moduleId":5899,"terminalId":"7","args":{"secret printer":1}}
  > {"eventId":"386596864","timestamp":1,"moduleId":5899,"terminalId":"7","args":{"printerList":["secret printer"]}}
  > {"eventId":"386531328","timestamp":1,"moduleId":5898,"terminalId":"7","args":{"printerList":4711}}
  > {"eventId":"nox_user_operation","timestamp":1,"terminalId":"0","type":"2","transactionId":"","businessType":"","serviceName":"","userName":4711}
  > {"eventId":"386596864","timestamp":1,"moduleId":5899,"terminalId":"7","args":{"printerList":"secret pri
  > END
  $ check private.log
  args: printerList is a number (***), not a text
  args: ***: not part of args
  args: args lacks printerList
  args: printerList is an array, not a text
  args: printerList is 4711, not a text
  member: userName is a number (***), not a text
  not-json: no JSON object in 103 bytes

On demand they do; what is no JSON is never shown:

  $ check --show-private private.log
  args: printerList is 4711, not a text
  args: secret printer: not part of args
  args: args lacks printerList
  args: printerList is an array, not a text
  args: printerList is 4711, not a text
  member: userName is 4711, not a text
  not-json: no JSON object in 103 bytes

Metrics may be private by a definition:

  $ printf '1;int;pin;1\n2;json;pins;1\n' >own
  $ cat >own.log <<END
  > {"eventId":"1","timestamp":1,"moduleId":0,"terminalId":"7","args":{"pin":"4711"}}
  > {"eventId":"2","timestamp":1,"moduleId":0,"terminalId":"7","args":{"secret":1,"secret":2}}
  > END
  $ check --definitions own own.log
  args: pin is a text (***), not a 32-bit number
  duplicate-key: *** is there more than once
  $ check --definitions own own.log --show-private
  args: pin is "4711", not a 32-bit number
  duplicate-key: secret is there more than once
