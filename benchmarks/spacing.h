// How evenly timed workers tick.
#ifndef BENCHMARKS_SPACING_H_
#define BENCHMARKS_SPACING_H_

namespace taviinputmanager::bench {

// Runs a walk and a curve of the library, whose workers tick each 8 ms on the main thread and on one of their own, a
// bare precise timer and clock_nanosleep, one after the other, on an idle machine and with a busy thread a core. Prints
// the times between ticks as JSON: [{"name": ..., "load": ..., "median_ms": ..., "p99_ms": ...}, ...]. Takes real time.
int PrintSpacing();

}  // namespace taviinputmanager::bench

#endif  // BENCHMARKS_SPACING_H_
