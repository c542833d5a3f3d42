// A class with methods that give and take one type, registered once for each type.
#pragma once

#include <string>
#include <string_view>

#include "objc/Class.h"
#include "tests/bridge/SampleTypes.h"

namespace bridge {

// Without the library's own code for texts, which phones' slices do not have.
template <class T>
std::string classNameFor(const char* role) {
  const std::string_view parts[] = {role, " of ", __PRETTY_FUNCTION__};
  std::string name;
  for (const std::string_view part : parts)
    for (const char letter : part) name.push_back(letter);
  return name;
}

template <class T>
struct Giver : objc::Implementation<Giver<T>> {
  T value() { return sample<T>(); }
  T echo(T value) { return value; }
  static T classValue() { return sample<T>(); }
  // More arguments than registers, so that some are passed on the stack.
  T last(long, double, long, double, long, double, T value) { return value; }

  // Several suites want it; they may run in one process.
  static Class registerClass() {
    static const Class registered = makeClass();
    return registered;
  }

 private:
  static Class makeClass() {
    return objc::ClassBuilder<Giver>(classNameFor<T>("Giver").c_str(), "NSObject")
        .template method<"value", &Giver::value>()
        .template method<"echo:", &Giver::echo>()
        .template method<"one:two:three:four:five:six:last:", &Giver::last>()
        .template classMethod<"value", &Giver::classValue>()
        .finish();
  }
};

}  // namespace bridge
