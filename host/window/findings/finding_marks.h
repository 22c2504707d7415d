#ifndef HOST_WINDOW_FINDINGS_FINDING_MARKS_H_
#define HOST_WINDOW_FINDINGS_FINDING_MARKS_H_

#include <QBasicTimer>
#include <QVector>
#include <QWidget>

#include "host/window/findings/placed_finding.h"

namespace tavi {

// Numbered dots on a view, at the items that have diagnostics. They take no input; hover over one to see its message.
class FindingMarks : public QWidget {
  Q_OBJECT

 public:
  // Becomes the view's child and covers it.
  explicit FindingMarks(QWidget* view);
  // The same for another widget in the view's place, such as an editor that covers the view.
  void Cover(QWidget* view);

  void Show(const QVector<PlacedFinding>& findings);
  // Highlights a mark for a moment.
  void Flash(const QString& label);

  // Where a mark is in the view; null if it does not exist.
  QPointF PlaceOfMark(const QString& label) const;

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;
  void paintEvent(QPaintEvent* event) override;
  void timerEvent(QTimerEvent* event) override;

 private:
  QPointF PlaceOf(int number) const;
  // A number of several digits needs a wider dot.
  QRectF PlateOf(int number) const;
  // The messages for a point of the view.
  QString MessagesAt(const QPointF& place) const;

  QVector<PlacedFinding> findings_;
  QString flashing_;  // a label; empty: none
  QBasicTimer flash_;
};

}  // namespace tavi

#endif  // HOST_WINDOW_FINDINGS_FINDING_MARKS_H_
