#include "tests/support/program.h"

namespace tavi {
namespace {

constexpr char kGood[] =
    "format: 1\n"
    "items:\n"
    "  - {type: Click, key: Space, point: [0.5, 0.5]}\n";

// `Spcae` is in line 3 from column 24 on.
constexpr char kBad[] =
    "format: 1\n"
    "items:\n"
    "  - {type: Click, key: Spcae, point: [0.5, 0.5]}\n";

TEST_F(Program, TellsItsVersion) {
  const Outcome outcome = Run({"--version"});
  EXPECT_EQ(outcome.status, 0);
  EXPECT_TRUE(outcome.output.startsWith("tavi "));
}

TEST_F(Program, RefusesWhatItDoesNotKnow) {
  const struct {
    const char* name;
    QStringList arguments;
    const char* error;
  } rows[] = {
      {"no command", {}, "tavi: a command is missing\nTry \"tavi --help\".\n"},
      {"another command",
       {"chekc"},
       "tavi: unknown command \"chekc\"; did you mean \"check\"?\nTry \"tavi --help\".\n"},
      {"a command like no other", {"frobnicate"}, "tavi: unknown command \"frobnicate\"\nTry \"tavi --help\".\n"},
      {"help of another command",
       {"help", "chekc"},
       "tavi: unknown command \"chekc\"; did you mean \"check\"?\nTry \"tavi --help\".\n"},
      {"another option",
       {"--verison"},
       "tavi: unknown option \"--verison\"; did you mean \"--version\"?\nTry \"tavi --help\".\n"},
      {"an option of a command",
       {"simulate", "--recrod", "a.json"},
       "tavi simulate: unknown option \"--recrod\"; did you mean \"--record\"?\nTry \"tavi simulate --help\".\n"},
      {"check without file", {"check"}, "tavi check: a file is missing\nTry \"tavi check --help\".\n"},
      {"check with an option", {"check", "-v", "a"}, "tavi check: unknown option \"-v\"\nTry \"tavi check --help\".\n"},
      {"check of no name", {"check", ""}, "tavi check: the name of a file is empty\nTry \"tavi check --help\".\n"},
      {"simulate without script",
       {"simulate", "a.yaml"},
       "tavi simulate: a keymap and a script are needed\nTry \"tavi simulate --help\".\n"},
      {"window with two keymaps",
       {"window", "a", "b"},
       "tavi window: more than one keymap\nTry \"tavi window --help\".\n"},
      {"window without its keymap",
       {"window", "none.yaml"},
       "tavi window: no such file: none.yaml\nTry \"tavi window --help\".\n"},
      {"window without its keymap of gamepads",
       {"window", "--joystick", "none.yaml"},
       "tavi window: no such file: none.yaml\nTry \"tavi window --help\".\n"},
      {"window of no size",
       {"window", "--size", "wide"},
       "tavi window: --size needs a size such as 1280x720, not \"wide\"\nTry \"tavi window --help\".\n"},
      {"window with no guest",
       {"window", "--guest", "wide"},
       "tavi window: --guest: a guest is exec:COMMAND, unix:PATH, tcp:HOST:PORT or uinput, not \"wide\"\nTry \"tavi "
       "window --help\".\n"},
      {"window with a guest elsewhere",
       {"window", "--guest", "tcp:localhost:7000", "--guest", "tcp:10.0.0.1:7000"},
       "tavi window: --guest: 10.0.0.1 is another machine, and anyone on the network path can read what you type; "
       "--allow-remote allows it\nTry \"tavi window --help\".\n"},
      {"a time of no picture",
       {"window", "--after", "5"},
       "tavi window: --after needs --picture\nTry \"tavi window --help\".\n"},
      {"a time that is none",
       {"window", "--picture", "a.png", "--after", "soon"},
       "tavi window: --after needs a time in milliseconds\nTry \"tavi window --help\".\n"},
  };
  for (const auto& row : rows) {
    SCOPED_TRACE(row.name);
    const Outcome outcome = Run(row.arguments);
    EXPECT_EQ(outcome.status, 2);
    EXPECT_EQ(outcome.output, QString());
    EXPECT_TRUE(outcome.errors.endsWith(QLatin1String(row.error))) << outcome.errors.toStdString();
  }
}

TEST_F(Program, CheckIsContentWithAGoodFile) {
  Write("good.yaml", kGood);
  const Outcome outcome = Run({"check", "good.yaml"});
  EXPECT_EQ(outcome.status, 0);
  EXPECT_EQ(outcome.output, QStringLiteral("good.yaml: 1 item\n"));
}

TEST_F(Program, CheckPrintsWhatIsWrongAndWhere) {
  Write("good.yaml", kGood);
  Write("bad.yaml", kBad);
  const Outcome outcome = Run({"check", "bad.yaml", "good.yaml"});
  EXPECT_EQ(outcome.status, 1);
  EXPECT_TRUE(outcome.output.startsWith("bad.yaml:3:24: error: ")) << outcome.output.toStdString();
  EXPECT_TRUE(outcome.output.endsWith("\ngood.yaml: 1 item\n"));
}

TEST_F(Program, CheckOfAFileThatIsNotThere) {
  const Outcome outcome = Run({"check", "none.yaml"});
  EXPECT_EQ(outcome.status, 1);
  EXPECT_TRUE(outcome.output.startsWith("none.yaml:1:1: error: cannot be read: "));
}

// The keymap's point is the middle of 1280 x 720; the first finger of the pool of taps is slot 11.
TEST_F(Program, SimulatePlaysAScript) {
  Write("good.yaml", kGood);
  Write("tap.txt", "down Space; wait 50; up Space\n");
  const Outcome outcome = Run({"simulate", "good.yaml", "tap.txt"});
  EXPECT_EQ(outcome.status, 0);
  EXPECT_EQ(outcome.output, QStringLiteral("0ms ! mapped 1\n"
                                           "0ms 1:SLOTPRESS:11:11:1:1:640:360\n"
                                           "50ms ! mapped 1\n"
                                           "50ms 1:SLOTRELEASE:11\n"));
}

TEST_F(Program, SimulateDrawsItsTimeline) {
  Write("good.yaml", kGood);
  Write("tap.txt", "down Space; wait 50; up Space\n");
  const Outcome plain = Run({"simulate", "good.yaml", "tap.txt"});
  const Outcome outcome = Run({"simulate", "--svg", "tap.svg", "good.yaml", "tap.txt"});
  EXPECT_EQ(outcome.status, 0);
  EXPECT_EQ(outcome.output, plain.output);
  const QByteArray page = Content("tap.svg");
  EXPECT_TRUE(page.contains("<title>tap.txt with good.yaml</title>"));
  EXPECT_TRUE(page.contains("<title>Space: 0 ms to 50 ms</title>"));
  EXPECT_TRUE(page.contains("<title>finger 11: 0 ms to 50 ms 640,360</title>"));

  const Outcome failed = Run({"simulate", "--svg", "none/tap.svg", "good.yaml", "tap.txt"});
  EXPECT_EQ(failed.status, 1);
  EXPECT_EQ(failed.output, plain.output);
  EXPECT_TRUE(failed.errors.contains("tavi simulate: cannot write none/tap.svg: "));
  EXPECT_EQ(Run({"simulate", "--svg", "", "good.yaml", "tap.txt"}).status, 2);
}

TEST_F(Program, SimulateReadsStandardInput) {
  Write("good.yaml", kGood);
  const Outcome outcome = Run({"simulate", "good.yaml", "-"}, "down Space\n");
  EXPECT_EQ(outcome.status, 0);
  EXPECT_TRUE(outcome.output.endsWith("0ms 1:SLOTPRESS:11:11:1:1:640:360\n"));
}

TEST_F(Program, SimulateNeedsNoSessionOfADesktop) {
  has_session_ = false;
  has_platform_ = false;
  Write("good.yaml", kGood);
  EXPECT_EQ(Run({"simulate", "good.yaml", "-"}, "down Space").errors, QString());
}

TEST_F(Program, SimulateTellsEveryFaultOfAScript) {
  Write("good.yaml", kGood);
  Write("bad.txt", "wait 5\n  donw Space; wait x\n");
  const Outcome outcome = Run({"simulate", "good.yaml", "bad.txt"});
  EXPECT_EQ(outcome.status, 2);
  EXPECT_EQ(outcome.output, QString());
  EXPECT_EQ(outcome.errors, QStringLiteral("bad.txt:2:3: error: unknown command \"donw\"\n"
                                           "bad.txt:2:15: error: expected a whole number, found \"x\"\n"));
  EXPECT_TRUE(Run({"simulate", "good.yaml", "-"}, "donw\n").errors.startsWith("<stdin>:1:1: error: "));
  EXPECT_TRUE(Run({"simulate", "good.yaml", "none.txt"}).errors.startsWith("none.txt: cannot be read: "));
}

TEST_F(Program, SimulateLooksAtEveryKeymapFirst) {
  Write("good.yaml", kGood);
  Write("bad.yaml", kBad);
  Write("load.txt", "keymap bad.yaml\n");
  Write("wait.txt", "wait 1\n");
  for (const QStringList& names : {QStringList{"bad.yaml", "wait.txt"}, QStringList{"good.yaml", "load.txt"}}) {
    const Outcome outcome = Run(QStringList("simulate") + names);
    EXPECT_EQ(outcome.status, 2);
    EXPECT_EQ(outcome.output, QString());
    EXPECT_TRUE(outcome.errors.startsWith("bad.yaml:3:24: error: ")) << outcome.errors.toStdString();
  }
}

// A stick of the virtual gamepad in a keymap that does not switch that gamepad on.
TEST_F(Program, SimulateTellsOfAWarningOnceAndPlays) {
  Write("warned.yaml",
        "format: 1\n"
        "items:\n"
        "  - {type: VirtualLeftStick, key_up: W}\n");
  const Outcome outcome = Run({"simulate", "warned.yaml", "-"}, "wait 1\n");
  EXPECT_EQ(outcome.status, 0);
  EXPECT_TRUE(outcome.errors.startsWith("warned.yaml:3:5: warning: ")) << outcome.errors.toStdString();
  EXPECT_EQ(outcome.errors.count("warning: "), 1);
}

TEST_F(Program, WindowTellsWhenThereIsNoDisplay) {
  has_platform_ = false;
  const Outcome outcome = Run({"window"});
  EXPECT_EQ(outcome.status, 2);
  EXPECT_TRUE(outcome.errors.startsWith("tavi window: there is no display"));
}

TEST_F(Program, WindowSavesItsPicture) {
  Write("good.yaml", kGood);
  EXPECT_EQ(Run({"window", "good.yaml", "--picture", "out.png", "--after", "0"}).status, 0);
  EXPECT_TRUE(Has("out.png"));
  EXPECT_EQ(Run({"window", "good.yaml", "--picture", "none/out.png", "--after", "0"}).status, 1);
}

// ---- Standard input and output

TEST_F(Program, CheckReadsStandardInput) {
  EXPECT_EQ(Run({"check", "-"}, kGood).output, QString("<stdin>: 1 item\n"));
  const Outcome outcome = Run({"check", "-"}, kBad);
  EXPECT_EQ(outcome.status, 1);
  EXPECT_TRUE(outcome.output.startsWith("<stdin>:3:24: error: ")) << outcome.output.toStdString();
  const Outcome too_long = Run({"check", "-"}, QByteArray((1 << 20) + 1, '#'));
  EXPECT_EQ(too_long.output, QString("<stdin>:1:1: error: longer than 1048576 bytes\n"));
}

TEST_F(Program, PicturesGoToStandardOutput) {
  Write("good.yaml", kGood);
  const Outcome drawn = Run({"draw", "-o", "-", "good.yaml"});
  EXPECT_EQ(drawn.status, 0);
  EXPECT_TRUE(drawn.output.contains("<svg") && drawn.output.endsWith("</svg>\n")) << drawn.output.toStdString();
  EXPECT_FALSE(Has("-"));
  const Outcome mixed = Run({"simulate", "--svg", "-", "good.yaml", "-"});
  EXPECT_EQ(mixed.status, 2);
  EXPECT_TRUE(mixed.errors.startsWith("tavi simulate: standard output gets the lines")) << mixed.errors.toStdString();
}

TEST_F(Program, WhatIsDrawnAsSvgAloneIsNotCalledOtherwise) {
  Write("good.yaml", kGood);
  const Outcome outcome = Run({"simulate", "--svg", "tap.png", "good.yaml", "-"});
  EXPECT_EQ(outcome.status, 2);
  EXPECT_TRUE(outcome.errors.startsWith("tavi simulate: --svg draws only SVG")) << outcome.errors.toStdString();
}

// ---- What is no plain file

TEST_F(Program, AFolderIsCalledAFolderEverywhere) {
  Write("good.yaml", kGood);
  QDir(Folder()).mkdir("a.svg");
  const QString problem = "cannot be read: it is a folder\n";
  EXPECT_EQ(Run({"check", "a.svg"}).output, "a.svg:1:1: error: " + problem);
  EXPECT_EQ(Run({"draw", "-o", "b.svg", "a.svg"}).errors, "a.svg:1:1: error: " + problem);
  EXPECT_EQ(Run({"simulate", "good.yaml", "a.svg"}).errors, "a.svg: " + problem);
  EXPECT_EQ(Run({"record", "info", "a.svg"}).errors, "a.svg: error: " + problem);
  EXPECT_EQ(Run({"draw", "-o", "a.svg", "good.yaml"}).errors,
            QString("tavi draw: cannot write a.svg: it is a folder\n"));
  EXPECT_TRUE(Run({"window", "a.svg"}).errors.contains("tavi window: it is a folder: a.svg\n"));
}

TEST_F(Program, ARecordIsReadUpToALimit) {
  Write("big.json", "");
  QFile::resize(Folder() + "/big.json", (qint64{512} << 20) + 1);  // takes no space
  EXPECT_EQ(Run({"record", "info", "big.json"}).errors,
            QString("big.json: error: cannot be read: longer than 536870912 bytes\n"));
}

}  // namespace
}  // namespace tavi
