# The extension's sources, for both of its homes; paths from the top of the repository.
set(DOZEWELL_TWEAK_SOURCES
    tweak/actions/SpecialTasksHelper.cpp
    tweak/engine/Dozewell2Manager.cpp
    tweak/engine/Dozewell2ManagerCompanions.cpp
    tweak/engine/Dozewell2ManagerPersistence.cpp
    tweak/engine/Dozewell2ManagerTracks.cpp
    tweak/hooks/ButtonPlacement.cpp
    tweak/hooks/DozewellButton.cpp
    tweak/hooks/Embedding.cpp
    tweak/hooks/Glyph.cpp
    tweak/hooks/Launch.cpp
    tweak/hooks/LockScreen.cpp
    tweak/hooks/NowPlayingHeader.cpp
    tweak/hooks/Startup.cpp
    tweak/hooks/Tracing.cpp
    tweak/indicators/Dozewell2TimeLeftIndicatorsManager.cpp
    tweak/indicators/LockScreenViews.cpp
    tweak/indicators/TimeFormat.cpp
    tweak/panel/ButtonWithIncreasedTouchArea.cpp
    tweak/panel/CheckboxButton.cpp
    tweak/panel/ChooseSnoozeTimeView.cpp
    tweak/panel/ChooseSnoozeTimeViewModes.cpp
    tweak/panel/ChooseSnoozeTimeViewSongs.cpp
    tweak/panel/CurrentTimerView.cpp
    tweak/panel/Dozewell2ImageButton.cpp
    tweak/panel/Dozewell2ViewController.cpp
    tweak/panel/Dozewell2ViewControllerActions.cpp
    tweak/panel/Dozewell2ViewControllerTransitions.cpp
    tweak/panel/OnTimerEndsSettingsView.cpp
    tweak/panel/PageLayout.cpp
    tweak/panel/ShortcutCheck.cpp
    tweak/settings/Dozewell2StorageManager.cpp
    tweak/settings/Registration.cpp
    tweak/support/BundleHelper.cpp
    tweak/support/CorvaneTweakUtils.cpp
    tweak/support/HapticFeedbackHelper.cpp
    tweak/support/LocalizationHelper.cpp
    tweak/support/Log.cpp)

set_property(SOURCE ${PROJECT_SOURCE_DIR}/tweak/panel/ShortcutCheck.cpp
             PROPERTY COMPILE_DEFINITIONS ${DOZEWELL_REPOSITORY_DEFINITION})
