#ifndef HOST_PLAY_TARGETS_OUTLET_H_
#define HOST_PLAY_TARGETS_OUTLET_H_

#include <functional>
#include <memory>
#include <vector>

#include "host/play/guest_outlet.h"
#include "host/target/target_address.h"

namespace tavi {

class GuestTargets;

// Carries the lines to guests elsewhere: another program, a phone, another machine.
class TargetsOutlet : public GuestOutlet {
 public:
  // `tell` gets the news of the targets, for people.
  TargetsOutlet(std::vector<TargetAddress> addresses, std::function<void(const QString&)> tell);
  ~TargetsOutlet() override;

  QString Open(const QSize& surface) override;
  void Send(const char* data, int length) override;
  void LiftAll() override;
  void Close() override;
  QString State() const override;

 private:
  const std::vector<TargetAddress> addresses_;
  const std::function<void(const QString&)> tell_;
  std::unique_ptr<GuestTargets> targets_;
};

}  // namespace tavi

#endif  // HOST_PLAY_TARGETS_OUTLET_H_
