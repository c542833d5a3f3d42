// What is left of the timer, in words, for whoever does not see the clock.
#pragma once

#include "platform/Foundation.h"

// "1 hour 12 minutes left", "3 songs left"; nil while no timer runs. Minutes are those that the
// clock shows; seconds would be over before they are said.
NSString spokenTimeLeft();

// Of a duration: changes when, and only when, what spokenTimeLeft() says of it does. 0 while none
// runs.
long minutesToTell();
