// The queries of editors: positions in a file, and the possible fields of its items.
#include "keymapmanager/keymap_outline.h"

#include <gtest/gtest.h>

#include "keymap/tavikeymapmanager.h"
#include "keymapmanager/item_types.h"
#include "keymapmanager/keymap_file.h"

namespace tavikeymapmanager {
namespace {

QByteArray Slice(const QByteArray& text, const TextRange& range) { return text.mid(range.begin, range.Length()); }

TEST(KeymapOutline, TellsBytesWhateverTheLetters) {
  const QByteArray text =
      "\xEF\xBB\xBF# \xC3\xA9\xF0\x9F\x98\x80\r\nformat: 1\r\nitems:\r\n"
      "  - type: Tip   # note\r\n    label: \xE4\xBD\xA0\xE5\xA5\xBD\r\n    point: [0.5,\r\n      0.25]\r\n";
  const auto outline = OutlineKeymap(text);
  ASSERT_TRUE(outline);
  ASSERT_EQ(outline->items.size(), 1);
  const ItemOutline& item = outline->items[0];
  EXPECT_EQ(text[item.dash], '-');
  EXPECT_EQ(Slice(text, item.Find("label")->name_range), "label");
  EXPECT_EQ(Slice(text, item.Find("label")->value), "\xE4\xBD\xA0\xE5\xA5\xBD");
  EXPECT_EQ(Slice(text, item.Find("point")->value), "[0.5,\r\n      0.25]");
  ASSERT_EQ(item.Find("point")->entries.size(), 2);
  EXPECT_EQ(Slice(text, item.Find("point")->entries[1]), "0.25");
  EXPECT_EQ(text.mid(item.range.end), "\r\n");
  EXPECT_EQ(item.Find("key"), nullptr);
}

TEST(KeymapOutline, TellsBracesAndBlocks) {
  const auto block = OutlineKeymap("format: 1\nitems:\n- type: Tip\n  point: [0, 0]\n- {type: Tip, point: [0, 0]}\n");
  ASSERT_TRUE(block);
  EXPECT_FALSE(block->file.in_braces);
  EXPECT_FALSE(block->items_in_brackets);
  EXPECT_FALSE(block->items[0].in_braces);
  EXPECT_TRUE(block->items[1].in_braces);

  const auto json = OutlineKeymap("{\"format\": 1, \"items\": [{\"type\": \"Tip\", \"point\": [0, 0]}]}");
  ASSERT_TRUE(json);
  EXPECT_TRUE(json->file.in_braces);
  EXPECT_TRUE(json->items_in_brackets);
  EXPECT_EQ(json->items[0].dash, -1);
  EXPECT_EQ(json->items[0].Find("type")->text, "Tip");
}

TEST(KeymapOutline, OfWhatIsNoKeymapIsNone) {
  EXPECT_FALSE(OutlineKeymap("[1, 2"));
  EXPECT_FALSE(OutlineKeymap("just a text"));
  EXPECT_FALSE(OutlineKeymap("format: 1\nitems: [1]\n"));
  EXPECT_FALSE(
      OutlineKeymap(QByteArray("\xFF\xFE"
                               "f\0",
                               4)));
}

TEST(ItemTypes, AreTheLoadersOwn) {
  const QVector<ItemTypeInfo> types = DescribeItemTypes();
  EXPECT_EQ(types.size(), 24);
  EXPECT_EQ(types[0].name, "Click");
  const FieldInfo* point = types[0].Find("point");
  ASSERT_NE(point, nullptr);
  EXPECT_EQ(point->kind, FieldKind::kPair);
  EXPECT_TRUE(point->is_required);
  EXPECT_EQ(point->range.max, 1);
  EXPECT_EQ(types[0].Find("radius"), nullptr);
}

TEST(ItemTypes, TellWhatAnItemHas) {
  const LoadResult keymap = ReadKeymapText(
      "format: 1\nitems: [{type: BunchClick, key: E, point: [0.5, 0.25], bunch_mode: One_Off}, "
      "{type: Swipehold, point: [0, 1], key_up: W}, {type: Click, key: Q, point: [0, 0.125]}, "
      "{type: Staring, key: R, point: [0, 0], range_size: [0.5, 2], auto_reset: true}]",
      {});
  const auto& items = keymap.config->items;
  ASSERT_EQ(items.size(), 4);
  EXPECT_EQ(NumbersOfField(*items[0], "point"), (QVector<double>{0.5, 0.25}));
  EXPECT_EQ(TextOfField(*items[0], "point"), "[0.5, 0.25]");
  EXPECT_EQ(TextOfField(*items[0], "bunch_mode"), "One_Off");
  EXPECT_EQ(TextOfField(*items[0], "bunch_frequency"), "10");  // the default
  EXPECT_EQ(NumbersOfField(*items[1], "radius"), QVector<double>{0.1});
  EXPECT_EQ(TextOfField(*items[1], "compensate"), "false");
  EXPECT_EQ(TextOfField(*items[2], "point"), "[0, 0.125]");
  EXPECT_EQ(TextOfField(*items[2], "key"), "");  // the file distinguishes keys
  EXPECT_EQ(NumbersOfField(*items[2], "radius"), QVector<double>());
  EXPECT_EQ(NumbersOfField(*items[3], "range_size"), (QVector<double>{0.5, 2}));
  EXPECT_EQ(TextOfField(*items[3], "auto_reset"), "true");
}

TEST(ItemTypes, GiveAnItemOtherNumbers) {
  const LoadResult keymap = ReadKeymapText(
      "format: 1\nitems: [{type: Swipehold, point: [0.25, 0.5], key_up: W}, "
      "{type: Staring, key: R, point: [0.5, 0.5], range_size: [0.5, 2]}]",
      {});
  const auto& items = keymap.config->items;
  ASSERT_EQ(items.size(), 2);
  SetNumbersOfField(items[0], "point", {0.125, 0.75});
  SetNumbersOfField(items[0], "radius", {0.2});
  SetNumbersOfField(items[1], "range_size", {1, 0.5});
  EXPECT_EQ(NumbersOfField(*items[0], "point"), (QVector<double>{0.125, 0.75}));
  EXPECT_EQ(NumbersOfField(*items[0], "radius"), QVector<double>{0.2});
  EXPECT_EQ(NumbersOfField(*items[1], "range_size"), (QVector<double>{1, 0.5}));
  SetNumbersOfField(items[0], "radius", {0.1, 0.1});  // a radius is one number
  SetNumbersOfField(items[0], "nothing", {0.1});
  EXPECT_EQ(NumbersOfField(*items[0], "radius"), QVector<double>{0.2});
}

}  // namespace
}  // namespace tavikeymapmanager
