#ifndef HOST_PLAY_TARGETS_OUTLET_H_
#define HOST_PLAY_TARGETS_OUTLET_H_

#include <functional>

#include <QObject>
#include <QVector>

#include "host/play/guest_outlet.h"
#include "host/target/target_address.h"

namespace tavi {

// Sends the lines through the host's targets to guests elsewhere: another program, a phone, another machine.
class TargetsOutlet : public GuestOutlet {
 public:
  // `tell` gets messages about the targets, for display.
  TargetsOutlet(QVector<TargetAddress> addresses, std::function<void(const QString&)> tell);
  ~TargetsOutlet() override;
  TargetsOutlet(const TargetsOutlet&) = delete;
  TargetsOutlet& operator=(const TargetsOutlet&) = delete;

  QString Open(const QSize& surface) override;
  // The targets get each line from the host directly.
  void Send(const char* /*data*/, int /*length*/) override {}
  void LiftAll() override;
  void Close() override;
  QString State() const override;

 private:
  const QVector<TargetAddress> addresses_;
  const std::function<void(const QString&)> tell_;
  QMetaObject::Connection messages_;
};

}  // namespace tavi

#endif  // HOST_PLAY_TARGETS_OUTLET_H_
