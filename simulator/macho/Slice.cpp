#include "simulator/macho/Slice.h"

#include <algorithm>

namespace sim::macho {
namespace {

constexpr std::uint32_t headerSize = 32;
constexpr std::uint32_t dynamicLibrary = 6;  // type of file

enum Command : std::uint32_t {
  segment64 = 0x19,
  encryptionInfo64 = 0x2C,
  dyldInfo = 0x22,
  dyldInfoOnly = 0x80000022,
  loadDylib = 0xC,
  loadWeakDylib = 0x80000018,
  reexportDylib = 0x8000001F,
  loadUpwardDylib = 0x80000023,
  exportsTrie = 0x80000033,
  chainedFixups = 0x80000034,
};

enum SectionType : std::uint32_t {
  initialiserPointers = 9,
  threadVariables = 0x13,
  initialiserOffsets = 0x16,
};

// A library of the whole system is smaller.
constexpr std::uint64_t largest = std::uint64_t{1} << 30;

std::string fixedHex(std::uint64_t number) {
  constexpr const char* digits = "0123456789abcdef";
  std::string text;
  for (; number != 0 || text.empty(); number >>= 4) text.insert(0, 1, digits[number & 15]);
  return "0x" + text;
}

}  // namespace

std::string Library::name() const {
  return path.substr(path.rfind('/') + 1);
}

Slice::Slice(const SliceBytes& slice) : architecture_(slice.architecture), bytes_(slice.bytes) {
  if (bytes_.read<std::uint32_t>(12) != dynamicLibrary)
    throw Error("is no dynamic library, which extensions are");
  readCommands();
  checkSegments();
  checkInitialisers();
  if (!fixupData_) throw Error("has no chained fixups, which its pointers need");
  fixups_ = readFixups(*fixupData_, segments_);
  if (exportData_) exports_ = readExports(*exportData_);
}

void Slice::readCommands() {
  const auto count = bytes_.read<std::uint32_t>(16);
  const Bytes commands =
      bytes_.part(headerSize, bytes_.read<std::uint32_t>(20), "the list of load commands");
  std::uint64_t offset = 0;
  for (std::uint32_t index = 0; index < count; ++index) {
    const auto size = commands.read<std::uint32_t>(offset + 4);
    if (size < 8) throw Error("is damaged: a load command has no length");
    read(commands.read<std::uint32_t>(offset), commands.part(offset, size, "a load command"));
    offset += size;
  }
}

void Slice::read(std::uint32_t kind, const Bytes& command) {
  switch (kind) {
    case segment64:
      return readSegment(command);
    case encryptionInfo64:
      if (command.read<std::uint32_t>(16) != 0) throw Error("is encrypted");
      return;
    case dyldInfo:
    case dyldInfoOnly:
      throw Error(
          "has fixups of the old kind, which no loader of arm64e takes: link it with "
          "-fixup_chains");
    case loadDylib:
    case reexportDylib:
    case loadUpwardDylib:
    case loadWeakDylib:
      libraries_.push_back({command.text(command.read<std::uint32_t>(8)), kind == loadWeakDylib});
      return;
    case chainedFixups:
      fixupData_ = linkData(command, "the table of fixups");
      return;
    case exportsTrie:
      exportData_ = linkData(command, "the table of exports");
      return;
    default:
      return;  // what only other tools read
  }
}

Bytes Slice::linkData(const Bytes& command, const char* what) const {
  return bytes_.part(command.read<std::uint32_t>(8), command.read<std::uint32_t>(12), what);
}

void Slice::readSegment(const Bytes& command) {
  constexpr std::uint32_t afterFixups = 0x10;  // SG_READ_ONLY
  constexpr std::uint64_t sectionsAt = 72, sectionSize = 80;
  segments_.push_back(
      {command.field(8, 16), command.read<std::uint64_t>(24), command.read<std::uint64_t>(32),
       bytes_.part(command.read<std::uint64_t>(40), command.read<std::uint64_t>(48), "a segment"),
       command.read<std::uint32_t>(60), (command.read<std::uint32_t>(68) & afterFixups) != 0});
  const auto count = command.read<std::uint32_t>(64);
  for (std::uint32_t index = 0; index < count; ++index)
    readSection(command.part(sectionsAt + index * sectionSize, sectionSize, "a section"));
}

void Slice::readSection(const Bytes& section) {
  const Section made{section.field(0, 16), section.read<std::uint64_t>(32),
                     section.read<std::uint64_t>(40), section.read<std::uint32_t>(64)};
  const Segment& segment = segments_.back();
  if (made.address < segment.address || made.address > segment.end() ||
      made.size > segment.end() - made.address)
    throw Error("is damaged: the section " + made.name + " is not in its segment");
  if (made.name.starts_with("__objc_") && made.size > 0)
    throw Error("has classes compiled as Objective-C (" + made.name +
                "), which the simulator's runtime does not read");
  switch (made.flags & 0xFF) {
    case initialiserPointers:
      throw Error("has initialisers of the old kind (" + made.name +
                  "): link it with -init_offsets");
    case threadVariables:
      throw Error("has variables of threads (" + made.name + "), which the simulator cannot make");
    case initialiserOffsets:
      readInitialisers(made, section.read<std::uint32_t>(48));
      break;
    default:
      break;
  }
  sections_.push_back(made);
}

void Slice::readInitialisers(const Section& table, std::uint32_t offset) {
  const Bytes offsets = bytes_.part(offset, table.size, "the table of initialisers");
  for (std::uint64_t at = 0; at < offsets.size(); at += sizeof(std::uint32_t))
    initialisers_.push_back(offsets.read<std::uint32_t>(at));
}

void Slice::checkSegments() const {
  if (segments_.empty()) throw Error("is damaged: it has no segments");
  std::uint64_t reached = segments_.front().address;
  for (const Segment& segment : segments_) {
    constexpr std::uint64_t page = 0x4000;
    const bool fits = segment.size <= largest && segment.address >= reached &&
                      segment.address - begin() <= largest - segment.size &&
                      segment.bytes.size() <= segment.size;
    if (!fits || (segment.address - begin()) % page != 0)
      throw Error("is damaged: the segment " + segment.name + " at " + fixedHex(segment.address) +
                  " does not fit to the others");
    const std::uint32_t both = Segment::writable | Segment::executable;
    if ((segment.protection & both) == both)
      throw Error("has a segment that is writable and executable, " + segment.name);
    reached = segment.end();
  }
}

void Slice::checkInitialisers() const {
  for (const std::uint64_t initialiser : initialisers_) {
    const bool isCode = std::ranges::any_of(segments_, [&](const Segment& segment) {
      return segment.contains(begin() + initialiser) &&
             (segment.protection & Segment::executable) != 0;
    });
    if (!isCode || initialiser % 4 != 0)
      throw Error("is damaged: an initialiser at " + fixedHex(initialiser) + " is no code");
  }
}

const Section* Slice::sectionAt(std::uint64_t place) const {
  const auto found = std::ranges::find_if(
      sections_, [place](const Section& section) { return section.contains(place); });
  return found != sections_.end() ? &*found : nullptr;
}

std::uint64_t Slice::sizeOfExport(std::uint64_t place) const {
  const Section* section = sectionAt(place);
  if (section == nullptr) return 0;
  std::uint64_t end = section->address + section->size;
  for (const auto& [name, offset] : exports_)
    if (const std::uint64_t other = begin() + offset; other > place && other < end) end = other;
  return end - place;
}

}  // namespace sim::macho
