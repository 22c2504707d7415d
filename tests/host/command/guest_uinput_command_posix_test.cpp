// The program as a guest.
#include "tests/support/program.h"

namespace tavi {
namespace {

class GuestUinput : public Program {
 protected:
  Outcome DryRun(const QByteArray& input, const QStringList& options = {}) {
    return Run(QStringList{"guest-uinput", "--dry-run"} + options, input);
  }
};

constexpr char kKeyDown[] =
    "keyboard EV_KEY KEY_A 1\n"
    "keyboard EV_SYN SYN_REPORT 0\n";

TEST_F(GuestUinput, PrintsTheKernelsEvents) {
  const Outcome outcome = DryRun("1:KBDPR:30:1\n");
  EXPECT_EQ(outcome.status, 0);
  EXPECT_EQ(outcome.output, QLatin1String(kKeyDown));
  EXPECT_EQ(outcome.errors, QString());
}

TEST_F(GuestUinput, ReadsAFile) {
  Write("lines", "1:KBDPR:30:1\n");
  EXPECT_EQ(DryRun({}, {"--input", "lines"}).output, QLatin1String(kKeyDown));
  const Outcome missing = DryRun({}, {"--input", "none"});
  EXPECT_EQ(missing.status, 2);
  EXPECT_TRUE(missing.errors.startsWith("none: cannot be read: ")) << missing.errors.toStdString();
  EXPECT_EQ(DryRun({}, {"--input", "."}).status, 1);  // can be opened but not read
}

TEST_F(GuestUinput, TellsOfALineAndGoesOn) {
  const Outcome outcome = DryRun("1:NOTHING\n1:KBDPR:30:1\n");
  EXPECT_EQ(outcome.status, 1);
  EXPECT_EQ(outcome.output, QLatin1String(kKeyDown));
  EXPECT_EQ(outcome.errors, QStringLiteral("tavi guest-uinput: not understood: 1:NOTHING\n"));
}

TEST_F(GuestUinput, TellsOfALineThatIsTooLongAndGoesOn) {
  const Outcome outcome = DryRun("1:" + QByteArray(70000, 'A') + "\n1:KBDPR:30:1\n");
  EXPECT_EQ(outcome.status, 1);
  EXPECT_EQ(outcome.output, QLatin1String(kKeyDown));
  EXPECT_EQ(outcome.errors, "tavi guest-uinput: ignored, longer than 65536 bytes: 1:" + QString(38, 'A') + "...\n");
}

TEST_F(GuestUinput, TakesItsSizeAndDisplay) {
  const Outcome outcome = DryRun("1:KBDPR:30:1\n2:MOUSEMOVE_REL:640:360\n", {"--size", "100x50", "--display", "2"});
  EXPECT_EQ(outcome.output, QStringLiteral("pointer EV_ABS ABS_X 99\n"
                                           "pointer EV_ABS ABS_Y 49\n"
                                           "pointer EV_SYN SYN_REPORT 0\n"));
}

TEST_F(GuestUinput, RefusesWhatItDoesNotKnow) {
  const struct {
    QStringList arguments;
    const char* error;
  } rows[] = {
      {{"--size", "wide"}, "--size needs a size such as 1280x720, not \"wide\""},
      {{"--display", "main"}, "--display needs a number, not \"main\""},
      {{"lines.txt"}, "\"lines.txt\" is not an option"},
      {{"--verbose"}, "unknown option \"--verbose\""},
  };
  for (const auto& row : rows) {
    SCOPED_TRACE(row.error);
    const Outcome outcome = DryRun({}, row.arguments);
    EXPECT_EQ(outcome.status, 2);
    EXPECT_EQ(
        outcome.errors,
        QStringLiteral("tavi guest-uinput: %1\nTry \"tavi guest-uinput --help\".\n").arg(QLatin1String(row.error)));
  }
}

// The test does not wait an hour.
TEST_F(GuestUinput, ADryRunOfATimelineDoesNotWait) {
  EXPECT_EQ(DryRun("0ms ! mapped 1\n3600000ms 1:KBDPR:30:1\n", {"--timeline"}).output, QLatin1String(kKeyDown));
}

TEST_F(GuestUinput, TellsWhenThereIsNoUinput) {
  if (QFile::exists(QStringLiteral("/dev/uinput"))) GTEST_SKIP() << "/dev/uinput is here";
  const Outcome outcome = Run({"guest-uinput"});
  EXPECT_EQ(outcome.status, 2);
  EXPECT_EQ(outcome.output, QString());
  EXPECT_TRUE(outcome.errors.startsWith("tavi guest-uinput: there is no /dev/uinput here"))
      << outcome.errors.toStdString();
}

}  // namespace
}  // namespace tavi
