#include <gtest/gtest.h>

#include "handlers/keymap_origin.h"

namespace taviinputmanager {
namespace {

// Other test programs override these functions.
TEST(KeymapOrigin, IsTheLibraryInAnOrdinaryProgram) {
  EXPECT_TRUE(IsKeyCreationOwn());
  EXPECT_TRUE(IsKeyMatchOwn());
}

}  // namespace
}  // namespace taviinputmanager
