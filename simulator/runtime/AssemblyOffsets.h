// Numbers the assembly sends and the C++ structures must agree on; Class.h and MethodCache.h
// assert them. Only preprocessor lines here: the assembler includes this file too.
#pragma once

#define CLASS_SUPERCLASS_OFFSET 8
#define CLASS_CACHE_OFFSET 16

#define CACHE_MASK_OFFSET 0
#define CACHE_BUCKETS_OFFSET 16

#define BUCKET_SELECTOR_OFFSET 0
#define BUCKET_IMPLEMENTATION_OFFSET 8
#define BUCKET_SIZE 16
