#include "core/input_event_sender.h"

#include <gtest/gtest.h>
#include <string>
#include <vector>

#include "core/event_handler.h"
#include "core/guest_command.h"
#include "taviinputmanager/taviinputmanager.h"

namespace taviinputmanager {
namespace {

// The arguments of a host's four functions, byte for byte.
struct Received {
  std::string bytes;  // with the final NUL, which `length` does not count for events
  int length = 0;
};
std::vector<Received> events;
std::vector<Received> texts;
std::vector<std::string> mirrored;
std::vector<std::string> order;

void SendEventBytes(const char* data, int length) {
  events.push_back({std::string(data, static_cast<std::size_t>(length) + 1), length});
  order.emplace_back("sent");
}
void SendTextBytes(const char* data, int length) {
  texts.push_back({std::string(data, static_cast<std::size_t>(length)), length});
  order.emplace_back("text sent");
  EXPECT_EQ('\0', data[length]);
}
std::string Mirrored(const QString& command, const QVector<QString>& targets) {
  return (command + '>' + targets.toList().join('+')).toStdString();
}
void SyncEvent(const QString& command, const QVector<QString>& targets) {
  mirrored.push_back(Mirrored(command, targets));
  order.emplace_back("mirrored");
}
void SyncText(const QString& command, const QVector<QString>& targets) {
  mirrored.push_back("text " + Mirrored(command, targets));
  order.emplace_back("text mirrored");
}

class Sender : public testing::Test {
 protected:
  Sender() {
    SetInputEventSendFunc(reinterpret_cast<void*>(SendEventBytes));
    SetInputTextSendFunc(reinterpret_cast<void*>(SendTextBytes));
    table_.IsPrimaryDisplay = [](int display) { return display == 2; };
    InputEventSender::GetInstance()->SetCallbacks(&table_);
  }

  static void Mirror() {
    SetInputEventSyncFunc(reinterpret_cast<void*>(SyncEvent));
    SetInputTextSyncFunc(reinterpret_cast<void*>(SyncText));
  }

