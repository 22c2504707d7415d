// In builds without devices of the kernel.
#include "host/target/target_link.h"
#include "host/target/uinput_link.h"

namespace tavi {

QString UinputLinkProblem() { return QStringLiteral("this build makes no input devices"); }

std::unique_ptr<TargetLink> MakeUinputLink(const QSize& /*surface*/) { return nullptr; }

}  // namespace tavi
