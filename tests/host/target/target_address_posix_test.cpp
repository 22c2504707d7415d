#include <gtest/gtest.h>

#include "host/target/target_address.h"

namespace tavi {
namespace {

TEST(TargetAddress, OfACommandIsTheCommand) {
  const struct {
    const char* text;
    const char* command;
  } rows[] = {{"exec:cat > lines", "cat > lines"}, {"exec: ssh phone 'a:b' ", "ssh phone 'a:b'"}};
  for (const auto& row : rows) {
    SCOPED_TRACE(row.text);
    const ParsedTarget parsed = ParseTarget(row.text, false);
    EXPECT_EQ(parsed.problem, QString());
    EXPECT_EQ(parsed.address.kind, TargetAddress::Kind::kCommand);
    EXPECT_EQ(parsed.address.text, QString(row.text));
    EXPECT_EQ(parsed.address.place, QString(row.command));
    EXPECT_EQ(parsed.address.port, 0);
  }
}

}  // namespace
}  // namespace tavi
