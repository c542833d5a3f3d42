// Conversions for the fixed-width integers: 64 bits are `long long` on this platform.
#pragma once

#include <stdint.h>

#define PRId32 "d"
#define PRIu32 "u"
#define PRIx32 "x"
#define PRId64 "lld"
#define PRIu64 "llu"
#define PRIx64 "llx"
#define SCNd64 "lld"
#define SCNu64 "llu"

// libc++'s <cinttypes> includes this for these names.
#ifdef __cplusplus
extern "C" {
#endif

typedef struct {
  intmax_t quot;
  intmax_t rem;
} imaxdiv_t;

#ifdef __cplusplus
}
#endif
