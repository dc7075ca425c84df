The format is installed and loaded without a warning of lnav's:

  $ export HOME="$PWD" LC_ALL=C.UTF-8
  $ format="$TESTDIR"/../../Tools/viewers/lnav/vmetrics.json
  $ lnav -W -i "$format" 2>&1 | sed 's/.*\(installed --\).*\//\1 /'
  installed -- vmetrics.json
  $ query() { lnav -W -n -c ";$1" -c ':write-csv-to -' "$2"; }

A record of each kind, with its level and its transaction; what it lacks is null:

  $ cp "$TESTDIR"/../../examples/customer/*.log .
  $ {
  >   grep -m 1 create.rds agent.log
  >   grep -m 1 '"302645249"' viewer.log
  >   grep -e TRANS_CHANGE -e FirstPack.*timeout viewer.log
  >   grep errorCode.:-5 agent.log
  >   echo '{"eventId":"2131427329","timestamp":1795280596000,"moduleId":32523,"terminalId":"7"}'
  > } >kinds.log
  $ query 'SELECT log_time, log_level, log_opid, eventId, moduleId, terminalId, type, serviceName FROM vmetrics' kinds.log
  log_time,log_level,log_opid,eventId,moduleId,terminalId,type,serviceName
  2026-11-21 16:00:03.060,info,session-0,CONNECT,<NULL>,0,2,<NULL>
  2026-11-21 16:00:03.250,info,<NULL>,302645249,4618,7,<NULL>,<NULL>
  2026-11-21 17:03:10.223,error,,nox_user_connect,<NULL>,0,2,zelviewer
  2026-11-21 17:03:10.223,info,,VEVENT_MSG_TRANS_CHANGE,<NULL>,0,3,
  2026-11-21 17:03:15.239,error,session-9,CONNECT,<NULL>,0,2,<NULL>
  2026-11-21 17:03:16.000,info,<NULL>,2131427329,32523,7,<NULL>,<NULL>

Steps have their members as columns, the values of other records are within their args:

  $ query 'SELECT "args/stepName", "args/parentStepName", "args/errorCode", "args/isSuccess", "args/endTime" - "args/startTime" AS took, "args/usedTime" FROM vmetrics WHERE log_line IN (0, 4)' kinds.log
  args/stepName,args/parentStepName,args/errorCode,args/isSuccess,took,args/usedTime
  create rds,Connect,0,1,2010,2010
  start encoder,<NULL>,-5,0,1933,1933
  $ query "SELECT args ->> '\$.displayFPS' AS fps FROM vmetrics WHERE log_line = 1" kinds.log
  fps
  60
  $ query 'SELECT length(spanId) AS span, parentSpanId <> spanId AS linked FROM vmetrics WHERE log_line = 0' kinds.log
  span,linked
  36,1

A record is one line, with its time in UTC wherever that is read:

  $ TZ=Asia/Tokyo lnav -W -n kinds.log | head -n 2
  2026-11-21 16:00:03.060 CONNECT session-0 {"stepName":"create rds","parentStepName":"Connect","errorCode":0,"isSuccess":1,"startTime":1795276801050,"endTime":1795276803060,"usedTime":2010}
  2026-11-21 16:00:03.250 302645249  {"displayFPS":60}

All lines of the logs are known, but for one that a killed process has left to the next one's:

  $ wc -l <viewer.log
  64
  $ query 'SELECT count(*) AS lines, sum(log_level = '"'invalid'"') AS invalid FROM all_logs' viewer.log
  lines,invalid
  64,1

The samples in the format have the levels that it says:

  $ python3 - "$format" >samples.log <<'END'
  > import json, sys
  > format = json.load(open(sys.argv[1]))['vmetrics']
  > for sample in sorted(format['sample'], key=lambda s: json.loads(s['line'])['timestamp']):
  >     print(sample['line'])
  >     print(sample['level'], file=open('levels', 'a'))
  > END
  $ query 'SELECT log_level FROM vmetrics' samples.log | tail -n +2 | diff levels -
  $ sort levels | uniq -c
        2 error
        3 info

A line of 64 KB is read whole:

  $ echo "{\"eventId\":\"long\",\"timestamp\":1795280596000,\"args\":{\"text\":\"$(head -c 65000 /dev/zero | tr '\0' x)\"}}" >long.log
  $ query "SELECT length(args ->> '\$.text') AS length FROM vmetrics" long.log
  length
  65000
