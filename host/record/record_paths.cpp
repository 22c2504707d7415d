#include "host/record/record_paths.h"

#include <cmath>

#include "host/record/record_action_check.h"
#include "host/record/record_file.h"

namespace tavi {

namespace {

constexpr double kFarthest = 10;  // displays away from the corner; nothing would be visible

// Also false if it is not a number.
bool IsNear(const QPointF& point) { return std::abs(point.x()) <= kFarthest && std::abs(point.y()) <= kFarthest; }

class ContactFollower {
 public:
  explicit ContactFollower(const RecordPart& root) : root_(root) {}

  RecordPaths Follow() {
    paths_.walk = WalkRecord(
        root_, 1, [this](const WalkStep& step) { Visit(step); }, kMostDrawnSteps);
    return paths_;
  }

 private:
  void Visit(const WalkStep& step) {
    if (root_.is_merged) ExtendPart(step);
    ms_ = step.at_ms;
    if (!step.action) return;
    if (step.action->type == QLatin1String("touch")) {
      Apply(ReadTouch(*step.action));
    } else {
      ++paths_.not_drawn[step.action->type];
    }
  }

  // A part starts at the end of the previous step; the pause after it is not its own.
  void ExtendPart(const WalkStep& step) {
    if (step.part != part_) {
      part_ = step.part;
      paths_.parts.append({root_.parts[static_cast<std::size_t>(part_)].control.file_name, ms_, ms_});
    }
    if (step.action) paths_.parts.last().end_ms = step.at_ms;
  }

  void Apply(const RecordTouch& touch) {
    switch (touch.kind) {
      case RecordTouch::Kind::kDropped: return;
      case RecordTouch::Kind::kPress:
        for (const RecordContact& contact : touch.contacts) Put(contact);
        return;
      case RecordTouch::Kind::kRelease:
        for (const RecordContact& contact : touch.contacts) Lift(contact.slot);
        return;
      case RecordTouch::Kind::kReset:
        for (const int slot : down_.keys()) Lift(slot);
        return;
    }
  }

  void Put(const RecordContact& contact) {
    if (!IsNear(contact.point)) return;
    if (!down_.contains(contact.slot)) {
      down_[contact.slot] = paths_.contacts.size();
      paths_.contacts.append(ContactPath());
    }
    paths_.contacts[down_[contact.slot]].points.append({ms_, contact.point});
  }

  void Lift(int slot) {
    if (!down_.contains(slot)) return;  // a reset, or a release of a contact that is not down
    ContactPath& path = paths_.contacts[down_.take(slot)];
    path.is_up = true;
    path.up_ms = ms_;
  }

  const RecordPart& root_;
  RecordPaths paths_;
  QMap<int, int> down_;  // slot of the file to index of its contact
  qint64 ms_ = 0;
  int part_ = -1;
};

}  // namespace

RecordPaths FollowContacts(const RecordPart& root) { return ContactFollower(root).Follow(); }

}  // namespace tavi
