// A connection that sends any bytes, at any pace.
#pragma once

#include <chrono>
#include <string>

#include "tests/serve/ServedProgram.h"

namespace sim {

class RawConnection {
 public:
  enum class Reads { usually, slowly };

  explicit RawConnection(const ServedProgram& program, Reads how = Reads::usually);
  ~RawConnection();
  RawConnection(RawConnection&& other) noexcept;
  RawConnection& operator=(RawConnection&&) = delete;

  // False when the other side is gone.
  bool send(const std::string& bytes) const;
  // Everything until the other side closes, or until that time has passed.
  std::string readAll(std::chrono::milliseconds patience) const;
  // Reads on until this text has come so often.
  bool reads(const std::string& text, int times) const;
  // Whether the other side has closed; what has been sent before is lost.
  bool isOver() const;

 private:
  int socket_;
};

}  // namespace sim
