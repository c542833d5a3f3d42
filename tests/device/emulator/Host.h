// The few functions of a phone that the samples call. They hand out and accept pointers signed as
// on a phone, and write down what happens.
#pragma once

#include <string>

class Signing;

namespace host {

// What has happened so far, one word each, with a space before it.
extern std::string journal;

void* resolve(const std::string& symbol);

// Before a slice is loaded.
void start(const Signing& signing);

// The implementation registered for a selector, checked; ends the program when there is none.
void* method(const char* selector);

// The one object of the host.
void* object();

// Runs the blocks that were dispatched, and releases them.
void runQueue();

}  // namespace host
