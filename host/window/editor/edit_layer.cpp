#include "host/window/editor/edit_layer.h"

#include <QKeyEvent>
#include <QLineF>
#include <QMouseEvent>
#include <QPainter>

#include "host/editor/keymap_document.h"
#include "host/session/live_host.h"
#include "host/window/editor/edit_painter.h"
#include "keymapmanager/item_types.h"
#include "qt/mouse_events.h"

namespace tavi {

namespace km = tavikeymapmanager;
using Shape = ItemHandle::Shape;

namespace {

constexpr double kItemReach = 18;   // pixels from an item's point
constexpr double kHandleReach = 9;  // from a handle
constexpr double kDragStart = 3;    // a click is not a drag
constexpr int kLargeNudge = 10;     // pixels of the guest
const QString kPoint = QStringLiteral("point");

QPoint ArrowOf(int key) {
  switch (key) {
    case Qt::Key_Left: return {-1, 0};
    case Qt::Key_Right: return {1, 0};
    case Qt::Key_Up: return {0, -1};
    case Qt::Key_Down: return {0, 1};
    default: return {};
  }
}

// A point that the item touches, as opposed to its other handles.
bool IsPlace(const ItemHandle& handle) { return handle.field == kPoint || handle.field == QLatin1String("alt_point"); }

}  // namespace

EditLayer::EditLayer(KeymapDocument* document, QWidget* view) : QWidget(view->parentWidget()), document_(document) {
  setFocusPolicy(Qt::ClickFocus);  // Tab moves from item to item here
  setAccessibleName(QStringLiteral("Items on the screen"));
  setMouseTracking(true);
  setGeometry(view->geometry());
  view->installEventFilter(this);
  connect(document_, &KeymapDocument::Changed, this, &EditLayer::TakeDocument);
  hide();
}

bool EditLayer::eventFilter(QObject* watched, QEvent* event) {
  const bool is_placed = event->type() == QEvent::Resize || event->type() == QEvent::Move;
  if (is_placed) setGeometry(static_cast<QWidget*>(watched)->geometry());
  return false;
}

// After an undone deletion the same index may be another item.
void EditLayer::TakeDocument() {
  ForgetOthers();
  drag_.is_active = false;  // its item may be gone
  const bool has_other_items = document_->ItemCount() != item_count_;
  item_count_ = document_->ItemCount();
  if (has_other_items) Select(-1);
  update();
}

void EditLayer::Select(int item) {
  if (item >= document_->ItemCount()) item = -1;
  update();
  if (item == selected_) return;
  if (drag_.is_active) CancelDrag();
  ForgetOthers();
  selected_ = item;
  nudged_index_ = -1;
  Q_EMIT SelectionChanged(item);
}

QPointF EditLayer::FractionAt(const QPointF& place) const {
  return {qBound(0.0, place.x() / width(), 1.0), qBound(0.0, place.y() / height(), 1.0)};
}

QVector<ItemHandle> EditLayer::HandlesAt(int item) const { return HandlesOf(*document_->Item(item), size()); }

// ---- Mouse

// Of several items at one point, the selected one, so that it can be dragged away from the others; otherwise the first.
int EditLayer::ItemUnder(const QPointF& place) const {
  int nearest = -1;
  double best = kItemReach;
  for (int item = 0; item < document_->ItemCount(); ++item) {
    for (const ItemHandle& handle : HandlesAt(item)) {
      const double distance = QLineF(handle.place, place).length();
      const bool is_second = distance == best && nearest >= 0 && item != selected_;
      if (!IsPlace(handle) || distance > best || is_second) continue;
      best = distance;
      nearest = item;
    }
  }
  return nearest;
}

const ItemHandle* EditLayer::HandleUnder(const QPointF& place, const QVector<ItemHandle>& handles) const {
  const ItemHandle* found = nullptr;
  for (const ItemHandle& handle : handles) {
    const double reach = handle.shape == Shape::kPoint ? kItemReach : kHandleReach;
    const bool is_nearer =
        found == nullptr || QLineF(handle.place, place).length() < QLineF(found->place, place).length();
    if (QLineF(handle.place, place).length() <= reach && is_nearer) found = &handle;
  }
  return found;
}

void EditLayer::mousePressEvent(QMouseEvent* event) {
  setFocus();
  const QVector<ItemHandle> own = selected_ < 0 ? QVector<ItemHandle>() : HandlesAt(selected_);
  const ItemHandle* held = HandleUnder(qt::PlaceOf(*event), own);
  if (held == nullptr || IsPlace(*held)) Select(ItemUnder(qt::PlaceOf(*event)));
  if (event->button() == Qt::RightButton) {
    Q_EMIT MenuWanted(qt::PlaceOnScreen(*event).toPoint(), FractionAt(qt::PlaceOf(*event)));
    return;
  }
  if (event->button() != Qt::LeftButton || selected_ < 0) return;
  const QVector<ItemHandle> handles = HandlesAt(selected_);
  const ItemHandle* handle = HandleUnder(qt::PlaceOf(*event), handles);
  if (handle == nullptr) return;
  const QPointF place = qt::PlaceOf(*event);
  const QVector<double> before = km::NumbersOfField(*document_->Item(selected_), handle->field);
  drag_ = {true, *handle, place - handle->place, false, place, before, {}};
}

void EditLayer::mouseMoveEvent(QMouseEvent* event) {
  if (drag_.is_active) {
    drag_.has_moved = drag_.has_moved || QLineF(drag_.pressed, qt::PlaceOf(*event)).length() >= kDragStart;
    if (drag_.has_moved) DragTo(qt::PlaceOf(*event));
    return;
  }
  const QVector<ItemHandle> handles = selected_ < 0 ? QVector<ItemHandle>() : HandlesAt(selected_);
  const ItemHandle* handle = HandleUnder(qt::PlaceOf(*event), handles);
  if (handle != nullptr && handle->shape == Shape::kCircle) {
    setCursor(Qt::SizeHorCursor);
  } else if (handle != nullptr && handle->shape == Shape::kArea) {
    setCursor(Qt::SizeFDiagCursor);
  } else {
    const bool is_over = handle != nullptr || ItemUnder(qt::PlaceOf(*event)) >= 0;
    setCursor(is_over ? Qt::SizeAllCursor : Qt::ArrowCursor);
  }
}

void EditLayer::mouseReleaseEvent(QMouseEvent* event) {
  if (event->button() == Qt::LeftButton && drag_.is_active) DropItem();
  update();
}

void EditLayer::mouseDoubleClickEvent(QMouseEvent* event) {
  if (event->button() == Qt::LeftButton && selected_ >= 0) Q_EMIT BindWanted();
}

void EditLayer::DragTo(const QPointF& place) {
  drag_.value = ValueAt(drag_.handle, place - drag_.grip, size());
  const std::optional<QPointF>& pair = drag_.value.pair;
  ShowNumbers(pair ? QVector<double>{pair->x(), pair->y()} : QVector<double>{drag_.value.number});
}

void EditLayer::ShowNumbers(const QVector<double>& numbers) {
  km::SetNumbersOfField(document_->Item(selected_), drag_.handle.field, numbers);
  update();
}

void EditLayer::CancelDrag() {
  drag_.is_active = false;
  ShowNumbers(drag_.before);
}

void EditLayer::DropItem() {
  CancelDrag();
  if (!drag_.has_moved) return;
  const QString& field = drag_.handle.field;
  Report(drag_.value.pair ? document_->SetPair(selected_, field, *drag_.value.pair)
                          : document_->SetNumber(selected_, field, drag_.value.number));
}

void EditLayer::Report(const QString& problem) {
  if (!problem.isEmpty()) Q_EMIT Refused(problem);
}

// ---- Keys

bool EditLayer::event(QEvent* event) {
  if (event->type() == QEvent::KeyPress) {
    auto* key = static_cast<QKeyEvent*>(event);
    const bool is_back = key->key() == Qt::Key_Backtab;
    if (is_back || key->key() == Qt::Key_Tab) {  // not to the next widget
      SelectNext(is_back ? -1 : 1);
      return true;
    }
  }
  return QWidget::event(event);
}

void EditLayer::keyPressEvent(QKeyEvent* event) {
  if (event->key() == Qt::Key_Escape) {
    drag_.is_active ? CancelDrag() : Select(-1);
  } else if (selected_ < 0) {
    QWidget::keyPressEvent(event);
  } else if (event->key() == Qt::Key_Delete) {
    Q_EMIT DeleteWanted();
  } else if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) {
    Q_EMIT BindWanted();
  } else if (!Nudge(*event)) {
    QWidget::keyPressEvent(event);
  }
}

