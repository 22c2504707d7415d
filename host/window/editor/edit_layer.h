#ifndef HOST_WINDOW_EDITOR_EDIT_LAYER_H_
#define HOST_WINDOW_EDITOR_EDIT_LAYER_H_

#include <QPixmap>
#include <QPointF>
#include <QVector>
#include <QWidget>

#include "host/editor/item_handles.h"

namespace tavi {

class KeymapDocument;

// Lies over the guest view while a keymap is edited, and takes its mouse and keys: items are selected, dragged and
// nudged on it. The keys themselves are drawn by the view below.
class EditLayer : public QWidget {
  Q_OBJECT

 public:
  // Covers `view`, wherever it goes; hidden at first. It stands beside the view, not in it, so that nothing that it
  // leaves comes to the guest. `document` outlives the layer.
  EditLayer(KeymapDocument* document, QWidget* view);

  int Selected() const { return selected_; }  // -1: nothing
  void Select(int item);
  // As a fraction of the view.
  QPointF FractionAt(const QPointF& place) const;

 Q_SIGNALS:
  void SelectionChanged(int item);
  // An edit was refused.
  void Refused(const QString& problem);
  // The selected item is to get a key.
  void BindWanted();
  void DeleteWanted();
  // A menu for the selected item, or for this place where nothing is.
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
    HandleValue value;       // and what it is to have
  };

  void TakeDocument();
  QVector<ItemHandle> HandlesAt(int item) const;
  // The selected item's handle at that place; null when there is none.
  const ItemHandle* HandleUnder(const QPointF& place, const QVector<ItemHandle>& handles) const;
  int ItemUnder(const QPointF& place) const;
  // Shows the item as it would be. The file is written at the end: each time, all of it is read again.
  void DragTo(const QPointF& place);
  void ShowNumbers(const QVector<double>& numbers);
  // The item is as the file has it again.
  void CancelDrag();
  void DropItem();
  // All items but the selected one.
  const QPixmap& Others();
  void ForgetOthers() { others_ = QPixmap(); }
  bool Nudge(const QKeyEvent& event);
  void SelectNext(int step);
  void Report(const QString& problem);

  KeymapDocument* document_;
  int selected_ = -1;
  int item_count_ = 0;
  Drag drag_;
  QPixmap others_;         // null: to be drawn
  int gesture_ = 0;        // counts drags and runs of arrow keys, which are one step back each
  int nudged_index_ = -1;  // of the undo stack behind the last nudge, while it may be joined by the next
};

}  // namespace tavi

#endif  // HOST_WINDOW_EDITOR_EDIT_LAYER_H_
