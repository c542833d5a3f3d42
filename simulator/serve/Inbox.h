// What other threads ask of the phone, which lives on the main thread alone.
#pragma once

#include <chrono>
#include <condition_variable>
#include <deque>
#include <functional>
#include <future>
#include <mutex>
#include <nlohmann/json.hpp>
#include <optional>
#include <string>

namespace sim {

class ServedPhone;

class Inbox {
 public:
  using Work = std::function<nlohmann::json(ServedPhone&)>;
  using Moment = std::chrono::steady_clock::time_point;

  // Any thread but the phone's: waits for the answer. Throws what the work throws, and
  // RequestError with status 503 when the phone will not come to it.
  nlohmann::json ask(Work work);
  // Any thread, in no hurry: nobody waits.
  void tell(std::function<void(ServedPhone&)> work);
  // Any thread: the phone shall end.
  void stop();

  // The phone's thread. Sleeps until something is there or until that moment; without one, as
  // long as it takes.
  void waitUntil(std::optional<Moment> moment);
  bool isStopped() const;
  // Does the oldest piece of work; false when there is none.
  bool doNext(ServedPhone& phone);
  // The process ends: the work being done is answered early, what waits is refused.
  void answerEarly(nlohmann::json answer);

 private:
  struct Entry {
    Work work;
    std::promise<nlohmann::json> answer;
  };

  mutable std::mutex mutex_;
  std::condition_variable changed_;
  std::deque<Entry> entries_;
  std::optional<Entry> current_;  // the phone's thread only
  bool stopped_ = false;
  bool ends_ = false;
};

}  // namespace sim
