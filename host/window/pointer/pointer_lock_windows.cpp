#include <windows.h>
#include <utility>

#include <QAbstractNativeEventFilter>
#include <QCoreApplication>
#include <QPointer>
#include <QWidget>

#include "host/window/pointer/pointer_lock.h"
#include "qt/native_events.h"

namespace tavi {

namespace {

constexpr USHORT kGenericDesktop = 0x01;  // usage pages and usages of USB
constexpr USHORT kMouse = 0x02;

bool SetRawMotion(DWORD flags, HWND window) {
  const RAWINPUTDEVICE mouse = {kGenericDesktop, kMouse, flags, window};
  return RegisterRawInputDevices(&mouse, 1, sizeof mouse) != FALSE;
}

// (0, 0) for input that is not relative movement: tablets and remote desktops report positions.
QPoint WayOf(HRAWINPUT handle) {
  RAWINPUT input;
  UINT size = sizeof input;
  if (GetRawInputData(handle, RID_INPUT, &input, &size, sizeof(RAWINPUTHEADER)) == static_cast<UINT>(-1)) return {};
  if (input.header.dwType != RIM_TYPEMOUSE || (input.data.mouse.usFlags & MOUSE_MOVE_ABSOLUTE)) return {};
  return {static_cast<int>(input.data.mouse.lLastX), static_cast<int>(input.data.mouse.lLastY)};
}

// Raw input, and a cursor that is clipped to one pixel. Windows drops the clip on many occasions, for example when a
// window moves, so each movement sets it again. Buttons and the wheel arrive as usual.
class WindowsPointerLock : public PointerLock, private QAbstractNativeEventFilter {
 public:
  ~WindowsPointerLock() override { WindowsPointerLock::Release(); }

  Outcome Hold(QWidget* view, WaySink sink) override {
    view_ = view;
    if (!SetRawMotion(0, Window())) {
      return {Result::kImpossible,
              QStringLiteral("Windows does not report how the mouse moves, so view control does not work.")};
    }
    if (!Clip()) {
      SetRawMotion(RIDEV_REMOVE, nullptr);
      return {Result::kBusy,
              QStringLiteral("Another program holds the mouse. View control begins when it releases it.")};
    }
    sink_ = std::move(sink);
    is_held_ = true;
    QCoreApplication::instance()->installNativeEventFilter(this);
    return {};
  }

  void Release() override {
    if (!std::exchange(is_held_, false)) return;
    QCoreApplication::instance()->removeNativeEventFilter(this);
    SetRawMotion(RIDEV_REMOVE, nullptr);
    ClipCursor(nullptr);
  }

 private:
  HWND Window() const { return reinterpret_cast<HWND>(view_->window()->winId()); }

  bool Clip() const {
    const QPoint middle = MiddleInWindow(*view_);
    POINT corner = {middle.x(), middle.y()};
    ClientToScreen(Window(), &corner);
    const RECT pixel = {corner.x, corner.y, corner.x + 1, corner.y + 1};
    return ClipCursor(&pixel) != FALSE;
  }

  // Each message arrives once with this type, from its window's procedure.
  bool nativeEventFilter(const QByteArray& type, void* message, qt::NativeResult* /*result*/) override {
    if (type != "windows_generic_MSG") return false;
    const MSG& told = *static_cast<const MSG*>(message);
    if (told.message != WM_INPUT) return false;
    const QPoint way = WayOf(reinterpret_cast<HRAWINPUT>(told.lParam));
    if (way.isNull()) return false;
    Clip();
    sink_(way);
    return false;  // the system frees the data of the message
  }

  QPointer<QWidget> view_;
  WaySink sink_;
  bool is_held_ = false;
};

}  // namespace

std::unique_ptr<PointerLock> MakeNativePointerLock(const QString& platform) {
  return platform == QLatin1String("windows") ? std::make_unique<WindowsPointerLock>() : nullptr;
}

}  // namespace tavi
