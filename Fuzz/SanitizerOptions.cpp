// A short memory for freed blocks and no stacks of their allocation: twice as many inputs a second.
// What is found is looked at with the tests' own presets anyway.

extern "C" const char* __asan_default_options() {
  return "quarantine_size_mb=8:thread_local_quarantine_size_kb=64:malloc_context_size=1";
}
