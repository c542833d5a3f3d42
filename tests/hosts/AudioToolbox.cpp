#include "simulator/services/AudioToolbox.h"

#include <dlfcn.h>

#include "tests/hosts/TestHost.h"

namespace sim {
namespace {

using SystemSounds = TestHost;

TEST_F(SystemSounds, AreFoundByName) {
  boot();
  auto* play = reinterpret_cast<void (*)(std::uint32_t)>(
      dlsym(RTLD_DEFAULT, "AudioServicesPlaySystemSound"));
  ASSERT_EQ(play, &AudioServicesPlaySystemSound);
  play(1519);
  EXPECT_EQ(journal(), std::vector<std::string>{"AudioServicesPlaySystemSound(1519)"});
}

}  // namespace
}  // namespace sim
