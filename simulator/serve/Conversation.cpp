// What the served phone and its supervisor say to each other.
#include <unistd.h>

#include "simulator/script/Interrupted.h"
#include "simulator/serve/RequestError.h"
#include "simulator/serve/ServedPhone.h"
#include "simulator/serve/Subscribers.h"

namespace sim {

using nlohmann::json;
using std::chrono::steady_clock;

namespace {

constexpr std::chrono::milliseconds progressEvery{100};
constexpr std::chrono::milliseconds saveEvery{250};
constexpr long mostOutput = 4L * 1024 * 1024;  // bytes of what one request prints

}  // namespace

void ServedPhone::send(Json head, std::string body) {
  supervisor_.send({std::move(head), std::move(body)});
}

void ServedPhone::receive() {
  if (!supervisor_.fill()) _exit(0);  // nobody is there to be a phone for
  while (const auto message = supervisor_.next()) take(message->head);
}

// Some things are not for later.
void ServedPhone::take(const Json& request) {
  if (const auto subscribed = request.find("hasSubscribers"); subscribed != request.end())
    hasSubscribers_ = subscribed->get<bool>();
  else if (request.contains("ping"))
    send({{"progress", session_.phone.clock.uptime()}});
  else if (request.contains("interrupt"))
    isInterrupted_ = true;
  else if (request.at("ask") == "snapshot")
    answerNow(request);
  else
    requests_.push_back(request);
}

void ServedPhone::answerNext() {
  if (requests_.empty()) return;
  request_ = std::move(requests_.front());
  requests_.pop_front();
  isInterrupted_ = false;
  answerNow(request_);
  request_ = nullptr;
  changed_ = true;
}

void ServedPhone::answerNow(const Json& request) {
  const json& id = request.at("id");
  try {
    const objc::AutoreleasePool pool;
    send({{"answer", id}, {"status", 200}}, jsonText(answer(request)));
  } catch (const RequestError& error) {
    send({{"answer", id}, {"status", error.status}}, jsonText(error.body()));
  } catch (const std::exception& error) {
    send({{"answer", id}, {"status", 500}}, jsonText({{"error", error.what()}}));
  }
}

// Between two of the many things that a command does.
void ServedPhone::progress() {
  const Moment now = steady_clock::now();
  if (now < progressed_ + progressEvery) return;
  progressed_ = now;
  send({{"progress", session_.phone.clock.uptime()}});
  receive();
  tellSubscribers(now);
  const Nanoseconds uptime = session_.phone.clock.uptime();
  if (printed_ != nullptr && printed_->tellp() > mostOutput)
    throw Interrupted(session_.lineNumber, uptime,
                      "expected to print at most " + std::to_string(mostOutput) + " bytes");
  if (std::exchange(isInterrupted_, false))
    throw Interrupted(session_.lineNumber, uptime,
                      "interrupted at " + notation(seconds(uptime)) + " s");
}

// Not as often as something happens: what a playlist alone consists of takes its time.
void ServedPhone::saveState(Moment now) {
  const std::size_t lines = session_.phone.journal.size();
  if (session_.state == HostState::off || (!mustSave_ && lines == savedAt_)) return;
  if (now < saved_ + saveEvery && !mustSave_) return;
  const RestartState state = recorded(session_, "as the host died at " + session_.place());
  send({{"checkpoint", restartStateAsJson(state)}});
  saved_ = now;
  savedAt_ = lines;
  mustSave_ = false;
}

}  // namespace sim
