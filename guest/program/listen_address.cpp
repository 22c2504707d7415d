#include "guest/program/listen_address.h"

#include "guest/line/numbers.h"

namespace taviguest {

namespace {

constexpr std::string_view kPortStart = "tcp:";
constexpr std::string_view kPathStart = "unix:";
constexpr int kLastPort = 65535;

bool StartsWith(std::string_view text, std::string_view start) { return text.substr(0, start.size()) == start; }

}  // namespace

std::optional<ListenAddress> ReadListenAddress(std::string_view text) {
  if (StartsWith(text, kPathStart)) {
    const std::string_view path = text.substr(kPathStart.size());
    if (path.empty() || path.size() > kMostPathBytes) return std::nullopt;
    return ListenAddress{std::string(path), 0};
  }
  if (!StartsWith(text, kPortStart)) return std::nullopt;
  const std::optional<int> port = ReadWholeNumber(text.substr(kPortStart.size()));
  if (!port || *port < 0 || *port > kLastPort) return std::nullopt;
  return ListenAddress{{}, *port};
}

}  // namespace taviguest
