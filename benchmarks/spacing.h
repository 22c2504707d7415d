// Measures how evenly timed workers tick.
#ifndef BENCHMARKS_SPACING_H_
#define BENCHMARKS_SPACING_H_

namespace taviinputmanager::bench {

// Runs, in sequence, on an idle machine and with a busy thread per core: a walk and a curve of the library, whose
// workers tick every 8 ms on the main thread and on a thread of their own, a bare precise timer and clock_nanosleep.
// Prints the times between ticks as JSON: [{"name": ..., "load": ..., "median_ms": ..., "p99_ms": ...}, ...]. Takes
// real time.
int PrintSpacing();

}  // namespace taviinputmanager::bench

#endif  // BENCHMARKS_SPACING_H_
