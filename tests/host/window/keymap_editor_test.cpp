// Editing in the window: a user drags, presses keys and saves, and the file changes only there.
#include "host/window/editor/keymap_editor.h"

#include <utility>

#include <QAction>
#include <QLabel>
#include <QListWidget>
#include <QPlainTextEdit>

#include "host/editor/item_handles.h"
#include "host/window/editor/edit_layer.h"
#include "host/window/editor/field_editor.h"
#include "host/window/editor/item_inspector.h"
#include "host/window/editor/key_listener.h"
#include "host/window/editor/source_pane.h"
#include "keymap/joystick_event.h"
#include "taviinputmanager/joystick_event.h"
#include "tests/host/window/window_fixture.h"
#include "tests/support/system/data_folder.h"
#include "tests/support/system/full_disk.h"
#include "tests/support/system/native_key.h"

namespace tavi {
namespace {

constexpr char kItems[] =
    "\n  {type: Click, label: Jump, key: Space, point: [0.25, 0.75]},  # jump\n"
    "  {type: Swipehold, point: [0.5, 0.5], radius: 0.1, key_up: W}\n";

class EditingInTheWindow : public WindowFixture {
 protected:
  EditingInTheWindow() {
    Load(kItems);
    before_ = FileText();
    Editor()->SetAsk([this](const QString& question, const QVector<Answer>& answers) {
      answers_ = answers;
      questions_ += question;
      return answer_;
    });
    QObject::connect(Editor(), &KeymapEditor::Message, Window(),
                     [this](const QString& text, bool is_problem) { (is_problem ? problem_ : news_) = text; });
  }

  KeymapEditor* Editor() const { return Window()->Editor(); }
  KeymapDocument* Document() const { return Editor()->Document(); }
  EditLayer* Layer() const { return Editor()->Layer(); }
  ItemInspector* Inspector() const { return Editor()->Inspector(); }
  void Edit(bool on = true) {
    Editor()->Switch()->setChecked(on);
    clock_->Settle();
  }

  QByteArray FileText() const {
    QFile file(folder_.filePath("keymap.yaml"));
    EXPECT_TRUE(file.open(QIODevice::ReadOnly));
    return file.readAll();
  }
  // The original file, with one part replaced.
  std::string FileWith(const char* part, const char* by) const {
    EXPECT_EQ(before_.count(part), 1) << part;
    return QByteArray(before_).replace(part, by).toStdString();
  }

  void LayerMouse(QEvent::Type type, const QPointF& place, Qt::MouseButton button, Qt::MouseButtons buttons) {
    QMouseEvent event(type, place, place, Layer()->mapToGlobal(place.toPoint()), button, buttons, Qt::NoModifier);
    QCoreApplication::sendEvent(Layer(), &event);
  }
  void DragFrom(const QPointF& from, const QPointF& to) {
    LayerMouse(QEvent::MouseButtonPress, from, Qt::LeftButton, Qt::LeftButton);
    for (int step = 1; step <= 4; ++step) {
      LayerMouse(QEvent::MouseMove, from + (to - from) * step / 4, Qt::NoButton, Qt::LeftButton);
    }
    LayerMouse(QEvent::MouseButtonRelease, to, Qt::LeftButton, Qt::NoButton);
  }
  void Click(const QPointF& place) { DragFrom(place, place); }
  void LayerKey(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
    QKeyEvent event(QEvent::KeyPress, key, modifiers);
    QCoreApplication::sendEvent(Layer(), &event);
  }
  static void HostKey(QWidget* widget, QEvent::Type type, int linux_code) {
    QKeyEvent event = NativeKeyEvent(type, 0, Qt::NoModifier, linux_code);
    QCoreApplication::sendEvent(widget, &event);
  }
  void Bind(const char* field, int linux_code) {
    KeyListener* listener = Inspector()->Editor(field)->Listener();
    listener->Listen();
    HostKey(listener, QEvent::KeyPress, linux_code);
    HostKey(listener, QEvent::KeyRelease, linux_code);
  }
  void Enter(const char* field, const char* text) {
    Inspector()->Editor(field)->Line()->setText(text);
    Inspector()->Editor(field)->Commit();
  }

