// Files in and out. "-" is standard input or output. Everything here throws Trouble(kCannotRun).
#pragma once

#include <string>

// The whole content of a file. Stops at 256 MiB: no configuration is as large, a device without an
// end is.
std::string readFile(const std::string& path);

// A file that appears under its name only when it is complete: what is written goes to a temporary
// file beside it, which commit renames. Without a commit the old file stays as it was. A name that
// leads to something else than a regular file (a device, a pipe) is written to directly.
class AtomicFile {
 public:
  // Writes all bytes and brings them to the disk. Refuses to write to a terminal.
  AtomicFile(const std::string& path, const std::string& bytes);
  AtomicFile(const AtomicFile&) = delete;
  AtomicFile& operator=(const AtomicFile&) = delete;
  ~AtomicFile();

  void commit();

 private:
  std::string path_;
  std::string target_;     // path_ with symbolic links followed
  std::string temporary_;  // empty where the target was written directly, or has been committed
};

// Writes one file in one go.
void writeFile(const std::string& path, const std::string& bytes);

// Whether severities are coloured: on a terminal, unless NO_COLOR is set.
bool wantsColour();
