// A host that loads the library dynamically, as a plugin, and unloads it before the program ends.
#include <algorithm>
#include <csignal>
#include <dlfcn.h>
#include <future>
#include <gtest/gtest.h>
#include <pthread.h>
#include <string>
#include <vector>

#include <QGuiApplication>
#include <QKeyEvent>

#include "keymap/keymap_functions.h"
#include "taviinputmanager/callbacks.h"

// The host's own, which overrides the keymap library's: unmapped keys reach the guest.
tavikeymapmanager::KeymapConfig* tavikeymapmanager::LoadKeymapConfigAndInfo(const QString& /*path*/) {
  auto* config = new KeymapConfig;
  config->settings = new KeymapSettings;
  config->settings->keyboard_transparent = true;
  return config;
}

namespace taviinputmanager {
namespace {

constexpr quint32 kF = 33;

std::vector<std::string>& Lines() {
  static std::vector<std::string> lines;
  return lines;
}

void Send(const char* data, int length) { Lines().emplace_back(data, static_cast<std::size_t>(length)); }

InputManagerCallbacks* Callbacks() {
  static InputManagerCallbacks callbacks;
  callbacks.GetWindowGeometry = [] { return WindowGeometry{0, 0, 1280, 720}; };
  callbacks.GetDisplayRect = [] { return QRect(0, 0, 1280, 720); };
  callbacks.GetTouchRect = callbacks.GetDisplayRect;
  callbacks.GetDisplayRotation = [] { return 0; };
  callbacks.IsTextInputActive = [] { return false; };
  callbacks.IsEscapeBackEnabled = [] { return true; };
  callbacks.OnInputStatusChanged = [](int, const QString&) {};
  return &callbacks;
}

// The library, loaded from its file, and its functions by their linker names.
class Library {
 public:
  Library() : handle_(dlopen(TAVI_LIBRARY, RTLD_NOW | RTLD_LOCAL)) { EXPECT_NE(handle_, nullptr) << dlerror(); }

  void Close() const { EXPECT_EQ(dlclose(handle_), 0); }

  void SetSendFunc(void (*send)(const char*, int)) const {
    Find<void (*)(void*)>("_ZN16taviinputmanager21SetInputEventSendFuncEPv")(reinterpret_cast<void*>(send));
  }
  void Initialize(InputManagerCallbacks* callbacks) const {
    Find<void (*)(InputManagerCallbacks*, int, int)>(
        "_ZN16taviinputmanager10InitializeEPNS_21InputManagerCallbacksEii")(callbacks, 0, 0);
  }
  void GiveKey(QEvent::Type type, quint32 scancode) const {
    QKeyEvent event(type, Qt::Key_unknown, Qt::NoModifier, scancode, 0, 0);
    Find<void (*)(QEvent*)>("_ZN16taviinputmanager14OnQtInputEventEP6QEvent")(&event);
  }
  void ClickBack(int display) const { Find<void (*)(int)>("_ZN16taviinputmanager12doBackActionEi")(display); }

 private:
  template <typename Function>
  Function Find(const char* name) const {
    void* const symbol = dlsym(handle_, name);
    EXPECT_NE(symbol, nullptr) << name;
    return reinterpret_cast<Function>(symbol);
  }

  void* handle_;
};

void StartUp(const Library& library) {
  library.SetSendFunc(Send);
  library.Initialize(Callbacks());
  Lines().clear();  // the lines of its first load
}

std::vector<int> BlockedSignals() {
  sigset_t mask;
  pthread_sigmask(SIG_BLOCK, nullptr, &mask);
  std::vector<int> blocked;
  for (int number = 1; number < SIGRTMIN; ++number) {
    if (sigismember(&mask, number) == 1) blocked.push_back(number);
  }
  return blocked;
}

void Unblock(int number) {
  sigset_t only;
  sigemptyset(&only);
  sigaddset(&only, number);
  pthread_sigmask(SIG_UNBLOCK, &only, nullptr);
}

TEST(LibraryLoading, AsksTheHostsOwnLoader) {
  int argc = 0;
  const QGuiApplication application(argc, nullptr);
  const Library library;
  StartUp(library);
  library.GiveKey(QEvent::KeyPress, kF);
  library.GiveKey(QEvent::KeyRelease, kF);
  EXPECT_EQ(Lines(), (std::vector<std::string>{"0:KBDPR:33:1\n", "0:KBDRL:33:0\n"}));
}

// The timer of the back key fires, and the application is destroyed, after the host has closed its handle.
TEST(LibraryLoading, StaysWhenItIsClosed) {
  int argc = 0;
  const QGuiApplication application(argc, nullptr);
  const Library library;
  StartUp(library);
  library.ClickBack(1);
  library.Close();
  void* const still_there = dlopen(TAVI_LIBRARY, RTLD_NOW | RTLD_NOLOAD);
  EXPECT_NE(still_there, nullptr);
  while (Lines().size() < 2 && still_there) QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
  EXPECT_EQ(Lines(), (std::vector<std::string>{"1:KBDPR:158:1\n", "1:KBDRL:158:0\n"}));
}

// Loading Poco blocks SIGPIPE. The header documents everything about it, including how to undo it.
TEST(LibraryLoading, BlocksSigpipeOnTheLoadingThreadAndNothingElse) {
  Unblock(SIGPIPE);
  const std::vector<int> before = BlockedSignals();
  std::promise<void> loaded;
  std::future<std::vector<int>> on_earlier_thread = std::async(std::launch::async, [&loaded] {
    loaded.get_future().wait();
    return BlockedSignals();
  });
  const Library library;
  loaded.set_value();

  std::vector<int> with_sigpipe = before;
  with_sigpipe.insert(std::upper_bound(with_sigpipe.begin(), with_sigpipe.end(), SIGPIPE), SIGPIPE);
  EXPECT_EQ(BlockedSignals(), with_sigpipe);
  EXPECT_EQ(on_earlier_thread.get(), before);

  Unblock(SIGPIPE);
  StartUp(library);
  EXPECT_EQ(BlockedSignals(), before) << "it is blocked once, at the load";
}

}  // namespace
}  // namespace taviinputmanager
