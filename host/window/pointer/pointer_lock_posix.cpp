#include <optional>
#include <utility>

#include <QAbstractNativeEventFilter>
#include <QApplication>
#include <QPointer>
#include <QWheelEvent>
#include <QWidget>

#include "host/window/pointer/pointer_lock.h"
#include "host/window/pointer/x11_raw_motion.h"
#include "host/window/pointer/x11_reply.h"
#include "qt/native_events.h"
#include "qt/x11_connection.h"

namespace tavi {

namespace {

// Core X11 reports wheel notches as clicks of these buttons.
constexpr xcb_button_t kWheelUp = 4;
constexpr xcb_button_t kWheelRight = 7;
constexpr QPoint kNotches[] = {{0, 1}, {0, -1}, {1, 0}, {-1, 0}};  // up, down, left, right
constexpr uint16_t kButtonEvents = XCB_EVENT_MASK_BUTTON_PRESS | XCB_EVENT_MASK_BUTTON_RELEASE;

// An invisible window of one pixel, to which a grab confines the pointer. A window stays where it is when its parent
// moves, and so does the pointer.
class X11Pin {
 public:
  X11Pin(xcb_connection_t* connection, xcb_window_t parent)
      : connection_(connection), window_(xcb_generate_id(connection)) {
    xcb_create_window(connection_, 0, window_, parent, 0, 0, 1, 1, 0, XCB_WINDOW_CLASS_INPUT_ONLY, XCB_COPY_FROM_PARENT,
                      0, nullptr);
    xcb_map_window(connection_, window_);
  }
  ~X11Pin() { xcb_destroy_window(connection_, window_); }
  X11Pin(const X11Pin&) = delete;
  X11Pin& operator=(const X11Pin&) = delete;

  xcb_window_t Window() const { return window_; }
  void MoveTo(const QPoint& place) {
    if (place == std::exchange(place_, place)) return;
    const int32_t corner[] = {place.x(), place.y()};
    xcb_configure_window(connection_, window_, XCB_CONFIG_WINDOW_X | XCB_CONFIG_WINDOW_Y, corner);
  }

 private:
  xcb_connection_t* connection_;
  xcb_window_t window_;
  QPoint place_;
};

// A pixel without content.
class X11BlankCursor {
 public:
  explicit X11BlankCursor(xcb_connection_t* connection, xcb_window_t root)
      : connection_(connection), cursor_(xcb_generate_id(connection)) {
    const xcb_pixmap_t pixmap = xcb_generate_id(connection_);
    const xcb_gcontext_t clear = xcb_generate_id(connection_);
    const xcb_rectangle_t pixel = {0, 0, 1, 1};
    const uint32_t nothing = 0;
    xcb_create_pixmap(connection_, 1, pixmap, root, 1, 1);
    xcb_create_gc(connection_, clear, pixmap, XCB_GC_FOREGROUND, &nothing);
    xcb_poly_fill_rectangle(connection_, pixmap, clear, 1, &pixel);
    xcb_create_cursor(connection_, cursor_, pixmap, pixmap, 0, 0, 0, 0, 0, 0, 0, 0);
    xcb_free_gc(connection_, clear);
    xcb_free_pixmap(connection_, pixmap);
  }
  ~X11BlankCursor() { xcb_free_cursor(connection_, cursor_); }
  X11BlankCursor(const X11BlankCursor&) = delete;
  X11BlankCursor& operator=(const X11BlankCursor&) = delete;

  xcb_cursor_t Id() const { return cursor_; }

 private:
  xcb_connection_t* connection_;
  xcb_cursor_t cursor_;
};

// A pointer grab for the view's window, and the raw motion of the mice.
//
// The grab receives every pointer event, whatever is under the pointer, and Qt passes buttons to the view. Qt expects
// the wheel as XInput events, which do not arrive during such a grab.
class X11PointerLock : public PointerLock, private QAbstractNativeEventFilter {
 public:
  X11PointerLock() : connection_(qt::X11Connection()), root_(qt::X11RootWindow()), motion_(connection_, root_) {}
  ~X11PointerLock() override { X11PointerLock::Release(); }

