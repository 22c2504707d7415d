// What one instance tells another of its input.
#ifndef HOST_WINDOW_MIRROR_MESSAGE_H_
#define HOST_WINDOW_MIRROR_MESSAGE_H_

#include <QDataStream>
#include <QString>

namespace tavi {

// A line with its newline, and without a display: each instance puts it on its own.
struct MirrorMessage {
  bool is_text = false;  // a line of text, as against one of touch, keys and the like
  QString line;
};

constexpr auto kMirrorStreamVersion = QDataStream::Qt_5_15;

inline QDataStream& operator<<(QDataStream& stream, const MirrorMessage& message) {
  return stream << message.is_text << message.line;
}
inline QDataStream& operator>>(QDataStream& stream, MirrorMessage& message) {
  return stream >> message.is_text >> message.line;
}

}  // namespace tavi

#endif  // HOST_WINDOW_MIRROR_MESSAGE_H_
