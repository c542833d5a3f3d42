// Any bytes are a request that gets an answer, or none worth one; what is refused is told why, as
// JSON, and nothing outside the page's folder is ever sent.
#include <httplib.h>

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <nlohmann/json.hpp>
#include <string>
#include <string_view>

#include "simulator/host/TemporaryFolder.h"
#include "simulator/serve/Api.h"
#include "simulator/serve/http/Guard.h"

namespace {

namespace files = std::filesystem;

constexpr int port = 8420;
constexpr const char* token = "letmein";
constexpr std::string_view secret = "what no page may see";

void require(bool holds, const std::string& answer) {
  if (holds) return;
  std::fprintf(stderr, "%s\n", answer.c_str());
  std::abort();
}

// One connection, of which everything has been received already.
class TextStream final : public sim::RequestStream {
 public:
  explicit TextStream(std::string_view request) : request_(request) {}

  const std::string& answer() const { return answer_; }

  bool is_readable() const override { return true; }
  bool is_writable() const override { return true; }
  ssize_t write(const char* bytes, size_t size) override {
    answer_.append(bytes, size);
    return ssize_t(size);
  }
  socket_t socket() const override { return -1; }

 private:
  ssize_t receive(char* place, size_t size) override {
    const std::size_t count = std::min(size, request_.size());
    std::copy_n(request_.data(), count, place);
    request_.remove_prefix(count);
    return ssize_t(count);
  }

  std::string_view request_;
  std::string answer_;
};

// A server without a phone: it refuses to answer what only the phone knows, after it has read what
// is asked for.
class PhonelessServer {
 public:
  PhonelessServer() {
    inbox_.stop();
    sim::guard(server_, port, access_);
    sim::addApi(router_, {inbox_, access_, library_, web_, web_});
    router_.serve(server_);
  }

  PhonelessServer(const PhonelessServer&) = delete;
  PhonelessServer& operator=(const PhonelessServer&) = delete;

  std::string answer(const std::string& request) {
    TextStream stream(request);
    server_.processRequest(stream, true);
    return stream.answer();
  }

 private:
  static files::path webIn(const files::path& folder) {
    files::create_directories(folder / "web/sub");
    std::ofstream(folder / "web/index.html") << "<p>page";
    std::ofstream(folder / "web/sub/a.js") << "export {};";
    std::ofstream(folder / "secret.js") << secret;
    return folder / "web";
  }

  sim::TemporaryFolder folder_;
  files::path web_ = webIn(folder_.path());
  sim::MusicLibrary library_{web_};
  sim::Access access_{token, "0123456789abcdef"};
  sim::Inbox inbox_;
  sim::Router router_;
  sim::HttpServer server_;
};

void check(const std::string& answer) {
  if (answer.empty()) return;  // no request at all
  require(answer.rfind("HTTP/1.1 ", 0) == 0, answer);
  require(answer.find(secret) == std::string::npos, answer);
  const int status = std::atoi(answer.c_str() + 9);
  require(status == 100 || (status >= 200 && status < 600 && status != 500), answer);
  if (status < 400) return;
  const auto body = answer.find("\r\n\r\n");
  require(body != std::string::npos, answer);
  const auto error = nlohmann::json::parse(answer.substr(body + 4), nullptr, false);
  // HEAD is answered without a body.
  require(body + 4 == answer.size() || (error.is_object() && error.contains("error")), answer);
}

std::string takeLine(std::string_view& text) {
  const auto end = std::min(text.find('\n'), text.size());
  const std::string line(text.substr(0, end));
  text.remove_prefix(std::min(end + 1, text.size()));
  return line;
}

// Well-formed around what is not: the path, a header, the body.
std::string wrapped(std::string_view text) {
  static const char* const methods[] = {"GET", "POST", "HEAD", "DELETE", "PUT", "OPTIONS"};
  const auto method = text.empty() ? 0 : std::size_t(static_cast<unsigned char>(text[0])) % 6;
  text.remove_prefix(std::min<std::size_t>(1, text.size()));
  const std::string path = takeLine(text);
  const std::string header = takeLine(text);
  const std::string body(text);
  return std::string(methods[method]) + " /" + path +
         " HTTP/1.1\r\nHost: 127.0.0.1:" + std::to_string(port) + "\r\nAuthorization: Bearer " +
         token + "\r\nContent-Type: application/json\r\n" +
         (header.empty() ? "" : header + "\r\n") +
         "Content-Length: " + std::to_string(body.size()) + "\r\n\r\n" + body;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t count) {
  static PhonelessServer server;
  const std::string_view text(reinterpret_cast<const char*>(bytes), count);
  const bool isRaw = !text.empty() && text[0] == '!';
  check(server.answer(isRaw ? std::string(text.substr(1)) : wrapped(text)));
  return 0;
}
