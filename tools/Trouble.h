// How a run ends, and what ends it early.
#pragma once

#include <stdexcept>
#include <string>

// What the command returns to the shell.
enum ExitStatus {
  kClean = 0,
  kFound = 1,      // findings or differences
  kCannotRun = 2,  // usage, input or output
  kNotParsed = 3,  // input that is no configuration
};

// Ends the command: the text goes to standard error behind "zorcs: ", one line each.
class Trouble : public std::runtime_error {
 public:
  Trouble(ExitStatus status, const std::string& text) : std::runtime_error(text), status_(status) {}
  ExitStatus status() const { return status_; }

 private:
  ExitStatus status_;
};
