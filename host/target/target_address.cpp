#include "host/target/target_address.h"

#include <QFileInfo>
#include <QHostAddress>

#include "host/target/command_link.h"
#include "host/target/uinput_link.h"
#include "qt/numbers.h"

namespace tavi {

using Kind = TargetAddress::Kind;

namespace {

const QString kCommand = QStringLiteral("exec:");
const QString kSocketFile = QStringLiteral("unix:");
const QString kTcp = QStringLiteral("tcp:");
const QString kUinput = QStringLiteral("uinput");
constexpr int kMostPort = 65535;

bool IsThisMachine(const QString& host) {
  return host == QLatin1String("localhost") || QHostAddress(host).isLoopback();
}

// Each fills `address` from the text after the first colon, and returns the error, or an empty string.
QString TakeCommand(const QString& rest, TargetAddress* address) {
  address->kind = Kind::kCommand;
  address->place = rest.trimmed();
  return address->place.isEmpty() ? QStringLiteral("exec: needs a command") : CommandLinkProblem();
}

QString TakeSocketFile(const QString& rest, TargetAddress* address) {
  address->kind = Kind::kSocketFile;
  if (rest.isEmpty()) return QStringLiteral("unix: needs a path");
  address->place = QFileInfo(rest).absoluteFilePath();
  return {};
}

QString TakeTcp(const QString& rest, TargetAddress* address) {
  address->kind = Kind::kTcp;
  const int colon = rest.lastIndexOf(QLatin1Char(':'));
  const int port = qt::ToInt(rest.mid(colon + 1));  // 0 if it is no number
  address->place = rest.left(qMax(colon, 0));
  const bool has_brackets = address->place.startsWith(QLatin1Char('[')) && address->place.endsWith(QLatin1Char(']'));
  if (has_brackets) address->place = address->place.mid(1).chopped(1);
  const bool is_split = has_brackets || !address->place.contains(QLatin1Char(':'));
  if (address->place.isEmpty() || !is_split || port < 1 || port > kMostPort) {
    return QStringLiteral("tcp: needs HOST:PORT such as localhost:7000, not \"%1\"").arg(rest);
  }
  address->port = static_cast<quint16>(port);
  if (address->may_be_remote || IsThisMachine(address->place)) return {};
  return QStringLiteral(
             "%1 is another machine, and anyone on the network path can read what you type; --allow-remote "
             "allows it")
      .arg(address->place);
}

QString Take(const QString& text, TargetAddress* address) {
  if (text.startsWith(kCommand)) return TakeCommand(text.mid(kCommand.size()), address);
  if (text.startsWith(kSocketFile)) return TakeSocketFile(text.mid(kSocketFile.size()), address);
  if (text.startsWith(kTcp)) return TakeTcp(text.mid(kTcp.size()), address);
  if (text == kUinput) return UinputLinkProblem();
  return QStringLiteral("a guest is exec:COMMAND, unix:PATH, tcp:HOST:PORT or uinput, not \"%1\"").arg(text);
}

}  // namespace

ParsedTarget ParseTarget(const QString& text, bool allow_remote) {
  ParsedTarget parsed;
  parsed.address.text = text;
  parsed.address.may_be_remote = allow_remote;
  parsed.problem = Take(text, &parsed.address);
  return parsed;
}

}  // namespace tavi
