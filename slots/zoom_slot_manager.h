// Whether a pinch by key is in progress.
#ifndef SLOTS_ZOOM_SLOT_MANAGER_H_
#define SLOTS_ZOOM_SLOT_MANAGER_H_

namespace taviinputmanager {

// Has no slot of its own: a pinch takes two from the macro pool. Main thread only.
class ZoomSlotManager {
 public:
  static ZoomSlotManager* GetInstance() {
    static ZoomSlotManager instance;
    return &instance;
  }

  virtual ~ZoomSlotManager() = default;
  virtual void Reset() { busy = false; }

  bool busy = false;  // no other pinch starts; stays set if the pool did not have two slots

 private:
  ZoomSlotManager() = default;
};

}  // namespace taviinputmanager

#endif  // SLOTS_ZOOM_SLOT_MANAGER_H_
