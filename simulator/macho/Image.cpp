#include "simulator/macho/Image.h"

#include <sys/mman.h>
#include <unistd.h>

#include <fstream>
#include <iterator>

#include "simulator/macho/Imports.h"
#include "simulator/runtime/Signing.h"

namespace sim::macho {
namespace {

constexpr const char* wholeFile = "the file";

std::optional<Architecture> preferred;

std::vector<char> contentsOf(const std::filesystem::path& path) {
  std::ifstream stream(path, std::ios::binary);
  std::vector<char> contents(std::istreambuf_iterator<char>(stream), {});
  if (stream.bad() || contents.empty()) throw Error("cannot be read");
  return contents;
}

const SliceBytes& chosen(const std::vector<SliceBytes>& slices) {
  if (preferred) {
    for (const SliceBytes& slice : slices)
      if (slice.architecture == *preferred) return slice;
    throw Error("has no slice for " + preferred->name());
  }
  return choose(slices, sim::runtime::processorSigns());
}

// Why no slice can run here; nothing where one can.
void requireProcessor(const std::vector<SliceBytes>& slices) {
#if defined(__aarch64__)
  static_cast<void>(slices);
#else
  throw Error(
      "is for phones (" + namesOf(slices) +
      "), whose code this processor does not run: give --tweak the shared object (.so) that "
      "the same sources make, or play it with a simulator built for aarch64 (preset "
      "aarch64)");
#endif
}

// One runtime signs everything or nothing.
void requireSigning(const Slice& slice) {
  using namespace sim::runtime;
  if (slice.authenticates() && !processorSigns())
    throw Error("signs its pointers (arm64e), and this processor cannot");
  if (slice.authenticates() && !signs())
    throw Error(
        "signs its pointers (arm64e), and the phone has begun without: name it with --tweak");
  if (!slice.authenticates() && signs())
    throw Error("signs no pointers (arm64), and another extension does (arm64e)");
}

}  // namespace

bool isMachO(const std::filesystem::path& file) {
  std::ifstream stream(file, std::ios::binary);
  char beginning[8];
  return stream.read(beginning, sizeof beginning) && isMachO(Bytes(beginning, wholeFile));
}

void preferSlice(const Architecture& wanted) {
  preferred = wanted;
}

bool wantsSignedPointers(const std::filesystem::path& file) {
  if (!isMachO(file)) return false;
  try {
    const std::vector<char> contents = contentsOf(file);
    const bool isSigning = chosen(slicesOf(Bytes(contents, wholeFile))).architecture == arm64e;
    return isSigning && sim::runtime::processorSigns();
  } catch (const Error&) {
    return false;  // told when it is loaded
  }
}

const Image& Image::load(const std::filesystem::path& path, LibraryLoader loadLibrary) {
  std::vector<char> file = contentsOf(path);
  const std::vector<SliceBytes> slices = slicesOf(Bytes(file, wholeFile));
  requireProcessor(slices);
  const SliceBytes& slice = chosen(slices);
  // Where the bytes lie does not change with their owner.
  static std::vector<std::unique_ptr<Image>> images;
  std::unique_ptr<Image> image(new Image(std::move(file), slice));
  requireSigning(image->slice_);
  image->map();
  image->bind(loadLibrary);
  image->protect();
  images.push_back(std::move(image));
  images.back()->runInitialisers();
  return *images.back();
}

Image::Image(std::vector<char> file, const SliceBytes& bytes)
    : file_(std::move(file)), slice_(bytes) {}

void Image::map() {
  constexpr long smallest = 0x4000;  // the slice's own
  if (sysconf(_SC_PAGESIZE) > smallest)
    throw Error("has pages of 16 KiB, which this system's pages are larger than");
  void* memory =
      mmap(nullptr, slice_.size(), PROT_READ | PROT_WRITE, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0);
  if (memory == MAP_FAILED) throw Error("does not fit into memory");
  base_ = static_cast<char*>(memory);
  for (const Segment& segment : slice_.segments())
    std::memcpy(at(segment.address), segment.bytes.data(), segment.bytes.size());
}

std::vector<void*> Image::importedAddresses(LibraryLoader loadLibrary) const {
  for (const Library& library : slice_.libraries()) {
    if (!loadLibrary(library.name()) && !library.isWeak)
      throw Error("needs the library " + library.path + ", which the simulator does not have");
  }
  std::vector<void*> addresses;
  for (const Import& import : slice_.fixups().imports) {
    addresses.push_back(import.library > 0 ? ofLibrary(import) : ofAny(import));
    if (addresses.back() == nullptr && !import.isWeak)
      throw Error("needs " + import.name + whereFrom(import) +
                  ", which the simulator does not have");
  }
  return addresses;
}

// " of /usr/lib/libobjc.A.dylib"
std::string Image::whereFrom(const Import& import) const {
  return import.library > 0 ? " of " + libraryOf(import).path : "";
}

const Library& Image::libraryOf(const Import& import) const {
  const auto index = static_cast<std::size_t>(import.library) - 1;
  if (index >= slice_.libraries().size())
    throw Error("is damaged: " + import.name + " is of a library that it does not name");
  return slice_.libraries()[index];
}

void* Image::ofLibrary(const Import& import) const {
  return importedAddress(libraryOf(import).name(), import.name);
}

// What several may define, the slice itself, too: one is as good as another.
void* Image::ofAny(const Import& import) const {
  const auto own = slice_.exports().find(import.name);
  if (own != slice_.exports().end()) return base_ + own->second;
  for (const Library& library : slice_.libraries())
    if (void* address = importedAddress(library.name(), import.name)) return address;
  return nullptr;
}

void Image::bind(LibraryLoader loadLibrary) {
  const std::vector<void*> imports = importedAddresses(loadLibrary);
  for (const Fixup& fixup : slice_.fixups().all) {
    char* target = base_ + fixup.target;
    if (fixup.import != Fixup::none) {
      target = static_cast<char*>(imports[fixup.import]);
      if (target != nullptr) target += fixup.target;
    }
    std::memcpy(at(fixup.place), &target, sizeof target);
  }
}

void Image::protect() const {
  for (const Segment& segment : slice_.segments()) {
    const bool staysWritable = !segment.isReadOnly;
    const std::uint32_t protection =
        segment.protection & (staysWritable ? ~0u : ~std::uint32_t{Segment::writable});
    char* start = at(segment.address);
    // The bits of both systems are the same.
    if (segment.size > 0 && mprotect(start, segment.size, static_cast<int>(protection & 7)) != 0)
      throw Error("cannot have its memory protected as it asks for");
    __builtin___clear_cache(start, start + segment.size);
  }
}

void Image::runInitialisers() const {
  // argc, argv, envp, apple, vars: the platform's loader passes them, and nobody needs them.
  using Initialiser = void (*)(long, void*, void*, void*, void*);
  for (const std::uint64_t offset : slice_.initialisers())
    reinterpret_cast<Initialiser>(base_ + offset)(0, nullptr, nullptr, nullptr, nullptr);
}

std::optional<Image::Symbol> Image::symbol(const std::string& name) const {
  const auto found = slice_.exports().find("_" + name);
  if (found == slice_.exports().end()) return std::nullopt;
  const std::uint64_t place = slice_.begin() + found->second;
  const Section* section = slice_.sectionAt(place);
  if (section == nullptr) return std::nullopt;
  return Symbol{at(place), section->isCode(), slice_.sizeOfExport(place)};
}

std::vector<std::string_view> Image::constants() const {
  std::vector<std::string_view> all;
  for (const Section& section : slice_.sections()) {
    const Segment* segment = nullptr;
    for (const Segment& each : slice_.segments())
      if (each.contains(section.address)) segment = &each;
    const bool isRead = segment != nullptr && (segment->protection & Segment::readable) != 0;
    if (isRead && !section.isCode() && section.hasBytes() && section.size > 0)
      all.emplace_back(at(section.address), section.size);
  }
  return all;
}

}  // namespace sim::macho
