#include "keymap/item_index.h"

#include <gtest/gtest.h>
#include <memory>
#include <random>
#include <string>
#include <utility>
#include <vector>

#include "keymap/tavikeymapmanager.h"

namespace tavikeymapmanager {
namespace {

ConfigKey KeyboardKey(int scancode) { return {keywords::kDeviceKeyboard, QString(), scancode, scancode}; }
ConfigKey JoystickKey(const QString& name) { return {keywords::kDeviceJoystick, name}; }

// ---- The index replaces a walk over the list ----

bool IsTip(const ConfigItem* item) { return dynamic_cast<const TipConfigItem*>(item) != nullptr; }

bool IsChord(const ConfigItem* item) {
  const auto* composable = dynamic_cast<const ComposableConfigItem*>(item);
  return composable && IsKeySet(composable->first_key);
}

ConfigItem* WalkAlone(const QList<ConfigItem*>& items, const ConfigKey& key) {
  for (ConfigItem* item : items) {
    if (item && !IsTip(item) && item->IsKeyMatch(key) && !IsChord(item)) return item;
  }
  return nullptr;
}

ConfigItem* WalkChord(const QList<ConfigItem*>& items, const ConfigKey& armed, const ConfigKey& pressed) {
  for (ConfigItem* item : items) {
    const auto* composable = dynamic_cast<const ComposableConfigItem*>(item);
    if (composable && !IsTip(item) && composable->IsChordMatch(armed, pressed)) return item;
  }
  return nullptr;
}

// ---- Items with their own matching ----

// The calls, in order.
std::vector<std::string> asked;

// Matches only even scan codes, and chords that end with one.
struct EvenItem : ComposableConfigItem {
  bool IsKeyMatch(const ConfigKey& pressed) const override {
    asked.push_back(type.toStdString() + " alone");
    return pressed.scancode % 2 == 0;
  }
  bool IsChordMatch(const ConfigKey&, const ConfigKey& pressed) const override {
    asked.push_back(type.toStdString() + " chord");
    return pressed.scancode % 2 == 0;
  }
};

struct GreedyTip : TipConfigItem {
  bool IsKeyMatch(const ConfigKey&) const override { return true; }
  bool IsChordMatch(const ConfigKey&, const ConfigKey&) const override { return true; }
};

class Index : public testing::Test {
 protected:
  Index() { asked.clear(); }
  ~Index() override { qDeleteAll(items_); }

  template <typename Item>
  Item* Add(const QString& name = {}) {
    auto* item = new Item;
    item->type = name;
    items_.append(item);
    return item;
  }
  template <typename Item>
  Item* AddOn(const ConfigKey& key, const ConfigKey& first_key = {}) {
    auto* item = Add<Item>();
    item->key = key;
    if (auto* composable = dynamic_cast<ComposableConfigItem*>(item)) composable->first_key = first_key;
    return item;
  }

