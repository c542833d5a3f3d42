// Pages of the panel that are laid out in a file of the resource bundle.
#pragma once

#include "objc/Ownership.h"
#include "platform/UIKit.h"

// For the init of a view that its layout file replaces: loads the layout with `initialised`, the
// object that was sent init, as its owner, releases that object, and gives the first view of the
// layout in its place. Empty without the bundle; a bundle without the layout ends the host.
objc::Strong<UIView> pageFromLayout(NSString name, id initialised);
