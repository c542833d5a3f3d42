// Keeps a served phone alive: it has the host forked that is the phone, passes on what pages ask of
// it and what it says, has everything that outlives a host, and never runs an extension itself.
#pragma once

#include <chrono>
#include <filesystem>
#include <functional>
#include <map>
#include <memory>
#include <nlohmann/json.hpp>
#include <optional>
#include <string>
#include <vector>

#include "simulator/host/CrashReport.h"
#include "simulator/host/HostProcess.h"
#include "simulator/serve/Inbox.h"
#include "simulator/serve/PhoneJob.h"
#include "simulator/serve/Recording.h"
#include "simulator/serve/RequestError.h"
#include "simulator/serve/ServeState.h"
#include "simulator/serve/Subscribers.h"

namespace sim {

struct ServedFolders {
  std::filesystem::path temporary;               // the phones' own files lie in folders of it
  std::filesystem::path folder;                  // all that scripts may name lies below it
  std::optional<std::filesystem::path> package;  // what is installed on every phone
};

// The main thread only, but for what says otherwise.
class Supervisor {
 public:
  using Json = nlohmann::json;
  using Promise = Inbox::Promise;

  Supervisor(ServedFolders folders, std::vector<std::filesystem::path> extensions, Zygote& zygote,
             Inbox& inbox, int endSignals);
  ~Supervisor();
  Supervisor(const Supervisor&) = delete;
  Supervisor& operator=(const Supervisor&) = delete;

  // Makes the first phone, and waits for it as long as one may wait for an address. False when the
  // program shall end. Throws std::runtime_error when its set-up is wrong.
  bool begin(const Json& serve);
  // Until the program shall end.
  void run();

  // Asks the host, which answers in the order in which it is asked.
  void forward(Json request, const Promise& promise);

  // A fresh phone of these lines, in place of this one if it boots.
  void makePhone(const std::vector<std::string>& setup, bool keepsSettings, const Promise& promise);
  void openScript(const std::string& name, const std::string& text, const Promise& promise);
  // A fresh phone on which all is done again up to there: by the open script, or, where it knows
  // nothing of that moment, by what was recorded, which is the open script from then on.
  void goTo(const OpenScript::Goal& goal, const Promise& promise);

  // For a host that does not do as it should.
  enum class Help { kill, sample, interrupt, forget };
  void help(Help how, const Promise& promise);

  enum class Sound { ask, take, release };
  std::string chooseSound(const std::string& page, Sound how);

  void subscribe(const Subscriber& subscriber, const Promise& promise);
  void unsubscribe(const Subscriber& subscriber);

  void giveRecording(const Promise& promise);
  // Of the journal; to be closed by who gets it.
  int journalDescriptor() const;
  // Where the phone's "/" lies.
  const std::filesystem::path& root() const { return life_->root; }

 private:
  using Moment = std::chrono::steady_clock::time_point;
  using Done = std::function<void(int status, std::string body)>;

  // A phone from its first boot on, through all its hosts.
  struct Life {
    std::filesystem::path root;
    std::vector<std::string> setup, settings;
    Json serve;  // as of ServeState, to begin with
    JournalFile journal;
    std::unique_ptr<Recording> recording = std::make_unique<Recording>();
    Json state;                         // of its host, for the next; null: none has booted
    Nanoseconds uptime = 0;             // as far as is known
    std::unique_ptr<HostProcess> host;  // none: it is down
    bool isReady = false;               // the host has begun
    Json last;                          // what it has said before its end
    Moment launched{};
    int crashes = 0;  // one soon after the other
    bool isSafe = false;
    bool isKilled = false;  // by a page
    // The script's line is to crash the host; the request that it answers, or null.
    std::optional<Json> expectedCrash;
    Moment heard{};  // when it said something last
  };
  struct Request {
    Json question;
    Done done;
    Moment asked;
  };

  std::unique_ptr<Life> newLife(Json serve);
  void launch(Life& life);
  bool turn();
  int patience() const;

  void takeMessages(Life& life);
  void take(Life& life, const Message& message);
  void takeRecording(Recording& recording, const Json& head);
  void takeAnswer(const Message& message);
  void hostReady(Life& life);
  void hostEnded(Life& life);
  void answerRestart(const Json& request, const Json& uptime, const Json& ran);
  void hostRestarts(Life& life);
  void hostCrashed(Life& life, const HostResult& result);
  void hostCrashedAsExpected(Life& life, const HostResult& result);

  void ask(Json question, Done done);
  void post(const Json& head);
  void refuseFirst(const std::string& why);
  void propose(std::unique_ptr<Life> life, const Promise& promise);
  void withHeritage(std::function<void(const Json&)> use);
  void dropCandidate(const RequestError& why);
  void repeatCandidate();
  OpenScript scriptFor(const OpenScript::Goal& goal, const Json& heritage) const;
  RequestError refusalFrom(const Json& failed) const;

  void lookAfterHost();
  void answerSamples();
  bool isHanging() const;
  Json lifePart() const;
  Json audioPart() const;
  std::string snapshotFor(const Subscriber& subscriber, const std::string& body) const;
  void tellWhetherSubscribed();

  ServedFolders folders_;
  std::vector<std::filesystem::path> extensions_;
  Zygote& zygote_;
  Inbox& inbox_;
  int endSignals_;
  Subscribers subscribers_;
  std::string epoch_, audioPage_, snapshot_;
  long lives_ = 0, hosts_ = 0;

  std::unique_ptr<Life> life_;
  std::unique_ptr<Life> candidate_;  // takes its place when it has booted
  Promise candidatePromise_;

  std::map<long, Request> requests_;  // that the host has not answered, by number
  long lastRequest_ = 0;
  Moment heard_{}, pinged_{};  // pinged_: later than heard_ as long as it is unanswered
  bool hasProgress_ = false;   // the request that the host is at has made some
  std::vector<Promise> samples_;
  Moment sampled_{};
  std::optional<CrashReport> report_;
  Json toldLife_;
};

}  // namespace sim
