// Walking with four keys.
#ifndef SIMULATORS_WALK_SWIPEHOLD_EVENT_SIMULATOR_H_
#define SIMULATORS_WALK_SWIPEHOLD_EVENT_SIMULATOR_H_

#include <functional>
#include <vector>

#include <QPointF>

#include "keymap/swipehold_config_item.h"
#include "simulators/event_simulator.h"

namespace taviinputmanager {

class SwipeholdAsyncWorker;

// Passes the keys of a walk to its worker, and to the inner walk of a cast while that is active. A "Transparent" walk
// passes its keys through to the guest instead.
//
// Ownership: every item is copied on entry, so that nothing here outlives a keymap or keeps an inner item; a caller may
// delete its item right after the call. Main thread.
class SwipeholdEventSimulator : public EventSimulator {
  Q_OBJECT

 public:
  static SwipeholdEventSimulator* GetInstance();

  void Press(tavikeymapmanager::ConfigItem* item, tavikeymapmanager::ConfigKey* key) override;
  void Release(tavikeymapmanager::ConfigItem* item, tavikeymapmanager::ConfigKey* key) override;

  // Part of a reset of all input, after the keys of the walk were reset. Stops no timer: a first slide ends at its next
  // tick, a later move when it is due.
  void Reset();
  // Sets the walk's radius to `factor` times that of its item.
  void SetRadiusFactor(double factor);

  // ---- The inner walk of a cast ----
  // While on, only the other workers get keys.
  void SetExclusiveInner(bool exclusive) { exclusive_inner_ = exclusive; }
  // Enters `item` for `worker`, replacing its previous one. From then on the worker gets the keys too; its item gets
  // the walk's four keys at the next of them. The worker itself keeps its own item. Null: does nothing.
  void AddWorker(SwipeholdAsyncWorker* worker, const tavikeymapmanager::SwipeholdConfigItem* item);
  // Has no effect on a walk of the worker that is in progress.
  void RemoveWorker(SwipeholdAsyncWorker* worker);
  // The other workers begin walks of their own with the keys that the ordinary walk holds; the latter ends if they are
  // exclusive.
  void EntrustToInner();
  // The ordinary walk takes over the keys of the first of the others, whose walk ends.
  void CancelEntrustToInner();

  // Calls back synchronously with the point of the walk's stick, in radii from its centre.
  void QueryPoint(const std::function<void(QPointF)>& callback);
  // The same for the left virtual stick; it reports its own point.
  void QueryVirtualPoint(const std::function<void(QPointF)>& callback);

 Q_SIGNALS:
  // The walk's stick, in radii from its centre; (0, 0) when it is released. Nothing is emitted before the first press
  // or query.
  void sigSwipeholdTargetPointChanged(QPointF& point);

 protected:
  SwipeholdEventSimulator();
  ~SwipeholdEventSimulator() override;

  // The index of the worker whose point QueryVirtualPoint returns.
  virtual int VirtualStickIndex() const;

 private:
  struct Entry {
    SwipeholdAsyncWorker* worker = nullptr;  // a singleton
    tavikeymapmanager::SwipeholdConfigItem item;
  };

  using KeyOperation = void (SwipeholdAsyncWorker::*)(tavikeymapmanager::ConfigItem*, tavikeymapmanager::ConfigKey*);

  // From the first call on, the singleton forwards the signal of the walk's worker.
  static void FollowWalk();
  // Enters a pressed or released item for the walk and gives its keys to the other workers. Returns the item as a
  // walk's, or null.
  const tavikeymapmanager::SwipeholdConfigItem* Enter(const tavikeymapmanager::ConfigItem* item);
  // Passes a press or release of `key` to every active worker.
  void Forward(KeyOperation operation, tavikeymapmanager::ConfigKey* key);

  bool exclusive_inner_ = false;
  std::vector<Entry> workers_;  // in order of index, the walk's first
};

}  // namespace taviinputmanager

#endif  // SIMULATORS_WALK_SWIPEHOLD_EVENT_SIMULATOR_H_
