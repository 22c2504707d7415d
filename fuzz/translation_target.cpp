// Input: bytes as lines for the guest, which are recorded, saved, and replayed.
#include <QStringList>

#include "fuzz/check.h"
#include "fuzz/session.h"
#include "host/simulation/simulated_host.h"
#include "record/record_manager.h"
#include "taviinputmanager/taviinputmanager.h"

namespace taviinputmanager::fuzz {
namespace {

constexpr int kMaxLines = 200;
constexpr int kTask = 1;

int save_result = -1;

void Record(const QStringList& lines) {
  RecordManager* manager = RecordManager::GetInstance();
  StartRecord("com.example.game", "Game");
  for (const QString& line : lines) {
    if (line.startsWith("TEXT")) {
      manager->OnTextCommand(line);
    } else {
      manager->OnEventCommand(line);
    }
    Session::Get().Time().Advance(1);
  }
}

void CheckSaved(const QString& file) {
  RecordInfo info;
  Check(GetRecordInfo(file, &info), "a saved recording can be read");
  Check(info.package_name == "com.example.game", "the package is that of the recording");
  QString app;
  QString package;
  GetScriptAppAndPackage(file, app, package);
  Check(app == "Game" && package == "com.example.game", "the names are those of the recording");
}

void Replay(const QString& file, bool emulation_mode) {
  tavi::VirtualEventDispatcher& time = Session::Get().Time();
  StartReplay(0, kTask, {}, file, {1, emulation_mode});
  time.Advance(kMaxLines + 50);
  StopReplay(kTask, file, true);
  time.Advance(1);
}

QRect DisplayRect(int how) {
  constexpr QRect kRects[] = {{0, 0, 1280, 720}, {0, 0, 720, 1280}, {0, 0, 0, 0}, {-10, 5, 1, 1}};
  return kRects[how & 3];
}

}  // namespace
}  // namespace taviinputmanager::fuzz

// The first byte sets the host's display and how the recording is played; the others are lines.
extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  using namespace taviinputmanager::fuzz;
  if (size < 1) return 0;
  Session& session = Session::Get();
  session.Host().display = DisplayRect(data[0]);
  static taviinputmanager::InputRecorderCallbacks recorder{[] {}, [] {}, [] {},
                                                           [](const QString&, int result) { save_result = result; }};
  taviinputmanager::InitializeRecordCallbacks(&recorder);

  const QByteArray text(reinterpret_cast<const char*>(data) + 1, static_cast<int>(size) - 1);
  Record(QString::fromUtf8(text).split('\n').mid(0, kMaxLines));
  const QString file = session.FilePath("recording.record");
  taviinputmanager::StopRecord("com.example.game", file);
  Check(save_result == 0 || save_result == 1, "a recording is saved or not worth it");
  if (save_result == 0) {
    CheckSaved(file);
    Replay(file, (data[0] & 4) != 0);
  }
  session.Finish();
  return 0;
}
