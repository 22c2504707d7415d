#include "host/play/targets_outlet.h"

#include <utility>

#include <QStringList>

#include "host/target/guest_targets.h"

namespace tavi {

TargetsOutlet::TargetsOutlet(std::vector<TargetAddress> addresses, std::function<void(const QString&)> tell)
    : addresses_(std::move(addresses)), tell_(std::move(tell)) {}

TargetsOutlet::~TargetsOutlet() = default;

QString TargetsOutlet::Open(const QSize& surface) {
  targets_ = std::make_unique<GuestTargets>();
  QObject::connect(targets_.get(), &GuestTargets::Message, targets_.get(),
                   [this](const QString& text, bool /*is_problem*/) { tell_(text); });
  targets_->SetSurface(surface);
  for (const TargetAddress& address : addresses_) targets_->Add(address);
  return {};
}

void TargetsOutlet::Send(const char* data, int length) {
  if (targets_) targets_->Send(data, length);
}

void TargetsOutlet::LiftAll() {
  if (targets_) targets_->LiftAll();
}

void TargetsOutlet::Close() {
  if (targets_) targets_->Close();
}

QString TargetsOutlet::State() const {
  QStringList states;
  for (int i = 0; targets_ && i < targets_->Count(); ++i) {
    TargetStatus status = targets_->StatusOf(i);
    states += QStringLiteral("%1 %2").arg(status.name, DescribeStatus(status));
  }
  return states.join(QStringLiteral("; "));
}

}  // namespace tavi
