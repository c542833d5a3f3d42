// Memory, number parsing and process ends of the platform's C library.
#pragma once

#define __need_size_t
#define __need_NULL
#include <stddef.h>

#define EXIT_SUCCESS 0
#define EXIT_FAILURE 1

#ifdef __cplusplus
extern "C" {
#endif

// libc++'s <stdlib.h> builds its overloads of div() on these.
typedef struct {
  int quot;
  int rem;
} div_t;
typedef struct {
  long quot;
  long rem;
} ldiv_t;
typedef struct {
  long long quot;
  long long rem;
} lldiv_t;
div_t div(int numerator, int denominator);
ldiv_t ldiv(long numerator, long denominator);
lldiv_t lldiv(long long numerator, long long denominator);

int abs(int value);
long labs(long value);
long long llabs(long long value);

void* malloc(size_t size);
void* calloc(size_t count, size_t size);
void* realloc(void* memory, size_t size);
void free(void* memory);

double strtod(const char* text, char** end);
long strtol(const char* text, char** end, int base);
long long strtoll(const char* text, char** end, int base);
unsigned long strtoul(const char* text, char** end, int base);
unsigned long long strtoull(const char* text, char** end, int base);

unsigned arc4random(void);
unsigned arc4random_uniform(unsigned bound);

char* getenv(const char* name);  // owned by the environment; null when not set
[[noreturn]] void abort(void);
[[noreturn]] void exit(int status);

#ifdef __cplusplus
}
#endif
