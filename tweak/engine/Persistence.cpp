// What the engine keeps over a restart of the host. Nothing is kept yet.
#include "tweak/engine/Dozewell2Manager.h"

void Dozewell2Manager::persistTimerWithTimeInterval(long) {}

void Dozewell2Manager::persistTimerWithNbTracks(long) {}

void Dozewell2Manager::cancelAllPersistedTimers() {}

void Dozewell2Manager::restoreDozewellIfNeeded() {}
