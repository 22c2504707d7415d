// For builds without kernel devices.
#include "host/target/target_link.h"
#include "host/target/uinput_link.h"

namespace tavi {

QString UinputLinkProblem() { return QStringLiteral("this build does not support input devices"); }

std::unique_ptr<TargetLink> MakeUinputLink(const QSize& /*surface*/) { return nullptr; }

}  // namespace tavi
