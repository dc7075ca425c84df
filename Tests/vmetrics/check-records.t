Records with a numeric ID: "metric" writes one, "check" shows what is found.

  $ metric() {
  >   printf '{"eventId":%s,"timestamp":%s,"moduleId":%s,"terminalId":%s,"args":%s}\n' "$@"
  > }
  $ check() { vmetrics check "$@" 2>/dev/null | cut -d : -f 3- | cut -c 2-; }

  $ metric '"302645249"' 1700000000240 4618 '"7"' '{"displayFPS":60}' | check

A terminal's number may be negative, as a record's bits are taken as signed:

  $ metric '"302645249"' 0 4618 '"-1"' '{"displayFPS":-2147483648}' | check

Members of a wrong type:

  $ metric 302645249 1 4618 '"7"' '{"displayFPS":60}' | check
  member: eventId is 302645249, not the text of a 32-bit number
  $ metric '"0x120A0001"' 1 4618 '"7"' '{"displayFPS":60}' | check
  member: eventId is "0x120A0001", not the text of a 32-bit number
  $ metric '"0302645249"' 1 4618 '"7"' '{"displayFPS":60}' | check
  member: eventId is "0302645249", not the text of a 32-bit number
  $ metric '"2147483648"' 1 4618 '"7"' '{"displayFPS":60}' | check
  member: eventId is "2147483648", not the text of a 32-bit number
  $ metric '""' 1 4618 '"7"' '{"displayFPS":60}' | check
  member: eventId is "", not the text of a 32-bit number
  $ metric '"302645249"' '"1"' 4618 '"7"' '{"displayFPS":60}' | check
  member: timestamp is "1", not an unsigned 64-bit number
  $ metric '"302645249"' -1 4618 '"7"' '{"displayFPS":60}' | check
  member: timestamp is -1, not an unsigned 64-bit number
  $ metric '"302645249"' 18446744073709551616 4618 '"7"' '{"displayFPS":60}' | check
  member: timestamp is 18446744073709551616, not an unsigned 64-bit number
  $ metric '"302645249"' 1.5 '"4618"' 7 '{"displayFPS":60}' | check
  member: timestamp is 1.5, not an unsigned 64-bit number
  member: moduleId is "4618", not an unsigned 64-bit number
  member: terminalId is 7, not the text of a 32-bit number
  $ metric '"302645249"' null '{}' '[]' '{"displayFPS":60}' | check
  member: timestamp is null, not an unsigned 64-bit number
  member: moduleId is an object, not an unsigned 64-bit number
  member: terminalId is an array, not the text of a 32-bit number
  $ metric '"302645249"' 1 4618 '"-0"' '{"displayFPS":60}' | check
  member: terminalId is "-0", not the text of a 32-bit number

A module that is not that of the metric:

  $ metric '"302645249"' 1 4619 '"7"' '{"displayFPS":60}' | check
  member: moduleId is 4619, but metric 302645249 belongs to module 4618

Missing members, such that do not belong there, and such that are there more than once:

  $ echo '{"eventId":"302645249","args":{"displayFPS":60}}' | check
  member: a numeric record lacks timestamp, moduleId, terminalId
  $ echo '{"moduleId":4618}' | check
  member: a numeric record lacks eventId, timestamp, terminalId
  $ metric '"302645249"' 1 4618 '"7","a":1,"b":2,"c":3,"d":4,"e":5' '{"displayFPS":60}' | check
  extra-member: a, b, c and 2 more: not part of a numeric record
  $ metric '"302645249","eventId":"1"' 1 4618 '"7","\u0061rgs":{}' '{"displayFPS":60}' | check
  duplicate-key: eventId is there more than once

A metric that the catalogue lacks:

  $ metric '"302645266"' 1 4618 '"7"' '{"displayEncoderQueue":2}' | check
  unknown-id: metric 302645266 is not in the catalogue
  $ metric '"0"' 1 0 '"7"' '{}' | check
  unknown-id: metric 0 is not in the catalogue

Values that the catalogue does not allow. An int and an enum:

  $ metric '"302645249"' 1 4618 '"7"' '{"displayFPS":"60"}' | check
  args: displayFPS is "60", not a 32-bit number
  $ metric '"302645249"' 1 4618 '"7"' '{"displayFPS":2147483648}' | check
  args: displayFPS is 2147483648, not a 32-bit number
  $ metric '"302645249"' 1 4618 '"7"' '{"displayFPS":60.0}' | check
  args: displayFPS is 60.0, not a 32-bit number
  $ metric '"302645249"' 1 4618 '"7"' '{"displayFPS":null}' | check
  args: displayFPS is null, not a 32-bit number
  $ metric '"302645256"' 1 4618 '"7"' '{"displayEncoderType":"3"}' | check
  $ metric '"302645256"' 1 4618 '"7"' '{"displayEncoderType":3}' | check
  args: displayEncoderType is 3, not the text of a 32-bit number
  $ metric '"302645256"' 1 4618 '"7"' '{"displayEncoderType":"H264"}' | check
  args: displayEncoderType is "H264", not the text of a 32-bit number

