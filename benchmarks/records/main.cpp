// Measures the cost of a long record, and of just parsing the same bytes in the same run.
//
//   tavi_bench_records [ACTIONS]    records this many actions (1000000), saves, loads, walks, replays, merges and
//   stamps
//                                   them, and prints the figures as JSON
//
// Memory is what the program has allocated from the system: the maximum during a call, minus what stays allocated.
#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <ctime>
#include <functional>
#include <malloc.h>
#include <memory>
#include <string>

#include <QFile>
#include <QGuiApplication>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTemporaryDir>

#include "host/simulation/simulated_host.h"
#include "host/simulation/virtual_event_dispatcher.h"
#include "record/record_action.h"
#include "record/record_actions.h"
#include "record/record_file_utils.h"
#include "record/record_manager.h"
#include "record/replay_context.h"
#include "record/single_record_actions.h"
#include "taviinputmanager/taviinputmanager.h"

namespace taviinputmanager::bench {
namespace {

constexpr int kDefaultActions = 1000000;
constexpr int kRepetitions = 3;  // the minimum counts
constexpr double kMebibyte = 1024.0 * 1024.0;

// Processor time, so that other load on the machine does not count.
double SecondsOf(const std::function<void()>& work) {
  const std::clock_t start = std::clock();
  work();
  return static_cast<double>(std::clock() - start) / CLOCKS_PER_SEC;
}

double LeastSecondsOf(const std::function<void()>& work) {
  double least = SecondsOf(work);
  for (int i = 1; i < kRepetitions; ++i) least = std::min(least, SecondsOf(work));
  return least;
}

// Bytes in use, including large blocks with a mapping of their own.
double HeapInUse() {
  const struct mallinfo2 info = mallinfo2();
  return static_cast<double>(info.uordblks + info.hblkhd);
}

// The program's resident memory, from "VmRSS" and "VmHWM": the current amount and the maximum.
double MebibytesOf(const char* name) {
  QFile status(QStringLiteral("/proc/self/status"));
  if (!status.open(QIODevice::ReadOnly)) return 0;
  const QByteArray lines = status.readAll();
  const int start = lines.indexOf(name) + static_cast<int>(qstrlen(name)) + 1;
  return lines.mid(start, lines.indexOf("kB", start) - start).trimmed().toDouble() / 1024;
}

// The memory that `work` needs temporarily, beyond what is in use after it.
double PassingMebibytesOf(const std::function<void()>& work) {
  malloc_trim(0);
  QFile most(QStringLiteral("/proc/self/clear_refs"));
  if (most.open(QIODevice::WriteOnly | QIODevice::Unbuffered)) most.write("5");  // resets the maximum
  const double before = MebibytesOf("VmRSS");
  work();
  const double most_used = MebibytesOf("VmHWM");
  malloc_trim(0);  // returns free memory to the system
  return most_used - std::max(before, MebibytesOf("VmRSS"));
}

// Taps: a press at a unique point, and its release a little later.
void RecordTaps(int count) {
  auto* clock = static_cast<tavi::VirtualEventDispatcher*>(QCoreApplication::eventDispatcher());
  StartRecord(QString(), QString());
  for (int i = 1; i < count; ++i) {  // the start marker is the first
    clock->Advance(i % 50);
    const bool is_press = i % 2 == 0;
    const QString place = QStringLiteral("(0.%1,0.%2)").arg(100000 + i % 900000).arg(999999 - i % 800000);
    RecordManager::GetInstance()->AddAction(QStringLiteral("touch"),
                                            is_press ? QStringLiteral("press_rel:") + place : QStringLiteral("release"),
                                            QStringLiteral("11"), QString());
  }
}

int CountByWalking(RecordActions* actions) {
  RecordAction action;
  int delay = 0;
  int count = 0;
  for (bool more = actions->First(&action, &delay); more; more = actions->Next(&action, &delay)) ++count;
  return count;
}

int lines_sent = 0;

class Run {
 public:
  explicit Run(int actions) : actions_(actions), file_(folder_.filePath(QStringLiteral("long.json"))) {}

  int Print() {
    std::printf("{\"actions\": %d", actions_);
    Save();
    Parse();
    Load();
    Replay();
    ReadHeader();
    Merge();
    Stamp();
    std::printf("}\n");
    return is_right_ ? EXIT_SUCCESS : EXIT_FAILURE;
  }

 private:
  void Tell(const char* name, double value) { std::printf(", \"%s\": %.6f", name, value); }
  void TellBesideParse(const char* name, double seconds) {
    Tell((std::string(name) + "_s").c_str(), seconds);
    Tell((std::string(name) + "_to_parse").c_str(), seconds / parse_s_);
  }
  void Expect(bool is_right, const char* what) {
    if (is_right) return;
    std::fprintf(stderr, "tavi_bench_records: %s\n", what);
    is_right_ = false;
  }

