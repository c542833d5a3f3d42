// Remaining time as text.
#pragma once

#include "platform/Foundation.h"

// "05:09", from an hour on "01:05:09"; in the digits that the user reads. +0.
// Seconds may be negative: a duration that waits for its track is overdue.
extern "C" __attribute__((visibility("default"))) id timeFormatted(int seconds);

// What timeFormatted is given for a remaining time in seconds: cut to a whole number, by way of
// single precision.
int wholeSeconds(double seconds);
