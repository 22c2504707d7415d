#include "host/session/key_repeat_filter.h"

#include <utility>

#include <QKeyEvent>
#include <QTimerEvent>

namespace tavi {

namespace {

constexpr int kWaitMs = 6;

std::unique_ptr<QKeyEvent> CopyOf(const QKeyEvent& event) {
  auto copy = std::make_unique<QKeyEvent>(event.type(), event.key(), event.modifiers(), event.nativeScanCode(),
                                          event.nativeVirtualKey(), event.nativeModifiers(), event.text(),
                                          event.isAutoRepeat(), static_cast<ushort>(event.count()));
  copy->setTimestamp(event.timestamp());
  return copy;
}

}  // namespace

KeyRepeatFilter::KeyRepeatFilter(Sink sink, QObject* parent) : QObject(parent), sink_(std::move(sink)) {}

KeyRepeatFilter::~KeyRepeatFilter() = default;

void KeyRepeatFilter::Take(const QKeyEvent& event) {
  if (IsRepeatOfPending(event)) {
    pending_.reset();
    QKeyEvent repeat(event.type(), event.key(), event.modifiers(), event.nativeScanCode(), event.nativeVirtualKey(),
                     event.nativeModifiers(), event.text(), true, static_cast<ushort>(event.count()));
    sink_(&repeat);
    return;
  }
  Flush();
  auto copy = CopyOf(event);
  if (event.type() == QEvent::KeyRelease && !event.isAutoRepeat()) {
    pending_ = std::move(copy);
    is_last_pass_ = false;
    waiting_.start(kWaitMs, Qt::PreciseTimer, this);
  } else {
    sink_(copy.get());
  }
}

bool KeyRepeatFilter::IsRepeatOfPending(const QKeyEvent& event) const {
  return pending_ && event.type() == QEvent::KeyPress && event.nativeScanCode() == pending_->nativeScanCode() &&
         event.timestamp() == pending_->timestamp();
}

void KeyRepeatFilter::Flush() {
  waiting_.stop();
  const auto release = std::move(pending_);
  if (release) sink_(release.get());
}

// If the window was busy for longer than the wait, the press may still be unread: one more iteration of the event loop.
void KeyRepeatFilter::timerEvent(QTimerEvent* event) {
  if (event->timerId() != waiting_.timerId()) return QObject::timerEvent(event);
  if (is_last_pass_) return Flush();
  is_last_pass_ = true;
  waiting_.start(0, this);
}

}  // namespace tavi
