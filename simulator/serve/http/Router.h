// Which request is whose: methods and paths, and answers as JSON.
#pragma once

#include <functional>
#include <nlohmann/json.hpp>
#include <string>
#include <vector>

#include "simulator/serve/RequestError.h"

namespace httplib {
class Server;
struct Request;
struct Response;
}  // namespace httplib

namespace sim {

class Router {
 public:
  struct Visit {
    const httplib::Request& request;
    httplib::Response& response;
    std::string name;  // what stands for NAME in the path
  };
  using Handler = std::function<void(const Visit&)>;
  using JsonHandler = std::function<nlohmann::json(const Visit&)>;

  // "/api/events", or "/music/" for a path with a name after it. What a handler throws becomes an
  // answer: RequestError as it says, anything else 500.
  void add(const std::string& method, const std::string& path, Handler handler);
  void addJson(const std::string& method, const std::string& path, JsonHandler handler);
  // Of JSON that is text already.
  using TextHandler = std::function<std::string(const Visit&)>;
  void addText(const std::string& method, const std::string& path, TextHandler handler);

  // For GET of everything else.
  void addPage(Handler handler) { page_ = std::move(handler); }

  // Takes over every request of the server.
  void serve(httplib::Server& server);
  void answer(const httplib::Request& request, httplib::Response& response) const;

 private:
  struct Route {
    std::string method, path;
    Handler handler;
  };

  static bool matches(const Route& route, const std::string& path);
  void find(const httplib::Request& request, httplib::Response& response) const;

  std::vector<Route> routes_;
  Handler page_;
};

void answerJson(httplib::Response& response, const nlohmann::json& body);
void answerError(httplib::Response& response, const RequestError& error);

}  // namespace sim
