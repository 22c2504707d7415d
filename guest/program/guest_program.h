// The guest as a program: `tavi-guest`, and `tavi guest-uinput`.
#ifndef GUEST_PROGRAM_GUEST_PROGRAM_H_
#define GUEST_PROGRAM_GUEST_PROGRAM_H_

#include <string>

#include "guest/program/program_options.h"

namespace taviguest {

// What is told of one of the two.
struct ProgramPage {
  const char* name;          // as it is called
  const char* devices;       // which it makes, and when: an end of a sentence, in lines of help
  const char* more_options;  // that only this one has, in lines of help
  const char* example;
};

// From "Usage: " on.
std::string HelpPage(const ProgramPage& page);

// Plays lines until they end, or until a signal ends the program; the result is its exit status. `name` stands in front
// of what it tells. Threads: main, before there are others; it takes signals.
int RunGuestProgram(const std::string& name, const ProgramOptions& options);

}  // namespace taviguest

#endif  // GUEST_PROGRAM_GUEST_PROGRAM_H_
