#include "host/uinput/guest_stream.h"

namespace tavi {

namespace {

constexpr char kTextStart[] = "TEXT";  // of TEXT_CONTROL, too

SentLine MakeLine(bool is_text, const QByteArray& bytes) { return {is_text, QString::fromUtf8(bytes)}; }

}  // namespace

std::optional<SentLine> GuestStream::Next() {
  while (!bytes_.isEmpty()) {
    const bool is_text = bytes_.startsWith(kTextStart);
    const int end = bytes_.indexOf(is_text ? '\0' : '\n');
    if (end < 0) return std::nullopt;
    const QByteArray line = bytes_.left(end);
    bytes_.remove(0, end + 1);
    if (!line.isEmpty()) return MakeLine(is_text, line);
  }
  return std::nullopt;
}

std::optional<SentLine> GuestStream::Last() {
  if (bytes_.isEmpty()) return std::nullopt;
  const bool is_text = bytes_.startsWith(kTextStart);
  if (is_text && bytes_.endsWith('\n')) bytes_.chop(1);
  return MakeLine(is_text, std::exchange(bytes_, {}));
}

}  // namespace tavi
