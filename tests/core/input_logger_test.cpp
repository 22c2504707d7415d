#include "core/input_logger.h"

#include <cstdlib>
#include <gtest/gtest.h>
#include <string>

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QRegularExpression>
#include <QTemporaryDir>

#include <Poco/AutoPtr.h>
#include <Poco/Channel.h>
#include <Poco/Logger.h>
#include <Poco/Message.h>

#include "taviinputmanager/taviinputmanager.h"
#include "tests/support/story.h"

namespace taviinputmanager {
namespace {

// The log is in the working directory, which is a folder of the test here.
class Log : public Story {
 protected:
  Log() : before_(QDir::currentPath()) { QDir::setCurrent(folder_.path()); }
  ~Log() override { QDir::setCurrent(before_); }

  QStringList Lines() {
    QFile file(QStringLiteral("input_looger.txt_%1").arg(QCoreApplication::applicationPid()));
    if (!file.open(QIODevice::ReadOnly | QIODevice::Text)) return {};
    return QString::fromUtf8(file.readAll()).split('\n', Qt::SkipEmptyParts);
  }
  static void ShowDebugLines() {
    InputLogger::GetInstance();
    Poco::Logger::get("input_logger").setLevel(Poco::Message::PRIO_DEBUG);
  }
  // The messages without time and thread.
  QStringList Messages() {
    QStringList messages;
    for (const QString& line : Lines()) messages.append(line.section(QStringLiteral("]: "), 1));
    return messages;
  }

  QTemporaryDir folder_;
  QString before_;
};

TEST_F(Log, ARefusedSendFunctionIsAnErrorWithTimeAndThread) {
  SetInputTextSendFunc(nullptr);
  ASSERT_EQ(1, Lines().size());
  const QRegularExpression form(QStringLiteral(
      R"(^\d{4}-\d\d-\d\d \d\d:\d\d:\d\d:\d{3} \[Thread-\d+\]: SetInputTextSendFunc fail with nullptr variable$)"));
  EXPECT_TRUE(form.match(Lines()[0]).hasMatch()) << Lines()[0].toStdString();
}

TEST_F(Log, BothSendFunctionsHaveTheirLine) {
  SetInputEventSendFunc(nullptr);
  SetInputTextSendFunc(nullptr);
  EXPECT_EQ((QStringList{"SetInputEventSendFunc fail with nullptr variable",
                         "SetInputTextSendFunc fail with nullptr variable"}),
            Messages());
}

TEST_F(Log, ARefusedSyncFunctionIsNoError) {
  SetInputEventSyncFunc(nullptr);
  SetInputTextSyncFunc(nullptr);
  EXPECT_EQ(QStringList(), Lines());
}

TEST_F(Log, DebugLinesAreDropped) {
  Settings().keyboard_transparent = true;
  Load();
  Play("down W");
  EXPECT_EQ(QStringList(), Lines());
}

TEST_F(Log, AKeyThatPassesWritesItsThreeCodes) {
  Settings().keyboard_transparent = true;
  Load();
  ShowDebugLines();
  Play("down W");  // Windows' code for W is 87, its keyboard code 17; the script has no Qt key
  EXPECT_EQ((QStringList{"keyboard press, qt key: 0", "keyboard press, windows virtual key: 87",
                         "keyboard press, scan code: 17"}),
            Messages());
}

TEST_F(Log, ALoadWritesItsPathAndDisplay) {
  ShowDebugLines();
  OnLoadKeymapConfigAndInfo("some/keymap", "com.example", "", 7);
  EXPECT_EQ(QStringList{"on load keymap config and info: some/keymap7"}, Messages());
}

TEST_F(Log, ALoadOfTheSystemKeymapSaysWhoseItIs) {
  ShowDebugLines();
  OnLoadKeymapConfigAndInfo("", "com.android.settings", "", 7);
  EXPECT_EQ((QStringList{"use system config for: com.android.settings", "on load keymap config and info: 7"}),
            Messages());
}

// The logger that a host installed instead of the library's.
class Listener : public Poco::Channel {
 public:
  void log(const Poco::Message& message) override { messages.append(QString::fromStdString(message.getText())); }
  QStringList messages;
};

// A host that uses the same classes may destroy loggers and configure its own.
TEST_F(Log, TheLoggerIsLookedUpByItsNameAtEveryLine) {
  InputLogger::GetInstance();
  const Poco::AutoPtr<Listener> listener(new Listener);
  Poco::Logger::destroy("input_logger");
  Poco::Logger::create("input_logger", listener, Poco::Message::PRIO_DEBUG);
  SetInputTextSendFunc(nullptr);
  EXPECT_EQ(QStringList{"SetInputTextSendFunc fail with nullptr variable"}, listener->messages);
  Settings().keyboard_transparent = true;
  Load();
  Play("down W");
  EXPECT_TRUE(listener->messages.contains("keyboard press, scan code: 17"));
  EXPECT_EQ(QStringList(), Lines());
}

// Two lines of a little over 64 K fill a file each time; of the four full files the last two are kept.
TEST_F(Log, AFullFileIsPutAwayAndTwoOfThemAreKept) {
  constexpr int kRotation = 64 * 1024;  // bytes
  const std::string half(kRotation / 2, 'x');
  for (int i = 0; i < 9; ++i) InputLogger::GetInstance()->Error(half);
  const QString name = QStringLiteral("input_looger.txt_%1").arg(QCoreApplication::applicationPid());
  const QFileInfoList files = QDir().entryInfoList(QDir::Files, QDir::Name);
  ASSERT_EQ(3, files.size());
  EXPECT_EQ(name, files[0].fileName());
  // The ninth; more if two files are filled within one millisecond, which is part of their names.
  EXPECT_GE(Lines().size(), 1);
  EXPECT_LT(Lines().size(), 9);
  const QRegularExpression archive(QStringLiteral("^%1\\.\\d{17}(\\.\\d+)?$").arg(QRegularExpression::escape(name)));
  for (const QFileInfo& file : files.mid(1)) {
    EXPECT_TRUE(archive.match(file.fileName()).hasMatch()) << file.fileName().toStdString();
    EXPECT_GT(file.size(), kRotation);
  }
}

TEST_F(Log, AFolderThatCannotBeWrittenStopsNothing) {
  QDir::setCurrent(QStringLiteral("/proc/self"));
  SetInputTextSendFunc(nullptr);
  SetInputTextSendFunc(nullptr);
}

// Without a story: the logger must not exist when the second process begins.
TEST(LogOfTwoProcesses, HasTwoFiles) {
  const QTemporaryDir folder;
  QDir::setCurrent(folder.path());
  EXPECT_EXIT(
      {
        SetInputTextSendFunc(nullptr);
        std::_Exit(0);
      },
      testing::ExitedWithCode(0), "");
  SetInputTextSendFunc(nullptr);
  SetInputEventSendFunc(nullptr);
  const QFileInfoList files = QDir().entryInfoList({QStringLiteral("input_looger.txt_*")}, QDir::Files, QDir::Size);
  ASSERT_EQ(2, files.size());
  EXPECT_EQ(QStringLiteral("input_looger.txt_%1").arg(QCoreApplication::applicationPid()),
            files[0].fileName());  // the larger, of two lines
  QDir::setCurrent(QStringLiteral("/"));
}

}  // namespace
}  // namespace taviinputmanager
