#include "simulator/serve/http/Connections.h"

#include <sys/socket.h>
#include <unistd.h>

#include <algorithm>
#include <tuple>

namespace sim {

using std::chrono::steady_clock;

std::size_t Connections::staying() const {
  return std::size_t(std::count_if(all_.begin(), all_.end(),
                                   [](const auto& each) { return !each.second.hasToGo; }));
}

// Its thread notices that the socket is shut, and removes it.
void Connections::chooseOneToGo() {
  const auto earlier = [](const auto& one, const auto& other) {
    const auto key = [](const Connection& each) {
      return std::tuple(each.hasToGo, each.isTrusted, each.since);
    };
    return key(one.second) < key(other.second);
  };
  auto& [descriptor, connection] = *std::min_element(all_.begin(), all_.end(), earlier);
  connection.hasToGo = true;
  shutdown(descriptor, SHUT_RDWR);
}

void Connections::makeRoom(std::chrono::milliseconds patience) {
  std::unique_lock lock(mutex_);
  if (staying() > 0) chooseOneToGo();
  changed_.wait_for(lock, patience);
}

bool Connections::add(int descriptor) {
  const std::lock_guard lock(mutex_);
  if (all_.size() >= 2 * most_) return false;
  if (staying() >= most_) chooseOneToGo();
  all_[descriptor] = {.since = steady_clock::now()};
  return true;
}

void Connections::beginRequest(int descriptor) {
  const std::lock_guard lock(mutex_);
  if (const auto found = all_.find(descriptor); found != all_.end() && found->second.isTrusted)
    found->second.since = steady_clock::now();
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
