#include "host/target/guest_targets.h"

#include <algorithm>

#include <QDeadlineTimer>
#include <QThread>

#include "host/guest/held_input.h"
#include "host/target/command_link.h"
#include "host/target/guest_target.h"
#include "host/target/local_link.h"
#include "host/target/outgoing_line.h"
#include "host/target/tcp_link.h"
#include "host/target/uinput_link.h"

namespace tavi {

using Kind = TargetAddress::Kind;

namespace {

constexpr int kTurnMs = 10;

std::unique_ptr<TargetLink> MakeLink(const TargetAddress& address, const QSize& surface) {
  switch (address.kind) {
    case Kind::kCommand: return MakeCommandLink(address.place);
    case Kind::kSocketFile: return std::make_unique<LocalLink>(address.place);
    case Kind::kTcp: return std::make_unique<TcpLink>(address.place, address.port, address.may_be_remote);
    case Kind::kUinput: return MakeUinputLink(surface);
  }
  return nullptr;
}

int Remaining(const QDeadlineTimer& limit) { return static_cast<int>(limit.remainingTime()); }

}  // namespace

GuestTargets::GuestTargets(QObject* parent) : QObject(parent), sent_(std::make_unique<HeldInput>()) {}

GuestTargets::~GuestTargets() { Close(); }

void GuestTargets::Add(const TargetAddress& address) {
  auto target =
      std::make_unique<GuestTarget>(address.text, [address, surface = surface_] { return MakeLink(address, surface); });
  const int number = Count();
  connect(target.get(), &GuestTarget::Changed, this, [this, number] { Q_EMIT Changed(number); });
  connect(target.get(), &GuestTarget::Message, this, &GuestTargets::Message);
  targets_.push_back(std::move(target));
  has_targets_ = true;
  targets_.back()->Connect();
}

// The inbox keeps the lines of several threads in order.
void GuestTargets::Send(const char* data, int length) {
  if (!has_targets_ || length < 1) return;
  {
    const std::lock_guard<std::mutex> lock(inbox_lock_);
    inbox_.emplace_back(data, length);
  }
  if (QThread::currentThread() == thread()) {
    TakeInbox();
  } else {
    QMetaObject::invokeMethod(this, &GuestTargets::TakeInbox, Qt::QueuedConnection);
  }
}

// A line that is sent while this runs waits for its turn.
void GuestTargets::TakeInbox() {
  if (is_distributing_) return;
  is_distributing_ = true;
  for (std::vector<QByteArray> lines = TakeLines(); !lines.empty(); lines = TakeLines()) {
    for (const QByteArray& line : lines) Distribute(line);
  }
  is_distributing_ = false;
}

std::vector<QByteArray> GuestTargets::TakeLines() {
  const std::lock_guard<std::mutex> lock(inbox_lock_);
  return std::exchange(inbox_, {});
}

void GuestTargets::Distribute(const QByteArray& bytes) {
  if (bytes.size() > kMostLineBytes) {
    Q_EMIT Message(QStringLiteral("A line of %1 bytes is too long for a guest").arg(bytes.size()), true);
    return;
  }
  const OutgoingLine line(bytes);
  for (const auto& target : targets_) target->Offer(line, *sent_);
  if (!line.is_text) sent_->Take(line.display, line.line);
}

void GuestTargets::LiftAll() {
  TakeInbox();
  for (const auto& target : targets_) target->Lift();
}

// In turns, so that a slow target does not keep lines from the others.
void GuestTargets::WaitUntilTaken() {
  const QDeadlineTimer limit(kFlushMs);
  for (bool is_taken = false; !is_taken && !limit.hasExpired();) {
    is_taken = true;
    for (const auto& target : targets_) is_taken = target->WaitUntilTaken(kTurnMs) && is_taken;
  }
}

void GuestTargets::Close() {
  LiftAll();
  has_targets_ = false;
  WaitUntilTaken();
  for (const auto& target : targets_) target->Leave();
  const QDeadlineTimer end(kEndMs);
  for (const auto& target : targets_) target->WaitForEnd(Remaining(end));
  targets_.clear();
  sent_ = std::make_unique<HeldInput>();
}

TargetStatus GuestTargets::StatusOf(int target) const {
  return targets_.at(static_cast<std::size_t>(target))->Status();
}

bool GuestTargets::HaveAllAnswered() const {
  return std::all_of(targets_.begin(), targets_.end(), [](const auto& target) { return target->HasAnswered(); });
}

void GuestTargets::Switch(int target, bool on) { targets_.at(static_cast<std::size_t>(target))->Switch(on); }

void GuestTargets::TryAgain(int target) { targets_.at(static_cast<std::size_t>(target))->TryAgain(); }

}  // namespace tavi
