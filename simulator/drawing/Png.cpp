#include "simulator/drawing/Png.h"

#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <cstdio>
#include <cstring>
#include <memory>
#include <stdexcept>

namespace sim {
namespace {

constexpr const char* program = "rsvg-convert";

using File = std::unique_ptr<std::FILE, int (*)(std::FILE*)>;

[[noreturn]] void fail(const std::string& why) {
  throw std::runtime_error(std::string(program) + ": " + why);
}

// A file without a name that holds the text, to be read from its start.
File fileWith(const std::string& text) {
  File file(std::tmpfile(), &std::fclose);
  if (!file || std::fwrite(text.data(), 1, text.size(), file.get()) != text.size() ||
      std::fflush(file.get()) != 0)
    fail(std::string("no temporary file: ") + std::strerror(errno));
  std::rewind(file.get());
  return file;
}

std::string contentOf(std::FILE* file) {
  std::string content;
  std::array<char, 65536> part;
  std::rewind(file);
  while (const std::size_t count = std::fread(part.data(), 1, part.size(), file))
    content.append(part.data(), count);
  return content;
}

pid_t start(std::FILE* input, std::FILE* output, const std::array<const char*, 4>& words) {
  posix_spawn_file_actions_t actions;
  posix_spawn_file_actions_init(&actions);
  posix_spawn_file_actions_adddup2(&actions, fileno(input), STDIN_FILENO);
  posix_spawn_file_actions_adddup2(&actions, fileno(output), STDOUT_FILENO);
  pid_t child = 0;
  const int error = posix_spawnp(&child, program, &actions, nullptr,
                                 const_cast<char* const*>(words.data()), environ);
  posix_spawn_file_actions_destroy(&actions);
  if (error == ENOENT)
    fail("is not installed, and pictures are drawn by it (Debian has it in librsvg2-bin)");
  if (error != 0) fail(std::strerror(error));
  return child;
}

}  // namespace

std::string pngOf(const std::string& svg, double scale) {
  const File input = fileWith(svg);
  const File output = fileWith("");
  const std::string zoom = std::to_string(scale);
  const pid_t child = start(input.get(), output.get(), {program, "--zoom", zoom.c_str(), nullptr});
  int status = 0;
  while (waitpid(child, &status, 0) < 0)
    if (errno != EINTR) fail(std::strerror(errno));
  if (!WIFEXITED(status) || WEXITSTATUS(status) != 0) fail("cannot draw the picture");
  return contentOf(output.get());
}

}  // namespace sim
