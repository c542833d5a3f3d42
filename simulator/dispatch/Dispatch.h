// The stand-in for libdispatch: its own names and signatures, on the phone's main queue and clock.
#pragma once

#include <cstdint>

#include "objc/runtime.h"

extern "C" {

struct dispatch_queue_s;
using dispatch_queue_t = dispatch_queue_s*;
using dispatch_time_t = std::uint64_t;
using dispatch_once_t = long;
using dispatch_function_t = void (*)(void* context);

inline constexpr dispatch_time_t DISPATCH_TIME_NOW = 0;
inline constexpr dispatch_time_t DISPATCH_TIME_FOREVER = ~dispatch_time_t(0);

// dispatch_get_main_queue() of the platform's headers is this symbol's address.
extern dispatch_queue_s _dispatch_main_q;

// One queue for every priority.
dispatch_queue_t dispatch_get_global_queue(std::intptr_t identifier, std::uintptr_t flags);

// `block` is a void(^)(void).
void dispatch_async(dispatch_queue_t queue, id block);
void dispatch_async_f(dispatch_queue_t queue, void* context, dispatch_function_t work);
void dispatch_sync(dispatch_queue_t queue, id block);
void dispatch_sync_f(dispatch_queue_t queue, void* context, dispatch_function_t work);
// What is due at DISPATCH_TIME_FOREVER never runs.
void dispatch_after(dispatch_time_t when, dispatch_queue_t queue, id block);
void dispatch_after_f(dispatch_time_t when, dispatch_queue_t queue, void* context,
                      dispatch_function_t work);

// `delta` nanoseconds after `when`; saturates at DISPATCH_TIME_FOREVER and at the earliest time.
dispatch_time_t dispatch_time(dispatch_time_t when, std::int64_t delta);

// Any thread: the others wait until the first has finished.
void dispatch_once(dispatch_once_t* predicate, id block);
void dispatch_once_f(dispatch_once_t* predicate, void* context, dispatch_function_t function);

}  // extern "C"
