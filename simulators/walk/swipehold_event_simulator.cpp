#include "simulators/walk/swipehold_event_simulator.h"

#include <algorithm>

#include "core/guest_command.h"
#include "core/input_status_manager.h"
#include "core/key_code_converter.h"
#include "simulators/walk/swipehold_async_worker.h"

namespace taviinputmanager {

namespace keywords = tavikeymapmanager::keywords;
using tavikeymapmanager::ConfigItem;
using tavikeymapmanager::ConfigKey;
using tavikeymapmanager::SwipeholdConfigItem;

namespace {

constexpr int kLeftStickIndex = 2;

SwipeholdAsyncWorker* Walk() { return SwipeholdAsyncWorker::GetInstance(0); }

int GuestCodeOf(const ConfigKey& key) { return KeyCodeConverter::GetInstance()->KeyToGuestCode(key.scancode); }

bool IsTransparent(const SwipeholdConfigItem& item) { return item.press_mode == keywords::kPressTransparent; }

void TakeKeys(SwipeholdConfigItem* item, const SwipeholdConfigItem& from) {
  item->key_left = from.key_left;
  item->key_right = from.key_right;
  item->key_down = from.key_down;
  item->key_up = from.key_up;
}

}  // namespace

SwipeholdEventSimulator* SwipeholdEventSimulator::GetInstance() {
  static SwipeholdEventSimulator instance;
  return &instance;
}

SwipeholdEventSimulator::SwipeholdEventSimulator() = default;

SwipeholdEventSimulator::~SwipeholdEventSimulator() = default;

void SwipeholdEventSimulator::FollowWalk() {
  static bool is_following = false;
  if (is_following) return;
  is_following = true;
  SwipeholdEventSimulator* simulator = GetInstance();
  connect(Walk(), &SwipeholdAsyncWorker::sigSwipeholdTargetPointChanged, simulator,
          [simulator](QPointF& point) { Q_EMIT simulator->sigSwipeholdTargetPointChanged(point); });
}

const SwipeholdConfigItem* SwipeholdEventSimulator::Enter(const ConfigItem* item) {
  const auto* walk = dynamic_cast<const SwipeholdConfigItem*>(item);
  if (!walk) return nullptr;
  Walk()->SetItem(walk);
  AddWorker(Walk(), walk);
  for (Entry& entry : workers_) {
    if (entry.worker == Walk()) continue;
    TakeKeys(&entry.item, *walk);
    entry.worker->SetItem(&entry.item);
  }
  return walk;
}

void SwipeholdEventSimulator::Press(ConfigItem* item, ConfigKey* key) {
  FollowWalk();
  const SwipeholdConfigItem* walk = Enter(item);
  if (!walk) return;  // not four keys
  if (IsTransparent(*walk)) {
    const int code = GuestCodeOf(*key);
    InputStatusManager::GetInstance()->AddHeldKey(code);
    return SendEvent(guest_command::KeyPress(code));
  }
  Forward(&SwipeholdAsyncWorker::Press, key);
}

void SwipeholdEventSimulator::Release(ConfigItem* item, ConfigKey* key) {
  const SwipeholdConfigItem* walk = Enter(item);
  if (!walk) return;  // not four keys
  if (IsTransparent(*walk)) {
    const int code = GuestCodeOf(*key);
    InputStatusManager::GetInstance()->RemoveHeldKey(code);
    return SendEvent(guest_command::KeyRelease(code));
  }
  Forward(&SwipeholdAsyncWorker::Release, key);
}

void SwipeholdEventSimulator::Forward(KeyOperation operation, ConfigKey* key) {
  // By index: the lines and signals of a walk may cause other workers to enter or leave.
  for (size_t i = 0; i < workers_.size(); ++i) {
    Entry& entry = workers_[i];
    if (exclusive_inner_ && entry.worker == Walk()) continue;
    if (!IsTransparent(entry.item)) (entry.worker->*operation)(&entry.item, key);
  }
}

void SwipeholdEventSimulator::Reset() {
  Walk()->ClearPath();
  Walk()->SetRadiusFactor(1.0);
}

void SwipeholdEventSimulator::SetRadiusFactor(double factor) { Walk()->SetRadiusFactor(factor); }

void SwipeholdEventSimulator::AddWorker(SwipeholdAsyncWorker* worker, const SwipeholdConfigItem* item) {
  if (!item) return;
  for (Entry& entry : workers_) {
    if (entry.worker != worker) continue;
    entry.item = *item;
    return;
  }
  const auto at = std::find_if(workers_.begin(), workers_.end(),
                               [worker](const Entry& entry) { return entry.worker->GetIndex() > worker->GetIndex(); });
  workers_.insert(at, Entry{worker, *item});
}

void SwipeholdEventSimulator::RemoveWorker(SwipeholdAsyncWorker* worker) {
  workers_.erase(
      std::remove_if(workers_.begin(), workers_.end(), [worker](const Entry& entry) { return entry.worker == worker; }),
      workers_.end());
}

void SwipeholdEventSimulator::EntrustToInner() {
  const QPoint directions = Walk()->GetDirections();
  for (size_t i = 0; i < workers_.size(); ++i) {  // by index, as above
    SwipeholdAsyncWorker* worker = workers_[i].worker;
    if (worker != Walk()) worker->ReplayDirections(directions);
  }
  if (exclusive_inner_) Walk()->StopAndRelease();
}

void SwipeholdEventSimulator::CancelEntrustToInner() {
  const auto inner =
      std::find_if(workers_.begin(), workers_.end(), [](const Entry& entry) { return entry.worker != Walk(); });
  if (inner == workers_.end()) return;
  SwipeholdAsyncWorker* worker = inner->worker;
  Walk()->ReplayDirections(worker->GetDirections());
  worker->StopAndRelease();
}

void SwipeholdEventSimulator::QueryPoint(const std::function<void(QPointF)>& callback) {
  FollowWalk();
  callback(Walk()->GetCurrentPoint());
}

void SwipeholdEventSimulator::QueryVirtualPoint(const std::function<void(QPointF)>& callback) {
  FollowWalk();
  callback(SwipeholdAsyncWorker::GetInstance(VirtualStickIndex())->GetCurrentPoint());
}

int SwipeholdEventSimulator::VirtualStickIndex() const { return kLeftStickIndex; }

}  // namespace taviinputmanager
