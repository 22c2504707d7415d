#include "tests/support/story.h"

#include <QGuiApplication>

#include "host/simulation/script.h"
#include "host/simulation/script_player.h"
#include "host/simulation/virtual_event_dispatcher.h"
#include "keymapmanager/key_names.h"
#include "taviinputmanager/taviinputmanager.h"
#include "tests/support/keymap_source.h"

namespace taviinputmanager {

using tavi::TimelineEntry;
using tavikeymapmanager::KeymapConfig;
using tavikeymapmanager::KeymapSettings;
using tavikeymapmanager::WheelSettings;

namespace {

int argument_count = 1;
char program_name[] = "story";
char* arguments[] = {program_name, nullptr};

QVector<tavi::ScriptCommand> Parse(const QString& script) {
  const tavi::Script parsed = tavi::ParseScript(script);
  for (const tavi::ScriptError& error : parsed.errors) {
    ADD_FAILURE() << "script " << error.line << ":" << error.column << ": " << error.message.toStdString();
  }
  return parsed.commands;
}

}  // namespace

Story::Story() : clock_(new tavi::VirtualEventDispatcher) {
  qputenv("QT_QPA_PLATFORM", "offscreen");
  QCoreApplication::setEventDispatcher(clock_);
  application_ = std::make_unique<QGuiApplication>(argument_count, arguments);
  player_ = std::make_unique<tavi::ScriptPlayer>(clock_, &Host());
  Host().Start([this] { return clock_->NowMs(); });
  Forget();
}

Story::~Story() = default;

tavikeymapmanager::ConfigKey Story::Key(const QString& name) {
  const auto key = tavikeymapmanager::KeyFromName(name);
  EXPECT_TRUE(key.has_value()) << "no key is called " << name.toStdString();
  return key.value_or(tavikeymapmanager::ConfigKey());
}

KeymapConfig& Story::Pending() {
  if (!pending_) {
    pending_ = std::make_unique<KeymapConfig>();
    pending_->settings = new KeymapSettings;
    pending_->wheel_settings = new WheelSettings;
  }
  return *pending_;
}

void Story::Load(int display, const QString& package, const QString& path) {
  Pending();
  test::SetNextKeymap(pending_.release());
  OnLoadKeymapConfigAndInfo(path, package, QString(), display);
  StartTimeline();
}

void Story::LoadJoystick() {
  Pending();
  test::SetNextJoystickKeymap(pending_.release());
  OnLoadJoystickConfigAndInfo(QStringLiteral("joystick.yaml"), 0);
  StartTimeline();
}

void Story::StartTimeline() {
  Time().Settle();
  Host().StartTimeline();
  wire_.clear();
  calls_.clear();
}

void Story::Play(const QString& script) { player_->Play(Parse(script)); }

void Story::Feed(const QString& script) {
  for (const tavi::ScriptCommand& command : Parse(script)) player_->Feed(command);
}

void Story::Wait(int ms) { Time().Advance(ms); }

void Story::Collect() {
  for (const TimelineEntry& entry : Host().TakeTimeline()) {
    const bool is_call = entry.source == TimelineEntry::Source::kCallback;
    (is_call ? calls_ : wire_).append(FormatEntry(entry).replace(QLatin1String("ms ! "), QLatin1String("ms ")));
  }
}

QStringList Story::TakeWire() {
  Collect();
  return std::exchange(wire_, {});
}

QStringList Story::TakeCalls() {
  Collect();
  return std::exchange(calls_, {});
}

void Story::Forget() {
  Collect();
  wire_.clear();
  calls_.clear();
}

}  // namespace taviinputmanager
