#include "host/mirror/mirror_message.h"

#include <QIODevice>
#include <QtEndian>

namespace tavi {

namespace {

// The stream contains a flag byte, the line's length in bytes, and the line in units of two bytes.
constexpr int kFlagBytes = 1;
constexpr int kHeaderBytes = kFlagBytes + 4;
constexpr quint32 kUnitBytes = 2;

}  // namespace

MirrorReading ReadMirrorMessage(QIODevice* device, MirrorMessage* message) {
  const QByteArray header = device->peek(kHeaderBytes);
  if (header.size() < kHeaderBytes) return MirrorReading::kIncomplete;
  const auto length = qFromBigEndian<quint32>(header.constData() + kFlagBytes);
  const bool is_line = length % kUnitBytes == 0 && length / kUnitBytes < kTooLongMirrorLine;
  if (!is_line) return MirrorReading::kBroken;
  if (device->bytesAvailable() < kHeaderBytes + qint64{length}) return MirrorReading::kIncomplete;
  QDataStream stream(device);
  stream.setVersion(kMirrorStreamVersion);
  stream >> *message;
  return MirrorReading::kMessage;
}

}  // namespace tavi
