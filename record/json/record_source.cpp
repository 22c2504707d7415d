#include "record/json/record_source.h"

#include <algorithm>
#include <cstring>
#include <string>
#include <vector>

#include "record/json/json_output.h"
#include "record/json/library_json.h"
#include "record/json/plain_file.h"

namespace taviinputmanager {
namespace {

constexpr qint64 kChunkBytes = 128 * 1024;

}  // namespace

RecordSource::State RecordSource::StateOf(const QFileDevice& file) {
  return {file.size(), file.fileTime(QFileDevice::FileModificationTime)};
}

bool RecordSource::Find(FileLayout::Writer writer) {
  QFile file(path_);
  if (!OpenPlainFile(&file)) return false;
  found_ = StateOf(file);
  return FileLayout(&file, writer).Find(&places_);
}

QJsonObject RecordSource::Info() const { return library_json::Read(places_.info.toStdString()).toObject(); }

bool RecordSource::Copy(const ByteRange& part, int columns, JsonOutput* output) {
  has_changed_ = !TryCopy(part, columns, output);
  return !has_changed_;
}

bool RecordSource::TryCopy(const ByteRange& part, int columns, JsonOutput* output) const {
  QFile file(path_);
  if (!OpenPlainFile(&file) || !file.seek(part.begin)) return false;
  const std::string line_start = '\n' + std::string(static_cast<std::size_t>(columns), ' ');
  std::vector<char> chunk(kChunkBytes);
  for (qint64 left = part.end - part.begin; left > 0;) {
    const qint64 read = file.read(chunk.data(), std::min(left, kChunkBytes));
    if (read <= 0) return false;
    left -= read;
    const char* const end = chunk.data() + read;
    for (const char* place = chunk.data(); place != end;) {
      const void* const found = std::memchr(place, '\n', static_cast<std::size_t>(end - place));
      const char* const line_end = found ? static_cast<const char*>(found) : end;
      output->Add({place, static_cast<std::size_t>(line_end - place)});
      if (line_end != end) output->Add(line_start);
      place = line_end == end ? end : line_end + 1;
    }
  }
  return StateOf(file) == found_;
}

}  // namespace taviinputmanager
