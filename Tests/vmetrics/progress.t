After a second of reading, how far it has come is shown where standard error is a terminal. Here a
log of three megabytes comes slowly, with a line now and then, and another one behind it:

  $ head -c 3000000 /dev/zero | tr '\0' '\n' >blank.log
  $ slowly() { cat blank.log; for i in $(seq 30); do echo; sleep 0.05; done; sleep 0.5; cat "$@"; }
  $ at_terminal() { TERM=dumb script -qec "stty cols 80; $1" /dev/null | tr '\r' '\n' | cat -v; }
  $ mkfifo slow
  $ slowly /dev/null >slow & at_terminal 'vmetrics check - blank.log <slow' | grep -E '  8 %|  3 MB' | sort -u
  blank.log                                  8 % of 3 MB^[[K
  standard input                           3 MB^[[K
  $ slowly /dev/null >slow & at_terminal 'vmetrics check slow 2>/dev/null'

What is written to the same terminal meanwhile has its lines for itself:

  $ yes damaged | head -n 10000 >damaged
  $ slowly damaged >slow & at_terminal 'vmetrics check --max 1 slow' | grep -E '  3 MB|not-json: ' | sort -u
  ^[[Kslow:3000031: not-json: no JSON object in 7 bytes
  slow                                     3 MB^[[K
  $ slowly /dev/null >slow & at_terminal 'vmetrics check slow missing' | grep missing
  ^[[Kvmetrics: missing: No such file or directory
