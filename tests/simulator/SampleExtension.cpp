// An extension for the tests of the script language: a class with methods of every type, C
// functions and variables.
#include "objc/Block.h"
#include "objc/Class.h"
#include "objc/Ownership.h"

extern "C" void dispatch_async(struct dispatch_queue_s* queue, id block);
extern "C" struct dispatch_queue_s _dispatch_main_q;

struct Point {
  double x, y;
};
struct Rect {
  Point origin;
  double width, height;
};
struct Mixed {
  bool flag;
  float ratio;
  short count;
};
template <>
struct objc::StructEncoding<Point> {
  static constexpr auto value = FixedString("{CGPoint=dd}");
};
template <>
struct objc::StructEncoding<Rect> {
  static constexpr auto value = FixedString("{CGRect={CGPoint=dd}{CGSize=dd}}");
};
template <>
struct objc::StructEncoding<Mixed> {
  static constexpr auto value = FixedString("{Mixed=Bfs}");
};

namespace {

template <class T>
T same(id, T value) {
  return value;
}

struct Sample : objc::Implementation<Sample> {
  objc::Strong<objc::Object> title;
  long count;
  bool isOn;

  void addLater() {
    auto later = objc::block<void()>(
        [kept = objc::retain(objc::Object(self()))] { ++of(kept.get()).count; });
    dispatch_async(&_dispatch_main_q, later.get().get());
  }

  static id shared() {
    static id only = Sample::make().detach().get();
    return only;
  }

  static void registerClass();
};

double sum(id, signed char a, short b, int c, long d, float e, double f) {
  return a + b + c + double(d) + double(e) + f;
}
const char* cString(id) {
  return "a \"C\" string";
}
Rect wider(id, Rect rect, double by) {
  rect.width += by;
  return rect;
}

void Sample::registerClass() {
  objc::ClassBuilder<Sample>("Sample", "NSObject")
      .property<"title", &Sample::title>()
      .property<"count", &Sample::count>()
      .property<"isOn", &Sample::isOn>()
      .classMethod<"shared", &Sample::shared>()
      .method<"addLater", &Sample::addLater>()
      .method<"sameChar:", &same<signed char>>()
      .method<"sameUnsignedChar:", &same<unsigned char>>()
      .method<"sameShort:", &same<short>>()
      .method<"sameUnsignedShort:", &same<unsigned short>>()
      .method<"sameInt:", &same<int>>()
      .method<"sameUnsignedInt:", &same<unsigned int>>()
      .method<"sameLong:", &same<long>>()
      .method<"sameUnsignedLong:", &same<unsigned long>>()
      .method<"sameFloat:", &same<float>>()
      .method<"sameDouble:", &same<double>>()
      .method<"sameBool:", &same<bool>>()
      .method<"sameObject:", &same<objc::Object>>()
      .method<"sameClass:", &same<Class>>()
      .method<"sameSelector:", &same<SEL>>()
      .method<"sameCString:", &same<const char*>>()
      .method<"samePointer:", &same<void*>>()
      .method<"samePoint:", &same<Point>>()
      .method<"sameRect:", &same<Rect>>()
      .method<"sameMixed:", &same<Mixed>>()
      .method<"sum:b:c:d:e:f:", &sum>()
      .method<"cString", &cString>()
      .method<"wider:by:", &wider>()
      .finish();
}

[[gnu::constructor]] void load() {
  Sample::registerClass();
}

}  // namespace

extern "C" {
[[gnu::visibility("default")]] bool sampleFlag = true;
[[gnu::visibility("default")]] double sampleRatio = 0.1;
[[gnu::visibility("default")]] int sampleSum(int left, int right) {
  return left + right;
}
[[gnu::visibility("default")]] id sampleShared() {
  return Sample::shared();
}
}
