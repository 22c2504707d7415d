// The document: refused edits, undo, and the file.
#include "host/editor/keymap_document.h"

#include "host/editor/new_item.h"
#include "tests/host/editor/document_fixture.h"

namespace tavi {
namespace {

constexpr char kTwoTaps[] =
    "format: 1\nname: Taps\nitems:\n  - {type: Click, key: Space, point: [0.5, 0.5]}\n"
    "  - {type: Click, key: E, point: [0.25, 0.5]}\n";

class KeymapDocumentTest : public DocumentFixture {
 protected:
  KeymapDocumentTest() {
    QObject::connect(&document_, &KeymapDocument::Changed, &document_, [this] { ++changes_; });
  }

  int changes_ = 0;
};

// ---- What is refused

TEST_F(KeymapDocumentTest, ABrokenFileIsShownAndNotEdited) {
  Open("format: 1\nitems:\n  - {type: Click, key: Spcae, point: [0.5, 0.5]}\n");
  EXPECT_FALSE(document_.Keymap().diagnostics.isEmpty());
  EXPECT_EQ(document_.Refusal(), "A keymap with errors cannot be edited here. Correct them in the file first.");
  EXPECT_EQ(document_.Add("Click", {0.5, 0.5}), document_.Refusal());
  EXPECT_FALSE(document_.IsModified());
}

TEST_F(KeymapDocumentTest, AFileWithAliasesIsNotEdited) {
  Open("format: 1\nitems:\n  - {type: Click, key: A, point: &p [0.5, 0.5]}\n  - {type: Click, key: B, point: *p}\n");
  EXPECT_EQ(document_.Add("Click", {0.5, 0.5}), document_.Refusal());
  EXPECT_TRUE(document_.Keymap().diagnostics[0].message.contains("alias"));
}

TEST_F(KeymapDocumentTest, AFileInUtf16IsNotEdited) {
  QByteArray text("\xFF\xFE", 2);
  for (const char letter : QByteArray("format: 1\n")) text += QByteArray(1, letter) + QByteArray(1, '\0');
  Open(text);
  EXPECT_FALSE(document_.Keymap().HasErrors());
  EXPECT_EQ(document_.Add("Click", {0.5, 0.5}), "Only keymaps in UTF-8 can be edited here.");
}

TEST_F(KeymapDocumentTest, WhatWouldNotLoadIsRefusedInTheLoadersWords) {
  Open(kTwoTaps);
  const struct {
    const char* field;
    const char* text;
    const char* problem;
  } rows[] = {
      {"key", "Spcae", "unknown key 'Spcae'; did you mean 'Space'?"},
      {"key", "", "Click without 'key'"},
      {"point", "0.5, 2", "'point': expected a number from 0 to 1, got the number 2"},
      {"point", "the middle", "'point': expected [x, y], both from 0 to 1, got the text 'the middle'"},
      {"point", "-1e-400, 0.5", "'point': expected [x, y], both from 0 to 1, got the text '-1e-400, 0.5'"},
      {"type", "Clik", "unknown item type: the text 'Clik'; did you mean 'Click'?"},
      {"radius", "0.5",
       "unknown field 'radius' of Click; it belongs to items of type Swipehold, VirtualLeftStick and "
       "VirtualRightStick"},
  };
  for (const auto& row : rows) {
    EXPECT_EQ(document_.SetField(0, row.field, row.text), row.problem);
    EXPECT_EQ(Text(), kTwoTaps);
  }
  EXPECT_FALSE(document_.IsModified());
}

// Whatever is typed, it stays in its field.
TEST_F(KeymapDocumentTest, NothingTypedReachesAnotherField) {
  Open(kTwoTaps);
  for (const char* typed :
       {"a}, {type: Click", "x\n  - type: Tip", "x, key: R", "x # y", "\"", "'", "{scan: 3}, label: b"}) {
    EXPECT_EQ(document_.SetField(0, "label", typed), QString());
    EXPECT_EQ(document_.ItemCount(), 2);
    EXPECT_EQ(document_.WrittenText(0, "label"), typed);
    EXPECT_EQ(document_.WrittenText(0, "key"), "Space");
    document_.UndoStack()->undo();
  }
}

TEST_F(KeymapDocumentTest, WarningsRefuseNothing) {
  Open(kTwoTaps);
  EXPECT_EQ(document_.SetField(0, "key", "E"), QString());  // bound twice
  EXPECT_EQ(document_.Keymap().diagnostics.size(), 1);
}

// ---- The way back

TEST_F(KeymapDocumentTest, EachEditIsAStepBack) {
  Open(kTwoTaps);
  document_.SetField(0, "key", "F");
  document_.Remove(1);
  document_.UndoStack()->undo();
  EXPECT_EQ(document_.ItemCount(), 2);
  EXPECT_EQ(document_.WrittenText(0, "key"), "F");
  document_.UndoStack()->undo();
  EXPECT_EQ(Text(), kTwoTaps);
  EXPECT_FALSE(document_.IsModified());
  document_.UndoStack()->redo();
  EXPECT_EQ(document_.WrittenText(0, "key"), "F");
  EXPECT_TRUE(document_.IsModified());
}

TEST_F(KeymapDocumentTest, ADragIsOneStep) {
  Open(kTwoTaps);
  for (const double x : {0.51, 0.6, 0.625, 0.7}) document_.SetPair(0, "point", {x, 0.5}, 1);
  document_.SetPair(0, "point", {0.8, 0.5}, 2);  // another one
  EXPECT_EQ(document_.UndoStack()->count(), 2);
  document_.UndoStack()->undo();
  EXPECT_EQ(document_.WrittenText(0, "point"), "[0.7, 0.5]");
  document_.UndoStack()->undo();
  EXPECT_EQ(Text(), kTwoTaps);
}

TEST_F(KeymapDocumentTest, ADragBackToWhereItBeganIsNone) {
  Open(kTwoTaps);
  for (const double x : {0.6, 0.7, 0.5}) document_.SetPair(0, "point", {x, 0.5}, 1);
  EXPECT_FALSE(document_.UndoStack()->canUndo());
  EXPECT_FALSE(document_.IsModified());
}

TEST_F(KeymapDocumentTest, WhatChangesNothingIsNoStep) {
  Open(kTwoTaps);
  changes_ = 0;
  EXPECT_EQ(document_.SetField(0, "key", "Space"), QString());
  EXPECT_EQ(document_.SetPair(0, "point", {0.50001, 0.5}), QString());  // less than is in the file
  EXPECT_EQ(document_.SetField(0, "label", ""), QString());
  EXPECT_EQ(document_.UndoStack()->count(), 0);
  EXPECT_EQ(changes_, 0);
}

// Its listeners see the new state of the document.
TEST_F(KeymapDocumentTest, ChangesAreTold) {
  Open(kTwoTaps);
  bool is_modified = false;
  QObject::connect(&document_, &KeymapDocument::Changed, &document_, [&] { is_modified = document_.IsModified(); });
  document_.SetField(0, "key", "F");
  EXPECT_TRUE(is_modified);
  document_.Save(path_);
  EXPECT_FALSE(is_modified);
}

// ---- New items

TEST_F(KeymapDocumentTest, NewItemsTakeKeysThatAreFree) {
  Open(kTwoTaps);  // Space and E are used already
  document_.Add("Click", {0.5, 0.5});
  document_.Add("BunchClick", {0.5, 0.5});
  document_.Add("Swipehold", {0.5, 0.5});
  document_.Add("Eye", {0.5, 0.5});
  EXPECT_EQ(document_.WrittenText(2, "key"), "Q");
  EXPECT_EQ(document_.WrittenText(3, "key"), "R");
  EXPECT_EQ(document_.WrittenText(4, "key_up"), "W");
  EXPECT_EQ(document_.WrittenText(5, "key_up"), "Up");
  EXPECT_TRUE(document_.Keymap().diagnostics.isEmpty());
}

TEST_F(KeymapDocumentTest, NewItemsOfAGamepadsKeymapTakeItsButtons) {
  Open("format: 1\nitems:\n  - {type: Click, key: Pad A, point: [0.5, 0.5]}\n");
  document_.Add("Click", {0.5, 0.5});
  EXPECT_EQ(document_.WrittenText(1, "key"), "Pad B");
}

TEST_F(KeymapDocumentTest, TheMenuHasEveryType) {
  QStringList offered;
  for (const ItemTypeGroup& group : ItemTypeGroups()) offered += group.types;
  QStringList types;
  for (const auto& type : tavikeymapmanager::DescribeItemTypes()) types += type.name;
  offered.sort();
  types.sort();
  EXPECT_EQ(offered, types);
}

// ---- The file

TEST_F(KeymapDocumentTest, ANewKeymapIsEmptyAndGetsAFile) {
  document_.New();
  EXPECT_EQ(document_.Refusal(), QString());
  EXPECT_EQ(document_.ItemCount(), 0);
  EXPECT_EQ(document_.Add("Click", {0.5, 0.5}), QString());
  const QString path = folder_.filePath("new.yaml");
  EXPECT_EQ(document_.Save(path), QString());
  EXPECT_EQ(document_.Path(), path);
  EXPECT_EQ(BytesOf(path), "format: 1\n\nitems:\n  - type: Click\n    key: Space\n    point: [0.5, 0.5]\n");
}

TEST_F(KeymapDocumentTest, AFileThatIsNotThereIsNone) {
  EXPECT_FALSE(document_.Open(folder_.filePath("none.yaml")));
  EXPECT_NE(document_.Refusal(), QString());
}

TEST_F(KeymapDocumentTest, AForeignChangeOfTheFileIsSeen) {
  Open(kTwoTaps);
  document_.SetField(0, "key", "F");
  EXPECT_FALSE(document_.IsFileChanged());
  document_.Save(path_);
  EXPECT_FALSE(document_.IsFileChanged());  // that was our own change
  WriteTo(path_, "format: 1\n");
  EXPECT_TRUE(document_.IsFileChanged());
  document_.Save(path_);
  EXPECT_FALSE(document_.IsFileChanged());
}

TEST_F(KeymapDocumentTest, AFileThatCannotBeWrittenIsTold) {
  Open(kTwoTaps);
  document_.SetField(0, "key", "F");
  const QString path = folder_.filePath("no/such/folder.yaml");
  EXPECT_TRUE(document_.Save(path).startsWith(path + " cannot be written: "));
  EXPECT_TRUE(document_.IsModified());
  EXPECT_EQ(document_.Path(), path_);
}

TEST_F(KeymapDocumentTest, ALinkStaysALinkAndRightsStayRights) {
  Open(kTwoTaps);
  QFile::setPermissions(path_, QFile::ReadOwner | QFile::WriteOwner | QFile::ReadGroup);
  const auto rights = QFile::permissions(path_);
  const QString link = folder_.filePath("link.yaml");
  ASSERT_TRUE(QFile::link(path_, link));
  ASSERT_TRUE(document_.Open(link));
  document_.SetField(0, "key", "F");
  EXPECT_EQ(document_.Save(link), QString());
  EXPECT_TRUE(QFileInfo(link).isSymLink());
  EXPECT_EQ(BytesOf(path_), document_.Text());
  EXPECT_EQ(QFile::permissions(path_), rights);
}

TEST_F(KeymapDocumentTest, UndoGoesOnBehindASave) {
  Open(kTwoTaps);
  document_.SetField(0, "key", "F");
  document_.Save(path_);
  document_.UndoStack()->undo();
  EXPECT_TRUE(document_.IsModified());
  EXPECT_EQ(Text(), kTwoTaps);
}

}  // namespace
}  // namespace tavi
