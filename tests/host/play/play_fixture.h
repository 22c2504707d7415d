// A player on virtual time: devices that tests operate, and the lines that a guest would get, with their times.
#ifndef TESTS_HOST_PLAY_PLAY_FIXTURE_H_
#define TESTS_HOST_PLAY_PLAY_FIXTURE_H_

#include <gtest/gtest.h>
#include <linux/input.h>
#include <map>
#include <memory>
#include <set>
#include <string>
#include <utility>
#include <vector>

#include <QCursor>
#include <QFile>
#include <QGuiApplication>
#include <QTemporaryDir>

#include "host/play/play_session.h"
#include "host/session/live_host.h"
#include "host/simulation/virtual_event_dispatcher.h"
#include "tests/support/application_object.h"

namespace tavi {

// The actions of a hand on a device, and those of a program.
struct Toy {
  DeviceTraits traits;
  std::vector<InputFrame> frames;  // not read yet
  std::set<int> down;              // keys, by the kernel's codes
  bool is_gone = false;
  bool is_grabbed = false;
  QString refusal;                   // of a grab
  int grabs = 0;                     // grabbed
  std::set<int> down_behind_a_look;  // pressed between a check and the grab
};

class ToyDevice : public PhysicalDevice {
 public:
  explicit ToyDevice(std::shared_ptr<Toy> toy) : toy_(std::move(toy)) {}
  ~ToyDevice() override { toy_->is_grabbed = false; }
  ToyDevice(const ToyDevice&) = delete;
  ToyDevice& operator=(const ToyDevice&) = delete;

  const DeviceTraits& Traits() const override { return toy_->traits; }
  int File() const override { return -1; }
  bool Read(const FrameTaker& take) override {
    for (const InputFrame& frame : std::exchange(toy_->frames, {})) take(frame);
    return !toy_->is_gone;
  }
  bool IsAnyKeyDown() const override { return !toy_->down.empty(); }
  QString Grab() override {
    if (!toy_->refusal.isEmpty()) return toy_->refusal;
    ++toy_->grabs;
    toy_->is_grabbed = true;
    toy_->down.merge(toy_->down_behind_a_look);
    return {};
  }
  void Ungrab() override { toy_->is_grabbed = false; }

 private:
  std::shared_ptr<Toy> toy_;
};

class ToyBox : public DeviceSource {
 public:
  QStringList Paths() const override {
    QStringList paths;
    for (const auto& [path, toy] : toys) paths += path;
    return paths;
  }
  std::unique_ptr<PhysicalDevice> Open(const QString& path, QString* problem) override {
    const auto toy = toys.find(path);
    if (toy != toys.end() && locked.count(path) == 0) return std::make_unique<ToyDevice>(toy->second);
    *problem = QStringLiteral("Permission denied");
    return nullptr;
  }
  void Watch(std::function<void()> changed) override { watcher = std::move(changed); }

  std::shared_ptr<Toy> Add(const QString& path, const QString& name, DeviceKind kind) {
    auto toy = std::make_shared<Toy>();
    toy->traits.path = path;
    toy->traits.name = name;
    toy->traits.has_letters = kind == DeviceKind::kKeyboard;
    toy->traits.has_motion = toy->traits.has_mouse_buttons = kind == DeviceKind::kMouse;
    toy->traits.has_gamepad_buttons = kind == DeviceKind::kGamepad;
    toys[path] = toy;
    if (watcher) watcher();
    return toy;
  }
  void Remove(const QString& path) {
    toys[path]->is_gone = true;
    toys.erase(path);
    watcher();
  }

  std::map<QString, std::shared_ptr<Toy>> toys;
  std::set<QString> locked;  // paths that must not be opened
  std::function<void()> watcher;
};

// A guest that records its input.
class Notebook : public GuestOutlet {
 public:
  explicit Notebook(VirtualEventDispatcher* clock) : clock_(clock) {}

  QString Open(const QSize& surface) override {
    sizes.push_back(surface);
    return problem;
  }
  void Send(const char* data, int length) override {
    const qint64 ms = clock_->NowMs() - start_ms_;
    lines_.push_back(std::to_string(ms) + "ms " + std::string(data, static_cast<std::size_t>(length) - 1));
  }
  void LiftAll() override { ++lifts; }
  void Close() override { is_closed = true; }
  QString State() const override { return {}; }

