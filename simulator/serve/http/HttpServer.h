// Accepts connections and has the HTTP library process their requests, one thread a connection.
#pragma once

#include <httplib.h>

#include <functional>
#include <thread>

#include "simulator/serve/http/Connections.h"
#include "simulator/serve/http/Listener.h"

namespace sim {

// The library's own accepting loop polls idle connections a hundred times a second and lends a
// bounded number of threads, of which each watching page keeps one.
class HttpServer : public httplib::Server {
 public:
  HttpServer();
  // Stops.
  ~HttpServer() override;
  HttpServer(const HttpServer&) = delete;
  HttpServer& operator=(const HttpServer&) = delete;

  // Begins to answer. The listener must outlive this.
  void start(const Listener& listener);
  // Makes of each request what handlers find, before anything is asked about it.
  void setPreparation(std::function<void(httplib::Request&)> prepare) {
    prepare_ = std::move(prepare);
  }
  // Answers no longer and closes every connection; waits for handlers that run.
  void stopServing();

  // Of the request that this thread is processing: the socket, and its head as it was sent.
  static int connection();
  static const std::string& head();
  // This thread's request has shown the secret: its connection is no stranger's any more.
  void trust();

  // One request and its answer, from and to wherever the stream leads; false when the connection
  // is of no further use.
  bool processRequest(httplib::Stream& stream, bool isLast);

 private:
  void acceptConnections();
  bool waitForConnection() const;
  void take(int descriptor);
  void startToServe(int descriptor);
  void serve(int descriptor);

  std::thread acceptor_;
  Connections connections_;
  std::function<void(httplib::Request&)> prepare_;
  int listener_ = -1;
  int wakeUp_;  // eventfd: no further connections
};

}  // namespace sim
