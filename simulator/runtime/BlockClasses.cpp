// The classes of blocks. Their storage is the symbols that compilers store as a block's isa.
#include "simulator/runtime/AutoreleasePool.h"
#include "simulator/runtime/Blocks.h"
#include "simulator/runtime/Class.h"
#include "simulator/runtime/ClassRegistry.h"
#include "simulator/runtime/MethodCache.h"

// The third word is objc_class::cache. It is there from the start, so that a message to a block
// reaches the lookup, and with it the bootstrap, even from the first static initialiser.
alignas(16) void* _NSConcreteStackBlock[32] = {nullptr, nullptr, &sim::runtime::emptyMethodCache};
alignas(16) void* _NSConcreteGlobalBlock[32] = {nullptr, nullptr, &sim::runtime::emptyMethodCache};
alignas(16) void* _NSConcreteMallocBlock[32] = {nullptr, nullptr, &sim::runtime::emptyMethodCache};

namespace sim::runtime {
namespace {

id copyBlock(id self, SEL) {
  return static_cast<id>(_Block_copy(self));
}
id copyBlockWithZone(id self, SEL, void*) {
  return static_cast<id>(_Block_copy(self));
}
void releaseBlock(id self, SEL) {
  _Block_release(self);
}
id autoreleaseBlock(id self, SEL) {
  return addToAutoreleasePool(self);
}
std::size_t retainCountOfBlock(id self, SEL) {
  return blockRetainCount(self);
}

template <class Function>
void add(Class cls, const char* name, Function* function, const char* types) {
  class_addMethod(cls, sel_registerName(name), reinterpret_cast<IMP>(function), types);
}

void registerConcreteClass(void** symbol, Class superclass, const char* name) {
  auto* cls = reinterpret_cast<Class>(symbol);
  constructClassPair(cls, superclass, name, 0);
  objc_registerClassPair(cls);
}

}  // namespace

void registerBlockClasses() {
  Class block = objc_allocateClassPair(objc_getClass("NSObject"), "NSBlock", 0);
  block->flags.fetch_or(ClassFlag::blockClass);
  add(block, "copy", &copyBlock, "@@:");
  add(block, "copyWithZone:", &copyBlockWithZone, "@@:^{_NSZone=}");
  add(block, "retain", &copyBlock, "@@:");
  add(block, "release", &releaseBlock, "v@:");
  add(block, "autorelease", &autoreleaseBlock, "@@:");
  add(block, "retainCount", &retainCountOfBlock, "Q@:");
  objc_registerClassPair(block);
  registerConcreteClass(_NSConcreteStackBlock, block, "__NSStackBlock__");
  registerConcreteClass(_NSConcreteGlobalBlock, block, "__NSGlobalBlock__");
  registerConcreteClass(_NSConcreteMallocBlock, block, "__NSMallocBlock__");
}

}  // namespace sim::runtime
