#include "simulator/machine/JournalFile.h"

#include <fcntl.h>
#include <sys/uio.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <filesystem>
#include <limits>
#include <optional>
#include <system_error>

namespace sim {
namespace {

constexpr std::size_t entriesPerOffset = 256;

struct Header {
  Nanoseconds time;
  std::uint32_t length;  // of the text that follows
};
// Without the structure's padding.
constexpr std::size_t headerSize = sizeof(Nanoseconds) + sizeof(std::uint32_t);

int openUnnamed() {
  const auto folder = std::filesystem::temp_directory_path();
  constexpr int how = O_RDWR | O_APPEND | O_CLOEXEC;
  int descriptor = open(folder.c_str(), how | O_TMPFILE, 0600);
  if (descriptor < 0) {  // not every file system has such files
    std::string name = folder / "dozewell-journal-XXXXXX";
    descriptor = mkostemp(name.data(), O_APPEND | O_CLOEXEC);
    if (descriptor >= 0) unlink(name.c_str());
  }
  if (descriptor < 0) throw std::system_error(errno, std::generic_category(), folder.string());
  return descriptor;
}

class Reader {
 public:
  Reader(int descriptor, std::size_t offset) : descriptor_(descriptor), offset_(offset) {}

  // Nothing at the end, or before an entry that is not whole.
  std::optional<JournalEntry> next() {
    Header header{};
    if (!require(headerSize)) return std::nullopt;
    std::memcpy(&header.time, at(), sizeof header.time);
    std::memcpy(&header.length, at() + sizeof header.time, sizeof header.length);
    if (!require(headerSize + header.length)) return std::nullopt;
    JournalEntry entry{header.time, std::string(at() + headerSize, header.length)};
    used_ += headerSize + header.length;
    return entry;
  }
  // Behind the last entry that was given.
  std::size_t offset() const { return offset_ - buffer_.size() + used_; }

 private:
  const char* at() const { return buffer_.data() + used_; }

  bool require(std::size_t count) {
    while (buffer_.size() - used_ < count) {
      buffer_.erase(0, used_);
      used_ = 0;
      std::array<char, 65536> piece;
      const ssize_t read = pread(descriptor_, piece.data(), piece.size(), off_t(offset_));
      if (read <= 0) return false;
      buffer_.append(piece.data(), std::size_t(read));
      offset_ += std::size_t(read);
    }
    return true;
  }

  int descriptor_;
  std::size_t offset_;  // behind what the buffer holds
  std::string buffer_;
  std::size_t used_ = 0;
};

}  // namespace

JournalFile::JournalFile() : descriptor_(openUnnamed()) {}

JournalFile::JournalFile(int descriptor) : descriptor_(descriptor) {
  refresh();
}

JournalFile::~JournalFile() {
  close(descriptor_);
}

void JournalFile::append(const JournalEntry& entry) {
  if (!problem_.empty()) return;
  const auto length = std::uint32_t(entry.text.size());
  if (end_ + headerSize + length > mostBytes) {
    problem_ = "the journal has reached " + std::to_string(mostBytes) + " bytes";
    return;
  }
  std::array<char, headerSize> header;
  std::memcpy(header.data(), &entry.time, sizeof entry.time);
  std::memcpy(header.data() + sizeof entry.time, &length, sizeof length);
  const std::array<iovec, 2> parts{
      {{header.data(), headerSize}, {const_cast<char*>(entry.text.data()), entry.text.size()}}};
  if (writev(descriptor_, parts.data(), 2) != ssize_t(headerSize + length)) {
    problem_ = std::string("the journal cannot be written: ") + std::strerror(errno);
    return;
  }
  if (count_++ % entriesPerOffset == 0) offsets_.push_back(end_);
  end_ += headerSize + length;
}

void JournalFile::refresh() {
  Reader reader(descriptor_, end_);
  while (reader.next()) {
    if (count_++ % entriesPerOffset == 0) offsets_.push_back(end_);
    end_ = reader.offset();
  }
}

void JournalFile::clear() {
  [[maybe_unused]] const int failed = ftruncate(descriptor_, 0);
  count_ = end_ = 0;
  offsets_.clear();
  problem_.clear();
}

void JournalFile::visit(std::size_t first, const Visitor& visitor) const {
  if (first >= count_) return;
  std::size_t index = first / entriesPerOffset * entriesPerOffset;
  Reader reader(descriptor_, offsets_[first / entriesPerOffset]);
  for (; index < count_; ++index) {
    const auto entry = reader.next();
    if (!entry || (index >= first && !visitor(*entry))) return;
  }
}

}  // namespace sim
