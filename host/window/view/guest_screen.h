#ifndef HOST_WINDOW_VIEW_GUEST_SCREEN_H_
#define HOST_WINDOW_VIEW_GUEST_SCREEN_H_

#include <QBasicTimer>
#include <QElapsedTimer>
#include <QWidget>

#include "host/guest/guest_model.h"
#include "host/window/view/background_picture.h"
#include "host/window/view/contact_trails.h"

class QPainter;

namespace tavi {

struct TimelineEntry;

// One display of the guest, drawn as a guest would show the lines that it gets.
class GuestScreen : public QWidget {
  Q_OBJECT

 public:
  // Text lines have no display: they go to the one that has the guest's focus.
  enum class Texts { kTaken, kLeft };

  GuestScreen(int display, Texts texts, QWidget* parent = nullptr);
  ~GuestScreen() override;

  const GuestModel& Model() const { return model_; }
  // Shown in place of an empty screen.
  void SetBackground(const BackgroundPicture& picture);

 Q_SIGNALS:
  // The model has applied a line.
  void ModelChanged();

 protected:
  void paintEvent(QPaintEvent* event) override;
  void timerEvent(QTimerEvent* event) override;

  // Draws what must stay legible over contacts.
  virtual void PaintOverFingers(QPainter* /*painter*/) {}

 private:
  void TakeEntry(const TimelineEntry& entry);
  void PaintBackground(QPainter* painter) const;
  void PaintPointer(QPainter* painter) const;

  GuestModel model_;
  const Texts texts_;
  BackgroundPicture background_;
  ContactTrails trails_;
  QElapsedTimer clock_;
  QBasicTimer fading_;
  qint64 wheel_ms_;  // when the wheel last moved
};

}  // namespace tavi

#endif  // HOST_WINDOW_VIEW_GUEST_SCREEN_H_
