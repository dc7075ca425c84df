# What count_log.py counts, a line for each value: kind, ID, name, failed or not, value.
if .spanId and .args.stepName then
  ["step", "", .args.stepName, (if .args.errorCode == 0 then 0 else 1 end), .args.usedTime]
elif .moduleId then
  .eventId as $id
  | (.args // {} | to_entries[] | select(.value | type == "number"))
  | ["metric", $id, .key, 0, .value]
else empty end
| @tsv
