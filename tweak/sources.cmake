# The extension's sources, for both of its homes; paths from the top of the repository.
set(DOZEWELL_TWEAK_SOURCES
    tweak/actions/SpecialTasksHelper.cpp
    tweak/actions/Volume.cpp
    tweak/engine/Dozewell2Manager.cpp
    tweak/engine/Persistence.cpp
    tweak/engine/TrackCounting.cpp
    tweak/hooks/DozewellButton.cpp
    tweak/hooks/Launch.cpp
    tweak/hooks/Startup.cpp
    tweak/hooks/Tracing.cpp
    tweak/indicators/Dozewell2TimeLeftIndicatorsManager.cpp
    tweak/panel/Dozewell2ViewController.cpp
    tweak/settings/Dozewell2StorageManager.cpp
    tweak/settings/Registration.cpp
    tweak/support/Log.cpp)
