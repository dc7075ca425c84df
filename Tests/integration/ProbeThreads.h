/// What a probe does with several threads.
#ifndef PROBETHREADS_H_
#define PROBETHREADS_H_

/// The process's first step event while others fail its argument checks, then everything at once;
/// each of the `threads` says `rounds` identifiers, and what is not as it should be as "wrong".
void CallFromThreads(int threads, int rounds);

/// Forks `children` one after another while threads report, render and read the span file. Each
/// child calls everything, while its parent traces a step of the transaction "parent"; "children"
/// says how many came to their end.
void ForkAmongThreads(int children);

/// Starts `programs` one after another while threads report, render and read the span
/// file, each after a step. Each is a probe that says its descriptors and nothing else.
void ExecAmongThreads(int programs);

#endif  // PROBETHREADS_H_
