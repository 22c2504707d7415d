// The program tavi-guest: only the guest, for phones, containers and other machines.
#include "guest/program/exit_status.h"
#include "guest/program/guest_program.h"
#include "guest/program/output.h"

namespace {

constexpr taviguest::ProgramPage kPage = {
    "tavi-guest",
    "a touch screen, a keyboard and a pointer, and a gamepad and a touchpad when a line\n"
    "needs one. It prints where they are and keeps them until the lines end. To the\n"
    "programs that read the devices, their input looks like that of the user.\n",
    "  --gamepad      create the gamepad at the start\n"
    "  --touchpad     create the touchpad at the start\n",
    "printf '1:KBDPR:30:1\\n1:KBDRL:30:0\\n' | tavi-guest --dry-run\n"};

int FailUsage(const taviguest::Output& output, const std::string& error) {
  output.Tell(error + "\nTry \"tavi-guest --help\".");
  return taviguest::kExitUsage;
}

}  // namespace

int main(int argc, char** argv) {
  taviguest::Output output(kPage.name);
  const taviguest::ProgramOptions options = taviguest::ReadProgramOptions({argv + 1, argv + argc});
  if (options.is_help) {
    output.Print("tavi-guest - plays guest lines on kernel input devices\n\n" + taviguest::HelpPage(kPage));
    return output.Finish(taviguest::kExitDone);
  }
  if (!options.error.empty()) return FailUsage(output, options.error);
  return taviguest::RunGuestProgram(kPage.name, options);
}
