// The commands of a script for a running player.
#include <algorithm>
#include <thread>

#include <QDir>
#include <QEventLoop>

#include "host/play/control_socket.h"
#include "host/play/control_words.h"
#include "host/play/play_control.h"
#include "host/play/screen_size.h"
#include "tests/host/play/play_fixture.h"
#include "tests/support/application_object.h"

namespace tavi {
namespace {

// ---- Words

TEST(ControlWordsTest, WhatIsWrongIsTold) {
  const struct {
    const char* name;
    const char* line;
    const char* problem;
  } rows[] = {
      {"a word without more", "reset", ""},
      {"blanks around", "  pause  ", ""},
      {"a file with blanks", "keymap /tmp/my game.yaml", ""},
      {"a turn", "rotation 270", ""},
      {"a size", "size 1920x1080", ""},
      {"a switch", "text on", ""},
      {"misspelt", "puase", "unknown word \"puase\"; did you mean \"pause\"?"},
      {"too much", "reset now", "nothing may follow \"reset\""},
      {"no file", "keymap", "\"keymap\" needs a file"},
      {"no app", "app ", "\"app\" needs the name of an app"},
      {"a turn that is none", "rotation 45", "\"rotation\" needs 0, 90, 180 or 270"},
      {"a switch that is neither", "text yes", "\"text\" needs on or off"},
      {"a size of nothing", "size 0x720", "\"size\" needs a size such as 1280x720"},
      {"a size beyond all", "size 16385x720", "\"size\" needs a size such as 1280x720"},
      {"half a size", "size 1280", "\"size\" needs a size such as 1280x720"},
  };
  for (const auto& row : rows) {
    EXPECT_EQ(ParseControlWords(row.line).problem.toStdString(), row.problem) << row.name;
  }
  EXPECT_EQ(ParseControlWords("keymap /tmp/my game.yaml").text, QString("/tmp/my game.yaml"));
  EXPECT_EQ(ParseControlWords("size 1920x1080").size, QSize(1920, 1080));
  EXPECT_EQ(ParseControlWords("rotation 270").rotation, 270);
}

TEST(ControlWordsTest, AFileIsMeantInTheFolderOfWhoAsks) {
  const QString here = QDir::currentPath();
  EXPECT_EQ(WithAbsoluteFile("keymap my game.yaml"), "keymap " + here + "/my game.yaml");
  EXPECT_EQ(WithAbsoluteFile("record /tmp/a.json"), QString("record /tmp/a.json"));
  EXPECT_EQ(WithAbsoluteFile("app com.example.game"), QString("app com.example.game"));
  EXPECT_EQ(WithAbsoluteFile("keymap"), QString("keymap"));
}

// ---- Deeds

constexpr char kTap[] = "{type: Click, key: Space, point: [0.25, 0.75]}";
constexpr char kOtherTap[] = "{type: Click, key: Space, point: [0.5, 0.5]}";

class Control : public PlayFixture {
 protected:
  // "ok", "ok ANSWER" or "error WHY".
  std::string Ask(const QString& line) {
    if (!control_) control_ = std::make_unique<PlayControl>(session_.get(), apps_.get(), [this] { ++quits_; });
    const ControlAnswer answer = control_->Do(line);
    return ((answer.is_ok ? "ok " : "error ") + answer.text).trimmed().toStdString();
  }

