#include "host/window/view/state_corner.h"

#include <QEvent>
#include <QFontMetrics>
#include <QPainter>

#include "host/look/theme.h"

namespace tavi {

namespace {

constexpr int kTextHeight = 12;  // pixels
constexpr int kHeight = 22;
constexpr int kGap = 6;      // between labels
constexpr int kMargin = 6;   // to the view's edges
constexpr int kPadding = 9;  // around a label's text
constexpr int kDot = 7;      // across
constexpr int kDotGap = 6;

QFont TextFont(QFont font) {
  font.setPixelSize(kTextHeight);
  font.setBold(true);
  return font;
}

int WidthOf(const QFont& font, const StateWord& word) {
  return QFontMetrics(font).horizontalAdvance(word.text) + kDot + kDotGap + kPadding * 2;
}

// An emphasized label is a filled plate; any other has a dot in its colour.
void PaintWord(QPainter* painter, const StateWord& word, const QRect& plate) {
  painter->setPen(QPen(word.is_strong ? word.color : theme::Colors().panel_line, 1));
  painter->setBrush(word.is_strong ? word.color : theme::Colors().plate);
  painter->drawRoundedRect(QRectF(plate).adjusted(0.5, 0.5, -0.5, -0.5), kHeight / 2.0, kHeight / 2.0);
  const QRectF dot(plate.left() + kPadding, plate.center().y() - kDot / 2.0 + 0.5, kDot, kDot);
  painter->setPen(Qt::NoPen);
  painter->setBrush(word.is_strong ? theme::Colors().on_lit : word.color);
  painter->drawEllipse(dot);
  painter->setPen(word.is_strong ? theme::Colors().on_lit : theme::Colors().text);
  painter->drawText(plate.adjusted(kPadding + kDot + kDotGap, 0, 0, 0), Qt::AlignLeft | Qt::AlignVCenter, word.text);
}

}  // namespace

StateCorner::StateCorner(const WindowState* state, QWidget* view) : QWidget(view), state_(state) {
  setAttribute(Qt::WA_TransparentForMouseEvents);
  setFocusPolicy(Qt::NoFocus);
  setFont(TextFont(font()));
  view->installEventFilter(this);
  connect(state, &WindowState::Changed, this, &StateCorner::Take);
  Take();
}

QStringList StateCorner::Texts() const {
  QStringList texts;
  for (const StateWord& word : words_) texts += word.text;
  return texts;
}

void StateCorner::Take() {
  words_ = state_->Words();
  Place();
  update();
}

bool StateCorner::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() == QEvent::Resize) Place();
  return QWidget::eventFilter(watched, event);
}

// A view that is too narrow shows one label per line.
void StateCorner::Place() {
  int in_a_row = -kGap;
  int widest = 0;
  for (const StateWord& word : words_) {
    in_a_row += WidthOf(font(), word) + kGap;
    widest = qMax(widest, WidthOf(font(), word));
  }
  const int room = parentWidget()->width() - kMargin * 2;
  const bool is_row = in_a_row <= room;
  const int lines = is_row ? 1 : words_.size();
  resize(qMin(room, is_row ? in_a_row : widest), lines * (kHeight + kGap) - kGap);
  move(parentWidget()->width() - kMargin - width(), kMargin);
  Q_EMIT Placed(geometry());
}

void StateCorner::paintEvent(QPaintEvent* /*event*/) {
  QPainter painter(this);
  painter.setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing);
  const bool is_row = height() == kHeight;
  QPoint corner(is_row ? 0 : width(), 0);
  for (const StateWord& word : words_) {
    const int word_width = qMin(width(), WidthOf(font(), word));
    const int left = is_row ? corner.x() : width() - word_width;
    PaintWord(&painter, word, QRect(left, corner.y(), word_width, kHeight));
    corner += is_row ? QPoint(word_width + kGap, 0) : QPoint(0, kHeight + kGap);
  }
}

}  // namespace tavi
