// A connection whose requests' heads are kept as they were sent.
#pragma once

#include <httplib.h>

#include <string>

namespace sim {

// The library forgives what others read differently: lines that end otherwise, names with blanks.
// Where a request ends must not depend on that, see Framing.h. And it stores every line, however
// many there are, before anybody asks whose they are: a head that is too long cannot be read on.
class RequestStream : public httplib::Stream {
 public:
  void beginRequest();
  // Up to and with the empty line, as far as it has come.
  const std::string& head() const { return head_; }

  ssize_t read(char* place, size_t size) final;
  // Nobody needs addresses here: both ends are this machine.
  void get_remote_ip_and_port(std::string&, int&) const override {}
  void get_local_ip_and_port(std::string&, int&) const override {}

 private:
  // As of read(2).
  virtual ssize_t receive(char* place, size_t size) = 0;
  bool isOver() const;

  std::string head_;
  std::size_t lines_ = 0;
};

}  // namespace sim
