// Walking by four keys.
#ifndef SIMULATORS_WALK_SWIPEHOLD_EVENT_SIMULATOR_H_
#define SIMULATORS_WALK_SWIPEHOLD_EVENT_SIMULATOR_H_

#include <functional>
#include <vector>

#include <QPointF>

#include "keymap/swipehold_config_item.h"
#include "simulators/event_simulator.h"

namespace taviinputmanager {

class SwipeholdAsyncWorker;

// Hands the keys of a walk to its worker, and to the inner walk of a cast while that one is entered. A "Transparent"
// walk passes its keys on to the guest instead.
//
// Ownership: every item is copied where it comes in, so that nothing here outlives a keymap or needs an inner item to
// be kept; a caller may delete what it gave right after the call. Main thread.
class SwipeholdEventSimulator : public EventSimulator {
  Q_OBJECT

 public:
  static SwipeholdEventSimulator* GetInstance();

  void Press(tavikeymapmanager::ConfigItem* item, tavikeymapmanager::ConfigKey* key) override;
  void Release(tavikeymapmanager::ConfigItem* item, tavikeymapmanager::ConfigKey* key) override;

  // Part of a reset of all input, after the keys of the walk were forgotten. Stops no timer: a first slide ends at its
  // next tick, a later move in its own time.
  void Reset();
  // The walk's radius becomes `factor` times that of its item.
  void SetRadiusFactor(double factor);

  // ---- The inner walk of a cast ----
  // While on, keys go to the other workers alone.
  void SetExclusiveInner(bool exclusive) { exclusive_inner_ = exclusive; }
  // Enters `item` for `worker`, in place of what it had. From then on the worker gets the keys too; its item takes on
  // the walk's four keys at the next of them. The worker itself keeps the item that it has. Null: nothing.
  void AddWorker(SwipeholdAsyncWorker* worker, const tavikeymapmanager::SwipeholdConfigItem* item);
  // Without effect on a walk of the worker that is under way.
  void RemoveWorker(SwipeholdAsyncWorker* worker);
  // The other workers begin walks of their own with the keys that the ordinary one holds; that one ends if they are
  // exclusive.
  void EntrustToInner();
  // The ordinary walk takes over the keys of the first of the others, whose walk ends.
  void CancelEntrustToInner();

  // Calls back at once with the point of the walk's stick, in radii from its centre.
  void QueryPoint(const std::function<void(QPointF)>& callback);
  // The same for the left virtual stick; a virtual stick answers with its own point.
  void QueryVirtualPoint(const std::function<void(QPointF)>& callback);

 Q_SIGNALS:
  // The walk's stick, in radii from its centre; (0, 0) when it is let go. Silent until the first press or query.
  void sigSwipeholdTargetPointChanged(QPointF& point);

 protected:
  SwipeholdEventSimulator();
  ~SwipeholdEventSimulator() override;

  // The index of the worker that QueryVirtualPoint asks.
  virtual int VirtualStickIndex() const;

 private:
  struct Entry {
    SwipeholdAsyncWorker* worker = nullptr;  // a singleton
    tavikeymapmanager::SwipeholdConfigItem item;
  };

  using KeyOperation = void (SwipeholdAsyncWorker::*)(tavikeymapmanager::ConfigItem*, tavikeymapmanager::ConfigKey*);

  // From the first call on, the singleton's signal follows that of the walk's worker.
  static void FollowWalk();
  // Enters a pressed or released item for the walk and gives the other workers its keys. The item as a walk's, or null.
  const tavikeymapmanager::SwipeholdConfigItem* Enter(const tavikeymapmanager::ConfigItem* item);
  // Runs a press or release of `key` on every worker that takes part.
  void Forward(KeyOperation operation, tavikeymapmanager::ConfigKey* key);

  bool exclusive_inner_ = false;
  std::vector<Entry> workers_;  // in order of index, the walk's first
};

}  // namespace taviinputmanager

#endif  // SIMULATORS_WALK_SWIPEHOLD_EVENT_SIMULATOR_H_
