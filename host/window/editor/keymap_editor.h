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

// Editing of the current keymap on a window's guest view: the switch for it, its buttons, its dock, and the file.
//
// While it is on, the editor gets the input of mouse, keys and gamepads. When it is switched off, unsaved edits are
// kept and used; they stay until they are saved, undone, or another keymap is opened.
//
// Main thread.
class KeymapEditor : public QObject {
  Q_OBJECT

 public:
  using Button = QMessageBox::StandardButton;

  // Adds its bar to `window`, and tabs its dock with `neighbour`; `view` shows the guest. They outlive the editor.
  KeymapEditor(QMainWindow* window, QWidget* view, QDockWidget* neighbour);
  ~KeymapEditor() override;

  // Puts the bar after the tool bars that the window has so far.
  void AddBar();
  QAction* Switch() const { return switch_; }
  QToolBar* Bar() const { return bar_; }
  bool IsOn() const;
  KeymapDocument* Document() { return &document_; }
  EditLayer* Layer() const { return layer_; }
  ItemInspector* Inspector() const { return inspector_; }
  // Shows its bar and its dock while it is on, wherever the user has moved them.
  void ShowParts();
  void SetAsk(const Ask& ask) { ask_ = ask; }
  void SetAskForName(const AskForName& ask) { ask_for_name_ = ask; }

  // The keymap at `path` is now in use, with this text; an empty path is none.
  void Open(const QString& path, const QByteArray& text);
  // The file has changed. True if it must not be reloaded: the editor wrote it, or there are edits that would be lost,
  // in which case the user gets a message.
  bool TakeFileChange();
  // Whether the edits may be discarded; asks if there are any, and saves them if the user wants.
  bool MayLeave();
  // Saves the unsaved edits elsewhere without asking. Returns where they are or what went wrong; empty if there are
  // none.
  QString KeepEdits();
  // True if the editor uses the gamepad event.
  bool TakePad(QEvent* event);

  // Each returns false if the user cancels or the file cannot be written. If another program has changed the file
  // meanwhile, the user decides. An empty path asks for one.
  bool Save();
  bool SaveAs(const QString& path);
  void Add(const QString& type, const QPointF& point);
  void Delete();
  void Duplicate();

 Q_SIGNALS:
  // The keymap or its file is another one; see `Document`.
  void Edited();
  // Mouse and keys go to the guest again, with the keymap in this file.
  void Finished(const QString& file);
  // A message for the user; `is_problem`: an error.
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
  // Asks whether a typed text that cannot be applied may be lost.
  bool MayForgetText();
  // A free point for a new item.
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
  bool is_opening_ = false;                 // changes are not edits meanwhile
  std::unique_ptr<QTemporaryDir> unsaved_;  // contains edits that are in use and not saved
  QByteArray in_use_;                       // the text that the keymap in use was read from
};

}  // namespace tavi

#endif  // HOST_WINDOW_EDITOR_KEYMAP_EDITOR_H_
