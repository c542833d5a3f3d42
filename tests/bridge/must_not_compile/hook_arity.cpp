// expected: the selector has another number of colons than the function has arguments
#include "objc/Hook.h"

void viewDidAppear(objc::Original<void(objc::Object)> original, objc::Object self) {
  original(self);
}

void run() {
  objc::hook<"UIViewController", "viewDidAppear:", viewDidAppear>();
}
