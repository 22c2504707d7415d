// Suggests the known word that a misspelt one most likely meant.
//
// Any thread.
#ifndef KEYMAPMANAGER_NEAREST_WORD_H_
#define KEYMAPMANAGER_NEAREST_WORD_H_

#include <QString>
#include <QStringList>

#include "keymap/keymap_export.h"

namespace tavikeymapmanager {

// The word of `known` with the fewest changed, added, missing or swapped letters compared with `word`, ignoring case;
// the first of equals. Empty if even that one differs in more than a third of its letters.
TAVI_KEYMAP_EXPORT QString NearestWord(const QString& word, const QStringList& known);

// "; did you mean 'x'?" with the nearest word, or an empty string.
TAVI_KEYMAP_EXPORT QString DidYouMean(const QString& word, const QStringList& known);

}  // namespace tavikeymapmanager

#endif  // KEYMAPMANAGER_NEAREST_WORD_H_
