// How edits are written: on lines, in braces, in JSON, with any text around them.
#include "tests/host/editor/document_fixture.h"

namespace tavi {
namespace {

constexpr char kLines[] =
    "# A keymap.\n"
    "format: 1\n"
    "items:\n"
    "  # The jump.\n"
    "  - type: Click        # a tap\n"
    "    key: Space\n"
    "    point: [0.9, 0.80] # lower right\n"
    "    # key: Enter\n"
    "\n"
    "  - type: Swipehold\n"
    "    point: [0.2, 0.7]\n"
    "    key_up: W\n";

constexpr char kJson[] =
    "{\n"
    "  \"format\": 1,\n"
    "  \"items\": [\n"
    "    {\"type\": \"Click\", \"key\": \"Space\", \"point\": [0.9, 0.8]},\n"
    "    {\n"
    "      \"type\": \"Click\",\n"
    "      \"key\": \"E\",\n"
    "      \"point\": [0.5, 0.5]\n"
    "    }\n"
    "  ]\n"
    "}\n";

class KeymapTextTest : public DocumentFixture {
 protected:
  // The text with one part replaced.
  static std::string With(QByteArray text, const char* part, const char* by) {
    EXPECT_EQ(text.count(part), 1) << part;
    return text.replace(part, by).toStdString();
  }
};

// ---- Values

TEST_F(KeymapTextTest, OfAPairOnlyTheNumberThatDiffersIsWritten) {
  Open(kLines);
  EXPECT_EQ(document_.SetPair(0, "point", {0.25, 0.8}), QString());
  EXPECT_EQ(Text(), With(kLines, "[0.9, 0.80]", "[0.25, 0.80]"));
}

TEST_F(KeymapTextTest, APairOfLinesKeepsThem) {
  const char text[] = "format: 1\nitems:\n- type: Tip\n  point:\n  - 0.5   # across\n  - 0.5\n";
  Open(text);
  EXPECT_EQ(document_.SetPair(0, "point", {0.25, 0.75}), QString());
  EXPECT_EQ(Text(), "format: 1\nitems:\n- type: Tip\n  point:\n  - 0.25   # across\n  - 0.75\n");
}

TEST_F(KeymapTextTest, QuotesStay) {
  Open("format: 1\nitems: [{type: Tip, label: 'A', key: \"Space\", point: [0, 0]}]\n");
  EXPECT_EQ(document_.SetField(0, "label", "It's"), QString());
  EXPECT_EQ(document_.SetField(0, "key", "E"), QString());
  EXPECT_EQ(Text(), "format: 1\nitems: [{type: Tip, label: 'It''s', key: \"E\", point: [0, 0]}]\n");
}

TEST_F(KeymapTextTest, AKeyOfAnyFormIsReplaced) {
  Open(
      "format: 1\nitems:\n  - type: Click\n    key:\n      scan: 86\n    point: [0, 0]\n"
      "  - {type: Click, key: {scan: 87}, point: [0, 0]}\n");
  EXPECT_EQ(document_.SetField(0, "key", "Left Shift + 1"), QString());
  EXPECT_EQ(document_.SetField(1, "key", "2"), QString());
  EXPECT_EQ(document_.WrittenText(0, "key"), "Left Shift + 1");
  EXPECT_EQ(document_.WrittenText(1, "key"), "2");
  EXPECT_EQ(document_.SetField(1, "key", "{pad: Guide}"), QString());
  EXPECT_EQ(document_.WrittenText(1, "key"), "{pad: Guide}");
}

TEST_F(KeymapTextTest, ATextInLinesBecomesOne) {
  Open("format: 1\nitems:\n  - type: Tip\n    label: |\n      Two\n      lines\n    point: [0, 0]\n");
  EXPECT_EQ(document_.SetField(0, "label", "One"), QString());
  EXPECT_EQ(Text(), "format: 1\nitems:\n  - type: Tip\n    label: One\n    point: [0, 0]\n");
}

TEST_F(KeymapTextTest, AnAnchorStays) {
  Open("format: 1\nitems:\n  - &tip\n    type: Tip\n    label: &name Old\n    point: [0, 0]\n");
  EXPECT_EQ(document_.SetField(0, "label", "New"), QString());
  EXPECT_EQ(Text(), "format: 1\nitems:\n  - &tip\n    type: Tip\n    label: &name New\n    point: [0, 0]\n");
}

TEST_F(KeymapTextTest, PairsAreTypedWithBracketsOrWithout) {
  Open(kLines);
  for (const char* typed : {"[0.1, 0.2]", "0.1, 0.2", " 0.1 0.2 ", ".1,2e-1"}) {
    EXPECT_EQ(document_.SetField(0, "point", typed), QString());
    EXPECT_EQ(document_.WrittenText(0, "point"), "[0.1, 0.2]");
    document_.UndoStack()->undo();
  }
}

// ---- New fields and fields that go

TEST_F(KeymapTextTest, ANewFieldStandsWhereItsKindUsuallyDoes) {
  Open(kLines);
  EXPECT_EQ(document_.SetField(0, "label", "Jump"), QString());
  EXPECT_EQ(Text(), With(kLines, "# a tap\n", "# a tap\n    label: Jump\n"));
  EXPECT_EQ(document_.SetField(1, "radius", "0.05"), QString());
  EXPECT_EQ(Text(), With(With(kLines, "# a tap\n", "# a tap\n    label: Jump\n").c_str(), "key_up: W\n",
                         "key_up: W\n    radius: 0.05\n"));
}

TEST_F(KeymapTextTest, ANewFieldInBracesFollowsAComma) {
  Open("format: 1\nitems:\n  - {type: Click, key: Space, point: [0.9, 0.8]}  # a tap\n");
  EXPECT_EQ(document_.SetField(0, "label", "a, b"), QString());
  EXPECT_EQ(Text(), "format: 1\nitems:\n  - {type: Click, label: \"a, b\", key: Space, point: [0.9, 0.8]}  # a tap\n");
}

TEST_F(KeymapTextTest, JsonStaysJson) {
  Open(kJson);
  EXPECT_EQ(document_.SetField(0, "label", "Jump"), QString());
  EXPECT_EQ(document_.SetField(1, "label", "Use"), QString());
  EXPECT_EQ(document_.SetField(1, "key", "F"), QString());
  EXPECT_EQ(Text(), With(With(With(kJson, "\"Click\", \"key\"", "\"Click\", \"label\": \"Jump\", \"key\"").c_str(),
                              "\"Click\",\n", "\"Click\",\n      \"label\": \"Use\",\n")
                             .c_str(),
                         "\"E\"", "\"F\""));
}

TEST_F(KeymapTextTest, AFieldGoesWithItsLine) {
  Open(
      "format: 1\nitems:\n  - label: Jump  # said\n    type: Click\n    key: Space\n    point: [0, 0]\n"
      "  - {label: a, type: Tip, key: E, point: [0, 0]}\n  - {type: Tip, point: [0, 0], key: R}\n");
  EXPECT_EQ(document_.SetField(0, "label", ""), QString());
  EXPECT_EQ(document_.SetField(1, "label", ""), QString());
  EXPECT_EQ(document_.SetField(1, "key", ""), QString());
  EXPECT_EQ(document_.SetField(2, "key", ""), QString());
  EXPECT_EQ(Text(),
            "format: 1\nitems:\n  - type: Click\n    key: Space\n    point: [0, 0]\n"
            "  - {type: Tip, point: [0, 0]}\n  - {type: Tip, point: [0, 0]}\n");
}

TEST_F(KeymapTextTest, AFieldWithoutAValueGetsOne) {
  Open("format: 1\nitems:\n  - type: Macro\n    key: E\n    press_commands: []\n    label: \"\"  # none\n");
  EXPECT_EQ(document_.SetField(0, "label", "Run"), QString());
  EXPECT_EQ(document_.WrittenText(0, "label"), "Run");
  EXPECT_TRUE(document_.Text().endsWith("    label: \"Run\"  # none\n"));
}

// ---- Items that go

TEST_F(KeymapTextTest, AnItemGoesWithItsComments) {
  Open(kLines);
  EXPECT_EQ(document_.Remove(0), QString());
  EXPECT_EQ(Text(), "# A keymap.\nformat: 1\nitems:\n  - type: Swipehold\n    point: [0.2, 0.7]\n    key_up: W\n");
}

TEST_F(KeymapTextTest, TheLastItemTakesTheBlankLineAbove) {
  Open(kLines);
  EXPECT_EQ(document_.Remove(1), QString());
  EXPECT_EQ(Text(), With(kLines, "\n  - type: Swipehold\n    point: [0.2, 0.7]\n    key_up: W\n", ""));
}

TEST_F(KeymapTextTest, ACommentOverSeveralItemsStaysWithTheOthers) {
  Open(
      "format: 1\nitems:\n  # Two weapons.\n  - {type: Tip, label: a, point: [0, 0]}\n"
      "  - {type: Tip, label: b, point: [0, 0]}\n\n  - {type: Tip, label: c, point: [0, 0]}\n");
  EXPECT_EQ(document_.Remove(0), QString());
  EXPECT_EQ(Text(),
            "format: 1\nitems:\n  # Two weapons.\n  - {type: Tip, label: b, point: [0, 0]}\n\n"
            "  - {type: Tip, label: c, point: [0, 0]}\n");
  EXPECT_EQ(document_.Remove(0), QString());
  EXPECT_EQ(Text(), "format: 1\nitems:\n  - {type: Tip, label: c, point: [0, 0]}\n");
}

TEST_F(KeymapTextTest, ACommentFartherToTheLeftIsAHeading) {
  Open("format: 1\nitems:\n# ---- Weapons\n  - {type: Tip, label: a, point: [0, 0]}\n");
  EXPECT_EQ(document_.Remove(0), QString());
  EXPECT_EQ(Text(), "format: 1\nitems:\n# ---- Weapons\n");
}

TEST_F(KeymapTextTest, AnItemInBracketsGoesWithItsComma) {
  const char text[] =
      "format: 1\nitems: [{type: Tip, label: a, point: [0, 0]}, {type: Tip, label: b, point: [0, 0]},\n"
      "  {type: Tip, label: c, point: [0, 0]}]\n";
  Open(text);
  EXPECT_EQ(document_.Remove(2), QString());
  EXPECT_EQ(Text(), With(text, ",\n  {type: Tip, label: c, point: [0, 0]}", ""));
  EXPECT_EQ(document_.Remove(0), QString());
  EXPECT_EQ(document_.Remove(0), QString());
  EXPECT_EQ(Text(), "format: 1\nitems: []\n");
}

TEST_F(KeymapTextTest, ACommentBehindTheItemBeforeStays) {
  Open(
      "format: 1\nitems: [\n  {type: Tip, label: a, point: [0, 0]},  # said of a\n"
      "  {type: Tip, label: b, point: [0, 0]}\n]\n");
  EXPECT_EQ(document_.Remove(1), QString());
  EXPECT_EQ(Text(), "format: 1\nitems: [\n  {type: Tip, label: a, point: [0, 0]}  # said of a\n  \n]\n");
}

// ---- New items

TEST_F(KeymapTextTest, ANewItemIsWrittenAsTheOneBefore) {
  Open(kLines);
  EXPECT_EQ(document_.Add("Click", {0.5, 0.25}), QString());
  EXPECT_EQ(Text(), kLines + std::string("\n  - type: Click\n    key: E\n    point: [0.5, 0.25]\n"));
}

TEST_F(KeymapTextTest, ANewItemBehindOneInBracesIsInBraces) {
  Open("format: 1\nitems:\n- {type: Tip, point: [0, 0]}\n# the end\n");
  EXPECT_EQ(document_.Add("Click", {0.5, 0.25}), QString());
  EXPECT_EQ(Text(),
            "format: 1\nitems:\n- {type: Tip, point: [0, 0]}\n- {type: Click, key: Space, point: [0.5, 0.25]}\n"
            "# the end\n");
}

TEST_F(KeymapTextTest, ANewItemOfJsonIsJson) {
  Open(kJson);
  EXPECT_EQ(document_.Add("Click", {0.5, 0.25}), QString());
  EXPECT_EQ(Text(), With(kJson, "    }\n  ]",
                         "    },\n    {\"type\": \"Click\", \"key\": \"Q\", \"point\": [0.5, 0.25]}\n  ]"));
}

TEST_F(KeymapTextTest, TheFirstItemFindsItsPlace) {
  const struct {
    const char* before;
    const char* after;
  } rows[] = {
      {"format: 1\nitems: []\n", "format: 1\nitems:\n  - type: Tip\n    label: Note\n    point: [0.5, 0.5]\n"},
      {"format: 1\nitems: []  # none\n",
       "format: 1\nitems:  # none\n  - type: Tip\n    label: Note\n    point: [0.5, 0.5]\n"},
      {"format: 1\nitems:\n# none\n",
       "format: 1\nitems:\n  - type: Tip\n    label: Note\n    point: [0.5, 0.5]\n# none\n"},
      {"format: 1\nitems: null", "format: 1\nitems:\n  - type: Tip\n    label: Note\n    point: [0.5, 0.5]"},
      {"items: []\nformat: 1\n", "items:\n  - type: Tip\n    label: Note\n    point: [0.5, 0.5]\nformat: 1\n"},
      {"format: 1\n", "format: 1\nitems:\n  - type: Tip\n    label: Note\n    point: [0.5, 0.5]\n"},
      {"format: 1", "format: 1\nitems:\n  - type: Tip\n    label: Note\n    point: [0.5, 0.5]"},
      {"{\"format\": 1, \"items\": []}\n",
       "{\"format\": 1, \"items\": [{\"type\": \"Tip\", \"label\": \"Note\", \"point\": [0.5, 0.5]}]}\n"},
      {"{\"format\": 1}\n",
       "{\"format\": 1, \"items\": [{\"type\": \"Tip\", \"label\": \"Note\", \"point\": [0.5, 0.5]}]}\n"},
      {"{format: 1, items: }\n", "{format: 1, items: [{type: Tip, label: Note, point: [0.5, 0.5]}]}\n"},
  };
  for (const auto& row : rows) {
    Open(row.before);
    EXPECT_EQ(document_.Add("Tip", {0.5, 0.5}), QString());
    EXPECT_EQ(Text(), row.after);
  }
}

TEST_F(KeymapTextTest, ACopyStandsAsideBehindItsItem) {
  Open(kLines);
  EXPECT_EQ(document_.Duplicate(1), QString());
  EXPECT_EQ(Text(), kLines + std::string("\n  - type: Swipehold\n    point: [0.23, 0.73]\n    key_up: W\n"));
  Open("format: 1\nitems: [{type: Tip, point: [1, 0]}]\n");
  EXPECT_EQ(document_.Duplicate(0), QString());
  EXPECT_EQ(Text(), "format: 1\nitems: [{type: Tip, point: [1, 0]}, {type: Tip, point: [0.97, 0.03]}]\n");
}

TEST_F(KeymapTextTest, ACopyLeavesTheCommentBehindItsItem) {
  Open("format: 1\nitems: [\n  {type: Tip, point: [0, 1]},  # said of it\n  {type: Tip, point: [0.5, 0.5]}\n]\n");
  EXPECT_EQ(document_.Duplicate(0), QString());
  EXPECT_EQ(Text(),
            "format: 1\nitems: [\n  {type: Tip, point: [0, 1]},  # said of it\n  {type: Tip, point: [0.03, 0.97]},\n"
            "  {type: Tip, point: [0.5, 0.5]}\n]\n");
  EXPECT_EQ(document_.Remove(1), QString());
  document_.UndoStack()->undo();
  document_.UndoStack()->undo();
  EXPECT_FALSE(document_.IsModified());
}

// ---- Bytes

TEST_F(KeymapTextTest, LineBreaksOfWindowsStay) {
  QByteArray text = kLines;
  text.replace("\n", "\r\n");
  Open(text);
  EXPECT_EQ(document_.SetField(0, "label", "Jump"), QString());
  EXPECT_EQ(document_.Add("Tip", {0.5, 0.5}), QString());
  EXPECT_EQ(document_.Duplicate(1), QString());
  EXPECT_EQ(document_.Text().count('\n'), document_.Text().count("\r\n"));
  EXPECT_EQ(document_.Remove(0), QString());
  EXPECT_TRUE(document_.Text().startsWith("# A keymap.\r\nformat: 1\r\nitems:\r\n  - type: Swipehold\r\n"));
  while (document_.UndoStack()->canUndo()) document_.UndoStack()->undo();
  EXPECT_EQ(Text(), text.toStdString());
}

TEST_F(KeymapTextTest, AByteOrderMarkAndForeignLettersMoveNothing) {
  Open(
      "\xEF\xBB\xBF"
      "format: 1  # \xE4\xBD\xA0\xE5\xA5\xBD\nitems: [{type: Tip, label: \xC3\xA9t\xC3\xA9, point: [0, 0]}]");
  EXPECT_EQ(document_.SetPair(0, "point", {0.5, 0.5}), QString());
  EXPECT_EQ(Text(),
            "\xEF\xBB\xBF"
            "format: 1  # \xE4\xBD\xA0\xE5\xA5\xBD\n"
            "items: [{type: Tip, label: \xC3\xA9t\xC3\xA9, point: [0.5, 0.5]}]");
}

TEST_F(KeymapTextTest, AMissingBreakAtTheEndStaysMissing) {
  Open("format: 1\nitems:\n  - {type: Tip, point: [0, 0]}");
  EXPECT_EQ(document_.Add("Tip", {0.5, 0.5}), QString());
  EXPECT_EQ(Text(),
            "format: 1\nitems:\n  - {type: Tip, point: [0, 0]}\n  - {type: Tip, label: Note, point: [0.5, 0.5]}");
}

TEST_F(KeymapTextTest, ACommentOverTheFirstDashIsNoDash) {
  Open("format: 1\nitems:\n  # - {type: Tip}\n\n  -   # - here\n    type: Tip\n    point: [0, 0]\n");
  EXPECT_EQ(document_.Add("Tip", {0.5, 0.5}), QString());
  EXPECT_EQ(document_.Remove(0), QString());
  EXPECT_EQ(Text(), "format: 1\nitems:\n  # - {type: Tip}\n\n  - type: Tip\n    label: Note\n    point: [0.5, 0.5]\n");
}

}  // namespace
}  // namespace tavi
