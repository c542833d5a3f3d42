// Where requests end: nothing of one is taken for the next.
#include <gtest/gtest.h>

#include "tests/serve/RawConnection.h"

namespace sim {
namespace {

using std::chrono::milliseconds;

std::string request(const ServedProgram& program, const std::string& line,
                    const std::string& more = "", const std::string& body = "") {
  return line + " HTTP/1.1\r\nHost: " + program.host() + "\r\nAuthorization: Bearer " +
         program.token() + "\r\nContent-Type: application/json\r\n" + more + "\r\n" + body;
}

int countOf(const std::string& text, const std::string& part) {
  int count = 0;
  for (auto at = text.find(part); at != std::string::npos; at = text.find(part, at + 1)) ++count;
  return count;
}

// The answer to one request, after which another is sent and answered, too: neither is waited for.
TEST(Framing, OfARequestWithoutABodyIsItsHeadAlone) {
  const ServedProgram program;
  for (const char* method : {"PUT", "PATCH", "POST", "DELETE", "OPTIONS"}) {
    const RawConnection connection(program);
    connection.send(request(program, std::string(method) + " /api/script"));
    const std::string answer = connection.readAll(milliseconds(500));
    EXPECT_EQ(countOf(answer, "HTTP/1.1 "), 1) << method << answer;
    EXPECT_NE(answer.find("\r\n\r\n"), std::string::npos) << method;
    EXPECT_TRUE(connection.isOver() || answer.find(" 200 ") != std::string::npos) << method;
  }
}

TEST(Framing, LetsRequestsFollowEachOther) {
  const ServedProgram program;
  const RawConnection connection(program);
  const std::string body = R"({"line":"lock"})";
  connection.send(request(program, "GET /api/setup") +
                  request(program, "POST /api/command",
                          "Content-Length: " + std::to_string(body.size()) + "\r\n", body) +
                  request(program, "GET /api/setup", "Content-Length: 0\r\nConnection: close\r\n"));
  const std::string answers = connection.readAll(std::chrono::seconds(30));
  EXPECT_EQ(countOf(answers, "HTTP/1.1 200 OK"), 3) << answers;
}

TEST(Framing, OfAHeadHasAnEnd) {
  const ServedProgram program;
  const std::string start = "GET / HTTP/1.1\r\n";
  std::string lines, line = "X: " + std::string(8000, 'a') + "\r\n";
  for (int count = 0; count < 1000; ++count) lines += "a:b\r\n";
  // Before anybody knows whose request it is, and before all of it is there.
  for (const std::string& head : {start + lines, start + line + line + line + line + line}) {
    const RawConnection connection(program);
    connection.send(head);
    EXPECT_EQ(connection.readAll(std::chrono::seconds(5)).rfind("HTTP/1.1 400", 0), 0u);
    EXPECT_TRUE(connection.isOver());
  }
  EXPECT_EQ(program.get("/api/setup").status, 200);
}

TEST(Framing, IsOfAPath) {
  const ServedProgram program;
  const RawConnection connection(program);
  connection.send(request(program, "GET ?"));
  EXPECT_EQ(connection.readAll(std::chrono::seconds(5)).rfind("HTTP/1.1 400", 0), 0u);
}

struct Trick {
  const char* name;
  const char* line;
  const char* headers;
  const char* before;  // the hidden request
};

class Framings : public testing::TestWithParam<Trick> {};

TEST_P(Framings, HideNoOtherRequest) {
  const ServedProgram program;
  const Trick& trick = GetParam();
  const std::string body = R"({"line":"shake"})";
  const std::string hidden =
      trick.before + request(program, "POST /api/command",
                             "Content-Length: " + std::to_string(body.size()) + "\r\n", body);
  std::string headers = trick.headers;
  if (const auto at = headers.find('N'); at != std::string::npos)
    headers.replace(at, 1, std::to_string(hidden.size()));
  const RawConnection connection(program);
  connection.send(request(program, trick.line, headers, hidden));
  const std::string answers = connection.readAll(std::chrono::seconds(30));
  EXPECT_EQ(countOf(answers, "HTTP/1.1 "), 1) << answers;
  EXPECT_EQ(answers.rfind("HTTP/1.1 4", 0), 0u) << answers;
  EXPECT_TRUE(connection.isOver());
  EXPECT_EQ(program.journal().find("user shake"), std::string::npos);
}

INSTANTIATE_TEST_SUITE_P(
    All, Framings,
    testing::Values(
        Trick{"BodyOfGet", "GET /api/setup", "content-length: N\r\n", ""},
        Trick{"BodyOfHead", "HEAD /api/setup", "content-length: N\r\n", ""},
        Trick{"BodyOfDelete", "DELETE /api/script", "content-length: N\r\n", ""},
        Trick{"BodyOfPut", "PUT /api/script", "content-length: N\r\n", ""},
        Trick{"BodyOfOptions", "OPTIONS /api/script", "content-length: N\r\n", ""},
        Trick{"ChunksOfGet", "GET /api/setup", "Transfer-Encoding: chunked\r\n", "0\r\n\r\n"},
        Trick{"TwoLengths", "POST /api/command", "Content-Length: 0\r\ncontent-length: N\r\n", ""},
        Trick{"LengthAndChunks", "POST /api/command",
              "content-length: N\r\nTransfer-Encoding: chunked\r\n", "0\r\n\r\n"},
        Trick{"UnknownCoding", "POST /api/command", "Transfer-Encoding: gzip, chunked\r\n", ""},
        Trick{"TwoCodings", "POST /api/command",
              "Transfer-Encoding: chunked\r\nTransfer-Encoding: identity\r\n", "0\r\n\r\n"},
        Trick{"LengthInWords", "POST /api/command", "Content-Length: none\r\n", ""},
        Trick{"NegativeLength", "POST /api/command", "Content-Length: -1\r\n", ""},
        Trick{"SignedLength", "POST /api/command", "Content-Length: +0\r\n", ""},
        Trick{"HexadecimalLength", "POST /api/command", "Content-Length: 0x0\r\n", ""},
        Trick{"HugeLength", "POST /api/command", "Content-Length: 99999999999999999999\r\n", ""},
        Trick{"EmptyLength", "DELETE /api/script", "Content-Length:\r\n", ""},
        Trick{"EmptyCoding", "DELETE /api/script", "Transfer-Encoding:\r\n", ""},
        Trick{"BlankBeforeColon", "GET /api/setup", "content-length : N\r\n", ""},
        Trick{"TabBeforeColon", "DELETE /api/script", "content-length\t: N\r\n", ""},
        Trick{"BlankBeforeName", "GET /api/setup", " content-length: N\r\n", ""},
        Trick{"FoldedLine", "GET /api/setup", "X: a\r\n content-length: N\r\n", ""},
        Trick{"LineFeedAlone", "GET /api/setup", "content-length: N\n", ""},
        Trick{"LineFeedBetween", "GET /api/setup", "X: a\ncontent-length: N\r\n", ""},
        Trick{"ReturnAlone", "GET /api/setup", "X: a\rcontent-length: N\r\n", ""},
        Trick{"NoColon", "GET /api/setup", "content-length N\r\n", ""},
        Trick{"ControlInName", "GET /api/setup", "Transfer-Encoding\x7f: chunked\r\n", "0\r\n\r\n"},
        Trick{"OddLetterInName", "GET /api/setup", "Transfer-Encoding\xa0: chunked\r\n", ""},
        Trick{"ControlInValue", "GET /api/setup", "X: a\vcontent-length: N\r\n", ""},
        Trick{"Packed", "POST /api/command", "Content-Encoding: gzip\r\ncontent-length: N\r\n", ""},
        Trick{"LongerChunk", "POST /api/command", "Transfer-Encoding: chunked\r\n",
              "2\r\n{}}}\r\n"}),
    [](const auto& each) { return each.param.name; });

}  // namespace
}  // namespace sim
