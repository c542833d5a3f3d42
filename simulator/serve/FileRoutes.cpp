#include "simulator/serve/Api.h"
#include "simulator/serve/http/Files.h"

namespace sim {

using nlohmann::json;

namespace {

json textOrNull(const std::string& text) {
  return text.empty() ? json() : json(text);
}

json listed(const MusicLibrary& library) {
  json all = json::array();
  for (std::size_t index = 0; index < library.files().size(); ++index) {
    const MusicFile& file = library.files()[index];
    all.push_back({{"id", MusicLibrary::idAt(index)},
                   {"title", *file.track.title},
                   {"artist", textOrNull(file.track.artist)},
                   {"album", textOrNull(file.track.album)},
                   {"length", seconds(file.track.length)},
                   {"cover", file.hasCover}});
  }
  return all;
}

const MusicFile& fileNamed(const MusicLibrary& library, const std::string& id) {
  const MusicFile* file = library.find(id);
  if (file == nullptr) throw RequestError(404, "there is no piece of music " + id);
  return *file;
}

}  // namespace

void addFileRoutes(Router& router, const ApiParts& parts) {
  const MusicLibrary& library = parts.library;
  router.addJson("GET", "/music", [&library](const Router::Visit&) { return listed(library); });
  router.add("GET", "/music/", [&library](const Router::Visit& visit) {
    const MusicFile& file = fileNamed(library, visit.name);
    answerFile(visit.request, visit.response, file.path, file.mimeType);
  });
  router.add("GET", "/cover/", [&library](const Router::Visit& visit) {
    const auto cover = readCover(fileNamed(library, visit.name).path);
    if (!cover) throw RequestError(404, "there is no picture in " + visit.name);
    visit.response.set_content(cover->bytes, cover->mimeType);
  });
  // Last: the page may have files under any other name.
  router.add("GET", "/", [web = parts.web, &access = parts.access](const Router::Visit& visit) {
    if (access.welcome(visit.request, visit.response))
      answerFileOf(web, "index.html", visit.request, visit.response);
  });
  router.addPage([web = parts.web](const Router::Visit& visit) {
    answerFileOf(web, visit.request.path.substr(1), visit.request, visit.response);
  });
}

}  // namespace sim
