// Records in the window: a user records, saves, opens and replays.
#include <functional>
#include <utility>

#include <QAction>
#include <QDir>
#include <QDockWidget>
#include <QFileInfo>
#include <QStatusBar>

#include "host/session/recorder.h"
#include "host/session/replayer.h"
#include "host/window/records/record_bar.h"
#include "host/window/view/guest_screen.h"
#include "taviinputmanager/taviinputmanager.h"
#include "tests/host/window/window_fixture.h"
#include "tests/support/system/data_folder.h"
#include "tests/support/system/full_disk.h"
#include "tests/support/system/make_pipe.h"

namespace tavi {
namespace {

using State = Replayer::State;
using taviinputmanager::RecordStatus;

// What the status bar showed at each repaint, and how far the work was.
class PaintedNews : public QObject {
 public:
  PaintedNews(QStatusBar* bar, std::function<bool()> has_begun) : bar_(bar), has_begun_(std::move(has_begun)) {
    bar->installEventFilter(this);
  }

  QStringList before_the_work;

 protected:
  bool eventFilter(QObject* /*watched*/, QEvent* event) override {
    if (event->type() == QEvent::Paint && !has_begun_()) before_the_work += bar_->currentMessage();
    return false;
  }

 private:
  QStatusBar* bar_;
  std::function<bool()> has_begun_;
};

// -1 while the pointer is normal.
int PointerShape() { return QApplication::overrideCursor() ? QApplication::overrideCursor()->shape() : -1; }

class RecordsInTheWindow : public WindowFixture {
 protected:
  RecordsInTheWindow() {
    Records()->SetAsk([this](const QString& question, const QVector<Answer>& /*answers*/) {
      questions_ += question;
      return answers_.isEmpty() ? QMessageBox::Cancel : answers_.takeFirst();
    });
    Load("{type: Click, key: Space, point: [0.25, 0.75]}");
    QObject::connect(Records(), &RecordBar::Message, Window(),
                     [this](const QString& text, bool is_problem) { (is_problem ? problem_ : news_) = text; });
  }

  RecordBar* Records() const { return Window()->Records(); }
  static Replayer* Replay() { return Replayer::GetInstance(); }
  QString Path(const char* name) const { return folder_.filePath(QLatin1String(name)); }

  // A tap that begins after 100 ms and is held for 200.
  QString RecordATap() {
    const QString file = Path("tap.json");
    Records()->SetTarget(file);
    Records()->ToggleRecording();
    clock_->Advance(100);
    Press(kSpace);
    clock_->Advance(200);
    Release(kSpace);
    Records()->ToggleRecording();
    return file;
  }
  // The display of replays.
  GuestScreen* SecondView() const {
    for (auto* screen : Window()->findChildren<GuestScreen*>()) {
      if (screen != View()) return screen;
    }
    return nullptr;
  }

  // A tap while a recording runs.
  void BeginATap(const QString& target) {
    Records()->SetTarget(target);
    Records()->ToggleRecording();
    Press(kSpace);
    clock_->Advance(200);
    Release(kSpace);
  }
  static bool IsRecord(const QString& file) {
    RecordInfo info;
    return taviinputmanager::GetRecordInfo(file, &info);
  }
  // The recordings that have no final file yet.
  QStringList Kept() const { return data_.NewFolders(); }
  QByteArray Text(const QString& file) const {
    QFile opened(file);
    EXPECT_TRUE(opened.open(QIODevice::ReadOnly));
    return opened.readAll();
  }

  // A tap while a recording runs whose folder has gone.
  void BeginATapWithoutAPlace() {
    QDir(folder_.path()).mkdir("gone");
    BeginATap(Path("gone/tap.json"));
    QDir(folder_.path()).rmdir("gone");
  }

