// A connection whose requests' heads are kept as they were sent.
#pragma once

#include <httplib.h>

#include <string>

namespace sim {

// The library forgives what others read differently: lines that end otherwise, names with blanks.
// Where a request ends must not depend on that, see Framing.h. And it stores every line, however
// many there are, before anybody asks whose they are: a head that is too long cannot be read on.
class HeadRecorder final : public httplib::Stream {
 public:
  // For one request.
  explicit HeadRecorder(httplib::Stream& stream) : stream_(stream) {}

  // Up to and with the empty line, as far as it has come.
  const std::string& head() const { return head_; }

  bool is_readable() const override { return stream_.is_readable(); }
  bool is_writable() const override { return stream_.is_writable(); }
  ssize_t read(char* place, size_t size) override;
  ssize_t write(const char* bytes, size_t size) override { return stream_.write(bytes, size); }
  void get_remote_ip_and_port(std::string& ip, int& port) const override {
    stream_.get_remote_ip_and_port(ip, port);
  }
  void get_local_ip_and_port(std::string& ip, int& port) const override {
    stream_.get_local_ip_and_port(ip, port);
  }
  socket_t socket() const override { return stream_.socket(); }

 private:
  bool isOver() const;

  httplib::Stream& stream_;
  std::string head_;
  std::size_t lines_ = 0;
};

}  // namespace sim
