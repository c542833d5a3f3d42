// Pictures of the phone's own files, and the letters that its screen is measured with.
#include "simulator/serve/Api.h"
#include "simulator/serve/http/Files.h"

namespace sim {
namespace {

constexpr const char* fontFolder = "/usr/share/fonts/opentype/inter";

bool isPicture(const std::string& file) {
  return file.starts_with('/') && file.ends_with(".png");
}

}  // namespace

void addImageRoutes(Router& router, const ApiParts& parts) {
  router.add("GET", "/api/image", [root = parts.phoneFiles](const Router::Visit& visit) {
    const std::string file = visit.request.get_param_value("file");
    if (!isPicture(file)) throw RequestError(400, "expected file, the phone's path of a .png");
    answerFileOf(root, file.substr(1), visit.request, visit.response);
  });
  router.add("GET", "/fonts/", [](const Router::Visit& visit) {
    answerFileOf(fontFolder, visit.name, visit.request, visit.response);
  });
}

}  // namespace sim
