// The names of keys in other programs, on keycaps and in everyday language.
#ifndef KEYMAPMANAGER_KEYS_FOREIGN_KEY_NAMES_H_
#define KEYMAPMANAGER_KEYS_FOREIGN_KEY_NAMES_H_

#include <QString>

namespace tavikeymapmanager {

// Our name of the key that is elsewhere named `word`; for a pair of keys, the left one. Case, blanks, hyphens and
// underscores do not matter. Empty for an unknown word. Any thread.
QString KeyNameFromElsewhere(const QString& word);

}  // namespace tavikeymapmanager

#endif  // KEYMAPMANAGER_KEYS_FOREIGN_KEY_NAMES_H_
