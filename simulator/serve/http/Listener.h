// The socket that pages connect to, on this machine's own loopback address only.
#pragma once

#include <optional>

namespace sim {

class Listener {
 public:
  // Without a port, the first free one from the usual one on. Throws std::system_error when the
  // port, or every port tried, is in use.
  static Listener open(std::optional<int> port);
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
