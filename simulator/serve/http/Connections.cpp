#include "simulator/serve/http/Connections.h"

#include <sys/socket.h>
#include <unistd.h>

#include <algorithm>
#include <tuple>
#include <vector>

namespace sim {

using std::chrono::steady_clock;

namespace {

constexpr std::chrono::seconds leavingPatience{1};

}  // namespace

std::size_t Connections::staying() const {
  return std::size_t(std::count_if(all_.begin(), all_.end(),
                                   [](const auto& each) { return !each.second.hasToGo; }));
}

// Its thread notices that the socket is shut, and removes it.
void Connections::chooseOneToGo() {
  using Entry = std::pair<const int, Connection>;
  std::vector<Entry*> candidates;
  for (const bool isTrusted : {false, true}) {
    for (Entry& each : all_)
      if (!each.second.hasToGo && each.second.isTrusted == isTrusted) candidates.push_back(&each);
    if (!candidates.empty()) break;
  }
  if (candidates.empty()) return;
  std::map<Client, long> counts;
  for (const Entry* each : candidates) ++counts[each->second.client];
  const auto goesFirst = [&counts](const Entry* one, const Entry* other) {
    const auto key = [&counts](const Entry* each) {
      return std::tuple(-counts[each->second.client], each->second.since);
    };
    return key(one) < key(other);
  };
  Entry& chosen = **std::min_element(candidates.begin(), candidates.end(), goesFirst);
  chosen.second.hasToGo = true;
  shutdown(chosen.first, SHUT_RDWR);
}

bool Connections::add(int descriptor, Client client) {
  std::unique_lock lock(mutex_);
  if (!changed_.wait_for(lock, leavingPatience, [this] { return all_.size() < 2 * most_; }))
    return false;
  if (staying() >= most_) chooseOneToGo();
  all_[descriptor] = {client, steady_clock::now()};
  return true;
}

void Connections::makeRoom(std::chrono::milliseconds patience) {
  std::unique_lock lock(mutex_);
  chooseOneToGo();
  changed_.wait_for(lock, patience);
}

void Connections::trust(int descriptor) {
  const std::lock_guard lock(mutex_);
  const auto found = all_.find(descriptor);
  if (found == all_.end()) return;
  found->second.isTrusted = true;
  found->second.since = steady_clock::now();
}

bool Connections::isTrusted(int descriptor) const {
  const std::lock_guard lock(mutex_);
  const auto found = all_.find(descriptor);
  return found != all_.end() && found->second.isTrusted;
}

void Connections::remove(int descriptor) {
  const std::lock_guard lock(mutex_);
  // Forgotten before its number can be that of another connection.
  all_.erase(descriptor);
  close(descriptor);
  changed_.notify_all();
}

void Connections::endAll() {
  std::unique_lock lock(mutex_);
  for (const auto& [descriptor, connection] : all_) shutdown(descriptor, SHUT_RDWR);
  changed_.wait(lock, [this] { return all_.empty(); });
}

}  // namespace sim
