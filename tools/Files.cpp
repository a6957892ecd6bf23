#include "Files.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstdlib>
#include <filesystem>
#include <system_error>
#include <vector>

#include "Trouble.h"

namespace {

constexpr std::size_t kMaxBytes = std::size_t{256} << 20;

[[noreturn]] void fail(const std::string& path, int error) {
  throw Trouble(kCannotRun, path + ": " + std::generic_category().message(error));
}

// A file descriptor, closed at the end of its life.
class Descriptor {
 public:
  Descriptor(int fd, bool owned) : fd_(fd), owned_(owned) {}
  Descriptor(const Descriptor&) = delete;
  Descriptor& operator=(const Descriptor&) = delete;
  ~Descriptor() {
    if (owned_ && fd_ >= 0) ::close(fd_);
  }
  int get() const { return fd_; }

 private:
  int fd_;
  bool owned_;
};

void writeAll(int fd, const std::string& name, const std::string& bytes) {
  for (std::size_t done = 0; done < bytes.size();) {
    const ssize_t count = ::write(fd, bytes.data() + done, bytes.size() - done);
    if (count < 0 && errno == EINTR) continue;
    if (count < 0) fail(name, errno);
    done += static_cast<std::size_t>(count);
  }
}

void writeDirectly(int fd, const std::string& name, const std::string& bytes) {
  if (fd < 0) fail(name, errno);
  if (::isatty(fd) != 0) {
    throw Trouble(kCannotRun, name + ": is a terminal, name a file or a pipe");
  }
  writeAll(fd, name, bytes);
}

// The permissions of the file that is replaced, or those that a new file gets.
mode_t permissions(const std::string& target) {
  struct stat old = {};
  if (::stat(target.c_str(), &old) == 0) return old.st_mode & 07777;
  const mode_t mask = ::umask(0);
  ::umask(mask);
  return 0666 & ~mask;
}

}  // namespace

std::string readFile(const std::string& path) {
  const bool isInput = path == "-";
  const std::string name = isInput ? "standard input" : path;
  const Descriptor file(isInput ? STDIN_FILENO : ::open(path.c_str(), O_RDONLY | O_CLOEXEC),
                        !isInput);
  if (file.get() < 0) fail(name, errno);
  std::string bytes;
  std::vector<char> buffer(1 << 16);
  for (;;) {
    const ssize_t count = ::read(file.get(), buffer.data(), buffer.size());
    if (count < 0 && errno == EINTR) continue;
    if (count < 0) fail(name, errno);
    if (count == 0) return bytes;
    bytes.append(buffer.data(), static_cast<std::size_t>(count));
    if (bytes.size() > kMaxBytes) throw Trouble(kCannotRun, name + ": larger than 256 MiB");
  }
}

AtomicFile::AtomicFile(const std::string& path, const std::string& bytes) : path_(path) {
  if (path == "-") {
    writeDirectly(STDOUT_FILENO, "standard output", bytes);
    return;
  }
  std::error_code ignored;  // what cannot be resolved is named by the steps below
  const auto resolved = std::filesystem::weakly_canonical(path, ignored);
  target_ = resolved.empty() ? path : resolved.string();
  struct stat old = {};
  if (::stat(target_.c_str(), &old) == 0 && !S_ISREG(old.st_mode)) {
    writeDirectly(Descriptor(::open(target_.c_str(), O_WRONLY | O_CLOEXEC), true).get(), path,
                  bytes);
    return;
  }
  std::string name = target_ + ".XXXXXX";
  const Descriptor file(::mkstemp(name.data()), true);
  if (file.get() < 0) fail(path, errno);
  temporary_ = name;
  try {
    writeAll(file.get(), path, bytes);
    if (::fchmod(file.get(), permissions(target_)) != 0) fail(path, errno);
    if (::fsync(file.get()) != 0) fail(path, errno);
  } catch (...) {
    ::unlink(temporary_.c_str());
    throw;
  }
}

AtomicFile::~AtomicFile() {
  if (!temporary_.empty()) ::unlink(temporary_.c_str());
}

void AtomicFile::commit() {
  if (temporary_.empty()) return;
  if (::rename(temporary_.c_str(), target_.c_str()) != 0) fail(path_, errno);
  temporary_.clear();
}

void writeFile(const std::string& path, const std::string& bytes) {
  AtomicFile(path, bytes).commit();
}

bool wantsColour() {
  const char* noColour = std::getenv("NO_COLOR");
  return ::isatty(STDOUT_FILENO) != 0 && (noColour == nullptr || *noColour == '\0');
}
