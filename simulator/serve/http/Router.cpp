#include "simulator/serve/http/Router.h"

#include <httplib.h>

#include <algorithm>

#include "simulator/serve/Subscribers.h"

namespace sim {

using httplib::Request;
using httplib::Response;

void answerJson(Response& response, const nlohmann::json& body) {
  response.set_content(jsonText(body), "application/json");
}

void answerError(Response& response, const RequestError& error) {
  response.status = error.status;
  // Whatever of the request has not been read is not read: see HttpServer.
  response.set_header("Connection", "close");
  answerJson(response, error.body());
}

void Router::add(const std::string& method, const std::string& path, Handler handler) {
  routes_.push_back({method, path, std::move(handler)});
}

void Router::addJson(const std::string& method, const std::string& path, JsonHandler handler) {
  add(method, path, [handler = std::move(handler)](const Visit& visit) {
    answerJson(visit.response, handler(visit));
  });
}

void Router::addText(const std::string& method, const std::string& path, TextHandler handler) {
  add(method, path, [handler = std::move(handler)](const Visit& visit) {
    visit.response.set_content(handler(visit), "application/json");
  });
}

bool Router::matches(const Route& route, const std::string& path) {
  if (route.path == "/" || !route.path.ends_with('/')) return path == route.path;
  return path.size() > route.path.size() && path.starts_with(route.path);
}

void Router::find(const Request& request, Response& response) const {
  // Everything that can be read can be asked for without its body.
  const std::string method = request.method == "HEAD" ? "GET" : request.method;
  std::string allowed;
  for (const Route& route : routes_) {
    if (!matches(route, request.path)) continue;
    if (route.method == method) {
      const std::size_t fixed = std::min(route.path.size(), request.path.size());
      return route.handler({request, response, request.path.substr(fixed)});
    }
    allowed += (allowed.empty() ? "" : ", ") + route.method;
  }
  if (allowed.empty() && method == "GET" && page_) return page_({request, response, ""});
  if (allowed.empty()) throw RequestError(404, "there is no " + request.path);
  response.set_header("Allow", allowed);
  throw RequestError(405, "expected " + allowed + ", found " + request.method);
}

void Router::answer(const Request& request, Response& response) const {
  try {
    find(request, response);
  } catch (const RequestError& error) {
    answerError(response, error);
  } catch (const std::exception& error) {
    answerError(response, {500, error.what()});
  }
}

void Router::serve(httplib::Server& server) {
  const auto handler = [this](const Request& request, Response& response) {
    answer(request, response);
  };
  server.Get(".*", handler);
  server.Post(".*", handler);
  server.Put(".*", handler);
  server.Patch(".*", handler);
  server.Delete(".*", handler);
  server.Options(".*", handler);
}

}  // namespace sim
