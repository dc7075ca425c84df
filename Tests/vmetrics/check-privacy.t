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

So may be the event ID of a step, which is free text:

  $ cat >step.log <<END
  > {"eventId":"789250054","timestamp":1,"terminalId":"0","type":"2","transactionId":"t","spanId":"e4087119-7420-0031-4962-ce575d58c9b8","args":{"stepName":"s","errorCode":"SECRET","isSuccess":1,"startTime":"SECRET","SECRET":1}}
  > {"eventId":"789250054","timestamp":1,"terminalId":"0","type":"2","transactionId":"t","spanId":"e4087119-7420-0031-4962-ce575d58c9b9","args":{"stepName":"s","errorCode":4711,"isSuccess":815,"startTime":4711,"endTime":815,"usedTime":4712}}
  > {"eventId":"789250054","timestamp":1,"terminalId":"0","type":"2","transactionId":"t","spanId":"e4087119-7420-0031-4962-ce575d58c9ba","args":"SECRET"}
  > {"eventId":"789250054","args":{"stepName":"s","errorCode":"SECRET"}}
  > END
  $ check step.log
  extra-member: ***: not part of args
  member: errorCode is a text (***), not a 32-bit number
  member: startTime is a text (***), not an unsigned 64-bit number
  member: args lacks endTime, usedTime
  is-success: isSuccess is ***, but errorCode is ***
  time: ends *** ms before it starts
  used-time: usedTime is ***, but from start to end it is ***
  member: args is a text (***), not an object
  member: a step record lacks timestamp, terminalId, type and 2 more
  member: errorCode is a text (***), not a 32-bit number
  member: args lacks isSuccess, startTime, endTime and 1 more
  $ check --show-private step.log
  extra-member: SECRET: not part of args
  member: errorCode is "SECRET", not a 32-bit number
  member: startTime is "SECRET", not an unsigned 64-bit number
  member: args lacks endTime, usedTime
  is-success: isSuccess is 815, but errorCode is 4711
  time: ends 3896 ms before it starts
  used-time: usedTime is 4712, but from start to end it is 18446744073709547720
  member: args is "SECRET", not an object
  member: a step record lacks timestamp, terminalId, type and 2 more
  member: errorCode is "SECRET", not a 32-bit number
  member: args lacks isSuccess, startTime, endTime and 1 more
