#ifndef HOST_LOOK_SWITCH_STYLE_H_
#define HOST_LOOK_SWITCH_STYLE_H_

#include <QProxyStyle>

namespace tavi {

// Draws widgets like Fusion, except tool bar buttons: a checked button is filled, a hovered or focused one has a frame.
// A switch that was just turned off therefore looks off. The focus frame is drawn in the same way.
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
