// Input: bytes as the commands of two macros, which their keys run beside the other items of a keymap.
#include <QKeyEvent>

#include "fuzz/bounded_macro.h"
#include "fuzz/check.h"
#include "fuzz/session.h"
#include "keymap/tavikeymapmanager.h"
#include "keymapmanager/key_names.h"
#include "taviinputmanager/taviinputmanager.h"
#include "tests/support/keymap_source.h"

namespace taviinputmanager::fuzz {
namespace {

using namespace tavikeymapmanager;

constexpr int kDisplay = 1;
const QString kKeymapPath = QStringLiteral("macro.yaml");  // one text for all loads: each new path would be stored
constexpr char kSection[] = "\n--\n";

template <typename Item>
Item* Add(KeymapConfig* config, const QString& type, const QString& key) {
  auto* item = new Item;
  item->type = type;
  item->key = KeyFromName(key).value_or(ConfigKey());
  item->rel_x = 0.1 * (1 + config->items.size());
  item->rel_y = 0.5;
  config->items.append(item);
  return item;
}

void AddMacro(KeymapConfig* config, const QString& key, const QString& press, const QString& release) {
  auto* macro = Add<OperationRecorderConfigItem>(config, keywords::kTypeMacro, key);
  macro->press_commands = BoundedMacro(press);
  macro->release_commands = BoundedMacro(release);
}

// The items that the input of macros may reach: a tap, a walk, a view, a pinch.
KeymapConfig* MakeKeymap(const QStringList& sections) {
  auto* config = new KeymapConfig;
  config->settings = new KeymapSettings;
  config->wheel_settings = new WheelSettings;
  config->settings->keyboard_transparent = true;
  AddMacro(config, "F1", sections.value(0), sections.value(1));
  AddMacro(config, "F2", sections.value(2), sections.value(3));
  Add<ConfigItem>(config, keywords::kTypeClick, "F");
  Add<ConfigItem>(config, keywords::kTypeClick, "Mouse Left");
  auto* walk = Add<SwipeholdConfigItem>(config, keywords::kTypeSwipehold, "W");
  walk->key_up = walk->key;
  walk->key_left = KeyFromName("A").value_or(ConfigKey());
  if (!sections.value(4).isEmpty()) {
    Add<StaringConfigItem>(config, keywords::kTypeStaring, "Grave");
    config->wheel_settings->wheel_zoom = true;
  }
  return config;
}

void SendKey(QEvent::Type type, quint32 scan_code) {
  QKeyEvent event(type, 0, Qt::NoModifier, scan_code, 0, 0);
  OnQtInputEvent(&event);
  Session::Get().Time().Settle();
}

}  // namespace
}  // namespace taviinputmanager::fuzz

// The lists follow each other, separated by a line of two dashes: press and release of the first macro, press and
// release of the second; a fifth makes the keymap one with a view.
extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  using namespace taviinputmanager::fuzz;
  constexpr quint32 kFirstKey = 59;
  constexpr quint32 kSecondKey = 60;
  Session& session = Session::Get();
  const QString text = QString::fromUtf8(reinterpret_cast<const char*>(data), static_cast<int>(size));
  taviinputmanager::test::SetNextKeymap(MakeKeymap(text.split(kSection)));
  taviinputmanager::OnLoadKeymapConfigAndInfo(kKeymapPath, "com.example.game", {}, kDisplay);

  SendKey(QEvent::KeyPress, kFirstKey);
  session.Time().Advance(100);
  SendKey(QEvent::KeyPress, kSecondKey);
  session.Time().Advance(100);
  SendKey(QEvent::KeyRelease, kFirstKey);
  session.Time().Advance(300);
  SendKey(QEvent::KeyRelease, kSecondKey);
  session.Time().Advance(300);
  session.CheckThatNothingStaysDown(kDisplay);
  session.Finish();
  return 0;
}
