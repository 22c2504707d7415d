#include "host/window/view/guest_panel.h"

#include <algorithm>

#include <QPainter>

#include "host/guest/guest_key_names.h"
#include "host/guest/guest_model.h"
#include "host/look/theme.h"
#include "host/picture/key_cap.h"
#include "host/session/live_host.h"
#include "taviinputmanager/types.h"

namespace tavi {

using taviinputmanager::InputStatus;

namespace {

constexpr int kHeight = 62;
constexpr int kCaptionHeight = 22;
constexpr int kMargin = 12;
constexpr int kMouseWidth = 200;
constexpr int kGamepadWidth = 250;
constexpr int kTiltWidth = 64;
constexpr double kMostTilt = 40;  // in each direction

// Cuts areas off the panel: from the left for parts that share the remaining space, from the right for fixed ones.
class SectionPainter {
 public:
  SectionPainter(QPainter* painter, const QRect& panel)
      : painter_(painter), left_(panel.left() + kMargin), right_(panel.right() - kMargin), height_(panel.height()) {}

  QRectF TakeLeft(const QString& caption, double width) {
    const double start = left_;
    left_ += width;
    return Begin(caption, start, width);
  }
  QRectF TakeRight(const QString& caption, double width) {
    right_ -= width;
    return Begin(caption, right_, width);
  }
  double Rest() const { return qMax(0.0, right_ - left_); }

 private:
  // Returns the area below the caption.
  QRectF Begin(const QString& caption, double start, double width) {
    QFont font = painter_->font();
    font.setPixelSize(10);
    font.setBold(true);
    font.setLetterSpacing(QFont::AbsoluteSpacing, 0.8);
    painter_->save();
    painter_->setFont(font);
    painter_->setPen(theme::Colors().faint_text);
    painter_->drawText(QRectF(start, 4, width, kCaptionHeight - 4), Qt::AlignLeft | Qt::AlignVCenter,
                       painter_->fontMetrics().elidedText(caption, Qt::ElideRight, static_cast<int>(width) - kMargin));
    painter_->restore();
    return {start, kCaptionHeight, width - kMargin, height_ - kCaptionHeight - 8.0};
  }

  QPainter* painter_;
  double left_;
  double right_;
  const double height_;
};

}  // namespace

QString MouseText(int status, const QString& staring_key) {
  switch (static_cast<InputStatus>(status)) {
    case InputStatus::Normal: return QStringLiteral("free");
    case InputStatus::Staring: return QStringLiteral("turns the view (%1: free)").arg(staring_key);
    case InputStatus::StaringOff:
      return staring_key.isEmpty() ? QStringLiteral("free") : QStringLiteral("free (%1: view)").arg(staring_key);
    case InputStatus::Observing: return QStringLiteral("looks around");
  }
  return QString::number(status);
}

GuestPanel::GuestPanel(const GuestModel* model, QWidget* parent) : QWidget(parent), model_(model) {
  setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
  const LiveHost* host = LiveHost::GetInstance();
  connect(host, &LiveHost::InputStatusChanged, this, &GuestPanel::TakeInputStatus);
  connect(host, &LiveHost::GravityChanged, this, &GuestPanel::TakeGravity);
  connect(host, &LiveHost::TextFieldChanged, this, QOverload<>::of(&QWidget::update));
}

QSize GuestPanel::sizeHint() const { return {kMouseWidth * 3, kHeight}; }

void GuestPanel::TakeInputStatus(int status, const QString& key) {
  status_ = status;
  staring_key_ = key;
  update();
}

// Tilting to the right increases z, upwards x. No level is drawn for a guest that was never tilted.
void GuestPanel::TakeGravity(double x, double /*y*/, double z) {
  const QPointF tilt(z, -x);
  if (!tilt_ && tilt.isNull()) return;
  tilt_ = tilt;
  update();
}

void GuestPanel::SetPad(const std::optional<GamepadPicture>& pad, const QString& name) {
  pad_ = pad;
  pad_name_ = name;
  update();
}

void GuestPanel::SetPreedit(const QString& preedit) {
  preedit_ = preedit;
  update();
}

void GuestPanel::paintEvent(QPaintEvent* /*event*/) {
  QPainter painter(this);
  painter.setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing);
  painter.fillRect(rect(), theme::Colors().panel);
  painter.fillRect(QRect(0, 0, width(), 1), theme::Colors().panel_line);
  QFont font = painter.font();
  font.setPixelSize(12);
  painter.setFont(font);

