#include "tests/support/random_input.h"

#include <iterator>

#include <QDir>
#include <QRegularExpression>

#include "keymapmanager/key_names.h"
#include "test_folders.h"

namespace taviinputmanager {

using Kind = tavi::ScriptCommand::Kind;
using tavi::ScriptCommand;

RandomInput::RandomInput(int seed) : random_(static_cast<unsigned>(seed)) {
  for (const QString& name : tavikeymapmanager::AllKeyNames()) AddKey(name);
  // The keys that keymaps use are more frequent than the hundred others.
  for (const char* name : {"W", "A", "S", "D", "Q", "E", "R", "F", "Space", "Left Shift", "Grave", "Left Alt", "Esc"}) {
    for (int i = 0; i < 8; ++i) AddKey(name);
  }
  const QDir folder(QStringLiteral(TAVI_SOURCE_DIR "/examples/keymaps"));
  for (const QFileInfo& file : folder.entryInfoList({"*.yaml"}, QDir::Files, QDir::Name)) {
    keymaps_.append(file.filePath());
  }
  for (const char* name : {"every_gesture.yaml", "every_pad.yaml"}) {
    keymaps_.append(QStringLiteral(TAVI_SOURCE_DIR "/tests/data/keymaps/good/") + name);
  }
  joystick_keymaps_ = keymaps_.filter(QRegularExpression("(gamepad|every_pad)\\.yaml$"));
}

void RandomInput::AddKey(const QString& name) {
  const auto key = tavikeymapmanager::KeyFromName(name);
  if (key && key->device == "keyboard") keys_.append(*key);
}

QString RandomInput::SomePadButton() {
  static const QStringList names = {"A",     "B",    "X", "Y", "LB", "RB", "LT", "RT", "LA",   "RA",
                                    "Start", "Back", "↑", "↓", "←",  "→",  "",   "A+", "Guide"};
  return OneIn(6) ? QString::number(Below(20)) : names[Below(names.size())];
}

QString RandomInput::SomeText() {
  static const QStringList texts = {"a", "abc", "Hello, World 9", "é€", "😀", "a:b", "two\nlines", "\t"};
  return texts[Below(texts.size())];
}

ScriptCommand RandomInput::SomeCommand() {
  static const Kind kinds[] = {
      Kind::kKeyDown, Kind::kKeyDown,  Kind::kKeyDown,     Kind::kKeyUp,     Kind::kKeyUp,     Kind::kKeyUp,
      Kind::kMove,    Kind::kMove,     Kind::kRelative,    Kind::kRelative,  Kind::kMouseDown, Kind::kMouseUp,
      Kind::kWheel,   Kind::kWait,     Kind::kWait,        Kind::kWait,      Kind::kWait,      Kind::kTouchBegin,
      Kind::kCommit,  Kind::kTouchEnd, Kind::kTouchUpdate, Kind::kJoyDown,   Kind::kJoyDown,   Kind::kJoyUp,
      Kind::kJoyUp,   Kind::kJoyAxis,  Kind::kJoyAxis,     Kind::kKeyRepeat, Kind::kType,      Kind::kCompose,
  };
  static const int buttons[] = {Qt::LeftButton, Qt::LeftButton, Qt::RightButton, Qt::MiddleButton, Qt::BackButton};
  ScriptCommand command;
  command.kind = kinds[Below(static_cast<int>(std::size(kinds)))];
  command.key = keys_[Below(keys_.size())];
  command.point = SomePoint();
  command.number = Below(40);
  const bool is_pad = command.kind == Kind::kJoyDown || command.kind == Kind::kJoyUp;
  command.text = is_pad ? SomePadButton() : SomeText();
  if (command.kind == Kind::kMouseDown || command.kind == Kind::kMouseUp) {
    command.key.scancode = buttons[Below(static_cast<int>(std::size(buttons)))];
  }
  if (command.kind == Kind::kWheel) command.number = (Below(3) - 1) * 120;
  if (command.kind == Kind::kRelative) command.point = QPointF(Below(81) - 40, Below(81) - 40);
  if (command.kind == Kind::kJoyAxis) {
    command.number = Below(3);
    command.point = OneIn(3) ? QPointF() : QPointF(Below(201) - 100, Below(201) - 100) / 100;
  }
  for (int id = Below(3); id < 10 && !OneIn(3); ++id) command.touches.append({id, SomePoint()});
  return command;
}

}  // namespace taviinputmanager
