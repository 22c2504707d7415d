// The arguments of the program.
#ifndef GUEST_PROGRAM_PROGRAM_OPTIONS_H_
#define GUEST_PROGRAM_PROGRAM_OPTIONS_H_

#include <optional>
#include <string>
#include <vector>

#include "guest/line/guest_options.h"
#include "guest/program/listen_address.h"

namespace taviguest {

struct ProgramOptions {
  GuestOptions guest;
  std::string input;                    // a file; empty: standard input, unless `listen` is set
  std::optional<ListenAddress> listen;  // of the socket for front ends
  bool is_timeline = false;             // the lines are those of a timeline
  bool is_dry_run = false;
  bool is_help = false;
  std::string error;  // the error, for display; empty if there is none
};

// "--name VALUE" or "--name=VALUE"; if an option is repeated, the last value counts.
ProgramOptions ReadProgramOptions(const std::vector<std::string>& words);

}  // namespace taviguest

#endif  // GUEST_PROGRAM_PROGRAM_OPTIONS_H_
