Step records: "step" writes one, "check" shows what is found.

  $ step() {
  >   printf '{"timestamp":1,"terminalId":"0","type":"2","transactionId":"t",%s,"args":{%s}}\n' "$@"
  > }
  $ check() { vmetrics check "$@" 2>/dev/null | cut -d : -f 2-; }
  $ args='"stepName":"login","errorCode":0,"isSuccess":1,"startTime":5,"endTime":9,"usedTime":4'
  $ one='"spanId":"11111111-1111-1111-1111-111111111111"'
  $ two='"spanId":"22222222-2222-2222-2222-222222222222"'

  $ step "$one" "$args" | check

The event ID is free text, but not empty: then it is left out.

  $ step "\"eventId\":\"302645249\",$one" "$args" | check
  $ step "\"eventId\":\"\",$one" "$args" | check
  1: member: eventId is "", not a text of at least one character

Fixed members, missing ones, wrong ones and such that do not belong there:

  $ echo '{"spanId":"11111111-1111-1111-1111-111111111111"}' | check
  1: member: a step record lacks timestamp, terminalId, type and 2 more
  $ echo '{"timestamp":1,"terminalId":"1","type":2,"transactionId":"",'$one',"serviceName":"","args":[]}' | check
  1: extra-member: serviceName: not part of a step record
  1: member: terminalId is "1", not "0"
  1: member: type is 2, not "2"
  1: member: transactionId is "", not a text of at least one character
  1: member: args is an array, not an object
  $ step "$one" '"stepName":5,"errorCode":2147483648,"isSuccess":true,"startTime":-5,"endTime":"9","usedTime":null,"source":"me"' | check
  1: extra-member: source: not part of args
  1: member: stepName is 5, not a text
  1: member: errorCode is 2147483648, not a 32-bit number
  1: member: isSuccess is true, not a 32-bit number
  1: member: startTime is -5, not an unsigned 64-bit number
  1: member: endTime is "9", not an unsigned 64-bit number
  1: member: usedTime is null, not an unsigned 64-bit number
  $ step "$one" '"stepName":"login"' | check
  1: member: args lacks errorCode, isSuccess, startTime and 2 more
  $ echo '{"timestamp":1,"args":{"stepName":"login","errorCode":0}}' | check
  1: member: a step record lacks terminalId, type, transactionId and 1 more
  1: member: args lacks isSuccess, startTime, endTime and 1 more

Identifiers of another form:

  $ for id in 11111111111111111111111111111111 AAAAAAAA-1111-1111-1111-111111111111 \
  >     11111111-1111-1111-1111-11111111111g 11111111-1111-1111-1111-1111111111111 \
  >     11111111-11111-111-1111-111111111111; do
  >   step "\"spanId\":\"$id\"" "$args"
  > done | check
  1: span-form: spanId "11111111111111111111111111111111" is not of the form of spans
  2: span-form: spanId "AAAAAAAA-1111-1111-1111-111111111111" is not of the form of spans
  3: span-form: spanId "11111111-1111-1111-1111-11111111111g" is not of the form of spans
  4: span-form: spanId "11111111-1111-1111-1111-1111111111111" is not of the form of spans
  5: span-form: spanId "11111111-11111-111-1111-111111111111" is not of the form of spans
  $ step "$one,\"parentSpanId\":\"Connect\"" "$args" | check
  1: span-form: parentSpanId "Connect" is not of the form of spans
  $ step "$one,\"spanId\":\"22222222-2222-2222-2222-222222222222\"" "$args" | check
  1: duplicate-key: spanId is there more than once

One identifier for two steps:

  $ (step "$one" "$args"; step "$two" "$args"; step "$one" "$args"; step "$one" "$args") | check
  3: duplicate-span: spanId 11111111-1111-1111-1111-111111111111 is that of standard input:1, too
  4: duplicate-span: spanId 11111111-1111-1111-1111-111111111111 is that of standard input:1, too

A parent that is in no log; it may well come after its child, as processes write at the same time:

  $ child="$one,\"parentSpanId\":\"22222222-2222-2222-2222-222222222222\""
  $ step "$child" "$args" | check
  1: missing-parent: no step here has the parent's span 22222222-2222-2222-2222-222222222222
  $ (step "$child" "$args"; step "$two" "$args") | check
  $ step "$child" "$args" >new.log
  $ step "$two" "$args" >old.log
  $ check new.log old.log

A parent that is not known, as the span file could not be locked:

  $ step "$one,\"parentSpanId\":\"ParentSpanId\"" "$args" | check
  1: unlocked-parent: the span file could not be locked, so the parent is not known

Times:

  $ step "$one" '"stepName":"login","errorCode":0,"isSuccess":1,"startTime":5,"endTime":9,"usedTime":5' | check
  1: used-time: usedTime is 5, but from start to end it is 4
  $ step "$one" '"stepName":"login","errorCode":0,"isSuccess":1,"startTime":9,"endTime":5,"usedTime":18446744073709551612' | check
  1: time: ends 4 ms before it starts
  $ step "$one" '"stepName":"login","errorCode":0,"isSuccess":1,"startTime":9,"endTime":5,"usedTime":4' | check
  1: time: ends 4 ms before it starts
  1: used-time: usedTime is 4, but from start to end it is 18446744073709551612
  $ step "$one" '"stepName":"login","errorCode":0,"isSuccess":1,"startTime":0,"endTime":18446744073709551615,"usedTime":18446744073709551615' | check

Success and its code:

  $ step "$one" '"stepName":"login","errorCode":-5,"isSuccess":0,"startTime":5,"endTime":9,"usedTime":4' | check
  $ step "$one" '"stepName":"login","errorCode":-5,"isSuccess":1,"startTime":5,"endTime":9,"usedTime":4' | check
  1: is-success: isSuccess is 1, but errorCode is -5
  $ step "$one" '"stepName":"login","errorCode":0,"isSuccess":0,"startTime":5,"endTime":9,"usedTime":4' | check
  1: is-success: isSuccess is 0, but errorCode is 0
  $ step "$one" '"stepName":"login","errorCode":0,"isSuccess":2,"startTime":5,"endTime":9,"usedTime":4' | check
  1: is-success: isSuccess is 2, but errorCode is 0

The name of the parent, which "create rds" alone has:

  $ step "$one" "${args%%,*},\"parentStepName\":\"Connect\",${args#*,}" | check
  1: parent-step: a parentStepName, which only "create rds" has
  $ create=$(echo "$args" | sed 's/login/create rds/')
  $ step "$one" "$create" | check
  1: parent-step: the parentStepName of "create rds" is not "Connect"
  $ step "$one" "${create%%,*},\"parentStepName\":\"connect\",${create#*,}" | check
  1: parent-step: the parentStepName of "create rds" is not "Connect"
  $ step "$one" "${create%%,*},\"parentStepName\":\"Connect\",${create#*,}" | check
