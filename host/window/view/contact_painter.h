#ifndef HOST_WINDOW_VIEW_CONTACT_PAINTER_H_
#define HOST_WINDOW_VIEW_CONTACT_PAINTER_H_

#include <QPointF>
#include <QSizeF>

#include "host/session/guest_geometry.h"

class QPainter;

namespace tavi {

class ContactTrails;
struct ContactTrail;
struct GuestWheelTurn;

// Draws what is on the guest's screen: contacts with their slot numbers and trails, the pointer, wheel steps.
class ContactPainter {
 public:
  // `guest` is the touch surface, `view` the size of the guest view in the painter's units.
  ContactPainter(QPainter* painter, const GuestGeometry& guest, const QSizeF& view);

  void PaintTrails(const ContactTrails& trails, qint64 now_ms);
  void PaintPointer(const QPoint& touch);
  // `strength` fades from 1, a recent step, to 0.
  void PaintWheel(const GuestWheelTurn& wheel, double strength);

 private:
  QPointF Place(const QPoint& touch) const;
  void PaintWay(const ContactTrail& trail, qint64 now_ms);
  void PaintFinger(int slot, const QPointF& center, double strength);

  QPainter* painter_;
  const GuestGeometry guest_;
  const QSizeF view_;
  const double radius_;  // of a contact
};

}  // namespace tavi

#endif  // HOST_WINDOW_VIEW_CONTACT_PAINTER_H_
