#include "host/play/targets_outlet.h"

#include <utility>

#include <QStringList>

#include "host/session/live_host.h"
#include "host/target/guest_targets.h"

namespace tavi {

namespace {

QString WordOf(TargetStatus::State state) {
  switch (state) {
    case TargetStatus::State::kOff: return QStringLiteral("off");
    case TargetStatus::State::kConnecting: return QStringLiteral("connecting");
    case TargetStatus::State::kConnected: return QStringLiteral("connected");
    case TargetStatus::State::kLagging: return QStringLiteral("reads too slowly");
    case TargetStatus::State::kFailed: return QStringLiteral("not reached");
    case TargetStatus::State::kEnded: return QStringLiteral("ended");
  }
  return {};
}

GuestTargets* Targets() { return LiveHost::GetInstance()->Targets(); }

}  // namespace

TargetsOutlet::TargetsOutlet(QVector<TargetAddress> addresses, std::function<void(const QString&)> tell)
    : addresses_(std::move(addresses)), tell_(std::move(tell)) {
  messages_ = QObject::connect(Targets(), &GuestTargets::Message,
                               [this](const QString& text, bool /*is_problem*/) { tell_(text); });
}

TargetsOutlet::~TargetsOutlet() { QObject::disconnect(messages_); }

QString TargetsOutlet::Open(const QSize& surface) {
  Targets()->Close();
  Targets()->SetSurface(surface);
  for (const TargetAddress& address : addresses_) Targets()->Add(address);
  return {};
}

void TargetsOutlet::LiftAll() { Targets()->LiftAll(); }

void TargetsOutlet::Close() { Targets()->Close(); }

QString TargetsOutlet::State() const {
  QStringList states;
  for (int i = 0; i < Targets()->Count(); ++i) {
    const TargetStatus status = Targets()->StatusOf(i);
    states += QStringLiteral("%1 %2").arg(status.name, WordOf(status.state));
  }
  return states.join(QStringLiteral(", "));
}

}  // namespace tavi
