#ifndef HOST_SESSION_KEY_COMBINATION_H_
#define HOST_SESSION_KEY_COMBINATION_H_

#include <QString>
#include <QVector>
#include <Qt>

class QKeyEvent;

namespace tavi {

// A key of the keyboard and the modifiers that go with it, for what the window keeps for itself: "Ctrl+Alt+Backspace".
struct KeyCombination {
  // Whether the event is of this key while the modifiers are held. Further modifiers do not matter: a player who runs
  // holds one.
  bool Matches(const QKeyEvent& event) const;
  bool IsKeyOf(const QKeyEvent& event) const;

  QString name;      // as it was written, for people
  int scancode = 0;  // Windows scan code, the extended bit as 0x100
  Qt::KeyboardModifiers modifiers = Qt::NoModifier;
};

// What a modifier is called, and the keys that are it, by their scan codes.
struct ModifierKeys {
  QString name;
  QVector<int> scancodes;
};

// Those that go with the key, in the order of their names in a combination.
QVector<ModifierKeys> ModifiersOf(const KeyCombination& combination);

// Reads modifiers (Ctrl, Alt, Shift, Meta) and a key as keymaps call it, joined by "+". Returns what is wrong, or
// nothing.
QString ParseKeyCombination(const QString& text, KeyCombination* combination);

}  // namespace tavi

#endif  // HOST_SESSION_KEY_COMBINATION_H_
