// Which form of a noun follows a number.
#pragma once

#include "platform/Foundation.h"

enum class PluralForm { one, two, few, other };

// `rule` is the language's, as the tables of texts name it: "none", "one", "zero-or-one", "hebrew",
// "arabic", "polish" or "east-slavic". Under a rule that is unknown every number takes `other`.
PluralForm pluralForm(NSString rule, long number);
