#include "host/simulation/script.h"

#include <gtest/gtest.h>

namespace tavi {
namespace {

using Kind = ScriptCommand::Kind;

ScriptCommand One(const char* text) {
  const Script script = ParseScript(text);
  EXPECT_TRUE(script.errors.isEmpty()) << text;
  EXPECT_EQ(1, script.commands.size()) << text;
  return script.commands.value(0);
}

std::string ErrorsOf(const char* text) {
  QStringList lines;
  for (const ScriptError& error : ParseScript(text).errors) {
    lines.append(QStringLiteral("%1:%2: %3").arg(error.line).arg(error.column).arg(error.message));
  }
  return lines.join('\n').toStdString();
}

TEST(Script, ReadsKeysByName) {
  EXPECT_EQ(Kind::kKeyDown, One("down W").kind);
  EXPECT_EQ(17, One("down W").key.scancode);
  EXPECT_EQ(42, One("up Left Shift").key.scancode);
  EXPECT_EQ(Kind::kKeyUp, One("up Left Shift").kind);
  EXPECT_EQ(Kind::kKeyRepeat, One("repeat Space").kind);
}

TEST(Script, ReadsTheMouse) {
  const ScriptCommand down = One("mouse down left 640,360.5");
  EXPECT_EQ(Kind::kMouseDown, down.kind);
  EXPECT_EQ(Qt::LeftButton, down.key.scancode);
  EXPECT_EQ(QPointF(640, 360.5), down.point);
  EXPECT_EQ(Qt::BackButton, One("mouse up side 1 1,2").key.scancode);
  EXPECT_EQ(Kind::kMouseDouble, One("mouse double right 1,2").kind);
  EXPECT_EQ(QPointF(-1, 2), One("move -1,2").point);
  const ScriptCommand wheel = One("wheel +120 640,360");
  EXPECT_EQ(120, wheel.number);
  EXPECT_EQ(QPointF(640, 360), wheel.point);
  EXPECT_EQ(QPointF(5, -3), One("rel 5,-3").point);
}

// The same script is read alike on every Qt: the results are those of Qt 5.15.
TEST(Script, ReadsUnusualNumbers) {
  EXPECT_EQ(-2, One(u8"display \u22122").number);  // the minus sign of mathematics
  EXPECT_EQ(-3, One(u8"touch begin \u22123:1,2").touches.value(0).id);
  EXPECT_EQ(QSize(0, -1), One("window -0.5x-1.5").size);  // halves are rounded up
}

TEST(Script, ReadsTouches) {
  const ScriptCommand begin = One("touch begin 1:100,200 2:300,400");
  ASSERT_EQ(2, begin.touches.size());
  EXPECT_EQ(1, begin.touches[0].id);
  EXPECT_EQ(QPointF(300, 400), begin.touches[1].point);
  EXPECT_EQ(Kind::kTouchEnd, One("touch end").kind);
  EXPECT_EQ(Kind::kTouchUpdate, One("touch update 1:1,1").kind);
}

TEST(Script, ReadsTextAsItStands) {
  EXPECT_EQ(" a", One("type  a").text);
  EXPECT_EQ("two words", One("commit two words").text);
  EXPECT_EQ(Kind::kCompose, One("compose wo").kind);
}

TEST(Script, ReadsGamepads) {
  EXPECT_EQ("A", One("joy down A").text);
  EXPECT_EQ(Kind::kJoyUp, One("joy up A").kind);
  const ScriptCommand axis = One("joy axis 1 0.5,-1");
  EXPECT_EQ(1, axis.number);
  EXPECT_EQ(QPointF(0.5, -1), axis.point);
}

TEST(Script, ReadsWhatAHostDoes) {
  EXPECT_EQ(250, One("wait 250").number);
  EXPECT_FALSE(One("reset").flag);
  EXPECT_TRUE(One("reset full").flag);
  EXPECT_EQ(2, One("display 2").number);
  EXPECT_EQ("a folder/other.yaml", One("keymap a folder/other.yaml").text);
  EXPECT_EQ("", One("keymap").text);
  EXPECT_EQ("pad.yaml", One("joymap pad.yaml").text);
  EXPECT_EQ("com.android.settings", One("package com.android.settings").text);
  EXPECT_EQ(0, One("back 0").number);
  EXPECT_EQ(QSize(640, 360), One("window 640x360").size);
  EXPECT_EQ(QSize(720, 1280), One("guest 720x1280").size);
  EXPECT_EQ(Kind::kTouchpanel, One("touchpanel 1x1").kind);
  EXPECT_EQ(90, One("rotation 90").number);
  EXPECT_TRUE(One("textfield on").flag);
  EXPECT_FALSE(One("escape back off").flag);
  const ScriptCommand transparent = One("transparent 3 on");
  EXPECT_EQ(3, transparent.number);
  EXPECT_TRUE(transparent.flag);
}

TEST(Script, SeparatesByLinesAndSemicolonsAndSkipsComments) {
  const Script script = ParseScript("# a story\ndown W ; wait 5;up W # done\n\n;;\n");
  ASSERT_EQ(3, script.commands.size());
  EXPECT_EQ(2, script.commands[2].line);
  EXPECT_EQ(17, script.commands[2].column);
}

TEST(Script, TellsEveryErrorWithItsPlace) {
  EXPECT_EQ(
      "1:1: unknown command \"jump\"\n"
      "2:9: \"Spac\" is not a key of a keyboard; did you mean \"Space\"?\n"
      "3:1: expected a whole number, found \"soon\"",
      ErrorsOf("jump\ndown W; down Spac\nwait soon"));
}

TEST(Script, RefusesWhatItDoesNotUnderstand) {
  const struct {
    const char* text;
    const char* message;
  } rows[] = {
      {"down", "\"\" is not a key of a keyboard"},
      {"down Mouse Left", "\"Mouse Left\" is not a key of a keyboard"},
      {"wait -1", "a time in milliseconds is not negative"},
      {"wait", "expected a whole number, found \"\""},
      {"wait 5 6", "unexpected \"6\""},
      {"mouse left 1,1", "unknown command \"mouse\""},
      {"mouse down thumb 1,1", "expected left, right, middle or side 1, found \"thumb\""},
      {"mouse down left", "expected left, right, middle or side 1, found \"\""},
      {"move 1", "expected a point such as 640,360, found \"1\""},
      {"move 1,x", "expected a point such as 640,360, found \"1,x\""},
      {"touch begin 1,1", "expected a touch such as 1:640,360, found \"1,1\""},
      {"touch begin x:1,1", "expected a touch such as 1:640,360, found \"x:1,1\""},
      {"type", "expected a text"},
      {"joy down", "expected a text"},
      {"reset all", "expected full or nothing, found \"all\""},
      {"window 640", "expected a size such as 1280x720, found \"640\""},
      {"window 1e300x5", "expected a size such as 1280x720, found \"1e300x5\""},
      {"guest 5x-2147483648", "expected a size such as 1280x720, found \"5x-2147483648\""},
      {"touchpanel nanx5", "expected a size such as 1280x720, found \"nanx5\""},
      {"textfield yes", "expected on or off, found \"yes\""},
      {"downW", "unknown command \"downW\""},
  };
  for (const auto& row : rows) {
    const std::string errors = ErrorsOf(row.text);
    EXPECT_EQ(std::string("1:1: ") + row.message, errors.substr(0, 5 + std::string(row.message).size())) << row.text;
  }
}

}  // namespace
}  // namespace tavi
