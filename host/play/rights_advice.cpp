#include "host/play/rights_advice.h"

#include <grp.h>
#include <unistd.h>
#include <vector>

namespace tavi {

namespace {

constexpr char kUinput[] = "/dev/uinput";

// The number of the group; nothing where there is no such group.
bool FindGroup(const char* name, gid_t* number) {
  const group* entry = getgrnam(name);
  if (entry) *number = entry->gr_gid;
  return entry != nullptr;
}

// Of this process: what a user was added to since counts from the next login on.
bool IsMember(gid_t group) {
  const int count = getgroups(0, nullptr);
  if (count < 0) return false;
  std::vector<gid_t> groups(static_cast<std::size_t>(count));
  getgroups(count, groups.data());
  for (const gid_t mine : groups) {
    if (mine == group) return true;
  }
  return getegid() == group;
}

bool IsUinputThere() { return access(kUinput, F_OK) == 0; }

QString UinputProblem() {
  if (access(kUinput, W_OK) == 0) return {};
  return QStringLiteral("%1 may not be written to, which the touch screen is made through").arg(QLatin1String(kUinput));
}

QString DevicesProblem(const QStringList& unreadable) {
  if (unreadable.isEmpty()) return {};
  return QStringLiteral("%1 may not be read").arg(unreadable.join(QStringLiteral(", ")));
}

// By the package's group, or where there is none by hand.
QString WayOut() {
  gid_t group = 0;
  if (!FindGroup(kDeviceGroup, &group)) {
    return QStringLiteral(
        "The Debian package of tavi brings a rule of udev and the group \"tavi\" for it; docs/play.md tells the same "
        "by "
        "hand. As root it works at once.");
  }
  if (IsMember(group)) {
    return QStringLiteral(
        "You are in the group \"tavi\", so the rule of udev is not at work yet. As root: udevadm control --reload; "
        "udevadm trigger --subsystem-match=input --subsystem-match=misc");
  }
  return QStringLiteral("The group \"tavi\" may. As root: adduser YOUR-NAME tavi. Then log out and in again.");
}

}  // namespace

QString RightsAdvice(const QStringList& unreadable, bool needs_uinput) {
  if (needs_uinput && !IsUinputThere()) {
    return QStringLiteral("%1 is not there. As root: modprobe uinput").arg(QLatin1String(kUinput));
  }
  QStringList problems{DevicesProblem(unreadable), needs_uinput ? UinputProblem() : QString()};
  problems.removeAll(QString());
  if (problems.isEmpty()) return {};
  return problems.join(QLatin1Char('\n')) + QLatin1Char('\n') + WayOut();
}

}  // namespace tavi
