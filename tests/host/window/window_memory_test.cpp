// What a window remembers, and its layout on small screens.
#include "host/window/window_memory.h"

#include <QAction>
#include <QDockWidget>
#include <QSettings>

#include "host/window/dock_folder.h"
#include "host/window/editor/keymap_editor.h"
#include "host/window/events/line_log.h"
#include "host/window/main_tool_bar.h"
#include "host/window/records/record_bar.h"
#include "host/window/view/guest_frame.h"
#include "host/window/view/guest_panel.h"
#include "tests/host/window/window_fixture.h"

namespace tavi {
namespace {

class WindowMemoryTest : public WindowFixture {
 protected:
  QString File() const { return folder_.filePath("window.ini"); }
  QDockWidget* Dock(const char* name) const { return Window()->findChild<QDockWidget*>(QLatin1String(name)); }
  void Resize(int width, int height) {
    Window()->resize(width, height);
    clock_->Settle();
  }
  // Closes the window, and starts another one with its memory.
  void StartAgain() {
    {
      WindowMemory memory(File());
      memory.Save(*Window());
    }
    window_ = std::make_unique<MainWindow>();
    WindowMemory(File()).Restore(Window());
    window_->show();
    clock_->Settle();
  }
};

// With 8 and 40 pixels for the frame: 1024 x 640 leaves 1016 x 600; 1920 x 1080 at 200 % is 960 x 540 and leaves 952 x
// 500.
TEST(WindowMemorySize, TheFirstSizeFitsTheScreen) {
  EXPECT_EQ(WindowMemory::FirstSize({1920, 1080}), QSize(1360, 760));
  EXPECT_EQ(WindowMemory::FirstSize({1024, 640}), QSize(1016, 600));
  EXPECT_EQ(WindowMemory::FirstSize({960, 540}), QSize(952, 500));
}

// No part of the window needs more width or height than these screens have.
TEST_F(WindowMemoryTest, TheWindowCanBeAsSmallAsTheScreen) {
  Load("{type: Click, key: Space, point: [0.5, 0.5]}", ("name: " + QByteArray(200, 'n')).constData());
  for (const QSize& size : {QSize(1016, 600), QSize(952, 500)}) {
    Resize(size.width(), size.height());
    EXPECT_EQ(Window()->size(), size);
    EXPECT_GE(View()->width(), 400) << size.width();
  }
}

// The guest's screen keeps the 680 pixels that its keys need: at 200 % on 1920 x 1080 the window is 952 x 500, its bars
// take 108, and the strip's 62 would leave 330, for a width of 587.
TEST_F(WindowMemoryTest, TheStripBelowGivesWayBeforeTheScreenGetsTooNarrow) {
  const auto* strip = Window()->findChild<GuestPanel*>();
  ASSERT_NE(strip, nullptr);
  Resize(952, 500);
  EXPECT_FALSE(strip->isVisible());
  EXPECT_GE(View()->width(), DockFolder::kLeastViewWidth);
  Resize(952, 384 + 170 - 1);
  EXPECT_FALSE(strip->isVisible());
  Resize(952, 384 + 170);
  EXPECT_TRUE(strip->isVisible());
  EXPECT_GE(View()->width(), DockFolder::kLeastViewWidth);
}

TEST_F(WindowMemoryTest, ASmallWindowPutsDocksAwayUntilThereIsRoom) {
  Resize(1360, 1000);
  Window()->ShowEvents();
  const int wide = View()->parentWidget()->width();
  Resize(800, 500);
  EXPECT_TRUE(Dock("log")->isHidden());
  EXPECT_TRUE(Dock("events")->isHidden());
  EXPECT_TRUE(Window()->Docks()->IsWanted(Dock("log")));
  EXPECT_EQ(View()->parentWidget()->width(), 800);
  Resize(1360, 1000);
  EXPECT_FALSE(Dock("log")->isHidden());
  EXPECT_FALSE(Dock("events")->isHidden());
  EXPECT_EQ(View()->parentWidget()->width(), wide);
}

TEST_F(WindowMemoryTest, ADockThatIsOpenedInASmallWindowStays) {
  Resize(800, 500);
  Dock("log")->toggleViewAction()->trigger();
  Resize(790, 500);
  EXPECT_FALSE(Dock("log")->isHidden());
}

TEST_F(WindowMemoryTest, ADockThatThePlayerHasClosedStaysAway) {
  Resize(1360, 1000);
  Dock("log")->toggleViewAction()->trigger();
  Resize(800, 500);
  Resize(1360, 1000);
  EXPECT_TRUE(Dock("log")->isHidden());
}

TEST_F(WindowMemoryTest, SizeDocksAndSwitchesComeBack) {
  QSettings(File(), QSettings::IniFormat).clear();
  Resize(700, 500);  // the log is hidden, not closed
  Window()->Tools()->Overlay()->setChecked(false);
  StartAgain();
  EXPECT_EQ(Window()->size(), QSize(700, 500));
  EXPECT_TRUE(Dock("log")->isHidden());
  EXPECT_TRUE(Window()->Docks()->IsWanted(Dock("log")));
  EXPECT_FALSE(Window()->Tools()->Overlay()->isChecked());
  Resize(1360, 1000);
  EXPECT_FALSE(Dock("log")->isHidden());
  Dock("log")->toggleViewAction()->trigger();
  StartAgain();
  EXPECT_FALSE(Window()->Docks()->IsWanted(Dock("log")));
}

// The editor's bar and dock follow its switch, the second view its own.
TEST_F(WindowMemoryTest, WhatWasBeingDoneIsNotGoneOnWith) {
  Window()->Editor()->Switch()->setChecked(true);
  Window()->Records()->SecondView()->setChecked(true);
  StartAgain();
  EXPECT_TRUE(Dock("items")->isHidden());
  EXPECT_TRUE(Dock("replays")->isHidden());
  EXPECT_FALSE(Window()->Records()->SecondView()->isChecked());
}

TEST_F(WindowMemoryTest, KeymapsAndOptionsAreKeptAsACommandLineHasThem) {
  Load("");
  LoadJoystick("");
  Window()->Display()->SetSize(QSize(720, 1280));
  Window()->Display()->SetRotation(90);
  Window()->Display()->SetPixelRatio(1.5);
  WindowMemory memory(File());
  memory.Save(*Window());
  EXPECT_EQ(memory.Keymap(), folder_.filePath("keymap.yaml"));
  EXPECT_EQ(memory.Options(), (QMap<QString, QString>{{"--size", "720x1280"},
                                                      {"--joystick", folder_.filePath("joystick.yaml")},
                                                      {"--look", "desktop"},
                                                      {"--panic-key", "Ctrl+Alt+Backspace"},
                                                      {"--controls-key", "Ctrl+Alt+Enter"},
                                                      {"--pause-key", "F12"},
                                                      {"--pixel-ratio", "1.5"},
                                                      {"--rotation", "90"}}));
  Window()->Display()->SetSize(QSize());
  memory.Save(*Window());
  EXPECT_EQ(memory.Options()["--size"], "view");
}

// Versions for Qt 5 alone had the keymap's path as text with escapes.
TEST_F(WindowMemoryTest, AKeymapIsReadAsOlderVersionsWroteIt) {
  const QString keymap = Write("caf\u00E9 \u9375\U0001F3AE.yaml", "");
  QFile file(File());
  ASSERT_TRUE(file.open(QIODevice::WriteOnly));
  file.write("[General]\nkeymap=" + folder_.path().toUtf8() + "/caf\\xe9 \\x9375\\xd83c\\xdfae.yaml\n");
  file.close();
  EXPECT_EQ(WindowMemory(File()).Keymap(), keymap);
}

TEST_F(WindowMemoryTest, FilesThatAreGoneAreForgotten) {
  Load("");
  LoadJoystick("");
  WindowMemory memory(File());
  memory.Save(*Window());
  EXPECT_TRUE(QFile::remove(folder_.filePath("keymap.yaml")));
  EXPECT_TRUE(QFile::remove(folder_.filePath("joystick.yaml")));
  EXPECT_EQ(memory.Keymap(), QString());
  EXPECT_FALSE(memory.Options().contains("--joystick"));
}

TEST_F(WindowMemoryTest, AFreshWindowRemembersNothing) {
  WindowMemory memory{QString()};
  memory.Save(*Window());
  EXPECT_EQ(memory.Options(), (QMap<QString, QString>()));
  EXPECT_EQ(memory.Keymap(), QString());
  EXPECT_FALSE(QFile::exists(File()));
}

}  // namespace
}  // namespace tavi
