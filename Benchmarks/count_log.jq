# The same as count_log.py: jq --raw-output --null-input --from-file count_log.jq LOG

def percentile($percent):
  ([.[]] | add) as $count
  | (($percent * $count + 99) / 100 | floor) as $rank
  | [to_entries[] | {value: (.key | tonumber), count: .value}]
  | sort_by(.value)
  | reduce .[] as $bucket ({passed: 0};
      if .passed >= $rank then . else {passed: (.passed + $bucket.count), value: $bucket.value} end)
  | .value;

def count($key; $value; $failed):
  .[$key].failures += $failed | .[$key].values[$value | tostring] += 1;

reduce inputs as $record ({};
  if $record.spanId and $record.args.stepName then
    count("step\t\t" + $record.args.stepName; $record.args.usedTime;
          if $record.args.errorCode == 0 then 0 else 1 end)
  elif $record.moduleId then
    reduce ($record.args // {} | to_entries[] | select(.value | type == "number")) as $member (.;
      count("metric\t" + $record.eventId + "\t" + $member.key; $member.value; 0))
  else . end)
| to_entries[]
| [.key, ([.value.values[]] | add), .value.failures,
   (.value.values | percentile(50)), (.value.values | percentile(95))]
| join("\t")
