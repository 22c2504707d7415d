// A record file from which others are made.
#ifndef RECORD_JSON_RECORD_SOURCE_H_
#define RECORD_JSON_RECORD_SOURCE_H_

#include <QDateTime>
#include <QFileDevice>
#include <QJsonObject>
#include <QString>

#include "record/json/file_layout.h"

namespace taviinputmanager {

class JsonOutput;

// The file is read twice, because its content must be known before the first byte is written: to find its parts, and to
// copy them. If it changes in between, everything that was copied is useless.
class RecordSource {
 public:
  explicit RecordSource(const QString& path) : path_(path) {}

  // False if the library must read the file.
  bool Find(FileLayout::Writer writer);
  const RecordPlaces& Places() const { return places_; }
  QJsonObject Info() const;

  // Copies a part with additional indentation for all its lines but the first. False if the file is no longer the one
  // in which the part was found.
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
