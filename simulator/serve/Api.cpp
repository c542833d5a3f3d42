#include "simulator/serve/Api.h"

namespace sim {

void addApi(Router& router, const ApiParts& parts) {
  addPhoneRoutes(router, parts);
  addScriptRoutes(router, parts);
  addEventRoutes(router, parts);
  addImageRoutes(router, parts);
  addViewRoutes(router, parts);
  addFileRoutes(router, parts);
}

}  // namespace sim