  InputManagerCallbacks table_;
};

TEST_F(Sender, PutsTheDisplayInFrontAndCountsTheNewline) {
  OnInputRawEventData("KBDPR:30:1\n", 2);
  ASSERT_EQ(1U, events.size());
  EXPECT_EQ(std::string("2:KBDPR:30:1\n\0", 14), events[0].bytes);
  EXPECT_EQ(13, events[0].length);
}

TEST_F(Sender, SendsRawDataUnchanged) {
  OnInputRawEventData("anything", -1);
  EXPECT_EQ(std::string("-1:anything\0", 12), events[0].bytes);
}

TEST_F(Sender, CountsBytesOfUtf8) {
  OnInputRawEventData(QString::fromUtf8("\xC3\xA4\n"), 1);
  EXPECT_EQ(std::string("1:\xC3\xA4\n\0", 6), events[0].bytes);
  EXPECT_EQ(5, events[0].length);
}

TEST_F(Sender, ALongLineGoesOutWhole) {
  const QString line(5000, 'x');
  OnInputRawEventData(line + '\n', 1);
  EXPECT_EQ(5003, events[0].length);
  EXPECT_EQ("1:" + std::string(5000, 'x') + "\n" + std::string(1, '\0'), events[0].bytes);
}

TEST_F(Sender, ATextHasANulInPlaceOfItsNewline) {
  OnInputRawTextData("TEXT:a\n");
  ASSERT_EQ(1U, texts.size());
  EXPECT_EQ(std::string("TEXT:a\0", 7), texts[0].bytes);
  EXPECT_EQ(7, texts[0].length);
}

TEST_F(Sender, ATextOfAnotherScriptToo) {
  OnInputRawTextData(QString::fromUtf8("TEXT:\xE4\xBD\xA0\n"));
  EXPECT_EQ(std::string("TEXT:\xE4\xBD\xA0\0", 9), texts[0].bytes);
  EXPECT_EQ(9, texts[0].length);
}

TEST_F(Sender, AnEmptyTextSendsNothing) {
  OnInputRawTextData(QString());
  EXPECT_TRUE(texts.empty());
}

TEST_F(Sender, HelpersDropEmptyCommands) {
  EventHandler handler;
  handler.SendEvent(QString());
  handler.SendEventTo(QString(), 2);
  handler.SendEvent(LineBuffer());
  handler.SendEventTo(LineBuffer(), 2);
  handler.SendText(QString());
  EXPECT_TRUE(events.empty());
  EXPECT_TRUE(texts.empty());
}

TEST_F(Sender, MirrorsThePrimaryDisplayAfterSending) {
  Mirror();
  StartSync("one", "", "");
  StartSync("two", "x", "y");
  StartSync("one", "", "");  // once is enough
  OnInputRawEventData("KBDPR:30:1\n", 2);
  EXPECT_EQ((std::vector<std::string>{"KBDPR:30:1\n>one+two"}), mirrored);
  EXPECT_EQ((std::vector<std::string>{"sent", "mirrored"}), order);
}

TEST_F(Sender, MirrorsALineOfItsOwnAsItMirrorsRawData) {
  Mirror();
  StartSync("one", "", "");
  EventHandler handler;
  handler.SendEventTo(guest_command::KeyPress(30), 2);
  handler.SendEventTo(guest_command::KeyRelease(30), 1);  // no primary display
  ASSERT_EQ(2U, events.size());
  EXPECT_EQ(std::string("2:KBDPR:30:1\n\0", 14), events[0].bytes);
  EXPECT_EQ(13, events[0].length);
  EXPECT_EQ((std::vector<std::string>{"KBDPR:30:1\n>one"}), mirrored);
  EXPECT_EQ((std::vector<std::string>{"sent", "mirrored", "sent"}), order);
}

TEST_F(Sender, DoesNotMirrorAnotherDisplay) {
  Mirror();
  StartSync("one", "", "");
  OnInputRawEventData("KBDPR:30:1\n", 1);
  EXPECT_TRUE(mirrored.empty());
  EXPECT_EQ(1U, events.size());
}

TEST_F(Sender, WithoutThatCallbackNothingIsMirroredAndAllIsSent) {
  Mirror();
  StartSync("one", "", "");
  table_.IsPrimaryDisplay = nullptr;
  OnInputRawEventData("KBDPR:30:1\n", 2);
  EXPECT_TRUE(mirrored.empty());
  EXPECT_EQ(1U, events.size());
}

TEST_F(Sender, MirrorsEveryText) {
  Mirror();
  table_.IsPrimaryDisplay = nullptr;
  StartSync("one", "", "");
  OnInputRawTextData("TEXT:a\n");
  EXPECT_EQ((std::vector<std::string>{"text TEXT:a\n>one"}), mirrored);
  EXPECT_EQ((std::vector<std::string>{"text sent", "text mirrored"}), order);
}

TEST_F(Sender, MirrorsNothingWithoutTarget) {
  Mirror();
  StartSync("one", "", "");
  StopSync("other");  // not there
  StopSync("one");
  OnInputRawEventData("KBDPR:30:1\n", 2);
  OnInputRawTextData("TEXT:a\n");
  EXPECT_TRUE(mirrored.empty());
}

TEST_F(Sender, APausedTargetMustBeAddedAgain) {
  Mirror();
  StartSync("one", "", "");
  StartSync("two", "", "");
  PauseSync("one");
  OnInputRawEventData("KBDPR:30:1\n", 2);
  StartSync("one", "", "");
  OnInputRawEventData("KBDRL:30:0\n", 2);
  EXPECT_EQ((std::vector<std::string>{"KBDPR:30:1\n>two", "KBDRL:30:0\n>two+one"}), mirrored);
}

TEST_F(Sender, ATargetMayBeStoppedWhileTheHostGoesThroughAll) {
  static std::vector<std::string> reached;
  const auto stop_each = [](const QString&, const QVector<QString>& targets) {
    for (const QString& target : targets) {
      reached.push_back(target.toStdString());
      StopSync(target);
    }
  };
  const InputEventSyncFunc sync = stop_each;
  SetInputEventSyncFunc(reinterpret_cast<void*>(sync));
  for (const char* target : {"one", "two", "three"}) StartSync(target, "", "");
  OnInputRawEventData("KBDPR:30:1\n", 2);
  OnInputRawEventData("KBDRL:30:0\n", 2);  // nobody is left
  EXPECT_EQ((std::vector<std::string>{"one", "two", "three"}), reached);
}

TEST_F(Sender, ANullFunctionLeavesTheOneBefore) {
  Mirror();
  SetInputEventSyncFunc(nullptr);
  SetInputTextSyncFunc(nullptr);
  SetInputEventSendFunc(nullptr);
  SetInputTextSendFunc(nullptr);
  StartSync("one", "", "");
  OnInputRawEventData("KBDPR:30:1\n", 2);
  OnInputRawTextData("TEXT:a\n");
  EXPECT_EQ(1U, events.size());
  EXPECT_EQ(1U, texts.size());
  EXPECT_EQ(2U, mirrored.size());
}

}  // namespace
}  // namespace taviinputmanager
