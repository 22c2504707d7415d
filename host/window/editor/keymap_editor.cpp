#include "host/window/editor/keymap_editor.h"

#include <QDockWidget>
#include <QFileInfo>
#include <QLineF>
#include <QMainWindow>
#include <QMenu>
#include <QTemporaryDir>
#include <QToolBar>
#include <QToolButton>

#include "host/editor/new_item.h"
#include "host/session/input_port.h"
#include "host/system/roomy_folder.h"
#include "host/system/whole_file.h"
#include "host/window/controls/control_focus.h"
#include "host/window/editor/edit_layer.h"
#include "host/window/editor/item_inspector.h"
#include "host/window/editor/source_pane.h"
#include "keymap/joystick_event.h"
#include "taviinputmanager/joystick_event.h"

namespace tavi {

namespace km = tavikeymapmanager;
using taviinputmanager::JoystickButtonEvent;

namespace {

constexpr int kDockWidth = 340;
constexpr double kNear = 0.06;  // between two items, as a fraction of the display
constexpr int kTries = 12;      // in the search for a free point
constexpr int kColumns = 4;     // of the points that are tried
constexpr char kNewName[] = "keymap.yaml";
constexpr char kFileTypes[] = "Keymaps (*.yaml *.yml *.json);;All files (*)";

}  // namespace

KeymapEditor::KeymapEditor(QMainWindow* window, QWidget* view, QDockWidget* neighbour)
    : QObject(window),
      window_(window),
      view_(view),
      layer_(new EditLayer(&document_, view)),
      inspector_(new ItemInspector(&document_)),
      switch_(new QAction(QStringLiteral("Edit"), this)) {
  switch_->setCheckable(true);
  switch_->setToolTip(QStringLiteral("Move, bind, add and delete the keymap's items on the screen"));
  ask_ = AskIn(window);
  ask_for_name_ = AskForNameIn(window);
  MakeDock();
  window_->tabifyDockWidget(neighbour, dock_);
  dock_->hide();
  MakeBar();
  connect(switch_, &QAction::toggled, this, &KeymapEditor::SetOn);
  connect(&document_, &KeymapDocument::Changed, this, [this] {
    ShowState();
    if (!is_opening_) Q_EMIT Edited();
  });
  connect(layer_, &EditLayer::SelectionChanged, this, &KeymapEditor::TakeSelection);
  connect(layer_, &EditLayer::Refused, this, &KeymapEditor::Report);
  connect(layer_, &EditLayer::BindWanted, inspector_, &ItemInspector::ListenForKey);
  connect(layer_, &EditLayer::DeleteWanted, this, &KeymapEditor::Delete);
  connect(layer_, &EditLayer::MenuWanted, this, &KeymapEditor::ShowMenu);
  connect(inspector_, &ItemInspector::KeyBound, view_, QOverload<>::of(&QWidget::setFocus));
  connect(inspector_, &ItemInspector::ItemChosen, layer_, &EditLayer::Select);
  connect(inspector_, &ItemInspector::Refused, this, &KeymapEditor::Report);
  ShowState();
}

KeymapEditor::~KeymapEditor() = default;

// ---- Buttons

QAction* KeymapEditor::AddButton(const QString& text, const QString& hint, const QKeySequence& keys) {
  QAction* action = bar_->addAction(text);
  action->setShortcut(keys);
  action->setToolTip(keys.isEmpty() ? hint : QStringLiteral("%1 (%2)").arg(hint, keys.toString()));
  return action;
}

// Shortcuts work only while the bar is shown: at all other times every key goes to the guest.
void KeymapEditor::MakeBar() {
  bar_ = new QToolBar(QStringLiteral("Editing"), window_);
  bar_->setObjectName(QStringLiteral("editing"));
  bar_->setMovable(false);
  bar_->setContextMenuPolicy(Qt::PreventContextMenu);
  auto* add = new QToolButton;
  add->setText(QStringLiteral("Add"));
  add->setPopupMode(QToolButton::InstantPopup);
  add->setAccessibleName(add->text());
  add->setMenu(MakeAddMenu([this] { return FreePlace(); }, bar_));
  add->setToolTip(QStringLiteral("Put a new item on the screen"));
  add_ = bar_->addWidget(add);
  duplicate_ = AddButton(QStringLiteral("Duplicate"), QStringLiteral("Duplicate the selected item"),
                         QKeySequence(Qt::CTRL | Qt::Key_D));
  delete_ = AddButton(QStringLiteral("Delete"), QStringLiteral("Delete the selected item (Del)"), {});
  bar_->addSeparator();
  QAction* undo = document_.UndoStack()->createUndoAction(this, QStringLiteral("Undo"));
  undo->setShortcut(QKeySequence(Qt::CTRL | Qt::Key_Z));
  QAction* redo = document_.UndoStack()->createRedoAction(this, QStringLiteral("Redo"));
  redo->setShortcut(QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_Z));
  undo->setIconText(QStringLiteral("Undo"));
  redo->setIconText(QStringLiteral("Redo"));
  bar_->addAction(undo);
  bar_->addAction(redo);
  bar_->addSeparator();
  save_ =
      AddButton(QStringLiteral("Save"), QStringLiteral("Write the edits to the file, and change nothing else in it"),
                QKeySequence(Qt::CTRL | Qt::Key_S));
  QAction* save_as = AddButton(QStringLiteral("Save as\u2026"), QStringLiteral("Write the keymap to another file"), {});
  connect(duplicate_, &QAction::triggered, this, &KeymapEditor::Duplicate);
  connect(delete_, &QAction::triggered, this, &KeymapEditor::Delete);
  connect(save_, &QAction::triggered, this, &KeymapEditor::Save);
  connect(save_as, &QAction::triggered, this, [this] { SaveAs(QString()); });
  ReachByTab(bar_);
  bar_->toggleViewAction()->setVisible(false);
  bar_->setEnabled(false);
}

