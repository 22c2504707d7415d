#ifndef HOST_PICTURE_SVG_PAINT_DEVICE_H_
#define HOST_PICTURE_SVG_PAINT_DEVICE_H_

#include <memory>

#include <QPaintDevice>
#include <QSize>

namespace tavi {

class SvgWriter;

// What a QPainter draws on this becomes elements of a page of SVG. Letters become outlines, so that they look the same
// wherever the page is shown; brushes are plain colours, images are inside of the page.
//
// Main thread. The writer is the caller's and outlives the device.
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
