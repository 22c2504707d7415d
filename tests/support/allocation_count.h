// Counts what is taken from the heap.
#ifndef TESTS_SUPPORT_ALLOCATION_COUNT_H_
#define TESTS_SUPPORT_ALLOCATION_COUNT_H_

#include <cstdint>

namespace taviinputmanager::test {

// Whether this build counts. Sanitizers bring a heap of their own.
bool CountsAllocations();

// Blocks that the calling thread has asked for since it began, by malloc, calloc, realloc or operator new, of the tree
// and of every library under it. A program that asks is one whose heap is watched.
std::int64_t AllocationCount();

}  // namespace taviinputmanager::test

#endif  // TESTS_SUPPORT_ALLOCATION_COUNT_H_
