#include "tweak/hooks/Launch.h"

#include "platform/Dispatch.h"
#include "tweak/engine/Dozewell2Manager.h"
#include "tweak/panel/Dozewell2ViewController.h"

void applicationDidFinishLaunching(objc::Original<void(SpringBoard, objc::Object)> original,
                                   SpringBoard self, objc::Object application) {
  original(self, application);
  Dozewell2ViewController::preloadViewController();
  // Not inside the launch call: a restored timer may fire at once.
  dispatch::onMain([] { Dozewell2Manager::sharedInstance().restoreDozewellIfNeeded(); });
}
