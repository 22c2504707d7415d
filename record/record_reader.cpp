#include "record/record_reader.h"

#include <algorithm>
#include <bitset>
#include <charconv>
#include <optional>

#include "record/json/library_json.h"
#include "record/merge_record_actions.h"
#include "record/record_action.h"
#include "record/record_file_utils.h"
#include "record/record_format.h"
#include "record/single_record_actions.h"

namespace taviinputmanager {

using namespace record_format;  // NOLINT(google-build-using-namespace): words of files, and nothing else

namespace {

struct TextField {
  QLatin1String key;
  QString RecordAction::*text = nullptr;
};

constexpr TextField kTextFields[] = {
    {kType, &RecordAction::type},
    {kData, &RecordAction::data},
    {kExtra1, &RecordAction::extra1},
    {kExtra2, &RecordAction::extra2},
};
constexpr std::size_t kTimingField = std::size(kTextFields);
constexpr std::size_t kNoField = kTimingField + 1;

bool IsKey(std::string_view key, QLatin1String word) {
  return key == std::string_view(word.data(), static_cast<std::size_t>(word.size()));
}

// The text fields, by their position in the table.
std::size_t FieldOf(std::string_view key) {
  if (IsKey(key, kTiming)) return kTimingField;
  const auto* const field = std::find_if(std::begin(kTextFields), std::end(kTextFields),
                                         [key](const TextField& candidate) { return IsKey(key, candidate.key); });
  return field == std::end(kTextFields) ? kNoField : static_cast<std::size_t>(field - kTextFields);
}

// Every other value is a number: the library accepts more forms of them than JSON.
bool IsNumberAhead(char mark) { return std::string_view("\"{[tfn").find(mark) == std::string_view::npos; }

}  // namespace

struct RecordReader::Level {
  std::shared_ptr<RecordActions> Actions() const {
    std::shared_ptr<RecordActions> actions = single;
    if (!actions) actions = merged;
    if (actions && control) RecordFileUtils::GetInstance()->ReadControlParam(*control, &actions->control);
    return actions;
  }

  std::optional<QJsonObject> info;
  std::optional<QJsonObject> control;
  std::shared_ptr<SingleRecordActions> single;
  std::shared_ptr<MergeRecordActions> merged;
};

bool RecordReader::Read(RecordContents* contents) {
  Level level;
  if (!TakeLevel(&level) || !scanner_.IsAtEnd()) return false;
  contents->info = level.info.value_or(QJsonObject());
  contents->actions = level.Actions();
  return true;
}

bool RecordReader::TakeLevel(Level* level) {
  return scanner_.TakeObject([&](std::string_view key) { return TakeMember(key, level); });
}

// If a key occurs twice, only the library knows which one counts.
bool RecordReader::TakeMember(std::string_view key, Level* level) {
  if (IsKey(key, kInfo)) return !level->info && scanner_.TakeWhole(&level->info.emplace());
  if (keep_ == Keep::kNothing) return scanner_.Skip();
  if (IsKey(key, kControl)) return !level->control && scanner_.TakeWhole(&level->control.emplace());
  if (IsKey(key, kActions)) return !level->single && TakeActions(&level->single);
  if (IsKey(key, kMergedActions)) return !level->merged && TakeItems(&level->merged);
  return scanner_.Skip();
}

bool RecordReader::TakeActions(std::shared_ptr<SingleRecordActions>* single) {
  *single = std::make_shared<SingleRecordActions>();
  QList<RecordAction*>& actions = (*single)->actions;
  return scanner_.TakeList([&] {
    if (keep_ == Keep::kFirst && !actions.isEmpty()) return scanner_.Skip();
    actions.append(new RecordAction);
    return TakeAction(actions.last());
  });
}

bool RecordReader::TakeItems(std::shared_ptr<MergeRecordActions>* merged) {
  *merged = std::make_shared<MergeRecordActions>();
  MergeRecordActions::Items& items = (*merged)->items;
  const bool is_list = scanner_.TakeList([&] {
    Level level;
    if (!TakeLevel(&level)) return false;
    items.append(level.Actions());
    return items.last() != nullptr;
  });
  return is_list && !items.isEmpty();
}

bool RecordReader::TakeAction(RecordAction* action) {
  std::bitset<kNoField> taken;
  return scanner_.TakeObject([&](std::string_view key) {
    const std::size_t field = FieldOf(key);
    if (field == kNoField) return scanner_.Skip();
    if (taken[field]) return false;
    taken.set(field);
    return field == kTimingField ? TakeInt(&action->timing) : TakeText(&(action->*kTextFields[field].text));
  });
}

// A value of another type leaves its field unchanged.

bool RecordReader::TakeInt(int* field) {
  if (!IsNumberAhead(scanner_.NextMark())) return scanner_.Skip();
  JsonToken number;
  if (!scanner_.TakeNumber(&number)) return false;
  const char* const end = number.bytes.data() + number.bytes.size();
  if (number.is_plain && std::from_chars(number.bytes.data(), end, *field).ec == std::errc()) return true;
  const QJsonValue value = library_json::Read(number.bytes);
  *field = value.toInt();
  return value.isDouble();
}

bool RecordReader::TakeText(QString* field) {
  if (scanner_.NextMark() != '"') return scanner_.Skip();
  JsonToken text;
  if (!scanner_.TakeText(&text)) return false;
  if (text.is_plain) {
    *field = texts_.Of(text.bytes);
    return true;
  }
  const QJsonValue value = library_json::ReadText(text.bytes);
  *field = texts_.Of(value.toString());
  return value.isString();
}

}  // namespace taviinputmanager
