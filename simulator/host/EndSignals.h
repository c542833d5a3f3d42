// Ctrl-C and the like, which end the supervisor in order, and its hosts with it.
#pragma once

#include <exception>

namespace sim {

// Thrown where the program is to end for that signal.
class EndSignal : public std::exception {
 public:
  explicit EndSignal(int signal) : number(signal) {}
  const char* what() const noexcept override { return "ended by a signal"; }
  int number;
};

// From its begin on they wait to be read, in this process and not in those that it forks. One at
// a time, made before there are other threads.
class EndSignals {
 public:
  // Throws std::system_error.
  EndSignals();
  ~EndSignals();
  EndSignals(const EndSignals&) = delete;
  EndSignals& operator=(const EndSignals&) = delete;

  // Readable when there is one.
  int descriptor() const { return descriptor_; }
  // Which one it is.
  static int take(int descriptor);

  // Ends this process as the signal does where nobody waits for it.
  [[noreturn]] static void endBy(int signal);

 private:
  int descriptor_;
};

}  // namespace sim
