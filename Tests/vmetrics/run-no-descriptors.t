Where too many files are open for a pipe to the command, it is not run. The sanitizer of undefined
behaviour looks at memory through a pipe of its own, and takes for damaged what it cannot look at:

  $ ! grep -q __ubsan_handle "$(command -v vmetrics)" || exit 80

  $ sh -c 'ulimit -n 5; exec vmetrics run --step s --metrics log -- echo hello'
  vmetrics: no pipe to the command: Too many open files
  [125]
