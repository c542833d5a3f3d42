// Numbers the assembly sends and the C++ structures must agree on; Class.h and MethodCache.h and
// Trampolines.cpp assert them. Only preprocessor lines here: the assembler includes this file too.
#pragma once

#define CLASS_SUPERCLASS_OFFSET 8
#define CLASS_CACHE_OFFSET 16

#define CACHE_MASK_OFFSET 0
#define CACHE_BUCKETS_OFFSET 16

#define BUCKET_SELECTOR_OFFSET 0
#define BUCKET_IMPLEMENTATION_OFFSET 8
#define BUCKET_SIZE 16

#define BLOCK_INVOKE_OFFSET 16

// Bytes; a power of two.
#define TRAMPOLINE_SIZE 32
// How far behind its data a trampoline lies: the largest page a system may have.
#if defined(__aarch64__)
#define TRAMPOLINE_DISTANCE 65536
#else
#define TRAMPOLINE_DISTANCE 4096
#endif
