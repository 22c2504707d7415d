#include "record/json/json_output.h"

#include <charconv>
#include <limits>

#include <QIODevice>
#include <QString>

#include "record/json/library_json.h"
#include "record/json/plain_bytes.h"

namespace taviinputmanager {

void JsonOutput::Add(std::string_view bytes) {
  if (chunk_.size() + bytes.size() > kChunkBytes) WriteChunk();
  chunk_.insert(chunk_.end(), bytes.begin(), bytes.end());
}

void JsonOutput::AddText(const QString& text) {
  if (AddPlainText(text)) return;
  const QByteArray bytes = library_json::Write(text);
  Add({bytes.constData(), static_cast<std::size_t>(bytes.size())});
}

// Adds nothing of a text that is not plain throughout.
bool JsonOutput::AddPlainText(const QString& text) {
  const std::size_t start = chunk_.size();
  chunk_.resize(start + static_cast<std::size_t>(text.size()) + 2);
  char* place = chunk_.data() + start;
  *place++ = '"';
  for (const QChar letter : text) {
    if (!IsPlainLetter(letter.unicode())) {
      chunk_.resize(start);
      return false;
    }
    *place++ = letter.toLatin1();
  }
  *place = '"';
  return true;
}

void JsonOutput::AddInt(int number) {
  char digits[std::numeric_limits<int>::digits10 + 2];  // a sign, and the tenth digit
  const char* const end = std::to_chars(digits, digits + sizeof digits, number).ptr;
  Add({digits, static_cast<std::size_t>(end - digits)});
}

bool JsonOutput::Finish() {
  WriteChunk();
  return is_whole_;
}

void JsonOutput::WriteChunk() {
  const auto size = static_cast<qint64>(chunk_.size());
  is_whole_ = is_whole_ && target_->write(chunk_.data(), size) == size;
  chunk_.clear();
}

}  // namespace taviinputmanager