  std::unique_ptr<AppKeymaps> apps_;
  std::unique_ptr<PlayControl> control_;
  int quits_ = 0;
};

TEST_F(Control, AnotherKeymapTakesThePlaceOfTheFirst) {
  Start(kTap);
  EXPECT_EQ(Ask("keymap " + Write("other.yaml", kOtherTap)), "ok");
  Sent();
  Press(KEY_SPACE);
  EXPECT_EQ(Sent(), (Lines{"0ms 1:SLOTPRESS:11:11:1:1:640:360"}));
}

TEST_F(Control, AKeymapWithErrorsLeavesTheOneThatIsInUse) {
  Start(kTap);
  const std::string answer = Ask("keymap " + Write("broken.yaml", "{type: Clikc, key: Space, point: [0.5, 0.5]}"));
  EXPECT_EQ(answer.substr(0, 6), "error ");
  EXPECT_NE(answer.find("broken.yaml:3:"), std::string::npos) << answer;
  Press(KEY_SPACE);
  EXPECT_EQ(Sent().back(), "0ms 1:SLOTPRESS:11:11:1:1:320:540");
}

TEST_F(Control, AMissingFileIsAnError) {
  Start(kTap);
  EXPECT_EQ(Ask("keymap /nowhere/x.yaml").substr(0, 6), "error ");
  EXPECT_EQ(Ask("replay /nowhere/x.json"), "error /nowhere/x.json is not a record");
  EXPECT_EQ(Ask("record /nowhere/x.json").substr(0, 39), "error cannot write /nowhere/x.json: No ");
}

TEST_F(Control, PauseAndResume) {
  Start(kTap);
  EXPECT_EQ(Ask("pause"), "ok");
  EXPECT_FALSE(keyboard_->is_grabbed);
  EXPECT_EQ(Ask("state"), "ok mapping off, keymap.yaml (1 item), 1280x720, 1 keyboard, 1 mouse, no gamepad");
  EXPECT_EQ(Ask("resume"), "ok");
  EXPECT_TRUE(keyboard_->is_grabbed);
  EXPECT_EQ(Ask("state"), "ok mapping on, keymap.yaml (1 item), 1280x720, 1 keyboard, 1 mouse, no gamepad");
}

TEST_F(Control, AResetLiftsWhatIsDownAndAReleaseAfterwardsIsNothing) {
  Start(kTap);
  Press(KEY_SPACE);
  Sent();
  EXPECT_EQ(Ask("reset"), "ok");
  EXPECT_FALSE(Sent().empty());
  Release(KEY_SPACE);
  EXPECT_EQ(Sent(), Lines{});
}

TEST_F(Control, WhileATextFieldHasTheFocusKeysAreTyped) {
  Start("{type: Click, key: H, point: [0.25, 0.75]}");
  Press(KEY_H);
  EXPECT_EQ(Ask("text on"), "ok");
  const Lines lifted = Sent();
  EXPECT_EQ(std::count(lifted.begin(), lifted.end(), "0ms 1:SLOTRELEASE:11"), 1);
  EXPECT_NE(State().find("keys are typed"), std::string::npos) << State();
  Release(KEY_H);
  Click(KEY_H);
  Press(KEY_LEFTSHIFT);
  Click(KEY_H);
  Click(KEY_1);
  Release(KEY_LEFTSHIFT);
  Click(KEY_ENTER);
  EXPECT_EQ(Sent(),
            (Lines{"0ms TEXT:h", "0ms TEXT:" /* Shift */, "0ms TEXT:H", "0ms TEXT:!", "0ms TEXT_CONTROL:ENTER"}));
  EXPECT_EQ(Ask("text off"), "ok");
  EXPECT_EQ(State().find("keys are typed"), std::string::npos) << State();
  Sent();
  Click(KEY_H);
  EXPECT_EQ(Sent(), (Lines{"0ms 1:SLOTPRESS:11:11:1:1:320:540", "0ms 1:SLOTRELEASE:11"}));
}

// With Control held, a letter is a command and not text.
TEST_F(Control, AKeyThatIsACommandIsNoText) {
  Start(kTap);
  EXPECT_EQ(Ask("text on"), "ok");
  Press(KEY_LEFTALT);
  Sent();
  Click(KEY_F);
  for (const std::string& line : Sent()) EXPECT_EQ(line.find("TEXT:f"), std::string::npos) << line;
  EXPECT_EQ(Ask("text off"), "ok");
}

TEST_F(Control, SizeAndRotationAreInTheState) {
  Start(kTap);
  EXPECT_EQ(Ask("size 1920x1080"), "ok");
  EXPECT_EQ(Ask("rotation 90"), "ok");
  EXPECT_NE(State().find("1920x1080, rotation 90"), std::string::npos) << State();
  guest_.problem = "no room";
  EXPECT_EQ(Ask("size 640x360"), "error no room");
}

TEST_F(Control, QuitEnds) {
  Start(kTap);
  EXPECT_EQ(Ask("quit"), "ok");
  EXPECT_EQ(quits_, 1);
}

TEST_F(Control, WhatIsRecordedIsPlayedAgain) {
  Start(kTap);
  const QString file = folder_.filePath("taps.json");
  EXPECT_EQ(Ask("stop"), "error no recording or replay is running");
  EXPECT_EQ(Ask("record " + file), "ok");
  EXPECT_EQ(Ask("record " + file), "error a recording is running; \"stop\" ends it");
  EXPECT_NE(State().find(", recording"), std::string::npos) << State();
  Press(KEY_SPACE);
  clock_->Advance(50);
  Release(KEY_SPACE);
  EXPECT_EQ(Ask("stop"), "ok");
  EXPECT_TRUE(QFile::exists(file));
  Sent();
  EXPECT_EQ(Ask("replay " + file), "ok");
  clock_->Advance(1000);
  // (320, 540) of 1280 x 720, by a finger of the pool of replays.
  const Lines played = Sent();
  ASSERT_GE(played.size(), 2U);
  EXPECT_NE(played[0].find("320:540"), std::string::npos) << played[0];
}

// ---- Keymaps of apps

TEST_F(Control, AnAppHasItsOwnKeymapAndTheLastOneIsRemembered) {
  Write("one.yaml", kTap, "package: com.example.one");
  Write("two.yaml", kOtherTap, "package: com.example.two");
  const QString memory = folder_.filePath("play.ini");
  apps_ = std::make_unique<AppKeymaps>(folder_.path(), memory);
  Start(kTap);
  EXPECT_EQ(apps_->LastApp(), QString());
  EXPECT_EQ(Ask("app com.example.two"), "ok");
  Sent();
  Press(KEY_SPACE);
  EXPECT_EQ(Sent(), (Lines{"0ms 1:SLOTPRESS:11:11:1:1:640:360"}));
  EXPECT_EQ(AppKeymaps(folder_.path(), memory).LastApp(), QString("com.example.two"));
  EXPECT_EQ(AppKeymaps("/elsewhere", memory).LastApp(), QString());
  EXPECT_EQ(Ask("app com.example.three"),
            "error no keymap in " + folder_.path().toStdString() +
                " has the package com.example.three; there are keymaps for com.example.one, com.example.two");
  EXPECT_EQ(apps_->LastApp(), QString("com.example.two"));
}

// Qt would give this process what it has in memory of a file, so each is read under a new name.
TEST_F(Control, TheLastAppIsReadAsThisVersionAndOlderOnesWriteIt) {
  const QString app = QStringLiteral("com.example.\u9375\U0001F3AE");
  EXPECT_EQ(AppKeymaps(folder_.path(), folder_.filePath("play.ini")).Remember(app), QString());
  QFile written(folder_.filePath("play.ini"));
  ASSERT_TRUE(written.copy(folder_.filePath("copy.ini")));
  EXPECT_EQ(AppKeymaps(folder_.path(), folder_.filePath("copy.ini")).LastApp(), app);

  ASSERT_TRUE(written.open(QIODevice::ReadOnly));
  QByteArray text = written.readAll();
  const auto begin = text.indexOf('=') + 1;
  text.replace(begin, text.size() - begin, "com.example.\\x9375\\xd83c\\xdfae\n");
  QFile old(folder_.filePath("old.ini"));
  ASSERT_TRUE(old.open(QIODevice::WriteOnly));
  old.write(text);
  old.close();
  EXPECT_EQ(AppKeymaps(folder_.path(), old.fileName()).LastApp(), app);
}

// A folder with the file's name cannot be written to by anyone.
TEST_F(Control, AnAppThatCannotBeRememberedIsPlayedAndThatIsTold) {
  Write("one.yaml", kOtherTap, "package: com.example.one");
  apps_ = std::make_unique<AppKeymaps>(folder_.path(), folder_.path());
  Start(kTap);
  EXPECT_EQ(Ask("app com.example.one"), "ok");
  EXPECT_TRUE(told_.contains("cannot write " + folder_.path() + ": com.example.one is not remembered"));
  Sent();
  Press(KEY_SPACE);
  EXPECT_EQ(Sent(), (Lines{"0ms 1:SLOTPRESS:11:11:1:1:640:360"}));
}

TEST_F(Control, WithoutAFolderThereAreNoApps) {
  Start(kTap);
  EXPECT_EQ(Ask("app com.example.one"), "error keymaps of apps need --keymaps");
}

// ---- The socket

// The two ends in one process need a thread each, because the sender waits.
ControlAnswer AskFromElsewhere(const QString& name, const QString& line) {
  ControlAnswer answer;
  QEventLoop loop;
  std::thread other([&] {
    answer = AskPlayer(name, line);
    QMetaObject::invokeMethod(
        &loop, [&loop] { loop.quit(); }, Qt::QueuedConnection);
  });
  loop.exec();
  other.join();
  return answer;
}

class ControlSocketTest : public testing::Test {
 protected:
  ControlSocketTest() { qputenv("XDG_RUNTIME_DIR", QFile::encodeName(folder_.path())); }

