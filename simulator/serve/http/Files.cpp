#include "simulator/serve/http/Files.h"

#include <fcntl.h>
#include <httplib.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <map>
#include <memory>
#include <optional>
#include <utility>

#include "simulator/machine/FileContent.h"
#include "simulator/serve/RequestError.h"
#include "simulator/serve/http/HttpServer.h"
#include "simulator/serve/http/Packing.h"

namespace sim {

namespace files = std::filesystem;

namespace {

const std::map<std::string, std::string, std::less<>> mimeTypes = {
    {".html", "text/html; charset=utf-8"},
    {".css", "text/css; charset=utf-8"},
    {".js", "text/javascript; charset=utf-8"},
    {".json", "application/json"},
    {".svg", "image/svg+xml"},
    {".png", "image/png"},
    {".ico", "image/x-icon"},
    {".otf", "font/otf"},
    {".woff2", "font/woff2"},
    {".txt", "text/plain; charset=utf-8"},
    {".webmanifest", "application/manifest+json"}};

[[noreturn]] void failToFind(const std::string& name) {
  throw RequestError(404, "there is no " + name);
}

class OpenFile {
 public:
  // A pipe is none, and nobody waits for its other end.
  explicit OpenFile(const files::path& path)
      : descriptor_(open(path.c_str(), O_RDONLY | O_NONBLOCK | O_CLOEXEC)) {
    if (descriptor_ < 0 || fstat(descriptor_, &status_) != 0 || !S_ISREG(status_.st_mode))
      failToFind(path.filename().string());
  }
  ~OpenFile() {
    if (descriptor_ >= 0) close(descriptor_);
  }
  OpenFile(const OpenFile&) = delete;
  OpenFile& operator=(const OpenFile&) = delete;

  std::size_t size() const { return std::size_t(status_.st_size); }
  // Different after every change.
  std::string tag() const {
    return '"' + std::to_string(status_.st_size) + '-' + std::to_string(status_.st_mtim.tv_sec) +
           '.' + std::to_string(status_.st_mtim.tv_nsec) + '"';
  }
  bool send(std::size_t offset, std::size_t length, httplib::DataSink& sink) const {
    std::array<char, 65536> piece;
    const ssize_t count =
        pread(descriptor_, piece.data(), std::min(length, piece.size()), off_t(offset));
    return count > 0 && sink.write(piece.data(), std::size_t(count));
  }
  std::string content() const {
    std::string all(size(), '\0');
    std::size_t had = 0;
    while (had < all.size()) {
      const ssize_t count = pread(descriptor_, &all[had], all.size() - had, off_t(had));
      if (count <= 0) break;  // it has become shorter
      had += std::size_t(count);
    }
    all.resize(had);
    return all;
  }

 private:
  int descriptor_;
  struct stat status_ {};
};

struct ByteRange {
  std::size_t first, length;  // length: at least 1

  // "bytes 5-9/20", of a file of that size.
  std::string text(std::size_t size) const {
    return "bytes " + std::to_string(first) + '-' + std::to_string(first + length - 1) + '/' +
           std::to_string(size);
  }
};

// Nothing means the whole file: also for several ranges at once, which a server may ignore, and
// when what the asker has is of another file than the rest would be.
std::optional<ByteRange> requestedRange(const httplib::Request& request, const OpenFile& file) {
  const httplib::Ranges& ranges = HttpServer::ranges();
  const bool isOfAnother =
      request.has_header("If-Range") && request.get_header_value("If-Range") != file.tag();
  if (ranges.size() != 1 || isOfAnother) return std::nullopt;
  const auto [from, to] = ranges.front();  // -1: not said
  if (from < 0 && to < 0) return std::nullopt;
  const std::size_t size = file.size();
  // Without a first one it is the last so many.
  const std::size_t first = from >= 0 ? std::size_t(from) : size - std::min(size, std::size_t(to));
  const std::size_t last = from >= 0 && to >= 0 ? std::size_t(to) : size;
  if (first >= size || last < first)
    throw RequestError(416, "expected a range of the file's " + std::to_string(size) + " bytes");
  return ByteRange{first, std::min(last, size - 1) - first + 1};
}

// Whether the asker has that very file.
bool isKnown(const httplib::Request& request, httplib::Response& response, const OpenFile& file) {
  response.set_header("ETag", file.tag());
  if (request.get_header_value("If-None-Match") != file.tag()) return false;
  response.status = 304;
  return true;
}

// What is packed on its way, if the asker unpacks it: a whole text, and nothing else.
bool isPackable(const std::string& mimeType) {
  return mimeType.starts_with("text/") || mimeType == "application/json" ||
         mimeType == "image/svg+xml";
}

void answerText(const httplib::Request& request, httplib::Response& response,
                const files::path& file, const std::string& mimeType) {
  const OpenFile open(file);
  response.set_header("Vary", "Accept-Encoding");
  if (isKnown(request, response, open)) return;
  const std::string content = open.content();
  const bool unpacks = request.get_header_value("Accept-Encoding").find("br") != std::string::npos;
  if (content.empty() || !unpacks) return response.set_content(content, mimeType);
  response.set_header("Content-Encoding", "br");
  const auto sent = std::make_shared<const std::string>(packed(content));
  // Not as content: the library would pack that once more.
  response.set_content_provider(
      sent->size(), mimeType,
      [sent](std::size_t offset, std::size_t length, httplib::DataSink& sink) {
        return sink.write(sent->data() + offset, length);
      });
}

}  // namespace

void answerFile(const httplib::Request& request, httplib::Response& response,
                const files::path& file, const std::string& mimeType) {
  const auto open = std::make_shared<OpenFile>(file);
  if (isKnown(request, response, *open)) return;
  response.set_header("Accept-Ranges", "bytes");
  const auto range = requestedRange(request, *open);
  if (range) {
    response.status = 206;
    response.set_header("Content-Range", range->text(open->size()));
  }
  const ByteRange part = range.value_or(ByteRange{0, open->size()});
  if (part.length == 0) return response.set_content("", mimeType);
  response.set_content_provider(
      part.length, mimeType,
      [open, part](std::size_t offset, std::size_t length, httplib::DataSink& sink) {
        return open->send(part.first + offset, length, sink);
      });
}

void answerFileOf(const files::path& folder, const std::string& name,
                  const httplib::Request& request, httplib::Response& response) {
  std::error_code missing;
  const files::path root = files::canonical(folder, missing);
  const files::path path = files::canonical(root / files::path(name).relative_path(), missing);
  const auto type = mimeTypes.find(path.extension().string());
  if (missing || name.find('\0') != std::string::npos || !liesIn(root, path) ||
      type == mimeTypes.end())
    failToFind('/' + name);
  const bool isPacked = isPackable(type->second) && !request.has_header("Range");
  (isPacked ? answerText : answerFile)(request, response, path, type->second);
}

}  // namespace sim
