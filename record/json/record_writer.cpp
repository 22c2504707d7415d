#include "record/json/record_writer.h"

#include <QByteArray>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include "qt/json_text.h"
#include "record/json/json_output.h"
#include "record/record_action.h"
#include "record/record_format.h"

namespace taviinputmanager {

using namespace record_format;  // NOLINT(google-build-using-namespace): words of files, and nothing else

namespace {

std::string_view ViewOf(const QByteArray& bytes) { return {bytes.constData(), static_cast<std::size_t>(bytes.size())}; }

// Writes actions as elements of the document's list: keys in ascending order, four columns per level.
class ActionWriter {
 public:
  explicit ActionWriter(JsonOutput* output) : output_(output) {}

  void Write(const RecordAction& action) {
    output_->Add(ViewOf(before_data_));
    output_->AddText(action.data);
    output_->Add(ViewOf(before_extra1_));
    output_->AddText(action.extra1);
    output_->Add(ViewOf(before_extra2_));
    output_->AddText(action.extra2);
    output_->Add(ViewOf(before_timing_));
    output_->AddInt(action.timing);
    output_->Add(ViewOf(before_type_));
    output_->AddText(action.type);
    output_->Add("\n        }");
  }

 private:
  static QByteArray Before(QLatin1String key, const char* mark) {
    return mark + QByteArray("\n            \"") + key.data() + "\": ";
  }

  JsonOutput* const output_;
  const QByteArray before_data_ = Before(kData, "        {");
  const QByteArray before_extra1_ = Before(kExtra1, ",");
  const QByteArray before_extra2_ = Before(kExtra2, ",");
  const QByteArray before_timing_ = Before(kTiming, ",");
  const QByteArray before_type_ = Before(kType, ",");
};

}  // namespace

bool WriteRecord(const QJsonObject& info, const QList<RecordAction*>& actions, QIODevice* target) {
  // The library writes everything around the actions. Their list is the first.
  const QByteArray frame = qt::JsonText(QJsonDocument(QJsonObject{{kActions, QJsonArray()}, {kInfo, info}}));
  const auto place = frame.indexOf("[\n") + 2;

  JsonOutput output(target);
  output.Add(ViewOf(frame.left(place)));
  ActionWriter writer(&output);
  for (int i = 0; i < actions.size(); ++i) {
    writer.Write(*actions.at(i));
    output.Add(i + 1 < actions.size() ? ",\n" : "\n");
  }
  output.Add(ViewOf(frame.mid(place)));
  return output.Finish();
}

}  // namespace taviinputmanager
