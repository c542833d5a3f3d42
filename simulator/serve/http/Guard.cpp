#include "simulator/serve/http/Guard.h"

#include <httplib.h>

#include <string>

#include "simulator/serve/http/Access.h"
#include "simulator/serve/http/Framing.h"
#include "simulator/serve/http/HttpServer.h"
#include "simulator/serve/http/Router.h"

namespace sim {

using httplib::Request;
using httplib::Response;
using HandlerResponse = httplib::Server::HandlerResponse;

namespace {

bool isOwnHost(const std::string& host, int port) {
  const std::string suffix = ':' + std::to_string(port);
  return host == "127.0.0.1" + suffix || host == "localhost" + suffix;
}

bool isOwnOrigin(const std::string& origin, int port) {
  constexpr std::string_view scheme = "http://";
  return origin.starts_with(scheme) && isOwnHost(origin.substr(scheme.size()), port);
}

void requireOwn(const Request& request, int port) {
  const std::string address = "127.0.0.1:" + std::to_string(port);
  if (request.get_header_value_count("Host") != 1 ||
      !isOwnHost(request.get_header_value("Host"), port))
    throw RequestError(403, "expected the Host " + address);
  if (request.has_header("Origin") && !isOwnOrigin(request.get_header_value("Origin"), port))
    throw RequestError(403, "expected the Origin http://" + address);
}

void requireSecret(const Request& request, const Access& access) {
  constexpr const char* whatToDo =
      "open the address that dozewell-simulator printed when it started: it holds this phone's "
      "secret";
  if (!access.admits(request)) throw RequestError(401, whatToDo);
}

void requireJson(const Request& request) {
  if (request.method == "POST" &&
      !request.get_header_value("Content-Type").starts_with("application/json"))
    throw RequestError(415, "expected the Content-Type application/json");
}

// A person who opens the page's address is told in words.
void tell(const Request& request, Response& response, const RequestError& error) {
  answerError(response, error);
  if (error.status != 401) return;
  response.set_header("WWW-Authenticate", "Bearer");
  if (request.get_header_value("Accept").find("text/html") == std::string::npos) return;
  const std::string head =
      R"(<!doctype html><html lang="en"><title>Dozewell</title><meta name="viewport" )"
      R"(content="width=device-width"><meta name="color-scheme" content="light dark">)";
  response.set_content(head + "<p>Please " + error.what() + ".</p></html>",
                       "text/html; charset=utf-8");
}

// What the library itself finds wrong.
void explain(Response& response) {
  switch (response.status) {
    case 413:
      return answerError(response,
                         {413, "expected at most " + std::to_string(largestBody) + " bytes"});
    case 414:
      return answerError(response, {414, "expected a shorter address"});
    case 416:
      return answerError(response, {416, "expected a range of bytes within the file"});
    default:
      return answerError(response, {response.status, "expected an HTTP request"});
  }
}

}  // namespace

void guard(HttpServer& server, int port, const Access& access) {
  server.set_default_headers({
      {"Content-Security-Policy",
       "default-src 'none'; script-src 'self'; style-src 'self'; img-src 'self' data: blob:; "
       "media-src 'self' blob:; font-src 'self'; connect-src 'self'; base-uri 'none'; "
       "form-action 'none'; frame-ancestors 'none'"},
      {"Cross-Origin-Resource-Policy", "same-origin"},
      {"Referrer-Policy", "no-referrer"},
      {"X-Content-Type-Options", "nosniff"},
      {"Cache-Control", "no-cache"},
  });
  server.set_payload_max_length(largestBody);
  server.setPreparation([](Request& request) {
    leavePlace(request);
    completeFraming(request);
  });
  const auto check = [&server, port, &access](const Request& request) {
    requireOwn(request, port);
    requireSecret(request, access);
    server.trust();
    if (!request.path.starts_with('/')) throw RequestError(400, "expected a path");
    requireFraming(request.method, HttpServer::head());
    requireJson(request);
  };
  server.set_pre_routing_handler([check](const Request& request, Response& response) {
    try {
      check(request);
      return HandlerResponse::Unhandled;
    } catch (const RequestError& error) {
      tell(request, response, error);
      return HandlerResponse::Handled;
    }
  });
  server.set_error_handler([](const Request&, Response& response) {
    if (response.body.empty()) explain(response);
  });
}

}  // namespace sim
