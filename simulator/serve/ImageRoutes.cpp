// Pictures of the phone's own files and of its screen, and the letters that this is measured with.
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
  // What scripts have drawn is somebody's file, not a part of the page.
  router.add("GET", "/api/picture", [folder = parts.folder](const Router::Visit& visit) {
    const std::string file = visit.request.get_param_value("file");
    if (!file.ends_with(".png") && !file.ends_with(".svg"))
      throw RequestError(400, "expected file, the name of a .png or .svg");
    visit.response.set_header("Content-Disposition", "attachment");
    answerFileOf(folder, file, visit.request, visit.response);
  });
  router.add("GET", "/fonts/", [](const Router::Visit& visit) {
    answerFileOf(fontFolder, visit.name, visit.request, visit.response);
  });
}

}  // namespace sim
