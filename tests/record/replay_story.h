// Stories of replays: record files, requests, and all their effects in one sequence.
#ifndef TESTS_RECORD_REPLAY_STORY_H_
#define TESTS_RECORD_REPLAY_STORY_H_

#include "host/simulation/virtual_event_dispatcher.h"
#include "taviinputmanager/taviinputmanager.h"
#include "tests/record/replay_file.h"
#include "tests/support/story.h"

namespace taviinputmanager {

// Live input goes to display 1, replays to display 2.
class ReplayStory : public Story {
 protected:
  ReplayStory() {
    teller_ = this;
    table_.started = [](int id, const QString& file) { Tell("started", id, file); };
    table_.paused = [](int id, const QString& file) { Tell("paused", id, file); };
    table_.resumed = [](int id, const QString& file) { Tell("resumed", id, file); };
    table_.stopped = [](int id, const QString& file) { Tell("stopped", id, file); };
    table_.finished = [](int id, const QString& file, ReplayParam param) {
      Tell("finished", id, file, QStringLiteral("%1 %2").arg(param.speed_ratio).arg(param.emulation_mode));
    };
    table_.vcontrol = [](const QString& data, const QString& extra1, const QString& extra2, int id,
                         const QString& file) { Tell("vcontrol", id, file, data + "|" + extra1 + "|" + extra2); };
    Load(1);
    UpdateReplayDisplayId(2);
    InitializeReplayCallbacks(&table_);
  }

  // A record file of that name.
  QString Save(const QString& name, const QJsonArray& steps, const QJsonObject& control = {}) {
    return folder_.Save(name, steps, control);
  }
  QString Path(const QString& name) const { return folder_.Path(name); }

  void Start(int id, const QString& name, double speed = 1.0, bool emulation_mode = false) {
    StartReplay(0, id, QString(), Path(name), {speed, emulation_mode});
    Time().Settle();
  }
  // Delivers requests and their effects, without any time passing.
  void Pause(int id, const QString& name) {
    PauseReplay(id, Path(name));
    Time().Settle();
  }
  void Resume(int id, const QString& name) {
    ResumeReplay(id, Path(name));
    Time().Settle();
  }
  void Restart(int id, const QString& name, double speed = 1.0) {
    RestartReplay(id, Path(name), {speed, false});
    Time().Settle();
  }
  void Stop(int id, const QString& name, bool by_user = false) {
    StopReplay(id, Path(name), by_user);
    Time().Settle();
  }
  void StopAll() {
    StopAllReplay();
    Time().Settle();
  }

  // Lines as sent, callbacks of the replay table with a ">", those of the host's table with a "!".
  QStringList TakeStory() {
    TakeTimeline();
    return std::exchange(story_, {});
  }
  // Only the lines that were not taken yet.
  QStringList TakeLines() {
    const QStringList story = TakeStory();
    QStringList lines;
    for (const QString& entry : story) {
      if (!entry.contains("ms > ") && !entry.contains("ms ! ")) lines.append(entry);
    }
    return lines;
  }
  QStringList TakeReplayCalls() { return TakeStory().filter("ms > "); }

  InputReplayerCallbacks table_;

 private:
  static void Tell(const char* what, int id, const QString& file, const QString& more = {}) {
    teller_->TakeTimeline();  // what came before it
    const QString name = QString(file).remove(teller_->folder_.Path({}));
    teller_->story_.append(QStringLiteral("%1ms > %2 %3 %4 %5")
                               .arg(teller_->Time().NowMs() - teller_->zero_ms_)
                               .arg(what)
                               .arg(id)
                               .arg(name, more)
                               .trimmed());
  }
  void TakeTimeline() {
    for (const tavi::TimelineEntry& entry : Host().TakeTimeline()) story_.append(FormatEntry(entry));
  }

  inline static ReplayStory* teller_ = nullptr;

  const qint64 zero_ms_ = Time().NowMs();
  ReplayFolder folder_;
  QStringList story_;
};

#define EXPECT_STORY(...) \
  EXPECT_EQ((QStringList{__VA_ARGS__}).join('\n').toStdString(), TakeStory().join('\n').toStdString())
#define EXPECT_LINES(...) \
  EXPECT_EQ((QStringList{__VA_ARGS__}).join('\n').toStdString(), TakeLines().join('\n').toStdString())
#define EXPECT_REPLAY_CALLS(...) \
  EXPECT_EQ((QStringList{__VA_ARGS__}).join('\n').toStdString(), TakeReplayCalls().join('\n').toStdString())
#define EXPECT_STORY_NONE() EXPECT_EQ(std::string(), TakeStory().join('\n').toStdString())

}  // namespace taviinputmanager

#endif  // TESTS_RECORD_REPLAY_STORY_H_
