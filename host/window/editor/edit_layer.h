#ifndef HOST_WINDOW_EDITOR_EDIT_LAYER_H_
#define HOST_WINDOW_EDITOR_EDIT_LAYER_H_

#include <QPixmap>
#include <QPointF>
#include <QVector>
#include <QWidget>

#include "host/editor/item_handles.h"

namespace tavi {

class KeymapDocument;

// Covers the guest view while a keymap is edited, and receives its mouse and keys: you select, drag and nudge items on
// it. The view below draws the keys.
class EditLayer : public QWidget {
  Q_OBJECT

 public:
  // Covers `view`, following its geometry; hidden at first. It is the view's sibling, not its child, so that no event
  // that it ignores reaches the guest. `document` outlives the layer.
  EditLayer(KeymapDocument* document, QWidget* view);

  int Selected() const { return selected_; }  // -1: nothing
  void Select(int item);
  // As a fraction of the view.
  QPointF FractionAt(const QPointF& place) const;

 Q_SIGNALS:
  void SelectionChanged(int item);
  // An edit was refused.
  void Refused(const QString& problem);
  // The user wants to bind a key to the selected item.
  void BindWanted();
  void DeleteWanted();
  // The user wants a menu for the selected item, or for this point if there is none.
  void MenuWanted(const QPoint& global, const QPointF& fraction);

 protected:
  bool event(QEvent* event) override;
  bool eventFilter(QObject* watched, QEvent* event) override;
  void hideEvent(QHideEvent* event) override;
  void changeEvent(QEvent* event) override;
  void paintEvent(QPaintEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void mouseDoubleClickEvent(QMouseEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;

 private:
  struct Drag {
    bool is_active = false;
    ItemHandle handle;
    QPointF grip;  // from the handle to the pointer
    bool has_moved = false;
    QPointF pressed;
    QVector<double> before;  // the field's numbers
    HandleValue value;       // the field's new value
  };

  void TakeDocument();
  QVector<ItemHandle> HandlesAt(int item) const;
  // The selected item's handle at that point, or null.
  const ItemHandle* HandleUnder(const QPointF& place, const QVector<ItemHandle>& handles) const;
  int ItemUnder(const QPointF& place) const;
  // Shows the item at its new place. The file is only written at the end, since it is read again after each change.
  void DragTo(const QPointF& place);
  void ShowNumbers(const QVector<double>& numbers);
  // Restores the item from the file.
  void CancelDrag();
  void DropItem();
  // A picture of all items but the selected one.
  const QPixmap& Others();
  void ForgetOthers() { others_ = QPixmap(); }
  bool Nudge(const QKeyEvent& event);
  void SelectNext(int step);
  void Report(const QString& problem);

  KeymapDocument* document_;
  int selected_ = -1;
  int item_count_ = 0;
  Drag drag_;
  QPixmap others_;         // null until drawn
  int gesture_ = 0;        // counts drags and runs of arrow keys; each is one undo step
  int nudged_index_ = -1;  // of the undo stack after the last nudge, while the next nudge may join it
};

}  // namespace tavi

#endif  // HOST_WINDOW_EDITOR_EDIT_LAYER_H_
