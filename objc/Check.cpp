#include "objc/Check.h"

#include <cstdio>
#include <cstdlib>
#include <cstring>

namespace objc {
namespace {

// One type of an encoding: where it starts and ends.
struct Type {
  const char* begin;
  const char* end;
};

bool isQualifier(char letter) {
  return letter == 'r' || letter == 'n' || letter == 'N' || letter == 'o' || letter == 'O' ||
         letter == 'R' || letter == 'V' || letter == 'A';
}

const char* skipOffset(const char* at) {
  while (*at == '+' || *at == '-' || (*at >= '0' && *at <= '9')) ++at;
  return at;
}

const char* skipBrackets(const char* at) {
  int depth = 0;
  do {
    if (*at == '{' || *at == '(' || *at == '[') ++depth;
    if (*at == '}' || *at == ')' || *at == ']') --depth;
    if (*at != 0) ++at;
  } while (depth > 0 && *at != 0);
  return at;
}

const char* skipType(const char* at) {
  while (isQualifier(*at) || *at == '^') ++at;
  if (*at == '{' || *at == '(' || *at == '[') return skipBrackets(at);
  if (*at == 0) return at;
  const char letter = *at++;
  if (letter == '@' && *at == '?') return at + 1;
  if (letter == '@' && *at == '"') {
    const char* close = std::strchr(at + 1, '"');
    return close != nullptr ? close + 1 : at + std::strlen(at);
  }
  return at;
}

Type nextType(const char*& cursor) {
  cursor = skipOffset(cursor);
  while (isQualifier(*cursor)) ++cursor;
  Type type{cursor, skipType(cursor)};
  cursor = skipOffset(type.end);
  return type;
}

// Objects, blocks and classes are passed alike, and so are pointers whatever they point at.
char kind(const Type& type) {
  const char first = *type.begin;
  if (first == '#') return '@';
  if (first == '*') return '^';
  return first;
}

bool sameStructure(const Type& mine, const Type& found);

bool sameType(const Type& mine, const Type& found) {
  if (kind(mine) != kind(found)) return false;
  return kind(mine) != '{' || sameStructure(mine, found);
}

// Structure names differ between headers; the members decide how a structure travels.
bool sameStructure(const Type& mine, const Type& found) {
  const char* left = std::strchr(mine.begin, '=');
  const char* right = std::strchr(found.begin, '=');
  if (left == nullptr || right == nullptr || left >= mine.end || right >= found.end)
    return mine.end - mine.begin == found.end - found.begin &&
           std::strncmp(mine.begin, found.begin, std::size_t(mine.end - mine.begin)) == 0;
  ++left, ++right;
  while (*left != '}' && *right != '}') {
    if (!sameType(nextType(left), nextType(right))) return false;
  }
  return *left == '}' && *right == '}';
}

// -1 is the result; then come self and _cmd, which count as no argument.
[[noreturn]] void stop(const char* action, Class cls, SEL name, int index, const Type& mine,
                       const Type& found) {
  char place[32] = "result";
  if (index >= 0) std::snprintf(place, sizeof place, "argument %d", index - 1);
  std::fprintf(stderr, "type mismatch in %s of %c[%s %s]: %s: expected '%.*s', found '%.*s'\n",
               action, class_isMetaClass(cls) ? '+' : '-', class_getName(cls), sel_getName(name),
               place, int(found.end - found.begin), found.begin, int(mine.end - mine.begin),
               mine.begin);
  std::abort();
}

}  // namespace

void requireSameTypes(const char* action, Class cls, SEL name, const char* mine,
                      const char* registered) {
  if (registered == nullptr) return;
  for (int index = -1; *mine != 0 || *registered != 0; ++index) {
    const Type left = nextType(mine);
    const Type right = nextType(registered);
    if (!sameType(left, right)) stop(action, cls, name, index, left, right);
  }
}

}  // namespace objc
