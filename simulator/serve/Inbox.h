// What the threads that answer pages ask of the supervisor, which lives on the main thread alone.
#pragma once

#include <deque>
#include <functional>
#include <future>
#include <memory>
#include <mutex>
#include <nlohmann/json_fwd.hpp>
#include <string>

namespace sim {

class Supervisor;

class Inbox {
 public:
  // Somebody waits for it: JSON text, or a RequestError.
  using Promise = std::shared_ptr<std::promise<std::string>>;
  // Keeps the promise, at once or later.
  using Work = std::function<void(Supervisor&, const Promise&)>;

  // Throws std::system_error.
  Inbox();
  ~Inbox();
  Inbox(const Inbox&) = delete;
  Inbox& operator=(const Inbox&) = delete;

  // Any thread but the main one: waits for the answer. Throws RequestError, with status 503 when
  // the program ends.
  std::string ask(Work work);
  // The same of the host, see ServedPhone::answer.
  std::string askHost(const char* what, nlohmann::json members);
  // Nobody waits.
  void tell(std::function<void(Supervisor&)> work);

  // The main thread. Readable when there is something to do.
  int descriptor() const { return wakeUp_; }
  void doAll(Supervisor& supervisor);
  // Refuses whatever comes from now on.
  void stop();

 private:
  struct Entry {
    Work work;
    Promise promise;
  };
  bool add(Entry entry);

  std::mutex mutex_;
  int wakeUp_;  // eventfd
  std::deque<Entry> entries_;
  bool stopped_ = false;
};

// Keeps a promise.
void answer(const Inbox::Promise& promise, std::string text);
void refuse(const Inbox::Promise& promise, const std::exception_ptr& error);

}  // namespace sim
