// Looking up names in what the host has loaded, with the platform's values: they are not Linux's.
#pragma once

#define RTLD_LAZY 0x1
#define RTLD_NOW 0x2
#define RTLD_LOCAL 0x4
#define RTLD_GLOBAL 0x8
#define RTLD_NOLOAD 0x10

#define RTLD_DEFAULT ((void*)-2)

#ifdef __cplusplus
extern "C" {
#endif

void* dlopen(const char* path, int mode);
void* dlsym(void* handle, const char* symbol);  // a function comes signed on arm64e
int dlclose(void* handle);
char* dlerror(void);

#ifdef __cplusplus
}
#endif
