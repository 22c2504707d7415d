// Splits the stream of a host into lines.
#ifndef GUEST_LINE_GUEST_STREAM_H_
#define GUEST_LINE_GUEST_STREAM_H_

#include <optional>
#include <string>
#include <string_view>

namespace taviguest {

struct SentLine {
  bool is_text = false;  // a text line, without display
  std::string line;      // without its end; valid UTF-8
  bool is_cut = false;   // it was too long: `line` is only its beginning, for the message, and the rest is ignored
};

// A single line, as a host's send functions get it: with or without its end.
SentLine LineByItself(std::string_view bytes);

// Event lines, which start with a display's number, end with a newline; text lines, which start with their name, end
// with a NUL and may contain newlines. So both can be in one stream. Empty lines are ignored. At most kMostLineBytes of
// a line are stored, and no byte is searched twice.
class GuestStream {
 public:
  static constexpr size_t kMostLineBytes = 64 * 1024;

  void Append(std::string_view bytes) { bytes_ += bytes; }

  // The next line that is complete, or already too long.
  std::optional<SentLine> Next();
  // At the end of the stream: the rest, although its end is missing. A text line loses a newline at its end, which
  // belongs to the file that contains it.
  std::optional<SentLine> Last();

 private:
  // The end of the line at the start of `rest`; npos while it is missing.
  size_t FindEnd(char end);
  // Skips the rest of a line that was too long; false while the rest is incomplete.
  bool SkipRest();
  SentLine Cut(bool is_text);
  std::string_view Unread() const { return std::string_view(bytes_).substr(read_); }
  void Drop(size_t count);

  std::string bytes_;
  size_t read_ = 0;               // number of consumed bytes at the start of `bytes_`
  size_t searched_ = 0;           // number of bytes after them that contain no line end
  std::optional<char> skips_to_;  // the end of a line that was too long
};

}  // namespace taviguest

#endif  // GUEST_LINE_GUEST_STREAM_H_
