// Where extensions sign pointers, so does the runtime: what it hands out is signed and what it is
// given must be. Whoever guesses has one chance in 128 here, so wrong pointers come in numbers.
#include "simulator/runtime/Signing.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <memory>
#include <vector>

#include "objc/Block.h"
#include "objc/Class.h"
#include "simulator/macho/Entries.h"

namespace {

using namespace sim::runtime;
namespace entries = sim::macho::entries;

class Begin : public ::testing::Environment {
 public:
  void SetUp() override {
    ASSERT_TRUE(processorSigns());
    beginSigning();
  }
};
[[maybe_unused]] const auto* begin = ::testing::AddGlobalTestEnvironment(new Begin);

constexpr int severalTimes = 8;

std::uint64_t bits(const void* pointer) {
  return reinterpret_cast<std::uint64_t>(pointer);
}

// As an extension's code does it: the function that a signed pointer calls, or a crash.
template <class Function>
Function authenticated(Function function) {
  return reinterpret_cast<Function>(
      authenticatedFunction(reinterpret_cast<void*>(function), "what was handed out"));
}
template <class Function>
IMP signedImplementation(Function function) {
  return reinterpret_cast<IMP>(signedFunction(reinterpret_cast<void*>(function)));
}

Class makeClass(const std::string& name) {
  Class cls = objc_allocateClassPair(objc_getClass("NSObject"), name.c_str(), 0);
  objc_registerClassPair(cls);
  return cls;
}

long seven(id, SEL) {
  return 7;
}
long eight(id, SEL) {
  return 8;
}

long answer(id object, SEL selector) {
  return objc::Sender<long>(reinterpret_cast<objc::Sender<long>>(&objc_msgSend))(object, selector);
}

TEST(Signing, isOfTheIsaOfEachObject) {
  Class cls = makeClass("SignedIsa");
  int plain = 0;
  for (int count = 0; count < severalTimes; ++count) {
    id object = class_createInstance(cls, 0);
    EXPECT_EQ(object_getClass(object), cls);
    plain += object->isa == cls ? 1 : 0;
    objc_release(object);
  }
  EXPECT_LT(plain, severalTimes / 2);
  EXPECT_NE(bits(reinterpret_cast<id>(cls)->isa), bits(objc_getMetaClass("SignedIsa")));
  EXPECT_EQ(object_getClass(reinterpret_cast<id>(objc_getClass("NSObject"))),
            objc_getMetaClass("NSObject"));
}

TEST(SigningDeathTest, isAskedOfEachIsa) {
  Class cls = makeClass("UnsignedIsa");
  const SEL hash = sel_registerName("hash");
  const auto each = [&](void (*use)(id, SEL)) {
    for (int count = 0; count < severalTimes; ++count) {
      id object = class_createInstance(cls, 0);
      object->isa = cls;
      use(object, hash);
    }
  };
  EXPECT_DEATH(each([](id object, SEL) { object_getClass(object); }),
               "is not signed as it must be");
  EXPECT_DEATH(each([](id object, SEL name) { answer(object, name); }),
               "is not signed as it must be");
  // Signed, but for another place.
  EXPECT_DEATH(
      {
        for (int count = 0; count < severalTimes; ++count) {
          id object = class_createInstance(cls, 0);
          object->isa = class_createInstance(cls, 0)->isa;
          answer(object, hash);
        }
      },
      "is not signed as it must be");
}

TEST(Signing, isOfBlocks) {
  int sum = 0;
  const auto add = objc::block<void(int)>([&sum](int more) { sum += more; });
  add.get()(3);
  const objc::Strong<objc::Block<void(int)>> again = objc::copy(add.get());
  again.get()(4);
  EXPECT_EQ(sum, 7);
  EXPECT_EQ(object_getClass(add.get().get()), objc_getClass("__NSMallocBlock__"));
}

TEST(Signing, isOfBlocksThatOwn) {
  Class cls = makeClass("SignedCapture");
  objc::Strong<objc::Object> owned = objc::adopt(objc::Object(class_createInstance(cls, 0)));
  id object = owned.get().get();
  const auto give = objc::block<id()>([owned = std::move(owned)] { return owned.get().get(); });
  EXPECT_EQ(give.get()(), object);
}

TEST(SigningDeathTest, isAskedOfBlocks) {
  using Literal = objc::BlockLiteral<void(), void (*)()>;
  const auto copyWith = [](void (*change)(objc::BlockHeader&)) {
    // All at once: in one place each would have the same signature.
    std::vector<std::unique_ptr<Literal>> literals;
    for (int count = 0; count < severalTimes; ++count) {
      Literal& literal = *literals.emplace_back(std::make_unique<Literal>([] {}));
      change(literal.header);
      _Block_copy(&literal);
    }
  };
  const auto plain = [](objc::BlockHeader& header) {
    header.invoke = authenticatedFunction(header.invoke, "the sample", &header.invoke);
  };
  const auto ofNoPlace = [](objc::BlockHeader& header) {
    header.invoke =
        signedFunction(authenticatedFunction(header.invoke, "the sample", &header.invoke));
  };
  copyWith([](objc::BlockHeader&) {});
  EXPECT_DEATH(copyWith([](objc::BlockHeader& header) { header.isa = _NSConcreteStackBlock; }),
               "the isa of an object or a block is not signed as it must be");
  EXPECT_DEATH(copyWith(plain), "a block's function is not signed as it must be");
  EXPECT_DEATH(copyWith(ofNoPlace), "a block's function is not signed as it must be");
}

TEST(Signing, reachesBlocksAsImplementations) {
  Class cls = makeClass("SignedTrampoline");
  const auto block = objc::block<long(id, long)>([](id, long number) { return number + 1; });
  const SEL selector = sel_registerName("next:");
  class_addMethod(cls, selector, imp_implementationWithBlock(block.get().get()), "q@:q");
  id object = class_createInstance(cls, 0);
  EXPECT_EQ((objc::send<long, "next:">(object, 41L)), 42);
  objc_release(object);
}

TEST(Signing, isOfImplementations) {
  Class cls = makeClass("SignedMethod");
  const SEL selector = sel_registerName("number");
  EXPECT_EQ(entries::class_addMethod(cls, selector, signedImplementation(seven), "q@:"), 1);
  EXPECT_EQ(entries::class_addMethod(cls, selector, signedImplementation(seven), "q@:"), 0);
  id object = class_createInstance(cls, 0);
  EXPECT_EQ(answer(object, selector), 7);
  const Method method = class_getInstanceMethod(cls, selector);
  EXPECT_EQ(bits(reinterpret_cast<void*>(authenticated(entries::method_getImplementation(method)))),
            bits(reinterpret_cast<void*>(&seven)));
  const IMP replaced = entries::class_replaceMethod(cls, selector, signedImplementation(eight), "");
  EXPECT_EQ(authenticated(replaced), reinterpret_cast<IMP>(&seven));
  EXPECT_EQ(answer(object, selector), 8);
  const IMP before = entries::method_setImplementation(method, signedImplementation(seven));
  EXPECT_EQ(authenticated(before), reinterpret_cast<IMP>(&eight));
  EXPECT_EQ(authenticated(entries::class_getMethodImplementation(cls, selector)),
            reinterpret_cast<IMP>(&seven));
  objc_release(object);
}

TEST(SigningDeathTest, isAskedOfImplementations) {
  const auto eachName = [](void (*add)(Class, SEL)) {
    Class cls = makeClass("UnsignedMethod");
    // One address has one signature, so the functions differ, too.
    add(cls, sel_registerName("number"));
  };
  EXPECT_DEATH(eachName([](Class cls, SEL name) {
                 for (IMP each : {reinterpret_cast<IMP>(&seven), reinterpret_cast<IMP>(&eight),
                                  reinterpret_cast<IMP>(&makeClass), reinterpret_cast<IMP>(&bits),
                                  reinterpret_cast<IMP>(&answer)})
                   entries::class_addMethod(cls, name, each, "q@:");
               }),
               "the implementation of UnsignedMethod number is not signed as it must be");
}

TEST(Signing, isOfWhatHooksReplaced) {
  Class cls = makeClass("SignedHook");
  const SEL selector = sel_registerName("number");
  class_addMethod(cls, selector, reinterpret_cast<IMP>(&seven), "q@:");
  IMP previous = nullptr;
  entries::MSHookMessageEx(cls, selector, signedImplementation(eight), &previous);
  EXPECT_EQ(authenticated(previous), reinterpret_cast<IMP>(&seven));
  IMP untouched = reinterpret_cast<IMP>(&seven);
  entries::MSHookMessageEx(cls, sel_registerName("nobodyHasThis"), signedImplementation(eight),
                           &untouched);
  EXPECT_EQ(untouched, reinterpret_cast<IMP>(&seven));
}

int countOfCalls = 0;
void countCall(void*) {
  ++countOfCalls;
}

TEST(Signing, isOfFunctionsForQueues) {
  dispatch_once_t predicate = 0;
  const auto function =
      reinterpret_cast<dispatch_function_t>(signedFunction(reinterpret_cast<void*>(&countCall)));
  entries::dispatch_once_f(&predicate, nullptr, function);
  entries::dispatch_once_f(&predicate, nullptr, function);
  EXPECT_EQ(countOfCalls, 1);
}

TEST(Signing, isOfFunctionsFoundByName) {
  void* const everywhere = reinterpret_cast<void*>(-2);
  void* found = entries::dlsym(everywhere, "objc_getClass");
  EXPECT_EQ(authenticated(found), reinterpret_cast<void*>(&objc_getClass));
  // Variables are not code.
  EXPECT_EQ(entries::dlsym(everywhere, "_dispatch_main_q"), &_dispatch_main_q);
  EXPECT_EQ(entries::dlsym(everywhere, "nobodyHasThis"), nullptr);
  EXPECT_EQ(entries::dlsym(nullptr, "objc_getClass"), nullptr);
}

// Stripping a signature would do for what is signed well, so each place is given what is not.
TEST(SigningDeathTest, isAskedWhereverFunctionsAreTaken) {
  using Take = void (*)(Class, SEL, void*);
  const auto takeEach = [](Take take) {
    Class cls = makeClass("TakesUnsigned");
    const SEL name = sel_registerName("number");
    class_addMethod(cls, name, reinterpret_cast<IMP>(&seven), "q@:");
    for (void* each : {reinterpret_cast<void*>(&seven), reinterpret_cast<void*>(&eight),
                       reinterpret_cast<void*>(&makeClass), reinterpret_cast<void*>(&bits),
                       reinterpret_cast<void*>(&answer)})
      take(cls, name, each);
    // Whatever was taken is not to be run: a test that fails does not crash.
    std::_Exit(0);
  };
  const char* const refused = "is not signed as it must be";
  EXPECT_DEATH(takeEach([](Class cls, SEL name, void* each) {
                 entries::class_replaceMethod(cls, name, reinterpret_cast<IMP>(each), "q@:");
               }),
               refused);
  EXPECT_DEATH(takeEach([](Class cls, SEL name, void* each) {
                 entries::method_setImplementation(class_getInstanceMethod(cls, name),
                                                   reinterpret_cast<IMP>(each));
               }),
               refused);
  EXPECT_DEATH(takeEach([](Class cls, SEL name, void* each) {
                 IMP previous = nullptr;
                 entries::MSHookMessageEx(cls, name, reinterpret_cast<IMP>(each), &previous);
               }),
               refused);
  EXPECT_DEATH(takeEach([](Class, SEL, void* each) {
                 dispatch_once_t predicate = ~dispatch_once_t{0};  // done
                 entries::dispatch_once_f(&predicate, nullptr,
                                          reinterpret_cast<dispatch_function_t>(each));
               }),
               refused);
  EXPECT_DEATH(takeEach([](Class, SEL, void* each) {
                 entries::dispatch_async_f(&_dispatch_main_q, nullptr,
                                           reinterpret_cast<dispatch_function_t>(each));
               }),
               refused);
  EXPECT_DEATH(takeEach([](Class, SEL, void* each) {
                 entries::dispatch_after_f(DISPATCH_TIME_FOREVER, &_dispatch_main_q, nullptr,
                                           reinterpret_cast<dispatch_function_t>(each));
               }),
               refused);
}

struct Owning {
  objc::Strong<objc::Object> owned;
  void operator()() const {}
};

TEST(SigningDeathTest, isAskedOfTheHelpersOfBlocks) {
  using Literal = objc::BlockLiteral<void(), Owning>;
  const auto useWith = [](void (*change)(Literal & literal)) {
    std::vector<std::unique_ptr<Literal>> literals;
    for (int count = 0; count < severalTimes; ++count) {
      change(*literals.emplace_back(std::make_unique<Literal>(Owning{})));
    }
    std::_Exit(0);
  };
  EXPECT_DEATH(useWith([](Literal& literal) {
                 void*& helper = literal.descriptor.copy;
                 helper = authenticatedFunction(helper, "the sample", &helper);
                 _Block_copy(&literal);
               }),
               "a block's copy helper is not signed as it must be");
  EXPECT_DEATH(useWith([](Literal& literal) {
                 auto* copied = static_cast<Literal*>(_Block_copy(&literal));
                 void*& helper = copied->descriptor.dispose;
                 helper = authenticatedFunction(helper, "the sample", &helper);
                 _Block_release(copied);
               }),
               "a block's dispose helper is not signed as it must be");
}

}  // namespace
