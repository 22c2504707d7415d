// The library's host while a user plays: provides the data about the guest view and passes on the library's calls.
#ifndef HOST_SESSION_LIVE_HOST_H_
#define HOST_SESSION_LIVE_HOST_H_

#include <atomic>
#include <functional>

#include <QElapsedTimer>
#include <QObject>
#include <QPoint>
#include <QSize>
#include <QString>

#include "host/session/guest_geometry.h"
#include "host/session/timeline_entry.h"
#include "host/target/guest_targets.h"
#include "taviinputmanager/callbacks.h"

namespace tavi {

// The library's callbacks are plain functions, so there is one host in a process.
//
// Threads: main. The library may call the host on any thread, but signals are always emitted on the main thread.
class LiveHost : public QObject {
  Q_OBJECT

 public:
  // Input goes to this display of the guest, which is the one shown.
  static constexpr int kDisplay = 1;
  // The display of records that have a view of their own.
  static constexpr int kReplayDisplay = 2;

  static LiveHost* GetInstance();

  // The corner of a view of this size, in pixels of ViewSize: the pointer minus the corner is the pointer's position in
  // the view.
  using Corner = std::function<QPoint(const QSize& view_size)>;

  // Gets each line synchronously from the library's send functions, on their thread, before all others: for a guest in
  // this process, where a line has arrived when the call returns. An empty function removes it. Set it only while no
  // line can arrive.
  using LineSink = std::function<void(const char* data, int length)>;
  void SetLineSink(LineSink sink) { line_sink_ = std::move(sink); }

  // Installs the send functions and initializes the library, once. Without `corner` the view is at (0, 0).
  void Start(Corner corner);
  bool HasStarted() const { return clock_.isValid(); }

  // The guest's touch surface, which is not rotated.
  void SetGuestSize(const QSize& size);
  QSize GuestSize() const;
  // The rotation of the display, in degrees.
  void SetRotation(int degrees) { rotation_ = degrees; }
  GuestGeometry Geometry() const { return {GuestSize(), rotation_}; }

  // How many pixels of the view there are for one of the guest's display: front ends differ in this.
  void SetPixelRatio(double ratio) { pixel_ratio_ = ratio; }
  double PixelRatio() const { return pixel_ratio_; }
  // The view's size as reported to the library; positions of events are pixels of this.
  QSize ViewSize() const { return (QSizeF(Geometry().DisplaySize()) * pixel_ratio_).toSize(); }

  // Whether a text field of the guest has the focus, so that keys are typed.
  void SetTextField(bool focused);
  bool HasTextField() const { return text_field_; }

  // The targets that also get the lines. They must be closed before the application object is destroyed.
  GuestTargets* Targets() { return &targets_; }

  // Milliseconds since Start.
  qint64 ElapsedMs() const { return clock_.elapsed(); }

  // The last reported InputStatus.
  int InputStatus() const { return status_; }

 Q_SIGNALS:
  // A line for the guest or a call of the host. Times are milliseconds since Start.
  void EntryAdded(const tavi::TimelineEntry& entry);
  void InputStatusChanged(int status, const QString& key);
  void TextFieldChanged(bool focused);
  // The tilt of the guest's gravity sensor, each at most 40 in each direction.
  void GravityChanged(double x, double y, double z);

 private:
  friend struct LiveHostFunctions;
  template <typename Host>
  friend struct TellingFunctions;

  LiveHost();

  void SendLine(const char* data, int length);
  // Whether EntryAdded was ever connected. Checking at each line whether it still is would be a large part of the
  // line's cost, and disconnections are notified under locks of Qt, where nothing may be called.
  bool IsHeard() const { return is_heard_; }
  void connectNotify(const QMetaMethod& signal) override;
  void Add(TimelineEntry::Source source, const QString& text);
  void SetInputStatus(int status, const QString& key);
  void SetGravity(double x, double y, double z);
  taviinputmanager::WindowGeometry ViewGeometry() const;

  taviinputmanager::InputManagerCallbacks table_;
  QElapsedTimer clock_;
  Corner corner_;
  LineSink line_sink_;
  GuestTargets targets_;
  bool text_field_ = false;
  int status_ = 0;
  std::atomic<bool> is_heard_{false};
  std::atomic<quint64> guest_size_;  // width << 32 | height; also read on threads of the library
  std::atomic<int> rotation_{0};     // the same
  double pixel_ratio_ = 1;
};

}  // namespace tavi

#endif  // HOST_SESSION_LIVE_HOST_H_
