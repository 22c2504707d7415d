// The window's message when view control does not get the mouse.
#include "host/window/pointer/pointer_notice.h"

#include <dlfcn.h>
#include <xcb/xinput.h>

#include <QAction>
#include <QToolButton>

#include "host/window/view/guest_display.h"
#include "host/window/view/guest_menu.h"
#include "tests/host/window/pointer/desktop_fixture.h"

namespace {

bool has_input_extension = true;

}  // namespace

// Overrides libxcb's function for the test program.
extern "C" const xcb_query_extension_reply_t* xcb_get_extension_data(xcb_connection_t* connection,
                                                                     xcb_extension_t* extension) {
  static const xcb_query_extension_reply_t nothing = {};
  if (extension == &xcb_input_id && !has_input_extension) return &nothing;
  using Function = const xcb_query_extension_reply_t* (*)(xcb_connection_t*, xcb_extension_t*);
  static const auto next = reinterpret_cast<Function>(dlsym(RTLD_NEXT, "xcb_get_extension_data"));
  return next(connection, extension);
}

namespace tavi {
namespace {

class Notice : public DesktopFixture {
 protected:
  QString Text() const { return window_->findChild<PointerNotice*>()->Text(); }
  QToolButton* Offer() const { return window_->findChild<PointerNotice*>()->findChild<QToolButton*>(); }
};

TEST_F(Notice, AnXServerOfItsOwnHasNothingToTell) {
  Load(kViewControl);
  BeginViewControl();
  EXPECT_EQ(Text(), "");
}

TEST_F(Notice, APointerThatIsTaken) {
  Load(kViewControl);
  ASSERT_TRUE(other_->GrabPointer());
  hand_->ClickKey(kGrave);
  EXPECT_TRUE(WaitFor([this] { return Text().contains("Another program holds the mouse."); }));
  EXPECT_FALSE(Offer()->isVisible());
  other_->UngrabPointer();
  EXPECT_TRUE(WaitFor([this] { return Text().isEmpty(); }));
}

// The pointer is neither hidden nor are its moves kept from other programs.
TEST_F(Notice, AServerThatTellsNoWays) {
  has_input_extension = false;
  Load(kViewControl);
  hand_->ClickKey(kGrave);
  EXPECT_TRUE(WaitFor([this] { return Text().contains("This X server has no XInput 2"); }));
  EXPECT_TRUE(hand_->SeesPointer());
  EXPECT_TRUE(other_->GrabPointer());
}

class XWaylandNotice : public Notice {
 protected:
  XWaylandNotice() { qputenv("XDG_SESSION_TYPE", "wayland"); }
};

TEST_F(XWaylandNotice, OffersFullScreen) {
  Load(kViewControl);
  EXPECT_TRUE(Text().contains("On a Wayland desktop the mouse can leave this window")) << Text().toStdString();
  ASSERT_TRUE(Offer()->isVisible());
  Offer()->click();
  EXPECT_TRUE(WaitFor([this] { return window_->isFullScreen() && Text().isEmpty(); }));

  QAction* full_screen = window_->Display()->Menu()->actions().last();
  EXPECT_TRUE(full_screen->isChecked());
  full_screen->trigger();
  EXPECT_TRUE(WaitFor([this] { return !window_->isFullScreen() && Offer()->isVisible(); }));
}

TEST_F(XWaylandNotice, NeedsAKeymapWithViewControl) {
  Load("{type: Click, key: Space, point: [0.5, 0.5]}");
  EXPECT_EQ(Text(), "");
}

}  // namespace
}  // namespace tavi
