#include "host/look/switch_style.h"

#include <QPainter>
#include <QStyleFactory>
#include <QStyleOption>
#include <QToolButton>

#include "host/look/theme.h"

namespace tavi {

namespace {

constexpr double kCorner = 3;

QPen RimOf(QStyle::State state) {
  const theme::ColorSet& colors = theme::Colors();
  if (state.testFlag(QStyle::State_HasFocus)) return QPen(colors.tap, 2);
  const bool is_hovered = state.testFlag(QStyle::State_MouseOver) && state.testFlag(QStyle::State_Enabled);
  return is_hovered || state.testFlag(QStyle::State_Sunken) ? QPen(colors.faint_text, 1) : QPen(Qt::NoPen);
}

void PaintFocus(QPainter* painter, const QRect& rect) {
  painter->save();
  painter->setRenderHint(QPainter::Antialiasing);
  painter->setPen(QPen(theme::Colors().tap, 2));
  painter->setBrush(Qt::NoBrush);
  painter->drawRoundedRect(QRectF(rect).adjusted(1, 1, -1, -1), kCorner, kCorner);
  painter->restore();
}

}  // namespace

SwitchStyle::SwitchStyle() : QProxyStyle(QStyleFactory::create(QStringLiteral("Fusion"))) {}

void SwitchStyle::drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                                const QWidget* widget) const {
  const bool is_button = qobject_cast<const QToolButton*>(widget) != nullptr;
  if (element == PE_FrameFocusRect && is_button) return PaintFocus(painter, widget->rect());
  if (element != PE_PanelButtonTool) return QProxyStyle::drawPrimitive(element, option, painter, widget);
  const bool is_filled = option->state.testFlag(State_On) || option->state.testFlag(State_Sunken);
  painter->save();
  painter->setRenderHint(QPainter::Antialiasing);
  painter->setPen(RimOf(option->state));
  painter->setBrush(is_filled ? QBrush(theme::Colors().switch_on) : QBrush(Qt::NoBrush));
  painter->drawRoundedRect(QRectF(option->rect).adjusted(1, 1, -1, -1), kCorner, kCorner);
  painter->restore();
}

void SwitchStyle::drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                              const QWidget* widget) const {
  if (element == CE_FocusFrame) return PaintFocus(painter, option->rect);
  QProxyStyle::drawControl(element, option, painter, widget);
}

// Drawn inside the edge of the widget, which may be the edge of the window.
int SwitchStyle::pixelMetric(PixelMetric metric, const QStyleOption* option, const QWidget* widget) const {
  if (metric == PM_FocusFrameHMargin || metric == PM_FocusFrameVMargin) return 0;
  return QProxyStyle::pixelMetric(metric, option, widget);
}

int SwitchStyle::styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                           QStyleHintReturn* result) const {
  if (hint == SH_FocusFrame_AboveWidget) return 1;
  return QProxyStyle::styleHint(hint, option, widget, result);
}

}  // namespace tavi
