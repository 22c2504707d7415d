#ifndef HOST_SESSION_KEY_REPEAT_FILTER_H_
#define HOST_SESSION_KEY_REPEAT_FILTER_H_

#include <functional>
#include <memory>

#include <QBasicTimer>
#include <QObject>

class QKeyEvent;

namespace tavi {

// Tells a key that is let go from one that only repeats.
//
// X11 repeats a held key as a release and a press of one and the same time. Qt marks them as repeats only when it finds
// both in its queue at once, and a fast server makes it miss most of them: a walking character would stumble. So a
// release waits here for a moment, and when a press of its key and time follows, the release is dropped and the press
// marked as a repeat. Everything else passes at once, the waiting release in front of it.
//
// Main thread.
class KeyRepeatFilter : public QObject {
  Q_OBJECT

 public:
  using Sink = std::function<void(QKeyEvent*)>;

  explicit KeyRepeatFilter(Sink sink, QObject* parent = nullptr);
  ~KeyRepeatFilter() override;

  // The event is the caller's.
  void Take(const QKeyEvent& event);
  // Passes the release on that waits, if any: for other events that must not overtake it.
  void Flush();

 protected:
  void timerEvent(QTimerEvent* event) override;

 private:
  bool IsRepeatOfPending(const QKeyEvent& event) const;

  const Sink sink_;
  std::unique_ptr<QKeyEvent> pending_;  // a release
  QBasicTimer waiting_;
  bool is_last_pass_ = false;
};

}  // namespace tavi

#endif  // HOST_SESSION_KEY_REPEAT_FILTER_H_