  QList<ConfigItem*> items_;
  ItemIndex index_;
};

TEST_F(Index, FindsTheFirstItemOfAKey) {
  ConfigItem* first = AddOn<ConfigItem>(KeyboardKey(17));
  AddOn<SpellConfigItem>(KeyboardKey(17));
  ConfigItem* other = AddOn<MacroConfigItem>(KeyboardKey(18));
  index_.Follow(items_);
  EXPECT_EQ(first, index_.FindAlone(KeyboardKey(17)));
  EXPECT_EQ(other, index_.FindAlone(KeyboardKey(18)));
  EXPECT_EQ(nullptr, index_.FindAlone(KeyboardKey(19)));
}

TEST_F(Index, TellsDevicesApart) {
  ConfigItem* item = AddOn<ConfigItem>(KeyboardKey(1));
  index_.Follow(items_);
  EXPECT_EQ(item, index_.FindAlone(KeyboardKey(1)));
  EXPECT_EQ(nullptr, index_.FindAlone({keywords::kDeviceMouse, QString(), 1, 1}));
}

TEST_F(Index, AFourKeyItemAnswersToEachOfItsKeysAndNotToItsOwn) {
  auto* walk = AddOn<SwipeholdConfigItem>(KeyboardKey(99));
  walk->key_up = KeyboardKey(17);
  walk->key_left = KeyboardKey(30);
  walk->key_down = KeyboardKey(31);
  walk->key_right = KeyboardKey(32);
  index_.Follow(items_);
  for (const int code : {17, 30, 31, 32}) EXPECT_EQ(walk, index_.FindAlone(KeyboardKey(code))) << code;
  EXPECT_EQ(nullptr, index_.FindAlone(KeyboardKey(99)));
}

TEST_F(Index, AChordAnswersToBothItsKeysAndNotToTheLastAlone) {
  auto* chord = AddOn<ComposableConfigItem>(KeyboardKey(18), KeyboardKey(16));
  index_.Follow(items_);
  EXPECT_EQ(nullptr, index_.FindAlone(KeyboardKey(18)));
  EXPECT_EQ(chord, index_.FindChord(KeyboardKey(16), KeyboardKey(18)));
  EXPECT_EQ(nullptr, index_.FindChord(KeyboardKey(18), KeyboardKey(16)));
}

TEST_F(Index, JoystickKeysGoByTheirNames) {
  ConfigItem* a = AddOn<ConfigItem>(JoystickKey("A"));
  ConfigItem* b = AddOn<ConfigItem>(JoystickKey("B"));
  index_.Follow(items_);
  EXPECT_EQ(a, index_.FindAlone(JoystickKey("A")));
  EXPECT_EQ(b, index_.FindAlone(JoystickKey("B")));
  EXPECT_EQ(nullptr, index_.FindAlone(JoystickKey("C")));
}

TEST_F(Index, AStrangerKeepsItsPlaceAndIsAskedEachTime) {
  ConfigItem* before = AddOn<ConfigItem>(KeyboardKey(2));
  ConfigItem* stranger = Add<EvenItem>("stranger");
  AddOn<ConfigItem>(KeyboardKey(4));
  ConfigItem* behind = AddOn<ConfigItem>(KeyboardKey(5));
  index_.Follow(items_);
  EXPECT_EQ(before, index_.FindAlone(KeyboardKey(2)));
  EXPECT_TRUE(asked.empty());  // it comes after
  EXPECT_EQ(stranger, index_.FindAlone(KeyboardKey(4)));
  EXPECT_EQ(behind, index_.FindAlone(KeyboardKey(5)));
  EXPECT_EQ((std::vector<std::string>{"stranger alone", "stranger alone"}), asked);
}

TEST_F(Index, StrangersAreAskedForBothMatchesOneAfterTheOther) {
  Add<EvenItem>("a");
  Add<EvenItem>("b");
  AddOn<ConfigItem>(KeyboardKey(3));
  index_.Follow(items_);
  const std::vector<std::string> both{"a alone", "a chord", "b alone", "b chord"};
  EXPECT_TRUE(index_.IsMatch(KeyboardKey(3), KeyboardKey(7)));
  EXPECT_EQ(both, std::exchange(asked, {}));
  EXPECT_TRUE(index_.IsFound(KeyboardKey(3), KeyboardKey(7)));
  EXPECT_EQ(both, asked);
}

TEST_F(Index, ATipAnswersToNothingWhateverItsClass) {
  Add<GreedyTip>();
  AddOn<TipConfigItem>(KeyboardKey(17));
  items_.append(nullptr);
  index_.Follow(items_);
  EXPECT_EQ(nullptr, index_.FindAlone(KeyboardKey(17)));
  EXPECT_EQ(nullptr, index_.FindChord(KeyboardKey(16), KeyboardKey(17)));
  EXPECT_FALSE(index_.IsMatch(KeyboardKey(17), KeyboardKey(17)));
  EXPECT_FALSE(index_.IsFound(KeyboardKey(17), KeyboardKey(17)));
}

TEST_F(Index, FollowsAListThatHasChanged) {
  AddOn<ConfigItem>(KeyboardKey(17));
  index_.Follow(items_);
  ConfigItem* added = AddOn<ConfigItem>(KeyboardKey(18));
  index_.Follow(items_);
  EXPECT_EQ(added, index_.FindAlone(KeyboardKey(18)));
  index_.Clear();
  EXPECT_EQ(nullptr, index_.FindAlone(KeyboardKey(18)));
}

// Random keymaps with few keys, so that items conflict.
TEST_F(Index, AnswersAsAWalkOverTheListWould) {
  std::mt19937 random(1);
  const auto draw = [&random](int count) { return static_cast<int>(random() % static_cast<unsigned>(count)); };
  constexpr int kKeys = 6;
  const auto key = [&draw] {
    switch (draw(8)) {
      case 0: return ConfigKey();
      case 1: return JoystickKey(QString::number(draw(2)));
      case 2: return ConfigKey{keywords::kDeviceMouse, QString(), 1, draw(2)};
      default: return KeyboardKey(draw(kKeys));
    }
  };
  for (int round = 0; round < 300; ++round) {
    for (int i = draw(12); i > 0; --i) {
      switch (draw(5)) {
        case 0: AddOn<ConfigItem>(key()); break;
        case 1: AddOn<EyeConfigItem>(key())->key_up = key(); break;
        case 2:
          if (round % 2 == 0) Add<EvenItem>("even");
          break;
        case 3: AddOn<TipConfigItem>(key()); break;
        default: AddOn<ComposableConfigItem>(key(), draw(2) ? key() : ConfigKey()); break;
      }
    }
    index_.Follow(items_);
    for (int search = 0; search < 40; ++search) {
      const ConfigKey a = key();
      const ConfigKey b = key();
      ASSERT_EQ(WalkAlone(items_, a), index_.FindAlone(a)) << "round " << round;
      ASSERT_EQ(WalkChord(items_, a, b), index_.FindChord(a, b)) << "round " << round;
      const bool is_taken = WalkAlone(items_, a) || WalkChord(items_, a, b);
      ASSERT_EQ(is_taken, index_.IsMatch(a, b)) << "round " << round;
      ASSERT_EQ(is_taken, index_.IsFound(a, b)) << "round " << round;
    }
    qDeleteAll(items_);
    items_.clear();
  }
}

}  // namespace
}  // namespace tavikeymapmanager