void KeymapEditor::AddBar() {
  window_->addToolBar(bar_);
  bar_->hide();
}

void KeymapEditor::MakeDock() {
  dock_ = new QDockWidget(QStringLiteral("Items"), window_);
  dock_->setObjectName(QStringLiteral("items"));
  dock_->setWidget(inspector_);
  dock_->setFeatures(QDockWidget::DockWidgetMovable);
  inspector_->setMinimumWidth(kDockWidth);
  dock_->toggleViewAction()->setVisible(false);  // the switch shows and hides it
  window_->addDockWidget(Qt::RightDockWidgetArea, dock_);
}

QMenu* KeymapEditor::MakeAddMenu(const std::function<QPointF()>& place, QWidget* parent) {
  auto* menu = new QMenu(QStringLiteral("Add"), parent);
  menu->setToolTipsVisible(true);
  const QVector<km::ItemTypeInfo> types = km::DescribeItemTypes();
  for (const ItemTypeGroup& group : ItemTypeGroups()) {
    QMenu* part = menu->addMenu(group.name);
    part->setToolTipsVisible(true);
    for (const km::ItemTypeInfo& type : types) {
      if (!group.types.contains(type.name)) continue;
      QAction* action = part->addAction(type.name);
      action->setToolTip(type.doc);
      connect(action, &QAction::triggered, this, [this, place, name = type.name] { Add(name, place()); });
    }
  }
  return menu;
}

void KeymapEditor::ShowMenu(const QPoint& global, const QPointF& place) {
  auto* menu = new QMenu(QStringLiteral("Item"), layer_);
  menu->setAttribute(Qt::WA_DeleteOnClose);
  if (layer_->Selected() >= 0) {
    connect(menu->addAction(QStringLiteral("Press a key\u2026")), &QAction::triggered, inspector_,
            &ItemInspector::ListenForKey);
    menu->addAction(duplicate_);
    menu->addAction(delete_);
  } else {
    QMenu* add = MakeAddMenu([place] { return place; }, menu);
    add->setTitle(QStringLiteral("Add here"));
    add->setEnabled(add_->isEnabled());
    menu->addMenu(add);
  }
  menu->popup(global);
}

