// A seeded stream of input as a host feeds it, over all example keymaps.
#ifndef TESTS_SUPPORT_RANDOM_INPUT_H_
#define TESTS_SUPPORT_RANDOM_INPUT_H_

#include <random>

#include <QPointF>
#include <QString>
#include <QStringList>
#include <QVector>

#include "host/simulation/script.h"
#include "keymap/config_key.h"

namespace taviinputmanager {

// The same seed gives the same stream.
class RandomInput {
 public:
  explicit RandomInput(int seed);

  int Below(int limit) { return static_cast<int>(random_() % static_cast<unsigned>(limit)); }
  bool OneIn(int n) { return Below(n) == 0; }
  // In and around a view of 1280 x 720.
  QPointF SomePoint() { return {static_cast<double>(Below(1400) - 60), static_cast<double>(Below(840) - 60)}; }
  QString SomeText();
  // A key, a mouse, wheel, touch, text or gamepad event, relative counts, or a wait.
  tavi::ScriptCommand SomeCommand();

  const QVector<tavikeymapmanager::ConfigKey>& Keys() const { return keys_; }
  // Paths of keymaps, and of those among them that are for gamepads.
  const QStringList& Keymaps() const { return keymaps_; }
  const QStringList& JoystickKeymaps() const { return joystick_keymaps_; }

 private:
  void AddKey(const QString& name);
  // Of all layouts, the hat, and some unknown ones.
  QString SomePadButton();

  std::mt19937 random_;
  QVector<tavikeymapmanager::ConfigKey> keys_;
  QStringList keymaps_;
  QStringList joystick_keymaps_;
};

}  // namespace taviinputmanager

#endif  // TESTS_SUPPORT_RANDOM_INPUT_H_
