// Every example keymap is edited, and only the edited lines change.
#include <algorithm>

#include "host/editor/new_item.h"
#include "tests/host/editor/document_fixture.h"

namespace tavi {
namespace {

namespace km = tavikeymapmanager;

class ExampleKeymap : public DocumentFixture, public testing::WithParamInterface<QString> {
 protected:
  ExampleKeymap() : before_(BytesOf(GetParam())) { Open(before_); }

  // The lines of an item's field.
  QVector<int> LinesOf(int item, const char* field) const {
    const km::FieldOutline* outline = document_.Outline().items[item].Find(QLatin1String(field));
    QVector<int> lines;
    if (outline == nullptr) return lines;
    for (int line = LineOf(before_, outline->value.begin); line <= LineOf(before_, outline->value.end); ++line) {
      lines.append(line);
    }
    return lines;
  }
  // Lines that begin with "#" or contain one after a space.
  static int CommentCount(const QByteArray& text) {
    const auto lines = text.split('\n');
    return static_cast<int>(std::count_if(lines.begin(), lines.end(), [](const QByteArray& line) {
      return line.startsWith('#') || line.contains(" #");
    }));
  }
  void ExpectUndoGivesTheFileBack() {
    while (document_.UndoStack()->canUndo()) document_.UndoStack()->undo();
    EXPECT_EQ(Text(), before_.toStdString());
    EXPECT_FALSE(document_.IsModified());
  }

