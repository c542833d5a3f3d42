// Calendar time of the platform's C library.
#pragma once

#define __need_size_t
#define __need_NULL
#include <stddef.h>

#ifdef __cplusplus
extern "C" {
#endif

typedef long time_t;            // seconds since 1970
typedef unsigned long clock_t;  // processor time
struct timespec {
  time_t tv_sec;
  long tv_nsec;
};
struct tm {
  int tm_sec;
  int tm_min;
  int tm_hour;
  int tm_mday;
  int tm_mon;
  int tm_year;
  int tm_wday;
  int tm_yday;
  int tm_isdst;
  long tm_gmtoff;
  char* tm_zone;
};

time_t time(time_t* result);

#ifdef __cplusplus
}
#endif
