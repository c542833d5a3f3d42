#include "simulator/serve/Inbox.h"

#include <utility>

#include "simulator/serve/RequestError.h"

namespace sim {

namespace {

RequestError refusal() {
  return {503, "the phone begins anew: ask again"};
}

}  // namespace

nlohmann::json Inbox::ask(Work work) {
  std::future<nlohmann::json> answer;
  {
    const std::lock_guard lock(mutex_);
    if (ends_ || stopped_) throw refusal();
    Entry& entry = entries_.emplace_back(Entry{std::move(work), {}});
    answer = entry.answer.get_future();
    changed_.notify_one();
  }
  return answer.get();
}

void Inbox::tell(std::function<void(ServedPhone&)> work) {
  const std::lock_guard lock(mutex_);
  if (ends_ || stopped_) return;
  entries_.push_back({[work = std::move(work)](ServedPhone& phone) {
                        work(phone);
                        return nlohmann::json();
                      },
                      {}});
  changed_.notify_one();
}

void Inbox::stop() {
  std::deque<Entry> refused;
  const std::lock_guard lock(mutex_);
  stopped_ = true;
  refused.swap(entries_);
  for (Entry& entry : refused) entry.answer.set_exception(std::make_exception_ptr(refusal()));
  changed_.notify_one();
}

void Inbox::waitUntil(std::optional<Moment> moment) {
  std::unique_lock lock(mutex_);
  const auto isNeeded = [this] { return stopped_ || !entries_.empty(); };
  if (moment)
    changed_.wait_until(lock, *moment, isNeeded);
  else
    changed_.wait(lock, isNeeded);
}

bool Inbox::isStopped() const {
  const std::lock_guard lock(mutex_);
  return stopped_;
}

bool Inbox::doNext(ServedPhone& phone) {
  {
    const std::lock_guard lock(mutex_);
    if (entries_.empty()) return false;
    current_ = std::move(entries_.front());
    entries_.pop_front();
  }
  try {
    current_->answer.set_value(current_->work(phone));
  } catch (...) {
    current_->answer.set_exception(std::current_exception());
  }
  current_.reset();
  return true;
}

void Inbox::answerEarly(nlohmann::json answer) {
  const std::lock_guard lock(mutex_);
  ends_ = true;
  if (current_) current_->answer.set_value(std::move(answer));
  for (Entry& entry : entries_) entry.answer.set_exception(std::make_exception_ptr(refusal()));
  entries_.clear();
}

}  // namespace sim
