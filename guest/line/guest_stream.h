// Cuts what a host sends into lines.
#ifndef GUEST_LINE_GUEST_STREAM_H_
#define GUEST_LINE_GUEST_STREAM_H_

#include <optional>
#include <string>
#include <string_view>

namespace taviguest {

struct SentLine {
  bool is_text = false;  // a text line, without display
  std::string line;      // without its end; valid UTF-8
  bool is_cut = false;  // it was too long: `line` is only its beginning, for telling of it, and the rest is passed over
};

// A line by itself, as a host's send functions get it: with its end or without.
SentLine LineByItself(std::string_view bytes);

// Event lines, which start with a display's number, end in a newline; text lines, which start with their name, end in a
// NUL and may have newlines inside. So both can come on one stream. Empty lines are passed over. No more is kept of a
// line than kMostLineBytes, and no byte is looked at twice for its end.
class GuestStream {
 public:
  static constexpr size_t kMostLineBytes = 64 * 1024;

  void Append(std::string_view bytes) { bytes_ += bytes; }

  // The next line that is complete, or too long already.
  std::optional<SentLine> Next();
  // When nothing more comes: what is left, though its end is missing. A text loses a newline at its end: that is of the
  // file that it stood in.
  std::optional<SentLine> Last();

 private:
  // Where the line ends that `rest` begins with; npos while the end is missing.
  size_t FindEnd(char end);
  // Passes over the rest of a line that was too long; false while there is more to come of it.
  bool SkipRest();
  SentLine Cut(bool is_text);
  std::string_view Unread() const { return std::string_view(bytes_).substr(read_); }
  void Drop(size_t count);

  std::string bytes_;
  size_t read_ = 0;               // so many of `bytes_` are done with
  size_t searched_ = 0;           // so many of those behind them hold no end
  std::optional<char> skips_to_;  // the end of a line that was too long
};

}  // namespace taviguest

#endif  // GUEST_LINE_GUEST_STREAM_H_
