// The program tavi.
#include "host/subcommands.h"

int main(int argc, char** argv) { return tavi::RunProgram(argc, argv); }
