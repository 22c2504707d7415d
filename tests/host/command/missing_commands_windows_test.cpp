// The commands that play on devices of the Linux kernel.
#include "tests/support/program.h"

namespace tavi {
namespace {

class MissingCommands : public Program {};

TEST_F(MissingCommands, SayWhatTheyNeed) {
  const struct {
    const char* command;
    const char* needs;
  } rows[] = {{"play", "Linux and libevdev"}, {"guest-uinput", "Linux"}};
  for (const auto& row : rows) {
    SCOPED_TRACE(row.command);
    const Outcome outcome = Run({row.command, "--dry-run"});
    EXPECT_EQ(outcome.status, 2);
    EXPECT_EQ(outcome.output, QString());
    EXPECT_EQ(outcome.errors,
              QStringLiteral("tavi %1: this program was built without it; it needs %2\n").arg(row.command, row.needs));
    EXPECT_TRUE(Run({row.command, "--help"}).output.contains(QStringLiteral("it needs %1.\n").arg(row.needs)));
  }
}

}  // namespace
}  // namespace tavi
