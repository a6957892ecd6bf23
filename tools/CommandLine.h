// The command line as a whole: arguments in; text, files and an exit status out.
#pragma once

// Runs the subcommand that the arguments ask for. Never throws: what goes wrong is told on standard
// error, each line behind "zorcs: ".
int runCommandLine(int argc, const char* const* argv);
