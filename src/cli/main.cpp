// tessel: the control's work on CON files, from the command line.
#include "cli/Program.h"

int main(int argc, char** argv) { return tessel::cli::RunProgram(argc, argv); }
