#include "tests/keymapmanager/keymap_text.h"

namespace tavikeymapmanager {
namespace {

// Columns are counted by hand in the text.
TEST(Diagnostics, FiveMistakesAreToldAtOnce) {
  const LoadResult result = Read(
      "format: 1\n"
      "settings:\n"
      "  mouse_mod: Mouse_No_Transparent\n"
      "items:\n"
      "  - type: Click\n"
      "    key: Spcae\n"
      "    point: [0.5, 1.5]\n"
      "  - type: Clik\n"
      "  - {type: Swipehold, point: [0.2, 0.8], key_up: W, first_press_steps: six}\n");
  EXPECT_EQ(
      "3:3 error: unknown field 'mouse_mod' of settings; did you mean 'mouse_mode'?\n"
      "6:10 error: unknown key 'Spcae'; did you mean 'Space'?\n"
      "7:18 error: 'point': expected a number from 0 to 1, got the number 1.5\n"
      "8:11 error: unknown item type: the text 'Clik'; did you mean 'Click'?\n"
      "9:72 error: 'first_press_steps': expected a whole number from 1 to 1000, got the text 'six'",
      Said(result));
}

TEST(Diagnostics, ThePackageIsReadAndIsAText) {
  EXPECT_EQ("com.example.game", Read("format: 1\npackage: com.example.game\n").package.toStdString());
  EXPECT_EQ("", Read("format: 1\n").package.toStdString());
  EXPECT_EQ("2:10 error: 'package': expected a text, got the number 2048; put it in quotes",
            Said(Read("format: 1\npackage: 2048\n")));
}

TEST(Diagnostics, ExtentsReachBehindTheLastCharacter) {
  const LoadResult result = Read("format: 1\nname: 2048\nitems: [[0.5, 0.5]]\n");
  ASSERT_EQ(2, result.diagnostics.size());
  EXPECT_EQ(2, result.diagnostics[0].end_line);
  EXPECT_EQ(11, result.diagnostics[0].end_column);  // 7, and four digits
  EXPECT_EQ(3, result.diagnostics[1].end_line);
  EXPECT_EQ(19, result.diagnostics[1].end_column);  // 9, and ten characters
}

TEST(Diagnostics, NothingIsHalfLoaded) {
  const LoadResult result = Read(
      "format: 1\nname: Half\nsettings: {wheel_transparent: true}\nwheel: {wheel_zoom: true}\n"
      "items:\n- {type: Click, key: A, point: [0.5, 0.5]}\n- {type: Click}\n");
  EXPECT_TRUE(result.HasErrors());
  EXPECT_TRUE(result.config->items.isEmpty());
  EXPECT_TRUE(result.item_sources.isEmpty());
  EXPECT_FALSE(result.config->settings->wheel_transparent);
  EXPECT_FALSE(result.config->wheel_settings->wheel_zoom);
}

TEST(Diagnostics, AWarningLeavesTheKeymapInUse) {
  const LoadResult result =
      ReadItems("- {type: Click, key: A, point: [0.5, 0.5]}\n- {type: Click, key: A, point: [0.6, 0.5]}\n");
  EXPECT_FALSE(result.HasErrors());
  EXPECT_EQ(1, result.diagnostics.size());
  EXPECT_EQ(2, result.config->items.size());
}

TEST(Diagnostics, AreToldInTheOrderOfTheFile) {
  EXPECT_EQ(
      "1:1 error: unknown field 'a' of a keymap\n"
      "3:3 error: Click without 'key'\n"
      "3:3 error: Click without 'point'\n"
      "4:1 error: unknown field 'b' of a keymap\n"
      "5:9 error: 'format': expected 1, got the number 2",
      Said(Read("a: 1\nitems:\n- {type: Click}\nb: 1\nformat: 2\n")));
}

// Column 61: "- {type: Spell, " ends with 16, "key: W, " with 24, "point: [0.5, 0.5], " with 43, "view_matrix: [1, "
// with 60.
TEST(Diagnostics, AnEntryOfAMatrixIsTold) {
  const std::string said = Said(ReadItems(
      "- {type: Spell, key: W, point: [0.5, 0.5], view_matrix: [1, two, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14, "
      "15, 16]}\n"));
  EXPECT_EQ(0U, said.find("3:61 error: 'view_matrix': expected a number from ")) << said;
  EXPECT_NE(std::string::npos, said.find(", got the text 'two'")) << said;
  EXPECT_EQ(std::string::npos, said.find('\n')) << said;
}

TEST(Diagnostics, AFieldWrittenTwiceIsAnError) {
  EXPECT_EQ("3:1 error: 'name' occurs twice", Said(Read("format: 1\nname: A\nname: B\n")));
  EXPECT_EQ("3:25 error: 'key' occurs twice", Said(ReadItems("- {type: Click, key: A, key: B, point: [0.5, 0.5]}\n")));
  EXPECT_EQ("1:22 error: 'name' occurs twice", Said(Read("{format: 1, name: A, \"name\": B}\n")));
}

TEST(Diagnostics, AnItemOfNoTypeIsToldOnce) {
  EXPECT_EQ("3:3 error: the item has no 'type'", Said(ReadItems("- {key: no such key, pont: 1}\n")));
}

TEST(Diagnostics, MessagesHaveOneLine) {
  const LoadResult result = Read("format: \"a\\nb\"\n\"x\\ny\": 1\nname: [\"a\\nb\"]\n");
  EXPECT_TRUE(result.HasErrors());
  for (const Diagnostic& diagnostic : result.diagnostics) EXPECT_FALSE(diagnostic.message.contains(QLatin1Char('\n')));
}

TEST(Diagnostics, LongTextsAreCutShort) {
  const LoadResult result = Read("format: " + QByteArray(100000, 'a') + "\n");
  ASSERT_EQ(1, result.diagnostics.size());
  EXPECT_LT(result.diagnostics[0].message.size(), 100);
}

TEST(Diagnostics, AHopelessFileHasAnEnd) {
  const LoadResult result = ReadItems(QByteArray("- x\n").repeated(200000));
  ASSERT_EQ(1001, result.diagnostics.size());
  EXPECT_EQ("only the first thousand are shown", result.diagnostics.last().message.toStdString());
  EXPECT_TRUE(result.HasErrors());
}

TEST(Diagnostics, AnErrorBehindAThousandWarningsIsNotLost) {
  const QByteArray same = "- {type: Click, key: A, point: [0.5, 0.5]}\n";
  const LoadResult result = Read("format: 1\nitems:\n" + same.repeated(2000) + "name: 1\n");
  EXPECT_TRUE(result.HasErrors());
  EXPECT_TRUE(result.config->items.isEmpty());
}

TEST(Diagnostics, ArePrintedAsCompilersPrintThem) {
  Diagnostic diagnostic;
  diagnostic.file = QStringLiteral("a%1.yaml");
  diagnostic.line = 3;
  diagnostic.column = 7;
  diagnostic.message = QStringLiteral("'%2' is wrong");
  EXPECT_EQ("a%1.yaml:3:7: error: '%2' is wrong", FormatDiagnostic(diagnostic).toStdString());
  diagnostic.severity = Diagnostic::Severity::kWarning;
  EXPECT_EQ("a%1.yaml:3:7: warning: '%2' is wrong", FormatDiagnostic(diagnostic).toStdString());
}

TEST(Diagnostics, ASettingsPartMayBeEmpty) {
  EXPECT_EQ("", Said(Read("format: 1\nsettings:\nwheel: # nothing yet\nitems:\n")));
}

TEST(Diagnostics, ANameMayBeAnyText) {
  EXPECT_EQ("yes", Read("format: 1\nname: yes\n").name.toStdString());
  EXPECT_EQ("", Read("format: 1\n").name.toStdString());
}

}  // namespace
}  // namespace tavikeymapmanager
