#ifndef HOST_SESSION_KEY_REPEAT_FILTER_H_
#define HOST_SESSION_KEY_REPEAT_FILTER_H_

#include <functional>
#include <memory>

#include <QBasicTimer>
#include <QObject>

class QKeyEvent;

namespace tavi {

// Distinguishes the release of a key from a key repeat.
//
// X11 reports the repeat of a held key as a release and a press with the same timestamp. Qt marks them as repeats only
// if it finds both in its queue at once, and with a fast server it misses most of them: a walking character would
// stumble. So this filter holds a release back for a moment; if a press of the same key and time follows, the release
// is dropped and the press marked as a repeat. Everything else passes at once, after the waiting release.
//
// Main thread.
class KeyRepeatFilter : public QObject {
  Q_OBJECT

 public:
  using Sink = std::function<void(QKeyEvent*)>;

  explicit KeyRepeatFilter(Sink sink, QObject* parent = nullptr);
  ~KeyRepeatFilter() override;

  // The caller owns the event.
  void Take(const QKeyEvent& event);
  // Passes on the waiting release, if any: for other events that must not overtake it.
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