void KeymapEditor::ShowState() {
  const bool can_edit = document_.Refusal().isEmpty();
  const bool has_selection = can_edit && layer_->Selected() >= 0;
  add_->setEnabled(can_edit);
  duplicate_->setEnabled(has_selection);
  delete_->setEnabled(has_selection);
  save_->setEnabled(can_edit);
}

void KeymapEditor::TakeSelection(int item) {
  inspector_->Show(item);
  ShowState();
}

void KeymapEditor::Report(const QString& problem) {
  if (!problem.isEmpty()) Q_EMIT Message(problem, true);
}

// ---- On and off

bool KeymapEditor::IsOn() const { return switch_->isChecked(); }

void KeymapEditor::SetOn(bool on) {
  if (on) {
    InputPort::GetInstance()->LetGo();  // nothing stays down while nobody plays
    if (document_.Path().isEmpty() && document_.Text().isEmpty()) document_.New();
    Report(document_.Refusal());
  } else {
    inspector_->Commit();
  }
  layer_->setVisible(on);
  layer_->raise();
  view_->setFocusProxy(on ? layer_ : nullptr);
  view_->setFocus();
  bar_->setEnabled(on);
  ShowParts();
  dock_->raise();
  if (!on) Finish();
}

void KeymapEditor::ShowParts() {
  bar_->setVisible(IsOn());
  dock_->setVisible(IsOn());
}

QString KeymapEditor::FileName() const {
  return document_.Path().isEmpty() ? QLatin1String(kNewName) : QFileInfo(document_.Path()).fileName();
}

// The edits that were shown are now used, saved or not.
void KeymapEditor::Finish() {
  if (document_.Text() == in_use_ || document_.Keymap().HasErrors()) return;
  in_use_ = document_.Text();
  if (!document_.IsModified()) return Q_EMIT Finished(document_.Path());
  unsaved_ = std::make_unique<QTemporaryDir>();
  const QString file = unsaved_->filePath(FileName());
  const QString problem = WriteWholeFile(file, document_.Text());
  if (!problem.isEmpty()) {
    return Report(QStringLiteral("The edits cannot be used until they are saved: %1").arg(problem));
  }
  Q_EMIT Finished(file);
  Q_EMIT Message(QStringLiteral("The edits are in use, but not saved yet"), false);
}

bool KeymapEditor::TakePad(QEvent* event) {
  if (!IsOn()) return false;
  const bool is_press = event->type() == km::JoystickEvent::ButtonPress;
  if (is_press || event->type() == km::JoystickEvent::ButtonRelease) {
    inspector_->TakePad(static_cast<JoystickButtonEvent*>(event)->text, is_press);
  }
  return true;
}

// ---- Files

void KeymapEditor::Open(const QString& path, const QByteArray& text) {
  const bool is_own = unsaved_ != nullptr && path.startsWith(unsaved_->path());
  if (is_own) return;
  const bool is_known = !path.isEmpty() && path == document_.Path() && !document_.IsModified();
  if (!is_known || text != document_.TextOnDisk()) {
    inspector_->Pane()->Revert();  // the typed text is about the keymap that is being closed
    layer_->Select(-1);
    is_opening_ = true;
    document_.Open(path, text);
    is_opening_ = false;
  }
  in_use_ = document_.Text();
  if (IsOn() && path.isEmpty()) document_.New();
}

bool KeymapEditor::TakeFileChange() {
  if (!document_.IsFileChanged()) return true;
  if (!document_.IsModified()) return false;
  Q_EMIT Message(QStringLiteral("Another program has changed %1. Your edits are kept; Save asks which version to keep.")
                     .arg(QFileInfo(document_.Path()).fileName()),
                 true);
  return true;
}

bool KeymapEditor::MayForgetText() {
  const QString problem = inspector_->TextProblem();
  if (problem.isEmpty()) return true;
  return ask_(QStringLiteral("The text that you typed cannot be used and would be lost. %1").arg(problem),
              {{QMessageBox::Discard, {}}, {QMessageBox::Cancel, {}}}) == QMessageBox::Discard;
}

