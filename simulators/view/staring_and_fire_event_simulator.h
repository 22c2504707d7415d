// View control, fire and observe.
#ifndef SIMULATORS_VIEW_STARING_AND_FIRE_EVENT_SIMULATOR_H_
#define SIMULATORS_VIEW_STARING_AND_FIRE_EVENT_SIMULATOR_H_

#include <memory>
#include <mutex>

#include "simulators/event_simulator.h"

namespace tavikeymapmanager {
struct SpellCancelConfigItem;
struct StaringConfigItem;
}  // namespace tavikeymapmanager

namespace taviinputmanager {

class StaringWmRelativeInputWorker;

// Switches the status of the input layer between view control, observing and neither, by keys, and passes the relative
// counts to one of three workers: staring, unless a fire key in relative mode or an observe key is held. The key
// pressed last gets the counts; the first of them to be released returns them to staring.
//
// Works on copies: counts may arrive after the keymap of an item was deleted. Main thread.
class StaringAndFireEventSimulator : public EventSimulator {
  Q_OBJECT

 public:
  static StaringAndFireEventSimulator* GetInstance() {
    static StaringAndFireEventSimulator instance;
    return &instance;
  }

  void Press(tavikeymapmanager::ConfigItem* item, tavikeymapmanager::ConfigKey* key) override;
  void Release(tavikeymapmanager::ConfigItem* item, tavikeymapmanager::ConfigKey* key) override;
  // The relative counts of one host event, while view control or observing is on.
  void OnRelativeInput(int dx, int dy);
  // Stops the timer that releases the view contact.
  void StopAutoReset();

 public Q_SLOTS:
  // The spell-cancel key was pressed while a fire key in relative mode is held.
  void OnSpellCancelPressed(tavikeymapmanager::SpellCancelConfigItem& item);

 private:
  // The owner of the relative counts.
  enum class RelativeRoute { kFire = 1, kStaring = 2, kObserve = 3 };

  StaringAndFireEventSimulator();
  ~StaringAndFireEventSimulator() override;

  void ConnectWorkers();
  void ToggleStaring(const tavikeymapmanager::ConfigItem* item, const QString& key_text);
  void PressObserve(const tavikeymapmanager::ConfigItem* item, const QString& key_text);
  void LiftViewFinger();

  StaringWmRelativeInputWorker* const staring_;  // the singleton
  std::once_flag connected_;                     // the workers' signals, at the first press
  std::unique_ptr<const tavikeymapmanager::StaringConfigItem> staring_item_;  // of the key that turned view control on
  bool has_observe_item_ = false;  // observing was entered from outside view control, since that was last left
  RelativeRoute relative_route_ = RelativeRoute::kStaring;
};

}  // namespace taviinputmanager

#endif  // SIMULATORS_VIEW_STARING_AND_FIRE_EVENT_SIMULATOR_H_
