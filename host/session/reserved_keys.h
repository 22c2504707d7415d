#ifndef HOST_SESSION_RESERVED_KEYS_H_
#define HOST_SESSION_RESERVED_KEYS_H_

#include <functional>
#include <vector>

#include <QObject>
#include <QStringList>
#include <QVector>

#include "host/session/key_combination.h"

class QKeyEvent;

namespace tavikeymapmanager {
struct Diagnostic;
struct KeymapConfig;
struct LoadResult;
}  // namespace tavikeymapmanager

namespace tavi {

// Keys that the program reserves for itself. In a window they are filtered from all events of the application before
// any widget sees them, so that neither a keymap nor a text field nor a dialog gets them, whatever has the focus.
//
// A press acts once, however long the key is held. Main thread.
class ReservedKeys : public QObject {
  Q_OBJECT

 public:
  // `keeper` is who reserves them, as diagnostics name it.
  explicit ReservedKeys(const QString& keeper = QStringLiteral("the window"), QObject* parent = nullptr);
  ~ReservedKeys() override;

  // Reserves a key for `id`. From now on `action` is called at each press, in place of an earlier one for the same
  // `id`. `option` is the command line option that sets another key.
  void Reserve(int id, const KeyCombination& combination, const char* option, std::function<void()> action);

  // The key as the user wrote it; empty if none is reserved for `id`.
  QString NameOf(int id) const;

  // A message about the reserved keys that items of the keymap use and will never get.
  QStringList NewsOf(tavikeymapmanager::KeymapConfig* config) const;
  // A warning for each item of the keymap that loses a key to one of them, in the order of the items. A key that is
  // reserved only with modifiers is lost to an item if a player may hold the modifiers: if they are keys of this keymap
  // as well.
  QVector<tavikeymapmanager::Diagnostic> FindingsIn(const tavikeymapmanager::LoadResult& keymap) const;

  // Whether an event belongs to such a key, in which case the key has acted: for a host whose keys come from no window.
  bool Take(QEvent* event);

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  struct Entry {
    int id;
    KeyCombination combination;
    const char* option;
    std::function<void()> action;
    bool is_down = false;
    unsigned long released_at =
        0;  // the window system's timestamp; a repeat is a release and a press with the same one
  };

  bool TakePress(const QKeyEvent& event);
  bool TakeRelease(const QKeyEvent& event);

  const QString keeper_;
  std::vector<Entry> entries_;
};

}  // namespace tavi

#endif  // HOST_SESSION_RESERVED_KEYS_H_
