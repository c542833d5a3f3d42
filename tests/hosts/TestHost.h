// A phone with every stand-in registered.
#pragma once

#include "objc/Message.h"
#include "objc/Ownership.h"
#include "simulator/foundation/Values.h"
#include "simulator/launch/Frameworks.h"
#include "simulator/mediaremote/AudioSystem.h"
#include "simulator/mediaremote/Player.h"
#include "simulator/standin/Registration.h"
#include "tests/hosts/TestPhone.h"

namespace sim {

class TestHost : public TestPhone {
 protected:
  TestHost() {
    // The players of this process belong to its phone from the start.
    Player::current();
    AudioSystem::current();
  }

  // After the set-up is complete.
  static void boot() {
    registerFrameworks();
    registerCephei();
  }

  static objc::Object sharedInstance(const char* className) {
    return objc::send<objc::Object, "sharedInstance">(objc_getClass(className));
  }

  static void playTracks() {
    Player::current().load(
        {{"A", "The Band", "", nanoseconds(10)}, {"B", "", "", nanoseconds(20)}});
    Player::current().play();
  }

 private:
  objc::AutoreleasePool pool_;
};

}  // namespace sim
