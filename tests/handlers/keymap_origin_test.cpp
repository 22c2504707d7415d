#include "handlers/keymap_origin.h"

#include <gtest/gtest.h>

namespace taviinputmanager {
namespace {

// Programs with functions in front of them are among the tests beside these.
TEST(KeymapOrigin, IsTheLibraryInAnOrdinaryProgram) {
  EXPECT_TRUE(IsKeyCreationOwn());
  EXPECT_TRUE(IsKeyMatchOwn());
}

}  // namespace
}  // namespace taviinputmanager
