#include "host/uinput/text_typing.h"

#include <linux/input-event-codes.h>

#include <QStringList>

#include "host/uinput/event_frame.h"
#include "host/uinput/typed_keys.h"

namespace tavi {

namespace {

KernelEvents KeyFrame(int code, bool down) { return EventFrame(KernelDevice::kKeyboard).Key(code, down).Close(); }

KernelEvents Click(const TypedKey& key) {
  const KernelEvents click = KeyFrame(key.code, true) + KeyFrame(key.code, false);
  if (key.modifier == 0) return click;
  return KeyFrame(key.modifier, true) + click + KeyFrame(key.modifier, false);
}

QString NameOfCharacter(uint character) {
  return QStringLiteral("U+%1").arg(QString::number(character, 16).toUpper(), 4, QLatin1Char('0'));
}

}  // namespace

Translation TypeText(const QString& text) {
  Translation result;
  QStringList missing;
  for (const uint character : text.toUcs4()) {
    const std::optional<TypedKey> key = KeyThatTypes(character);
    if (key) {
      result.events += Click(*key);
    } else {
      missing += NameOfCharacter(character);
    }
  }
  if (!missing.isEmpty()) result.problem = QStringLiteral("no key types ") + missing.join(QStringLiteral(", "));
  return result;
}

Translation TypeControl(const QString& name) {
  if (name == QLatin1String("ENTER")) return {Click({KEY_ENTER}), {}};
  if (name == QLatin1String("BACKSPACE")) return {Click({KEY_BACKSPACE}), {}};
  return {{}, QStringLiteral("there is no such control")};
}

}  // namespace tavi