  const DataFolder data_{folder_.filePath("data")};  // where recordings are kept
  QString news_;
  QString problem_;
  QStringList questions_;
  QVector<QMessageBox::StandardButton> answers_;  // the answers to the next questions; then Cancel
};

constexpr char kFull[] = "/dev/full";  // can be opened, but accepts nothing

TEST_F(RecordsInTheWindow, ARecordingIsSaved) {
  const QString file = RecordATap();
  EXPECT_EQ(Recorder::GetInstance()->Status(), RecordStatus::Stopped);
  EXPECT_TRUE(news_.contains(file)) << news_.toStdString();
  RecordInfo info;
  ASSERT_TRUE(taviinputmanager::GetRecordInfo(file, &info));
  EXPECT_EQ(info.resolution, QSize(1280, 720));  // the guest's, not the view's
  EXPECT_EQ(info.total_running_time, 300U);
}

TEST_F(RecordsInTheWindow, AReplayPutsTheFingerWhereItWas) {
  const QString file = RecordATap();
  ASSERT_TRUE(Records()->OpenRecord(file));
  Records()->TogglePlaying();
  clock_->Advance(150);
  EXPECT_EQ(Replay()->GetState(), State::kPlaying);
  EXPECT_EQ(Slots(), QList<int>{18});     // the first slot for replays
  EXPECT_EQ(Finger(), QPoint(320, 540));  // 0.25 * 1280, 0.75 * 720
  clock_->Advance(200);
  EXPECT_EQ(Replay()->GetState(), State::kFinished);
  EXPECT_TRUE(Slots().isEmpty());
}

TEST_F(RecordsInTheWindow, AReplayLandsInAnotherGuestAtTheSamePlace) {
  const QString file = RecordATap();
  Window()->Display()->SetSize(QSize(1920, 1080));
  ASSERT_TRUE(Records()->OpenRecord(file));
  Records()->TogglePlaying();
  clock_->Advance(150);
  EXPECT_EQ(Finger(), QPoint(480, 810));  // 0.25 * 1920, 0.75 * 1080
}

TEST_F(RecordsInTheWindow, AReplayIsPausedAndGoesOn) {
  const QString file = RecordATap();
  ASSERT_TRUE(Records()->OpenRecord(file));
  Records()->TogglePlaying();
  clock_->Advance(150);  // 50 ms into the tap
  Records()->TogglePlaying();
  clock_->Advance(1000);
  EXPECT_EQ(Replay()->GetState(), State::kPaused);
  EXPECT_EQ(Slots(), QList<int>{18});  // the finger waits
  Records()->TogglePlaying();
  clock_->Advance(149);  // of the remaining 150
  EXPECT_EQ(Slots(), QList<int>{18});
  clock_->Advance(2);
  EXPECT_TRUE(Slots().isEmpty());
  EXPECT_EQ(Replay()->GetState(), State::kFinished);
}

TEST_F(RecordsInTheWindow, StopLetsGo) {
  const QString file = RecordATap();
  ASSERT_TRUE(Records()->OpenRecord(file));
  Records()->TogglePlaying();
  clock_->Advance(150);
  Replay()->Stop();
  clock_->Advance(1);
  EXPECT_EQ(Replay()->GetState(), State::kNone);
  EXPECT_TRUE(Slots().isEmpty());
}

TEST_F(RecordsInTheWindow, AReplayThatHasFinishedPlaysAgain) {
  const QString file = RecordATap();
  ASSERT_TRUE(Records()->OpenRecord(file));
  Records()->TogglePlaying();
  clock_->Advance(1000);
  ASSERT_EQ(Replay()->GetState(), State::kFinished);
  Records()->TogglePlaying();
  clock_->Advance(150);
  EXPECT_EQ(Replay()->GetState(), State::kPlaying);
  EXPECT_EQ(Slots(), QList<int>{18});
}

TEST_F(RecordsInTheWindow, ASecondViewTakesTheReplayAlone) {
  const QString file = RecordATap();
  Records()->SecondView()->trigger();
  ASSERT_TRUE(Records()->OpenRecord(file));
  Records()->TogglePlaying();
  clock_->Advance(150);
  EXPECT_TRUE(Slots().isEmpty());
  EXPECT_EQ(SecondView()->Model().state().contacts.keys(), QList<int>{18});
  Press(kSpace);  // the user plays at the same time
  EXPECT_EQ(Slots(), QList<int>{11});
}

// A finger and a key of a record, held from 100 ms on.
constexpr char kHeldInput[] = R"~({"info": {"total_running_time": 60000}, "actions": [
  {"timing": 100, "type": "touch", "data": "press_rel:(0.5,0.5)", "extra1": "2"},
  {"timing": 0, "type": "keyboard", "data": "keyboard_press:30"},
  {"timing": 59900, "type": "touch", "data": "release", "extra1": "2"}]})~";

