// resolveInstanceMethod: and resolveClassMethod:: a class may bring a method when it is asked for.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "TestClasses.h"

using namespace testing_runtime;

namespace {

// What the resolvers were asked for, "+" in front of class methods.
std::vector<std::string> asked;

int seven(id, SEL) {
  return 7;
}

bool bring(Class cls, SEL selector) {
  if (selector != sel("late")) return false;
  return class_addMethod(cls, selector, asImplementation(&seven), "i@:");
}
bool resolveInstance(id self, SEL, SEL selector) {
  asked.emplace_back(sel_getName(selector));
  return bring(reinterpret_cast<Class>(self), selector);
}
bool resolveClass(id self, SEL, SEL selector) {
  asked.push_back(std::string("+") + sel_getName(selector));
  return bring(object_getClass(self), selector);
}

class MethodResolution : public testing::Test {
 protected:
  void SetUp() override {
    addClassMethod(cls_, "resolveInstanceMethod:", &resolveInstance, "B@::");
    addClassMethod(cls_, "resolveClassMethod:", &resolveClass, "B@::");
    asked.clear();
  }

  Class cls_ = makeClass("Resolving");
};

TEST_F(MethodResolution, bringsAMethodForAMessage) {
  id object = make(cls_);
  asked.clear();
  EXPECT_EQ(send<int>(object, "late"), 7);
  EXPECT_EQ(send<int>(object, "late"), 7);
  EXPECT_EQ(asked, std::vector<std::string>{"late"});
  objc_release(object);
}

TEST_F(MethodResolution, bringsAMethodForAMessageToTheClass) {
  EXPECT_EQ(send<int>(cls_, "late"), 7);
  EXPECT_EQ(asked, std::vector<std::string>{"+late"});
}

TEST_F(MethodResolution, isNotAskedForWhatIsThere) {
  addMethod(cls_, "late", &seven);
  id object = make(cls_);
  EXPECT_EQ(send<int>(object, "late"), 7);
  EXPECT_TRUE(asked.empty());
  objc_release(object);
}

TEST_F(MethodResolution, isInherited) {
  Class derived = makeClass("Derived", cls_);
  id object = make(derived);
  EXPECT_EQ(send<int>(object, "late"), 7);
  EXPECT_FALSE(class_respondsToSelector(rootClass(), sel("late")));
  objc_release(object);
}

TEST_F(MethodResolution, answersAMessageToSuper) {
  Class derived = makeClass("Derived", cls_);
  id object = make(derived);
  objc_super toSuper{object, derived};
  const auto sender = reinterpret_cast<int (*)(objc_super*, SEL)>(&objc_msgSendSuper2);
  EXPECT_EQ(sender(&toSuper, sel("late")), 7);
  objc_release(object);
}

TEST_F(MethodResolution, isAskedByEveryQuestionForAMethod) {
  EXPECT_TRUE(class_respondsToSelector(cls_, sel("late")));
  const std::vector<bool (*)(Class)> questions = {
      [](Class cls) { return class_respondsToSelector(cls, sel("late")); },
      [](Class cls) { return class_getInstanceMethod(cls, sel("late")) != nullptr; },
      [](Class cls) {
        return class_getMethodImplementation(cls, sel("late")) == asImplementation(&seven);
      },
      [](Class cls) { return send<bool>(cls, "instancesRespondToSelector:", sel("late")); },
      [](Class cls) {
        id object = make(cls);
        const bool responds = send<bool>(object, "respondsToSelector:", sel("late"));
        objc_release(object);
        return responds;
      },
  };
  for (std::size_t i = 0; i < questions.size(); ++i) {
    Class fresh = makeClass("Fresh", makeClass("Base"));
    addClassMethod(fresh, "resolveInstanceMethod:", &resolveInstance, "B@::");
    EXPECT_TRUE(questions[i](fresh)) << i;
  }
}

TEST_F(MethodResolution, isAskedForClassMethodsToo) {
  EXPECT_NE(class_getClassMethod(cls_, sel("late")), nullptr);
  EXPECT_EQ(asked, std::vector<std::string>{"+late"});
  Class other = makeClass("Other");
  addClassMethod(other, "resolveClassMethod:", &resolveClass, "B@::");
  EXPECT_TRUE((send<bool>(other, "respondsToSelector:", sel("late"))));
  EXPECT_FALSE((send<bool>(other, "instancesRespondToSelector:", sel("late"))));
}

TEST_F(MethodResolution, isAskedOnceForWhatItDoesNotBring) {
  EXPECT_FALSE(class_respondsToSelector(cls_, sel("never")));
  EXPECT_FALSE(class_respondsToSelector(cls_, sel("never")));
  EXPECT_EQ(class_getInstanceMethod(cls_, sel("never")), nullptr);
  EXPECT_EQ(asked, std::vector<std::string>{"never"});
}

TEST_F(MethodResolution, isAskedAgainAfterTheClassOrASuperclassGotAMethod) {
  Class derived = makeClass("Derived", cls_);
  EXPECT_FALSE(class_respondsToSelector(derived, sel("never")));
  addMethod(cls_, "other", &seven);
  EXPECT_FALSE(class_respondsToSelector(derived, sel("never")));
  EXPECT_EQ(asked, (std::vector<std::string>{"never", "never"}));
}

TEST_F(MethodResolution, aMethodAddedAfterANoIsFound) {
  id object = make(cls_);
  EXPECT_FALSE((send<bool>(object, "respondsToSelector:", sel("never"))));
  addMethod(cls_, "never", &seven);
  EXPECT_TRUE((send<bool>(object, "respondsToSelector:", sel("never"))));
  EXPECT_EQ(send<int>(object, "never"), 7);
  objc_release(object);
}

TEST_F(MethodResolution, aYesWithoutAMethodIsNone) {
  Class liar = makeClass("Liar");
  addClassMethod(
      liar, "resolveInstanceMethod:", +[](id, SEL, SEL) { return true; }, "B@::");
  EXPECT_FALSE(class_respondsToSelector(liar, sel("late")));
}

TEST_F(MethodResolution, ofTheRootClassSaysNo) {
  EXPECT_FALSE((send<bool>(rootClass(), "resolveInstanceMethod:", sel("late"))));
  EXPECT_FALSE((send<bool>(rootClass(), "resolveClassMethod:", sel("late"))));
}

std::vector<id> askedAsInstances;

// As the root class says it of all: a class object is an instance of its metaclass.
TEST_F(MethodResolution, forAClassMethodAsksTheMetaclassLast) {
  const Class metaclass = object_getClass(reinterpret_cast<id>(makeClass("Plain")));
  const Class rootMetaclass = object_getClass(reinterpret_cast<id>(rootClass()));
  const IMP before = class_replaceMethod(rootMetaclass, sel("resolveInstanceMethod:"),
                                         asImplementation(+[](id self, SEL, SEL) {
                                           askedAsInstances.push_back(self);
                                           return false;
                                         }),
                                         "B@::");
  EXPECT_FALSE(class_respondsToSelector(metaclass, sel("late")));
  EXPECT_TRUE(class_respondsToSelector(object_getClass(reinterpret_cast<id>(cls_)), sel("late")));
  class_replaceMethod(rootMetaclass, sel("resolveInstanceMethod:"), before, "B@::");
  EXPECT_EQ(askedAsInstances, std::vector<id>{reinterpret_cast<id>(metaclass)});
}

TEST_F(MethodResolution, aRootClassMayHaveNoResolver) {
  Class bare = makeClass("Bare", nullptr);
  EXPECT_FALSE(class_respondsToSelector(bare, sel("late")));
  EXPECT_EQ(class_getClassMethod(bare, sel("late")), nullptr);
}

int initializations;

TEST_F(MethodResolution, aClassThatIsBeingMadeIsNotAsked) {
  initializations = 0;
  Class cls = objc_allocateClassPair(cls_, "ResolvingUnfinished", 0);
  EXPECT_EQ(class_getInstanceMethod(cls, sel("late")), nullptr);
  addClassMethod(
      cls, "initialize", +[](id, SEL) { ++initializations; });
  EXPECT_EQ(initializations, 0);
  EXPECT_TRUE(asked.empty());
  objc_registerClassPair(cls);
  EXPECT_NE(class_getInstanceMethod(cls, sel("late")), nullptr);
  EXPECT_EQ(initializations, 1);
}

}  // namespace
