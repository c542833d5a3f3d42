// What extensions look for and no phone has: most likely misspelt.
#pragma once

#include <set>
#include <string>
#include <utility>

namespace sim {

// As long as it lives, which is while extensions load, it notes the classes that are looked up and
// not found, and the methods that are to be hooked and do not exist. At its end it says on standard
// error which of them are known nowhere: neither now nor among what this phone was said to lack.
// A phone leaves such a hook out in silence, and so does this one. It also tells of classes whose
// library no extension names.
class AbsentNames {
 public:
  AbsentNames();
  ~AbsentNames();
  AbsentNames(const AbsentNames&) = delete;
  AbsentNames& operator=(const AbsentNames&) = delete;
};

}  // namespace sim
