#include "host/window/view/contact_trails.h"

#include <algorithm>

#include "host/guest/guest_model.h"

namespace tavi {

namespace {

// Keeps the last point: a contact at rest is there.
void PruneDown(ContactTrail* trail, qint64 oldest_ms) {
  const auto is_old = [oldest_ms](const TrailPoint& point) { return point.ms < oldest_ms; };
  const auto last = trail->points.end() - 1;
  trail->points.erase(trail->points.begin(), std::find_if_not(trail->points.begin(), last, is_old));
}

}  // namespace

void ContactTrails::Update(const QMap<int, GuestContact>& contacts, qint64 now_ms) {
  for (auto it = down_.begin(); it != down_.end();) {
    if (contacts.contains(it.key())) {
      ++it;
      continue;
    }
    it->lifted_ms = now_ms;
    lifted_.append(*it);
    it = down_.erase(it);
  }
  for (auto it = contacts.begin(); it != contacts.end(); ++it) Append(it.key(), it->point, now_ms);
}

void ContactTrails::Append(int slot, const QPoint& point, qint64 now_ms) {
  ContactTrail& trail = down_[slot];
  trail.slot = slot;
  if (!trail.points.isEmpty() && trail.points.last().point == point) return;
  trail.points.append({point, now_ms});
}

bool ContactTrails::Prune(qint64 now_ms) {
  const qint64 oldest_ms = now_ms - kFadeMs;
  const auto is_gone = [oldest_ms](const ContactTrail& trail) { return trail.lifted_ms < oldest_ms; };
  lifted_.erase(std::remove_if(lifted_.begin(), lifted_.end(), is_gone), lifted_.end());
  bool fading = !lifted_.isEmpty();
  for (ContactTrail& trail : down_) {
    PruneDown(&trail, oldest_ms);
    fading = fading || trail.points.size() > 1;
  }
  return fading;
}

}  // namespace tavi
