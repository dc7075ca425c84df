A command as a step of a transaction. Here is what differs from run to run made the same:

  $ record() { sed -E -e 's/[0-9a-f]{8}(-[0-9a-f]{4}){3}-[0-9a-f]{12}/IDENTIFIER/g' \
  >   -e 's/"(timestamp|startTime|endTime)":[0-9]{13}/"\1":TICK/g' -e 's/"usedTime":[0-9]+/"usedTime":MS/' "$@"; }
  $ last_record() { tail -n 1 log | record; }

The record goes to standard error, as standard output is the command's:

  $ vmetrics run --step greet -- echo hello 2>errors
  hello
  $ record errors
  {"eventId":"vmetrics_run","timestamp":TICK,"terminalId":"0","type":"2","transactionId":"IDENTIFIER","spanId":"IDENTIFIER","args":{"stepName":"greet","errorCode":0,"isSuccess":1,"startTime":TICK,"endTime":TICK,"usedTime":MS}}

Or it is appended to a file, or goes to standard output behind the command's own:

  $ vmetrics run --step greet --metrics log -- echo hello
  hello
  $ vmetrics run --step greet --metrics log -- echo again
  again
  $ wc -l <log
  2
  $ vmetrics run --step greet --metrics - -- echo hello | record
  hello
  {"eventId":"vmetrics_run","timestamp":TICK,"terminalId":"0","type":"2","transactionId":"IDENTIFIER","spanId":"IDENTIFIER","args":{"stepName":"greet","errorCode":0,"isSuccess":1,"startTime":TICK,"endTime":TICK,"usedTime":MS}}

Transaction, event and parent:

  $ vmetrics run --step deploy --transaction release-7 --event RELEASE --parent me --metrics log -- true
  $ last_record
  {"eventId":"RELEASE","timestamp":TICK,"terminalId":"0","type":"2","transactionId":"release-7","spanId":"IDENTIFIER","parentSpanId":"me","args":{"stepName":"deploy","errorCode":0,"isSuccess":1,"startTime":TICK,"endTime":TICK,"usedTime":MS}}
  $ vmetrics run --step deploy --transaction release-7 --event '' --parent '' --metrics log -- true
  $ last_record
  {"timestamp":TICK,"terminalId":"0","type":"2","transactionId":"release-7","spanId":"IDENTIFIER","args":{"stepName":"deploy","errorCode":0,"isSuccess":1,"startTime":TICK,"endTime":TICK,"usedTime":MS}}

Without one each run is a transaction of its own:

  $ vmetrics run --step a --metrics transactions -- true
  $ vmetrics run --step a --metrics transactions -- true
  $ sed -E 's/.*"transactionId":"([^"]*)".*/\1/' transactions | sort -u | wc -l
  2

The step that ended last is the parent of the one that asks for it:

  $ before=$(cat spanId)
  $ vmetrics run --step next --parent-from-file --metrics log -- true
  $ last_record
  {"eventId":"vmetrics_run","timestamp":TICK,"terminalId":"0","type":"2","transactionId":"IDENTIFIER","spanId":"IDENTIFIER","parentSpanId":"IDENTIFIER","args":{"stepName":"next","errorCode":0,"isSuccess":1,"startTime":TICK,"endTime":TICK,"usedTime":MS}}
  $ tail -n 1 log | grep -c "\"spanId\":\"$(cat spanId)\",\"parentSpanId\":\"$before\""
  1

