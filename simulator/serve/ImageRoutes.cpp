// Pictures of the phone's own files and of its screen, and the letters that this is measured with.
#include "simulator/script/Command.h"
#include "simulator/script/ScriptFiles.h"
#include "simulator/serve/Api.h"
#include "simulator/serve/Supervisor.h"
#include "simulator/serve/http/Files.h"

namespace sim {
namespace {

constexpr const char* fontFolder = "/usr/share/fonts/opentype/inter";

bool isPicture(const std::string& file) {
  return file.starts_with('/') && file.ends_with(".png");
}

// By the same way as scripts, who wrote it.
std::string pictureIn(const std::filesystem::path& folder, const std::string& file) {
  try {
    if (auto content = ScriptFiles::below(folder).read({file, true, 1})) return *std::move(content);
  } catch (const ScriptError& error) {
    throw RequestError(400, error.what());
  }
  throw RequestError(404, "there is no " + file);
}

}  // namespace

void addImageRoutes(Router& router, const ApiParts& parts) {
  router.add("GET", "/api/image", [&inbox = parts.inbox](const Router::Visit& visit) {
    const std::string file = visit.request.get_param_value("file");
    if (!isPicture(file)) throw RequestError(400, "expected file, the phone's path of a .png");
    const std::string root = inbox.ask([](Supervisor& supervisor, const Inbox::Promise& promise) {
      answer(promise, supervisor.root());
    });
    answerFileOf(root, file.substr(1), visit.request, visit.response);
  });
  // What scripts have drawn is somebody's file, not a part of the page.
  router.add("GET", "/api/picture", [folder = parts.folder](const Router::Visit& visit) {
    const std::string file = visit.request.get_param_value("file");
    if (!file.ends_with(".png") && !file.ends_with(".svg"))
      throw RequestError(400, "expected file, the name of a .png or .svg");
    visit.response.set_header("Content-Disposition", "attachment");
    visit.response.set_content(pictureIn(folder, file),
                               file.ends_with(".png") ? "image/png" : "image/svg+xml");
  });
  router.add("GET", "/fonts/", [](const Router::Visit& visit) {
    answerFileOf(fontFolder, visit.name, visit.request, visit.response);
  });
}

}  // namespace sim
