#ifndef HOST_WINDOW_EDITOR_EDIT_PAINTER_H_
#define HOST_WINDOW_EDITOR_EDIT_PAINTER_H_

#include <QPointF>
#include <QSizeF>

#include "keymap/config_item.h"

class QPainter;

namespace tavi {

struct ItemHandle;

// Draws the draggable parts of a keymap's items, on a view of that size.
class EditPainter {
 public:
  EditPainter(QPainter* painter, const QSizeF& view) : painter_(painter), view_(view) {}

  // The item's position.
  void PaintItem(const tavikeymapmanager::ConfigItem& item) const;
  // The same with its handles, circles and areas, and the point's coordinates.
  void PaintSelected(const tavikeymapmanager::ConfigItem& item) const;

 private:
  void PaintShape(const ItemHandle& handle) const;
  void PaintGrip(const ItemHandle& handle) const;
  void PaintNumbers(const tavikeymapmanager::ConfigItem& item, const QPointF& place) const;

  QPainter* painter_;
  const QSizeF view_;
};

}  // namespace tavi

#endif  // HOST_WINDOW_EDITOR_EDIT_PAINTER_H_