// A run of arrow keys is one undo step.
bool EditLayer::Nudge(const QKeyEvent& event) {
  const QPoint arrow = ArrowOf(event.key());
  const QVector<ItemHandle> handles = HandlesAt(selected_);
  if (arrow.isNull() || handles.isEmpty()) return false;
  QUndoStack* undo = document_->UndoStack();
  if (undo->index() != nudged_index_) ++gesture_;
  const auto* item = document_->Item(selected_);
  const int steps = event.modifiers().testFlag(Qt::ShiftModifier) ? kLargeNudge : 1;
  Report(document_->SetPair(
      selected_, kPoint, NudgedPoint({item->rel_x, item->rel_y}, arrow * steps, LiveHost::GetInstance()->GuestSize()),
      gesture_));
  nudged_index_ = undo->index();
  return true;
}

void EditLayer::SelectNext(int step) {
  const int count = document_->ItemCount();
  if (count == 0) return;
  const int from = selected_ < 0 && step < 0 ? count : selected_;
  Select((from + step + count) % count);
}

// ---- Drawing

void EditLayer::hideEvent(QHideEvent* /*event*/) {
  if (drag_.is_active) CancelDrag();
}

void EditLayer::changeEvent(QEvent* event) {
  if (event->type() == QEvent::PaletteChange) ForgetOthers();  // drawn in the old colours
  QWidget::changeEvent(event);
}

void EditLayer::paintEvent(QPaintEvent* /*event*/) {
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.drawPixmap(0, 0, Others());
  if (selected_ >= 0) EditPainter(&painter, size()).PaintSelected(*document_->Item(selected_));
}

const QPixmap& EditLayer::Others() {
  const double ratio = devicePixelRatioF();
  const QSize pixels = (QSizeF(size()) * ratio).toSize();
  if (others_.size() == pixels) return others_;
  others_ = QPixmap(pixels);
  others_.setDevicePixelRatio(ratio);
  others_.fill(Qt::transparent);
  QPainter painter(&others_);
  painter.setRenderHint(QPainter::Antialiasing);
  const EditPainter items(&painter, size());
  for (int item = 0; item < document_->ItemCount(); ++item) {
    if (item != selected_) items.PaintItem(*document_->Item(item));
  }
  return others_;
}

}  // namespace tavi