  // What came since the last call, with times relative to it.
  std::vector<std::string> Take() {
    start_ms_ = clock_->NowMs();
    return std::exchange(lines_, {});
  }

  std::vector<QSize> sizes;
  QString problem;
  int lifts = 0;
  bool is_closed = false;

 private:
  VirtualEventDispatcher* clock_;
  qint64 start_ms_ = 0;
  std::vector<std::string> lines_;
};

using Lines = std::vector<std::string>;

class PlayFixture : public testing::Test {
 protected:
  PlayFixture() : clock_(InstallClock()), guest_(clock_) {
    clock_->SetPointer(QCursor::pos());
    keyboard_ = box_.Add(kKeyboard, "Board", DeviceKind::kKeyboard);
    mouse_ = box_.Add(kMouse, "Rat", DeviceKind::kMouse);
    ParseKeyCombination("F12", &settings_.pause_key);
    ParseKeyCombination("Ctrl+Alt+Backspace", &settings_.panic_key);
  }
  ~PlayFixture() override { session_.reset(); }

  // Starts to play with a keymap of these items.
  void Start(const char* items, const char* settings = "") {
    session_ = std::make_unique<PlaySession>(&box_, &guest_, settings_);
    QObject::connect(session_.get(), &PlaySession::Told, [this](const QString& text) { told_ += text; });
    QObject::connect(session_.get(), &PlaySession::StateChanged, [this](const QString& state) { states_ += state; });
    ASSERT_EQ(session_->Start(), QString());
    ASSERT_EQ(session_->LoadKeymap(Write("keymap.yaml", items, settings)), QString());
    clock_->Advance(100);
    guest_.Take();
    told_.clear();
  }
  QString Write(const char* name, const char* items, const char* head = "") {
    QFile file(folder_.filePath(name));
    EXPECT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(QByteArray("format: 1\n") + head + "\nitems: [" + items + "]\n");
    return file.fileName();
  }

  // A frame of a device, and the kernel's state of its keys after it.
  void Feed(const std::shared_ptr<Toy>& toy, const InputFrame& frame) {
    for (const DeviceEvent& event : frame) {
      if (event.type != EV_KEY) continue;
      if (event.value == 0) toy->down.erase(event.code);
      if (event.value == 1) toy->down.insert(event.code);
    }
    toy->frames.push_back(frame);
    session_->Devices()->Read(toy->traits.path);
    clock_->Settle();
  }
  void Press(int code) { Feed(keyboard_, {{EV_KEY, code, 1}}); }
  void Release(int code) { Feed(keyboard_, {{EV_KEY, code, 0}}); }
  void Click(int code) {
    Press(code);
    Release(code);
  }
  void Button(int code, bool is_down) { Feed(mouse_, {{EV_KEY, code, is_down ? 1 : 0}}); }
  // Moves less than 2 ms apart count once.
  void Move(int dx, int dy) {
    clock_->Advance(5);
    Feed(mouse_, {{EV_REL, REL_X, dx}, {EV_REL, REL_Y, dy}});
  }

  // What the guest got since the last call, with times relative to it.
  Lines Sent() { return guest_.Take(); }
  std::string State() const { return session_->State().toStdString(); }

  static constexpr char kKeyboard[] = "/dev/input/event1";
  static constexpr char kMouse[] = "/dev/input/event2";

  VirtualEventDispatcher* clock_;  // owned by the application
  QTemporaryDir folder_;
  ToyBox box_;
  std::shared_ptr<Toy> keyboard_;
  std::shared_ptr<Toy> mouse_;
  PlaySettings settings_;
  QStringList told_;
  QStringList states_;

 private:
  static VirtualEventDispatcher* InstallClock() {
    auto* clock = new VirtualEventDispatcher;
    QCoreApplication::setEventDispatcher(clock);
    return clock;
  }

  ApplicationObject<QGuiApplication> application_;

 protected:
  Notebook guest_;
  std::unique_ptr<PlaySession> session_;
};

}  // namespace tavi

#endif  // TESTS_HOST_PLAY_PLAY_FIXTURE_H_
