// Another phone in place of the present one: it takes its place when it has booted.
#include <algorithm>

#include "simulator/script/words/Script.h"
#include "simulator/serve/ServeState.h"
#include "simulator/serve/Supervisor.h"

namespace sim {

using nlohmann::json;

namespace {

bool saysBoot(const std::string& line) {
  try {
    const auto words = parseScriptLine(line, 1).words;
    return !words.empty() && words.front().text == "boot";
  } catch (const ScriptError&) {
    return false;  // the phone will say what is wrong with it
  }
}

}  // namespace

// What of a phone the next one has, too.
void Supervisor::withHeritage(std::function<void(const Json&)> use) {
  if (!life_->isReady || isHanging())
    return use({{"settings", life_->settings},
                {"uptime", life_->uptime},
                {"serve", life_->state.is_null() ? life_->serve
                                                 : life_->state.at("survivors").at("serve")}});
  ask({{"ask", "heritage"}}, [use = std::move(use)](int status, const std::string& body) {
    if (status == 200) use(json::parse(body));
  });
}

void Supervisor::makePhone(const std::vector<std::string>& setup, bool keepsSettings,
                           const Promise& promise) {
  const auto boot = std::find_if(setup.begin(), setup.end(), saysBoot);
  if (boot != setup.end())
    throw RequestError(400, "expected the lines before boot",
                       {{"line", boot - setup.begin() + 1}, {"column", 1}});
  withHeritage([this, setup, keepsSettings, promise](const Json& heritage) {
    json serve = heritage.at("serve");
    serve["script"] = nullptr;
    auto next = newLife(std::move(serve));
    next->setup = setup;
    if (keepsSettings) heritage.at("settings").get_to(next->settings);
    propose(std::move(next), promise);
  });
}

void Supervisor::openScript(const std::string& name, const std::string& text,
                            const Promise& promise) {
  withHeritage([this, name, text, promise](const Json& heritage) {
    ServeState serve = serveStateFrom(heritage.at("serve"));
    serve.script.emplace();
    serve.script->name = name;
    serve.script->text = text;
    serve.paused = true;  // time passes by the script's lines
    propose(newLife(asJson(serve)), promise);
  });
}

void Supervisor::propose(std::unique_ptr<Life> life, const Promise& promise) {
  if (candidate_) dropCandidate({503, "another phone is made in its place"});
  candidate_ = std::move(life);
  candidatePromise_ = promise;
  launch(*candidate_);
}

void Supervisor::dropCandidate(const RequestError& why) {
  refuse(candidatePromise_, std::make_exception_ptr(why));
  std::error_code ignored;  // all of it goes at the program's end
  std::filesystem::remove_all(candidate_->root, ignored);
  candidate_.reset();
}

// Lines are counted as the page has sent them.
RequestError Supervisor::refusalFrom(const Json& failed) const {
  const std::string text = failed.at("failed");
  const auto index = failed.at("index").get<std::size_t>();
  const std::size_t before = candidate_->settings.size();
  if (index < before || index >= before + candidate_->setup.size())
    return {400, "this phone does not boot: " + text};
  return {400, text, {{"line", index - before + 1}, {"column", failed.at("column")}}};
}

// It has come too far, and says where it should have stopped.
void Supervisor::repeatCandidate() {
  auto next = newLife(candidate_->last.at("again"));
  std::error_code ignored;  // all of it goes at the program's end
  std::filesystem::remove_all(candidate_->root, ignored);
  candidate_ = std::move(next);
  launch(*candidate_);
}

}  // namespace sim
