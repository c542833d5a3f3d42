// Everything that pages can ask for over HTTP. docs/serve.md describes it.
#pragma once

#include <filesystem>

#include "simulator/serve/Inbox.h"
#include "simulator/serve/http/Access.h"
#include "simulator/serve/http/HttpServer.h"
#include "simulator/serve/http/Router.h"
#include "simulator/serve/music/MusicLibrary.h"

namespace sim {

// What answers need that is not the phone's. Any thread.
struct ApiParts {
  Inbox& inbox;
  const Access& access;
  const MusicLibrary& library;
  std::filesystem::path web;     // folder of the page
  std::filesystem::path folder;  // of the scripts' files
};

// The parts must outlive the router.
void addApi(Router& router, const ApiParts& parts);

// The pieces of it, one for each subject.
void addPhoneRoutes(Router& router, const ApiParts& parts);   // command, time, set-up, settings
void addScriptRoutes(Router& router, const ApiParts& parts);  // recording, script
void addEventRoutes(Router& router, const ApiParts& parts);   // events, audio-owner
void addImageRoutes(Router& router, const ApiParts& parts);   // image, picture, fonts
void addViewRoutes(Router& router, const ApiParts& parts);    // views
void addFileRoutes(Router& router, const ApiParts& parts);    // music, cover, page

}  // namespace sim
