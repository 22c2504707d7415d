#include "guest/program/guest_program.h"

namespace taviguest {

namespace {

constexpr char kIntroduction[] =
    "Acts as the guest: reads the guest's lines from standard input and plays them on\n"
    "input devices of this computer's kernel, which it creates through /dev/uinput:\n";

constexpr char kOptions[] =
    "  --input FILE   read a file or a named pipe instead\n"
    "  --listen ADDR  wait for front ends instead, one at a time, and keep waiting when one\n"
    "                 leaves: \"tcp:PORT\" on this computer's loopback, 0 for any free port,\n"
    "                 or \"unix:PATH\", a socket file for its owner alone. A second front end\n"
    "                 gets \"busy\" and is closed; when one leaves, all that is down is lifted\n"
    "  --size WxH     the size of the unrotated touch surface in pixels, each side from 1\n"
    "                 to 16384 (1280x720)\n"
    "  --display N    play only the lines for display N of the guest, a whole number, and\n"
    "                 texts (all displays)\n"
    "  --for SYSTEM   who reads the devices: \"linux\", or \"android\", which gets a relative\n"
    "                 mouse in place of the absolute pointer, no keys that type, and at most\n"
    "                 16 fingers at once (linux)\n"
    "  --keyboard     for Android, the keys that type, too; it then hides its own keyboard\n";

constexpr char kMoreOptions[] =
    "  --name NAME    the name of the devices, 1 to 60 bytes: \"NAME screen\" (tavi)\n"
    "  --timeline     read the output of \"tavi simulate\", and play each line at its time\n"
    "  --dry-run      create no device and do not wait: print the kernel's events,\n"
    "                 such as \"screen EV_ABS ABS_MT_SLOT 11\"\n";

constexpr char kEnd[] =
    "\n"
    "Lines that are unknown or longer than 64 KiB, and characters of a text that no key\n"
    "of a US keyboard types, are reported on standard error, and the rest is played. New\n"
    "devices are reported 0.3 seconds after they were created: their readers need that\n"
    "long to find them. However the program ends, what is down is lifted first.\n"
    "docs/guest-protocol.md documents the lines.\n"
    "\n"
    "Exit status: 0 when every line was played, 1 when one was not, 2 when /dev/uinput\n"
    "or the command line cannot be used, 128 plus the signal's number after a signal.\n"
    "\n"
    "Example: ";

}  // namespace

std::string HelpPage(const ProgramPage& page) {
  return std::string("Usage: ") + page.name + " [OPTIONS]\n\n" + kIntroduction + page.devices + '\n' + kOptions +
         page.more_options + kMoreOptions + kEnd + page.example;
}

}  // namespace taviguest
