// The messages between instances about their input.
#ifndef HOST_MIRROR_MIRROR_MESSAGE_H_
#define HOST_MIRROR_MIRROR_MESSAGE_H_

#include <QDataStream>
#include <QString>

class QIODevice;

namespace tavi {

// A line with its newline but without a display prefix: each instance adds its own.
struct MirrorMessage {
  bool is_text = false;  // a text line, not an event line
  QString line;
};

constexpr auto kMirrorStreamVersion = QDataStream::Qt_5_15;

// No line has this many characters; a program that sends one is not an instance.
constexpr int kTooLongMirrorLine = 64 * 1024;
// Large enough for any message.
constexpr qint64 kMirrorBufferBytes = 5 + 2 * qint64{kTooLongMirrorLine};

inline QDataStream& operator<<(QDataStream& stream, const MirrorMessage& message) {
  return stream << message.is_text << message.line;
}
inline QDataStream& operator>>(QDataStream& stream, MirrorMessage& message) {
  return stream >> message.is_text >> message.line;
}

// Takes the next complete message. Only its length is read before it is complete, so the data that has arrived is not
// parsed repeatedly.
enum class MirrorReading { kMessage, kIncomplete, kBroken };
MirrorReading ReadMirrorMessage(QIODevice* device, MirrorMessage* message);

}  // namespace tavi

#endif  // HOST_MIRROR_MIRROR_MESSAGE_H_
