// The platform's C library keeps errno behind a function.
#pragma once

#ifdef __cplusplus
extern "C" {
#endif

int* __error(void);

#ifdef __cplusplus
}
#endif

#define errno (*__error())
#define EDOM 33
#define ERANGE 34
#define EILSEQ 92