  const QByteArray before_;
};

TEST_P(ExampleKeymap, AnUneditedOneIsSavedAsItWas) {
  EXPECT_EQ(document_.Refusal(), QString());
  EXPECT_EQ(document_.Save(path_), QString());
  EXPECT_EQ(BytesOf(path_), before_);
}

TEST_P(ExampleKeymap, AMoveChangesTheLineOfThePoint) {
  int moved = 0;
  for (int item = 0; item < document_.ItemCount(); ++item) {
    const QVector<int> lines = LinesOf(item, "point");
    if (lines.isEmpty()) continue;
    EXPECT_EQ(document_.SetPair(item, "point", {0.123, 0.4567}), QString());
    EXPECT_EQ(ChangedLines(before_, document_.Text()), lines);
    EXPECT_EQ(km::NumbersOfField(*document_.Item(item), "point"), (QVector<double>{0.123, 0.4567}));
    document_.UndoStack()->undo();
    ++moved;
  }
  EXPECT_TRUE(moved > 0 || GetParam().contains("virtual_gamepad"));  // without items on the screen
  ExpectUndoGivesTheFileBack();
}

// The file, not only the text: everything that was moved, and nothing else.
TEST_P(ExampleKeymap, ASavedMoveIsOfThoseLines) {
  QVector<int> lines;
  for (int item = 0; item < document_.ItemCount(); ++item) lines += LinesOf(item, "point");
  for (int item = 0; item < document_.ItemCount(); ++item) {
    if (document_.WrittenText(item, "point").isEmpty()) continue;
    EXPECT_EQ(document_.SetPair(item, "point", {0.123, 0.4567}), QString());
  }
  EXPECT_EQ(document_.Save(path_), QString());
  EXPECT_EQ(ChangedLines(before_, BytesOf(path_)), lines);
}

// Including macros, curves, and aimed skills with a walk of their own.
TEST_P(ExampleKeymap, AnItemsTextChangesItsLineAlone) {
  for (int item = 0; item < document_.ItemCount(); ++item) {
    const KeymapPart part{item, {}};
    const QString source = document_.Source(part);
    EXPECT_EQ(document_.SetSource(part, source + QStringLiteral("  # so")), QString()) << source.toStdString();
    const int first_line = LineOf(before_, before_.indexOf(source.toUtf8()));
    EXPECT_EQ(ChangedLines(before_, document_.Text()), QVector<int>{first_line + static_cast<int>(source.count('\n'))});
    document_.UndoStack()->undo();
  }
  ExpectUndoGivesTheFileBack();
}

TEST_P(ExampleKeymap, ARadiusChangesItsLine) {
  for (int item = 0; item < document_.ItemCount(); ++item) {
    for (const char* field : {"radius", "walk_radius", "swipe_radius"}) {
      const QVector<int> lines = LinesOf(item, field);
      if (lines.isEmpty()) continue;
      EXPECT_EQ(document_.SetNumber(item, QLatin1String(field), 0.333), QString());
      EXPECT_EQ(ChangedLines(before_, document_.Text()), lines);
      document_.UndoStack()->undo();
    }
  }
  ExpectUndoGivesTheFileBack();
}

TEST_P(ExampleKeymap, AKeyChangesItsLine) {
  const bool is_gamepad = GetParam().contains("_gamepad.yaml") && !GetParam().contains("virtual");
  for (int item = 0; item < document_.ItemCount(); ++item) {
    for (const char* field : {"key", "key_up", "key_left", "key_down", "key_right"}) {
      const QVector<int> lines = LinesOf(item, field);
      if (lines.isEmpty()) continue;
      EXPECT_EQ(document_.SetField(item, QLatin1String(field), is_gamepad ? "Pad 9" : "Numpad Enter"), QString());
      EXPECT_EQ(ChangedLines(before_, document_.Text()), lines);
      document_.UndoStack()->undo();
    }
  }
  ExpectUndoGivesTheFileBack();
}

// What remains is the file without a run of lines, which contain only the item and its comments.
TEST_P(ExampleKeymap, ADeletedItemTakesItsLinesAlone) {
  for (int item = 0; item < document_.ItemCount(); ++item) {
    const int others = document_.ItemCount() - 1;
    EXPECT_EQ(document_.Remove(item), QString());
    EXPECT_EQ(document_.ItemCount(), others);
    const TextChange change = ChangeBetween(before_, document_.Text());
    EXPECT_TRUE(change.inserted.isEmpty());
    EXPECT_EQ(change.removed.count("type: "), 1) << change.removed.toStdString();
    EXPECT_FALSE(document_.Text().contains("\n\n\n")) << document_.Text().toStdString();
    document_.UndoStack()->undo();
  }
  ExpectUndoGivesTheFileBack();
}

TEST_P(ExampleKeymap, AllItemsCanBeDeletedAndComeBack) {
  while (document_.ItemCount() > 0) ASSERT_EQ(document_.Remove(0), QString());
  EXPECT_EQ(document_.Add("Click", {0.5, 0.5}), QString());
  EXPECT_EQ(document_.ItemCount(), 1);
  ExpectUndoGivesTheFileBack();
}

TEST_P(ExampleKeymap, ANewItemOfEachTypeIsPutBehindTheOthers) {
  for (const ItemTypeGroup& group : ItemTypeGroups()) {
    for (const QString& type : group.types) {
      EXPECT_EQ(document_.Add(type, {0.25, 0.75}), QString()) << type.toStdString();
      const TextChange change = ChangeBetween(before_, document_.Text());
      EXPECT_TRUE(change.removed.isEmpty()) << change.removed.toStdString();
      EXPECT_EQ(document_.Item(document_.ItemCount() - 1)->type, type);
      EXPECT_EQ(CommentCount(document_.Text()), CommentCount(before_));
      document_.UndoStack()->undo();
    }
  }
  ExpectUndoGivesTheFileBack();
}

TEST_P(ExampleKeymap, ACopyStandsBehindItsItem) {
  for (int item = 0; item < document_.ItemCount(); ++item) {
    EXPECT_EQ(document_.Duplicate(item), QString());
    EXPECT_TRUE(ChangeBetween(before_, document_.Text()).removed.isEmpty());
    EXPECT_EQ(document_.Item(item + 1)->type, document_.Item(item)->type);
    document_.UndoStack()->undo();
  }
  ExpectUndoGivesTheFileBack();
}

// Each field of a type that was absent is written, on new lines.
TEST_P(ExampleKeymap, AMissingFieldIsAddedToItsItem) {
  for (int item = 0; item < document_.ItemCount(); ++item) {
    for (const km::FieldInfo& field : document_.TypeOf(item).fields) {
      if (document_.Outline().items[item].Find(field.name) != nullptr) continue;
      const QString text = km::TextOfField(*document_.Item(item), field.name);
      if (text.isEmpty()) continue;  // a list, or a word without a default
      EXPECT_EQ(document_.SetField(item, field.name, text), QString()) << field.name.toStdString();
      EXPECT_TRUE(ChangeBetween(before_, document_.Text()).removed.isEmpty());
      EXPECT_EQ(document_.WrittenText(item, field.name), text);
      EXPECT_EQ(document_.SetField(item, field.name, QString()), QString());
      EXPECT_EQ(Text(), before_.toStdString());
      document_.UndoStack()->undo();
      document_.UndoStack()->undo();
    }
  }
  ExpectUndoGivesTheFileBack();
}

std::string NameOf(const testing::TestParamInfo<QString>& info) {
  return QFileInfo(info.param).completeBaseName().toStdString();
}

INSTANTIATE_TEST_SUITE_P(All, ExampleKeymap, testing::ValuesIn(ExampleKeymaps()), NameOf);

}  // namespace
}  // namespace tavi
