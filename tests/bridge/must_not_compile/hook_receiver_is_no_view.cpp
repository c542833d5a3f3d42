// expected: the second parameter is the receiver's view
#include "objc/Hook.h"

void viewDidLoad(objc::Original<void(long)>, long) {}

void run() {
  objc::hook<"UIViewController", "viewDidLoad", viewDidLoad>();
}
