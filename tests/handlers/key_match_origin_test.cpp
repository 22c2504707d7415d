#include "handlers/key_match_origin.h"

#include <gtest/gtest.h>

namespace taviinputmanager {
namespace {

// A program with a function in front of it is among the tests beside these.
TEST(KeyMatchOrigin, IsTheLibrarysInAnOrdinaryProgram) { EXPECT_TRUE(IsKeyMatchOwn()); }

}  // namespace
}  // namespace taviinputmanager
