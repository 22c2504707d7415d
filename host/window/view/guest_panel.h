#ifndef HOST_WINDOW_VIEW_GUEST_PANEL_H_
#define HOST_WINDOW_VIEW_GUEST_PANEL_H_

#include <optional>

#include <QString>
#include <QWidget>

#include "host/window/view/gamepad_picture.h"

class QPainter;

namespace tavi {

class GuestModel;

// A strip with the guest's state that has no position on its screen: the mouse's role, keys that are down, text,
// gamepad, tilt.
class GuestPanel : public QWidget {
  Q_OBJECT

 public:
  // `model` outlives the panel; call update() after it changed.
  explicit GuestPanel(const GuestModel* model, QWidget* parent = nullptr);

  // A gamepad of this computer and its name; none if there is none.
  void SetPad(const std::optional<GamepadPicture>& pad, const QString& name);
  // The text that an input method is composing and that the guest has not received yet.
  void SetPreedit(const QString& preedit);

  QSize sizeHint() const override;

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  void TakeInputStatus(int status, const QString& key);
  void TakeGravity(double x, double y, double z);

  void PaintMouse(QPainter* painter, const QRectF& place) const;
  void PaintHeldKeys(QPainter* painter, const QRectF& place) const;
  void PaintText(QPainter* painter, const QRectF& place) const;
  void PaintTilt(QPainter* painter, const QRectF& place) const;

  const GuestModel* model_;
  int status_ = 0;
  QString staring_key_;
  std::optional<GamepadPicture> pad_;
  QString pad_name_;
  QString preedit_;
  std::optional<QPointF> tilt_;  // to the right and downwards, at most 40 in each direction
};

// What the mouse does according to an InputStatus; `staring_key` is the key that switches view control.
QString MouseText(int status, const QString& staring_key);

}  // namespace tavi

#endif  // HOST_WINDOW_VIEW_GUEST_PANEL_H_
