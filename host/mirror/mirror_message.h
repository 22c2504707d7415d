// What one instance tells another of its input.
#ifndef HOST_MIRROR_MIRROR_MESSAGE_H_
#define HOST_MIRROR_MIRROR_MESSAGE_H_

#include <QDataStream>
#include <QString>

class QIODevice;

namespace tavi {

// A line with its newline, and without a display: each instance puts it on its own.
struct MirrorMessage {
  bool is_text = false;  // a line of text, as against one of touch, keys and the like
  QString line;
};

constexpr auto kMirrorStreamVersion = QDataStream::Qt_5_15;

// No line has so many characters; who sends one is no instance of ours.
constexpr int kTooLongMirrorLine = 64 * 1024;
// Holds any message.
constexpr qint64 kMirrorBufferBytes = 5 + 2 * qint64{kTooLongMirrorLine};

inline QDataStream& operator<<(QDataStream& stream, const MirrorMessage& message) {
  return stream << message.is_text << message.line;
}
inline QDataStream& operator>>(QDataStream& stream, MirrorMessage& message) {
  return stream >> message.is_text >> message.line;
}

// Takes the next message that is there whole. It is waited for by its length alone, so what has come of it is not
// looked at again and again.
enum class MirrorReading { kMessage, kIncomplete, kBroken };
MirrorReading ReadMirrorMessage(QIODevice* device, MirrorMessage* message);

}  // namespace tavi

#endif  // HOST_MIRROR_MIRROR_MESSAGE_H_
