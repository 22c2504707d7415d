// The ways that fingers went of late, for drawing.
#ifndef HOST_WINDOW_VIEW_CONTACT_TRAILS_H_
#define HOST_WINDOW_VIEW_CONTACT_TRAILS_H_

#include <QMap>
#include <QPoint>
#include <QVector>

namespace tavi {

struct GuestContact;

// A point of a trail, fresh from the guest's state.
struct TrailPoint {
  QPoint point;   // touch coordinates
  qint64 ms = 0;  // when the finger came there
};

// One finger from its touch to its lift.
struct ContactTrail {
  int slot = 0;
  QVector<TrailPoint> points;  // in order of time, never empty
  qint64 lifted_ms = -1;       // -1: still down
};

// Main thread. Times are milliseconds of any clock that does not go back.
class ContactTrails {
 public:
  static constexpr int kFadeMs = 700;  // after which nothing of a point is left to see

  // What is down now; what was down before and is not has been lifted.
  void Update(const QMap<int, GuestContact>& contacts, qint64 now_ms);
  // Forgets what has faded; tells whether anything is left that still has to fade.
  bool Prune(qint64 now_ms);

  // Lifted ones first, then those of the fingers that are down, by slot.
  const QVector<ContactTrail>& Lifted() const { return lifted_; }
  const QMap<int, ContactTrail>& Down() const { return down_; }

 private:
  void Append(int slot, const QPoint& point, qint64 now_ms);

  QMap<int, ContactTrail> down_;  // by slot
  QVector<ContactTrail> lifted_;  // in order of lifting
};

}  // namespace tavi

#endif  // HOST_WINDOW_VIEW_CONTACT_TRAILS_H_
