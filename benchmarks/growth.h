// How the cost grows with the number of items in the keymap and of live workers.
#ifndef BENCHMARKS_GROWTH_H_
#define BENCHMARKS_GROWTH_H_

namespace taviinputmanager::bench {

// Registers "growth/WHAT/BY/SIZE" for each curve and size.
void RegisterGrowth();

}  // namespace taviinputmanager::bench

#endif  // BENCHMARKS_GROWTH_H_
