#include "tests/support/allocation_count.h"

#include <cstddef>

#if defined(__has_feature)
#define TAVI_HAS_FEATURE(feature) __has_feature(feature)
#else
#define TAVI_HAS_FEATURE(feature) 0
#endif

#if defined(__GLIBC__) && !defined(__SANITIZE_ADDRESS__) && !defined(__SANITIZE_THREAD__) && \
    !TAVI_HAS_FEATURE(address_sanitizer) && !TAVI_HAS_FEATURE(thread_sanitizer)

namespace {

thread_local std::int64_t allocation_count = 0;

}  // namespace

// Override the functions of the C library, which operator new and Qt's containers call; so they are exported even where
// everything else is hidden. The names that they call are glibc's own.
#pragma GCC visibility push(default)
extern "C" {

void* __libc_malloc(std::size_t size);
void* __libc_calloc(std::size_t count, std::size_t size);
void* __libc_realloc(void* block, std::size_t size);

void* malloc(std::size_t size) noexcept {
  ++allocation_count;
  return __libc_malloc(size);
}

void* calloc(std::size_t count, std::size_t size) noexcept {
  ++allocation_count;
  return __libc_calloc(count, size);
}

void* realloc(void* block, std::size_t size) noexcept {
  ++allocation_count;
  return __libc_realloc(block, size);
}

}  // extern "C"
#pragma GCC visibility pop

namespace taviinputmanager::test {

bool CountsAllocations() { return true; }

std::int64_t AllocationCount() { return allocation_count; }

}  // namespace taviinputmanager::test

#else

namespace taviinputmanager::test {

bool CountsAllocations() { return false; }

std::int64_t AllocationCount() { return 0; }

}  // namespace taviinputmanager::test

#endif
