#include "host/target/target_status.h"

namespace tavi {

using State = TargetStatus::State;

namespace {

constexpr int kSecondMs = 1000;
constexpr int kUnit = 1024;

QString BytesText(int bytes) {
  return bytes < kUnit ? QStringLiteral("%1 bytes").arg(bytes) : QStringLiteral("%1 kB").arg(bytes / kUnit);
}

QString ConnectedText(const TargetStatus& status) {
  const QString lines = status.lines_per_second == 1 ? QStringLiteral("line") : QStringLiteral("lines");
  QString text = QStringLiteral("connected, %1 %2/s").arg(status.lines_per_second).arg(lines);
  if (status.waiting_bytes > 0) text += QStringLiteral(", %1 queued").arg(BytesText(status.waiting_bytes));
  return text;
}

// Rounded up, so that nobody reads "0 s".
QString RetryText(const TargetStatus& status) {
  const int seconds = (status.retry_ms + kSecondMs - 1) / kSecondMs;
  return QStringLiteral("%1; next try in %2 s").arg(status.reason).arg(seconds);
}

}  // namespace

QString DescribeStatus(const TargetStatus& status) {
  switch (status.state) {
    case State::kOff: return QStringLiteral("off");
    case State::kConnecting: return QStringLiteral("connecting");
    case State::kConnected: return ConnectedText(status);
    case State::kLagging:
      return QStringLiteral("reads too slowly: lines are dropped while %1 are queued")
          .arg(BytesText(status.waiting_bytes));
    case State::kFailed:
    case State::kEnded: return RetryText(status);
  }
  return {};
}

}  // namespace tavi
