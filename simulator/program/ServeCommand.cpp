#include "simulator/program/ServeCommand.h"

#include <cerrno>
#include <csignal>
#include <iostream>
#include <system_error>

#include "simulator/host/EndSignals.h"
#include "simulator/host/TemporaryFolder.h"
#include "simulator/machine/FileContent.h"
#include "simulator/serve/Api.h"
#include "simulator/serve/ServeState.h"
#include "simulator/serve/ServedPhone.h"
#include "simulator/serve/Supervisor.h"
#include "simulator/serve/http/Guard.h"

namespace sim {

namespace files = std::filesystem;

namespace {

files::path beside(const char* folder) {
  return files::read_symlink("/proc/self/exe").parent_path().parent_path() / folder;
}

std::string contentOf(const files::path& file) {
  auto content = fileContent(file);
  if (!content) throw std::system_error(errno, std::generic_category(), file.string());
  return *std::move(content);
}

MusicLibrary libraryFor(const Options& options) {
  if (!options.music) return {};
  const files::path named = options.files.empty() ? beside("music") : options.files.front();
  if (files::exists(named) && !files::is_directory(named))
    throw std::runtime_error(named.string() + ": expected a folder of music, found a file");
  const files::path folder = files::canonical(named);
  MusicLibrary library(folder);
  if (library.files().empty())
    throw std::runtime_error(folder.string() + ": no music to play: expected files named " +
                             musicNameEndings() + " there or in folders within");
  return library;
}

// Nobody else can look into the temporary folder.
files::path folderOf(const Options& options, const files::path& temporary) {
  if (options.folder) return *options.folder;
  files::create_directory(temporary / "files");
  return files::canonical(temporary / "files");
}

ServeState stateFrom(const Options& options) {
  ServeState state;
  state.paused = options.paused;
  if (options.script) {
    state.paused = true;  // time passes by the script's lines
    state.script.emplace();
    state.script->name = options.script->filename().string();
    state.script->text = contentOf(*options.script);
  }
  return state;
}

}  // namespace

int servePhone(const Options& options) {
  const EndSignals endSignals;
  std::signal(SIGPIPE, SIG_IGN);
  const TemporaryFolder temporary;
  const MusicLibrary library = libraryFor(options);
  const files::path folder = folderOf(options, temporary.path());
  const files::path web = files::canonical(options.web.value_or(beside("web")));
  const auto state = asJson(stateFrom(options));
  // Forked before there are threads, and with what all hosts need.
  const HostMain main = [&library](Session& session, const CommandTable& commands, HostEnds& ends,
                                   const nlohmann::json& job) {
    ServedPhone(session, commands, ends, library, job).run();
  };
  Zygote zygote(Zygote::Classes::none, main);
  const Access access(options.token ? *options.token : randomDigits(32), randomDigits(placeDigits));
  Inbox inbox;
  Router router;
  HttpServer server;
  const int port = server.bind(options.port);
  guard(server, port, access);
  addApi(router, {inbox, access, library, web, folder});
  router.serve(server);
  Supervisor supervisor({temporary.path(), folder, options.package}, options.extensions, zygote,
                        inbox, endSignals.descriptor());
  if (!supervisor.begin(state)) return 0;
  std::cout << "The phone is at http://127.0.0.1:" << port << access.entrance() << std::endl;
  server.start();
  supervisor.run();
  return 0;
}

}  // namespace sim
