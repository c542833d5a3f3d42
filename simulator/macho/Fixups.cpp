#include "simulator/macho/Fixups.h"

#include <algorithm>

#include "simulator/macho/Slice.h"

namespace sim::macho {
namespace {

enum Format : std::uint16_t { pointer64 = 2, pointer64Offset = 6 };
constexpr std::uint16_t noneInPage = 0xFFFF, severalInPage = 0x8000;

std::vector<Import> readImports(const Bytes& table) {
  constexpr std::uint32_t plainNames = 0, shortForm = 1;
  const auto count = table.read<std::uint32_t>(16);
  if (count == 0) return {};
  if (table.read<std::uint32_t>(20) != shortForm || table.read<std::uint32_t>(24) != plainNames)
    throw Error("has a table of imports of a form that the simulator does not read");
  const Bytes entries =
      table.part(table.read<std::uint32_t>(8), std::uint64_t{4} * count, "the table of imports");
  const Bytes names = table.from(table.read<std::uint32_t>(12), "the names of imports");
  std::vector<Import> imports;
  for (std::uint32_t index = 0; index < count; ++index) {
    const auto entry = entries.read<std::uint32_t>(std::uint64_t{4} * index);
    imports.push_back(
        {static_cast<std::int8_t>(entry & 0xFF), (entry >> 8 & 1) != 0, names.text(entry >> 9)});
  }
  return imports;
}

// Of one segment.
class Chains {
 public:
  Chains(const Bytes& starts, const std::vector<Segment>& segments, const Segment& segment,
         Fixups& fixups)
      : starts_(starts),
        segments_(segments),
        segment_(segment),
        fixups_(fixups),
        format_(starts.read<std::uint16_t>(6)) {}

  void read() {
    if (format_ != pointer64 && format_ != pointer64Offset)
      throw Error("has fixups of format " + std::to_string(format_) +
                  ", with which its pointers would have to be signed as they are loaded");
    const std::uint64_t pageSize = starts_.read<std::uint16_t>(4);
    if (pageSize != 0x1000 && pageSize != 0x4000)
      throw Error("is damaged: its fixups are for pages of " + std::to_string(pageSize) + " bytes");
    const auto pages = starts_.read<std::uint16_t>(20);
    for (std::uint16_t page = 0; page < pages; ++page) {
      const auto first = starts_.read<std::uint16_t>(22 + std::uint64_t{2} * page);
      if (first == noneInPage) continue;
      if ((first & severalInPage) != 0) throw Error("has several chains of fixups in one page");
      follow(page * pageSize + first, (page + 1) * pageSize);
    }
  }

 private:
  // The distance is in steps of four bytes, and 0 at the end, which is in the same page.
  void follow(std::uint64_t offset, std::uint64_t pageEnd) {
    std::uint64_t step = 0;
    do {
      if (offset >= pageEnd) throw Error("is damaged: a chain of fixups leaves its page");
      const auto word = segment_.bytes.read<std::uint64_t>(offset);
      constexpr std::uint64_t pointer = sizeof(std::uint64_t);
      step = 4 * (word >> 51 & 0xFFF);
      if (step != 0 && step < pointer) throw Error("is damaged: two fixups overlap");
      fixups_.all.push_back(fixup(segment_.address + offset, word));
      offset += step;
    } while (step != 0);
  }

  Fixup fixup(std::uint64_t place, std::uint64_t word) const {
    return word >> 63 != 0 ? bind(place, word) : rebase(place, word);
  }

  Fixup bind(std::uint64_t place, std::uint64_t word) const {
    const auto import = static_cast<std::uint32_t>(word & 0xFFFFFF);
    if (import >= fixups_.imports.size())
      throw Error("is damaged: a pointer is bound to an import that it does not have");
    return {place, import, word >> 24 & 0xFF};
  }

  Fixup rebase(std::uint64_t place, std::uint64_t word) const {
    const std::uint64_t begin = segments_.front().address;
    std::uint64_t target = word & 0xFFFFFFFFF;
    if (format_ == pointer64Offset) target += begin;
    const bool isInside = std::ranges::any_of(segments_, [target](const Segment& each) {
      return target >= each.address && target <= each.end();
    });
    if (!isInside || (word >> 36 & 0xFF) != 0) throw Error("is damaged: a pointer leads out of it");
    return {place, Fixup::none, target - begin};
  }

  const Bytes& starts_;
  const std::vector<Segment>& segments_;
  const Segment& segment_;
  Fixups& fixups_;
  std::uint16_t format_;
};

}  // namespace

Fixups readFixups(const Bytes& table, const std::vector<Segment>& segments) {
  if (table.read<std::uint32_t>(0) != 0)
    throw Error("has fixups of a version that the simulator does not read");
  Fixups fixups{readImports(table), {}};
  const Bytes starts = table.from(table.read<std::uint32_t>(4), "the table of fixups");
  const auto count = starts.read<std::uint32_t>(0);
  if (count > segments.size()) throw Error("is damaged: it has fixups for segments it has not");
  for (std::uint32_t index = 0; index < count; ++index) {
    const auto offset = starts.read<std::uint32_t>(4 + std::uint64_t{4} * index);
    if (offset == 0) continue;
    const Bytes ofSegment = starts.from(offset, "the table of fixups");
    Chains(ofSegment, segments, segments[index], fixups).read();
  }
  return fixups;
}

}  // namespace sim::macho