  bool HasLabel(const QString& text) const {
    for (const QLabel* label : Window()->findChildren<QLabel*>()) {
      if (label->text() == text) return true;
    }
    return false;
  }

  QPlainTextEdit* Text() const { return Inspector()->Pane()->Text(); }
  // The rows of the list: the items, then the blocks of settings.
  void ChooseRow(int row) { Inspector()->findChild<QListWidget*>()->setCurrentRow(row); }

  QByteArray before_;
  KeymapEditor::Button answer_ = QMessageBox::Cancel;
  QStringList questions_;
  QVector<Answer> answers_;  // to the last one
  QString news_;
  QString problem_;
};

// ---- The file

TEST_F(EditingInTheWindow, ADragThatIsSavedChangesItsNumbersAlone) {
  Edit();
  DragFrom(At(0.25, 0.75), At(0.375, 0.25));
  EXPECT_TRUE(Window()->isWindowModified());
  EXPECT_EQ(FileText(), before_);
  EXPECT_TRUE(Editor()->Save());
  EXPECT_FALSE(Window()->isWindowModified());
  EXPECT_EQ(FileText().toStdString(), FileWith("point: [0.25, 0.75]", "point: [0.375, 0.25]"));
}

TEST_F(EditingInTheWindow, ARadiusIsDraggedAtTheRim) {
  Edit();
  Click(At(0.5, 0.5));
  ASSERT_EQ(Layer()->Selected(), 1);
  DragFrom(At(0.6, 0.5), At(0.7, 0.5));  // 0.1 of the width to the right of the centre
  Editor()->Save();
  EXPECT_EQ(FileText().toStdString(), FileWith("radius: 0.1", "radius: 0.2"));
}

TEST_F(EditingInTheWindow, AClickMovesNothing) {
  Edit();
  DragFrom(At(0.25, 0.75), At(0.25, 0.75) + QPointF(2, 0));
  EXPECT_EQ(Layer()->Selected(), 0);
  EXPECT_FALSE(Window()->isWindowModified());
}

TEST_F(EditingInTheWindow, EscapeGivesADragUp) {
  Edit();
  LayerMouse(QEvent::MouseButtonPress, At(0.25, 0.75), Qt::LeftButton, Qt::LeftButton);
  LayerMouse(QEvent::MouseMove, At(0.5, 0.25), Qt::NoButton, Qt::LeftButton);
  LayerKey(Qt::Key_Escape);
  LayerMouse(QEvent::MouseMove, At(0.6, 0.25), Qt::NoButton, Qt::LeftButton);
  EXPECT_EQ(Document()->Text(), before_);
}

// Each edit parses the whole file again, which is slow for a large keymap.
TEST_F(EditingInTheWindow, ADragIsShownOnItsWayAndWrittenAtItsEnd) {
  Edit();
  const QByteArray text = Document()->Text();
  LayerMouse(QEvent::MouseButtonPress, At(0.25, 0.75), Qt::LeftButton, Qt::LeftButton);
  LayerMouse(QEvent::MouseMove, At(0.5, 0.25), Qt::NoButton, Qt::LeftButton);
  EXPECT_EQ(0.5, Document()->Item(0)->rel_x);
  EXPECT_EQ(text, Document()->Text());
  EXPECT_FALSE(Document()->IsModified());
  LayerMouse(QEvent::MouseButtonRelease, At(0.5, 0.25), Qt::LeftButton, Qt::NoButton);
  EXPECT_EQ(FileWith("[0.25, 0.75]", "[0.5, 0.25]"), Document()->Text().toStdString());
  EXPECT_EQ(1, Document()->UndoStack()->count());
}

TEST_F(EditingInTheWindow, WhatEndsADragOtherwiseMovesNothing) {
  Edit();
  const auto drag = [this] {
    LayerMouse(QEvent::MouseButtonPress, At(0.25, 0.75), Qt::LeftButton, Qt::LeftButton);
    LayerMouse(QEvent::MouseMove, At(0.5, 0.25), Qt::NoButton, Qt::LeftButton);
    EXPECT_EQ(0.5, Document()->Item(0)->rel_x);
  };
  drag();
  Layer()->Select(1);
  EXPECT_EQ(0.25, Document()->Item(0)->rel_x);
  LayerMouse(QEvent::MouseButtonRelease, At(0.5, 0.25), Qt::LeftButton, Qt::NoButton);
  drag();
  Edit(false);
  EXPECT_EQ(0.25, Document()->Item(0)->rel_x);
  EXPECT_FALSE(Document()->IsModified());
}

TEST_F(EditingInTheWindow, ArrowKeysMoveByPixelsOfTheGuest) {
  Edit();
  Layer()->Select(0);
  LayerKey(Qt::Key_Right);
  EXPECT_EQ(Document()->WrittenText(0, "point"), "[0.2508, 0.75]");  // 321 of 1280
  LayerKey(Qt::Key_Up, Qt::ShiftModifier);
  EXPECT_EQ(Document()->WrittenText(0, "point"), "[0.2508, 0.7361]");  // 530 of 720
  Document()->UndoStack()->undo();                                     // one step
  EXPECT_EQ(Document()->Text(), before_);
}

TEST_F(EditingInTheWindow, UndoBehindASaveMakesItUnsavedAgain) {
  Edit();
  DragFrom(At(0.25, 0.75), At(0.5, 0.25));
  Editor()->Save();
  clock_->Advance(1000);  // the watch has noticed the file
  Document()->UndoStack()->undo();
  EXPECT_EQ(Document()->Text(), before_);
  EXPECT_TRUE(Window()->isWindowModified());
}

// ---- Keys

TEST_F(EditingInTheWindow, APressedKeyIsBound) {
  Edit();
  Layer()->Select(0);
  Bind("key", kA);
  Layer()->Select(1);
  Bind("key_down", kSpace);
  Editor()->Save();
  EXPECT_EQ(FileText().toStdString(), QByteArray(FileWith("key: Space", "key: A").c_str())
                                          .replace("key_up: W", "key_up: W, key_down: Space")
                                          .toStdString());
}

// So that arrow keys move the item that was just bound.
TEST_F(EditingInTheWindow, KeysGoBackToTheScreenBehindABinding) {
  Edit();
  Window()->activateWindow();
  clock_->Settle();
  Layer()->Select(0);
  Bind("key", kA);
  EXPECT_EQ(Window()->focusWidget(), Layer());
}

TEST_F(EditingInTheWindow, TwoKeysAreAChord) {
  Edit();
  Layer()->Select(0);
  KeyListener* listener = Inspector()->Editor("key")->Listener();
  listener->Listen();
  HostKey(listener, QEvent::KeyPress, 42);  // Left Shift
  HostKey(listener, QEvent::KeyPress, kA);
  EXPECT_EQ(Document()->WrittenText(0, "key"), "Left Shift + A");
}

TEST_F(EditingInTheWindow, MouseButtonsWheelAndGamepadAreBoundAsWell) {
  Edit();
  Layer()->Select(0);
  KeyListener* listener = Inspector()->Editor("key")->Listener();
  listener->Listen();
  for (const auto type : {QEvent::MouseButtonPress, QEvent::MouseButtonRelease}) {
    QMouseEvent event(type, QPointF(3, 3), QPointF(3, 3), Qt::RightButton, Qt::NoButton, Qt::NoModifier);
    QCoreApplication::sendEvent(listener, &event);
  }
  EXPECT_EQ(Document()->WrittenText(0, "key"), "Mouse Right");

  listener->Listen();
  QWheelEvent wheel(QPointF(3, 3), QPointF(3, 3), QPoint(), QPoint(0, -120), Qt::NoButton, Qt::NoModifier,
                    Qt::NoScrollPhase, false);
  QCoreApplication::sendEvent(listener, &wheel);
  EXPECT_EQ(Document()->WrittenText(0, "key"), "Wheel Down");

  listener->Listen();
  Window()->Pads()->Add(1, "Pad", PadFamily::kLettered);
  Window()->Pads()->SetButton(1, "a", true);
  Window()->Pads()->SetButton(1, "a", false);
  EXPECT_EQ(Document()->WrittenText(0, "key"), "Pad A");
  EXPECT_TRUE(Slots().isEmpty());
}

TEST_F(EditingInTheWindow, EscapeBindsNothing) {
  Edit();
  Layer()->Select(0);
  KeyListener* listener = Inspector()->Editor("key")->Listener();
  listener->Listen();
  QKeyEvent escape = NativeKeyEvent(QEvent::KeyPress, Qt::Key_Escape, Qt::NoModifier, 1);
  QCoreApplication::sendEvent(listener, &escape);
  EXPECT_FALSE(listener->IsListening());
  EXPECT_EQ(Document()->Text(), before_);
}

// ---- Fields

TEST_F(EditingInTheWindow, AFieldIsTyped) {
  Edit();
  Layer()->Select(0);
  Enter("label", "Leap");
  EXPECT_EQ(Document()->WrittenText(0, "label"), "Leap");
  Enter("point", "0.5, 0.25");
  EXPECT_EQ(Document()->WrittenText(0, "point"), "[0.5, 0.25]");
}

TEST_F(EditingInTheWindow, WhatIsWrongIsToldInPlace) {
  Edit();
  Layer()->Select(0);
  Enter("key", "Spcae");
  bool is_told = false;
  for (const auto* label : Inspector()->Editor("key")->findChildren<QLabel*>()) {
    is_told = is_told || label->text() == "unknown key 'Spcae'; did you mean 'Space'?";
  }
  EXPECT_TRUE(is_told);
  EXPECT_EQ(Inspector()->Editor("key")->Line()->text(), "Spcae");  // to be corrected
  EXPECT_EQ(Document()->Text(), before_);
}

// ---- As text

TEST_F(EditingInTheWindow, AnItemIsEditedAsText) {
  Edit();
  Layer()->Select(0);
  Inspector()->SetAsText(true);
  EXPECT_EQ(Text()->toPlainText(), "{type: Click, label: Jump, key: Space, point: [0.25, 0.75]}");
  Text()->setPlainText("{type: Macro, key: Space, press_commands: [sleep:40, release_all]}");
  EXPECT_EQ(Document()->Text(), before_);  // until it is applied
  Inspector()->Pane()->Commit();
  const std::string after = FileWith("{type: Click, label: Jump, key: Space, point: [0.25, 0.75]}",
                                     "{type: Macro, key: Space, press_commands: [sleep:40, release_all]}");
  EXPECT_EQ(Document()->Text().toStdString(), after);
  Document()->UndoStack()->undo();
  EXPECT_EQ(Document()->Text(), before_);
  EXPECT_EQ(Text()->toPlainText(), "{type: Click, label: Jump, key: Space, point: [0.25, 0.75]}");
}

TEST_F(EditingInTheWindow, TextThatIsWrongStaysToBeCorrected) {
  Edit();
  Layer()->Select(0);
  Inspector()->SetAsText(true);
  Text()->setPlainText("{type: Click, key: Spcae, point: [0.25, 0.75]}");
  Inspector()->Pane()->Commit();
  // "{type: Click, key: " are 19 characters.
  EXPECT_EQ(Inspector()->Pane()->Problem(), "Line 1, column 20: unknown key 'Spcae'; did you mean 'Space'?");
  EXPECT_EQ(Text()->toPlainText(), "{type: Click, key: Spcae, point: [0.25, 0.75]}");
  EXPECT_EQ(Document()->Text(), before_);
  DragFrom(At(0.5, 0.5), At(0.5, 0.25));  // another item: the typed text is discarded, with a message
  EXPECT_TRUE(problem_.contains("unknown key 'Spcae'")) << problem_.toStdString();
  EXPECT_EQ(Layer()->Selected(), 1);
  EXPECT_TRUE(Text()->toPlainText().startsWith("{type: Swipehold"));
}

TEST_F(EditingInTheWindow, TextThatIsWrongIsNotLostWithoutAWord) {
  Edit();
  Layer()->Select(0);
  Inspector()->SetAsText(true);
  Text()->setPlainText("{type: Click, key: Spcae, point: [0.25, 0.75]}");
  EXPECT_TRUE(Editor()->Save());
  EXPECT_EQ(problem_, "Saved " + folder_.filePath("keymap.yaml") + ", but not the text that you typed");
  EXPECT_FALSE(Window()->close());
  EXPECT_EQ(questions_, QStringList("The text that you typed cannot be used and would be lost. "
                                    "Line 1, column 20: unknown key 'Spcae'; did you mean 'Space'?"));
  EXPECT_EQ(Text()->toPlainText(), "{type: Click, key: Spcae, point: [0.25, 0.75]}");
  answer_ = QMessageBox::Discard;
  EXPECT_TRUE(Window()->close());
}

TEST_F(EditingInTheWindow, AnEditElsewhereLeavesWhatIsTyped) {
  Edit();
  Layer()->Select(0);
  Inspector()->SetAsText(true);
  Text()->setPlainText("{type: Click, ");
  EXPECT_EQ(Document()->SetNumber(1, "radius", 0.2), QString());
  EXPECT_EQ(Text()->toPlainText(), "{type: Click, ");
  EXPECT_EQ(Document()->SetField(0, "key", "E"), QString());  // the item itself has changed
  EXPECT_EQ(Text()->toPlainText(), "{type: Click, label: Jump, key: E, point: [0.25, 0.75]}");
}

TEST_F(EditingInTheWindow, SettingsAndWheelStandBelowTheItems) {
  Edit();
  Layer()->Select(1);
  ChooseRow(2);
  EXPECT_EQ(Layer()->Selected(), -1);
  EXPECT_EQ(Text()->toPlainText(), "");
  Text()->setPlainText("settings: {keyboard_transparent: true}");
  ChooseRow(3);  // applies what was typed
  Text()->setPlainText("wheel: {wheel_delta: 2.0}");
  EXPECT_TRUE(Editor()->Save());
  EXPECT_TRUE(FileText().contains("settings: {keyboard_transparent: true}\nwheel: {wheel_delta: 2.0}\n"));
  ChooseRow(1);
  EXPECT_EQ(Layer()->Selected(), 1);
  Edit(false);
  Press(kA);  // unmapped, so the guest gets it now
  EXPECT_EQ(Guest().held_keys, QSet<int>{kA});
}

TEST_F(EditingInTheWindow, AKeyIsPressedInTheFields) {
  Edit();
  Layer()->Select(0);
  Inspector()->SetAsText(true);
  Inspector()->ListenForKey();
  EXPECT_TRUE(Inspector()->Pane()->isHidden());
  EXPECT_TRUE(Inspector()->Editor("key")->Listener()->IsListening());
}

// ---- Items

TEST_F(EditingInTheWindow, ANewItemIsSelectedAndWaitsForAKey) {
  Edit();
  Editor()->Add("BunchClick", {0.75, 0.5});
  EXPECT_EQ(Layer()->Selected(), 2);
  EXPECT_TRUE(Inspector()->Editor("key")->Listener()->IsListening());
  EXPECT_EQ(Document()->WrittenText(2, "point"), "[0.75, 0.5]");
}

TEST_F(EditingInTheWindow, ANoteWaitsForNoKey) {
  Edit();
  Editor()->Add("Tip", {0.75, 0.5});
  EXPECT_EQ(Layer()->Selected(), 2);
  EXPECT_FALSE(Inspector()->Editor("key")->Listener()->IsListening());
}

// Text that was typed for one item never reaches another.
TEST_F(EditingInTheWindow, AnotherFileDropsWhatWasOnlyTyped) {
  Edit();
  Layer()->Select(0);
  Window()->activateWindow();
  Inspector()->Editor("label")->Line()->setFocus();
  Inspector()->Editor("label")->Line()->setText("Leap");
  Load("{type: Tip, label: Note, point: [0.5, 0.5]}");
  Layer()->Select(0);
  EXPECT_EQ(Document()->WrittenText(0, "label"), "Note");
  EXPECT_FALSE(Document()->IsModified());
}

TEST_F(EditingInTheWindow, AnotherFileDropsWhatWasOnlyTypedAsText) {
  Edit();
  ChooseRow(2);  // its settings, which neither file has
  Text()->setPlainText("settings: {keyboard_transparent: true}");
  Load("{type: Tip, label: Note, point: [0.5, 0.5]}");
  EXPECT_EQ(Text()->toPlainText(), "");
  EXPECT_FALSE(Document()->IsModified());
}

TEST_F(EditingInTheWindow, ItemsAreDuplicatedAndDeleted) {
  Edit();
  Layer()->Select(0);
  Editor()->Duplicate();
  EXPECT_EQ(Layer()->Selected(), 1);
  EXPECT_EQ(Document()->ItemCount(), 3);
  LayerKey(Qt::Key_Delete);
  EXPECT_EQ(Document()->Text(), before_);
  EXPECT_EQ(Layer()->Selected(), -1);
}

// The selected index then belongs to another item.
TEST_F(EditingInTheWindow, AnUndoneDeletionSelectsNothing) {
  Edit();
  Layer()->Select(0);
  Editor()->Delete();
  Layer()->Select(0);
  Document()->UndoStack()->undo();
  EXPECT_EQ(Layer()->Selected(), -1);
}

TEST_F(EditingInTheWindow, OfTwoItemsAtOnePlaceTheSelectedOneIsDragged) {
  Edit();
  Document()->SetPair(1, "point", {0.25, 0.75});
  Click(At(0.25, 0.75));
  EXPECT_EQ(Layer()->Selected(), 0);  // the first one
  Layer()->Select(1);
  DragFrom(At(0.25, 0.75), At(0.5, 0.25));
  EXPECT_EQ(Document()->WrittenText(0, "point"), "[0.25, 0.75]");
  EXPECT_EQ(Document()->WrittenText(1, "point"), "[0.5, 0.25]");
}

TEST_F(EditingInTheWindow, ANeighbourWithinReachIsSelected) {
  Edit();
  Document()->SetPair(1, "point", {0.275, 0.75});  // 25 pixels of 1000 beside the other
  Layer()->Select(1);
  Click(At(0.25, 0.75));
  EXPECT_EQ(Layer()->Selected(), 0);
}

TEST_F(EditingInTheWindow, TabGoesThroughTheItems) {
  Edit();
  LayerKey(Qt::Key_Tab);
  EXPECT_EQ(Layer()->Selected(), 0);
  LayerKey(Qt::Key_Backtab, Qt::ShiftModifier);
  EXPECT_EQ(Layer()->Selected(), 1);
}

// ---- The guest

TEST_F(EditingInTheWindow, NothingReachesTheGuestMeanwhile) {
  Press(kSpace);
  EXPECT_EQ(Slots().size(), 1);
  Edit();
  EXPECT_TRUE(Slots().isEmpty());  // what was down is released
  EXPECT_EQ(View()->focusProxy(), Layer());
  EXPECT_EQ(Layer()->geometry(), View()->geometry());
  LayerKey(Qt::Key_Space);
  Click(At(0.9, 0.1));
  EXPECT_TRUE(Slots().isEmpty());
}

TEST_F(EditingInTheWindow, EditsAreInUseWhenItIsOver) {
  Edit();
  DragFrom(At(0.25, 0.75), At(0.5, 0.25));
  Edit(false);
  EXPECT_TRUE(Window()->isWindowModified());
  EXPECT_EQ(FileText(), before_);  // not saved yet
  Press(kSpace);
  ExpectNear(Finger(), 640, 180);  // 0.5 * 1280, 0.25 * 720
  Release(kSpace);
  Edit();
  EXPECT_TRUE(Document()->UndoStack()->canUndo());
  Document()->UndoStack()->undo();
  Edit(false);
  EXPECT_FALSE(Window()->isWindowModified());
  Press(kSpace);
  ExpectNear(Finger(), 320, 540);
}

TEST_F(EditingInTheWindow, SavedEditsCanBeTakenBackStill) {
  Edit();
  DragFrom(At(0.25, 0.75), At(0.5, 0.25));
  Editor()->Save();
  Edit(false);
  Press(kSpace);
  ExpectNear(Finger(), 640, 180);
  EXPECT_TRUE(Document()->UndoStack()->canUndo());
}

// ---- Files and other programs

TEST_F(EditingInTheWindow, AForeignSaveIsReadWhereNothingIsLost) {
  Edit();
  Write("keymap.yaml", "{type: Tip, point: [0.5, 0.5]}");
  EXPECT_FALSE(Editor()->TakeFileChange());  // the window reloads it
  Window()->LoadKeymap(folder_.filePath("keymap.yaml"));
  EXPECT_EQ(Document()->ItemCount(), 1);
}

TEST_F(EditingInTheWindow, AForeignSaveTakesNoEditsAway) {
  Edit();
  DragFrom(At(0.25, 0.75), At(0.5, 0.25));
  Write("keymap.yaml", "{type: Tip, point: [0.5, 0.5]}");
  const QByteArray foreign = FileText();
  EXPECT_TRUE(Editor()->TakeFileChange());
  EXPECT_TRUE(problem_.contains("Your edits are kept")) << problem_.toStdString();
  EXPECT_EQ(Document()->ItemCount(), 2);

  EXPECT_FALSE(Editor()->Save());  // Cancel
  EXPECT_EQ(questions_.size(), 1);
  EXPECT_EQ(FileText(), foreign);
  answer_ = QMessageBox::Save;
  EXPECT_TRUE(Editor()->Save());
  EXPECT_EQ(FileText().toStdString(), FileWith("[0.25, 0.75]", "[0.5, 0.25]"));
}

TEST_F(EditingInTheWindow, AForeignSaveCanBeReadInstead) {
  Edit();
  DragFrom(At(0.25, 0.75), At(0.5, 0.25));
  Write("keymap.yaml", "{type: Tip, point: [0.5, 0.5]}");
  answer_ = QMessageBox::Reset;
  EXPECT_FALSE(Editor()->Save());
  EXPECT_EQ(Document()->ItemCount(), 1);
  EXPECT_FALSE(Document()->IsModified());
  Edit(false);
  Press(kSpace);
  EXPECT_TRUE(Slots().isEmpty());  // a label has no key
}

TEST_F(EditingInTheWindow, AForeignSaveCanBeLeftAloneByAnotherName) {
  Edit();
  DragFrom(At(0.25, 0.75), At(0.5, 0.25));
  Write("keymap.yaml", "{type: Tip, point: [0.5, 0.5]}");
  const QByteArray foreign = FileText();
  answer_ = QMessageBox::SaveAll;
  Editor()->SetAskForName([this](const SaveQuestion&) { return folder_.filePath("mine.yaml"); });
  EXPECT_TRUE(Editor()->Save());
  QStringList texts;
  for (const Answer& answer : std::as_const(answers_)) texts += answer.text;
  EXPECT_EQ(texts, (QStringList{"Overwrite", "Reload", "Save as\u2026", ""}));
  EXPECT_EQ(FileText(), foreign);
  EXPECT_EQ(Document()->Path(), folder_.filePath("mine.yaml"));
  EXPECT_FALSE(Document()->IsModified());
}

// The real dialog, filled in like a user does.
TEST_F(EditingInTheWindow, ANameWithoutSuffixGetsOne) {
  QApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
  Edit();
  EnterName(folder_.filePath("mine"));
  EXPECT_TRUE(Editor()->SaveAs(QString()));
  EXPECT_EQ(Document()->Path(), folder_.filePath("mine.yaml"));
  EXPECT_TRUE(QFile::exists(folder_.filePath("mine.yaml")));
}

TEST_F(EditingInTheWindow, AFullDiskLeavesTheKeymapThatWasThere) {
  Edit();
  DragFrom(At(0.25, 0.75), At(0.5, 0.25));
  {
    const FileSizeLimit full(20);
    EXPECT_FALSE(Editor()->Save());
  }
  EXPECT_EQ(problem_, folder_.filePath("keymap.yaml") + " cannot be written: File too large");
  EXPECT_EQ(FileText(), before_);
  EXPECT_TRUE(Window()->isWindowModified());
  EXPECT_TRUE(Editor()->Save());
  EXPECT_EQ(FileText().toStdString(), FileWith("[0.25, 0.75]", "[0.5, 0.25]"));
}

TEST_F(EditingInTheWindow, EditsThatNobodyIsAskedAboutAreKept) {
  const DataFolder data(folder_.filePath("data"));
  EXPECT_EQ(Window()->LeaveWithoutAsking(), QStringList());
  Edit();
  DragFrom(At(0.25, 0.75), At(0.5, 0.25));
  const QString news = Window()->LeaveWithoutAsking().value(0);
  const QString told = "the edits of keymap.yaml were saved as ";
  ASSERT_TRUE(news.startsWith(told + data.Path() + "/")) << news.toStdString();
  QFile kept(news.mid(told.size()));
  ASSERT_TRUE(kept.open(QIODevice::ReadOnly));
  EXPECT_EQ(kept.readAll(), Document()->Text());
  EXPECT_EQ(FileText(), before_);
}

TEST_F(EditingInTheWindow, ClosingAsksForEdits) {
  Edit();
  EXPECT_TRUE(Editor()->MayLeave());
  EXPECT_TRUE(questions_.isEmpty());
  DragFrom(At(0.25, 0.75), At(0.5, 0.25));
  EXPECT_FALSE(Window()->close());
  EXPECT_EQ(questions_, QStringList("Save the edits of the keymap?"));
  answer_ = QMessageBox::Save;
  EXPECT_TRUE(Window()->close());
  EXPECT_NE(FileText(), before_);
}

TEST_F(EditingInTheWindow, AnotherKeymapIsUnmodified) {
  Edit();
  DragFrom(At(0.25, 0.75), At(0.5, 0.25));
  Window()->LoadKeymap(Write("other.yaml", "{type: Tip, point: [0.5, 0.5]}"));
  EXPECT_FALSE(Window()->isWindowModified());
  EXPECT_EQ(Document()->ItemCount(), 1);
}

TEST_F(EditingInTheWindow, ABrokenKeymapIsNotEdited) {
  Load("{type: Click, key: Spcae, point: [0.5, 0.5]}");
  const QByteArray broken = FileText();
  Edit();
  EXPECT_TRUE(problem_.contains("cannot be edited")) << problem_.toStdString();
  Editor()->Add("Click", {0.5, 0.5});
  EXPECT_EQ(Document()->Text(), broken);
}

TEST_F(EditingInTheWindow, WithoutAKeymapANewOneBegins) {
  Window()->LoadKeymap(QString());
  Edit();
  EXPECT_TRUE(problem_.isEmpty()) << problem_.toStdString();
  Editor()->Add("Click", {0.5, 0.5});
  EXPECT_TRUE(Window()->isWindowModified());
  Edit(false);
  Press(kSpace);
  ExpectNear(Finger(), 640, 360);  // in use without a name
  Release(kSpace);
  const QString path = folder_.filePath("mine.yaml");
  EXPECT_TRUE(Editor()->SaveAs(path));
  EXPECT_FALSE(Window()->isWindowModified());
  EXPECT_EQ(Window()->windowTitle(), QStringLiteral("mine.yaml \u2013 tavi"));
}

// While the first items are added, there is no message that there is no keymap.
TEST_F(EditingInTheWindow, ANewKeymapIsOneFromItsFirstItemOn) {
  Window()->LoadKeymap(QString());
  EXPECT_TRUE(View()->Hint().startsWith("No keymap.")) << View()->Hint().toStdString();
  Edit();
  EXPECT_TRUE(View()->Hint().startsWith("No items yet.")) << View()->Hint().toStdString();
  EXPECT_TRUE(HasLabel(QStringLiteral("New keymap \u00B7 no items")));
  Editor()->Add("Click", {0.5, 0.5});
  EXPECT_EQ(View()->Hint(), QString());
  EXPECT_TRUE(HasLabel(QStringLiteral("New keymap \u00B7 1 item")));
  Editor()->Document()->UndoStack()->undo();
  Edit(false);
  EXPECT_TRUE(View()->Hint().startsWith("No keymap.")) << View()->Hint().toStdString();
  EXPECT_TRUE(HasLabel("No keymap"));
}

// The name of the existing key stays legible beside it.
TEST_F(EditingInTheWindow, TheWaitForAKeyTakesNoRoomFromItsName) {
  Edit();
  Layer()->Select(0);
  clock_->Settle();
  const FieldEditor* field = Inspector()->Editor("key");
  const int before = field->Line()->width();
  field->Listener()->Listen();
  clock_->Settle();
  EXPECT_GE(field->Line()->width(), before);
  EXPECT_LE(field->Listener()->sizeHint().width(), field->Listener()->width());
}

}  // namespace
}  // namespace tavi
