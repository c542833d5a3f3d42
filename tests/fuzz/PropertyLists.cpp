// Any bytes are a property list, which is the same after it was written and read again, or a
// reason why not; as a table of texts, too, they are one or none.
#include <sys/mman.h>
#include <unistd.h>

#include <cstddef>
#include <cstdint>

#include "objc/Message.h"
#include "simulator/foundation/PropertyList.h"
#include "simulator/foundation/StringsTable.h"
#include "simulator/foundation/Values.h"
#include "tests/fuzz/FuzzPhone.h"

namespace sim {
namespace {

using objc::Object;

// A file in memory.
class MemoryFile {
 public:
  MemoryFile(const std::uint8_t* bytes, std::size_t count) : file_(memfd_create("list", 0)) {
    require(file_ >= 0 && write(file_, bytes, count) == ssize_t(count));
  }
  ~MemoryFile() { close(file_); }
  MemoryFile(const MemoryFile&) = delete;
  MemoryFile& operator=(const MemoryFile&) = delete;

  std::filesystem::path path() const { return "/proc/self/fd/" + std::to_string(file_); }

 private:
  int file_;
};

void readAndCopy(const std::filesystem::path& path) {
  const objc::AutoreleasePool pool;
  std::string problem;
  const Object read = readPropertyList(path, &problem);
  require(read || !problem.empty());
  if (!read) return;
  const Object copy = propertyListCopy(read, &problem);
  require(copy ? description(copy) == description(read) : !problem.empty());
}

}  // namespace
}  // namespace sim

extern "C" int LLVMFuzzerInitialize(int*, char***) {
  sim::FuzzPhone::start();
  return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t count) {
  const sim::MemoryFile file(bytes, count);
  const std::size_t before = sim::liveObjectCount();
  sim::readAndCopy(file.path());
  sim::require(sim::liveObjectCount() == before);
  sim::readStrings(file.path());
  return 0;
}
