// The known word that a misspelt one was most likely meant to be.
//
// Threads: any.
#ifndef KEYMAPMANAGER_NEAREST_WORD_H_
#define KEYMAPMANAGER_NEAREST_WORD_H_

#include <QString>
#include <QStringList>

#include "keymap/keymap_export.h"

namespace tavikeymapmanager {

// The word of `known` that takes the fewest changed, added, missing or swapped letters, the case of letters aside; the
// first of equals. Empty when even that one is too far to have been meant: more than a third of its letters.
TAVI_KEYMAP_EXPORT QString NearestWord(const QString& word, const QStringList& known);

// "; did you mean 'x'?" for the nearest word, or nothing.
TAVI_KEYMAP_EXPORT QString DidYouMean(const QString& word, const QStringList& known);

}  // namespace tavikeymapmanager

#endif  // KEYMAPMANAGER_NEAREST_WORD_H_
