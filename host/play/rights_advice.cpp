#include "host/play/rights_advice.h"

#include <algorithm>
#include <grp.h>
#include <sys/stat.h>
#include <unistd.h>
#include <vector>

namespace tavi {

namespace {

constexpr char kUinput[] = "/dev/uinput";

// The number of the group; nothing if it does not exist.
bool FindGroup(const char* name, gid_t* number) {
  const group* entry = getgrnam(name);
  if (entry) *number = entry->gr_gid;
  return entry != nullptr;
}

// Of this process: a group that the user was added to takes effect at the next login.
bool IsMember(gid_t group) {
  std::vector<gid_t> groups(static_cast<std::size_t>(std::max(getgroups(0, nullptr), 0)));
  const int count = getgroups(static_cast<int>(groups.size()), groups.data());
  groups.resize(static_cast<std::size_t>(std::max(count, 0)));
  return getegid() == group || std::find(groups.begin(), groups.end(), group) != groups.end();
}

bool IsUinputThere() { return access(kUinput, F_OK) == 0; }

// The udev rule is in effect.
bool IsUinputOfGroup() {
  gid_t group = 0;
  struct stat status {};
  const bool is_known = FindGroup(kDeviceGroup, &group) && stat(kUinput, &status) == 0;
  return is_known && status.st_gid == group && (status.st_mode & S_IWGRP) != 0;
}

QString UinputProblem() {
  if (access(kUinput, W_OK) == 0) return {};
  return QStringLiteral("%1 is not writable; it is needed to create the touch screen").arg(QLatin1String(kUinput));
}

QString DevicesProblem(const QStringList& unreadable) {
  if (unreadable.isEmpty()) return {};
  return QStringLiteral("%1 is not readable").arg(unreadable.join(QStringLiteral(", ")));
}

// `lacks_uinput`: the group has no access, as the rule would give it.
QString WayOut(bool lacks_uinput) {
  gid_t group = 0;
  if (!FindGroup(kDeviceGroup, &group)) {
    return QStringLiteral("There is no group \"input\" here that could get access. It works at once as root.");
  }
  QStringList steps;
  if (!IsMember(group)) {
    steps += QStringLiteral("As root: adduser YOUR-NAME input. Then log out and in again.");
  }
  if (lacks_uinput) {
    steps += QStringLiteral(
        "The Debian package of tavi has a rule of udev that lets the group \"input\" make devices "
        "(/lib/udev/rules.d/60-tavi.rules). At once, as root: chgrp input /dev/uinput; chmod 660 /dev/uinput");
  }
  return steps.join(QLatin1Char('\n'));
}

}  // namespace

QString RightsAdvice(const QStringList& unreadable, bool needs_uinput) {
  if (needs_uinput && !IsUinputThere()) {
    return QStringLiteral("%1 is not there. As root: modprobe uinput").arg(QLatin1String(kUinput));
  }
  const QString uinput = needs_uinput ? UinputProblem() : QString();
  QStringList problems{DevicesProblem(unreadable), uinput};
  problems.removeAll(QString());
  if (problems.isEmpty()) return {};
  problems += WayOut(!uinput.isEmpty() && !IsUinputOfGroup());
  return problems.join(QLatin1Char('\n'));
}

}  // namespace tavi
