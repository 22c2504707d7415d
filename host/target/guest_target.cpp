#include "host/target/guest_target.h"

#include <QDeadlineTimer>

#include "host/target/guest_targets.h"

namespace tavi {

void GuestTarget::DeleteLater::operator()(TargetLink* link) const {
  link->disconnect();
  link->deleteLater();
}

GuestTarget::GuestTarget(QString name, LinkMaker make_link) : name_(std::move(name)), make_link_(std::move(make_link)) {
  clock_.start();
  for (QTimer* timer : {&retry_, &leave_}) {
    timer->setSingleShot(true);
    timer->setTimerType(Qt::PreciseTimer);
  }
  connect(&retry_, &QTimer::timeout, this, &GuestTarget::Connect);
  connect(&leave_, &QTimer::timeout, this, &GuestTarget::Leave);
}

GuestTarget::~GuestTarget() = default;

void GuestTarget::Connect() {
  link_.reset(make_link_().release());
  link_->setParent(this);  // deleted with this object at the latest
  connect(link_.get(), &TargetLink::Connected, this, &GuestTarget::TakeConnection);
  connect(link_.get(), &TargetLink::RoomMade, this, &GuestTarget::Pump);
  // Queued: the link may end while a line is passed to it.
  connect(
      link_.get(), &TargetLink::Ended, this,
      [this, link = link_.get()](const QString& reason) {
        if (link == link_.get()) TakeEnd(reason);
      },
      Qt::QueuedConnection);
  connect(link_.get(), &TargetLink::Said, this,
          [this](const QString& line) { Q_EMIT Message(name_ + QStringLiteral(": ") + line, false); });
  SetState(State::kConnecting);
  link_->Open();
}

void GuestTarget::TakeConnection() {
  has_answered_ = true;
  connected_at_ms_ = clock_.elapsed();
  SetState(State::kConnected);
  Q_EMIT Message(QStringLiteral("Lines go to %1").arg(name_), false);
  Enqueue(gestures_.LiftEverything());
}

// Of a series of failed attempts, only the first is reported.
void GuestTarget::TakeEnd(const QString& reason) {
  const bool was_reached = IsReached();
  const bool is_news = was_reached || !has_answered_;
  has_answered_ = true;
  link_.reset();
  DropWaiting();
  if (state_ == State::kOff) return leave_.stop();
  if (was_reached) pause_.TakeConnection(clock_.elapsed() - connected_at_ms_);
  reason_ = reason;
  retry_.start(pause_.NextMs());
  SetState(was_reached ? State::kEnded : State::kFailed);
  if (is_news) Q_EMIT Message(QStringLiteral("No lines go to %1: %2").arg(name_, reason), true);
}

void GuestTarget::SetState(State state) {
  state_ = state;
  Q_EMIT Changed();
}

void GuestTarget::Offer(const OutgoingLine& line, const HeldInput& before) {
  if (state_ == State::kLagging) ++passed_by_;
  if (state_ != State::kConnected) return;
  const QByteArray told = gestures_.Tell(line, before);
  if (told.isEmpty()) return;
  if (waiting_bytes_ + told.size() > GuestTargets::kMostWaitingBytes) return StartLagging();
  Enqueue({told});
}

void GuestTarget::Enqueue(const QVector<QByteArray>& lines) {
  for (const QByteArray& line : lines) {
    waiting_.push_back(line);
    waiting_bytes_ += line.size();
  }
  Pump();
}

void GuestTarget::Pump() {
  if (is_pumping_ || !link_) return;
  is_pumping_ = true;
  while (!waiting_.empty() && link_->HasRoom()) {
    const QByteArray line = waiting_.front();
    waiting_.pop_front();
    waiting_bytes_ -= line.size();
    rate_.Count(clock_.elapsed());
    link_->Write(line);
  }
  is_pumping_ = false;
  if (waiting_.empty() && link_->HasRoom()) TakeEmptiness();
}

void GuestTarget::TakeEmptiness() {
  if (state_ == State::kOff) return Leave();
  if (state_ != State::kLagging) return;
  SetState(State::kConnected);
  Q_EMIT Message(QStringLiteral("Lines go to %1 again; %2 were dropped").arg(name_).arg(passed_by_), false);
}

void GuestTarget::DropWaiting() {
  waiting_.clear();
  waiting_bytes_ = 0;
}

// Releases among the dropped lines are lost as well, so everything that was ever down is released.
void GuestTarget::StartLagging() {
  passed_by_ = static_cast<int>(waiting_.size()) + 1;
  DropWaiting();
  SetState(State::kLagging);
  Q_EMIT Message(QStringLiteral("%1 reads too slowly: lines are dropped until it has caught up").arg(name_), true);
  Enqueue(gestures_.LiftEverything());
}

void GuestTarget::Lift() {
  const QVector<QByteArray> lines = gestures_.Lift();
  if (IsReached()) Enqueue(lines);
}

void GuestTarget::Switch(bool on) {
  if (on == (state_ != State::kOff)) return;
  if (on) return TryAgain();
  Lift();
  retry_.stop();
  const bool has_more = IsReached() && link_ && (!waiting_.empty() || !link_->HasRoom());
  SetState(State::kOff);
  if (has_more) return leave_.start(GuestTargets::kFlushMs);
  Leave();
}

void GuestTarget::TryAgain() {
  Lift();
  Leave();
  pause_.Reset();
  retry_.stop();
  has_answered_ = false;
  Connect();
}

bool GuestTarget::WaitUntilTaken(int limit_ms) {
  const QDeadlineTimer limit(limit_ms);
  while (link_ && IsReached() && !(waiting_.empty() && link_->HasRoom())) {
    if (limit.hasExpired()) return false;
    if (!link_->WaitForRoom(static_cast<int>(limit.remainingTime()))) return false;
    Pump();
  }
  return true;
}

void GuestTarget::Leave() {
  leave_.stop();
  DropWaiting();
  if (!link_) return;
  left_ = std::move(link_);
  disconnect(left_.get(), &TargetLink::Connected, this, nullptr);
  disconnect(left_.get(), &TargetLink::RoomMade, this, nullptr);
  disconnect(left_.get(), &TargetLink::Ended, this, nullptr);
  connect(left_.get(), &TargetLink::Ended, this, [this, link = left_.get()] {
    if (link == left_.get()) left_.reset();
  });
  left_->Finish(GuestTargets::kEndMs);
}

void GuestTarget::WaitForEnd(int limit_ms) {
  if (left_) left_->WaitForEnd(limit_ms);
}

TargetStatus GuestTarget::Status() const {
  TargetStatus status;
  status.name = name_;
  status.state = state_;
  const bool is_down = state_ == State::kFailed || state_ == State::kEnded;
  if (is_down) status.reason = reason_;
  if (is_down) status.retry_ms = qMax(0, retry_.remainingTime());
  status.lines_per_second = rate_.PerSecond(clock_.elapsed());
  status.waiting_bytes = waiting_bytes_ + (link_ ? static_cast<int>(link_->WaitingBytes()) : 0);
  return status;
}

}  // namespace tavi