The other types:

  $ cat >own <<END
  > 1;string;text;0
  > 2;uint64_t;size;0
  > 3;int64_t;offset;0
  > 4;double;load;0
  > 5;bool;isOn;0
  > 6;json;list;0
  > 7;duration;span;0
  > END
  $ own() { metric "\"$1\"" 1 0 '"7"' "$2"; }
  $ (own 1 '{"text":""}'; own 1 '{"text":1}') | check --definitions own
  args: text is 1, not a text
  $ (own 2 '{"size":18446744073709551615}'; own 2 '{"size":-1}') | check --definitions own
  args: size is -1, not an unsigned 64-bit number
  $ (own 3 '{"offset":-9223372036854775808}'; own 3 '{"offset":9223372036854775808}') | check --definitions own
  args: offset is 9223372036854775808, not a 64-bit number
  $ (own 4 '{"load":1e-7}'; own 4 '{"load":null}'; own 4 '{"load":"1"}') | check --definitions own
  args: load is "1", not a number or null
  $ (own 5 '{"isOn":false}'; own 5 '{"isOn":0}') | check --definitions own
  args: isOn is 0, not true or false

A value of type json may be whatever JSON there is; only a repeated key is odd:

  $ (own 6 '{"a":1}'; own 6 '[1,2]'; own 6 null) | check --definitions own
  $ own 6 '{"a":1,"b":{"c":1,"c":2},"a":2}' | check --definitions own
  duplicate-key: a is there more than once

A type that the library does not know renders as an empty object:

  $ (own 7 '{}'; own 7 '{"span":1}') | check --definitions own
  args: span: not part of args

The value under a wrong name, among others, or twice; and no object at all:

  $ metric '"302645249"' 1 4618 '"7"' '{"displayFps":60}' | check
  args: displayFps: not part of args
  args: args lacks displayFPS
  $ metric '"302645249"' 1 4618 '"7"' '{"displayFPS":60,"unit":"Hz"}' | check
  args: unit: not part of args
  $ metric '"302645249"' 1 4618 '"7"' '{"displayFPS":60,"displayFPS":61}' | check
  duplicate-key: displayFPS is there more than once
  $ metric '"302645249"' 1 4618 '"7"' 60 | check
  args: args is no object

A metric without its value: whoever wrote it did not know the metric, or it was not JSON.

  $ echo '{"eventId":"302645249","timestamp":1,"moduleId":4618,"terminalId":"7"}' | check
  no-args: whoever wrote the line did not know displayFPS
  $ echo '{"eventId":"302645257","timestamp":1,"moduleId":4618,"terminalId":"7"}' | check
  no-args: the value of displayBITRate was not JSON

Long texts are cut, and nothing in them gets to the terminal as it is:

  $ metric '"302645249"' 1 4618 '"7"' "{\"displayFPS\":\"\\u001b[31m$(head -c 1000 /dev/zero | tr '\0' x)\"}" | check
  args: displayFPS is "\u001b[31mxxxxxxxxxxxxxxxxxxxxxxxxxxxxx~", not a 32-bit number
  $ metric '"302645249"' 1 4618 '"7"' '{"\u001b[31m":60}' | check
  args: \u001b[31m: not part of args
  args: args lacks displayFPS

Events:

  $ event() {
  >   printf '{"eventId":"%s","timestamp":1,"terminalId":"0","type":"%s","transactionId":"","businessType":"","serviceName":"","userName":""%s}\n' "$@"
  > }
  $ event VMETRICS_USB_DRIVER_ERROR 0 ',"args":{"driverError":"Init drivers error."}' | check
  $ event VMETRICS_USB_DRIVER_ERROR zero ',"args":{"driverError":5}' | check
  member: type is "zero", not the text of a 32-bit number
  args: driverError is 5, not a text
  $ event VEVENT_UNKNOWN 0 ',"args":{"a":1}' | check
  unknown-id: event "VEVENT_UNKNOWN" is not in the catalogue
  $ event nox_user_operation 2 '' | check
  $ event nox_user_operation 2 ',"args":{"optName":"a"}' | check
  $ event nox_user_heart 2 '' | check
  no-args: the value of heartBeat was not JSON
  $ event nox_user_heart 2 ',"args":[]' | check
  $ event nox_user_heart 2 ',"moduleId":1,"args":{"a":1,"a":1}' | check
  extra-member: moduleId: not part of an event
  duplicate-key: a is there more than once
  $ echo '{"eventId":"nox_user_heart","userName":null}' | check
  member: userName is null, not a text
  member: an event lacks timestamp, terminalId, type and 3 more
  no-args: the value of heartBeat was not JSON
  $ echo '{"eventId":"nox_user_heart","timestamp":1}' | check
  member: an event lacks terminalId, type, transactionId and 3 more
  no-args: the value of heartBeat was not JSON

The times of connecting are those of a step:

  $ event nox_user_connect 2 ',"args":{"startTime":5,"endTime":9,"usedTime":4}' | check
  $ event nox_user_connect 2 ',"args":{"startTime":5,"endTime":9,"usedTime":5}' | check
  used-time: usedTime is 5, but from start to end it is 4
  $ event nox_user_connect 2 ',"args":{"startTime":9,"endTime":5,"usedTime":18446744073709551612}' | check
  time: ends 4 ms before it starts
  $ event nox_user_connect 2 ',"args":{"startTime":"9","endTime":5,"usedTime":1}' | check
