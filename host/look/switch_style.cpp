#include "host/look/switch_style.h"

#include <QPainter>
#include <QStyleFactory>
#include <QStyleOption>

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

}  // namespace

SwitchStyle::SwitchStyle() : QProxyStyle(QStyleFactory::create(QStringLiteral("Fusion"))) {}

void SwitchStyle::drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                                const QWidget* widget) const {
  if (element != PE_PanelButtonTool) return QProxyStyle::drawPrimitive(element, option, painter, widget);
  const bool is_filled = option->state.testFlag(State_On) || option->state.testFlag(State_Sunken);
  painter->save();
  painter->setRenderHint(QPainter::Antialiasing);
  painter->setPen(RimOf(option->state));
  painter->setBrush(is_filled ? QBrush(theme::Colors().switch_on) : QBrush(Qt::NoBrush));
  painter->drawRoundedRect(QRectF(option->rect).adjusted(1, 1, -1, -1), kCorner, kCorner);
  painter->restore();
}

}  // namespace tavi
