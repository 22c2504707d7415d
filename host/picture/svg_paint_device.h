#ifndef HOST_PICTURE_SVG_PAINT_DEVICE_H_
#define HOST_PICTURE_SVG_PAINT_DEVICE_H_

#include <memory>

#include <QPaintDevice>
#include <QSize>

namespace tavi {

class SvgWriter;

// Converts what a QPainter draws on it to elements of an SVG page. Letters become outlines, so that they look the same
// in every viewer; brushes are plain colours, images are embedded.
//
// Main thread. The caller owns the writer, which outlives the device.
class SvgPaintDevice : public QPaintDevice {
 public:
  SvgPaintDevice(const QSize& size, SvgWriter* writer);
  ~SvgPaintDevice() override;

  QPaintEngine* paintEngine() const override;

 protected:
  int metric(PaintDeviceMetric metric) const override;

 private:
  const QSize size_;
  const std::unique_ptr<QPaintEngine> engine_;
};

}  // namespace tavi

#endif  // HOST_PICTURE_SVG_PAINT_DEVICE_H_
