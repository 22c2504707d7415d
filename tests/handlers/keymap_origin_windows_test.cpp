#include <gtest/gtest.h>

#include "handlers/keymap_origin.h"

namespace taviinputmanager {
namespace {

// The functions are ours here, but on this system the library cannot tell.
TEST(KeymapOrigin, IsUnknown) {
  EXPECT_FALSE(IsKeyCreationOwn());
  EXPECT_FALSE(IsKeyMatchOwn());
}

}  // namespace
}  // namespace taviinputmanager
