// Tests as stories: a keymap, timed input, and the lines for the guest.
#ifndef TESTS_SUPPORT_STORY_H_
#define TESTS_SUPPORT_STORY_H_

#include <gtest/gtest.h>
#include <memory>

#include <QPointF>
#include <QString>
#include <QStringList>

#include "host/simulation/simulated_host.h"
#include "keymap/keymap_config.h"

class QGuiApplication;

namespace tavi {
class ScriptPlayer;
class VirtualEventDispatcher;
}  // namespace tavi

namespace taviinputmanager {

// A guest view of 1280 x 720 on a display and a touch surface of the same size, so that pixels are unchanged unless a
// test sets another geometry. Time is virtual, and starts at 0 with the last load.
class Story : public testing::Test {
 protected:
  Story();
  ~Story() override;

  static tavi::SimulatedHost& Host() { return *tavi::SimulatedHost::GetInstance(); }

  // Creates an item for the next load. `key` is a key's name; the keymap owns the item.
  template <typename Item>
  Item* Add(const QString& type, const QString& key = {}, const QPointF& point = {}) {
    auto* item = new Item;
    item->type = type;
    if (!key.isEmpty()) item->key = Key(key);
    item->rel_x = point.x();
    item->rel_y = point.y();
    Pending().items.append(item);
    return item;
  }
  static tavikeymapmanager::ConfigKey Key(const QString& name);
  tavikeymapmanager::KeymapSettings& Settings() { return *Pending().settings; }
  tavikeymapmanager::WheelSettings& Wheel() { return *Pending().wheel_settings; }

  // Loads the added items as the keymap. Clears the timeline, and time starts at 0 now.
  void Load(int display = 1, const QString& package = QStringLiteral("com.example.game"),
            const QString& path = QStringLiteral("test.yaml"));
  // The same for the gamepad keymap.
  void LoadJoystick();

  // Commands separated by semicolons or newlines. A script with errors fails the test.
  void Play(const QString& script);
  // The same inside a callback of the host: posted events are not delivered, and no time passes.
  void Feed(const QString& script);
  void Wait(int ms);

  // Guest lines, and callbacks, since the previous call for the same.
  QStringList TakeWire();
  QStringList TakeCalls();
  // Clears the timeline.
  void Forget();

  tavi::VirtualEventDispatcher& Time() { return *clock_; }

 private:
  tavikeymapmanager::KeymapConfig& Pending();
  void Collect();
  void StartTimeline();

  tavi::VirtualEventDispatcher* clock_;  // owned by the application
  std::unique_ptr<QGuiApplication> application_;
  std::unique_ptr<tavi::ScriptPlayer> player_;
  std::unique_ptr<tavikeymapmanager::KeymapConfig> pending_;
  QStringList wire_;
  QStringList calls_;
};

// Each takes the lines in order: EXPECT_WIRE("0ms 1:KBDPR:30:1", "8ms 1:KBDRL:30:0").
#define EXPECT_WIRE(...) \
  EXPECT_EQ((QStringList{__VA_ARGS__}).join('\n').toStdString(), TakeWire().join('\n').toStdString())
#define EXPECT_CALLS(...) \
  EXPECT_EQ((QStringList{__VA_ARGS__}).join('\n').toStdString(), TakeCalls().join('\n').toStdString())
#define EXPECT_WIRE_NONE() EXPECT_EQ(std::string(), TakeWire().join('\n').toStdString())
#define EXPECT_CALLS_NONE() EXPECT_EQ(std::string(), TakeCalls().join('\n').toStdString())

}  // namespace taviinputmanager

#endif  // TESTS_SUPPORT_STORY_H_