  Outcome Hold(QWidget* view, WaySink sink) override {
    const QString problem = motion_.Start();
    if (!problem.isEmpty()) return {Result::kImpossible, problem};
    view_ = view;
    sink_ = std::move(sink);
    pin_.emplace(connection_, view->window()->winId());
    pin_->MoveTo(MiddleInWindow(*view));
    const uint8_t status = Grab();
    if (status != XCB_GRAB_STATUS_SUCCESS) return GiveUp(status);
    QCoreApplication::instance()->installNativeEventFilter(this);
    return {};
  }

  void Release() override {
    if (!pin_) return;
    QCoreApplication::instance()->removeNativeEventFilter(this);
    xcb_ungrab_pointer(connection_, XCB_CURRENT_TIME);
    End();
  }

 private:
  // While a button is down, Qt already has a grab, of a kind that excludes all others.
  void EndGrabOfButton() {
    const X11Reply<xcb_input_xi_get_client_pointer_reply_t> pointer(xcb_input_xi_get_client_pointer_reply(
        connection_, xcb_input_xi_get_client_pointer(connection_, XCB_NONE), nullptr));
    if (pointer) xcb_input_xi_ungrab_device(connection_, XCB_CURRENT_TIME, pointer->deviceid);
  }

  uint8_t Grab() {
    EndGrabOfButton();
    const X11BlankCursor cursor(connection_, root_);
    const auto request = xcb_grab_pointer(connection_, 0, view_->window()->winId(), kButtonEvents, XCB_GRAB_MODE_ASYNC,
                                          XCB_GRAB_MODE_ASYNC, pin_->Window(), cursor.Id(), XCB_CURRENT_TIME);
    const X11Reply<xcb_grab_pointer_reply_t> reply(xcb_grab_pointer_reply(connection_, request, nullptr));
    return reply ? reply->status : static_cast<uint8_t>(XCB_GRAB_STATUS_NOT_VIEWABLE);
  }

  Outcome GiveUp(uint8_t status) {
    End();
    if (status == XCB_GRAB_STATUS_NOT_VIEWABLE) {
      return {Result::kBusy, QStringLiteral("View control begins once the window is on the screen.")};
    }
    return {Result::kBusy, QStringLiteral("Another program holds the mouse. View control begins when it releases it.")};
  }

  void End() {
    motion_.Stop();
    pin_.reset();
    xcb_flush(connection_);
  }

  bool nativeEventFilter(const QByteArray& /*type*/, void* message, qt::NativeResult* /*result*/) override {
    const auto& event = *static_cast<const xcb_generic_event_t*>(message);
    if ((event.response_type & ~0x80) == XCB_BUTTON_PRESS) {
      return TakeButton(reinterpret_cast<const xcb_button_press_event_t&>(event));
    }
    const QPointF way = motion_.TakeEvent(event);
    if (way.isNull()) return false;
    pin_->MoveTo(MiddleInWindow(*view_));
    sink_(way);
    return true;
  }

  bool TakeButton(const xcb_button_press_event_t& event) {
    if (event.detail < kWheelUp || event.detail > kWheelRight) return false;
    const QPoint middle = view_->rect().center();
    QWheelEvent turn(middle, view_->mapToGlobal(middle), QPoint(),
                     kNotches[event.detail - kWheelUp] * QWheelEvent::DefaultDeltasPerStep,
                     QApplication::mouseButtons(), QApplication::keyboardModifiers(), Qt::NoScrollPhase, false);
    turn.setTimestamp(event.time);
    QCoreApplication::sendEvent(view_, &turn);
    return true;
  }

  xcb_connection_t* connection_;
  xcb_window_t root_;
  X11RawMotion motion_;
  QPointer<QWidget> view_;
  WaySink sink_;
  std::optional<X11Pin> pin_;  // while it holds
};

}  // namespace

std::unique_ptr<PointerLock> MakeNativePointerLock(const QString& platform) {
  return platform == QLatin1String("xcb") ? std::make_unique<X11PointerLock>() : nullptr;
}

}  // namespace tavi
