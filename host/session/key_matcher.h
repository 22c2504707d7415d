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

// Tells which item of the keymaps an event is for, by the rules of the library: a chord before a key alone, and the
// release of a chord to the item that its press was for.
//
// Main thread.
class KeyMatcher {
 public:
  // The keymaps in use, of which null is none. They are not owned, and must live until the next call.
  void SetKeymaps(const tavikeymapmanager::LoadResult* keymap, const tavikeymapmanager::LoadResult* joystick);

  // "Jump, line 12"; empty where no item answers. Each event is to be told once, in order.
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
  tavikeymapmanager::ConfigKey armed_;                       // held, and no item's: a chord may follow
  QHash<int, const tavikeymapmanager::ConfigItem*> chords_;  // that are held, by the scan code of their second key
  QStringList held_buttons_;                                 // of gamepads, as the library calls them
};

}  // namespace tavi

#endif  // HOST_SESSION_KEY_MATCHER_H_
