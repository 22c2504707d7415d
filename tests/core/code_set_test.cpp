#include "core/code_set.h"

#include <gtest/gtest.h>

namespace taviinputmanager {
namespace {

std::vector<int> Walk(const CodeSet& set) { return {set.begin(), set.end()}; }

TEST(CodeSet, IsWalkedInAscendingOrder) {
  CodeSet set;
  for (const int code : {30, 1, 272, 30}) set.Add(code);
  EXPECT_EQ((std::vector<int>{1, 30, 272}), Walk(set));
}

TEST(CodeSet, RemovesWhatItHolds) {
  CodeSet set;
  set.Add(30);
  set.Remove(31);
  EXPECT_TRUE(set.Contains(30));
  set.Remove(30);
  EXPECT_FALSE(set.Contains(30));
  EXPECT_TRUE(set.IsEmpty());
}

}  // namespace
}  // namespace taviinputmanager
