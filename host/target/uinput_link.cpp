#include "host/target/uinput_link.h"

#include <memory>
#include <string>
#include <thread>

#include "guest/uinput_guest.h"
#include "host/target/target_link.h"

namespace tavi {

namespace {

// Kernel devices, which accept every line at once.
//
// Making them takes 0.3 s, which a thread of its own waits for; until then, nothing else touches the guest.
class UinputLink : public TargetLink {
 public:
  explicit UinputLink(const QSize& surface) : guest_(OptionsOf(surface)) {}
  ~UinputLink() override {
    if (opening_.joinable()) opening_.join();
  }

  void Open() override {
    opening_ = std::thread([this] {
      const std::string problem = guest_.Open();
      QMetaObject::invokeMethod(this, [this, problem] { TakeOpened(QString::fromStdString(problem)); });
    });
  }

  void Write(const QByteArray& line) override {
    const std::string problem = guest_.TakeLine({line.constData(), static_cast<std::size_t>(line.size())});
    if (!problem.empty()) Q_EMIT Said(QString::fromStdString(problem).trimmed());
  }
  bool HasRoom() const override { return is_open_; }
  qint64 WaitingBytes() const override { return 0; }
  bool WaitForRoom(int /*limit_ms*/) override { return is_open_; }

  // The devices are destroyed with this object.
  void Finish(int /*limit_ms*/) override {
    if (is_open_) guest_.LiftAll();
    Q_EMIT Ended(QString());
  }
  void WaitForEnd(int /*limit_ms*/) override {}

 private:
  static taviguest::GuestOptions OptionsOf(const QSize& surface) {
    taviguest::GuestOptions options;
    options.surface = {surface.width(), surface.height()};
    options.has_gamepad = true;  // made later, it would delay the line that needs it
    return options;
  }

  void TakeOpened(const QString& problem) {
    opening_.join();
    if (!problem.isEmpty()) {
      Q_EMIT Ended(problem);
      return;
    }
    is_open_ = true;
    Q_EMIT Connected();
  }

  taviguest::UinputGuest guest_;
  std::thread opening_;
  bool is_open_ = false;
};

}  // namespace

QString UinputLinkProblem() { return {}; }

std::unique_ptr<TargetLink> MakeUinputLink(const QSize& surface) { return std::make_unique<UinputLink>(surface); }

}  // namespace tavi
