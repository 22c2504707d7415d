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

// Keys that the program keeps for itself. In a window they are taken from all events of the application before any
// widget sees them, so that neither a keymap nor a text field nor a dialog gets them, whatever has the focus.
//
// A press acts once, however long the key is held. Main thread.
class ReservedKeys : public QObject {
  Q_OBJECT

 public:
  // `keeper` is who keeps them, as findings name it.
  explicit ReservedKeys(const QString& keeper = QStringLiteral("the window"), QObject* parent = nullptr);
  ~ReservedKeys() override;

  // `action` is called at each press, from now on, in place of what was called before for the same `id`.
  // `option` of the command line takes another key.
  void Reserve(int id, const KeyCombination& combination, const char* option, std::function<void()> action);

  // The key as it was written; empty when none was reserved for `id`.
  QString NameOf(int id) const;

  // What a person is told of those that an item of the keymap answers to, which will never get them.
  QStringList NewsOf(tavikeymapmanager::KeymapConfig* config) const;
  // A warning for each item of the keymap that one of them is taken from, in the order of the items. A key that is the
  // window's with modifiers alone is taken from an item where a player may come to hold them: where they are keys of
  // this keymap as well.
  QVector<tavikeymapmanager::Diagnostic> FindingsIn(const tavikeymapmanager::LoadResult& keymap) const;

  // Whether an event is such a key's, in which case it has acted: for a host whose keys come by no window.
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
    unsigned long released_at = 0;  // the window system's time; a key that repeats is let go and pressed at one time
  };

  bool TakePress(const QKeyEvent& event);
  bool TakeRelease(const QKeyEvent& event);

  const QString keeper_;
  std::vector<Entry> entries_;
};

}  // namespace tavi

#endif  // HOST_SESSION_RESERVED_KEYS_H_
