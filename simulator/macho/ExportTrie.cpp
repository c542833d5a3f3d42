#include "simulator/macho/ExportTrie.h"

#include <set>
#include <vector>

namespace sim::macho {
namespace {

constexpr std::size_t longestName = 4096;

struct Node {
  std::uint64_t offset;
  std::string name;
};

class Trie {
 public:
  explicit Trie(const Bytes& bytes) : bytes_(bytes) {}

  Exports read() {
    if (bytes_.size() == 0) return {};
    open({0, ""});
    while (!open_.empty()) {
      const Node node = open_.back();
      open_.pop_back();
      visit(node);
    }
    return std::move(exports_);
  }

 private:
  // Each node has one parent; in a damaged tree an edge may lead back.
  void open(Node node) {
    if (node.name.size() > longestName || !seen_.insert(node.offset).second)
      throw Error("is damaged: the table of exports is no tree");
    open_.push_back(std::move(node));
  }

  void visit(const Node& node) {
    std::uint64_t at = node.offset;
    const std::uint64_t terminalSize = number(at);
    const std::uint64_t children = at + terminalSize;
    if (terminalSize != 0) addExport(node.name, at);
    at = children;
    const auto count = bytes_.read<std::uint8_t>(at++);
    for (unsigned index = 0; index < count; ++index) {
      const std::string part = bytes_.text(at);
      at += part.size() + 1;
      open({number(at), node.name + part});
    }
  }

  void addExport(const std::string& name, std::uint64_t at) {
    constexpr std::uint64_t kindMask = 3, regular = 0, fromOther = 8, throughStub = 16;
    const std::uint64_t flags = number(at);
    if ((flags & kindMask) != regular || (flags & (fromOther | throughStub)) != 0)
      throw Error("exports " + name + " in a way that the simulator does not know");
    exports_.emplace(name, number(at));
  }

  // Seven bits a byte, the lowest first.
  std::uint64_t number(std::uint64_t& at) {
    std::uint64_t value = 0;
    for (unsigned shift = 0;; shift += 7) {
      const auto byte = bytes_.read<std::uint8_t>(at++);
      if (shift > 56) throw Error("is damaged: a number in the table of exports has no end");
      value |= std::uint64_t{byte & 0x7Fu} << shift;
      if ((byte & 0x80) == 0) return value;
    }
  }

  Bytes bytes_;
  std::vector<Node> open_;
  std::set<std::uint64_t> seen_;
  Exports exports_;
};

}  // namespace

Exports readExports(const Bytes& trie) {
  return Trie(trie).read();
}

}  // namespace sim::macho
