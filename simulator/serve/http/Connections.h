// Those who are connected, and who has to go when there are too many.
#pragma once

#include <chrono>
#include <condition_variable>
#include <cstddef>
#include <map>
#include <mutex>

namespace sim {

// Whoever comes always gets a place, so that nobody can lock others out by taking all of them:
// somebody else goes for it, strangers first, and of those the one who has been there longest. Any
// thread.
class Connections {
 public:
  explicit Connections(std::size_t most) : most_(most) {}

  // A stranger. False: even those who had to go are too many, as they are not gone yet.
  bool add(int descriptor);
  // Somebody has to go, for whatever reason: waits until anybody has gone, so long at most.
  void makeRoom(std::chrono::milliseconds patience);
  // It begins another request.
  void beginRequest(int descriptor);
  // It has shown the secret.
  void trust(int descriptor);
  bool isTrusted(int descriptor) const;
  // Closes it; nobody may use it any more.
  void remove(int descriptor);

  // Ends all of them, and waits until they are removed.
  void endAll();

 private:
  using Moment = std::chrono::steady_clock::time_point;
  struct Connection {
    bool isTrusted = false;
    bool hasToGo = false;
    Moment since;  // when its latest request began, or it was made
  };

  std::size_t staying() const;
  void chooseOneToGo();

  const std::size_t most_;
  mutable std::mutex mutex_;
  std::condition_variable changed_;
  std::map<int, Connection> all_;  // by descriptor
};

}  // namespace sim