  void Save() {
    for (int i = 0; i < kRepetitions; ++i) {
      QFile::remove(file_);
      RecordTaps(actions_);
      const double seconds = SecondsOf([this] { StopRecord(QString(), file_); });
      save_s_ = i == 0 ? seconds : std::min(save_s_, seconds);
    }
    ReplayContext context;
    Expect(Files()->LoadRecord(file_, &context), "cannot load what was saved");
    const auto& actions = static_cast<SingleRecordActions*>(context.actions.get())->actions;
    const QString other = folder_.filePath(QStringLiteral("other.json"));
    Tell("save_MiB", PassingMebibytesOf([&] { Files()->SaveRecord({}, other, actions); }));
    QFile::remove(other);
  }

  void Parse() {
    QFile file(file_);
    Expect(file.open(QIODevice::ReadOnly), "cannot read back");
    const QByteArray bytes = file.readAll();
    parse_s_ = LeastSecondsOf([&] {
      QJsonParseError error{};
      Expect(!QJsonDocument::fromJson(bytes, &error).object().isEmpty(), "cannot parse");
    });
    Tell("file_MiB", bytes.size() / kMebibyte);
    Tell("parse_s", parse_s_);
    TellBesideParse("save", save_s_);
  }

  void Load() {
    TellBesideParse("load", LeastSecondsOf([&] {
                      ReplayContext context;
                      Expect(Files()->LoadRecord(file_, &context), "cannot load");
                    }));
    malloc_trim(0);
    const double before = HeapInUse();
    ReplayContext context;
    Tell("load_MiB", PassingMebibytesOf([&] { Files()->LoadRecord(file_, &context); }));
    Tell("heap_bytes_per_action", (HeapInUse() - before) / actions_);
    int walked = 0;
    Tell("walk_s", SecondsOf([&] { walked = CountByWalking(context.actions.get()); }));
    Expect(walked == actions_, "the walk loses actions");
  }

  void Replay() {
    SetInputEventSendFunc(reinterpret_cast<void*>(+[](const char* /*data*/, int /*length*/) { ++lines_sent; }));
    UpdateReplayDisplayId(1);
    double start = 0;
    double least = ReplayOnce(&start);
    for (int i = 1; i < kRepetitions; ++i) least = std::min(least, ReplayOnce(&start));
    TellBesideParse("start", start);
    Tell("replay_s", least);
  }
  // `start` becomes the minimum of itself, unless it is 0, and the time of this call.
  double ReplayOnce(double* start) {
    auto* clock = static_cast<tavi::VirtualEventDispatcher*>(QCoreApplication::eventDispatcher());
    lines_sent = 0;
    const double call = SecondsOf([this] { StartReplay(0, 1, QString(), file_, ReplayParam()); });
    *start = *start > 0 ? std::min(*start, call) : call;
    const double seconds = SecondsOf([clock] {
      for (int last = -1; lines_sent != last;) {
        last = lines_sent;
        clock->Advance(kStepMs);
      }
    });
    Expect(lines_sent >= actions_ - 1, "the replay loses actions");  // the start marker is not a line
    StopAllReplay();
    clock->Settle();
    return seconds;
  }

  void ReadHeader() {
    const auto read_info = [&] {
      RecordInfo info;
      Expect(GetRecordInfo(file_, &info), "cannot read the header");
    };
    TellBesideParse("info", LeastSecondsOf(read_info));
    Tell("info_MiB", PassingMebibytesOf(read_info));
    TellBesideParse("names", LeastSecondsOf([&] {
                      QString app;
                      QString package;
                      GetScriptAppAndPackage(file_, app, package);
                    }));
  }

  void Merge() {
    MergeParam param;
    param.file_name = file_;
    const QString target = folder_.filePath(QStringLiteral("merged.json"));
    const auto merge = [&] {
      QFile::remove(target);
      Expect(MergeRecord(target, {param, param}), "cannot merge");
    };
    TellBesideParse("merge_two", LeastSecondsOf(merge));
    Tell("merge_MiB", PassingMebibytesOf(merge));
    QFile::remove(target);
  }

  void Stamp() {
    const auto stamp = [&] { UpdateRecordTimestamp(file_); };
    TellBesideParse("stamp", LeastSecondsOf(stamp));
    Tell("stamp_MiB", PassingMebibytesOf(stamp));
  }

  static constexpr int kStepMs = 60000;

  static RecordFileUtils* Files() { return RecordFileUtils::GetInstance(); }

  const int actions_;
  QTemporaryDir folder_;
  const QString file_;
  double save_s_ = 0;
  double parse_s_ = 0;
  bool is_right_ = true;
};

}  // namespace
}  // namespace taviinputmanager::bench

int main(int argc, char** argv) {
  using namespace taviinputmanager;
  qputenv("QT_QPA_PLATFORM", "offscreen");
  QCoreApplication::setEventDispatcher(new tavi::VirtualEventDispatcher);
  const QGuiApplication application(argc, argv);
  tavi::SimulatedHost::GetInstance()->Start([] { return qint64{0}; });
  return bench::Run(argc > 1 ? std::atoi(argv[1]) : bench::kDefaultActions).Print();
}
