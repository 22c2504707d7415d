#ifndef HOST_PLAY_TARGETS_OUTLET_H_
#define HOST_PLAY_TARGETS_OUTLET_H_

#include <functional>

#include <QObject>
#include <QVector>

#include "host/play/guest_outlet.h"
#include "host/target/target_address.h"

namespace tavi {

// Has the host's targets carry the lines to guests elsewhere: another program, a phone, another machine.
class TargetsOutlet : public GuestOutlet {
 public:
  // `tell` gets the news of the targets, for people.
  TargetsOutlet(QVector<TargetAddress> addresses, std::function<void(const QString&)> tell);
  ~TargetsOutlet() override;
  TargetsOutlet(const TargetsOutlet&) = delete;
  TargetsOutlet& operator=(const TargetsOutlet&) = delete;

  QString Open(const QSize& surface) override;
  // The targets get each line from the host itself.
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
