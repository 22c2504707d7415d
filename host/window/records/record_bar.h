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

// Records what the guest gets, and replays records. Clicking its buttons moves no focus, so that the keys still go to
// the guest.
class RecordBar : public QToolBar {
  Q_OBJECT

 public:
  explicit RecordBar(QWidget* parent = nullptr);

  // The game's name in the header of the next recording.
  void SetApp(const QString& app) { app_ = app; }
  // Where the next recording is saved; empty asks the user.
  void SetTarget(const QString& file) { target_ = file; }
  void SetAsk(const Ask& ask) { ask_ = ask; }
  void SetAskForName(const AskForName& ask) { ask_for_name_ = ask; }

  // Starts a recording if its target can be written, or ends and saves the current one.
  void ToggleRecording();
  // Ends the recording and saves it; if that fails, asks the user what to do. Returns false if there is still a
  // recording, because the user cancelled. It is then paused, or kept.
  bool SaveRecording();
  // Whether the window may close: a recording is saved, or discarded if the user wants.
  bool MayLeave();
  // The same without asking. Returns what went wrong and where the recording was saved, or an empty string.
  QString SaveWithoutAsking();
  // Opens a record for replay; asks for one if `file` is empty. Returns false if it is not a record, or if the user
  // cancels.
  bool OpenRecord(QString file = {});
  // Starts, pauses or resumes the replay.
  void TogglePlaying();

  QAction* SecondView() const { return second_view_; }

 Q_SIGNALS:
  // A message for the user; `is_problem`: an error.
  void Message(const QString& text, bool is_problem);
  // A dialog was closed; the focus should return to the guest.
  void DialogClosed();

 private:
  QString AskForTarget();
  // Returns the error, or an empty string.
  QString SaveTo(const QString& file);
  // Asks what to do with a recording that could not be saved as `file`. Returns the name to save it under next; empty
  // if it was discarded, or stays.
  QString AskAfter(const QString& problem, const QString& file);
  QAction* AddButton(const QString& text, const QString& hint);
  QMenu* MakeSpeedMenu();
  void AddSpeedButton();
  void TogglePause();
  void Play();
  void TakeSaved(const QString& file, const RecordInfo& info);
  // The header of a record; nothing if the file is not a record, which the user is told, or if the user cancels.
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
  QTimer refresh_;  // of the times, during a recording or replay
  QString app_;
  QString target_;
  QString folder_;  // where a record was last saved or opened
  Ask ask_;
  AskForName ask_for_name_;
};

}  // namespace tavi

#endif  // HOST_WINDOW_RECORDS_RECORD_BAR_H_
