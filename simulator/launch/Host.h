// The host process: the home screen's application with the extensions loaded into it.
#pragma once

#include <cstddef>
#include <filesystem>
#include <optional>
#include <stdexcept>
#include <variant>
#include <vector>

#include "simulator/machine/Clock.h"

namespace sim {

namespace macho {
class Image;
}

class HostError : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

class Host {
 public:
  // Paths of the extensions, in loading order; none are loaded yet.
  explicit Host(std::vector<std::filesystem::path> extensions)
      : extensions_(std::move(extensions)) {}

  // What the process must know of its extensions before anything of a phone is made in it: whether
  // they sign their pointers. Extensions that nobody named here cannot.
  static void prepare(const std::vector<std::filesystem::path>& extensions);

  // The classes and functions of the frameworks, as the phone's set-up has them. Once a process.
  void registerClasses();
  // Loads the extensions, launches the home screen and runs what is due. Once a process. Throws
  // HostError when an extension cannot be loaded.
  void launch();
  bool isLaunched() const { return launched_; }
  Nanoseconds launchedAt() const { return launchedAt_; }  // uptime
  bool isRegistered() const { return registered_; }
  // Before they are loaded.
  void setExtensions(std::vector<std::filesystem::path> extensions) {
    extensions_ = std::move(extensions);
  }

  struct Symbol {
    enum class Kind { function, variable, other };
    void* address;
    Kind kind;
    std::size_t size;  // bytes, of a variable
  };
  // What an extension itself exports under that name: never what comes from a library that it
  // links, or from this program. Nothing when none does.
  std::optional<Symbol> symbol(const char* name) const;

  const std::vector<std::filesystem::path>& extensions() const { return extensions_; }

 private:
  void loadExtensions();
  void load(const std::filesystem::path& extension);
  void loadSharedObject(const std::filesystem::path& extension);
  void loadForPhones(const std::filesystem::path& extension);

  std::vector<std::filesystem::path> extensions_;
  // What dlopen gave for each, or a phone's image; never closed: classes and hooks point into them.
  std::vector<std::variant<void*, const macho::Image*>> loaded_;
  bool registered_ = false;
  bool launched_ = false;
  Nanoseconds launchedAt_ = 0;
};

}  // namespace sim
