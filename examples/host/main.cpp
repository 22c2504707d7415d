// A host in forty lines: loads a keymap, clicks the key F, and prints the lines for the guest. A real host has a
// window, feeds the events of its guest view to OnQtInputEvent, and sends the lines to the guest.
#include <cstdio>
#include <taviinputmanager/taviinputmanager.h>

#include <QGuiApplication>
#include <QKeyEvent>

namespace {

namespace tavi = taviinputmanager;

void Print(const char* line, int length) { std::fwrite(line, 1, length, stdout); }

tavi::InputManagerCallbacks MakeCallbacks() {
  tavi::InputManagerCallbacks callbacks;
  callbacks.GetWindowGeometry = [] { return tavi::WindowGeometry{0, 0, 1920, 1080}; };
  callbacks.GetDisplayRect = [] { return QRect(0, 0, 1920, 1080); };
  callbacks.GetTouchRect = callbacks.GetDisplayRect;
  callbacks.GetDisplayRotation = [] { return 0; };
  callbacks.IsTextInputActive = [] { return false; };
  callbacks.IsEscapeBackEnabled = [] { return true; };
  callbacks.OnInputStatusChanged = [](int, const QString&) {};
  return callbacks;
}

void SendKey(QEvent::Type type, quint32 windows_scan_code) {
  QKeyEvent event(type, Qt::Key_unknown, Qt::NoModifier, windows_scan_code, 0, 0);
  tavi::OnQtInputEvent(&event);
}

}  // namespace

int main(int argc, char** argv) {
  const QGuiApplication application(argc, argv);
  static tavi::InputManagerCallbacks callbacks = MakeCallbacks();
  tavi::SetInputEventSendFunc(reinterpret_cast<void*>(&Print));
  tavi::SetInputTextSendFunc(reinterpret_cast<void*>(&Print));
  tavi::Initialize(&callbacks, 0, 0);
  tavi::OnLoadKeymapConfigAndInfo(QGuiApplication::arguments().value(1), "com.example.game", QString(), 1);
  SendKey(QEvent::KeyPress, 33);  // F
  SendKey(QEvent::KeyRelease, 33);
}
