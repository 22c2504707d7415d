// What a long record costs, beside a bare parse of the same bytes in the same run.
//
//   tavi_bench_records [ACTIONS]    saves, loads, walks, replays and merges a record of so many actions (1000000), and
//                                   prints the figures as JSON
#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <ctime>
#include <functional>
#include <malloc.h>
#include <memory>
#include <sys/resource.h>

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
#include "record/replay_context.h"
#include "taviinputmanager/taviinputmanager.h"

namespace taviinputmanager::bench {
namespace {

constexpr int kDefaultActions = 1000000;
constexpr int kRepetitions = 3;  // the least counts
constexpr double kMebibyte = 1024.0 * 1024.0;

// Of the processor, so that what else the machine does falls out.
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

// Bytes in use, those of large blocks of their own included.
double HeapInUse() {
  const struct mallinfo2 info = mallinfo2();
  return static_cast<double>(info.uordblks + info.hblkhd);
}

double PeakMebibytes() {
  struct rusage usage = {};
  getrusage(RUSAGE_SELF, &usage);
  return static_cast<double>(usage.ru_maxrss) * 1024 / kMebibyte;
}

// Taps as a recording makes them: a press at a place of its own, and its release a little later.
QList<RecordAction*> MakeTaps(int count) {
  QList<RecordAction*> actions;
  actions.reserve(count);
  for (int i = 0; i < count; ++i) {
    const bool is_press = i % 2 == 0;
    const QString place = QStringLiteral("(0.%1,0.%2)").arg(100000 + i % 900000).arg(999999 - i % 800000);
    actions.append(new RecordAction{i % 50, QStringLiteral("touch"),
                                    is_press ? QStringLiteral("press_rel:") + place : QStringLiteral("release"),
                                    QStringLiteral("11"), QString()});
  }
  return actions;
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
    Load();
    Replay();
    Merge();
    std::printf(", \"peak_MiB\": %.0f}\n", PeakMebibytes());
    return is_right_ ? EXIT_SUCCESS : EXIT_FAILURE;
  }

 private:
  void Tell(const char* name, double value) { std::printf(", \"%s\": %.6f", name, value); }
  void Expect(bool is_right, const char* what) {
    if (is_right) return;
    std::fprintf(stderr, "tavi_bench_records: %s\n", what);
    is_right_ = false;
  }

  void Save() {
    const QList<RecordAction*> actions = MakeTaps(actions_);
    Tell("save_s", SecondsOf([&] { Expect(Files()->SaveRecord({}, file_, actions) == 0, "cannot save"); }));
    qDeleteAll(actions);
  }

  void Load() {
    QFile file(file_);
    Expect(file.open(QIODevice::ReadOnly), "cannot read back");
    const QByteArray bytes = file.readAll();
    const double parse = LeastSecondsOf([&] {
      QJsonParseError error{};
      Expect(!QJsonDocument::fromJson(bytes, &error).object().isEmpty(), "cannot parse");
    });
    const double load = LeastSecondsOf([&] {
      ReplayContext context;
      Expect(Files()->LoadRecord(file_, &context), "cannot load");
    });
    Tell("file_MiB", bytes.size() / kMebibyte);
    Tell("parse_s", parse);
    Tell("load_s", load);
    Tell("load_to_parse", load / parse);

    malloc_trim(0);
    const double before = HeapInUse();
    ReplayContext context;
    Files()->LoadRecord(file_, &context);
    Tell("heap_bytes_per_action", (HeapInUse() - before) / actions_);
    int walked = 0;
    Tell("walk_s", SecondsOf([&] { walked = CountByWalking(context.actions.get()); }));
    Expect(walked == actions_, "the walk loses actions");
  }

  void Replay() {
    SetInputEventSendFunc(reinterpret_cast<void*>(+[](const char* /*data*/, int /*length*/) { ++lines_sent; }));
    UpdateReplayDisplayId(1);
    double least = ReplayOnce();
    for (int i = 1; i < kRepetitions; ++i) least = std::min(least, ReplayOnce());
    Tell("replay_s", least);
  }
  double ReplayOnce() {
    auto* clock = static_cast<tavi::VirtualEventDispatcher*>(QCoreApplication::eventDispatcher());
    lines_sent = 0;
    StartReplay(0, 1, QString(), file_, ReplayParam());
    const double seconds = SecondsOf([clock] {
      for (int last = -1; lines_sent != last;) {
        last = lines_sent;
        clock->Advance(kStepMs);
      }
    });
    Expect(lines_sent >= actions_, "the replay loses actions");
    StopAllReplay();
    clock->Settle();
    return seconds;
  }

  void Merge() {
    MergeParam param;
    param.file_name = file_;
    Tell("merge_two_s", SecondsOf([&] {
           Expect(MergeRecord(folder_.filePath(QStringLiteral("merged.json")), {param, param}), "cannot merge");
         }));
  }

  static constexpr int kStepMs = 60000;

  static RecordFileUtils* Files() { return RecordFileUtils::GetInstance(); }

  const int actions_;
  QTemporaryDir folder_;
  const QString file_;
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
