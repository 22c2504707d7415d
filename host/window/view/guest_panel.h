#ifndef HOST_WINDOW_VIEW_GUEST_PANEL_H_
#define HOST_WINDOW_VIEW_GUEST_PANEL_H_

#include <optional>

#include <QString>
#include <QWidget>

#include "host/window/view/gamepad_picture.h"

class QPainter;

namespace tavi {

class GuestModel;

// A strip of what the guest has that is no place on its screen: the mouse's part, keys held down, text, gamepad, tilt.
class GuestPanel : public QWidget {
  Q_OBJECT

 public:
  // `model` outlives the panel; update() after it changed.
  explicit GuestPanel(const GuestModel* model, QWidget* parent = nullptr);

  // A gamepad of this computer and its name; none while there is none.
  void SetPad(const std::optional<GamepadPicture>& pad, const QString& name);
  // What an input method composes and the guest has not got yet.
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
  std::optional<QPointF> tilt_;  // to the right and downwards, at most 40 either way
};

// What the mouse does in an InputStatus; `staring_key` is the key that switches view control.
QString MouseText(int status, const QString& staring_key);

}  // namespace tavi

#endif  // HOST_WINDOW_VIEW_GUEST_PANEL_H_
