// The recent paths of contacts, for drawing.
#ifndef HOST_WINDOW_VIEW_CONTACT_TRAILS_H_
#define HOST_WINDOW_VIEW_CONTACT_TRAILS_H_

#include <QMap>
#include <QPoint>
#include <QVector>

namespace tavi {

struct GuestContact;

// A point of a trail, from the guest's state.
struct TrailPoint {
  QPoint point;   // touch coordinates
  qint64 ms = 0;  // when the contact arrived there
};

// One contact from press to release.
struct ContactTrail {
  int slot = 0;
  QVector<TrailPoint> points;  // in order of time, never empty
  qint64 lifted_ms = -1;       // -1: still down
};

// Main thread. Times are milliseconds of any monotonic clock.
class ContactTrails {
 public:
  static constexpr int kFadeMs = 700;  // after which a point has faded completely

  // The contacts that are down now; those that were down before and are not in it have been released.
  void Update(const QMap<int, GuestContact>& contacts, qint64 now_ms);
  // Drops the points that have faded completely. Returns whether any points are still fading.
  bool Prune(qint64 now_ms);

  // Released contacts first, then those that are down, by slot.
  const QVector<ContactTrail>& Lifted() const { return lifted_; }
  const QMap<int, ContactTrail>& Down() const { return down_; }

 private:
  void Append(int slot, const QPoint& point, qint64 now_ms);

  QMap<int, ContactTrail> down_;  // by slot
  QVector<ContactTrail> lifted_;  // in order of release
};

}  // namespace tavi

#endif  // HOST_WINDOW_VIEW_CONTACT_TRAILS_H_
