#include "simulator/script/ScriptFiles.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <fstream>
#include <utility>
#include <vector>

#include "simulator/machine/FileContent.h"
#include "simulator/machine/Phone.h"
#include "simulator/script/Command.h"

namespace sim {

namespace files = std::filesystem;

namespace {

class Descriptor {
 public:
  explicit Descriptor(int number) : number_(number) {}
  Descriptor(Descriptor&& other) noexcept : number_(std::exchange(other.number_, -1)) {}
  Descriptor& operator=(Descriptor&& other) noexcept {
    std::swap(number_, other.number_);
    return *this;
  }
  ~Descriptor() {
    if (number_ >= 0) close(number_);
  }

  int number() const { return number_; }
  bool isOpen() const { return number_ >= 0; }

 private:
  int number_;
};

[[noreturn]] void refuse(const Word& name) {
  throw ScriptError(name.column, "expected a file below the session's folder, found " + name.text);
}

std::vector<std::string> partsOf(const Word& name) {
  const files::path path = name.text;
  if (path.empty() || path.is_absolute() || name.text.find('\0') != std::string::npos) refuse(name);
  std::vector<std::string> parts;
  for (const files::path& part : path) {
    if (part == "..") refuse(name);
    if (part != "." && !part.empty()) parts.push_back(part.string());
  }
  if (parts.empty() || name.text.ends_with('/')) refuse(name);
  return parts;
}

bool isPlainFile(const Descriptor& file) {
  struct stat status {};
  return fstat(file.number(), &status) == 0 && S_ISREG(status.st_mode);
}

// Step by step and through no link, so that nobody can change where a name leads while it is
// followed. Not open, with errno set, when there is no such file.
Descriptor openBelow(const files::path& folder, const Word& name, int flags) {
  const auto parts = partsOf(name);
  Descriptor place(open(folder.c_str(), O_PATH | O_DIRECTORY | O_CLOEXEC));
  for (std::size_t index = 0; index + 1 < parts.size() && place.isOpen(); ++index)
    place = Descriptor(openat(place.number(), parts[index].c_str(),
                              O_PATH | O_DIRECTORY | O_NOFOLLOW | O_CLOEXEC));
  if (!place.isOpen()) {
    if (errno == ELOOP || errno == ENOTDIR) refuse(name);
    return place;
  }
  // A pipe would have nobody at its other end.
  Descriptor file(openat(place.number(), parts.back().c_str(),
                         flags | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC, 0600));
  if (!file.isOpen() && (errno == ELOOP || errno == EISDIR || errno == ENXIO)) refuse(name);
  if (file.isOpen() && !isPlainFile(file)) refuse(name);
  return file;
}

std::optional<std::string> contentOf(const Descriptor& file) {
  std::string content;
  std::array<char, 65536> part;
  for (;;) {
    const ssize_t count = ::read(file.number(), part.data(), part.size());
    if (count == 0) return content;
    if (count > 0)
      content.append(part.data(), std::size_t(count));
    else if (errno != EINTR)
      return std::nullopt;
  }
}

bool replaceContent(const Descriptor& file, std::string_view content) {
  if (!file.isOpen() || ftruncate(file.number(), 0) != 0) return false;
  while (!content.empty()) {
    const ssize_t count = ::write(file.number(), content.data(), content.size());
    if (count < 0 && errno != EINTR) return false;
    content.remove_prefix(std::size_t(std::max<ssize_t>(count, 0)));
  }
  return true;
}

bool writeAnywhere(const files::path& file, std::string_view content) {
  std::ofstream stream(file, std::ios::binary);
  stream << content;
  return bool(stream.flush());
}

}  // namespace

ScriptFiles& scriptFiles() {
  return Phone::current().state<ScriptFiles>();
}

std::optional<std::string> ScriptFiles::read(const Word& name) const {
  if (!isBounded_) return fileContent(folder_ / name.text);
  const Descriptor file = openBelow(folder_, name, O_RDONLY);
  return file.isOpen() ? contentOf(file) : std::nullopt;
}

void ScriptFiles::write(const Word& name, std::string_view content) const {
  const bool isWritten = isBounded_
                             ? replaceContent(openBelow(folder_, name, O_WRONLY | O_CREAT), content)
                             : writeAnywhere(folder_ / name.text, content);
  if (!isWritten) throw ScriptError(name.column, shown(name) + " cannot be written");
  if (whenWritten) whenWritten(name.text);
}

std::string ScriptFiles::shown(const Word& name) const {
  return isBounded_ ? name.text : (folder_ / name.text).string();
}

}  // namespace sim
