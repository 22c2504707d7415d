// The input devices of this machine's kernel as a target.
#ifndef HOST_TARGET_UINPUT_LINK_H_
#define HOST_TARGET_UINPUT_LINK_H_

#include <memory>

#include <QSize>
#include <QString>

namespace tavi {

class TargetLink;

// Why this build does not support such devices, or an empty string.
QString UinputLinkProblem();

// A link to devices with a touch surface of this size. Making them takes a while; nothing is blocked meanwhile.
std::unique_ptr<TargetLink> MakeUinputLink(const QSize& surface);

}  // namespace tavi

#endif  // HOST_TARGET_UINPUT_LINK_H_