TEST_F(RecordsInTheWindow, AReplayLeavesNothingDownOnTheDisplayThatItLeaves) {
  QFile record(Path("held.json"));
  ASSERT_TRUE(record.open(QIODevice::WriteOnly));
  record.write(kHeldInput);
  record.close();
  ASSERT_TRUE(Records()->OpenRecord(record.fileName()));
  Records()->TogglePlaying();
  clock_->Advance(150);
  ASSERT_EQ(Slots(), QList<int>{18});
  ASSERT_EQ(Guest().held_keys, QSet<int>{30});
  Records()->SecondView()->trigger();
  EXPECT_TRUE(Slots().isEmpty());
  EXPECT_TRUE(Guest().held_keys.isEmpty());
  Records()->TogglePlaying();
  clock_->Advance(10);
  Records()->TogglePlaying();  // resuming presses what is held again, now there
  clock_->Advance(10);
  EXPECT_EQ(SecondView()->Model().state().contacts.keys(), QList<int>{18});
  EXPECT_EQ(SecondView()->Model().state().held_keys, QSet<int>{30});
  Press(kSpace);
  Records()->SecondView()->trigger();
  EXPECT_TRUE(SecondView()->Model().state().contacts.isEmpty());
  EXPECT_TRUE(SecondView()->Model().state().held_keys.isEmpty());
  EXPECT_EQ(Slots(), QList<int>{11});  // the player's, which was on the other display all the time
}

// Nothing is replayed: the player's finger stays.
TEST_F(RecordsInTheWindow, ASecondViewWithoutAReplayLiftsNothing) {
  Press(kSpace);
  Records()->SecondView()->trigger();
  EXPECT_EQ(Slots(), QList<int>{11});
}

TEST_F(RecordsInTheWindow, ASecondViewThatIsClosedIsSwitchedOff) {
  Records()->SecondView()->trigger();
  Window()->findChild<QDockWidget*>("replays")->close();
  EXPECT_FALSE(Records()->SecondView()->isChecked());
}

TEST_F(RecordsInTheWindow, WhatIsNoRecordIsRefused) {
  EXPECT_FALSE(Records()->OpenRecord(Write("none.json", "")));
  EXPECT_TRUE(problem_.contains(QLatin1String("none.json"))) << problem_.toStdString();
  EXPECT_TRUE(Replay()->File().isEmpty());
}

TEST_F(RecordsInTheWindow, ARecordingOfNothingIsToldAndLeavesNoFile) {
  Records()->SetTarget(Path("nothing.json"));
  Records()->ToggleRecording();
  Records()->ToggleRecording();
  EXPECT_FALSE(problem_.isEmpty());
  EXPECT_FALSE(QFileInfo::exists(Path("nothing.json")));
  EXPECT_EQ(PointerShape(), -1);
}

// The library writes synchronously: nothing is painted meanwhile, so the message comes first.
TEST_F(RecordsInTheWindow, SavingIsSeenBeforeItBegins) {
  const QString file = Path("tap.json");
  const PaintedNews painted(Window()->statusBar(), [file] { return QFileInfo::exists(file); });
  int pointer_meanwhile = -1;
  QObject::connect(Recorder::GetInstance(), &Recorder::Saved, Window(), [&] { pointer_meanwhile = PointerShape(); });
  RecordATap();
  EXPECT_TRUE(painted.before_the_work.contains(QStringLiteral("Saving %1\u2026").arg(file)));
  EXPECT_EQ(pointer_meanwhile, Qt::WaitCursor);
  EXPECT_EQ(PointerShape(), -1);
  EXPECT_EQ(Window()->statusBar()->currentMessage(), QStringLiteral("Saved %1").arg(file));
}

// The library reads synchronously, too.
TEST_F(RecordsInTheWindow, ReadingALongRecordIsSeenBeforeItBegins) {
  const QString file = RecordATap();
  ASSERT_TRUE(Records()->OpenRecord(file));
  QFile longer(file);
  ASSERT_TRUE(longer.open(QIODevice::Append));
  longer.write(QByteArray(16'000'000, ' '));  // longer reads are announced
  longer.close();
  const PaintedNews painted(Window()->statusBar(), [] { return Replay()->GetState() != State::kNone; });
  int pointer_meanwhile = -1;
  QObject::connect(Replay(), &Replayer::Changed, Window(), [&] {
    if (Replay()->GetState() == State::kStarting) pointer_meanwhile = PointerShape();
  });
  Records()->TogglePlaying();
  EXPECT_TRUE(painted.before_the_work.contains(QStringLiteral("Reading %1\u2026").arg(file)));
  EXPECT_EQ(pointer_meanwhile, Qt::WaitCursor);
  EXPECT_EQ(PointerShape(), -1);
}

