// dozewell-nibc: compiles Interface Builder documents into the layouts that UIKit loads, on any
// machine.
#include <cstring>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <iterator>
#include <stdexcept>
#include <string>

#include "tools/nibc/Compiler.h"
#include "tools/nibc/nib/Dump.h"
#include "tools/nibc/nib/Reader.h"
#include "tools/nibc/nib/Writer.h"
#include "tools/nibc/xib/Source.h"

namespace {

constexpr const char* usage =
    "usage: dozewell-nibc IN.xib OUT.nib           compile a document\n"
    "       dozewell-nibc --dump IN.nib            print a compiled layout\n"
    "       dozewell-nibc --reencode IN.nib OUT.nib  read a compiled layout and write it again\n";

enum Status { success = 0, badInput = 1, badUsage = 2 };

std::string systemError(const std::string& path) {
  return path + ": " + std::strerror(errno);
}

std::string contents(const std::string& path) {
  // Folders can be opened, and read as nothing.
  if (std::filesystem::is_directory(path)) throw std::runtime_error(path + ": is a folder");
  std::ifstream file(path, std::ios::binary);
  if (!file) throw std::runtime_error(systemError(path));
  return {std::istreambuf_iterator<char>(file), {}};
}

// Whoever sees the file sees all of it.
void replace(const std::string& path, const std::string& bytes) {
  const std::string draft = path + ".new";
  std::ofstream file(draft, std::ios::binary);
  file << bytes;
  file.close();
  if (!file) throw std::runtime_error(systemError(draft));
  std::error_code failure;
  std::filesystem::rename(draft, path, failure);
  if (!failure) return;
  std::filesystem::remove(draft);
  throw std::runtime_error(path + ": " + failure.message());
}

std::string compiled(const std::string& path) {
  try {
    return nib::write(xib::compile(contents(path)));
  } catch (const xib::Error& error) {
    throw std::runtime_error(path + ":" + std::to_string(error.position.line) + ":" +
                             std::to_string(error.position.column) + ": " + error.what());
  }
}

nib::Archive readLayout(const std::string& path) {
  try {
    return nib::read(contents(path));
  } catch (const nib::FormatError& error) {
    throw std::runtime_error(path + ": " + error.what());
  }
}

Status run(const std::vector<std::string>& arguments) {
  const auto isCall = [&](const char* option, std::size_t count) {
    return arguments.size() == count && arguments[0] == option;
  };
  if (isCall("--help", 1)) {
    std::cout << usage;
  } else if (isCall("--dump", 2)) {
    std::cout << nib::dump(readLayout(arguments[1])) << std::flush;
    if (!std::cout) throw std::runtime_error("the output could not be written");
  } else if (isCall("--reencode", 3)) {
    replace(arguments[2], nib::write(readLayout(arguments[1])));
  } else if (arguments.size() == 2 && !arguments[0].starts_with("-")) {
    replace(arguments[1], compiled(arguments[0]));
  } else {
    std::cerr << usage;
    return badUsage;
  }
  return success;
}

}  // namespace

int main(int count, char** words) {
  try {
    return run({words + 1, words + count});
  } catch (const std::exception& error) {
    std::cerr << error.what() << '\n';
    return badInput;
  }
}
