// What pages ask of the supervisor, by itself or of the host.
#include <unistd.h>

#include <algorithm>
#include <csignal>

#include "simulator/serve/Supervisor.h"

namespace sim {

using nlohmann::json;
using std::chrono::steady_clock;

namespace {

constexpr std::chrono::seconds pingEvery{1};
constexpr std::chrono::seconds hangingAfter{2};
constexpr std::chrono::milliseconds busyAfter{300};
constexpr std::chrono::seconds samplePatience{1};
constexpr std::chrono::seconds bootPatience{60};

RequestError errorFrom(int status, const std::string& body) {
  json members = json::parse(body);
  const std::string text = members.at("error");
  members.erase("error");
  return {status, text, members};
}

void keep(const Inbox::Promise& promise, int status, std::string body) {
  if (status == 200) return answer(promise, std::move(body));
  refuse(promise, std::make_exception_ptr(errorFrom(status, body)));
}

// What a host is at, in the words of who asked for it.
std::string described(const json& question) {
  if (const auto lines = question.find("lines"); lines != question.end() && lines->is_array())
    return lines->empty() ? "" : lines->front().get<std::string>();
  return question.value("ask", "");
}

}  // namespace

void Supervisor::post(const Json& head) {
  life_->host->channel().post({head, {}});
  life_->host->channel().flush();
}

void Supervisor::ask(Json question, Done done) {
  const long number = ++lastRequest_;
  question["id"] = number;
  if (requests_.empty()) hasProgress_ = false;
  if (life_->isReady) post(question);
  requests_[number] = {std::move(question), std::move(done), steady_clock::now()};
}

void Supervisor::forward(Json request, const Promise& promise) {
  if (!life_->host) {
    const bool isRespring = request.value("lines", json()) == json{"respring"};
    if (!isRespring)
      throw RequestError(503, "the host dies again and again: respring tries once more");
    life_->crashes = 0;
    life_->isSafe = false;
    launch(*life_);
    return answer(
        promise,
        json({{"ok", true}, {"restarts", true}, {"uptime", seconds(life_->uptime)}, {"ran", 1}})
            .dump());
  }
  ask(std::move(request),
      [promise](int status, std::string body) { keep(promise, status, std::move(body)); });
}

void Supervisor::refuseFirst(const std::string& why) {
  if (requests_.empty()) return;
  const auto first = requests_.extract(requests_.begin());
  first.mapped().done(503, json({{"error", why}}).dump());
}

void Supervisor::help(Help how, const Promise& promise) {
  if (how == Help::forget) {
    report_.reset();
    return answer(promise, lifePart().dump());
  }
  if (!life_->host) throw RequestError(409, "there is no host");
  switch (how) {
    case Help::sample:
      life_->host->signal(SIGUSR2);
      sampled_ = steady_clock::now();
      samples_.push_back(promise);
      return;
    case Help::kill:
      life_->isKilled = true;
      life_->host->signal(SIGKILL);
      break;
    default:
      post({{"interrupt", true}});
  }
  answer(promise, R"({"ok":true})");
}

void Supervisor::answerSamples() {
  if (samples_.empty()) return;
  const auto sample = life_->host ? life_->host->takeSample() : std::nullopt;
  if (!sample && steady_clock::now() < sampled_ + samplePatience) return;
  for (const Promise& each : samples_) {
    if (sample)
      answer(each, json({{"stack", stackOf(*sample)}}).dump());
    else
      refuse(each,
             std::make_exception_ptr(RequestError(503, "the host does not even say where it is")));
  }
  samples_.clear();
}

bool Supervisor::isHanging() const {
  if (!life_->host) return false;
  auto since = heard_;
  if (life_->isReady) {
    const bool isPinged = pinged_ > heard_;
    if (requests_.empty() && !isPinged) return false;
    auto asked = isPinged ? pinged_ : requests_.begin()->second.asked;
    since = std::max(since, asked);
  }
  return steady_clock::now() > since + hangingAfter;
}

void Supervisor::lookAfterHost() {
  const auto now = steady_clock::now();
  if (candidate_ && now > candidate_->heard + bootPatience)
    dropCandidate({400, "this phone does not boot: its host does not answer"});
  const bool isSilent = life_->isReady && requests_.empty() && now > heard_ + pingEvery;
  if (isSilent && !subscribers_.isEmpty() && pinged_ <= heard_) {
    post({{"ping", true}});
    pinged_ = now;
  }
  answerSamples();
  Json present = lifePart();
  if (present == toldLife_) return;
  subscribers_.send("life", present);
  toldLife_ = std::move(present);
}

json Supervisor::lifePart() const {
  const char* state = "running";
  std::string doing;
  const bool isLate =
      !requests_.empty() && steady_clock::now() > requests_.begin()->second.asked + busyAfter;
  if (!life_->host)
    state = "down";
  else if (isHanging())
    state = "hanging";
  else if (!life_->isReady)
    state = "starting";
  else if (isLate && hasProgress_)
    state = "busy";
  if (isLate) doing = described(requests_.begin()->second.question);
  return {{"state", state},
          {"doing", doing.empty() ? json() : json(doing)},
          {"uptime", state == std::string("busy") ? json(seconds(life_->uptime)) : json()},
          {"safeMode", life_->isSafe},
          {"report", report_ ? asJson(*report_) : json()}};
}

json Supervisor::audioPart() const {
  return {{"page", audioPage_.empty() ? json() : json(audioPage_)}};
}

std::string Supervisor::chooseSound(const std::string& page, Sound how) {
  const std::string before = audioPage_;
  if (how == Sound::release) {
    if (audioPage_ == page) audioPage_.clear();
  } else if (how == Sound::take || audioPage_.empty() || !subscribers_.has(audioPage_)) {
    audioPage_ = page;
  }
  if (audioPage_ != before) subscribers_.send("audio", audioPart());
  return audioPart().dump();
}

// The host's part of it is long: it is passed on as it is.
std::string Supervisor::snapshotFor(const Subscriber& subscriber, const std::string& body) const {
  const json own = {{"epoch", epoch_ + '-' + std::to_string(hosts_)},
                    {"page", subscriber->page()},
                    {"audio", audioPart()},
                    {"life", lifePart()}};
  std::string text = jsonText(own);
  text.back() = ',';
  return "event: snapshot\ndata: " + text + body.substr(1) + "\n\n";
}

void Supervisor::subscribe(const Subscriber& subscriber, const Promise& promise) {
  const auto begin = [this, subscriber, promise](const std::string& body) {
    try {
      subscribers_.add(subscriber);
      subscriber->reset(snapshotFor(subscriber, body));
      tellWhetherSubscribed();
      answer(promise, "null");
    } catch (const RequestError&) {
      refuse(promise, std::current_exception());
    }
  };
  if (!snapshot_.empty() && (!life_->host || isHanging())) return begin(snapshot_);
  ask({{"ask", "snapshot"}}, [this, begin, promise](int status, const std::string& body) {
    if (status != 200) return keep(promise, status, body);
    snapshot_ = body;
    begin(body);
  });
}

void Supervisor::unsubscribe(const Subscriber& subscriber) {
  subscribers_.remove(subscriber);
  if (!subscribers_.has(subscriber->page())) chooseSound(subscriber->page(), Sound::release);
  tellWhetherSubscribed();
}

void Supervisor::tellWhetherSubscribed() {
  if (life_->isReady) post({{"hasSubscribers", !subscribers_.isEmpty()}});
}

void Supervisor::giveRecording(const Promise& promise) {
  const auto give = [this, promise](Nanoseconds uptime) {
    answer(promise, life_->recording->asScript(uptime));
  };
  if (!life_->isReady || isHanging()) return give(life_->uptime);
  ask({{"ask", "uptime"}}, [this, give](int status, const std::string& body) {
    give(status == 200 ? json::parse(body).get<Nanoseconds>() : life_->uptime);
  });
}

int Supervisor::journalDescriptor() const {
  return dup(life_->journal.descriptor());
}

}  // namespace sim
