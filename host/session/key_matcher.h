#ifndef HOST_SESSION_KEY_MATCHER_H_
#define HOST_SESSION_KEY_MATCHER_H_

#include <QHash>
#include <QString>
#include <QStringList>

#include "host/session/host_event.h"
#include "keymap/item_index.h"

namespace tavikeymapmanager {
struct LoadResult;
}

namespace tavi {

// Finds the item of the keymaps that an event is for, by the rules of the library: a chord takes precedence over a
// single key, and the release of a chord goes to the item that got its press.
//
// Main thread.
class KeyMatcher {
 public:
  // The keymaps in use; either may be null. They are not owned, and must exist until the next call.
  void SetKeymaps(const tavikeymapmanager::LoadResult* keymap, const tavikeymapmanager::LoadResult* joystick);

  // "Jump, line 12"; empty if no item matches. Call it once for each event, in order.
  QString Match(const HostEvent& event);

 private:
  struct Source {
    QString Describe(const tavikeymapmanager::ConfigItem* item) const;
    const tavikeymapmanager::LoadResult* keymap = nullptr;
    tavikeymapmanager::ItemIndex index;
  };

  QString MatchKey(const HostEvent& event);
  QString MatchPad(const HostEvent& event);

  Source keymap_;
  Source joystick_;
  tavikeymapmanager::ConfigKey armed_;                       // held without an item: a chord may follow
  QHash<int, const tavikeymapmanager::ConfigItem*> chords_;  // held chords, by the scan code of their second key
  QStringList held_buttons_;                                 // of gamepads, by the library's names
};

}  // namespace tavi

#endif  // HOST_SESSION_KEY_MATCHER_H_
