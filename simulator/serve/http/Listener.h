// The socket that pages connect to, on this machine's own loopback address only.
#pragma once

#include <optional>

namespace sim {

// A listening socket that survives exec(): while the phone's process begins anew, pages that
// connect wait in its queue.
class Listener {
 public:
  // Without a port, the first free one from the usual one on. Throws std::system_error when the
  // port, or every port tried, is in use.
  static Listener open(std::optional<int> port);
  // Takes over the descriptor of an open one.
  static Listener adopt(int descriptor) { return Listener(descriptor); }

  Listener(Listener&& other) noexcept;
  Listener& operator=(Listener&&) = delete;
  ~Listener();

  int descriptor() const { return descriptor_; }
  int port() const;

 private:
  explicit Listener(int descriptor) : descriptor_(descriptor) {}

  int descriptor_;
};

}  // namespace sim
