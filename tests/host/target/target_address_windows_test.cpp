#include <gtest/gtest.h>

#include "host/target/target_address.h"

namespace tavi {
namespace {

TEST(TargetAddress, OfWhatNeedsAnotherSystemIsRefused) {
  EXPECT_EQ(ParseTarget("exec:cat > lines", false).problem, QString("commands need /bin/sh, which this system lacks"));
  EXPECT_EQ(ParseTarget("uinput", false).problem, QString("this build does not support input devices"));
}

}  // namespace
}  // namespace tavi