  const GuestState& state = model_->state();
  SectionPainter sections(&painter, rect());
  PaintMouse(&painter, sections.TakeLeft(QStringLiteral("MOUSE"), kMouseWidth));
  if (tilt_) PaintTilt(&painter, sections.TakeRight(QStringLiteral("TILT"), kTiltWidth));
  if (state.gamepad.used) {
    PaintGamepad(&painter, sections.TakeRight(QStringLiteral("THE GUEST'S GAMEPAD"), kGamepadWidth),
                 PictureOf(state.gamepad));
  }
  if (pad_) PaintGamepad(&painter, sections.TakeRight(pad_name_.toUpper(), kGamepadWidth), *pad_);
  const bool has_text = LiveHost::GetInstance()->HasTextField() || !state.text.isEmpty();
  const double rest = sections.Rest();
  PaintHeldKeys(&painter, sections.TakeLeft(QStringLiteral("KEYS DOWN IN THE GUEST"), has_text ? rest / 2 : rest));
  if (has_text) PaintText(&painter, sections.TakeLeft(QStringLiteral("TEXT FIELD"), rest / 2));
}

void GuestPanel::PaintMouse(QPainter* painter, const QRectF& place) const {
  const auto status = static_cast<InputStatus>(status_);
  const bool is_captured = status == InputStatus::Staring || status == InputStatus::Observing;
  painter->setPen(is_captured ? theme::Colors().view : theme::Colors().text);
  painter->drawText(place, Qt::AlignLeft | Qt::AlignVCenter, MouseText(status_, staring_key_));
}

void GuestPanel::PaintHeldKeys(QPainter* painter, const QRectF& place) const {
  QList<int> codes = model_->state().held_keys.values();
  std::sort(codes.begin(), codes.end());
  double left = place.left();
  for (const int code : codes) {
    const QString name = NameOfGuestKey(code);
    const double width = KeyCapSize(*painter, name).width();
    if (left + width > place.right()) break;
    PaintKeyCap(painter, {name, theme::Colors().walk, true}, {left + width / 2, place.center().y()});
    left += width + 6;
  }
  if (!codes.isEmpty()) return;
  painter->setPen(theme::Colors().faint_text);
  painter->drawText(place, Qt::AlignLeft | Qt::AlignVCenter, QStringLiteral("none"));
}

// The end of the text, where it is typed.
void GuestPanel::PaintText(QPainter* painter, const QRectF& place) const {
  const bool is_focused = LiveHost::GetInstance()->HasTextField();
  QString text = model_->state().text;
  text.replace(QLatin1Char('\n'), QStringLiteral("\u21B5 "));
  const int width = static_cast<int>(place.width()) - 16;
  const QString shown = painter->fontMetrics().elidedText(text + preedit_, Qt::ElideLeft, width);
  painter->setPen(QPen(is_focused ? theme::Colors().tap : theme::Colors().panel_line, 1.5));
  painter->setBrush(theme::Colors().backdrop);
  painter->drawRoundedRect(place.adjusted(0, 2, 0, -2), 4, 4);
  painter->setPen(theme::Colors().text);
  const QRectF line = place.adjusted(8, 0, -8, 0);
  painter->drawText(line, Qt::AlignLeft | Qt::AlignVCenter,
                    shown + (is_focused ? QStringLiteral("\u258F") : QString()));
  if (preedit_.isEmpty()) return;
  const QFontMetricsF metrics(painter->font(), this);
  const double end = line.left() + metrics.horizontalAdvance(shown);
  const double bottom = line.center().y() + metrics.height() / 2;
  painter->drawLine(QPointF(qMax(line.left(), end - metrics.horizontalAdvance(preedit_)), bottom), {end, bottom});
}

// A ball on a plate: it rolls to where the guest is tilted.
void GuestPanel::PaintTilt(QPainter* painter, const QRectF& place) const {
  const double radius = place.height() / 2 - 1;
  const QPointF center(place.left() + radius, place.center().y());
  painter->setPen(QPen(theme::Colors().panel_line.lighter(140), 1.5));
  painter->setBrush(theme::Colors().backdrop);
  painter->drawEllipse(center, radius, radius);
  const QPointF tilt = *tilt_ / kMostTilt;
  painter->setPen(Qt::NoPen);
  painter->setBrush(theme::Colors().view);
  painter->drawEllipse(center + tilt * (radius - 5), 5, 5);
}

}  // namespace tavi
