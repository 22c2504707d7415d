// The library's host behind a real window: answers its questions about the guest view and passes on what it says.
#ifndef HOST_WINDOW_WINDOW_HOST_H_
#define HOST_WINDOW_WINDOW_HOST_H_

#include <atomic>

#include <QElapsedTimer>
#include <QObject>
#include <QPointer>
#include <QSize>
#include <QString>

#include "host/simulation/simulated_host.h"
#include "host/window/guest_geometry.h"
#include "taviinputmanager/callbacks.h"

class QWidget;

namespace tavi {

// The library's callbacks are plain functions, so there is one host in a process.
//
// Threads: main, but what the library says and asks may come on any: signals are emitted on the main thread always.
class WindowHost : public QObject {
  Q_OBJECT

 public:
  // Input goes to this display of the guest, and it is the one that is shown.
  static constexpr int kDisplay = 1;
  // Where records are played when they have a view of their own.
  static constexpr int kReplayDisplay = 2;

  static WindowHost* GetInstance();

  // Installs the send functions and initialises the library, once. `view` shows the guest; without one, or when it
  // is gone, it is as if it were as large as the guest.
  void Start(QWidget* view);

  // The guest's touch surface, which is not rotated.
  void SetGuestSize(const QSize& size);
  QSize GuestSize() const;
  // What the display is turned by, in degrees.
  void SetRotation(int degrees) { rotation_ = degrees; }
  GuestGeometry Geometry() const { return {GuestSize(), rotation_}; }

  // How many pixels of the view there are for one of the guest's display: hosts count them in many ways.
  void SetPixelRatio(double ratio) { pixel_ratio_ = ratio; }
  double PixelRatio() const { return pixel_ratio_; }
  // The view as the library is told of it; the places of events are pixels of this.
  QSize ViewSize() const { return (QSizeF(Geometry().DisplaySize()) * pixel_ratio_).toSize(); }

  // Whether the guest has a text field focused, so that keys are typed.
  void SetTextField(bool focused);
  bool HasTextField() const { return text_field_; }

  // Milliseconds since Start.
  qint64 ElapsedMs() const { return clock_.elapsed(); }

  // An InputStatus, as last told.
  int InputStatus() const { return status_; }

 Q_SIGNALS:
  // A line for the guest or a call of the host. Times are milliseconds since Start.
  void EntryAdded(const tavi::TimelineEntry& entry);
  void InputStatusChanged(int status, const QString& key);
  void TextFieldChanged(bool focused);
  // The tilt of the guest's gravity sensor, each at most 40 either way.
  void GravityChanged(double x, double y, double z);

 private:
  friend struct WindowHostFunctions;
  template <typename Host>
  friend struct TellingFunctions;

  WindowHost();

  void Add(TimelineEntry::Source source, const QString& text);
  void SetInputStatus(int status, const QString& key);
  void SetGravity(double x, double y, double z);
  taviinputmanager::WindowGeometry ViewGeometry() const;

  taviinputmanager::InputManagerCallbacks table_;
  QElapsedTimer clock_;
  QPointer<QWidget> view_;
  bool text_field_ = false;
  int status_ = 0;
  std::atomic<quint64> guest_size_;  // width << 32 | height; also asked for on threads of the library
  std::atomic<int> rotation_{0};     // the same
  double pixel_ratio_ = 1;
};

}  // namespace tavi

#endif  // HOST_WINDOW_WINDOW_HOST_H_
