#include "handlers/keymap_origin.h"

#include <gtest/gtest.h>

namespace taviinputmanager {
namespace {

// Other test programs override these functions.
TEST(KeymapOrigin, IsTheLibraryInAnOrdinaryProgram) {
  EXPECT_TRUE(IsKeyCreationOwn());
  EXPECT_TRUE(IsKeyMatchOwn());
}

}  // namespace
}  // namespace taviinputmanager
