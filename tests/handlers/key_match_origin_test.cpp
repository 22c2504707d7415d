#include "handlers/key_match_origin.h"

#include <gtest/gtest.h>

namespace taviinputmanager {
namespace {

// The tests include a program with a function that overrides it.
TEST(KeyMatchOrigin, IsTheLibrarysInAnOrdinaryProgram) { EXPECT_TRUE(IsKeyMatchOwn()); }

}  // namespace
}  // namespace taviinputmanager
