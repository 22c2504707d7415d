#include "guest/line/guest_stream.h"

#include "guest/line/utf8.h"

namespace taviguest {

namespace {

constexpr std::string_view kTextStart = "TEXT";  // also that of TEXT_CONTROL
constexpr size_t kShownBytes = 40;               // of a line that is too long
constexpr size_t kNone = std::string_view::npos;

bool IsText(std::string_view line) { return line.substr(0, kTextStart.size()) == kTextStart; }

char EndOf(bool is_text) { return is_text ? '\0' : '\n'; }

SentLine MakeLine(bool is_text, std::string_view bytes) { return {is_text, ValidUtf8(bytes)}; }

}  // namespace

SentLine LineByItself(std::string_view bytes) {
  const bool is_text = IsText(bytes);
  if (!bytes.empty() && bytes.back() == EndOf(is_text)) bytes.remove_suffix(1);
  return MakeLine(is_text, bytes);
}

std::optional<SentLine> GuestStream::Next() {
  while (SkipRest() && !Unread().empty()) {
    const bool is_text = IsText(Unread());
    const size_t end = FindEnd(EndOf(is_text));
    const size_t length = end == kNone ? Unread().size() : end;
    if (length > kMostLineBytes) return Cut(is_text);
    if (end == kNone) return std::nullopt;
    const SentLine line = MakeLine(is_text, Unread().substr(0, end));
    Drop(end + 1);
    if (end > 0) return line;
  }
  return std::nullopt;
}

// The first bytes of a line determine its kind, and so its end.
size_t GuestStream::FindEnd(char end) {
  const std::string_view unread = Unread();
  const size_t found = unread.find(end, searched_);
  searched_ = found == kNone && unread.size() >= kTextStart.size() ? unread.size() : 0;
  return found;
}

SentLine GuestStream::Cut(bool is_text) {
  SentLine line = MakeLine(is_text, Unread().substr(0, kShownBytes));
  line.is_cut = true;
  skips_to_ = EndOf(is_text);
  return line;
}

bool GuestStream::SkipRest() {
  if (!skips_to_) return true;
  const size_t end = Unread().find(*skips_to_);
  searched_ = 0;
  Drop(end == kNone ? Unread().size() : end + 1);
  if (end == kNone) return false;
  skips_to_.reset();
  return true;
}

// Consumed bytes are removed in large chunks, otherwise each line would move all bytes after it.
void GuestStream::Drop(size_t count) {
  read_ += count;
  if (read_ < bytes_.size() && read_ < kMostLineBytes) return;
  bytes_.erase(0, read_);
  read_ = 0;
}

std::optional<SentLine> GuestStream::Last() {
  if (!SkipRest() || Unread().empty()) return std::nullopt;
  std::string_view rest = Unread();
  const bool is_text = IsText(rest);
  if (is_text && rest.back() == '\n') rest.remove_suffix(1);
  const SentLine line = MakeLine(is_text, rest);
  Drop(Unread().size());
  return line;
}

}  // namespace taviguest
