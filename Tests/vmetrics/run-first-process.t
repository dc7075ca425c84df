As the first process of a container, which the system lets no signal of its own end:

  $ first() { unshare --map-root-user --pid --fork "$@"; }
  $ first true 2>/dev/null || exit 80

  $ first vmetrics run --step s --metrics log -- sh -c 'kill -TERM $$'
  [143]
  $ first vmetrics run --step s --metrics log -- sh -c 'kill -KILL $$'
  [137]
