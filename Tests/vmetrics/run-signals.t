A command that a signal ends. As after any such command the shell says so; vmetrics ends by the same
signal, which shells show as 128 and its number:

  $ error_code() { tail -n 1 log | sed -E 's/.*"errorCode":([^,]*),.*/\1/'; }
  $ vmetrics run --step s --metrics log -- sh -c 'kill -TERM $$'
  Terminated
  [143]
  $ error_code
  143
  $ vmetrics run --step s --metrics log -- sh -c 'kill -KILL $$'
  Killed
  [137]
  $ error_code
  137
  $ vmetrics run --step s --metrics log -- sh -c 'kill -SEGV $$'
  Segmentation fault
  [139]
  $ error_code
  139
  $ ls
  log
  spanId
  $ vmetrics run --step s --metrics log -- python3 -c 'import os, signal; os.kill(os.getpid(), signal.SIGRTMIN)' 2>/dev/null
  [162]
  $ error_code
  162
  $ python3 -c 'import subprocess; print(subprocess.call(
  >   ["vmetrics", "run", "--step", "s", "--metrics", "log", "--", "sh", "-c", "kill -HUP $$"]))'
  -1

Every signal that can be caught, sent to vmetrics alone, reaches the command, and once:

  $ "$TESTDIR/send_each_signal"
  59 signals sent, left over: b'', exit status 0
  $ error_code
  0

A command that has its own way with a signal keeps it; one that has not is ended, and recorded:

  $ mkfifo ready
  $ cat >patient <<'END'
  > #!/usr/bin/env python3
  > import signal, sys
  > signal.pthread_sigmask(signal.SIG_BLOCK, {signal.SIGTERM})
  > print(file=open("ready", "w"))
  > signal.sigwait({signal.SIGTERM})
  > print("tidied up")
  > sys.exit(9)
  > END
  $ chmod +x patient
  $ vmetrics run --step s --metrics log -- ./patient &
  $ read line <ready; kill -TERM $!; wait $!
  tidied up
  [9]
  $ error_code
  9
  $ vmetrics run --step s --metrics log -- sh -c 'echo >ready; exec sleep 60' &
  $ read line <ready; kill -PIPE $!; wait $!; echo $?; error_code
  141
  141

The value of a queued signal comes along:

  $ cat >queued.py <<'END'
  > import ctypes, signal
  > class Value(ctypes.Structure):
  >     _fields_ = [("signal", ctypes.c_int), ("error", ctypes.c_int), ("code", ctypes.c_int),
  >                 ("pad", ctypes.c_int), ("sender", ctypes.c_int), ("user", ctypes.c_int),
  >                 ("value", ctypes.c_int), ("rest", ctypes.c_char * 100)]
  > libc, mask, info = ctypes.CDLL(None), ctypes.create_string_buffer(128), Value()
  > signal.pthread_sigmask(signal.SIG_BLOCK, {signal.SIGUSR2})
  > print(file=open("ready", "w"))
  > libc.sigemptyset(mask), libc.sigaddset(mask, signal.SIGUSR2)
  > libc.sigwaitinfo(mask, ctypes.byref(info))
  > print(info.value)
  > END
  $ vmetrics run --step s --metrics log -- python3 queued.py &
  $ read line <ready; python3 -c 'import ctypes, signal, sys
  > ctypes.CDLL(None).sigqueue(int(sys.argv[1]), signal.SIGUSR2, ctypes.c_void_p(42))' $!; wait $!
  42

An alarm that was set before vmetrics began is meant for the command:

  $ python3 -c 'import os, signal; signal.alarm(1); os.execvp("vmetrics",
  >   ["vmetrics", "run", "--step", "s", "--metrics", "log", "--", "sleep", "60"])' 2>/dev/null
  [142]
  $ error_code
  142

What the command sends to its parent or to the whole group does not come back to it:

  $ cat >to_group.py <<'END'
  > import os, signal
  > signal.pthread_sigmask(signal.SIG_BLOCK, {signal.SIGUSR1, signal.SIGUSR2})
  > for number in signal.SIGUSR1, signal.SIGUSR2:
  >     os.kill(os.getppid(), number)
  > os.kill(0, signal.SIGUSR1)
  > signal.sigwait({signal.SIGUSR1})
  > print(signal.sigtimedwait({signal.SIGUSR1, signal.SIGUSR2}, 0.1))
  > END
  $ setsid --wait vmetrics run --step s --metrics log -- python3 to_group.py
  None

The command is told its signals as vmetrics was: what is ignored and what is blocked.

  $ cat >start.py <<'END'
  > import os, signal, sys
  > for number in signal.SIGHUP, signal.SIGPIPE, signal.SIGCHLD, signal.SIGTSTP, signal.SIGRTMAX:
  >     signal.signal(number, signal.SIG_IGN)
  > signal.pthread_sigmask(signal.SIG_SETMASK, {signal.SIGUSR1, signal.SIGTERM, signal.SIGRTMIN})
  > os.execvp(sys.argv[1], sys.argv[1:])
  > END
  $ python3 start.py grep '^Sig[BI]' /proc/self/status >without
  $ python3 start.py vmetrics run --step s --metrics log -- grep '^Sig[BI]' /proc/self/status >with
  $ diff without with
  $ grep SigIgn with | grep -c 0000000000000000
  0
  [1]
  $ nohup vmetrics run --step s --metrics log -- sh -c 'kill -HUP $$; exit 5' </dev/null
  [5]
  $ error_code
  5

Where the ends of children are ignored, that of the command is seen all the same:

  $ python3 start.py vmetrics run --step s --metrics log -- sh -c 'exit 8'
  [8]

Children that are there already are none of vmetrics' business, nor are those that outlive the
command:

  $ sh -c 'sleep 60 & echo $! >pid; exec vmetrics run --step s --metrics log -- sh -c "exit 7"'
  [7]
  $ kill $(cat pid)
  $ vmetrics run --step s --metrics log -- sh -c 'sleep 60 >/dev/null 2>&1 & echo $! >pid; exit 7'
  [7]
  $ kill $(cat pid)

A command that is stopped where nobody has job control goes on when it is told so; vmetrics, which
nobody would tell, has not stopped with it:

  $ vmetrics run --step s --metrics log -- sh -c 'echo $$ >pid; echo >ready; read line <ready; exit 3' &
  $ read line <ready
  $ stopped() { grep -q '^State:.T' /proc/$1/status; }
  $ kill -STOP $(cat pid); until stopped $(cat pid); do :; done
  $ kill -PIPE $!; until grep -q 'ShdPnd:.*1000$' /proc/$(cat pid)/status; do :; done
  $ stopped $!
  [1]
  $ kill -CONT $(cat pid); wait $!
  [141]
