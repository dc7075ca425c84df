# How the fuzzers are run, for bin/check and bin/soak to read in. Not a command.
#
# In Fuzz/corpus, what has a name was written by hand, what has a number was found by the fuzzers and
# reaches branches that the former do not. A finding goes there, too, once it is fixed.

fuzzers() { ls Fuzz/corpus; }

build_fuzzers() {
  bin/install-packages clang libclang-rt-14-dev
  bin/build fuzz
}

# Runs one fuzzer from the corpus and from what it learnt before, and prints its executions.
# usage: fuzz_one SUBJECT SECONDS
fuzz_one() {
  work=build/fuzz
  mkdir -p "$work/corpus/$1" "$work/findings" "$work/logs"
  log=$work/logs/$1
  # Leaks are looked for at the end: the table of transactions stays from one input to the next.
  if "$work/Fuzz/fuzz_$1" "$work/corpus/$1" "Fuzz/corpus/$1" -max_total_time="$2" -max_len=512 \
    -timeout=60 -detect_leaks=0 -entropic_scale_per_exec_time=1 -print_final_stats=1 \
    -artifact_prefix="$work/findings/$1-" >"$log" 2>&1; then
    awk -v subject="$1" '/number_of_executed_units/ {
        printf "%-16s %12d executions, 0 findings\n", subject, $2 }' "$log"
  else
    printf '%-16s a finding, kept in %s:\n' "$1" "$work/findings"
    tail -n 40 "$log"
    return 1
  fi
}

# Runs all fuzzers, as many at a time as there are processors, for so many seconds altogether.
# usage: fuzz_all SECONDS
fuzz_all() {
  subjects=$(fuzzers)
  processors=$(nproc)
  # shellcheck disable=SC2086  # The subjects are words.
  share=$(($1 * processors / $(set -- $subjects && echo $#)))
  [ "$share" -gt 0 ] || share=1
  status=0
  # shellcheck disable=SC2016  # The inner shell expands these.
  results=$(printf '%s\n' $subjects |
    xargs --max-procs="$processors" --max-args=1 \
      sh -c '. Fuzz/run.sh; fuzz_one "$1" "$0"' "$share") || status=1
  printf '%s\n' "$results"
  printf '%s\n' "$results" |
    awk '/ executions/ { all += $2 } END { printf "%-16s %12d executions\n", "all", all }'
  return "$status"
}
