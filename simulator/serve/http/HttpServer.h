// Accepts connections and has the HTTP library process their requests, one thread a connection.
#pragma once

#include <httplib.h>

#include <condition_variable>
#include <mutex>
#include <set>
#include <thread>

#include "simulator/serve/http/Listener.h"

namespace sim {

// The library's own accepting loop cannot take over a socket, polls idle connections a hundred
// times a second and lends a bounded number of threads, of which each watching page keeps one.
class HttpServer : public httplib::Server {
 public:
  HttpServer();
  // Stops.
  ~HttpServer() override;
  HttpServer(const HttpServer&) = delete;
  HttpServer& operator=(const HttpServer&) = delete;

  // Begins to answer. The listener must outlive this.
  void start(const Listener& listener);
  // Leaves further connections to whoever takes over the listener.
  void stopAccepting();
  // Answers no longer and closes every connection; waits for handlers that run.
  void stopServing();

  // Waits until every answer that has been worked out is on its way, event streams aside; false
  // when that takes longer.
  bool waitUntilAnswered(std::chrono::milliseconds patience);

  // Of the request that this thread is processing.
  static int connection();
  // This thread's request is a stream of events: nobody waits for its end.
  void leaveAnswering();

  // One request and its answer, from and to wherever the stream leads; false when the connection
  // is of no further use.
  bool processRequest(httplib::Stream& stream, bool isLast);

 private:
  class Answering;

  void acceptConnections();
  bool waitForConnection() const;
  void take(int descriptor);
  void serve(int descriptor);
  void endConnection(int descriptor);

  std::thread acceptor_;
  std::mutex mutex_;
  std::condition_variable changed_;
  std::set<int> connections_;
  int answering_ = 0;
  bool stopping_ = false;
  int listener_ = -1;
  int wakeUp_;  // eventfd: no further connections
};

}  // namespace sim
