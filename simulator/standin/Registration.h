// What registers the classes and functions of the frameworks: each folder defines its own.
#pragma once

namespace sim {

// In order: a framework may use the classes of those before it.
void registerDispatch();
void registerFoundation();
void registerQuartzCore();
void registerUIKit();
void registerMediaRemote();
void registerServices();
void registerRadios();
void registerDoNotDisturb();
void registerRunwright();
void registerBackBoard();
void registerSpringBoard();
void registerMediaControls();
void registerCoverSheet();
void registerControlCenter();
void registerPreferences();

// Not the system's: registered when an extension that is loaded names the library
// (launch/Loading.h). Until then the names of its classes and methods are known all the same, so
// that scripts cannot misspell them.
void registerCephei();
void nameCephei();

// Starts the home screen's application as the system does at its launch. Defined by springboard.
void launchSpringBoard();

}  // namespace sim
