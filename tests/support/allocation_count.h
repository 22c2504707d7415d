// Counts heap allocations.
#ifndef TESTS_SUPPORT_ALLOCATION_COUNT_H_
#define TESTS_SUPPORT_ALLOCATION_COUNT_H_

#include <cstdint>

namespace taviinputmanager::test {

// Whether this build counts. Sanitizers have a heap of their own.
bool CountsAllocations();

// The number of blocks that the calling thread has allocated since it started, by malloc, calloc, realloc or operator
// new, in the tree and every library that it uses. Calling this function links the counting into the program.
std::int64_t AllocationCount();

}  // namespace taviinputmanager::test

#endif  // TESTS_SUPPORT_ALLOCATION_COUNT_H_
