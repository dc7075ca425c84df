On terminals of 60 and of 200 columns. Nothing is cut, and no line is longer than 60 columns:

  $ . "$TESTDIR/data/steps.sh"
  $ on() { script --quiet --return --command "stty cols $1; TERM=dumb $2" /dev/null | tr -d '\r'; }
  $ for i in $(seq 10); do
  >   step Connect $((1000 + i))
  >   step 'negotiate the capabilities of both sides of the connection' $((20 * i))
  >   metric 654966786 "{\"fileshareFileSize\":$((i * 123456789))}"
  > done > old
  $ sed 's/"usedTime":10/"usedTime":21/; s/"errorCode":0,"isSuccess":1/"errorCode":-5,"isSuccess":0/' old > new

  $ on 60 'vmetrics stats new'
  STEP (ms)
    COUNT  FAILED    RATE   MIN  MEDIAN   P95   P99   MAX
  Connect
       10      10  100.0%  2101    2105  2110  2110  2110
      error codes: -5 (10)
  negotiate the capabilities of both sides of the connection
       10      10  100.0%    20     120   210   210   210
      error codes: -5 (10)
  
  METRIC  COUNT     MIN  MEDIAN     P95     P99     MAX
  fileshareFileSize (654966786)
             10  123.5M  617.3M  1.235G  1.235G  1.235G
  $ on 200 'vmetrics stats new'
  STEP (ms)                                                   COUNT  FAILED    RATE   MIN  MEDIAN   P95   P99   MAX
  Connect                                                        10      10  100.0%  2101    2105  2110  2110  2110
      error codes: -5 (10)
  negotiate the capabilities of both sides of the connection     10      10  100.0%    20     120   210   210   210
      error codes: -5 (10)
  
  METRIC                         COUNT     MIN  MEDIAN     P95     P99     MAX
  fileshareFileSize (654966786)     10  123.5M  617.3M  1.235G  1.235G  1.235G
  $ on 60 'vmetrics stats --compare old new'
    STEP (ms)
     COUNT    FAILED %             MEDIAN                 P95
  ! Connect
    10->10  0.0->100.0 +100.0  1005->2105 +109.5%  1010->2110 +108.9%
  ! negotiate the capabilities of both sides of the connection
    10->10  0.0->100.0 +100.0    100->120  +20.0%    200->210   +5.0%
  
    METRIC   COUNT          MEDIAN              P95
    fileshareFileSize (654966786)
            10->10  617.3M->617.3M   1.235G->1.235G
  
  ! worse: the median grew by more than 10%,
    or the failure rate by more than 10 percentage points
  2 steps are worse.
  $ on 200 'vmetrics stats --compare old new'
    STEP (ms)                                                    COUNT    FAILED %             MEDIAN                 P95
  ! Connect                                                     10->10  0.0->100.0 +100.0  1005->2105 +109.5%  1010->2110 +108.9%
  ! negotiate the capabilities of both sides of the connection  10->10  0.0->100.0 +100.0    100->120  +20.0%    200->210   +5.0%
  
    METRIC                          COUNT          MEDIAN              P95
    fileshareFileSize (654966786)  10->10  617.3M->617.3M   1.235G->1.235G
  
  ! worse: the median grew by more than 10%,
    or the failure rate by more than 10 percentage points
  2 steps are worse.
  $ on 60 'vmetrics stats --by hour new'
  STEP (ms)
    COUNT  FAILED    RATE   MIN  MEDIAN   P95   P99   MAX
  Connect
    2026-11-20 15:00
       10      10  100.0%  2101    2105  2110  2110  2110
      error codes: -5 (10)
  negotiate the capabilities of both sides of the connection
    2026-11-20 15:00
       10      10  100.0%    20     120   210   210   210
      error codes: -5 (10)
  
  METRIC  COUNT     MIN  MEDIAN     P95     P99     MAX
  fileshareFileSize (654966786)
    2026-11-20 15:00
             10  123.5M  617.3M  1.235G  1.235G  1.235G

In colours, unless that is not wanted:

  $ script --quiet --return --command 'TERM=xterm vmetrics stats --step Connect new' /dev/null | tr -d '\r' | cat -v
  ^[[1mSTEP (ms)  COUNT  FAILED    RATE   MIN  MEDIAN   P95   P99   MAX^[[0m
  ^[[31mConnect       10      10  100.0%  2101    2105  2110  2110  2110^[[0m
      error codes: -5 (10)
  $ script --quiet --return --command 'NO_COLOR=1 TERM=xterm vmetrics stats --step Connect new' /dev/null | tr -d '\r' | cat -v
  STEP (ms)  COUNT  FAILED    RATE   MIN  MEDIAN   P95   P99   MAX
  Connect       10      10  100.0%  2101    2105  2110  2110  2110
      error codes: -5 (10)
