#ifndef HOST_LOOK_SWITCH_STYLE_H_
#define HOST_LOOK_SWITCH_STYLE_H_

#include <QProxyStyle>

namespace tavi {

// Widgets as Fusion draws them, but for the buttons of tool bars: one that is switched on is filled, one that the
// pointer rests on, or that has the keys, has a rim. So a switch that was just turned off looks off. The frame around
// what has the keys is such a rim, too.
class SwitchStyle : public QProxyStyle {
  Q_OBJECT

 public:
  SwitchStyle();

  void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                     const QWidget* widget = nullptr) const override;
  void drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                   const QWidget* widget = nullptr) const override;
  int pixelMetric(PixelMetric metric, const QStyleOption* option = nullptr,
                  const QWidget* widget = nullptr) const override;
  int styleHint(StyleHint hint, const QStyleOption* option = nullptr, const QWidget* widget = nullptr,
                QStyleHintReturn* result = nullptr) const override;
};

}  // namespace tavi

#endif  // HOST_LOOK_SWITCH_STYLE_H_
