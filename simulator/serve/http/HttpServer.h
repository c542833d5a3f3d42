// Accepts connections and has the HTTP library process their requests, one thread a connection.
#pragma once

#include <httplib.h>

#include <functional>
#include <optional>
#include <thread>

#include "simulator/serve/http/Connections.h"
#include "simulator/serve/http/RequestStream.h"

namespace sim {

// The library's own accepting loop polls idle connections a hundred times a second, lends a bounded
// number of threads, of which each watching page keeps one, and ends for good when a connection
// cannot be accepted.
class HttpServer : public httplib::Server {
 public:
  HttpServer();
  // Stops.
  ~HttpServer() override;
  HttpServer(const HttpServer&) = delete;
  HttpServer& operator=(const HttpServer&) = delete;

  // Takes a port of this machine's own loopback address only, and gives it: without one, the first
  // that is free from the usual one on. Throws std::system_error when it, or every one tried, is in
  // use.
  int bind(std::optional<int> port);
  // Begins to answer.
  void start();
  // Makes of each request what handlers find, before anything is asked about it.
  void setPreparation(std::function<void(httplib::Request&)> prepare) {
    prepare_ = std::move(prepare);
  }
  // Answers no longer and closes every connection; waits for handlers that run.
  void stopServing();

  // Of the request that this thread is processing: the socket, its head as it was sent, and the
  // parts of a file that it asks for.
  static int connection();
  static const std::string& head();
  static const httplib::Ranges& ranges();
  // This thread's request has shown the secret: its connection is no stranger's any more.
  void trust();

  // One request and its answer, from and to wherever the stream leads; false when the connection
  // is of no further use.
  bool processRequest(RequestStream& stream, bool isLast);

 private:
  int tryToBind(int port);
  void acceptConnections();
  bool waitForConnection() const;
  void take(int descriptor);
  void startToServe(int descriptor);
  void serve(int descriptor);

  std::thread acceptor_;
  Connections connections_;
  std::function<void(httplib::Request&)> prepare_;
  int wakeUp_;  // eventfd: no further connections
};

}  // namespace sim
