// Named by libc++'s char_traits; the extension itself never converts multibyte text.
#pragma once

typedef union {
  char bytes[128];
  long long alignment;
} mbstate_t;
