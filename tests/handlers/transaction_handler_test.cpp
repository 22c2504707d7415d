#include "handlers/transaction_handler.h"

#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTemporaryDir>

#include "taviinputmanager/taviinputmanager.h"
#include "tests/support/story.h"

namespace taviinputmanager {
namespace {

QStringList mirrored;

void Mirror(const QString& command, const QVector<QString>& /*targets*/) { mirrored.append(command.trimmed()); }

class BackClick : public Story {};

TEST_F(BackClick, ReleasesEightMillisecondsLater) {
  Load(0);  // live input goes to display 0, the click to 1 all the same
  Play("back 1; wait 7");
  EXPECT_WIRE("0ms 1:KBDPR:158:1");
  Wait(1);
  EXPECT_WIRE("8ms 1:KBDRL:158:0");
  Wait(100);
  EXPECT_WIRE_NONE();  // one click, one release
}

TEST_F(BackClick, ASecondClickPutsTheReleaseOffOnItsOwnDisplay) {
  Load();
  Play("back 1; wait 5; back 2; wait 7");
  EXPECT_WIRE("0ms 1:KBDPR:158:1", "5ms 2:KBDPR:158:1");
  Wait(1);  // 5 + 8
  EXPECT_WIRE("13ms 2:KBDRL:158:0");
  Wait(100);
  EXPECT_WIRE_NONE();
}

TEST_F(BackClick, ClicksThatAreDoneDoNotMix) {
  Load();
  Play("back 1; wait 8; back 1; wait 8");
  EXPECT_WIRE("0ms 1:KBDPR:158:1", "8ms 1:KBDRL:158:0", "8ms 1:KBDPR:158:1", "16ms 1:KBDRL:158:0");
}

TEST_F(BackClick, IsNoHeldKeyForAReset) {
  Load();
  Play("back 1; wait 3; reset");
  for (const QString& line : TakeWire()) EXPECT_FALSE(line.contains("KBDRL")) << line.toStdString();
  Wait(5);
  EXPECT_WIRE("8ms 1:KBDRL:158:0");
}

TEST_F(BackClick, ItsOwnDisplayDecidesOnMirroring) {
  Host().primary_display = 1;
  SetInputEventSyncFunc(reinterpret_cast<void*>(&Mirror));
  StartSync("other", "", "");
  Load(0);
  mirrored.clear();
  Play("back 1; wait 8");
  EXPECT_EQ(QStringList({"KBDPR:158:1", "KBDRL:158:0"}), mirrored);
  mirrored.clear();
  Play("back 0; wait 8");  // where live input goes, but not primary
  EXPECT_TRUE(mirrored.isEmpty());
}

TEST_F(BackClick, ItsOwnDisplayDecidesOnRecording) {
  const QTemporaryDir folder;
  Host().primary_display = 1;
  Load(0);
  StartRecord("p", "a");
  Play("back 1; wait 8; back 0; wait 8");
  StopRecord("p", folder.filePath("record.json"));
  QFile file(folder.filePath("record.json"));
  ASSERT_TRUE(file.open(QIODevice::ReadOnly));
  QStringList recorded;
  for (const QJsonValue& action : QJsonDocument::fromJson(file.readAll()).object().value("actions").toArray()) {
    if (action["type"] == "keyboard") recorded.append(action["data"].toString());
  }
  EXPECT_EQ(QStringList({"keyboard_press:158", "keyboard_release:158"}), recorded);
}

}  // namespace
}  // namespace taviinputmanager
