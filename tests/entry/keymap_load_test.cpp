#include "core/input_manager.h"
#include "core/input_status_manager.h"
#include "keymap/tavikeymapmanager.h"
#include "taviinputmanager/taviinputmanager.h"
#include "tests/support/keymap_source.h"
#include "tests/support/story.h"

namespace taviinputmanager {
namespace {

using tavikeymapmanager::ConfigItem;
using tavikeymapmanager::KeymapConfig;
using tavikeymapmanager::StaringConfigItem;

class KeymapLoad : public Story {
 protected:
  static void LoadFor(const QString& path, const QString& package) { OnLoadKeymapConfigAndInfo(path, package, "x", 1); }
  static void SetStatus(InputStatus status) { InputStatusManager::GetInstance()->SetStatus(status, "K"); }
};

TEST_F(KeymapLoad, InitializeLoadsAnEmptyKeymap) {
  EXPECT_EQ(1, test::KeymapLoads());
  EXPECT_EQ(QString(), test::LastKeymapPath());
}

TEST_F(KeymapLoad, KnowsThePackagesOfTheSystem) {
  for (const char* own :
       {"com.android.settings", "com.android.", "com.rolo.x", "com.halvane.rolo.y", "app.lawnchair"}) {
    EXPECT_TRUE(InputManager::IsOwnPackage(own)) << own;
  }
  for (const char* other : {"", "com.android", "com.Android.x", "com.rolox.y", "com.halvane.other", "app.lawnchair.x",
                            "App.lawnchair", "x.com.android.y"}) {
    EXPECT_FALSE(InputManager::IsOwnPackage(other)) << other;
  }
}

TEST_F(KeymapLoad, AnAppOfTheSystemGetsTheSystemKeymap) {
  LoadFor("", "com.android.settings");
  EXPECT_EQ("system-9252A9CA-0C32-4FFD-8BF6-82653751D068", test::LastKeymapPath());
  EXPECT_TRUE(InputStatusManager::GetInstance()->HasKeymap());
}

TEST_F(KeymapLoad, AnyOtherAppWithoutPathGetsNone) {
  LoadFor("", "com.example");
  EXPECT_EQ("", test::LastKeymapPath());
  EXPECT_FALSE(InputStatusManager::GetInstance()->HasKeymap());
}

TEST_F(KeymapLoad, APathIsTakenWhateverThePackage) {
  LoadFor("a.yaml", "com.android.settings");
  EXPECT_EQ("a.yaml", test::LastKeymapPath());
  EXPECT_TRUE(InputStatusManager::GetInstance()->HasKeymap());
  EXPECT_EQ("com.android.settings", InputStatusManager::GetInstance()->GetPackageName());
}

TEST_F(KeymapLoad, TellsTheHostInOrderAndResetsTheOldDisplay) {
  Load(3);
  Wheel().virtual_joystick = true;
  Settings().keyboard_transparent = true;
  Settings().escape_to_guest = true;
  Add<StaringConfigItem>("Staring", "F");
  Load(4);
  // Load clears its timeline, so the same again by hand, from display 4.
  Wheel().virtual_joystick = true;
  test::SetNextKeymap(nullptr);
  OnLoadKeymapConfigAndInfo("b.yaml", "p", "", 5);
  EXPECT_CALLS("0ms virtual_joystick 0", "0ms escape_occupied 0", "0ms status 0 F", "0ms escape_occupied 0",
               "0ms gravity 0 0 0");
  EXPECT_EQ("0ms 4:SLOTRELEASEALL", TakeWire().last().toStdString());
  EXPECT_EQ(5, InputStatusManager::GetInstance()->GetDisplayId());
}

TEST_F(KeymapLoad, AStaringItemPutsTheStatusOnOff) {
  Add<ConfigItem>("Click", "W");
  Add<StaringConfigItem>("Staring", "F");
  Add<StaringConfigItem>("Staring", "G");  // the first counts
  Load();
  EXPECT_EQ(InputStatus::StaringOff, GetInputStatus());
  EXPECT_EQ(Key("F").scancode, InputStatusManager::GetInstance()->GetStaringKey().scancode);
}

TEST_F(KeymapLoad, TheStatusTextIsTheStaringKeysNameAndStaysWithoutOne) {
  Add<StaringConfigItem>("Staring", "F");
  Load();
  UpdateDisplayId(1);
  EXPECT_EQ("0ms status 2 F", TakeCalls().first().toStdString());
  Load();  // no Staring item
  UpdateDisplayId(1);
  EXPECT_EQ("0ms status 0 F", TakeCalls().first().toStdString());
}

TEST_F(KeymapLoad, StaringEndsWithItsKeymap) {
  SetStatus(InputStatus::Staring);
  Load();
  EXPECT_EQ(InputStatus::Normal, GetInputStatus());
}

TEST_F(KeymapLoad, ANullKeymapDropsEventsUntilAnotherLoad) {
  Settings().keyboard_transparent = true;
  Load();
  test::FailLoads(true);
  OnLoadKeymapConfigAndInfo("broken", "p", "", 9);
  EXPECT_CALLS_NONE();  // nothing is reported and nothing reset
  EXPECT_EQ(1, InputStatusManager::GetInstance()->GetDisplayId());
  Play("down W; rel 1,1; reset");
  UpdateMousePosition(5, 5);
  EXPECT_WIRE_NONE();
  test::FailLoads(false);
  Settings().keyboard_transparent = true;
  Load();
  Play("down W");
  EXPECT_WIRE("0ms 1:KBDPR:17:1");
}

TEST_F(KeymapLoad, AConfigWithoutRecordsReadsAsDefaults) {
  test::SetNextKeymap(new KeymapConfig);
  OnLoadKeymapConfigAndInfo("bare", "p", "", 1);
  Forget();
  UpdateMousePosition(5, 5);
  Play("down W; up W; mouse down right 5,5");  // nothing passes
  EXPECT_WIRE_NONE();
}

TEST_F(KeymapLoad, AKeyThatIsDownWhenItsKeymapGoesIsForgotten) {
  auto* chord = Add<tavikeymapmanager::ComposableConfigItem>("Click", "E", {0.5, 0.5});
  chord->first_key = Key("Q");
  Add<ConfigItem>("Click", "W", {0.25, 0.5});
  Load();
  Play("down Q; down E; down W");
  Load();
  Play("up E; up W; up Q");
  EXPECT_WIRE_NONE();
}

TEST_F(KeymapLoad, InitializeReportsEscapeThenLoadsBothKeymaps) {
  Initialize(&Host().table, 0, 0);
  EXPECT_CALLS("0ms escape_occupied 0", "0ms virtual_joystick 0", "0ms escape_occupied 0", "0ms status 0",
               "0ms escape_occupied 0", "0ms gravity 0 0 0");
}

// The handler gets the keymap before the reset clears the armed key: the new keymap is searched for that key first.
TEST_F(KeymapLoad, AnArmedKeyIsForgottenAfterTheFreshKeymapWasAskedAboutIt) {
  Load();
  Play("down E");
  auto* config = new KeymapConfig;
  auto* chord = new tavikeymapmanager::ComposableConfigItem;
  chord->type = "Click";
  chord->first_key = Key("E");
  chord->key = Key("Esc");
  config->items.append(chord);
  test::SetNextKeymap(config);
  Forget();
  OnLoadKeymapConfigAndInfo("b.yaml", "p", "", 1);
  EXPECT_CALLS("0ms virtual_joystick 0", "0ms escape_occupied 1", "0ms status 0", "0ms escape_occupied 0",
               "0ms gravity 0 0 0");
}

// Records its destruction.
struct WatchedItem : ConfigItem {
  ~WatchedItem() override { *is_alive = false; }
  bool* is_alive = nullptr;
};

TEST_F(KeymapLoad, AKeymapIsGoneBeforeTheNextIsRead) {
  bool is_alive = true;
  bool was_alive = true;  // as the next was asked for
  Add<WatchedItem>("Click", "W", {0.5, 0.5})->is_alive = &is_alive;
  Load();
  ASSERT_TRUE(is_alive);
  test::SetLoadListener([&] { was_alive = is_alive; });
  LoadFor("next.yaml", "com.example");
  EXPECT_FALSE(was_alive);
}

TEST_F(KeymapLoad, NullItemsAreSkipped) {
  auto* config = new KeymapConfig;
  config->items = {nullptr, nullptr};
  test::SetNextKeymap(config);
  OnLoadKeymapConfigAndInfo("nulls", "p", "", 1);
  Forget();
  Play("down W; down E; up E");
  EXPECT_WIRE_NONE();
}

TEST_F(KeymapLoad, WithoutTheirCallbackVirtualSticksAreNotTold) {
  Host().table.OnVirtualJoystickChanged = nullptr;
  Load();
  OnLoadKeymapConfigAndInfo("b.yaml", "p", "", 5);
  EXPECT_CALLS("0ms escape_occupied 0", "0ms status 0", "0ms escape_occupied 0", "0ms gravity 0 0 0");
}

TEST_F(KeymapLoad, EndsTheHoldOfInput) {
  InputStatusManager::GetInstance()->ToggleInputHold();
  EXPECT_TRUE(isInputHoldWhenWindowDeactivate());
  Load();
  EXPECT_FALSE(isInputHoldWhenWindowDeactivate());
}

}  // namespace
}  // namespace taviinputmanager
