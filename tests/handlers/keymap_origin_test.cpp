#include "handlers/keymap_origin.h"

#include <gtest/gtest.h>

namespace taviinputmanager {
namespace {

// The tests include programs with functions that override them.
TEST(KeymapOrigin, IsTheLibraryInAnOrdinaryProgram) {
  EXPECT_TRUE(IsKeyCreationOwn());
  EXPECT_TRUE(IsKeyMatchOwn());
}

}  // namespace
}  // namespace taviinputmanager