bool KeymapEditor::MayLeave() {
  inspector_->Commit();
  if (!MayForgetText()) return false;
  if (!document_.IsModified()) return true;
  const Button answer = ask_(QStringLiteral("Save the edits of the keymap?"),
                             {{QMessageBox::Save, {}}, {QMessageBox::Discard, {}}, {QMessageBox::Cancel, {}}});
  return answer == QMessageBox::Discard || (answer == QMessageBox::Save && Save());
}

QString KeymapEditor::KeepEdits() {
  inspector_->Commit();
  if (!document_.IsModified()) return {};
  QTemporaryDir folder(RoomyFolder() + QStringLiteral("/edits-XXXXXX"));
  const QString file = folder.filePath(FileName());
  const QString problem = folder.isValid() ? WriteWholeFile(file, document_.Text()) : folder.errorString();
  if (!problem.isEmpty()) return QStringLiteral("the edits of %1 are lost: %2").arg(FileName(), problem);
  folder.setAutoRemove(false);
  return QStringLiteral("the edits of %1 were saved as %2").arg(FileName(), file);
}

bool KeymapEditor::Save() {
  inspector_->Commit();
  if (!document_.IsFileChanged()) return SaveAs(document_.Path());
  const Button answer =
      ask_(QStringLiteral("Another program has changed %1 since it was read. Reload discards your edits.")
               .arg(document_.Path()),
           {{QMessageBox::Save, QStringLiteral("Overwrite")},
            {QMessageBox::Reset, QStringLiteral("Reload")},
            {QMessageBox::SaveAll, QStringLiteral("Save as\u2026")},
            {QMessageBox::Cancel, {}}});
  if (answer == QMessageBox::Reset) document_.Open(document_.Path());
  if (answer == QMessageBox::SaveAll) return SaveAs(QString());
  return answer == QMessageBox::Save && SaveAs(document_.Path());
}

bool KeymapEditor::SaveAs(const QString& path) {
  QString target = path;
  if (target.isEmpty()) {
    const QString before = document_.Path().isEmpty() ? QLatin1String(kNewName) : document_.Path();
    const bool is_json = QFileInfo(before).suffix() == QLatin1String("json");  // keeps the name
    target = ask_for_name_({QStringLiteral("Save the keymap"), before, QLatin1String(kFileTypes),
                            is_json ? QStringLiteral("json") : QStringLiteral("yaml")});
    view_->setFocus();
  }
  if (target.isEmpty()) return false;
  const QString problem = document_.Save(target);
  Report(problem);
  if (!problem.isEmpty()) return false;
  const bool is_whole = inspector_->TextProblem().isEmpty();
  const QString news =
      is_whole ? QStringLiteral("Saved %1") : QStringLiteral("Saved %1, but not the text that you typed");
  Q_EMIT Message(news.arg(target), !is_whole);
  return true;
}

// ---- Items

void KeymapEditor::Add(const QString& type, const QPointF& point) {
  const QString problem = document_.Add(type, point);
  if (!problem.isEmpty()) return Report(problem);
  layer_->Select(document_.ItemCount() - 1);
  if (inspector_->HasKey()) inspector_->ListenForKey();
}

void KeymapEditor::Delete() {
  const int item = layer_->Selected();
  if (item < 0) return;
  layer_->Select(-1);
  Report(document_.Remove(item));
}

void KeymapEditor::Duplicate() {
  const int item = layer_->Selected();
  if (item < 0) return;
  const QString problem = document_.Duplicate(item);
  if (!problem.isEmpty()) return Report(problem);
  layer_->Select(item + 1);
  if (inspector_->HasKey()) inspector_->ListenForKey();
}

// From the middle outwards, to the right and downwards.
QPointF KeymapEditor::FreePlace() const {
  const auto is_near = [this](const QPointF& place) {
    for (const km::ConfigItem* item : document_.Keymap().config->items) {
      if (QLineF(place, {item->rel_x, item->rel_y}).length() < kNear) return true;
    }
    return false;
  };
  QPointF place(0.5, 0.5);
  for (int i = 0; i < kTries && is_near(place); ++i) {
    const int column = i % kColumns;
    const int row = i / kColumns;
    place = {0.5 + kNear * column, 0.5 + kNear * row};
  }
  return place;
}

}  // namespace tavi
