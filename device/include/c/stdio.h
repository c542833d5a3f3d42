// Formatted text of the platform's C library. Streams are left out: the extension has none.
#pragma once

#define __need_size_t
#define __need_NULL
#include <stddef.h>
#define __need___va_list
#include <stdarg.h>

#define EOF (-1)  // what char_traits gives for "no character"

#ifdef __cplusplus
extern "C" {
#endif

// Unused, but without it <cstdio>'s using-declaration clashes with the algorithm std::remove.
int remove(const char* path);

int snprintf(char* to, size_t capacity, const char* format, ...)
    __attribute__((format(printf, 3, 4)));
int vsnprintf(char* to, size_t capacity, const char* format, __gnuc_va_list arguments)
    __attribute__((format(printf, 3, 0)));
int sscanf(const char* text, const char* format, ...) __attribute__((format(scanf, 2, 3)));

#ifdef __cplusplus
}
#endif
