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
  events_.Begin();
  switch (event->type()) {
    case QEvent::TouchBegin: return Begin(qt::PointsOf(*event));
    case QEvent::TouchUpdate: return Update(qt::PointsOf(*event));
    default: return ReleaseExcept({});
  }
}

void MultPointSyncWorker::Begin(const QList<qt::TouchPoint>& points) {
  const unsigned turn = events_.Current();
  touches_.clear();
  for (const qt::TouchPoint& point : points) {
    Press(point, MultPointSlotManager::GetInstance()->Allocate(qt::PlaceOf(point)));
    if (events_.IsOver(turn)) return;
  }
}

void MultPointSyncWorker::Update(const QList<qt::TouchPoint>& points) {
  const unsigned turn = events_.Current();
  QSet<int> present;
  for (const qt::TouchPoint& point : points) present.insert(point.id());
  ReleaseExcept(present);
  for (const qt::TouchPoint& point : points) {
    if (events_.IsOver(turn)) return;
    Press(point, SlotFor(point));
  }
}

int MultPointSyncWorker::SlotFor(const qt::TouchPoint& point) {
  MultPointSlotManager* pool = MultPointSlotManager::GetInstance();
  const auto known = touches_.constFind(point.id());
  if (known == touches_.constEnd()) return pool->Allocate(qt::PlaceOf(point));
  pool->SetPoint(known.value(), qt::PlaceOf(point));
  return known.value();
}

void MultPointSyncWorker::ReleaseExcept(const QSet<int>& kept) {
  const unsigned turn = events_.Current();
  for (auto touch = touches_.begin(); touch != touches_.end();) {
    const int id = touch.key();
    if (kept.contains(id)) {
      ++touch;
      continue;
    }
    const int slot = touches_.take(id);
    MultPointSlotManager::GetInstance()->Free(slot);
    SendEvent(guest_command::SlotMultiRelease({slot}));
    if (events_.IsOver(turn)) return;
    touch = touches_.upperBound(id);
  }
}

void MultPointSyncWorker::Press(const qt::TouchPoint& point, int slot) {
  if (slot == SlotManager::kNoSlot) return;  // every slot of the guest is taken
  const unsigned turn = events_.Current();
  touches_.insert(point.id(), slot);
  const QPointF place = qt::PlaceOf(point);
  int x = Truncate(place.x());
  int y = Truncate(place.y());
  DisplayGeometry::GetInstance()->WindowToTouch(x, y);
  if (x == kNoPosition || y == kNoPosition || events_.IsOver(turn)) return;
  SendEvent(guest_command::SlotMultiPress({{slot, x, y}}));
}

}  // namespace taviinputmanager
