// The words behind the program's name.
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
  std::string input;                    // a file; empty: standard input, unless `listen` is there
  std::optional<ListenAddress> listen;  // for front ends
  bool is_timeline = false;             // the lines are those of a timeline
  bool is_dry_run = false;
  bool is_help = false;
  std::string error;  // what is wrong with the words, for people; empty when nothing is
};

// "--name VALUE" and "--name=VALUE"; of an option that is given twice the last counts.
ProgramOptions ReadProgramOptions(const std::vector<std::string>& words);

}  // namespace taviguest

#endif  // GUEST_PROGRAM_PROGRAM_OPTIONS_H_
