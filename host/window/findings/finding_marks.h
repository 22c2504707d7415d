#ifndef HOST_WINDOW_FINDINGS_FINDING_MARKS_H_
#define HOST_WINDOW_FINDINGS_FINDING_MARKS_H_

#include <QBasicTimer>
#include <QVector>
#include <QWidget>

#include "host/window/findings/placed_finding.h"

namespace tavi {

// Numbered dots on a view at the items that something is wrong with. They take no input; the message is told when the
// pointer rests on one.
class FindingMarks : public QWidget {
  Q_OBJECT

 public:
  // Becomes the view's child, and covers it.
  explicit FindingMarks(QWidget* view);
  // The same of another widget in its place, such as an editor that lies on the view.
  void Cover(QWidget* view);

  void Show(const QVector<PlacedFinding>& findings);
  // Lights a mark up for a moment.
  void Flash(const QString& label);

  // Where a mark stands in the view, for people who look there; null for one that there is not.
  QPointF PlaceOfMark(const QString& label) const;

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;
  void paintEvent(QPaintEvent* event) override;
  void timerEvent(QTimerEvent* event) override;

 private:
  QPointF PlaceOf(int number) const;
  // A number of several signs needs a longer plate.
  QRectF PlateOf(int number) const;
  // What there is to say at a place of the view.
  QString MessagesAt(const QPointF& place) const;

  QVector<PlacedFinding> findings_;
  QString flashing_;  // a label; empty: none
  QBasicTimer flash_;
};

}  // namespace tavi

#endif  // HOST_WINDOW_FINDINGS_FINDING_MARKS_H_
