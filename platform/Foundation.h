// Foundation. Every result that is not marked otherwise is +0 (autoreleased).
#pragma once

#include "platform/foundation/Collection.h"
#include "platform/foundation/Process.h"
#include "platform/foundation/String.h"
#include "platform/foundation/Value.h"