The command finds the span file where it begins, which may also be another directory:

  $ vmetrics run --step look --metrics log -- sh -c 'cat spanId >seen'
  $ test "$(cat seen)" = "$(tail -n 2 log | head -n 1 | sed -E 's/.*"spanId":"([^"]*)".*/\1/')"
  $ mkdir spans
  $ cp spanId before
  $ vmetrics run --step elsewhere --span-directory spans --metrics log -- true
  $ cmp spanId before
  $ tail -n 1 log | grep -c "\"spanId\":\"$(cat spans/spanId)\""
  1

Steps within a step: the last of them is the parent that is found at the end.

  $ vmetrics run --step outer --transaction t --parent-from-file --metrics nested -- \
  >   vmetrics run --step inner --transaction t --metrics nested -- true
  $ record nested
  {"eventId":"vmetrics_run","timestamp":TICK,"terminalId":"0","type":"2","transactionId":"t","spanId":"IDENTIFIER","args":{"stepName":"inner","errorCode":0,"isSuccess":1,"startTime":TICK,"endTime":TICK,"usedTime":MS}}
  {"eventId":"vmetrics_run","timestamp":TICK,"terminalId":"0","type":"2","transactionId":"t","spanId":"IDENTIFIER","parentSpanId":"IDENTIFIER","args":{"stepName":"outer","errorCode":0,"isSuccess":1,"startTime":TICK,"endTime":TICK,"usedTime":MS}}
  $ inner=$(sed -n -E '1s/.*"spanId":"([^"]*)".*/\1/p' nested)
  $ sed -n 2p nested | grep -c "\"parentSpanId\":\"$inner\""
  1

Exit statuses are the command's, and so are the error codes:

  $ vmetrics run --step s --metrics log -- sh -c 'exit 3'
  [3]
  $ last_record
  {"eventId":"vmetrics_run","timestamp":TICK,"terminalId":"0","type":"2","transactionId":"IDENTIFIER","spanId":"IDENTIFIER","args":{"stepName":"s","errorCode":3,"isSuccess":0,"startTime":TICK,"endTime":TICK,"usedTime":MS}}
  $ error_code() { tail -n 1 "${1:-log}" | sed -E 's/.*"errorCode":([^,]*),.*/\1/'; }
  $ vmetrics run --step s --metrics log -- sh -c 'exit 255'; echo $?; error_code
  255
  255
  $ vmetrics run --step s --metrics log -- sh -c 'exit 125'; echo $?; error_code
  125
  125

What does not exist, what is no program, a directory, a path through a file, no name at all:

  $ vmetrics run --step s --metrics log -- no-such-command; echo $?; error_code
  vmetrics: no-such-command: No such file or directory
  127
  127
  $ vmetrics run --step s --metrics log -- ./no-such-file; echo $?; error_code
  vmetrics: ./no-such-file: No such file or directory
  127
  127
  $ echo 'exit 4' >script
  $ vmetrics run --step s --metrics log -- ./script; echo $?; error_code
  vmetrics: ./script: Permission denied
  126
  126
  $ vmetrics run --step s --metrics log -- ./spans; echo $?; error_code
  vmetrics: ./spans: Permission denied
  126
  126
  $ vmetrics run --step s --metrics log -- ./script/x; echo $?; error_code
  vmetrics: ./script/x: Not a directory
  126
  126
  $ vmetrics run --step s --metrics log -- ''; echo $?; error_code
  vmetrics: "": No such file or directory
  127
  127
  $ vmetrics run --step s --metrics log -- "$(printf 'a\033[31mb')"; echo $?
  vmetrics: a\u001b[31mb: No such file or directory
  127

A script without a first line that names its interpreter is the shell's, as everywhere:

  $ chmod +x script
  $ vmetrics run --step s --metrics log -- ./script; echo $?; error_code
  4
  4

Arguments reach the command as they are:

  $ vmetrics run --step s --metrics log -- printf '<%s>\n' '' -- '{}' '[a,b]' '%%' --step -h check 'a b'
  <>
  <-->
  <{}>
  <[a,b]>
  <%%>
  <--step>
  <-h>
  <check>
  <a b>

Neither they nor the command's name are recorded:

  $ vmetrics run --step login --metrics private -- printf '%.0s' secret
  $ grep -c -e secret -e printf private
  0
  [1]

In a pipeline:

  $ printf '2\n1\n2\n' | vmetrics run --step sort --metrics log -- sort | vmetrics run --step uniq --metrics log -- uniq
  1
  2
  $ vmetrics run --step yes --metrics log -- yes | head -n 1
  y
  $ error_code
  141

The command has the descriptors that vmetrics was given, closed ones included, and no more:

  $ ls /proc/self/fd >without
  $ vmetrics run --step s --metrics log -- ls /proc/self/fd >with
  $ diff without with
  $ ls /proc/self/fd 4<log <&- >without
  $ vmetrics run --step s --metrics log -- ls /proc/self/fd 4<log <&- >with
  $ diff without with
  $ vmetrics run --step s --metrics log -- sh -c 'test -e /proc/$$/fd/1 || echo closed >&2' >&-
  closed

vmetrics does not hold on to them: who reads from the command sees it close its output.

  $ mkfifo go
  $ vmetrics run --step s --metrics log -- sh -c 'echo last; exec >&- 3>&-; read line <go; exit 6' 3>&1 | {
  >   cat; echo closed; echo >go; }
  last
  closed
  $ error_code
  6

Wrong usage is a failure of vmetrics itself, and the command is not run:

  $ vmetrics run
  vmetrics: --step is required; see vmetrics run --help
  [125]
  $ vmetrics run --step s
  vmetrics: there is no command; it stands behind --; see vmetrics run --help
  [125]
  $ vmetrics run --step s --
  vmetrics: there is no command; it stands behind --; see vmetrics run --help
  [125]
  $ vmetrics run --step s echo
  vmetrics: echo: what is not an option stands behind --; see vmetrics run --help
  [125]
  $ vmetrics run --step s --unknown -- echo
  vmetrics: not understood: --unknown; see vmetrics run --help
  [125]
  $ vmetrics run --step -- echo
  vmetrics: --step needs a value; see vmetrics run --help
  [125]
  $ vmetrics run --step '' -- echo
  vmetrics: --step: the name is empty; see vmetrics run --help
  [125]
  $ vmetrics run --step s --transaction '' -- echo
  vmetrics: --transaction: the identifier is empty; see vmetrics run --help
  [125]
  $ vmetrics run --step s --parent x --parent-from-file -- echo
  vmetrics: --parent excludes --parent-from-file; see vmetrics run --help
  [125]
  $ vmetrics run --step s --span-directory "$(printf '%4096s' x)" -- echo
  vmetrics: --span-directory: the name is too long; see vmetrics run --help
  [125]

Help:

  $ vmetrics run --help
  Runs a command as a step of a transaction: times it and writes a step record
  with its exit status as error code, to standard error unless a file is named.
  Neither the command's name nor its arguments are recorded.
  Usage: vmetrics run [OPTIONS] --step NAME -- COMMAND [ARGUMENT...]
  
  Positionals:
    command -- COMMAND ...      The command and its arguments, behind --
  
  Options:
    -h,--help                   Print this help message and exit
    --step NAME REQUIRED        Name of the step
    --transaction ID            Transaction that the step belongs to; a new one if
                                left out
    --event ID=vmetrics_run     Event ID of the record
    --parent ID Excludes: --parent-from-file
                                Identifier of the parent span
    --parent-from-file Excludes: --parent
                                Take the parent from the span file: the step that
                                ended last before this one ends
    --metrics FILE              Append the record to this file; - is standard
                                output
    --span-directory DIR        Where the span file lies, if not in the working
                                directory
  
  Example:
    vmetrics run --step backup --transaction nightly --metrics metrics.log -- tar cf b.tar data
  Exit status: the command's; 126 if it could not be run, 127 if it was not found, 128+N if
  signal N ended it, 125 for a failure of vmetrics itself.
