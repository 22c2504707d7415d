// The guest as a program: `tavi-guest`, and `tavi guest-uinput`.
#ifndef GUEST_PROGRAM_GUEST_PROGRAM_H_
#define GUEST_PROGRAM_GUEST_PROGRAM_H_

#include <string>

#include "guest/program/program_options.h"

namespace taviguest {

// The differences between the two programs.
struct ProgramPage {
  const char* name;          // the program's name
  const char* devices;       // the devices that it creates, and when: the end of a sentence in the help
  const char* more_options;  // options that only this program has, as lines of help
  const char* example;
};

// The help page from "Usage: " on.
std::string HelpPage(const ProgramPage& page);

// Plays lines until they end, or until a signal ends the program; returns the exit status. `name` precedes its
// messages. Threads: main, before any other thread exists; it handles signals.
int RunGuestProgram(const std::string& name, const ProgramOptions& options);

}  // namespace taviguest

#endif  // GUEST_PROGRAM_GUEST_PROGRAM_H_
