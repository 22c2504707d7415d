#include "host/target/command_link.h"
#include "host/target/target_link.h"

namespace tavi {

QString CommandLinkProblem() { return QStringLiteral("commands need /bin/sh, which this system lacks"); }

std::unique_ptr<TargetLink> MakeCommandLink(const QString& /*command*/) { return nullptr; }

}  // namespace tavi
