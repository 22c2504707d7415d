// A record file that others are made of.
#ifndef RECORD_JSON_RECORD_SOURCE_H_
#define RECORD_JSON_RECORD_SOURCE_H_

#include <QDateTime>
#include <QFileDevice>
#include <QJsonObject>
#include <QString>

#include "record/json/file_layout.h"

namespace taviinputmanager {

class JsonOutput;

// The file is read twice, since what it holds has to be known before a first byte is written: to find its parts, and to
// copy them. In between it may change: then nothing that was copied is of use.
class RecordSource {
 public:
  explicit RecordSource(const QString& path) : path_(path) {}

  // False where the file has to be read by its library.
  bool Find(FileLayout::Writer writer);
  const RecordPlaces& Places() const { return places_; }
  QJsonObject Info() const;

  // Copies a part, all its lines but the first moved to the right. False when the file is not the one any more in which
  // the part was found.
  bool Copy(const ByteRange& part, int columns, JsonOutput* output);
  bool HasChanged() const { return has_changed_; }

 private:
  struct State {
    bool operator==(const State& other) const { return size == other.size && modified == other.modified; }
    qint64 size = 0;
    QDateTime modified;
  };
  static State StateOf(const QFileDevice& file);
  bool TryCopy(const ByteRange& part, int columns, JsonOutput* output) const;

  QString path_;
  State found_;
  RecordPlaces places_;
  bool has_changed_ = false;
};

}  // namespace taviinputmanager

#endif  // RECORD_JSON_RECORD_SOURCE_H_
