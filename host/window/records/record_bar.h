#ifndef HOST_WINDOW_RECORDS_RECORD_BAR_H_
#define HOST_WINDOW_RECORDS_RECORD_BAR_H_

#include <optional>

#include <QString>
#include <QTimer>
#include <QToolBar>

#include "host/window/controls/question.h"

class QAction;
class QActionGroup;
class QLabel;
class QMenu;
class QProgressBar;
struct RecordInfo;

namespace tavi {

// Records what the guest gets, and plays records back. A click at its buttons takes no focus, so that the keys stay the
// guest's.
class RecordBar : public QToolBar {
  Q_OBJECT

 public:
  explicit RecordBar(QWidget* parent = nullptr);

  // The name of what is played, which a record keeps.
  void SetApp(const QString& app) { app_ = app; }
  // Where the next recording is saved; empty: a person is asked.
  void SetTarget(const QString& file) { target_ = file; }
  void SetAsk(const Ask& ask) { ask_ = ask; }
  void SetAskForName(const AskForName& ask) { ask_for_name_ = ask; }

  // Starts a recording, if its target can be written, or ends and saves the one that there is.
  void ToggleRecording();
  // Ends the recording and saves it; where that fails, the person is asked what to do. False when there is a recording
  // still: the person backed out. It is then paused, or kept.
  bool SaveRecording();
  // Whether the window may go: a recording is saved, or dropped on demand.
  bool MayLeave();
  // The same without asking anybody. Returns what went wrong, and where the recording is kept, or nothing.
  QString SaveWithoutAsking();
  // Takes a record to play; asks for one when `file` is empty. False when it is none, or when the person backs out.
  bool OpenRecord(QString file = {});
  // Plays the record, or pauses it, or goes on.
  void TogglePlaying();

  QAction* SecondView() const { return second_view_; }

 Q_SIGNALS:
  // For the person; `is_problem`: something went wrong.
  void Message(const QString& text, bool is_problem);
  // A dialog is gone; the guest should have the keys again.
  void DialogClosed();

 private:
  QString AskForTarget();
  // Returns what went wrong, or nothing.
  QString SaveTo(const QString& file);
  // Asks what is to become of a recording that could not be saved as `file`. The name to save it under next; empty: it
  // was dropped, or stays.
  QString AskAfter(const QString& problem, const QString& file);
  QAction* AddButton(const QString& text, const QString& hint);
  QMenu* MakeSpeedMenu();
  void AddSpeedButton();
  void TogglePause();
  void Play();
  void TakeSaved(const QString& file, const RecordInfo& info);
  // The header of a record; nothing when the file is none, which a person is told, or when the person backs out.
  std::optional<RecordInfo> Read(const QString& file);
  void Announce(const QString& text);
  void Show();
  void ShowRecording();
  void ShowReplay();
  void ShowTimes();
  double Speed() const;

  QAction* record_;
  QAction* pause_record_;
  QLabel* recorded_;
  QAction* open_;
  QAction* play_;
  QAction* restart_;
  QAction* stop_;
  QActionGroup* speeds_ = nullptr;
  QAction* hand_ = nullptr;
  QProgressBar* progress_;
  QAction* second_view_;
  QTimer refresh_;  // of the times, while something runs
  QString app_;
  QString target_;
  QString folder_;  // where records were saved or opened last
  Ask ask_;
  AskForName ask_for_name_;
};

}  // namespace tavi

#endif  // HOST_WINDOW_RECORDS_RECORD_BAR_H_
