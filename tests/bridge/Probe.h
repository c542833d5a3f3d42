// A class that counts what happens to its objects.
#pragma once

#include <gtest/gtest.h>

#include <cstddef>
#include <new>
#include <type_traits>

#include "objc/Class.h"

namespace bridge {

struct ProbeView : objc::Object {
  using Object::Object;
  unsigned long retainCount() const { return objc::send<unsigned long, "retainCount">(*this); }
};

// A function with what it has captured. Phones run it, too, where std::function cannot be had: the
// compiler for arm64e leaves its static table of functions unsigned.
class DeallocAction {
 public:
  template <class Function>
  DeallocAction& operator=(Function function) {
    static_assert(std::is_trivially_destructible_v<Function> &&
                  sizeof function <= sizeof captured_);
    new (captured_) Function(function);
    call_ = [](void* captured, ProbeView probe) { (*static_cast<Function*>(captured))(probe); };
    return *this;
  }
  DeallocAction& operator=(std::nullptr_t) {
    call_ = nullptr;
    return *this;
  }
  void operator()(ProbeView probe) {
    if (call_ != nullptr) call_(captured_, probe);
  }

 private:
  alignas(void*) std::byte captured_[4 * sizeof(void*)];
  void (*call_)(void*, ProbeView) = nullptr;
};

struct Probe : objc::Implementation<Probe> {
  static inline int allocations, retains, releases, autoreleases, deallocations;
  // Runs at the beginning of each dealloc.
  static inline DeallocAction onDealloc;

  ~Probe() {
    ++deallocations;
    onDealloc(ProbeView(self()));
  }

  id retain() {
    ++retains;
    return super<id, "retain">();
  }
  void release() {
    ++releases;
    super<void, "release">();
  }
  id autorelease() {
    ++autoreleases;
    return super<id, "autorelease">();
  }
  static id alloc(id cls) {
    ++allocations;
    return objc::sendSuper<id, "alloc">(cls, object_getClass(reinterpret_cast<id>(Probe::cls())));
  }

  static Class registerClass() {
    objc::ClassBuilder<Probe> builder("Probe", "NSObject");
    builder.method<"retain", &Probe::retain>()
        .method<"release", &Probe::release>()
        .method<"autorelease", &Probe::autorelease>();
    Class cls = builder.finish();
    objc::addMethod<"alloc", alloc>(object_getClass(reinterpret_cast<id>(cls)));
    return cls;
  }
};

using Owner = objc::Strong<ProbeView>;

// Every test starts with all counts at zero, and leaves no probe behind.
struct ProbeTest : testing::Test {
  static void SetUpTestSuite() {
    if (Probe::cls() == nullptr) Probe::registerClass();
    ASSERT_TRUE(Probe::cls());
  }
  ProbeTest() { zero(); }
  void SetUp() override { forget(); }
  // After the fixtures' members are gone.
  ~ProbeTest() override {
    Probe::onDealloc = nullptr;
    EXPECT_EQ(allocated_ + Probe::allocations, deallocated_ + Probe::deallocations);
  }

  static Owner make() { return Probe::make<ProbeView>(); }
  void forget() {
    allocated_ += Probe::allocations, deallocated_ += Probe::deallocations;
    zero();
  }

 private:
  static void zero() {
    Probe::allocations = Probe::retains = Probe::releases = 0;
    Probe::autoreleases = Probe::deallocations = 0;
  }

  int allocated_ = 0;
  int deallocated_ = 0;
};

}  // namespace bridge
