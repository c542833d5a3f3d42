#include "simulator/runwright/RunwrightManager.h"

#include <vector>

#include "simulator/foundation/Values.h"
#include "simulator/machine/Phone.h"
#include "simulator/runwright/ShortcutRunner.h"
#include "simulator/standin/StandIn.h"

namespace sim {

objc::Object RunwrightManager::sharedManager() {
  return objc::Object(shared().self());
}

objc::Object RunwrightManager::workflowNames() {
  std::vector<objc::Object> names;
  for (const std::string& name : ShortcutRunner::current().shortcuts())
    names.push_back(string(name));
  return array(names);
}

void RunwrightManager::runWorkflowWithName(objc::Object name) {
  Phone::current().journal.record("-[RunwrightManager runWorkflowWithName:" + notation(name) + ']');
}

void RunwrightManager::registerClass() {
  StandIn<RunwrightManager>("Runwright", "RunwrightManager", "NSObject")
      .classMethod<"sharedManager", &RunwrightManager::sharedManager>()
      .method<"workflowNames", &RunwrightManager::workflowNames>()
      .partial<"runWorkflowWithName:", &RunwrightManager::runWorkflowWithName>(
          "the journal's line is all that happens")
      .finish();
}

}  // namespace sim
