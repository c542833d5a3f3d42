// How the libraries that are not the system's get into the host: only through an extension that
// names them, as on a phone. That their package is installed is not enough.
#pragma once

// Registers the classes of the library; once a process. Ends the process for a name that no library
// of the simulator has. Called by the library's image, in whatever format extensions name it.
extern "C" void dozewell_simulator_library_is_loaded(const char* name);
