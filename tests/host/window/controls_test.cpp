// The window without a mouse: every control has a name, and keys reach each control and return to the guest.
#include <algorithm>
#include <atomic>
#include <functional>
#include <memory>

#include <QAction>
#include <QApplication>
#include <QDir>
#include <QFileDialog>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMenu>
#include <QMessageBox>
#include <QPlainTextEdit>
#include <QProgressBar>
#include <QPushButton>
#include <QStatusBar>
#include <QThread>
#include <QToolBar>
#include <QToolButton>

#include "host/look/theme.h"
#include "host/window/controls/long_work.h"
#include "host/window/controls/question.h"
#include "host/window/editor/edit_layer.h"
#include "host/window/editor/field_editor.h"
#include "host/window/editor/item_inspector.h"
#include "host/window/editor/keymap_editor.h"
#include "host/window/events/line_log.h"
#include "host/window/findings/diagnostics_panel.h"
#include "host/window/main_tool_bar.h"
#include "host/window/records/record_bar.h"
#include "taviinputmanager/taviinputmanager.h"
#include "tests/host/window/window_fixture.h"
#include "tests/support/system/native_key.h"

namespace tavi {
namespace {

constexpr int kEnter = 28;
constexpr int kEscape = 1;

constexpr char kItems[] =
    "{type: Click, label: Jump, key: Space, point: [0.25, 0.75]}, {type: Click, key: Space, point: [0.5, 0.5]}";

bool IsInteractive(const QWidget* widget) {
  const auto* label = qobject_cast<const QLabel*>(widget);
  if (label != nullptr && !label->text().contains("<a ")) return false;  // a text, perhaps one to select
  return widget->focusPolicy() != Qt::NoFocus || qobject_cast<const QAbstractButton*>(widget) != nullptr;
}

QString NameOf(const QWidget* widget) {
  if (!widget->accessibleName().isEmpty()) return widget->accessibleName();
  for (const QLabel* label : widget->window()->findChildren<QLabel*>()) {
    if (label->buddy() == widget) return label->text();
  }
  const auto* button = qobject_cast<const QAbstractButton*>(widget);
  return button == nullptr ? QString() : button->text();
}

std::string Told(const QObject* object) {
  const QObject* parent = object->parent();
  return QStringLiteral("%1 \"%2\" in %3 \"%4\"")
      .arg(QLatin1String(object->metaObject()->className()), object->objectName(),
           QLatin1String(parent == nullptr ? "nothing" : parent->metaObject()->className()),
           parent == nullptr ? QString() : parent->objectName())
      .toStdString();
}

// The controls that a user can currently use.
QVector<QWidget*> InteractiveWidgetsOf(const QWidget* window) {
  QVector<QWidget*> found;
  for (QWidget* widget : window->findChildren<QWidget*>()) {
    if (widget->window() == window && widget->isVisible() && widget->isEnabled() && IsInteractive(widget))
      found += widget;
  }
  return found;
}

void ExpectNames(const QWidget* window) {
  for (const QWidget* widget : InteractiveWidgetsOf(window)) EXPECT_FALSE(NameOf(widget).isEmpty()) << Told(widget);
}

void ExpectNamesInMenu(const QMenu* menu) {
  for (const QAction* action : menu->actions()) {
    if (action->isSeparator()) continue;
    EXPECT_FALSE(action->text().isEmpty()) << Told(action);
    if (action->menu() != nullptr) ExpectNamesInMenu(action->menu());
  }
}

bool HasPlace(const QAction* action) {
  for (const QWidget* widget : QApplication::allWidgets()) {
    const QList<QAction*> actions = widget->actions();
    if (std::find(actions.begin(), actions.end(), action) != actions.end()) return true;
  }
  return false;
}

class Controls : public WindowFixture {
 protected:
  Controls() {
    Window()->resize(1800, 1100);  // there is room for all bars and docks
    Window()->activateWindow();
    clock_->Settle();
  }

