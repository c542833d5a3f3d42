// Memory and C strings of the platform's C library.
#pragma once

#define __need_size_t
#define __need_NULL
#include <stddef.h>

#ifdef __cplusplus
extern "C" {
#endif

void* memcpy(void* to, const void* from, size_t count);
void* memmove(void* to, const void* from, size_t count);
void* memset(void* to, int byte, size_t count);
int memcmp(const void* left, const void* right, size_t count);
void* memchr(const void* bytes, int byte, size_t count);

size_t strlen(const char* text);
int strcmp(const char* left, const char* right);
int strncmp(const char* left, const char* right, size_t count);
char* strchr(const char* text, int character);
char* strrchr(const char* text, int character);
char* strpbrk(const char* text, const char* characters);
char* strstr(const char* text, const char* part);
char* strdup(const char* text);  // free() it

#ifdef __cplusplus
}
#endif
