// What a screen reader says, in the user's language: from a table of its own in the bundle.
#pragma once

#include "platform/Foundation.h"

namespace SpokenText {

// nil without the bundle, so that the platform's own words stay; the key itself when the table does
// not have it.
NSString localized(const char* key);

// The text of that key in the form that follows the number, with the number in it: "12 minutes".
NSString counted(const char* key, long number);

}  // namespace SpokenText
