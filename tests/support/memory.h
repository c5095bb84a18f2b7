#pragma once
// How much memory the test process holds: what the system gives it, and what the heap has handed
// out and not had back (the sanitizers' own count under them).

namespace contarello::test {

double ResidentMB();
long long HeapInUse();

} // namespace contarello::test