TEST_F(RecordsInTheWindow, ReadingAShortRecordIsNoNews) {
  const QString file = RecordATap();
  ASSERT_TRUE(Records()->OpenRecord(file));
  news_.clear();
  Records()->TogglePlaying();
  EXPECT_EQ(news_, QString());
  EXPECT_EQ(PointerShape(), -1);
}

TEST_F(RecordsInTheWindow, ClosingTheWindowSavesARecordingThatHasItsFile) {
  Records()->SetTarget(Path("closed.json"));
  Records()->ToggleRecording();
  Press(kSpace);
  Window()->close();
  EXPECT_TRUE(QFileInfo::exists(Path("closed.json")));
}

// ---- Recordings that cannot be saved

TEST_F(RecordsInTheWindow, ATargetThatCannotBeWrittenIsToldAtTheStart) {
  Records()->SetTarget(Path("none/tap.json"));
  Records()->ToggleRecording();
  EXPECT_EQ(Recorder::GetInstance()->Status(), RecordStatus::Stopped);
  EXPECT_EQ(problem_,
            QString("Not recording: %1 cannot be written: No such file or directory").arg(Path("none/tap.json")));
}

TEST_F(RecordsInTheWindow, WhatCannotBeSavedIsSavedElsewhere) {
  BeginATap(kFull);
  answers_ = {QMessageBox::Save};
  Records()->SetAskForName([this](const SaveQuestion&) { return Path("elsewhere.json"); });
  EXPECT_TRUE(Records()->SaveRecording());
  ASSERT_EQ(questions_.size(), 1);
  EXPECT_EQ(questions_[0], QString("/dev/full cannot be written: No space left on device.\n\nThe recording is kept."));
  EXPECT_TRUE(IsRecord(Path("elsewhere.json")));
  EXPECT_TRUE(Kept().isEmpty());
}

TEST_F(RecordsInTheWindow, WhatCannotBeSavedIsTriedAgain) {
  QDir(folder_.path()).mkdir("later");
  BeginATap(Path("later/tap.json"));
  QDir(folder_.path()).rmdir("later");
  Records()->SetAsk([this](const QString& question, const QVector<Answer>&) {
    questions_ += question;
    QDir(folder_.path()).mkdir("later");
    return QMessageBox::Retry;
  });
  EXPECT_TRUE(Records()->SaveRecording());
  EXPECT_EQ(questions_.size(), 1);
  EXPECT_TRUE(IsRecord(Path("later/tap.json")));
}

TEST_F(RecordsInTheWindow, TheWindowStaysUntilTheRecordingIsSavedOrDropped) {
  BeginATapWithoutAPlace();
  EXPECT_FALSE(Window()->close());  // Cancel
  EXPECT_TRUE(Window()->isVisible());
  EXPECT_TRUE(Recorder::GetInstance()->HasRecording());
  EXPECT_EQ(Kept().size(), 1);
  EXPECT_TRUE(IsRecord(Recorder::GetInstance()->KeptFile()));
  EXPECT_FALSE(Window()->close());
  EXPECT_EQ(questions_.size(), 2);
  answers_ = {QMessageBox::Discard};
  EXPECT_TRUE(Window()->close());
  EXPECT_FALSE(Recorder::GetInstance()->HasRecording());
  EXPECT_TRUE(Kept().isEmpty());
}

// The button saves the kept recording; a new one would replace it.
TEST_F(RecordsInTheWindow, WhatIsKeptIsSavedBeforeAnythingElseIsRecorded) {
  BeginATapWithoutAPlace();
  Records()->ToggleRecording();  // Cancel
  Records()->SetTarget(Path("tap.json"));
  Records()->ToggleRecording();
  EXPECT_EQ(Recorder::GetInstance()->Status(), RecordStatus::Stopped);
  EXPECT_TRUE(IsRecord(Path("tap.json")));
}

TEST_F(RecordsInTheWindow, WhoBacksOutOfTheDialogGoesOnRecording) {
  BeginATap(QString());
  Records()->SetAskForName([](const SaveQuestion&) { return QString(); });
  EXPECT_FALSE(Records()->SaveRecording());
  EXPECT_EQ(Recorder::GetInstance()->Status(), RecordStatus::Paused);
}

