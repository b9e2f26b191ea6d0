// Files as the program reads and replaces them.
#include "files.h"

#include "text.h"

#include <chartreader.h>
#include <orbdocument.h>
#include <orbexception.h>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <cstdlib>
#include <cstring>
#include <iostream>
#include <memory>

namespace {

[[noreturn]] void fail(const std::string& file, const std::string& words) {
  throw FileError(printable(nameOf(file)) + ": " + words + ": " + std::strerror(errno));
}

/// An open file that closes itself.
class Descriptor {
public:
  explicit Descriptor(int number) : number_(number) {}
  Descriptor(const Descriptor&) = delete;
  Descriptor& operator=(const Descriptor&) = delete;
  ~Descriptor() {
    if (number_ > STDERR_FILENO)
      close(number_);
  }
  int number() const { return number_; }

private:
  int number_;
};

/// A new file beside another one, which goes again unless it takes the place of that one.
class Replacement {
public:
  explicit Replacement(const std::string& file) :
      file_(file), name_(file.substr(0, file.rfind('/') + 1) + ".orbml.XXXXXX"), descriptor_(mkstemp(name_.data())) {
    if (descriptor_.number() < 0)
      fail(file_, "cannot be replaced, there is no writing beside it");
  }
  Replacement(const Replacement&) = delete;
  Replacement& operator=(const Replacement&) = delete;
  ~Replacement() {
    if (descriptor_.number() >= 0 && !isInPlace_)
      unlink(name_.c_str());
  }

  void write(const std::string& content) const {
    for (std::size_t at = 0; at < content.size();) {
      const ssize_t written = ::write(descriptor_.number(), content.data() + at, content.size() - at);
      if (written < 0 && errno != EINTR)
        fail(file_, "cannot be replaced");
      at += written < 0 ? 0 : static_cast<std::size_t>(written);
    }
  }
  void take(const struct stat& status) const {
    // Only the superuser may give files away; a group of one's own can be kept. Who changes the owner takes set-user-id
    // off, so the mode comes last, and nobody hands out that bit in a name that was not the owner's.
    const bool keepsOwner = fchown(descriptor_.number(), status.st_uid, status.st_gid) == 0;
    if (!keepsOwner && errno != EPERM)
      fail(file_, "cannot be replaced");
    if (!keepsOwner && fchown(descriptor_.number(), static_cast<uid_t>(-1), status.st_gid) != 0 && errno != EPERM)
      fail(file_, "cannot be replaced");
    constexpr mode_t allBits = 07777;
    constexpr mode_t identityBits = S_ISUID | S_ISGID;
    if (fchmod(descriptor_.number(), status.st_mode & (keepsOwner ? allBits : allBits & ~identityBits)) != 0)
      fail(file_, "cannot be replaced");
  }
  void putInPlace() {
    if (fsync(descriptor_.number()) != 0 || rename(name_.c_str(), file_.c_str()) != 0)
      fail(file_, "cannot be replaced");
    isInPlace_ = true;
  }

private:
  std::string file_;
  std::string name_;
  Descriptor descriptor_;
  bool isInPlace_ = false;
};

/// The file that a path leads to in the end.
std::string withoutLinks(const std::string& file) {
  const std::unique_ptr<char, decltype(&std::free)> path(realpath(file.c_str(), nullptr), &std::free);
  if (path == nullptr)
    fail(file, "cannot be replaced");
  return path.get();
}

} // namespace

bool isStandardInput(const std::string& file) { return file == "-"; }

std::string nameOf(const std::string& file) { return isStandardInput(file) ? "<stdin>" : file; }

std::string contentOf(const std::string& file) {
  const Descriptor descriptor(isStandardInput(file) ? STDIN_FILENO : open(file.c_str(), O_RDONLY | O_CLOEXEC));
  if (descriptor.number() < 0)
    fail(file, "cannot be read");
  std::string content;
  constexpr std::size_t pieceSize = 1 << 16;
  std::array<char, pieceSize> piece{};
  for (;;) {
    const ssize_t count = read(descriptor.number(), piece.data(), piece.size());
    if (count == 0)
      return content;
    if (count < 0 && errno != EINTR)
      fail(file, "cannot be read");
    content.append(piece.data(), count < 0 ? 0 : static_cast<std::size_t>(count));
  }
}

void requireReadable(const std::string& file) {
  const Descriptor descriptor(open(file.c_str(), O_RDONLY | O_NONBLOCK | O_CLOEXEC));
  char letter{};
  if (descriptor.number() < 0 || (read(descriptor.number(), &letter, 1) < 0 && errno != EAGAIN))
    fail(file, "cannot be read");
}

std::unique_ptr<OrbDocument> readChart(const std::string& file) {
  if (isStandardInput(file))
    return ChartReader::readText(contentOf(file), nameOf(file));
  return readInPieces(file, [&] { return ChartReader::readFile(file); });
}

void requireReplaceable(const std::string& file) {
  struct stat status {};
  if (stat(file.c_str(), &status) != 0)
    fail(file, "cannot be read");
  if (S_ISDIR(status.st_mode)) {
    errno = EISDIR;
    fail(file, "cannot be read");
  }
  if (!S_ISREG(status.st_mode))
    throw FileError(printable(file) + ": cannot be replaced: it is no regular file");
}

void replaceFile(const std::string& file, const std::string& content) {
  const std::string target = withoutLinks(file);
  struct stat status {};
  if (stat(target.c_str(), &status) != 0)
    fail(file, "cannot be replaced");
  Replacement replacement(target);
  replacement.write(content);
  replacement.take(status);
  replacement.putInPlace();
}

void complain(const std::string& message) {
  std::cout.flush(); // what was said before stands before it
  std::cerr << "orbml: " << message << "\n";
}

ExitCode onFile(const std::function<ExitCode()>& work) {
  try {
    return work();
  } catch (const OrbException& error) {
    complain(printable(error.what()));
    return somethingFound;
  } catch (const FileError& error) {
    complain(error.what());
    return cannotBeDone;
  }
}
