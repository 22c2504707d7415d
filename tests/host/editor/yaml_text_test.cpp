#include "host/editor/yaml_text.h"

#include <gtest/gtest.h>

#include "host/editor/text_change.h"
#include "keymapmanager/keymap_file.h"

namespace tavi {
namespace {

TEST(NumberText, HasFourDigitsAtMostAndNoZerosAtTheEnd) {
  const struct {
    double value;
    const char* text;
  } rows[] = {{0.5, "0.5"},       {1, "1"},
              {0, "0"},           {0.12345, "0.1235"},
              {0.10001, "0.1"},   {-0.0625, "-0.0625"},
              {-0.00001, "0"},    {1000000, "1000000"},
              {2.0 / 3, "0.6667"}};
  for (const auto& row : rows) EXPECT_EQ(NumberText(row.value).toStdString(), row.text);
}

TEST(PairText, IsAListInBrackets) { EXPECT_EQ(PairText(0.5, 0.25), "[0.5, 0.25]"); }

TEST(TextScalar, HasQuotesWhereItNeedsThem) {
  const struct {
    const char* text;
    const char* written;
  } rows[] = {
      {"Jump", "Jump"},
      {"Left Shift + Space", "Left Shift + Space"},
      {"2048", "\"2048\""},  // would be a number
      {"true", "\"true\""},  // would not be a text
      {"Null", "\"Null\""},
      {"", "\"\""},
      {"a: b", "\"a: b\""},
      {"a #b", "\"a #b\""},
      {"a, b", "\"a, b\""},  // would end in braces
      {"[x", "\"[x\""},
      {" a", "\" a\""},
      {"a ", "\"a \""},
      {"say \"hi\"", "\"say \\\"hi\\\"\""},
      {"back\\slash", "\"back\\\\slash\""},
      {"two\nlines", "\"two\\nlines\""},
      {"bell\a", "\"bell\\u0007\""},
      {"-", "\"-\""},
      {"\u041F\u0440\u044B\u0436\u043E\u043A", "\u041F\u0440\u044B\u0436\u043E\u043A"},
      {"it's", "it's"},
  };
  for (const auto& row : rows) {
    EXPECT_EQ(TextScalar(QString::fromUtf8(row.text), Quotes::kAsNeeded).toStdString(), row.written);
  }
}

// The loader reads any name of an item back, on a line and in braces.
TEST(TextScalar, IsReadBack) {
  for (const char* text :
       {"Jump", "2048", "a: b", "a #b", "'",  "\"",  "\\", "~",  "a\tb", "\u4F60\u597D", "\U0001F600", "- x", "&a",
        "*a",   "!t",   "%x",   "@x",   "`x", "{a}", "?",  "no", "0x10", "1e3",          ".inf",       "a'b"}) {
    const QString label = QString::fromUtf8(text);
    for (const Quotes quotes : {Quotes::kAsNeeded, Quotes::kSingle, Quotes::kDouble}) {
      const QByteArray scalar = TextScalar(label, quotes);
      const QByteArray files[] = {"format: 1\nitems:\n  - type: Tip\n    label: " + scalar + "\n    point: [0, 0]\n",
                                  "format: 1\nitems: [{type: Tip, label: " + scalar + ", point: [0, 0]}]\n"};
      for (const QByteArray& file : files) {
        const auto keymap = tavikeymapmanager::ReadKeymapText(file, {});
        ASSERT_EQ(keymap.item_sources.size(), 1) << file.toStdString();
        EXPECT_EQ(keymap.item_sources[0].label, label) << file.toStdString();
      }
    }
  }
}

TEST(TextScalar, KeepsTheQuotesThatThereWere) {
  EXPECT_EQ(TextScalar("it's", Quotes::kSingle), "'it''s'");
  EXPECT_EQ(TextScalar("Jump", Quotes::kDouble), "\"Jump\"");
  EXPECT_EQ(TextScalar("two\nlines", Quotes::kSingle), "\"two\\nlines\"");  // impossible in single quotes
}

TEST(PlainScalar, IsWhatItLooksLike) {
  EXPECT_EQ(PlainScalar("0.5", Quotes::kAsNeeded), "0.5");
  EXPECT_EQ(PlainScalar("true", Quotes::kAsNeeded), "true");
  EXPECT_EQ(PlainScalar("One_Off", Quotes::kAsNeeded), "One_Off");
  EXPECT_EQ(PlainScalar("1", Quotes::kDouble), "1");
  EXPECT_EQ(PlainScalar("One_Off", Quotes::kDouble), "\"One_Off\"");  // JSON
  EXPECT_EQ(PlainScalar("a: b", Quotes::kAsNeeded), "\"a: b\"");
  EXPECT_EQ(PlainScalar("-", Quotes::kAsNeeded), "\"-\"");
}

TEST(TextChange, IsTheShortestThatThereIs) {
  const TextChange change = ChangeBetween("point: [0.9, 0.8]", "point: [0.95, 0.8]");
  EXPECT_EQ(change.at, 11);
  EXPECT_EQ(change.removed, "");
  EXPECT_EQ(change.inserted, "5");
  EXPECT_EQ(change.AppliedTo("point: [0.9, 0.8]"), "point: [0.95, 0.8]");
  EXPECT_EQ(change.RevertedFrom("point: [0.95, 0.8]"), "point: [0.9, 0.8]");
}

TEST(TextChange, OfEqualTextsIsEmpty) { EXPECT_TRUE(ChangeBetween("abc", "abc").IsEmpty()); }

// Equal letters at both ends are counted once.
TEST(TextChange, OfRepeatedLettersIsOne) {
  const TextChange change = ChangeBetween("aa", "aaa");
  EXPECT_EQ(change.inserted, "a");
  EXPECT_EQ(change.AppliedTo("aa"), "aaa");
  EXPECT_EQ(change.RevertedFrom("aaa"), "aa");
}

}  // namespace
}  // namespace tavi
