// The program tavi.
#include "host/subcommands.h"
#include "host/terminal.h"

int main(int argc, char** argv) {
  tavi::EndWithReader();
  return tavi::RunProgram(argc, argv);
}
