#include "host/uinput/guest_stream.h"

#include <utility>

namespace tavi {

namespace {

constexpr char kTextStart[] = "TEXT";  // of TEXT_CONTROL, too
constexpr int kTextStartBytes = sizeof(kTextStart) - 1;
constexpr int kShownBytes = 40;  // of a line that is too long

SentLine MakeLine(bool is_text, const QByteArray& bytes) { return {is_text, QString::fromUtf8(bytes)}; }

}  // namespace

std::optional<SentLine> GuestStream::Next() {
  while (SkipRest() && !bytes_.isEmpty()) {
    const bool is_text = bytes_.startsWith(kTextStart);
    const int end = FindEnd(is_text ? '\0' : '\n');
    if (end > kMostLineBytes || (end < 0 && bytes_.size() > kMostLineBytes)) return Cut(is_text);
    if (end < 0) return std::nullopt;
    const QByteArray line = bytes_.left(end);
    bytes_.remove(0, end + 1);
    if (!line.isEmpty()) return MakeLine(is_text, line);
  }
  return std::nullopt;
}

// What kind of line it is, and so its end, shows with its first bytes only.
int GuestStream::FindEnd(char end) {
  const int found = bytes_.indexOf(end, searched_);
  searched_ = found < 0 && bytes_.size() >= kTextStartBytes ? bytes_.size() : 0;
  return found;
}

std::optional<SentLine> GuestStream::Cut(bool is_text) {
  SentLine line = MakeLine(is_text, bytes_.left(kShownBytes));
  line.is_cut = true;
  skips_to_ = is_text ? '\0' : '\n';
  return line;
}

bool GuestStream::SkipRest() {
  if (!skips_to_) return true;
  const int end = bytes_.indexOf(*skips_to_);
  searched_ = 0;
  if (end < 0) {
    bytes_.clear();
    return false;
  }
  bytes_.remove(0, end + 1);
  skips_to_.reset();
  return true;
}

std::optional<SentLine> GuestStream::Last() {
  if (!SkipRest() || bytes_.isEmpty()) return std::nullopt;
  const bool is_text = bytes_.startsWith(kTextStart);
  if (is_text && bytes_.endsWith('\n')) bytes_.chop(1);
  return MakeLine(is_text, std::exchange(bytes_, {}));
}

}  // namespace tavi
