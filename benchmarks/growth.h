// How cost grows with what is there: items of the keymap, workers that are alive.
#ifndef BENCHMARKS_GROWTH_H_
#define BENCHMARKS_GROWTH_H_

namespace taviinputmanager::bench {

// Registers "growth/WHAT/BY/SIZE" for each curve and size.
void RegisterGrowth();

}  // namespace taviinputmanager::bench

#endif  // BENCHMARKS_GROWTH_H_
