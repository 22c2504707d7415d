// Cuts what a host sends into lines.
#ifndef HOST_UINPUT_GUEST_STREAM_H_
#define HOST_UINPUT_GUEST_STREAM_H_

#include <optional>

#include <QByteArray>
#include <QString>

namespace tavi {

struct SentLine {
  bool is_text = false;  // a text line, without display
  QString line;          // without its end
  bool is_cut = false;  // it was too long: `line` is only its beginning, for telling of it, and the rest is passed over
};

// Event lines, which start with a display's number, end in a newline; text lines, which start with their name, end in a
// NUL and may have newlines inside. So both can come on one stream. Empty lines are passed over. No more is kept of a
// line than kMostLineBytes, and no byte is looked at twice for its end.
class GuestStream {
 public:
  static constexpr int kMostLineBytes = 64 * 1024;

  void Append(const QByteArray& bytes) { bytes_ += bytes; }

  // The next line that is complete, or too long already.
  std::optional<SentLine> Next();
  // When nothing more comes: what is left, though its end is missing. A text loses a newline at its end: that is of the
  // file that it stood in.
  std::optional<SentLine> Last();

 private:
  // Where the line ends that `bytes_` begins with; -1 while the end is missing.
  int FindEnd(char end);
  // Passes over the rest of a line that was too long; false while there is more to come of it.
  bool SkipRest();
  std::optional<SentLine> Cut(bool is_text);

  QByteArray bytes_;
  int searched_ = 0;              // so many bytes hold no end
  std::optional<char> skips_to_;  // the end of a line that was too long
};

}  // namespace tavi

#endif  // HOST_UINPUT_GUEST_STREAM_H_
