// The walk that aims a spell.
#include <memory>

#include "tests/keymapmanager/keymap_text.h"

namespace tavikeymapmanager {
namespace {

const QByteArray kWalk = "- {type: Swipehold, point: [0.2, 0.8], key_up: W, key_left: A, key_down: S, key_right: D}\n";
const QByteArray kSpell =
    "- {type: Spell, key: Q, point: [0.7, 0.9], touch_location: Spell_touch_location_inner_swipehold_dependence, ";

class InnerSwipehold : public testing::Test {
 protected:
  // The input layer's record for the spell in the last item.
  std::unique_ptr<SwipeholdConfigItem> Inner(const QByteArray& items) {
    const LoadResult result = ReadItems(items);
    EXPECT_EQ("", Said(result));
    if (result.config->items.isEmpty()) return std::make_unique<SwipeholdConfigItem>();
    const auto* spell = dynamic_cast<SpellConfigItem*>(result.config->items.last());
    EXPECT_NE(nullptr, spell);
    return std::unique_ptr<SwipeholdConfigItem>(spell->InnerSwipeholdItem());
  }
};

TEST_F(InnerSwipehold, ASpellHasNone) {
  const auto inner = Inner("- {type: Spell, key: Q, point: [0.7, 0.9], trigger: Spell_Trigger_Immedaite}\n");
  EXPECT_EQ("Transparent", inner->press_mode.toStdString());
}

TEST_F(InnerSwipehold, HasTheFieldsOfAWalk) {
  const auto inner =
      Inner(kWalk + kSpell + "inner_swipehold: {point: [0.3, 0.4], radius: 0.06, press_mode: Click, key_up: Up}}\n");
  EXPECT_EQ("Swipehold", inner->type.toStdString());
  EXPECT_EQ("Click", inner->press_mode.toStdString());
  EXPECT_EQ(0.06, inner->radius);
  EXPECT_EQ(0.3, inner->rel_x);
  EXPECT_EQ(0.4, inner->rel_y);
  EXPECT_EQ("Up", NameOf(inner->key_up));
  EXPECT_EQ("", NameOf(inner->key_left));
  EXPECT_EQ(32, inner->first_press_delay_ms);
}

TEST_F(InnerSwipehold, TakesTheKeysOfTheFirstWalk) {
  const auto inner =
      Inner(kWalk + "- {type: Swipehold, point: [0.2, 0.8], key_up: Up}\n" + kSpell + "inner_swipehold: {}}\n");
  EXPECT_EQ("W", NameOf(inner->key_up));
  EXPECT_EQ("A", NameOf(inner->key_left));
  EXPECT_EQ("S", NameOf(inner->key_down));
  EXPECT_EQ("D", NameOf(inner->key_right));
}

TEST_F(InnerSwipehold, TakesTheKeysOfAWalkThatComesLater) {
  const LoadResult result = ReadItems(kSpell + "inner_swipehold: {}}\n" + kWalk);
  EXPECT_EQ("", Said(result));
  ASSERT_EQ(2, result.config->items.size());
  EXPECT_EQ("W", NameOf(dynamic_cast<SpellConfigItem&>(*result.config->items[0]).inner_swipehold.key_up));
}

TEST_F(InnerSwipehold, BeginsOnTheSkillButton) {
  const auto on_point = Inner(kWalk + kSpell + "inner_swipehold: {}}\n");
  EXPECT_EQ(0.7, on_point->rel_x);
  EXPECT_EQ(0.9, on_point->rel_y);
  const auto on_other = Inner(kWalk + kSpell + "alt_point: [0.6, 0], inner_swipehold: {}}\n");
  EXPECT_EQ(0.6, on_other->rel_x);
  EXPECT_EQ(0.0, on_other->rel_y);
}

TEST_F(InnerSwipehold, IsHandedOutAsACopy) {
  const LoadResult result = ReadItems(kWalk + kSpell + "inner_swipehold: {}}\n");
  const auto& spell = dynamic_cast<SpellConfigItem&>(*result.config->items[1]);
  const std::unique_ptr<SwipeholdConfigItem> one(spell.InnerSwipeholdItem());
  const std::unique_ptr<SwipeholdConfigItem> other(spell.InnerSwipeholdItem());
  EXPECT_NE(one, other);
  EXPECT_NE(&spell.inner_swipehold, one.get());
}

}  // namespace
}  // namespace tavikeymapmanager
