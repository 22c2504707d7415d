// The address of a guest.
#ifndef GUEST_PROGRAM_LISTEN_ADDRESS_H_
#define GUEST_PROGRAM_LISTEN_ADDRESS_H_

#include <optional>
#include <string>
#include <string_view>

namespace taviguest {

struct ListenAddress {
  std::string path;  // of a socket file; empty for a port
  int port = 0;      // on the loopback interface; 0: any free one
};

// Paths of socket files have a shorter limit than others.
constexpr size_t kMostPathBytes = 107;

// "tcp:PORT" with a port from 0 to 65535, "unix:PATH"; nothing for anything else.
std::optional<ListenAddress> ReadListenAddress(std::string_view text);

}  // namespace taviguest

#endif  // GUEST_PROGRAM_LISTEN_ADDRESS_H_
