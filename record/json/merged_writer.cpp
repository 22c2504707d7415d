#include "record/json/merged_writer.h"

#include <algorithm>

#include <QJsonDocument>

#include "qt/json_text.h"
#include "record/json/json_output.h"
#include "record/record_format.h"

namespace taviinputmanager {

using namespace record_format;  // NOLINT(google-build-using-namespace): words of files, and nothing else

namespace {

constexpr int kColumnsToTheRight = 8;  // a list of a document is indented by two more levels as the list of an item
// How the library writes the empty list of an item. No text can look like it, because a line end in a text is escaped.
constexpr std::string_view kEmptyList = "[\n            ]";

// Actions take precedence over items.
const ByteRange& ListOf(const RecordPlaces& places) {
  return places.actions ? *places.actions : *places.merged_actions;
}

}  // namespace

bool MergedWriter::Add(const QString& file, const QJsonObject& control) {
  RecordSource source(file);
  if (!source.Find(FileLayout::Writer::kQt) || source.Info().isEmpty()) return false;
  const RecordPlaces& places = source.Places();
  if (!places.actions && !places.merged_actions) return false;
  items_.append(QJsonObject{{kControl, control}, {places.actions ? kActions : kMergedActions, QJsonArray()}});
  sources_.push_back(std::move(source));
  return true;
}

bool MergedWriter::Write(const QJsonObject& info, QIODevice* target) {
  const QJsonDocument document(QJsonObject{{kInfo, info}, {kMergedActions, items_}});
  const std::string frame = qt::JsonText(document).toStdString();
  std::string_view rest = frame;
  JsonOutput output(target);
  for (RecordSource& source : sources_) {
    const std::size_t place = rest.find(kEmptyList);
    output.Add(rest.substr(0, place));
    rest.remove_prefix(place + kEmptyList.size());
    if (!source.Copy(ListOf(source.Places()), kColumnsToTheRight, &output)) return false;
  }
  output.Add(rest);
  return output.Finish();
}

bool MergedWriter::HasChangedSource() const {
  return std::any_of(sources_.begin(), sources_.end(), [](const RecordSource& source) { return source.HasChanged(); });
}

}  // namespace taviinputmanager
