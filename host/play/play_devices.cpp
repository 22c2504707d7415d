#include "host/play/play_devices.h"

#include <utility>

#include "host/play/device_notifier.h"

namespace tavi {

namespace {

constexpr int kRetryMs = 500;  // interval for a device that another program has grabbed

QString Quoted(const DeviceTraits& traits) { return QStringLiteral("\"%1\" (%2)").arg(traits.name, traits.path); }

}  // namespace

PlayDevices::PlayDevices(DeviceSource* source, const QStringList& wanted, QObject* parent)
    : QObject(parent), source_(source), wanted_(wanted) {
  retrying_.setInterval(kRetryMs);
  connect(&retrying_, &QTimer::timeout, this, &PlayDevices::Retry);
}

PlayDevices::~PlayDevices() = default;

std::vector<PlayDevices::Listed> PlayDevices::List(DeviceSource* source, const QStringList& wanted) {
  std::vector<Listed> list;
  for (const QString& path : source->Paths()) {
    Listed entry;
    const auto device = source->Open(path, &entry.problem);
    if (device) {
      entry.traits = device->Traits();
      entry.refusal = WhyNotTaken(entry.traits, wanted);
    }
    entry.traits.path = path;
    list.push_back(entry);
  }
  return list;
}

void PlayDevices::Start() {
  source_->Watch([this] { Look(); });  // before the scan, so that no device is missed
  Look();
}

void PlayDevices::SetGrabWanted(bool wanted) {
  is_grab_wanted_ = wanted;
  for (auto& [path, device] : devices_) {
    device.is_refusal_told = false;
    device.grab->SetWanted(wanted);
    TellRefusal(&device);
  }
  Q_EMIT Changed();
}

int PlayDevices::CountOf(DeviceKind kind) const {
  int count = 0;
  for (const auto& [path, device] : devices_) count += KindOf(device.device->Traits()) == kind ? 1 : 0;
  return count;
}

int PlayDevices::CountOf(DeviceGrab::State state) const {
  int count = 0;
  for (const auto& [path, device] : devices_) count += device.grab->GetState() == state ? 1 : 0;
  return count;
}

// The path may since belong to another device.
void PlayDevices::Look() {
  const QStringList paths = source_->Paths();
  const QSet<QString> there(paths.begin(), paths.end());
  passed_over_.intersect(there);
  QStringList gone;
  for (const auto& [path, device] : devices_) {
    if (!there.contains(path)) gone += path;
  }
  for (const QString& path : std::as_const(gone)) Remove(path);
  for (const QString& path : paths) {
    if (devices_.count(path) == 0 && !passed_over_.contains(path)) TryToTake(path);
  }
}

// A device that cannot be opened is retried at the next change: udev sets the permissions of a new device after a
// moment.
void PlayDevices::TryToTake(const QString& path) {
  QString problem;
  std::unique_ptr<PhysicalDevice> device = source_->Open(path, &problem);
  TellOnce(path, problem);
  if (!device) return;
  if (WhyNotTaken(device->Traits(), wanted_).isEmpty()) return Take(std::move(device));
  passed_over_ += path;
}

void PlayDevices::TellOnce(const QString& path, const QString& problem) {
  if (problem == std::exchange(told_[path], problem) || problem.isEmpty()) return;
  Q_EMIT Told(QStringLiteral("%1 cannot be read: %2").arg(path, problem));
}

void PlayDevices::Take(std::unique_ptr<PhysicalDevice> device) {
  const DeviceTraits traits = device->Traits();
  Device entry{next_id_++, std::move(device), nullptr, nullptr};
  entry.grab = std::make_unique<DeviceGrab>(entry.device.get());
  if (entry.device->File() >= 0) {
    entry.notifier = std::make_unique<DeviceNotifier>(this, entry.device->File(), traits.path);
  }
  Device* taken = &devices_.emplace(traits.path, std::move(entry)).first->second;
  Q_EMIT Told(QStringLiteral("%1 %2").arg(WordOf(KindOf(traits)), Quoted(traits)));
  taken->grab->SetWanted(is_grab_wanted_);
  TellRefusal(taken);
  Q_EMIT Changed();
}

// The reader of a frame may cause another device to be released, but must not remove one.
void PlayDevices::Read(const QString& path) {
  const auto found = devices_.find(path);
  if (found == devices_.end()) return;
  Device* device = &found->second;
  const bool is_there = device->device->Read([this, device](const InputFrame& frame) {
    if (taker_) taker_(device->id, frame, device->grab->GetState() == DeviceGrab::State::kHeld);
  });
  if (!is_there) return Remove(path);
  if (is_grab_wanted_) UpdateGrab(device);
}

void PlayDevices::Remove(const QString& path) {
  auto node = devices_.extract(path);
  if (node.empty()) return;
  const Device& device = node.mapped();
  if (device.notifier) device.notifier->setEnabled(false);
  Q_EMIT Gone(device.id);
  Q_EMIT Told(QStringLiteral("%1 was disconnected").arg(Quoted(device.device->Traits())));
  Q_EMIT Changed();
}

void PlayDevices::UpdateGrab(Device* device) {
  const DeviceGrab::State before = device->grab->GetState();
  device->grab->Update();
  TellRefusal(device);
  if (device->grab->GetState() != before) Q_EMIT Changed();
}

void PlayDevices::TellRefusal(Device* device) {
  const bool is_refused = device->grab->GetState() == DeviceGrab::State::kRefused;
  if (is_refused) retrying_.start();
  if (!is_refused || std::exchange(device->is_refusal_told, true)) return;
  Q_EMIT Told(QStringLiteral("%1 is not used: %2").arg(Quoted(device->device->Traits()), device->grab->Problem()));
}

void PlayDevices::Retry() {
  retrying_.stop();
  for (auto& [path, device] : devices_) {
    if (device.grab->GetState() == DeviceGrab::State::kRefused) UpdateGrab(&device);
  }
}

}  // namespace tavi
