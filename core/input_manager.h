// The core behind the exports: the host's table, the keymaps, and the routing of every event.
#ifndef CORE_INPUT_MANAGER_H_
#define CORE_INPUT_MANAGER_H_

#include <memory>

#include <QPointF>
#include <QString>
#include <QtGlobal>

class QEvent;
class QKeyEvent;
class QMouseEvent;
class QWheelEvent;

namespace tavikeymapmanager {
struct KeymapConfig;
}

namespace taviinputmanager {

struct InputManagerCallbacks;
class InputStatusManager;
class QtKeyboardMouseEventSimulateHandler;
class QtMouseEventHandler;
class RecordManager;
class WindowsWmRelativeInputEventHandler;

constexpr int kMacroJoystickDevice = 999;  // the gamepad whose buttons macros press

// Main thread only. Owns both keymaps, and destroys each before its successor is read.
class InputManager {
 public:
  static InputManager* GetInstance() {
    static InputManager instance;
    return &instance;
  }

  void Initialize(InputManagerCallbacks* callbacks);
  void OnLoadKeymapConfigAndInfo(const QString& path, const QString& package, const QString& extra, int display);
  void OnLoadJoystickConfigAndInfo(const QString& path);
  bool HasKeymapConfig() const { return keymap_config_ != nullptr; }

  // ---- The ways of events ----
  void OnQtInputEvent(QEvent* event);
  void OnJoystickEvent(QEvent* event);
  void OnWindowsWmRelativeInputEvent(int dx, int dy);
  // Window pixels.
  void UpdateMousePosition(int x, int y);

  // ---- Input made inside the library, as if from the host ----
  // A key or button by its code; `id` is the virtual pointer, 0 the real mouse; `point` in window pixels. Does nothing
  // for a device other than "keyboard" and "mouse".
  void DispatchVirtualEvent(const QString& device, qint64 id, int code, bool press, const QPointF& point);
  // A wheel movement of `delta` eighths of a degree at `point`. Does nothing unless `device` is "mouse" and `code` is a
  // wheel direction.
  void DispatchVirtualWheel(const QString& device, int delta, int code, const QPointF& point);
  // Does nothing unless `device` is "joystick".
  void DispatchVirtualJoystickButton(const QString& device, const QString& text, bool press);
  // Presses the keymap's staring key, if that enters or leaves view control.
  void SwitchStaring(bool enter);
  // Types `text` as an input method would.
  void InjectText(const QString& text);

  // Whether the keymap contains an item of this type.
  bool isConfigHasSpeicalTypeKey(const QString& type) const;

  InputManagerCallbacks* GetCallbacks() const { return callbacks_; }

  // Whether a package belongs to the system, whose apps have a keymap of their own.
  static bool IsOwnPackage(const QString& package);

 private:
  InputManager();
  ~InputManager();

  void RouteOther(QEvent* event);  // neither key nor mouse
  void RouteKey(QKeyEvent* event);
  void RouteMouseButton(QMouseEvent* event);
  void RouteMouseMove(QMouseEvent* event);
  void RouteWheel(QWheelEvent* event);
  QtMouseEventHandler* SelectMouseHandler(const QMouseEvent* event) const;
  QtMouseEventHandler* SelectMoveHandler(QMouseEvent* event) const;
  bool IsForcedTransparent() const;
  void DispatchVirtualMouse(qint64 id, int code, bool press, const QPointF& point);
  void DispatchWheelAt(const QPointF& point, int delta);

  // The singletons that handle most events.
  InputStatusManager* const status_;
  RecordManager* const recorder_;
  QtKeyboardMouseEventSimulateHandler* const simulate_;
  WindowsWmRelativeInputEventHandler* const relative_;

  InputManagerCallbacks* callbacks_ = nullptr;  // owned by the host
  std::unique_ptr<tavikeymapmanager::KeymapConfig> keymap_config_;
  std::unique_ptr<tavikeymapmanager::KeymapConfig> joystick_config_;
  qint64 last_mouse_move_ms_;  // since the epoch; time of the last move that was not dropped
};

}  // namespace taviinputmanager

#endif  // CORE_INPUT_MANAGER_H_
