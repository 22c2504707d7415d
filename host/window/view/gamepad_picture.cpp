#include "host/window/view/gamepad_picture.h"

#include <algorithm>

#include <QPainter>

#include "host/gamepad/pad_input.h"
#include "host/guest/guest_model.h"
#include "host/look/theme.h"
#include "host/picture/key_cap.h"

namespace tavi {

namespace {

struct NamedButton {
  int code;
  const char* name;
};

// Linux codes of gamepad buttons.
constexpr NamedButton kButtons[] = {
    {304, "A"},  {305, "B"},    {307, "X"},     {308, "Y"},     {310, "LB"}, {311, "RB"}, {312, "LT"},
    {313, "RT"}, {314, "Back"}, {315, "Start"}, {316, "Guide"}, {317, "LA"}, {318, "RA"},
};

QString NameOfButton(int code) {
  for (const NamedButton& button : kButtons) {
    if (button.code == code) return QLatin1String(button.name);
  }
  return QString::number(code);
}

struct HatRow {
  char16_t arrow = 0;
  QPoint way;
};

// The directions of the hat, by the library's names.
const HatRow kHat[] = {
    {u'\u2191', {0, -1}},
    {u'\u2193', {0, 1}},
    {u'\u2190', {-1, 0}},
    {u'\u2192', {1, 0}},
};

// A null point for a button that is not a direction.
QPoint WayOf(const QString& button) {
  for (const HatRow& row : kHat) {
    if (button == QChar(row.arrow)) return row.way;
  }
  return {};
}

// Advances to the right with every part.
class GamepadPainter {
 public:
  GamepadPainter(QPainter* painter, const QRectF& place) : painter_(painter), place_(place), left_(place.left()) {}

  void PaintStick(const QPointF& stick) {
    const double radius = place_.height() / 2 - 2;
    const QPointF center(left_ + radius, place_.center().y());
    painter_->setPen(QPen(theme::Colors().panel_line.lighter(140), 1.5));
    painter_->setBrush(theme::Colors().backdrop);
    painter_->drawEllipse(center, radius, radius);
    painter_->setPen(Qt::NoPen);
    painter_->setBrush(stick.isNull() ? theme::Colors().faint_text : theme::Colors().tap);
    painter_->drawEllipse(center + stick * (radius - 5), 5, 5);
    left_ += radius * 2 + 8;
  }

  void PaintHat(const QPoint& hat) {
    const double arm = place_.height() / 3 - 1;
    const QPointF middle(left_ + arm * 1.5, place_.center().y());
    painter_->setPen(Qt::NoPen);
    for (const QPoint& way : {QPoint(0, 0), QPoint(0, -1), QPoint(1, 0), QPoint(0, 1), QPoint(-1, 0)}) {
      const bool is_down = !way.isNull() && (way.x() != 0 ? way.x() == hat.x() : way.y() == hat.y());
      QRectF part(0, 0, arm, arm);
      part.moveCenter(middle + QPointF(way) * arm);
      painter_->setBrush(is_down ? theme::Colors().tap : theme::Colors().panel_line.lighter(140));
      painter_->drawRect(part.adjusted(0.5, 0.5, -0.5, -0.5));
    }
    left_ += arm * 3 + 8;
  }

  void PaintTrigger(bool is_down) {
    const QRectF bar(left_, place_.top() + 2, 9, place_.height() - 4);
    painter_->setPen(QPen(theme::Colors().panel_line.lighter(140), 1.5));
    painter_->setBrush(is_down ? theme::Colors().tap : theme::Colors().backdrop);
    painter_->drawRoundedRect(bar, 3, 3);
    left_ += bar.width() + 6;
  }

  void PaintButtons(const QStringList& names) {
    left_ += 2;
    for (const QString& name : names) {
      const double width = KeyCapSize(*painter_, name).width();
      PaintKeyCap(painter_, {name, theme::Colors().tap, true}, {left_ + width / 2, place_.center().y()});
      left_ += width + 5;
    }
  }

 private:
  QPainter* painter_;
  const QRectF place_;
  double left_;
};

}  // namespace

GamepadPicture PictureOf(const GuestGamepad& gamepad) {
  GamepadPicture picture;
  picture.left_stick = gamepad.left_stick;
  picture.right_stick = gamepad.right_stick;
  picture.hat = gamepad.hat;
  picture.left_trigger = gamepad.left_trigger != 0;
  picture.right_trigger = gamepad.right_trigger != 0;
  QList<int> codes = gamepad.buttons.values();
  std::sort(codes.begin(), codes.end());
  for (const int code : codes) picture.buttons += NameOfButton(code);
  return picture;
}

GamepadPicture PictureOf(const PadInput& gamepad) {
  GamepadPicture picture;
  picture.left_stick = gamepad.Stick(0);
  picture.right_stick = gamepad.Stick(1);
  picture.buttons = gamepad.Pressed();
  picture.left_trigger = picture.buttons.removeAll(QStringLiteral("LT")) > 0;
  picture.right_trigger = picture.buttons.removeAll(QStringLiteral("RT")) > 0;
  for (const QString& button : gamepad.Pressed()) {
    const QPoint way = WayOf(button);
    if (way.isNull()) continue;
    picture.hat += way;
    picture.buttons.removeAll(button);
  }
  return picture;
}

void PaintGamepad(QPainter* painter, const QRectF& place, const GamepadPicture& gamepad) {
  GamepadPainter parts(painter, place);
  parts.PaintStick(gamepad.left_stick);
  parts.PaintStick(gamepad.right_stick);
  parts.PaintHat(gamepad.hat);
  parts.PaintTrigger(gamepad.left_trigger);
  parts.PaintTrigger(gamepad.right_trigger);
  parts.PaintButtons(gamepad.buttons);
}

}  // namespace tavi
