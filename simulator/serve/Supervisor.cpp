// The lives of the hosts: how they begin, what they say, how they end.
#include "simulator/serve/Supervisor.h"

#include <poll.h>

#include <algorithm>
#include <utility>

#include "simulator/host/PhonePackage.h"
#include "simulator/machine/Journal.h"
#include "simulator/serve/http/Access.h"

namespace sim {

using nlohmann::json;
using std::chrono::steady_clock;

namespace files = std::filesystem;

namespace {

constexpr std::chrono::seconds addressPatience{2};
// A host that dies so soon after its launch has not lived.
constexpr std::chrono::seconds soon{10};
constexpr int crashesUntilSafe = 2, crashesUntilDown = 4;

}  // namespace

Supervisor::Supervisor(ServedFolders folders, std::vector<files::path> extensions, Zygote& zygote,
                       Inbox& inbox, int endSignals)
    : folders_(std::move(folders)),
      extensions_(std::move(extensions)),
      zygote_(zygote),
      inbox_(inbox),
      endSignals_(endSignals),
      epoch_(randomDigits(8)) {}

Supervisor::~Supervisor() {
  inbox_.stop();
  while (!requests_.empty()) refuseFirst("the phone ends");
  subscribers_.close();
}

std::unique_ptr<Supervisor::Life> Supervisor::newLife(Json serve) {
  auto life = std::make_unique<Life>();
  life->serve = std::move(serve);
  const std::string name = lives_ == 0 ? "phone" : "phone-" + std::to_string(lives_ + 1);
  ++lives_;
  files::create_directories(folders_.temporary / name);
  life->root = files::canonical(folders_.temporary / name);
  if (folders_.package) installPackage(*folders_.package, life->root);
  return life;
}

void Supervisor::launch(Life& life) {
  PhoneJob job;
  job.root = life.root;
  job.folder = folders_.folder;
  if (!life.isSafe) job.extensions = extensions_;
  job.setup = life.setup;
  job.settings = life.settings;
  if (life.state.is_null())
    life.recording = std::make_unique<Recording>();
  else
    job.done = life.recording->setup();
  job.serve = life.serve;
  job.state = life.state;
  life.last = nullptr;
  life.isReady = life.isKilled = false;
  life.expectedCrash.reset();
  life.launched = life.heard = heard_ = pinged_ = steady_clock::now();
  ++hosts_;
  life.host = std::make_unique<HostProcess>(zygote_, asJson(job), life.journal);
}

bool Supervisor::begin(const Json& serve) {
  life_ = newLife(serve);
  launch(*life_);
  const auto enough = steady_clock::now() + addressPatience;
  while (!life_->isReady && steady_clock::now() < enough) {
    if (!turn()) return false;
    if (life_->last.contains("failed"))
      throw std::runtime_error(life_->last.at("failed").get<std::string>());
  }
  return true;
}

void Supervisor::run() {
  while (turn()) continue;
}

int Supervisor::patience() const {
  if (!requests_.empty() || !samples_.empty() || candidate_ || !life_->isReady) return 100;
  return subscribers_.isEmpty() ? -1 : 500;
}

bool Supervisor::turn() {
  std::vector<pollfd> watched = {{inbox_.descriptor(), POLLIN, 0}, {endSignals_, POLLIN, 0}};
  const std::vector<Life*> lives = {life_.get(), candidate_.get()};
  for (Life* life : lives) {
    if (life == nullptr || !life->host) continue;
    Channel& channel = life->host->channel();
    const short events = channel.hasPosts() ? POLLIN | POLLOUT : POLLIN;
    watched.push_back({channel.descriptor(), events, 0});
  }
  poll(watched.data(), watched.size(), patience());
  if (watched[1].revents != 0) return false;
  for (Life* life : lives)
    if (life != nullptr && life->host) takeMessages(*life);
  if (watched[0].revents != 0) inbox_.doAll(*this);
  lookAfterHost();
  return true;
}

void Supervisor::takeMessages(Life& life) {
  Channel& channel = life.host->channel();
  const bool takesMore = channel.flush();
  const bool isOpen = channel.fill() && takesMore;
  while (const auto message = channel.next()) take(life, *message);
  if (!isOpen) hostEnded(life);
}

void Supervisor::take(Life& life, const Message& message) {
  const json& head = message.head;
  life.heard = steady_clock::now();
  if (&life == life_.get()) heard_ = life.heard;
  if (head.contains("event")) {
    if (&life == life_.get()) subscribers_.sendText(message.body);
  } else if (head.contains("answer")) {
    takeAnswer(message);
  } else if (head.contains("checkpoint")) {
    life.state = head.at("checkpoint");
    life.uptime = life.state.at("uptime").get<Nanoseconds>();
    life.recording->saved(life.uptime);
  } else if (head.contains("progress")) {
    life.uptime = head.at("progress").get<Nanoseconds>();
    hasProgress_ = hasProgress_ || &life == life_.get();
  } else if (head.contains("expectsCrash")) {
    life.expectedCrash = head.at("expectsCrash");
  } else if (head.contains("ready")) {
    hostReady(life);
  } else if (head.contains("restart") || head.contains("failed") || head.contains("again")) {
    life.last = head;
  } else {
    life.expectedCrash.reset();  // the line is over, or it is another
    takeRecording(*life.recording, head);
  }
}

void Supervisor::takeRecording(Recording& recording, const Json& head) {
  if (head.contains("forget")) return recording.forget();
  const auto uptime = head.at("uptime").get<Nanoseconds>();
  if (head.contains("begun"))
    recording.begin(head.at("begun").get<std::string>(), uptime);
  else if (head.contains("instead"))
    recording.doneBy(head.at("instead").get<std::vector<std::string>>(), uptime);
  else
    recording.done(uptime);
}

void Supervisor::takeAnswer(const Message& message) {
  auto found = requests_.extract(message.head.at("answer").get<long>());
  hasProgress_ = false;
  if (!requests_.empty()) requests_.begin()->second.asked = heard_;
  if (found) found.mapped().done(message.head.at("status").get<int>(), message.body);
}

void Supervisor::hostReady(Life& life) {
  life.isReady = true;
  if (&life == candidate_.get()) {
    const auto before = std::exchange(life_, std::move(candidate_));
    before->host.reset();
    std::error_code ignored;  // all of it goes at the program's end
    files::remove_all(before->root, ignored);
    report_.reset();
    answer(candidatePromise_, R"({"ok":true,"restarts":true,"uptime":0})");
  }
  tellWhetherSubscribed();
  // Whatever the host before has left unanswered, this one is asked.
  for (auto& [number, request] : requests_) {
    post(request.question);
    request.asked = steady_clock::now();
  }
  if (subscribers_.isEmpty()) return;
  ask({{"ask", "snapshot"}}, [this](int status, const std::string& body) {
    if (status != 200) return;
    snapshot_ = body;
    subscribers_.reset([&](const Subscriber& each) { return snapshotFor(each, body); });
  });
}

void Supervisor::hostEnded(Life& life) {
  const HostResult result = life.host->end();
  life.host.reset();
  life.isReady = false;
  life.journal.refresh();
  if (life.expectedCrash && result.crash && !life.isKilled)
    return hostCrashedAsExpected(life, result);
  if (&life == candidate_.get() && !life.last.contains("restart")) {
    if (life.last.contains("again")) return repeatCandidate();
    if (life.last.contains("failed")) return dropCandidate(refusalFrom(life.last));
    const CrashReport report = reportOf(result.status, result.crash, life.journal);
    return dropCandidate({400, "this phone does not boot: " + journalLine(report)});
  }
  if (life.last.contains("restart")) return hostRestarts(life);
  if (!life.last.contains("failed")) hostCrashed(life, result);
}

// Who has asked for what ended the host; `request` is null when nobody has.
void Supervisor::answerRestart(const Json& request, const Json& uptime, const Json& ran) {
  if (request.is_null()) return;
  if (auto found = requests_.extract(request.get<long>()))
    found.mapped().done(
        200, json({{"ok", true}, {"restarts", true}, {"uptime", uptime}, {"ran", ran}}).dump());
}

void Supervisor::hostRestarts(Life& life) {
  const Json last = std::exchange(life.last, nullptr);
  life.state = last.at("restart");
  life.uptime = life.state.at("uptime").get<Nanoseconds>();
  life.recording->done(life.uptime);
  life.recording->saved(life.uptime);
  // Who has it restarted in order wants it whole.
  life.isSafe = false;
  life.crashes = 0;
  answerRestart(last.at("request"), last.at("uptime"), last.at("ran"));
  launch(life);
}

// The script says so: it goes on behind the line, with the next host.
void Supervisor::hostCrashedAsExpected(Life& life, const HostResult& result) {
  CrashReport report = reportOf(result.status, result.crash, life.journal);
  life.uptime = report.uptime = std::max(report.uptime, life.uptime);
  life.journal.append({report.uptime, journalLine(report)});
  life.recording->crashed(report.uptime);
  relaunchAfterCrash(life.state, report.uptime, result.crash);
  answerRestart(*life.expectedCrash, seconds(life.uptime), 0);
  launch(life);
}

void Supervisor::hostCrashed(Life& life, const HostResult& result) {
  CrashReport report = reportOf(result.status, result.crash, life.journal);
  if (life.isKilled) report.what = "it did not answer, and was killed";
  report.uptime = std::max(report.uptime, life.uptime);
  const std::string line = journalLine(report);
  life.journal.append({report.uptime, line});
  // Whom others have killed does not die again of itself.
  if (result.crash && !life.isKilled && !life.state.is_null())
    life.recording->crashed(report.uptime);
  else
    life.recording->done(report.uptime);
  refuseFirst(line);
  life.crashes = steady_clock::now() < life.launched + soon ? life.crashes + 1 : 1;
  life.isSafe = life.crashes >= crashesUntilSafe;
  life.uptime = report.uptime;
  report_ = report;
  if (!life.state.is_null()) {
    relaunchAfterCrash(life.state, report.uptime, result.crash);
    json& script = life.state["survivors"]["serve"]["script"];
    if (!script.is_null() && script.at("state") == "running") {
      script["state"] = "failed";
      script["error"] = {{"line", script.at("line")}, {"column", 1}, {"error", line}};
    }
  }
  if (life.crashes < crashesUntilDown) launch(life);
}

}  // namespace sim
