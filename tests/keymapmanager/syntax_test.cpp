// Files whose syntax is invalid: one error, with its position, and nothing else.
#include "tests/keymapmanager/keymap_text.h"

namespace tavikeymapmanager {
namespace {

struct Row {
  const char* name;
  const char* text;
  const char* said;
};

const Row kRows[] = {
    {"unterminated double quote", "format: 1\nname: \"Race\nitems: []\n", "2:7 error: a quote that is never closed"},
    {"unterminated single quote", "format: 1\nitems:\n  - {type: 'Click, key: A}\n",
     "3:12 error: a quote that is never closed"},
    {"alias", "wheel: &w {}\nsettings: *w\n",
     "2:11 error: an alias; aliases are not used in keymaps, repeat the value"},
    {"alias as the name of a field", "format: &f 1\n*f : 1\n",
     "2:1 error: an alias; aliases are not used in keymaps, repeat the value"},
    {"tag of a scalar", "format: !!int '1'\n", "1:9 error: a tag; tags are not used in keymaps"},
    {"tag of a list", "items: !list []\n", "1:8 error: a tag; tags are not used in keymaps"},
    {"tag of fields", "wheel: !w {}\n", "1:8 error: a tag; tags are not used in keymaps"},
    {"second document", "format: 1\n---\nformat: 1\n",
     "2:1 error: a second document begins here; a keymap file contains only one"},
    {"field named by a list", "[a]: 1\n", "1:1 error: expected the name of a field"},
    {"field named by fields", "{a: 1}: 1\n", "1:1 error: expected the name of a field"},
    {"text with a colon", "name: Race: two\n",
     "1:11 error: mapping values are not allowed in this context (a text that contains ': ' needs quotes)"},
    {"list without its end", "items: [1, 2\nname: x\n", nullptr},
    {"braces without their end", "items: {a: 1\n", nullptr},
    {"fields at two columns", "format: 1\n  name: x\n", nullptr},
    {"unknown escape", "name: \"\\q\"\n", nullptr},
};

TEST(Syntax, IsReportedByItself) {
  for (const Row& row : kRows) {
    SCOPED_TRACE(row.name);
    const LoadResult result = Read(row.text);
    EXPECT_TRUE(result.HasErrors());
    EXPECT_EQ(1, result.diagnostics.size());
    EXPECT_TRUE(result.config->items.isEmpty());
    EXPECT_TRUE(row.said == nullptr || Said(result) == row.said) << Said(result);
  }
}

TEST(Syntax, HidesTheErrorsOfTheContent) {
  EXPECT_EQ("3:7 error: a quote that is never closed", Said(Read("format: 2\nunknown: 1\nname: 'Race\n")));
}

// This many nested lists, beside the list "items", which is the second level.
QByteArray Nested(int depth) { return "items: " + QByteArray(depth, '[') + QByteArray(depth, ']') + "\n"; }

TEST(Syntax, NestsSixtyFourLevelsDeep) {
  EXPECT_EQ(
      "1:1 error: the keymap has no 'format: 1'\n"
      "1:9 error: expected the fields of an item, got a list",
      Said(Read(Nested(63))));
  // The fields of the file are the first level, so that the 64th bracket is one too many: column 7 + 64.
  EXPECT_EQ("1:71 error: nested deeper than 64 levels", Said(Read(Nested(64))));
}

TEST(Syntax, DeepNestingCostsNothing) {
  EXPECT_EQ("1:71 error: nested deeper than 64 levels", Said(Read(Nested(500000))));
}

TEST(Syntax, DeepBlocksAreRefusedToo) {
  const LoadResult result = Read("items:\n" + QByteArray("- ").repeated(100000) + "a\n");
  ASSERT_EQ(1, result.diagnostics.size());
  EXPECT_EQ("nested deeper than 64 levels", result.diagnostics[0].message.toStdString());
}

TEST(Syntax, BytesThatAreNoTextAreRefusedWhereTheyStand) {
  // Two characters of two bytes each precede it: the invalid byte is the 11th character of its line.
  EXPECT_EQ("2:11 error: invalid leading UTF-8 octet", Said(Read("format: 1\nname: \xc3\xa9t\xc3\xa9 \xff\n")));
  EXPECT_EQ(1, Read(QByteArray("format: 1\nname: a\0b\n", 20)).diagnostics.size());
}

TEST(Syntax, ColumnsCountCharacters) {
  EXPECT_EQ("2:13 error: unknown field 'b' of a keymap", Said(Read("{format: 1,\n name: \"\xc3\xa9\", b: 1}\n")));
}

TEST(Syntax, AnEmptyFileIsNoKeymap) {
  for (const char* text : {"", "\n", "# a comment\n", "---\n", "~\n"}) {
    EXPECT_EQ(1, Read(text).diagnostics.size()) << text;
    EXPECT_TRUE(Read(text).HasErrors()) << text;
  }
}

TEST(Syntax, OtherEncodingsOfTheSameTextAreRead) {
  const QString text = QStringLiteral("format: 1\nname: \u00e9t\u00e9\n");
  const QByteArray utf16 =
      QByteArray("\xff\xfe", 2) + QByteArray(reinterpret_cast<const char*>(text.utf16()), text.size() * 2);
  EXPECT_EQ("\u00e9t\u00e9", Read(utf16).name.toStdString());
  EXPECT_EQ("\u00e9t\u00e9", Read("\xef\xbb\xbf" + text.toUtf8()).name.toStdString());
}

}  // namespace
}  // namespace tavikeymapmanager