  // To the focused widget, and all its parents.
  void Type(int key, int linux_code, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
    for (const QEvent::Type type : {QEvent::KeyPress, QEvent::KeyRelease}) {
      QKeyEvent event = NativeKeyEvent(type, key, modifiers, linux_code);
      QWidget* receiver = QApplication::focusWidget();
      ASSERT_NE(receiver, nullptr);
      QCoreApplication::sendEvent(receiver, &event);
      clock_->Settle();
    }
  }
  void TypeControlsKey() { Type(Qt::Key_Return, kEnter, Qt::ControlModifier | Qt::AltModifier); }
  void TypeEscape() { Type(Qt::Key_Escape, kEscape); }
  void TypeTab(bool back = false) { back ? Type(Qt::Key_Backtab, 15, Qt::ShiftModifier) : Type(Qt::Key_Tab, 15); }
  // All controls that Tab visits until it is back at the start.
  QVector<QWidget*> WalkFrom(QWidget* first, bool back = false) {
    QVector<QWidget*> walked;
    first->setFocus(Qt::TabFocusReason);
    for (int step = 0; step < 300; ++step) {
      walked += QApplication::focusWidget();
      TypeTab(back);
      if (QApplication::focusWidget() == first) return walked;
    }
    ADD_FAILURE() << "Tab does not come back";
    return walked;
  }
  void ExpectAllAreWalked(bool back) {
    TypeControlsKey();
    const QVector<QWidget*> walked = WalkFrom(QApplication::focusWidget(), back);
    EXPECT_FALSE(walked.contains(View()));
    EXPECT_FALSE(walked.contains(Window()->Editor()->Layer()));
    for (QWidget* widget : InteractiveWidgetsOf(Window())) {
      if (widget == View() || widget == Window()->Editor()->Layer()) continue;  // which get all keys
      EXPECT_TRUE(walked.contains(widget)) << Told(widget) << ' ' << NameOf(widget).toStdString();
    }
  }
  void ShowAllParts() {
    Load(kItems);
    Window()->ShowEvents();
    Window()->Records()->SecondView()->trigger();
    clock_->Settle();
  }
  void Edit() {
    Window()->Editor()->Switch()->setChecked(true);
    Window()->Editor()->Layer()->Select(0);
    clock_->Settle();
  }
  QWidget* ButtonOf(QToolBar* bar, const char* text) const {
    for (QAction* action : bar->actions()) {
      if (action->text() == QString::fromUtf8(text)) return bar->widgetForAction(action);
    }
    ADD_FAILURE() << text;
    return nullptr;
  }
};

// ---- Names

TEST_F(Controls, EachHasAName) {
  ShowAllParts();
  ExpectNames(Window());
  Edit();
  ExpectNames(Window());
  Window()->Editor()->Inspector()->SetAsText(true);
  clock_->Settle();
  ExpectNames(Window());
}

TEST_F(Controls, AlsoWhatASmallWindowFoldsAway) {
  ShowAllParts();
  Window()->resize(500, 500);
  clock_->Settle();
  ExpectNames(Window());
}

TEST_F(Controls, EachActionHasANameAndAPlace) {
  ShowAllParts();
  Edit();
  for (const QAction* action : Window()->findChildren<QAction*>()) {
    if (action->isSeparator() || !action->isVisible()) continue;
    EXPECT_FALSE(action->text().isEmpty()) << Told(action);
    const bool is_menu = action->menu() != nullptr;
    const bool is_of_qt = action->objectName().startsWith("_q_") || action->objectName().startsWith("qt_");
    if (is_menu || is_of_qt) continue;
    EXPECT_TRUE(HasPlace(action)) << Told(action) << action->text().toStdString();
  }
  for (const QMenu* menu : Window()->findChildren<QMenu*>()) ExpectNamesInMenu(menu);
}

TEST_F(Controls, WhatIsNoControlButToldHasANameToo) {
  for (const QWidget* widget : Window()->findChildren<QProgressBar*>()) EXPECT_FALSE(NameOf(widget).isEmpty());
  for (const QWidget* widget : Window()->findChildren<QHeaderView*>()) EXPECT_FALSE(NameOf(widget).isEmpty());
}

class Dialogs : public Controls {
 protected:
  // A user works with the dialog that `show` opens, and closes it.
  void Use(const std::function<void()>& show, const std::function<void(QWidget* dialog)>& use) {
    bool is_seen = false;
    UseDialog([&](QWidget* dialog) {
      is_seen = true;
      ExpectNames(dialog);
      use(dialog);
      TypeControlsKey();
      EXPECT_EQ(QApplication::focusWidget()->window(), dialog);  // it keeps the focus
      dialog->close();
    });
    show();
    EXPECT_TRUE(is_seen);
  }
  void ExpectAllAreWalkedIn(const QWidget* dialog) {
    QWidget* first = QApplication::focusWidget();
    ASSERT_NE(first, nullptr);
    const QVector<QWidget*> walked = WalkFrom(first);
    for (QWidget* widget : InteractiveWidgetsOf(dialog)) {
      EXPECT_TRUE(walked.contains(widget)) << Told(widget) << ' ' << NameOf(widget).toStdString();
    }
  }
};

TEST_F(Dialogs, AQuestion) {
  Use(
      [this] {
        AskIn(Window())(QStringLiteral("Save the edits of the keymap?"),
                        {{QMessageBox::Save, {}}, {QMessageBox::Discard, {}}, {QMessageBox::Cancel, {}}});
      },
      [this](const QWidget* dialog) { ExpectAllAreWalkedIn(dialog); });
}

// Qt or the desktop decides how Tab moves in it.
TEST_F(Dialogs, EnterLosesNothing) {
  Use(
      [this] {
        AskIn(Window())(QString(), {{QMessageBox::Discard, {}}, {QMessageBox::Cancel, {}}});
      },
      [](QWidget* dialog) {
        const auto* box = qobject_cast<QMessageBox*>(dialog);
        ASSERT_NE(box, nullptr);
        EXPECT_TRUE(qobject_cast<QPushButton*>(box->button(QMessageBox::Cancel))->isDefault());
      });
}

TEST_F(Dialogs, TheNameOfAFile) {
  Use(
      [this] {
        AskForNameIn(Window())({QStringLiteral("Save the keymap"), folder_.filePath("keymap.yaml"), "Keymaps (*.yaml)",
                                QStringLiteral("yaml")});
      },
      [](const QWidget* /*dialog*/) {});
}

// If nothing was saved yet, dialogs start in the folder where the program was started.
TEST_F(Dialogs, ANameThatNothingIsProposedFor) {
  Use(
      [this] {
        AskForNameIn(Window())({QStringLiteral("Save the record"), {}, "Records (*.json)", "json"});
      },
      [](const QWidget* dialog) { EXPECT_EQ(static_cast<const QFileDialog*>(dialog)->directory(), QDir::current()); });
}

TEST_F(Dialogs, AFileToOpen) {
  Use([this] { AskForFile(Window(), QStringLiteral("Open a keymap"), folder_.path(), "Keymaps (*.yaml)"); },
      [](const QWidget* /*dialog*/) {});
}

TEST_F(Dialogs, SomethingThatTakesItsTime) {
  const auto may_end = std::make_shared<std::atomic<bool>>(false);  // the work outlives the code that waits for it
  Use(
      [&] {
        DoLongWork(Window(), QStringLiteral("Reading"), [may_end] {
          while (!*may_end) QThread::msleep(1);
        });
        *may_end = true;
      },
      [this](const QWidget* dialog) { ExpectAllAreWalkedIn(dialog); });
}

// ---- The way there

TEST_F(Controls, AMessageIsReadAsAWholeInANarrowWindow) {
  Window()->resize(640, 600);
  const QString message = "The edits are in use, but not saved yet, and this sentence goes on";
  Window()->Tell(message, false);
  clock_->Settle();
  const QStatusBar* bar = Window()->statusBar();
  int room = bar->width();
  for (const QLabel* label : bar->findChildren<QLabel*>(QString(), Qt::FindDirectChildrenOnly)) {
    if (label->isVisible()) room = qMin(room, label->width() > 0 ? label->x() : room);
  }
  EXPECT_GE(room, bar->fontMetrics().horizontalAdvance(message));
  Window()->statusBar()->clearMessage();
  Window()->resize(1360, 760);
  clock_->Settle();
  for (const QLabel* label : bar->findChildren<QLabel*>(QString(), Qt::FindDirectChildrenOnly)) {
    if (!label->isVisible()) continue;
    EXPECT_GE(label->width(), qMin(label->sizeHint().width(), 100)) << label->text().toStdString();
  }
}

// A player walks and clicks Open…: the key that is still down must not become part of a file name.
TEST_F(Controls, AKeyThatIsHeldOverTheGuestRepeatsNowhereElse) {
  View()->setFocus();
  Press(kW);
  QLineEdit field(Window());
  field.show();
  field.setFocus();
  const auto type = [&field](QEvent::Type type, bool repeats) {
    QKeyEvent event = NativeKeyEvent(type, Qt::Key_W, Qt::NoModifier, kW, "w", repeats);
    QCoreApplication::sendEvent(&field, &event);
  };
  type(QEvent::KeyPress, true);
  type(QEvent::KeyRelease, true);
  type(QEvent::KeyPress, true);
  EXPECT_EQ(field.text(), QString());
  type(QEvent::KeyRelease, false);
  type(QEvent::KeyPress, false);  // pressed again, it types and repeats
  type(QEvent::KeyPress, true);
  EXPECT_EQ(field.text(), "ww");
}

TEST_F(Controls, TheKeyLeadsToTheFirstOne) {
  Load(kItems);
  EXPECT_TRUE(View()->hasFocus());
  TypeControlsKey();
  EXPECT_EQ(QApplication::focusWidget(), ButtonOf(Window()->Tools(), "Open\u2026"));
}

TEST_F(Controls, WhatIsDownIsLiftedAndTheKeyIsNobodysElse) {
  Load(kItems, "settings: {keyboard_transparent: true}");
  Press(kSpace);
  Press(kW);
  ASSERT_EQ(Slots().size(), 1);
  TypeControlsKey();
  EXPECT_TRUE(Slots().isEmpty());
  EXPECT_TRUE(Guest().held_keys.isEmpty());
}

// A frame in the highlight colour, around buttons and lists.
TEST_F(Controls, OneSeesWhichHasTheKeys) {
  theme::Apply(qApp, theme::Look::kDark);
  Load("");
  TypeControlsKey();
  const auto is_rimmed = [this](QWidget* widget) {
    clock_->Settle();
    const QImage picture = Window()->grab(QRect(widget->mapTo(Window(), QPoint(0, 0)), widget->size())).toImage();
    int lit = 0;
    for (int x = 0; x < picture.width(); ++x) {
      for (int y = 0; y < 4; ++y) lit += picture.pixelColor(x, y) == theme::Colors().tap ? 1 : 0;
    }
    return lit > picture.width() / 2;
  };
  QWidget* button = QApplication::focusWidget();
  EXPECT_TRUE(is_rimmed(button));
  TypeTab();
  EXPECT_FALSE(is_rimmed(button));
  QWidget* list = Window()->findChild<LineLog*>()->findChild<QPlainTextEdit*>();
  EXPECT_FALSE(is_rimmed(list));
  list->setFocus(Qt::TabFocusReason);
  EXPECT_TRUE(is_rimmed(list));
  TypeEscape();
  EXPECT_FALSE(is_rimmed(list));
}

TEST_F(Controls, AnotherKeyLeadsThere) {
  KeyCombination key;
  ASSERT_EQ(ParseKeyCombination("F11", &key), QString());
  Window()->SetControlsKey(key);
  TypeControlsKey();
  EXPECT_TRUE(View()->hasFocus());
  Type(Qt::Key_F11, 87);
  EXPECT_FALSE(View()->hasFocus());
}

TEST_F(Controls, TabWalksThemAll) {
  ShowAllParts();
  ExpectAllAreWalked(false);
  ExpectAllAreWalked(true);
}

TEST_F(Controls, TabWalksTheEditorToo) {
  ShowAllParts();
  Edit();
  ExpectAllAreWalked(false);
  Window()->Editor()->Inspector()->SetAsText(true);
  clock_->Settle();
  ExpectAllAreWalked(false);
}

// Bars from top to bottom; a list is followed by its fields.
TEST_F(Controls, TabGoesAsOneReads) {
  Load(kItems);
  Edit();
  TypeControlsKey();
  const QVector<QWidget*> walked = WalkFrom(QApplication::focusWidget());
  const auto place = [&](QWidget* widget) { return walked.indexOf(widget); };
  KeymapEditor* editor = Window()->Editor();
  EXPECT_EQ(place(ButtonOf(Window()->Tools(), "Look")) + 1, place(ButtonOf(editor->Bar(), "Add")));
  EXPECT_LT(place(ButtonOf(editor->Bar(), "Save as\u2026")), place(ButtonOf(Window()->Records(), "\u25CF Record")));
  EXPECT_LT(place(editor->Inspector()->Editor("label")->Line()), place(editor->Inspector()->Editor("key")->Line()));
  EXPECT_LT(place(editor->Inspector()->findChild<QListWidget*>()), place(editor->Inspector()->Editor("label")->Line()));
}

TEST_F(Controls, AClickAtOneLeavesTheKeysWithTheGuest) {
  ShowAllParts();
  for (QWidget* widget : InteractiveWidgetsOf(Window())) {
    if (widget == View()) continue;
    EXPECT_FALSE(widget->focusPolicy() & Qt::ClickFocus) << Told(widget) << ' ' << NameOf(widget).toStdString();
  }
}

TEST_F(Controls, AFindingIsFollowedByKeys) {
  Load(kItems);  // two taps with one key: a warning
  auto* panel = Window()->findChild<DiagnosticsPanel*>();
  ASSERT_TRUE(panel->isVisible());
  QString chosen;
  QObject::connect(panel, &DiagnosticsPanel::FindingChosen, Window(), [&](const QString& label) { chosen = label; });
  for (QLabel* label : panel->findChildren<QLabel*>()) {
    if (label->text().contains("href='1'")) label->setFocus(Qt::TabFocusReason);
  }
  TypeTab();  // to the first of its links
  Type(Qt::Key_Return, kEnter);
  EXPECT_EQ(chosen, QString("1"));
}

// ---- The way back

TEST_F(Controls, EscapeLeadsBackFromEach) {
  ShowAllParts();
  TypeControlsKey();
  for (QWidget* widget : WalkFrom(QApplication::focusWidget())) {
    widget->setFocus(Qt::TabFocusReason);
    ASSERT_FALSE(View()->hasFocus());
    TypeEscape();
    EXPECT_TRUE(View()->hasFocus()) << Told(widget) << ' ' << NameOf(widget).toStdString();
  }
}

// Not the release either, which a guest would take for its back key.
TEST_F(Controls, TheGuestGetsNothingOfThatEscape) {
  Load("", "settings: {keyboard_transparent: true}");
  TypeControlsKey();
  int lines = 0;
  QObject counter;  // ends before the window releases everything
  QObject::connect(LiveHost::GetInstance(), &LiveHost::EntryAdded, &counter, [&] { ++lines; });
  TypeEscape();
  EXPECT_TRUE(View()->hasFocus());
  EXPECT_EQ(lines, 0);
}

TEST_F(Controls, WhileOneEditsEscapeLeadsToTheItems) {
  Load(kItems);
  Edit();
  TypeControlsKey();
  TypeEscape();
  EXPECT_EQ(QApplication::focusWidget(), Window()->Editor()->Layer());
}

TEST_F(Controls, AnEscapeThatEndsAMenuLeadsNowhere) {
  Load(kItems);
  QWidget* look = ButtonOf(Window()->Tools(), "Look");
  look->setFocus(Qt::TabFocusReason);
  QKeyEvent release = NativeKeyEvent(QEvent::KeyRelease, Qt::Key_Escape, Qt::NoModifier, kEscape);
  QCoreApplication::sendEvent(look, &release);  // the menu got the press
  EXPECT_TRUE(look->hasFocus());
}

}  // namespace
}  // namespace tavi
