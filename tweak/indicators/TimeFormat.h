// Remaining time as text.
#pragma once

#include "platform/Foundation.h"

// "05:09", from an hour on "1:05:09" with two digits at least for the hours; in the user's digits.
// Seconds may be negative: a duration that waits for its track is overdue.
extern "C" __attribute__((visibility("default"))) id timeFormatted(int seconds);

// What timeFormatted is given for a remaining time: single precision, cut to a whole number.
int wholeSeconds(double seconds);
