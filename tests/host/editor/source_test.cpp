// Parts of a keymap that are edited as text.
#include "tests/host/editor/document_fixture.h"

namespace tavi {
namespace {

constexpr char kLines[] =
    "# A keymap.\n"
    "format: 1\n"
    "settings:\n"
    "  keyboard_transparent: true  # all else is typed\n"
    "\n"
    "items:\n"
    "  # The jump.\n"
    "  - type: Click        # a tap\n"
    "    key: Space\n"
    "    point: [0.9, 0.8]\n"
    "    # key: Enter\n"
    "\n"
    "  - type: Macro\n"
    "    key: M\n"
    "    press_commands:\n"
    "      - click_rel:(0.04,0.06)  # the map\n"
    "      - sleep:40\n";

constexpr char kJson[] =
    "{\n"
    "  \"format\": 1,\n"
    "  \"items\": [\n"
    "    {\"type\": \"Click\", \"key\": \"Space\", \"point\": [0.9, 0.8]}\n"
    "  ]\n"
    "}\n";

const KeymapPart kFirst{0, {}};
const KeymapPart kSecond{1, {}};
const KeymapPart kSettings{-1, "settings"};
const KeymapPart kWheel{-1, "wheel"};

class SourceTest : public DocumentFixture {
 protected:
  // The text with one part replaced.
  static std::string With(QByteArray text, const char* part, const char* by) {
    EXPECT_EQ(text.count(part), 1) << part;
    return text.replace(part, by).toStdString();
  }
  // The part's own lines, with something in them replaced.
  QString Edited(const KeymapPart& part, const char* what, const char* by) const {
    return document_.Source(part).replace(QLatin1String(what), QLatin1String(by));
  }
};

TEST_F(SourceTest, AnItemIsItsLinesWithTheirComments) {
  Open(kLines);
  EXPECT_EQ(document_.Source(kFirst),
            "  - type: Click        # a tap\n    key: Space\n    point: [0.9, 0.8]\n    # key: Enter");
  EXPECT_EQ(document_.Source(kSettings), "settings:\n  keyboard_transparent: true  # all else is typed");
  EXPECT_EQ(document_.Source(kWheel), QString());
  EXPECT_EQ(document_.Source({}), QString());
}

TEST_F(SourceTest, CommandsOfAMacroAreEditedInOneStep) {
  Open(kLines);
  EXPECT_EQ(document_.SetSource(kSecond, Edited(kSecond, "sleep:40", "sleep:60\n      - click_rel:(0.5,0.5)")), "");
  EXPECT_EQ(Text(), With(kLines, "sleep:40", "sleep:60\n      - click_rel:(0.5,0.5)"));
  document_.UndoStack()->undo();
  EXPECT_EQ(Text(), kLines);
  EXPECT_FALSE(document_.IsModified());
}

// "    key: Spcae": the key begins after nine characters.
TEST_F(SourceTest, WhatIsWrongComesWithItsPlaceInThePart) {
  Open(kLines);
  EXPECT_EQ(document_.SetSource(kSecond, Edited(kSecond, "key: M", "key: Spcae")),
            "Line 2, column 10: unknown key 'Spcae'; did you mean 'Space'?");
  EXPECT_EQ(Text(), kLines);
  EXPECT_FALSE(document_.UndoStack()->canUndo());
}

// The missing bracket is noticed where the next item begins.
TEST_F(SourceTest, WhatComesToLightFurtherDownHasItsPlaceInTheFile) {
  Open(kLines);
  const QString problem = document_.SetSource(kFirst, Edited(kFirst, "0.8]", "0.8"));
  EXPECT_TRUE(problem.startsWith("Line 13 of the file: ")) << problem.toStdString();
  EXPECT_EQ(Text(), kLines);
}

TEST_F(SourceTest, OtherPartsOfTheFileAreOutOfReach) {
  Open(kLines);
  const QString refusal = "This edit would change other parts of the file. Edit the file itself.";
  for (const char* more : {"\n  - {type: Click, key: E, point: [0.5, 0.5]}", "\nname: Other"}) {
    EXPECT_EQ(document_.SetSource(kSecond, document_.Source(kSecond) + more), refusal) << more;
  }
  EXPECT_EQ(document_.SetSource(kSettings, document_.Source(kSettings) + "\nname: Other"), refusal);
  EXPECT_EQ(document_.SetSource(kFirst, "\n"), "Nothing is left of the item; use Delete to remove it.");
  EXPECT_EQ(Text(), kLines);
}

TEST_F(SourceTest, AnUneditedPartIsNoStep) {
  Open(kLines);
  for (const KeymapPart& part : {kFirst, kSecond, kSettings, kWheel}) {
    EXPECT_EQ(document_.SetSource(part, document_.Source(part)), "");
  }
  EXPECT_FALSE(document_.UndoStack()->canUndo());
}

// ---- The blocks other than the items

TEST_F(SourceTest, SettingsAreEdited) {
  Open(kLines);
  EXPECT_EQ(document_.SetSource(kSettings, Edited(kSettings, "true", "false")), "");
  EXPECT_EQ(Text(), With(kLines, "transparent: true", "transparent: false"));
  EXPECT_EQ(document_.SetSource(kSettings, "settings:\n  keyboard_transparnt: true").section(':', 0, 0),
            "Line 2, column 3");
}

TEST_F(SourceTest, ANewBlockStandsInFrontOfTheItems) {
  Open(kLines);
  EXPECT_EQ(document_.SetSource(kWheel, "wheel:\n  wheel_delta: 2.0"), "");
  EXPECT_EQ(Text(), With(kLines, "is typed\n", "is typed\nwheel:\n  wheel_delta: 2.0\n"));
  EXPECT_EQ(document_.Source(kWheel), "wheel:\n  wheel_delta: 2.0");
}

TEST_F(SourceTest, AnEmptyBlockIsTakenOut) {
  Open(kLines);
  EXPECT_EQ(document_.SetSource(kSettings, " \n"), "");
  EXPECT_EQ(Text(), With(kLines, "settings:\n  keyboard_transparent: true  # all else is typed\n", ""));
}

TEST_F(SourceTest, ABlockBeginsAFileWhoseItemsComeFirst) {
  Open("items: []\nformat: 1\n");
  EXPECT_EQ(document_.SetSource(kWheel, "wheel: {wheel_delta: 2.0}"), "");
  EXPECT_EQ(Text(), "wheel: {wheel_delta: 2.0}\nitems: []\nformat: 1\n");
}

// ---- Other forms of files

// In brackets a part begins in the middle of its line: column 26 of the part is 30 of the file.
TEST_F(SourceTest, JsonStaysJson) {
  Open(kJson);
  EXPECT_EQ(document_.Source(kFirst), R"({"type": "Click", "key": "Space", "point": [0.9, 0.8]})");
  EXPECT_EQ(document_.SetSource(kFirst, Edited(kFirst, "Space", "Spcae")),
            "Line 1, column 26: unknown key 'Spcae'; did you mean 'Space'?");
  EXPECT_EQ(document_.SetSource(kFirst, Edited(kFirst, "Space", "E")), "");
  EXPECT_EQ(document_.SetSource(kSettings, R"("settings": {"keyboard_transparent": true})"), "");
  EXPECT_EQ(Text(), With(With(kJson, "Space", "E").c_str(), "\"format\": 1,\n",
                         "\"format\": 1,\n  \"settings\": {\"keyboard_transparent\": true},\n"));
  EXPECT_EQ(document_.SetSource(kSettings, ""), "");
  EXPECT_EQ(Text(), With(kJson, "Space", "E"));
}

TEST_F(SourceTest, LineBreaksStayThoseOfTheFile) {
  const QByteArray text = QByteArray(kLines).replace("\n", "\r\n");
  Open(text);
  EXPECT_FALSE(document_.Source(kSecond).contains('\r'));
  EXPECT_EQ(document_.SetSource(kSecond, Edited(kSecond, "sleep:40", "sleep:60\n      - sleep:20")), "");
  EXPECT_EQ(Text(), With(text, "sleep:40", "sleep:60\r\n      - sleep:20"));
}

}  // namespace
}  // namespace tavi
