/// What a probe does with several threads.
#ifndef PROBETHREADS_H_
#define PROBETHREADS_H_

/// The process's first step event while others fail its argument checks, then everything at once;
/// each of the `threads` says `rounds` identifiers, and what is not as it should be as "wrong".
void CallFromThreads(int threads, int rounds);

/// Forks `children` one after another while threads report, render and read the span file. Each
/// child calls everything; "children" says how many came to their end.
void ForkAmongThreads(int children);

#endif  // PROBETHREADS_H_
