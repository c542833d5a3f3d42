// UIKit.
#pragma once

#include "platform/uikit/Animation.h"
#include "platform/uikit/Appearance.h"
#include "platform/uikit/Control.h"
#include "platform/uikit/Controller.h"
#include "platform/uikit/Device.h"
#include "platform/uikit/Geometry.h"
#include "platform/uikit/View.h"
