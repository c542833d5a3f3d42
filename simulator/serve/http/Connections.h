// Those who are connected, and who has to go when there are too many.
#pragma once

#include <sys/types.h>

#include <chrono>
#include <condition_variable>
#include <cstddef>
#include <map>
#include <mutex>
#include <optional>

namespace sim {

// Whoever comes always gets a place, so that nobody can lock others out by taking all of them:
// somebody else goes for it. Strangers go first, and of those one of the client who has the most,
// and of these the oldest. Any thread.
class Connections {
 public:
  // A user of this machine; all of whom nothing is known are one.
  using Client = std::optional<uid_t>;

  explicit Connections(std::size_t most) : most_(most) {}

  // A stranger. Waits a moment while those who have to go are not gone yet; false when they do not.
  bool add(int descriptor, Client client);
  // Somebody has to go, for whatever reason: waits until anybody has gone, so long at most.
  void makeRoom(std::chrono::milliseconds patience);
  // It has shown the secret with the request that begins now.
  void trust(int descriptor);
  bool isTrusted(int descriptor) const;
  // Closes it; nobody may use it any more.
  void remove(int descriptor);

  // Ends all of them, and waits until they are removed.
  void endAll();

 private:
  using Moment = std::chrono::steady_clock::time_point;
  struct Connection {
    Client client;
    Moment since;  // when it was made, or last shown the secret
    bool isTrusted = false;
    bool hasToGo = false;
  };

  std::size_t staying() const;
  void chooseOneToGo();

  const std::size_t most_;
  mutable std::mutex mutex_;
  std::condition_variable changed_;
  std::map<int, Connection> all_;  // by descriptor
};

}  // namespace sim
