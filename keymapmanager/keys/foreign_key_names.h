// What keys are called elsewhere: in other programs, on keycaps, by people.
#ifndef KEYMAPMANAGER_KEYS_FOREIGN_KEY_NAMES_H_
#define KEYMAPMANAGER_KEYS_FOREIGN_KEY_NAMES_H_

#include <QString>

namespace tavikeymapmanager {

// Our name of the key that is called `word` elsewhere; of a pair of keys, the left one. Case, blanks, hyphens and
// underscores do not count. Empty for a word that no row has. Any thread.
QString KeyNameFromElsewhere(const QString& word);

}  // namespace tavikeymapmanager

#endif  // KEYMAPMANAGER_KEYS_FOREIGN_KEY_NAMES_H_
