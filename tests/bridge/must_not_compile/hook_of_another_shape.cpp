// expected: a hook takes Original<R\(Self, Args\.\.\.\)>, Self, Args\.\.\. and returns R
#include "objc/Hook.h"

// The original takes a bool, the replacement does not.
void viewDidAppear(objc::Original<void(objc::Object, bool)>, objc::Object) {}

void run() {
  objc::hook<"UIViewController", "viewDidAppear:", viewDidAppear>();
}
