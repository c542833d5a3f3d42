// Files as answers.
#pragma once

#include <filesystem>
#include <string>

namespace httplib {
struct Request;
struct Response;
}  // namespace httplib

namespace sim {

// Streams the file, or the ranges of it that were asked for; 304 when the asker has it already.
// RequestError 404 when it cannot be read.
void answerFile(const httplib::Request& request, httplib::Response& response,
                const std::filesystem::path& file, const std::string& mimeType);

// A file of the folder, by its path below it. RequestError 404 for one that is not there, not
// inside, or of no kind that pages are made of.
void answerFileOf(const std::filesystem::path& folder, const std::string& name,
                  const httplib::Request& request, httplib::Response& response);

}  // namespace sim
