// Diagnostics of a keymap, in a list and as marks at its items.
#include <QAction>
#include <QFile>
#include <QFontMetrics>
#include <QHelpEvent>
#include <QLabel>
#include <QScrollArea>
#include <QScrollBar>
#include <QToolTip>

#include "host/session/keymap_source.h"
#include "host/window/editor/edit_layer.h"
#include "host/window/editor/keymap_editor.h"
#include "host/window/findings/diagnostics_panel.h"
#include "host/window/findings/finding_marks.h"
#include "host/window/findings/placed_finding.h"
#include "keymapmanager/keymap_file.h"
#include "tests/host/window/window_fixture.h"

namespace tavi {
namespace {

// Two taps on one key: the second never has an effect, so there is a warning.
constexpr char kTwins[] =
    "format: 1\n"
    "items:\n"
    "  - {type: Click, label: One, key: Space, point: [0.25, 0.75]}\n"
    "  - {type: Click, label: Two, key: W, point: [0.5, 0.5]}\n"
    "  - {type: Click, label: Three, key: E, point: [0.75, 0.25]}\n";

class Findings : public WindowFixture {
 protected:
  // Writes the file and has it reloaded, like saving it in an editor.
  void Save(const QByteArray& text) {
    QFile file(folder_.filePath("keymap.yaml"));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(text);
    file.close();
    Window()->LoadKeymap(file.fileName());
  }
  static QByteArray Replaced(const char* before, const char* after) {
    return QByteArray(kTwins).replace(before, after);
  }
  FindingMarks* Marks() const { return Window()->findChild<FindingMarks*>(); }
  // The text above the view, with the targets of its links.
  QString Panel() const {
    QString text;
    for (const auto* panel : Window()->findChildren<DiagnosticsPanel*>()) {
      if (!panel->isVisible()) continue;
      for (const QLabel* label : panel->findChildren<QLabel*>()) text += label->text();
    }
    return text;
  }
  void ExpectMarkAt(const char* label, double x, double y) const {
    const QPointF place = Marks()->PlaceOfMark(label);
    EXPECT_NEAR(place.x(), View()->width() * x - 24, 1) << label;  // beside the item's keys
    EXPECT_NEAR(place.y(), View()->height() * y, 1) << label;
  }
};

TEST_F(Findings, AKeymapWithoutAnyHasNoMarks) {
  Save(kTwins);
  EXPECT_FALSE(Marks()->isVisible());
  EXPECT_EQ(Panel(), QString());
}

TEST_F(Findings, AWarningMarksItsItem) {
  Save(Replaced("key: E", "key: Space"));
  ASSERT_TRUE(Marks()->isVisible());
  ExpectMarkAt("1", 0.75, 0.25);
  EXPECT_TRUE(Panel().contains("is in use, but parts of it"));
  EXPECT_TRUE(Panel().contains("href='1'")) << Panel().toStdString();
}

TEST_F(Findings, AnErrorMarksTheItemOfTheStateBefore) {
  Save(kTwins);
  Save(Replaced("key: W", "key: Spcae"));
  ExpectMarkAt("1", 0.5, 0.5);
  EXPECT_TRUE(Panel().contains("The version before the change stays in use"));
}

// Lines were inserted above the item with the error, and nothing changed after it.
TEST_F(Findings, LinesThatMovedStandForThemselves) {
  Save(Replaced("key: E", "key: Spcae"));
  EXPECT_FALSE(Marks()->isVisible());  // there is no earlier state
  Save(kTwins);
  Save(Replaced("  - {type: Click, label: One", "# a comment\n# another\n  - {type: Clack, label: One"));
  ExpectMarkAt("1", 0.25, 0.75);
  Save(kTwins);
  Save(
      "format: 1\nitems:\n"
      "  - {type: Click, label: New, key: R, point: [0.1, 0.1]}\n" +
      Replaced("key: E, point: [0.75", "key: Eh, point: [7.5").mid(17));
  ExpectMarkAt("1", 0.75, 0.25);
}

// A closing brace is missing in an item that is added after the others. The reader stops on the line below, or at the
// end.
TEST_F(Findings, AnItemThatIsNotInUseYetMarksNoOther) {
  Save(kTwins);
  Save(QByteArray(kTwins) +
       "\n  - {type: Click, key: R, point: [0.1, 0.1]\n  - {type: Click, key: F, point: [0.2, 0.2]}\n");
  EXPECT_TRUE(Panel().contains("The version before the change stays in use"));
  EXPECT_FALSE(Marks()->isVisible());
  Save(kTwins);
  Save(QByteArray(kTwins) + "  - {type: Click, key: R, point: [0.1, 0.1]\n");
  EXPECT_FALSE(Marks()->isVisible());
  Save(kTwins);
  Save(QByteArray(kTwins) + "  - type: Macro\n    key: R\n    press_commands:\n      - sleep: 40\n");
  EXPECT_FALSE(Marks()->isVisible());
}

TEST_F(Findings, ALineThatIsPutIntoAnItemMarksIt) {
  const QByteArray item = "format: 1\nitems:\n  - type: Click\n    key: Space\n    point: [0.25, 0.75]\n";
  Save(item);
  Save(item + "    colour: red\n");
  ExpectMarkAt("1", 0.25, 0.75);
}

// Long sentences wrap at the panel's edge, and no scroll bar covers a line or appears beside a single one.
TEST_F(Findings, AreReadAsAWhole) {
  const auto* panel = Window()->findChildren<DiagnosticsPanel*>().first();
  const auto* scroll = panel->findChild<QScrollArea*>();
  const auto is_whole = [this, scroll] {
    clock_->Settle();
    return scroll->isVisible() && !scroll->horizontalScrollBar()->isVisible() &&
           !scroll->verticalScrollBar()->isVisible() && scroll->widget()->width() <= scroll->viewport()->width();
  };
  const QByteArray broken = QByteArray(kTwins).replace("point: [0.5, 0.5]}", "point: [0.5, 0.5]");
  for (const int width : {700, 900, 1000, 1272, 1400}) {
    Window()->resize(width, 700);
    Save(kTwins);
    clock_->Settle();
    Save(broken);
    EXPECT_TRUE(is_whole()) << width;
  }
  const int line = QFontMetrics(scroll->widget()->font()).height();
  Window()->resize(700, 700);
  EXPECT_TRUE(is_whole());
  EXPECT_GT(scroll->viewport()->height(), line * 3 / 2);  // more than one of them
  Window()->resize(1900, 700);
  EXPECT_TRUE(is_whole());
  EXPECT_LT(scroll->viewport()->height(), line * 3 / 2);
}

TEST_F(Findings, SeveralOfOneItemStandAboveEachOther) {
  Save(kTwins);
  Save(Replaced("key: W, point", "key: Spcae, sped: 1, point"));
  const QPointF first = Marks()->PlaceOfMark("1");
  const QPointF second = Marks()->PlaceOfMark("2");
  EXPECT_EQ(first.x(), second.x());
  EXPECT_GT(first.y() - second.y(), 18);  // two radii of 9
}

TEST_F(Findings, WhatIsAboutNoItemHasNoMark) {
  Save(kTwins);
  Save(QByteArray(kTwins) + "colour: red\n");
  EXPECT_FALSE(Marks()->isVisible());
  EXPECT_TRUE(Panel().contains("colour"));
  Save(QByteArray(kTwins).replace("format: 1", "format: 2"));
  EXPECT_FALSE(Marks()->isVisible());
}

TEST_F(Findings, AChosenFindingLightsUp) {
  Save(Replaced("key: E", "key: Space"));
  const QImage before = Marks()->grab().toImage();
  QLabel* list = nullptr;
  for (QLabel* label : Window()->findChildren<QLabel*>()) {
    if (label->text().contains("href='1'")) list = label;
  }
  ASSERT_NE(list, nullptr);
  Q_EMIT list->linkActivated("1");
  EXPECT_NE(Marks()->grab().toImage(), before);
  clock_->Advance(2000);
  EXPECT_EQ(Marks()->grab().toImage(), before);
}

TEST_F(Findings, ThePointerOnAMarkTellsTheMessage) {
  Save(Replaced("key: E", "key: Space"));
  const QPoint place = Marks()->PlaceOfMark("1").toPoint();
  QHelpEvent help(QEvent::ToolTip, place, View()->mapToGlobal(place));
  Send(&help);
  EXPECT_TRUE(QToolTip::text().contains("Space")) << QToolTip::text().toStdString();
}

TEST_F(Findings, MarksTakeNoInput) {
  Save(Replaced("key: E", "key: Space"));
  EXPECT_EQ(View()->childAt(Marks()->PlaceOfMark("1").toPoint()), nullptr);
}

TEST_F(Findings, TheKeymapOfGamepadsHasLabelsOfItsOwn) {
  Save(Replaced("key: E", "key: Space"));
  LoadJoystick("{type: Click, key: Pad A, point: [0.1, 0.2]}, {type: Click, key: Pad A, point: [0.3, 0.4]}");
  ExpectMarkAt("1", 0.75, 0.25);
  ExpectMarkAt("G1", 0.3, 0.4);
}

TEST_F(Findings, AKeyOfTheWindowIsOne) {
  Save(Replaced("key: W", "key: F12"));
  EXPECT_TRUE(Panel().contains("the window keeps F12 for itself, so this item never gets it; --pause-key sets another"))
      << Panel().toStdString();
  ExpectMarkAt("1", 0.5, 0.5);
  Save(Replaced("key: W", "key: F12 + R"));  // as a part of a chord, too
  EXPECT_TRUE(Panel().contains("the window keeps F12 for itself")) << Panel().toStdString();
}

// Backspace belongs to the window while Ctrl and Alt are down, so it matters only if a player may hold both.
TEST_F(Findings, AKeyOfTheWindowWithModifiersIsOneWhereTheyAreKeysOfTheKeymap) {
  const struct {
    const char* name;
    const char* first;
    const char* second;
    const char* third;
    bool is_told;
  } rows[] = {
      {"alone", "Space", "Backspace", "E", false},
      {"with one of the modifiers", "Left Ctrl", "Backspace", "E", false},
      {"with both", "Left Ctrl", "Backspace", "Left Alt", true},
      {"with both of the right side", "Right Ctrl", "Backspace", "Right Alt", true},
      {"with two of one kind", "Left Ctrl", "Backspace", "Right Ctrl", false},
      {"in chords", "Left Ctrl + R", "Left Alt + Backspace", "E", true},
      {"the key that leads to the controls", "Left Ctrl", "Enter", "Left Alt", true},
      {"Enter of the number pad is another key", "Left Ctrl", "Numpad Enter", "Left Alt", false},
  };
  for (const auto& row : rows) {
    Save(Replaced("key: Space", (QByteArray("key: ") + row.first).constData())
             .replace("key: E", QByteArray("key: ") + row.third)
             .replace("key: W", QByteArray("key: ") + row.second));
    EXPECT_EQ(Panel().contains("the window keeps Ctrl+Alt+"), row.is_told) << row.name << Panel().toStdString();
  }
}

TEST_F(Findings, AKeyOfTheWindowWithModifiersTellsWhenItIsTaken) {
  Save(Replaced("key: Space", "key: Left Ctrl").replace("key: W", "key: Backspace").replace("key: E", "key: Left Alt"));
  EXPECT_TRUE(
      Panel().contains("the window keeps Ctrl+Alt+Backspace for itself, so this item does not get its key while "
                       "Ctrl and Alt of this keymap are down; --panic-key sets another key"))
      << Panel().toStdString();
  ExpectMarkAt("1", 0.5, 0.5);
  EXPECT_FALSE(Panel().contains("href='2'"));
}

// During editing a diagnostic appears and disappears with each key that is typed.
TEST_F(Findings, AFindingDoesNotMoveTheViewWhileOneEdits) {
  Save(kTwins);
  Window()->Editor()->Switch()->setChecked(true);
  clock_->Settle();
  const QRect before = View()->geometry();
  EXPECT_TRUE(Panel().contains("no mistakes"));
  EXPECT_EQ(Window()->Editor()->Document()->SetField(1, "key", "Space"), QString());
  LoadJoystick("{type: Click, key: Pad Q, point: [0.1, 0.2]}");
  clock_->Settle();
  EXPECT_TRUE(Marks()->isVisible());
  EXPECT_EQ(View()->geometry(), before);
  Window()->Editor()->Switch()->setChecked(false);
  clock_->Settle();
  EXPECT_TRUE(Panel().contains("gamepads"));
}

TEST_F(Findings, TheEditorDoesNotCoverANumber) {
  Save(Replaced("key: E", "key: Space"));
  EXPECT_EQ(Marks()->parentWidget(), View());
  Window()->Editor()->Switch()->setChecked(true);
  EXPECT_EQ(Marks()->parentWidget(), Window()->Editor()->Layer());
  EXPECT_TRUE(Marks()->isVisible());
  Window()->Editor()->Switch()->setChecked(false);
  EXPECT_EQ(Marks()->parentWidget(), View());
}

TEST_F(Findings, TheyGoWhenTheFileIsCorrect) {
  Save(kTwins);
  Save(Replaced("key: W", "key: Spcae"));
  Save(kTwins);
  EXPECT_FALSE(Marks()->isVisible());
  EXPECT_EQ(Panel(), QString());
}

}  // namespace
}  // namespace tavi
