Wrong usage is told on standard error, with exit status 2:

  $ vmetrics
  vmetrics: A subcommand is required; see vmetrics --help
  [2]

  $ vmetrics unknown
  vmetrics: there is no subcommand unknown; see vmetrics --help
  [2]

The version:

  $ vmetrics --version
  vmetrics 1.0.0
