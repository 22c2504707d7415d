#ifndef HOST_WINDOW_EDITOR_KEYMAP_EDITOR_H_
#define HOST_WINDOW_EDITOR_KEYMAP_EDITOR_H_

#include <functional>
#include <memory>

#include <QMessageBox>
#include <QObject>
#include <QPointF>
#include <QString>

#include "host/editor/keymap_document.h"
#include "host/window/controls/question.h"

class QAction;
class QDockWidget;
class QEvent;
class QMainWindow;
class QMenu;
class QTemporaryDir;
class QToolBar;

namespace tavi {

class EditLayer;
class ItemInspector;

// Editing of the keymap in use, on the guest view of a window: the switch for it, its buttons, its dock, and the file.
//
// While it is on, mouse, keys and gamepads are the editor's. Edits that are not saved are kept when it is switched off,
// and are in use then; they stay until they are saved, taken back, or another keymap is opened.
//
// Main thread.
class KeymapEditor : public QObject {
  Q_OBJECT

 public:
  using Button = QMessageBox::StandardButton;

  // Puts its bar into `window`, and its dock to that of `neighbour`; `view` shows the guest. They outlive the editor.
  KeymapEditor(QMainWindow* window, QWidget* view, QDockWidget* neighbour);
  ~KeymapEditor() override;

  // Puts the bar behind the tool bars that the window has so far.
  void AddBar();
  QAction* Switch() const { return switch_; }
  QToolBar* Bar() const { return bar_; }
  bool IsOn() const;
  KeymapDocument* Document() { return &document_; }
  EditLayer* Layer() const { return layer_; }
  ItemInspector* Inspector() const { return inspector_; }
  // Shows its bar and its dock while it is on, wherever the window has put them.
  void ShowParts();
  void SetAsk(const Ask& ask) { ask_ = ask; }
  void SetAskForName(const AskForName& ask) { ask_for_name_ = ask; }

  // The keymap at `path` has come into use, with this text; an empty path is none.
  void Open(const QString& path, const QByteArray& text);
  // The file was written. True when nothing is to be read: it was the editor, or there are edits that would be lost,
  // which a person is told.
  bool TakeFileChange();
  // Whether the edits may be lost; asks where there are some, and saves them on demand.
  bool MayLeave();
  // Puts the edits that are not saved aside without asking. Tells where they are or what went wrong; nothing when there
  // are none.
  QString KeepEdits();
  // True when the event of a gamepad is the editor's.
  bool TakePad(QEvent* event);

  // Each false when the person backs out or the file cannot be written. Of a file that another program has written
  // meanwhile, the person says what is to become. An empty path is asked for.
  bool Save();
  bool SaveAs(const QString& path);
  void Add(const QString& type, const QPointF& point);
  void Delete();
  void Duplicate();

 Q_SIGNALS:
  // The keymap is another one, or has another file; `Document` tells.
  void Edited();
  // Mouse and keys are the guest's again, and the keymap in this file is to be used for them.
  void Finished(const QString& file);
  // For the person; `is_problem`: something went wrong.
  void Message(const QString& text, bool is_problem);

 private:
  void MakeBar();
  void MakeDock();
  QMenu* MakeAddMenu(const std::function<QPointF()>& place, QWidget* parent);
  QAction* AddButton(const QString& text, const QString& hint, const QKeySequence& keys);
  void SetOn(bool on);
  void Finish();
  QString FileName() const;
  void TakeSelection(int item);
  void ShowState();
  void ShowMenu(const QPoint& global, const QPointF& place);
  void Report(const QString& problem);
  // Asks whether a text that was typed and cannot be taken over may be lost.
  bool MayForgetText();
  // A place for a new item where none is near.
  QPointF FreePlace() const;

  QMainWindow* window_;
  QWidget* view_;
  KeymapDocument document_;
  EditLayer* layer_;
  ItemInspector* inspector_;
  QAction* switch_;
  QToolBar* bar_ = nullptr;
  QDockWidget* dock_ = nullptr;
  QAction* add_ = nullptr;
  QAction* duplicate_ = nullptr;
  QAction* delete_ = nullptr;
  QAction* save_ = nullptr;
  Ask ask_;
  AskForName ask_for_name_;
  bool is_opening_ = false;                 // what comes is no edit
  std::unique_ptr<QTemporaryDir> unsaved_;  // holds edits that are in use and not saved
  QByteArray in_use_;                       // the text that the guest's input goes by
};

}  // namespace tavi

#endif  // HOST_WINDOW_EDITOR_KEYMAP_EDITOR_H_
