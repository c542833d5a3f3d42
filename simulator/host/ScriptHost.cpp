#include "simulator/host/ScriptHost.h"

#include <fcntl.h>
#include <unistd.h>

#include <cstdio>
#include <iostream>

#include "objc/Ownership.h"
#include "simulator/host/CrashHandler.h"
#include "simulator/host/Output.h"
#include "simulator/script/Interpreter.h"

namespace sim {

using nlohmann::json;

namespace {

json orNull(const std::optional<std::filesystem::path>& path) {
  return path ? json(path->string()) : json();
}

std::optional<std::filesystem::path> pathOrNull(const json& from) {
  if (from.is_null()) return std::nullopt;
  return from.get<std::string>();
}

SessionOptions optionsFrom(const json& job) {
  SessionOptions options;
  options.script = job.at("script").get<std::string>();
  options.root = job.at("root").get<std::string>();
  for (const json& path : job.at("extensions"))
    options.extensions.emplace_back(path.get<std::string>());
  options.playlist = pathOrNull(job.at("playlist"));
  options.folder = pathOrNull(job.at("folder"));
  job.at("quiet").get_to(options.quiet);
  return options;
}

void printEntry(const JournalEntry& entry) {
  std::cout << formatted(entry) << '\n';
}

void silence() {
  const int nowhere = open("/dev/null", O_WRONLY | O_CLOEXEC);
  dup2(nowhere, STDERR_FILENO);
}

void tellWhatCrashesFind(Session& session, Channel& supervisor) {
  session.expectCrash = [&supervisor](const RestartState& state) {
    supervisor.send({{{"checkpoint", restartStateAsJson(state)}}, {}});
  };
}

// What was wrong with the script; null: nothing.
json play(Session& session, const CommandTable& commands, const json& job) {
  try {
    Interpreter interpreter(session, commands, parseScript(job.at("text").get<std::string>()));
    if (const json& state = job.at("state"); state.is_null())
      interpreter.play();
    else
      interpreter.resume(restartStateFromJson(state));
    return nullptr;
  } catch (const ScriptParseError& error) {
    return {{"error", error.what()}, {"line", error.line}, {"column", error.column}};
  } catch (const std::exception& error) {
    return {{"error", error.what()}, {"line", 0}, {"column", 0}};
  }
}

}  // namespace

json asJson(const ScriptJob& job, const json& state) {
  json extensions = json::array();
  for (const auto& path : job.options.extensions) extensions.push_back(path.string());
  return {{"script", job.options.script.string()},
          {"root", job.options.root.string()},
          {"extensions", std::move(extensions)},
          {"playlist", orNull(job.options.playlist)},
          {"folder", orNull(job.options.folder)},
          {"quiet", job.options.quiet},
          {"text", job.text},
          {"processorSeconds", job.processorSeconds},
          {"isSilent", job.isSilent},
          {"state", state}};
}

void playBeginning(Session& session, const CommandTable& commands, const ScriptJob& beginning) {
  if (beginning.isSilent) silence();
  session.choose(beginning.options);
  const objc::AutoreleasePool pool;
  Interpreter interpreter(session, commands, {});
  for (const ScriptLine& line : parseScript(beginning.text)) interpreter.perform(line);
}

void handOverThrough(Session& session, Channel& supervisor) {
  session.handOver = [&supervisor](const RestartState& state) {
    stopWatching();
    supervisor.send({{{"restart", restartStateAsJson(state)}}, {}});
    _exit(0);
  };
}

void playScriptInHost(Session& session, const CommandTable& commands, HostEnds& ends,
                      const json& job) {
  if (job.at("isSilent").get<bool>()) silence();
  limitProcessor(job.at("processorSeconds").get<double>());
  session.choose(optionsFrom(job));
  watchForCrashes(ends.report, session);
  handOverThrough(session, ends.supervisor);
  tellWhatCrashesFind(session, ends.supervisor);
  if (!session.options.quiet) session.phone.journal.observe(printEntry);
  json end;
  {
    const objc::AutoreleasePool pool;
    end = play(session, commands, job);
  }
  if (!isAllPrinted() && end.is_null()) end = {{"error", outputLost}, {"line", 0}, {"column", 0}};
  stopWatching();
  json last = {{"done", end.is_null() ? 0 : 1}};
  if (!end.is_null()) last.update(end);
  ends.supervisor.send({last, {}});
}

}  // namespace sim