TEST_F(RecordsInTheWindow, AFullDiskLeavesTheRecordThatWasThere) {
  QFile before(Path("tap.json"));
  ASSERT_TRUE(before.open(QIODevice::WriteOnly));
  before.write("before");
  before.close();
  BeginATap(Path("tap.json"));
  ASSERT_EQ(Recorder::GetInstance()->End(), QString());  // kept, where there is space
  {
    const FileSizeLimit full(100);
    EXPECT_FALSE(Records()->SaveRecording());
  }
  EXPECT_TRUE(questions_.value(0).contains("File too large")) << questions_.value(0).toStdString();
  EXPECT_EQ(Text(Path("tap.json")), QByteArray("before"));
  EXPECT_TRUE(Records()->SaveRecording());
  EXPECT_TRUE(IsRecord(Path("tap.json")));
}

TEST_F(RecordsInTheWindow, WithoutAskingItIsSavedOrKept) {
  BeginATapWithoutAPlace();
  const QStringList news = Window()->LeaveWithoutAsking();
  EXPECT_EQ(news, QStringList(Path("gone/tap.json") +
                              " cannot be written: No such file or directory; the recording was saved as " +
                              Recorder::GetInstance()->KeptFile()));
  EXPECT_TRUE(IsRecord(Recorder::GetInstance()->KeptFile()));
  Records()->SetTarget(Path("tap.json"));
  EXPECT_EQ(Window()->LeaveWithoutAsking(), QStringList());
  EXPECT_TRUE(IsRecord(Path("tap.json")));
  EXPECT_EQ(Replay()->File(), Path("tap.json"));
  EXPECT_TRUE(questions_.isEmpty());
}

TEST_F(RecordsInTheWindow, WhatIsDownAtTheEndIsLiftedInTheRecord) {
  Records()->SetTarget(Path("held.json"));
  Records()->ToggleRecording();
  Press(kSpace);
  EXPECT_TRUE(Window()->close());
  const QByteArray text = Text(Path("held.json"));
  EXPECT_GT(text.indexOf("release"), text.indexOf("press_rel")) << text.toStdString();
  EXPECT_TRUE(Slots().isEmpty());
}

// ---- Names of records

TEST_F(RecordsInTheWindow, WhatWasSavedPlaysAtOnce) {
  const QString file = RecordATap();
  EXPECT_EQ(Replay()->File(), file);
  EXPECT_EQ(Replay()->TotalMs(), 300);
  Records()->TogglePlaying();
  clock_->Advance(150);
  EXPECT_EQ(Slots(), QList<int>{18});
}

TEST_F(RecordsInTheWindow, AReplayThatRunsIsNotTakenAway) {
  const QString first = RecordATap();
  Records()->TogglePlaying();
  clock_->Advance(150);
  BeginATap(Path("second.json"));
  ASSERT_EQ(Replay()->GetState(), State::kFinished);  // BeginATap took 200 ms
  Records()->TogglePlaying();
  clock_->Advance(150);
  ASSERT_EQ(Replay()->GetState(), State::kPlaying);
  EXPECT_TRUE(Records()->SaveRecording());
  EXPECT_EQ(Replay()->File(), first);
}

// The target was for one recording; a second one would have replaced it.
TEST_F(RecordsInTheWindow, ASecondRecordingDoesNotTakeThePlaceOfTheFirst) {
  RecordATap();
  const QByteArray first = Text(Path("tap.json"));
  int asked = 0;
  Records()->SetAskForName([&asked](const SaveQuestion&) {
    ++asked;
    return QString();
  });
  Records()->ToggleRecording();
  Press(kSpace);
  EXPECT_FALSE(Records()->SaveRecording());
  EXPECT_EQ(asked, 1);
  EXPECT_EQ(Text(Path("tap.json")), first);
}

// The real dialog, filled in like a user does.
TEST_F(RecordsInTheWindow, ANameWithoutSuffixGetsOneThatOpenRecordLists) {
  QApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
  BeginATap(QString());
  EnterName(Path("walk"));
  EXPECT_TRUE(Records()->SaveRecording());
  EXPECT_TRUE(IsRecord(Path("walk.json")));
  EXPECT_FALSE(QFileInfo::exists(Path("walk")));
}

TEST_F(RecordsInTheWindow, APipeIsNoRecord) {
  ASSERT_TRUE(MakePipe(QFile::encodeName(Path("pipe")).constData()));
  EXPECT_FALSE(Records()->OpenRecord(Path("pipe")));
  EXPECT_EQ(problem_, Path("pipe") + " cannot be read: not a plain file");
}

}  // namespace
}  // namespace tavi
