What is not understood is told, with exit status 2:

  $ vmetrics stats --unknown
  vmetrics: not understood: --unknown; see vmetrics stats --help
  [2]
  $ vmetrics stats --format xml
  vmetrics: --format: "xml" is none of table, json, csv; see vmetrics stats --help
  [2]
  $ vmetrics stats --by week
  vmetrics: --by: "week" is none of hour, day; see vmetrics stats --help
  [2]
  $ vmetrics stats --metric 4294967296
  vmetrics: --metric: 4294967296 is no metric ID; see vmetrics stats --help
  [2]
  $ vmetrics stats --metric displayFPS
  vmetrics: --metric: displayFPS is no metric ID; see vmetrics stats --help
  [2]
  $ vmetrics stats --threshold 5 log
  vmetrics: --threshold requires --compare; see vmetrics stats --help
  [2]
  $ vmetrics stats --min-growth 5 log
  vmetrics: --min-growth requires --compare; see vmetrics stats --help
  [2]
  $ vmetrics stats --min-count 5 log
  vmetrics: --min-count requires --compare; see vmetrics stats --help
  [2]
  $ vmetrics stats --compare old --by day
  vmetrics: --by excludes --compare; see vmetrics stats --help
  [2]
  $ vmetrics stats --compare old --threshold -1 new
  vmetrics: --threshold: "-1" is no number from 0 on; see vmetrics stats --help
  [2]
  $ vmetrics stats --compare old --threshold nan new
  vmetrics: --threshold: "nan" is no number from 0 on; see vmetrics stats --help
  [2]
  $ vmetrics stats --compare old --min-growth 1e999 new
  vmetrics: --min-growth: "1e999" is no number from 0 on; see vmetrics stats --help
  [2]
  $ vmetrics stats --compare old --min-count 1.5 new
  vmetrics: --min-count: "1.5" is no whole number from 0 to 18446744073709551615; see vmetrics stats --help
  [2]
  $ vmetrics stats --compare -
  vmetrics: standard input can be read only once: name a file instead of -; see vmetrics stats --help
  [2]
  $ vmetrics stats --compare - - < /dev/null
  vmetrics: standard input can be read only once: name a file instead of -; see vmetrics stats --help
  [2]
  $ vmetrics stats --compare
  vmetrics: --compare needs a value; see vmetrics stats --help
  [2]
  $ vmetrics stats --definitions missing
  vmetrics: missing: No such file or directory
  [2]

The help:

  $ vmetrics stats --help
  Sums up metrics logs: for each step its durations, failures and most frequent
  error codes, for each metric with a numeric ID its values. With --compare,
  against an older log; the exit status is 1 if a step is worse.
  Usage: vmetrics stats [OPTIONS] [file...]
  
  Positionals:
    file FILE ...               Metrics logs, plain or compressed by gzip; - or
                                none is standard input
  
  Options:
    -h,--help                   Print this help message and exit
    --by hour|day               Sum up each hour or day (UTC) by itself
    --step NAME                 Only that step; may be given again
    --metric ID                 Only that metric, its ID decimal or hexadecimal;
                                may be given again
    --format FORMAT             table, json, csv; without this option table
    --compare OLD               Show what has changed since the log OLD, - for
                                standard input
    --threshold PERCENT         A step is worse if its median grew by more than
                                that, or its failure rate by more than so many
                                percentage points; 10 unless given
    --min-growth MS             No median counts as grown that grew by less; 0
                                unless given
    --min-count COUNT           No step is judged that has fewer records in one of
                                the logs; 1 unless given
    --definitions FILE          Add the metrics of FILE, "ID;type;name;private" a
                                line; may be repeated
    --event-definitions FILE    The same for metrics with an event ID
    --show-private              Show the values of private metrics and the names
                                of their members, masked otherwise
  
  Example:
    vmetrics stats client.log agent.log.gz
    vmetrics stats --compare release-1.log --threshold 20 release-2.log
