#include "handlers/mult_point_sync_worker.h"

#include "core/display_geometry.h"
#include "core/guest_command.h"
#include "core/numbers.h"
#include "slots/mult_point_slot_manager.h"

namespace taviinputmanager {

MultPointSyncWorker* MultPointSyncWorker::GetInstance() {
  static MultPointSyncWorker instance;
  return &instance;
}

void MultPointSyncWorker::OnTouchEvent(QTouchEvent* event) {
  switch (event->type()) {
    case QEvent::TouchBegin: return Begin(event->touchPoints());
    case QEvent::TouchUpdate: return Update(event->touchPoints());
    default: return ReleaseExcept({});
  }
}

void MultPointSyncWorker::Begin(const QList<TouchPoint>& points) {
  touches_.clear();
  for (const TouchPoint& point : points) Press(point, MultPointSlotManager::GetInstance()->Allocate(point.pos()));
}

void MultPointSyncWorker::Update(const QList<TouchPoint>& points) {
  QSet<int> present;
  for (const TouchPoint& point : points) present.insert(point.id());
  ReleaseExcept(present);
  MultPointSlotManager* pool = MultPointSlotManager::GetInstance();
  for (const TouchPoint& point : points) {
    const auto known = touches_.constFind(point.id());
    if (known == touches_.constEnd()) {
      Press(point, pool->Allocate(point.pos()));
      continue;
    }
    pool->SetPoint(known.value(), point.pos());
    Press(point, known.value());
  }
}

void MultPointSyncWorker::ReleaseExcept(const QSet<int>& kept) {
  for (auto touch = touches_.begin(); touch != touches_.end();) {
    if (kept.contains(touch.key())) {
      ++touch;
      continue;
    }
    SendEvent(guest_command::SlotMultiRelease({touch.value()}));
    MultPointSlotManager::GetInstance()->Free(touch.value());
    touch = touches_.erase(touch);
  }
}

void MultPointSyncWorker::Press(const TouchPoint& point, int slot) {
  if (slot == SlotManager::kNoSlot) return;  // every finger of the guest is down
  int x = Truncate(point.pos().x());
  int y = Truncate(point.pos().y());
  DisplayGeometry::GetInstance()->WindowToTouch(x, y);
  if (x != kNoPosition && y != kNoPosition) SendEvent(guest_command::SlotMultiPress({{slot, x, y}}));
  touches_.insert(point.id(), slot);
}

}  // namespace taviinputmanager
