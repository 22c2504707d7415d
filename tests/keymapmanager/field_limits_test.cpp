// The rules for all fields of a kind, tested on each of them: the schema lists the fields.
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include "tests/keymapmanager/keymap_text.h"

namespace tavikeymapmanager {
namespace {

QJsonObject Definitions() {
  return QJsonDocument::fromJson(KeymapFileSchema()).object().value(QStringLiteral("definitions")).toObject();
}

// A value that a required field takes.
QByteArray SampleOf(const QString& field) {
  if (field == QStringLiteral("key")) return "F1";
  if (field == QStringLiteral("key_up")) return "F1";
  if (field == QStringLiteral("point")) return "[0.5, 0.5]";
  if (field == QStringLiteral("walk_radius")) return "0.1";
  if (field == QStringLiteral("map_text")) return "A";
  if (field == QStringLiteral("curve_straight")) return "true";
  return "[]";  // commands
}

// A keymap in which one record contains `field`, and its other required fields.
QByteArray KeymapWith(const QString& record, const QJsonObject& schema, const QString& field, const QByteArray& value) {
  QByteArrayList fields{field.toUtf8() + ": " + value};
  for (const QJsonValue& required : schema.value(QStringLiteral("required")).toArray()) {
    const QString name = required.toString();
    if (name != field) fields += name.toUtf8() + ": " + SampleOf(name);
  }
  const QJsonArray groups = schema.value(QStringLiteral("anyOf")).toArray();
  for (const QJsonValue& group : groups) {
    const QString name = group.toObject().value(QStringLiteral("required")).toArray().first().toString();
    const bool is_first = group == groups.first();
    const bool is_straight = name == QStringLiteral("curve_straight");
    if (name != field && (is_straight || (is_first && name != QStringLiteral("curve_points")))) {
      fields += name.toUtf8() + ": " + SampleOf(name);
    }
  }
  const QByteArray text = "{" + fields.join(", ") + "}";
  if (record == QStringLiteral("settings") || record == QStringLiteral("wheel")) {
    return "format: 1\n" + record.toUtf8() + ": " + text + "\n";
  }
  if (record == QStringLiteral("inner_swipehold")) {
    return "format: 1\nitems: [{type: Spell, key: F1, point: [0.5, 0.5], inner_swipehold: " + text + "}]\n";
  }
  return "format: 1\nitems: [{type: " + record.toUtf8() + ", " + text.mid(1) + "]\n";
}

bool IsAccepted(const QByteArray& text) { return !Read(text).HasErrors(); }

// Calls `check(record, schema of the record, field, schema of the field)` for every field.
template <typename Check>
int ForEveryField(const Check& check) {
  int count = 0;
  const QJsonObject definitions = Definitions();
  for (const QString& record : definitions.keys()) {
    const QJsonObject schema = definitions.value(record).toObject();
    if (record == QStringLiteral("item") || !schema.contains(QStringLiteral("properties"))) continue;
    const QJsonObject properties = schema.value(QStringLiteral("properties")).toObject();
    for (const QString& field : properties.keys()) {
      if (field == QStringLiteral("type") || field == QStringLiteral("label")) continue;
      SCOPED_TRACE((record + QLatin1Char('.') + field).toStdString());
      check(record, schema, field, properties.value(field).toObject());
      ++count;
    }
  }
  return count;
}

TEST(FieldLimits, NumbersReachFromTheirLeastToTheirMost) {
  int numbers = 0;
  ForEveryField([&](const QString& record, const QJsonObject& schema, const QString& field, const QJsonObject& value) {
    if (!value.contains(QStringLiteral("minimum"))) return;
    const double min = value.value(QStringLiteral("minimum")).toDouble();
    const double max = value.value(QStringLiteral("maximum")).toDouble();
    const auto is_accepted = [&](double number) {
      return IsAccepted(KeymapWith(record, schema, field, QByteArray::number(number, 'g', 17)));
    };
    EXPECT_TRUE(is_accepted(min));
    EXPECT_TRUE(is_accepted(max));
    const bool is_whole = value.value(QStringLiteral("type")) == QStringLiteral("integer");
    EXPECT_FALSE(is_accepted(min - (is_whole ? 1 : 0.0005)));
    EXPECT_FALSE(is_accepted(max + (is_whole ? 1 : 0.0005)));
    EXPECT_EQ(!is_whole, is_accepted((min + max) / 2 + (is_whole ? 0.25 : 0)));
    ++numbers;
  });
  EXPECT_GT(numbers, 50);
}

TEST(FieldLimits, PairsHaveTwoNumbersWithinTheirLimits) {
  int pairs = 0;
  ForEveryField([&](const QString& record, const QJsonObject& schema, const QString& field, const QJsonObject& value) {
    const QJsonObject entry = value.value(QStringLiteral("items")).toObject();
    if (value.value(QStringLiteral("maxItems")) != 2) return;
    const QByteArray min = QByteArray::number(entry.value(QStringLiteral("minimum")).toDouble());
    const QByteArray max = QByteArray::number(entry.value(QStringLiteral("maximum")).toDouble());
    const auto is_accepted = [&](const QByteArray& pair) {
      return IsAccepted(KeymapWith(record, schema, field, pair));
    };
    EXPECT_TRUE(is_accepted("[" + min + ", " + max + "]"));
    EXPECT_FALSE(is_accepted("[" + max + "1, 0]"));
    EXPECT_FALSE(is_accepted("[0, " + max + "1]"));
    EXPECT_FALSE(is_accepted("[-1.001, 0]"));
    EXPECT_FALSE(is_accepted("[0.5]"));
    EXPECT_FALSE(is_accepted("[0.5, 0.5, 0.5]"));
    EXPECT_FALSE(is_accepted("{x: 0.5, y: 0.5}"));
    ++pairs;
  });
  EXPECT_GT(pairs, 20);
}

TEST(FieldLimits, DefaultsLieWithinTheirLimits) {
  int defaults = 0;
  ForEveryField([&](const QString&, const QJsonObject&, const QString&, const QJsonObject& value) {
    if (!value.contains(QStringLiteral("minimum")) || !value.contains(QStringLiteral("default"))) return;
    const double number = value.value(QStringLiteral("default")).toDouble();
    EXPECT_GE(number, value.value(QStringLiteral("minimum")).toDouble());
    EXPECT_LE(number, value.value(QStringLiteral("maximum")).toDouble());
    ++defaults;
  });
  EXPECT_GT(defaults, 50);
}

TEST(FieldLimits, WordsAreTakenExactlyAsTheyAreSpelt) {
  int words = 0;
  ForEveryField([&](const QString& record, const QJsonObject& schema, const QString& field, const QJsonObject& value) {
    for (const QJsonValue& word : value.value(QStringLiteral("enum")).toArray()) {
      const QByteArray text = word.toString().toUtf8();
      EXPECT_TRUE(IsAccepted(KeymapWith(record, schema, field, text))) << text.constData();
      EXPECT_FALSE(IsAccepted(KeymapWith(record, schema, field, text.toUpper() + "_"))) << text.constData();
      EXPECT_FALSE(IsAccepted(KeymapWith(record, schema, field, " _" + text.toLower()))) << text.constData();
      ++words;
    }
  });
  EXPECT_GT(words, 40);
}

TEST(FieldLimits, AValueOfAnotherKindIsRefused) {
  const int fields = ForEveryField(
      [](const QString& record, const QJsonObject& schema, const QString& field, const QJsonObject& value) {
        const bool is_flag = value.value(QStringLiteral("type")) == QStringLiteral("boolean");
        for (const char* other : {"true", "", "~", "{a: b}", "[true]", "no such word", "1.5e300"}) {
          if (is_flag && qstrcmp(other, "true") == 0) continue;
          const bool is_name = field == QStringLiteral("map_text") && qstrcmp(other, "no such word") == 0;
          if (is_name) continue;  // a warning
          EXPECT_FALSE(IsAccepted(KeymapWith(record, schema, field, other))) << "'" << other << "'";
        }
      });
  EXPECT_GT(fields, 150);
}

TEST(FieldLimits, AFieldOfAnotherRecordIsUnknown) {
  ForEveryField([](const QString& record, const QJsonObject& schema, const QString&, const QJsonObject&) {
    EXPECT_FALSE(IsAccepted(KeymapWith(record, schema, QStringLiteral("no_such_field"), "1")));
  });
}

TEST(FieldLimits, RequiredFieldsAreMissed) {
  int missed = 0;
  const QJsonObject definitions = Definitions();
  for (const QString& record : definitions.keys()) {
    const QJsonObject schema = definitions.value(record).toObject();
    for (const QJsonValue& required : schema.value(QStringLiteral("required")).toArray()) {
      if (required.toString() == QStringLiteral("type")) continue;
      QByteArray text = KeymapWith(record, schema, required.toString(), SampleOf(required.toString()));
      EXPECT_TRUE(IsAccepted(text)) << text.constData();
      text.replace(required.toString().toUtf8() + ": " + SampleOf(required.toString()), "label: none");
      EXPECT_FALSE(IsAccepted(text)) << text.constData();
      ++missed;
    }
  }
  EXPECT_GT(missed, 20);
}

}  // namespace
}  // namespace tavikeymapmanager