  QTemporaryDir folder_;
  ApplicationObject<QCoreApplication> application_;
};

TEST_F(ControlSocketTest, ALineGoesInAndItsAnswerComesBack) {
  QStringList lines;
  ControlSocket socket([&lines](const QString& line) {
    lines += line;
    return line == QLatin1String("state") ? ControlAnswer{true, "all is\nwell"} : ControlAnswer{false, "no"};
  });
  ASSERT_EQ(socket.Listen("here"), QString());
  const ControlAnswer answer = AskFromElsewhere("here", "state");
  EXPECT_TRUE(answer.is_ok);
  EXPECT_EQ(answer.text, QString("all is; well"));
  const ControlAnswer refusal = AskFromElsewhere("here", "keymap /tmp/two  blanks.yaml");
  EXPECT_FALSE(refusal.is_ok);
  EXPECT_EQ(refusal.text, QString("no"));
  EXPECT_EQ(lines, (QStringList{"state", "keymap /tmp/two  blanks.yaml"}));
}

// Its end would be a command otherwise.
TEST_F(ControlSocketTest, ALineTooLongEndsTheConnection) {
  QStringList lines;
  ControlSocket socket([&lines](const QString& line) {
    lines += line;
    return ControlAnswer{true, {}};
  });
  ASSERT_EQ(socket.Listen("here"), QString());
  const ControlAnswer answer = AskFromElsewhere("here", "keymap " + QString(20000, 'x') + " quit");
  EXPECT_FALSE(answer.is_ok);
  EXPECT_EQ(lines, QStringList());
}

TEST_F(ControlSocketTest, NobodyElseCanEnter) {
  ControlSocket socket([](const QString&) { return ControlAnswer{}; });
  ASSERT_EQ(socket.Listen("here"), QString());
  const QFileInfo folder(folder_.filePath("tavi"));
  EXPECT_EQ(folder.permissions() & (QFile::ReadGroup | QFile::ExeGroup | QFile::ReadOther | QFile::ExeOther),
            QFile::Permissions());
}

TEST_F(ControlSocketTest, WhereNobodyPlaysThatIsTold) {
  const ControlAnswer answer = AskPlayer("here", "state");
  EXPECT_FALSE(answer.is_ok);
  EXPECT_EQ(answer.text, QString("you have no \"tavi play\" running under the name \"here\""));
}

TEST_F(ControlSocketTest, TwoPlayersNeedTwoNames) {
  const auto nothing = [](const QString&) { return ControlAnswer{}; };
  ControlSocket first(nothing);
  ControlSocket second(nothing);
  ASSERT_EQ(first.Listen("here"), QString());
  EXPECT_NE(second.Listen("here"), QString());
  EXPECT_EQ(second.Listen("there"), QString());
}

// ---- The screen

class Screen : public testing::Test {
 protected:
  void Write(const QString& path, const char* text) {
    const QString full = folder_.filePath(path);
    QDir().mkpath(QFileInfo(full).path());
    QFile file(full);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(text);
  }
  void AddConnector(const QString& name, const char* status, const char* enabled, const char* modes) {
    Write("class/drm/" + name + "/status", status);
    Write("class/drm/" + name + "/enabled", enabled);
    Write("class/drm/" + name + "/modes", modes);
  }
  QTemporaryDir folder_;
};

TEST_F(Screen, TheFirstOneThatIsOnCounts) {
  AddConnector("card0-DP-1", "disconnected\n", "disabled\n", "");
  AddConnector("card0-DP-2", "connected\n", "disabled\n", "640x480\n");
  AddConnector("card0-HDMI-A-1", "connected\n", "enabled\n", "1920x1080\n1280x720\n");
  EXPECT_EQ(ScreenSize(folder_.path()), QSize(1920, 1080));
}

TEST_F(Screen, TheConsoleIsTheNextBest) {
  AddConnector("card0-DP-1", "disconnected\n", "disabled\n", "");
  Write("class/graphics/fb0/virtual_size", "1024,768\n");
  EXPECT_EQ(ScreenSize(folder_.path()), QSize(1024, 768));
}

TEST_F(Screen, WithoutOneThereIsNoSize) { EXPECT_TRUE(ScreenSize(folder_.path()).isEmpty()); }

}  // namespace
}  // namespace tavi
