# For transcripts: functions that write the lines of the library, each a call.

# step NAME MILLISECONDS [ERROR-CODE] [TIMESTAMP]
step() {
  printf '{"eventId":"DEMO","timestamp":%s,"terminalId":"0","type":"2","transactionId":"t",' \
    "${4:-1795186800000}"
  printf '"spanId":"s","args":{"stepName":"%s","errorCode":%s,"isSuccess":%s,' \
    "$1" "${3:-0}" "$([ "${3:-0}" = 0 ] && echo 1 || echo 0)"
  printf '"startTime":0,"endTime":%s,"usedTime":%s}}\n' "$2" "$2"
}

# metric ID ARGUMENTS [TIMESTAMP]
metric() {
  printf '{"eventId":"%s","timestamp":%s,"moduleId":1,"terminalId":"7","args":%s}\n' \
    "$1" "${3:-1795186800000}" "$2"
}
