#include "tests/support/keymap_source.h"

#include <utility>

#include "keymap/keymap_functions.h"

namespace taviinputmanager::test {
namespace {

using tavikeymapmanager::KeymapConfig;

struct Source {
  KeymapConfig* keymap = nullptr;
  KeymapConfig* joystick = nullptr;
  bool fail = false;
  int loads = 0;
  QString last_path;
  std::function<void()> listener = [] {};
};

Source& GetSource() {
  static Source source;
  return source;
}

KeymapConfig* Give(KeymapConfig** next) {
  KeymapConfig* config = std::exchange(*next, nullptr);
  return config ? config : new KeymapConfig;
}

}  // namespace

void SetNextKeymap(KeymapConfig* config) { GetSource().keymap = config; }
void SetNextJoystickKeymap(KeymapConfig* config) { GetSource().joystick = config; }
void FailLoads(bool fail) { GetSource().fail = fail; }
void SetLoadListener(std::function<void()> listener) { GetSource().listener = std::move(listener); }
int KeymapLoads() { return GetSource().loads; }
QString LastKeymapPath() { return GetSource().last_path; }

}  // namespace taviinputmanager::test

namespace tavikeymapmanager {

KeymapConfig* LoadKeymapConfigAndInfo(const QString& path) {
  auto& source = taviinputmanager::test::GetSource();
  ++source.loads;
  source.last_path = path;
  source.listener();
  return source.fail ? nullptr : taviinputmanager::test::Give(&source.keymap);
}

KeymapConfig* LoadJoystickConfigAndInfo(const QString& /*path*/) {
  auto& source = taviinputmanager::test::GetSource();
  source.listener();
  return source.fail ? nullptr : taviinputmanager::test::Give(&source.joystick);
}

}  // namespace tavikeymapmanager
