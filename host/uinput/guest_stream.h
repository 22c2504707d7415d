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
};

// Event lines, which start with a display's number, end in a newline; text lines, which start with their name, end in a
// NUL and may have newlines inside. So both can come on one stream. Empty lines are passed over.
class GuestStream {
 public:
  void Append(const QByteArray& bytes) { bytes_ += bytes; }

  // The next line that is complete.
  std::optional<SentLine> Next();
  // When nothing more comes: what is left, though its end is missing. A text loses a newline at its end: that is of the
  // file that it stood in.
  std::optional<SentLine> Last();

 private:
  QByteArray bytes_;
};

}  // namespace tavi

#endif  // HOST_UINPUT_GUEST_STREAM_H_
