// The program tavi.
#include "host/command/subcommands.h"
#include "host/system/terminal.h"

int main(int argc, char** argv) {
  tavi::EndWithReader();
  tavi::MakeStreamsPlain();
  return tavi::RunProgram(argc, argv);
}
