#include "tests/serve/AnotherUser.h"

#include <sys/wait.h>
#include <unistd.h>

namespace sim {

bool canBecomeAnotherUser() {
  return asAnotherUser([] { return 0; }) == 0;
}

pid_t startAsAnotherUser(const std::function<int()>& work) {
  constexpr int notAllowed = 126;
  const pid_t child = fork();
  if (child == 0) _exit(setuid(nobody) == 0 ? work() : notAllowed);
  return child;
}

int asAnotherUser(const std::function<int()>& work) {
  int status = 0;
  waitpid(startAsAnotherUser(work), &status, 0);
  return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
}

}  // namespace sim
