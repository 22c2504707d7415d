#include "guest/program/guest_program.h"

namespace taviguest {

namespace {

constexpr char kIntroduction[] =
    "Takes the place of the guest: reads the lines that a guest is sent from standard\n"
    "input and plays them on input devices of this computer's kernel, made through\n"
    "/dev/uinput: ";

constexpr char kOptions[] =
    "  --input FILE   reads a file or a named pipe instead\n"
    "  --listen ADDR  waits for front ends instead, one at a time, and goes on when one\n"
    "                 leaves: \"tcp:PORT\" of this computer's loopback, 0 for any free one,\n"
    "                 or \"unix:PATH\", a socket file for its owner alone. A second front end\n"
    "                 is told \"busy\" and closed; when one leaves, all that is down is lifted\n"
    "  --size WxH     the size of the touch surface in pixels, each side from 1 to 16384\n"
    "                 (1280x720); that of the guest that is not turned\n"
    "  --display N    only the lines for display N of the guest, a whole number, and texts\n"
    "                 (all displays)\n"
    "  --for SYSTEM   who reads the devices: \"linux\", or \"android\", which gets a relative\n"
    "                 mouse in place of the absolute pointer, no keys that type, and at most\n"
    "                 16 fingers at once (linux)\n"
    "  --keyboard     for Android the keys that type, too; it hides its own keyboard then\n";

constexpr char kMoreOptions[] =
    "  --name NAME    what the devices are called, 1 to 60 bytes: \"NAME screen\" (tavi)\n"
    "  --timeline     the lines are what \"tavi simulate\" prints, and each is played\n"
    "                 at its time\n"
    "  --dry-run      makes no device and does not wait: prints the kernel's events,\n"
    "                 such as \"screen EV_ABS ABS_MT_SLOT 11\"\n";

constexpr char kEnd[] =
    "\n"
    "A line that is not understood or is longer than 64 KiB, and characters of a text\n"
    "that no key of a US keyboard types, are told on standard error, and the rest is\n"
    "played. New devices are told of 0.3 seconds after they were made: their readers\n"
    "need so long to find them. However the program ends, what is down is lifted first.\n"
    "docs/guest-protocol.md tells the lines.\n"
    "\n"
    "Exit status: 0 when every line was played, 1 when one was not, 2 when /dev/uinput\n"
    "or the command line cannot be used, 128 and its number after a signal.\n"
    "\n"
    "Example: ";

}  // namespace

std::string HelpPage(const ProgramPage& page) {
  return std::string("Usage: ") + page.name + " [OPTIONS]\n\n" + kIntroduction + page.devices + '\n' + kOptions +
         page.more_options + kMoreOptions + kEnd + page.example;
}

}  // namespace taviguest
