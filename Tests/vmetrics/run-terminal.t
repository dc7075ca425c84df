A command at a terminal, under an interactive shell with job control: to the user it is as if vmetrics
were not there.

  $ error_code() { tail -n 1 log | sed -E 's/.*"errorCode":([^,]*),.*/\1/'; }
  $ cat >waiting <<'END'
  > #!/bin/sh
  > echo started
  > read line
  > echo "read $line"
  > exit 5
  > END
  $ cat >counting <<'END'
  > #!/usr/bin/env python3
  > """Takes the signals that are named one by one, until SIGQUIT comes and nothing after it."""
  > import signal, sys
  > taken = {signal.SIGQUIT, *(signal.Signals[name] for name in sys.argv[1:])}
  > signal.pthread_sigmask(signal.SIG_BLOCK, taken)
  > print("started", flush=True)
  > names = []
  > while "SIGQUIT" not in names:
  >     names.append(signal.Signals(signal.sigwaitinfo(taken).si_signo).name)
  >     print("took", names[-1], flush=True)
  > while more := signal.sigtimedwait(taken, 0.1):
  >     names.append(signal.Signals(more.si_signo).name)
  > print("in all:", *names, "end")
  > END
  $ cat >sleeping <<'END'
  > #!/usr/bin/env python3
  > """Sleeps until one of the signals comes that end a program, and may come more than once."""
  > import contextlib, os, signal, sys
  > ends = {signal.SIGHUP, signal.SIGINT, signal.SIGTERM}
  > signal.pthread_sigmask(signal.SIG_BLOCK, ends)
  > os.write(1, b"started\n")
  > signal.sigwait(ends)
  > with contextlib.suppress(OSError):  # Where the terminal is gone.
  >     os.write(1, b"told\n")
  > sys.exit(4)
  > END
  $ chmod +x waiting counting sleeping

Ctrl-C ends the command:

  $ "$TESTDIR/terminal" <<'END'
  > await shell>
  > type vmetrics run --step s --metrics log -- ./waiting
  > await started
  > press C
  > await shell>
  > type echo status $?
  > await status 130
  > await shell>
  > END
  $ error_code
  130

And a loop around it:

  $ "$TESTDIR/terminal" <<'END'
  > await shell>
  > type for i in 1 2 3; do vmetrics run --step s --metrics loop -- ./waiting; done; echo the shell goes on
  > await started
  > press C
  > await shell>
  > END
  $ wc -l <loop
  1
  $ cat >loop.sh <<'END'
  > for i in 1 2 3; do vmetrics run --step s --metrics loop.log -- ./waiting; done
  > END
  $ "$TESTDIR/terminal" <<'END'
  > await shell>
  > type bash loop.sh
  > await started
  > press C
  > await shell>
  > END
  $ wc -l <loop.log
  1

A command that has its own way with what the terminal sends gets it once:

  $ "$TESTDIR/terminal" <<'END'
  > await shell>
  > type vmetrics run --step s --metrics log -- ./counting SIGINT SIGTSTP
  > await started
  > press C
  > await took SIGINT
  > press Z
  > await took SIGTSTP
  > press \
  > await in all: SIGINT SIGTSTP SIGQUIT end
  > await shell>
  > END
  $ error_code
  0

Ctrl-Z stops both, and the shell lets both go on:

  $ "$TESTDIR/terminal" <<'END'
  > await shell>
  > type vmetrics run --step s --metrics log -- ./waiting
  > await started
  > press Z
  > await Stopped
  > await shell>
  > type fg
  > await vmetrics run
  > type hello
  > await read hello
  > await shell>
  > type echo status $?
  > await status 5
  > await shell>
  > END
  $ error_code
  5
  $ "$TESTDIR/terminal" <<'END'
  > await shell>
  > type vmetrics run --step s --metrics log -- ./counting SIGCONT
  > await started
  > press Z
  > await Stopped
  > await shell>
  > type fg
  > await vmetrics run
  > await took SIGCONT
  > press \
  > await in all: SIGCONT SIGQUIT end
  > await shell>
  > END

Sent to vmetrics alone they do the same:

  $ "$TESTDIR/terminal" <<'END'
  > await shell>
  > type set -b
  > await shell>
  > type vmetrics run --step s --metrics log -- ./sleeping &
  > await started
  > type kill -TSTP $!
  > await Stopped
  > type kill -CONT $!; kill -TERM $!
  > await told
  > await Exit 4
  > END
  $ error_code
  4

Sent to the whole group by another process:

  $ "$TESTDIR/terminal" <<'END'
  > await shell>
  > type set -b
  > await shell>
  > type vmetrics run --step s --metrics log -- ./sleeping &
  > await started
  > type kill -TSTP %1
  > await Stopped
  > type kill -CONT %1; kill -TERM %1
  > await told
  > await Exit 4
  > END

In the background the command may not read from the terminal; in the foreground it goes on:

  $ "$TESTDIR/terminal" <<'END'
  > await shell>
  > type set -b
  > await shell>
  > type vmetrics run --step s --metrics log -- ./waiting &
  > await Stopped
  > type jobs -l
  > await Stopped (tty input)
  > await shell>
  > type fg
  > await vmetrics run
  > type hello
  > await read hello
  > await shell>
  > END
  $ error_code
  5

A pipeline of two stops and goes on as one:

  $ "$TESTDIR/terminal" <<'END'
  > await shell>
  > type vmetrics run --step a --metrics log -- ./waiting | vmetrics run --step b --metrics log -- cat
  > await started
  > press Z
  > await Stopped
  > await shell>
  > type fg
  > await vmetrics run
  > type hello
  > await read hello
  > await shell>
  > END
  $ tail -n 2 log | sed -E 's/.*"stepName":"(.)","errorCode":(.).*/\1 \2/' | sort
  a 5
  b 0

A command that leaves the group, as timeout does, still hears the terminal, with all of its own group:

  $ "$TESTDIR/terminal" <<'END'
  > await shell>
  > type vmetrics run --step s --metrics log -- timeout 60 ./sleeping
  > await started
  > press C
  > await told
  > await shell>
  > END
  $ error_code
  4

  $ "$TESTDIR/terminal" <<'END'
  > await shell>
  > type vmetrics run --step s --metrics log -- setsid sh -c './sleeping; exit 9'
  > await started
  > press C
  > await told
  > await shell>
  > END
  $ error_code
  130

A shell with jobs of its own:

  $ "$TESTDIR/terminal" <<'END'
  > await shell>
  > type vmetrics run --step s --metrics log -- bash --norc --noprofile -i
  > await shell>
  > type ./waiting
  > await started
  > press Z
  > await Stopped
  > await shell>
  > type fg
  > await ./waiting
  > type hello
  > await read hello
  > await shell>
  > type exit 3
  > await shell>
  > type echo status $?
  > await status 3
  > await shell>
  > END
  $ error_code
  3

When the terminal goes away, the leader of its session alone is told by the system. Were vmetrics not
there, that would be the command:

  $ "$TESTDIR/terminal" vmetrics run --step s --metrics log -- ./sleeping <<'END'
  > await started
  > hang up
  > END
  $ error_code
  4
