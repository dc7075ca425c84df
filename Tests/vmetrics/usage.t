Wrong usage is told on standard error, with exit status 2:

  $ vmetrics
  vmetrics: A subcommand is required; see vmetrics --help
  [2]

  $ vmetrics unknown
  vmetrics: there is no subcommand unknown; see vmetrics --help
  [2]

  $ vmetrics --unknown
  vmetrics: there is no option --unknown; see vmetrics --help
  [2]

The help that is named is that of the subcommand:

  $ vmetrics catalogue lint --unknown log
  vmetrics: not understood: --unknown log; see vmetrics catalogue lint --help
  [2]
  $ vmetrics catalogue lint
  vmetrics: catalogue lint needs a file, --definitions FILE or --event-definitions FILE; see vmetrics catalogue lint --help
  [2]
  $ vmetrics check --format json --format text log
  vmetrics: --format is given more than once; see vmetrics check --help
  [2]
  $ vmetrics check --ignore unknown log
  vmetrics: --ignore: "unknown" is no kind of findings; see vmetrics check --help
  [2]
  $ vmetrics check --max 18446744073709551616 log
  vmetrics: --max: "18446744073709551616" is no whole number from 0 to 18446744073709551615; see vmetrics check --help
  [2]
  $ vmetrics check --max -1 log
  vmetrics: --max: "-1" is no whole number from 0 to 18446744073709551615; see vmetrics check --help
  [2]
  $ vmetrics check --max '' log
  vmetrics: --max: "" is no whole number from 0 to 18446744073709551615; see vmetrics check --help
  [2]

Standard input can be read only once:

  $ vmetrics stats - - </dev/null
  vmetrics: standard input can be read only once: name a file instead of -; see vmetrics stats --help
  [2]
  $ vmetrics stats --definitions - </dev/null
  vmetrics: standard input can be read only once: name a file instead of -; see vmetrics stats --help
  [2]
  $ vmetrics check --definitions - </dev/null
  vmetrics: standard input can be read only once: name a file instead of -; see vmetrics check --help
  [2]
  $ vmetrics check - log - </dev/null
  vmetrics: standard input can be read only once: name a file instead of -; see vmetrics check --help
  [2]
  $ vmetrics trace - - </dev/null
  vmetrics: standard input can be read only once: name a file instead of -; see vmetrics trace --help
  [2]
  $ vmetrics decode --event-definitions - </dev/null
  vmetrics: standard input can be read only once: name a file instead of -; see vmetrics decode --help
  [2]
  $ vmetrics decode - - </dev/null
  vmetrics: standard input can be read only once: name a file instead of -; see vmetrics decode --help
  [2]
  $ vmetrics catalogue --definitions - --event-definitions - </dev/null
  vmetrics: standard input can be read only once: name a file instead of -; see vmetrics catalogue --help
  [2]
  $ vmetrics catalogue lint --definitions - --definitions - </dev/null
  vmetrics: standard input can be read only once: name a file instead of -; see vmetrics catalogue lint --help
  [2]
  $ vmetrics encode --definitions - --definitions - 5 1 --hex </dev/null
  vmetrics: standard input can be read only once: name a file instead of -; see vmetrics encode --help
  [2]
  $ vmetrics stats --compare - --definitions - log </dev/null
  vmetrics: standard input can be read only once: name a file instead of -; see vmetrics stats --help
  [2]

Once is enough:

  $ printf '5;int;x;1\n' >x.def
  $ printf '{"eventId":"5","timestamp":1,"moduleId":0,"terminalId":"7","args":{"x":1}}\n' >x.log
  $ vmetrics check --definitions - x.log <x.def
  vmetrics: 1 record checked, no finding
  $ vmetrics check --definitions x.def - <x.log
  vmetrics: 1 record checked, no finding
  $ vmetrics check --definitions x.def <x.log
  vmetrics: 1 record checked, no finding

Output that cannot be written, and complaints that cannot:

  $ vmetrics --help >/dev/full
  vmetrics: standard output: No space left on device
  [2]
  $ vmetrics stats --help >/dev/full
  vmetrics: standard output: No space left on device
  [2]
  $ vmetrics catalogue lint --definitions x.def >/dev/full
  vmetrics: standard output: No space left on device
  [2]
  $ vmetrics check --unknown 2>/dev/full
  [2]
  $ vmetrics catalogue lint --definitions missing 2>/dev/full
  [2]

The version:

  $ vmetrics --version
  vmetrics 1.0.0
