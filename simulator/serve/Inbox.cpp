#include "simulator/serve/Inbox.h"

#include <sys/eventfd.h>
#include <unistd.h>

#include <cerrno>
#include <cstdint>
#include <nlohmann/json.hpp>
#include <system_error>
#include <utility>

#include "simulator/serve/RequestError.h"
#include "simulator/serve/Supervisor.h"

namespace sim {
namespace {

RequestError refusal() {
  return {503, "the phone ends"};
}

}  // namespace

Inbox::Inbox() : wakeUp_(eventfd(0, EFD_CLOEXEC | EFD_NONBLOCK)) {
  if (wakeUp_ < 0) throw std::system_error(errno, std::generic_category(), "eventfd");
}

Inbox::~Inbox() {
  close(wakeUp_);
}

bool Inbox::add(Entry entry) {
  const std::lock_guard lock(mutex_);
  if (stopped_) return false;
  entries_.push_back(std::move(entry));
  const std::uint64_t one = 1;
  [[maybe_unused]] const auto written = write(wakeUp_, &one, sizeof one);
  return true;
}

std::string Inbox::ask(Work work) {
  auto promise = std::make_shared<std::promise<std::string>>();
  auto answer = promise->get_future();
  if (!add({std::move(work), std::move(promise)})) throw refusal();
  return answer.get();
}

std::string Inbox::askHost(const char* what, nlohmann::json members) {
  members["ask"] = what;
  return ask([&members](Supervisor& supervisor, const Promise& promise) {
    supervisor.forward(std::move(members), promise);
  });
}

void Inbox::tell(std::function<void(Supervisor&)> work) {
  add({[work = std::move(work)](Supervisor& supervisor, const Promise&) { work(supervisor); },
       std::make_shared<std::promise<std::string>>()});
}

void Inbox::doAll(Supervisor& supervisor) {
  std::uint64_t count = 0;
  [[maybe_unused]] const auto ignored = read(wakeUp_, &count, sizeof count);
  std::deque<Entry> entries;
  {
    const std::lock_guard lock(mutex_);
    entries.swap(entries_);
  }
  for (const Entry& entry : entries) {
    try {
      entry.work(supervisor, entry.promise);
    } catch (...) {
      refuse(entry.promise, std::current_exception());
    }
  }
}

void Inbox::stop() {
  const std::lock_guard lock(mutex_);
  stopped_ = true;
  for (const Entry& entry : entries_) refuse(entry.promise, std::make_exception_ptr(refusal()));
  entries_.clear();
}

void answer(const Inbox::Promise& promise, std::string text) {
  promise->set_value(std::move(text));
}

void refuse(const Inbox::Promise& promise, const std::exception_ptr& error) {
  promise->set_exception(error);
}

}  // namespace sim
