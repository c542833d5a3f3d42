// Read this file first: it is the list of everything that the extension changes in its host.
//
// Two initialisers run, in this order, when the library is loaded: before the host's main, on the
// loading thread. Nothing is ever unhooked.
#include "objc/ClassGroup.h"
#include "objc/Hook.h"
#include "objc/Ownership.h"
#include "platform/Cephei.h"
#include "tweak/actions/SpecialTasksHelper.h"
#include "tweak/engine/Dozewell2Manager.h"
#include "tweak/hooks/DozewellButton.h"
#include "tweak/hooks/Embedding.h"
#include "tweak/hooks/Launch.h"
#include "tweak/hooks/LockScreen.h"
#include "tweak/hooks/NowPlayingHeader.h"
#include "tweak/hooks/Tracing.h"
#include "tweak/hooks/module/EmbeddingModule.h"
#include "tweak/hooks/module/MediaModule.h"
#include "tweak/indicators/Dozewell2TimeLeftIndicatorsManager.h"
#include "tweak/panel/ButtonWithIncreasedTouchArea.h"
#include "tweak/panel/CheckboxButton.h"
#include "tweak/panel/ChooseSnoozeTimeView.h"
#include "tweak/panel/CurrentTimerView.h"
#include "tweak/panel/Dozewell2ImageButton.h"
#include "tweak/panel/Dozewell2ViewController.h"
#include "tweak/panel/OnTimerEndsSettingsView.h"
#include "tweak/settings/Dozewell2StorageManager.h"
#include "tweak/settings/Registration.h"
#include "tweak/support/BundleHelper.h"
#include "tweak/support/CorvaneTweakUtils.h"
#include "tweak/support/HapticFeedbackHelper.h"
#include "tweak/support/LocalizationHelper.h"
#include "tweak/support/Log.h"

namespace {

// The extension's own classes exist in every process that loads it, as they would if the compiler
// had laid them out. All of them or none: each relies on the others.
objc::Refusal registerClasses() {
  // Made later, and only where its superclass exists; its name must be free for that now.
  if (DozewellButton::nameIsTaken()) return {"DozewellButton", "the name is taken"};
  return objc::registerTogether<Dozewell2StorageManager, Dozewell2Manager, SpecialTasksHelper,
                                Dozewell2TimeLeftIndicatorsManager, ButtonWithIncreasedTouchArea,
                                CheckboxButton, Dozewell2ImageButton, ChooseSnoozeTimeView,
                                CurrentTimerView, OnTimerEndsSettingsView, Dozewell2ViewController,
                                CorvaneTweakUtils, BundleHelper, LocalizationHelper,
                                HapticFeedbackHelper>();
}

// So that whoever looks for the timer finds out why it is not there. The host goes on without it.
void logRefusal(const objc::Refusal& refused) {
  (LogLine() << "Dozewell is not installed: class " << refused.className
             << " cannot be registered: " << refused.reason)
      .write();
}

void logMissingLibrary() {
  (LogLine() << "Dozewell is not installed: Cephei, the preferences library, is missing").write();
}

void logUnknownModule() {
  (LogLine() << "Dozewell adds no button: the media module of this system is built in another way")
      .write();
}

bool hasClasses() {
  return Dozewell2StorageManager::cls() != nullptr;
}

bool isHomeScreenProcess() {
  return NSProcessInfo::processInfo().processName().isEqualToString("SpringBoard"_ns);
}

bool isEnabled() {
  return Dozewell2StorageManager::sharedInstance().enabled();
}

void installHeaderHooks() {
  Class header = MRUNowPlayingHeaderView::cls();
  NowPlayingHeader::addButtonProperty();
  objc::hook<"MRUNowPlayingHeaderView", "layoutSubviews", NowPlayingHeader::layoutSubviews>();
  objc::hook<"MRUNowPlayingHeaderView", "setLayout:", NowPlayingHeader::setLayout>();
  objc::hook<"MRUNowPlayingHeaderView",
             "setShowRoutingButton:", NowPlayingHeader::setShowRoutingButton>();
  objc::addMethod<"dozewell_stateChanged:", &NowPlayingHeader::stateChanged>(header);
  objc::hook<"MRUNowPlayingHeaderView", "dealloc", NowPlayingHeader::dealloc>();
}

void installControllerHooks() {
  Class controller = MRUNowPlayingViewController::cls();
  objc::hook<"MRUNowPlayingViewController", "viewDidAppear:", Embedding::viewDidAppear>();
  objc::hook<"MRUNowPlayingViewController", "viewDidLoad", Embedding::viewDidLoad>();
  objc::addMethod<"didSelectDozewellButton:", &Embedding::didSelectDozewellButton>(controller);
  objc::addMethod<"dozewell_expandDozewell:", &Embedding::expandDozewell>(controller);
  objc::hook<"MRUNowPlayingViewController",
             "didSelectRoutingButton:", Embedding::didSelectRoutingButton>();
  objc::addMethod<"dozewell_updateEmbeddedVCWithDozewellVC:", &Embedding::updateEmbeddedController>(
      controller);
  objc::hook<"MRUEmbeddingView", "sizeThatFits:", EmbeddingModule::sizeThatFits>();
  objc::hook<"MRUEmbeddingView", "showViewController", EmbeddingModule::showViewController>();
}

// Nothing where the module is built in a way that the extension does not know: there a second
// routing button would appear in the list of devices, and a tap on the host's would end the host.
void installModuleHooks() {
  if (MediaModule::shape() == MediaModule::Shape::unknown) return logUnknownModule();
  DozewellButton::registerClass();
  installHeaderHooks();
  installControllerHooks();
}

void installHooks() {
  objc::hook<"CCUICAPackageDescription",
             "initWithPackageName:inBundle:", tracePackageDescription>();
  installModuleHooks();
  objc::hook<"SpringBoard", "applicationDidFinishLaunching:", applicationDidFinishLaunching>();
  objc::hook<"UIMotionEvent", "setShakeState:", Embedding::setShakeState>();
}

void installIndicatorHooks() {
  Class timer = CSTimerViewController::cls();
  objc::hook<"CSTimerViewController", "initWithNibName:bundle:", LockScreen::initTimerController>();
  objc::addMethod<"dozewell_startTimerWithDate:", &LockScreen::startCountdown>(timer);
  objc::addMethod<"dozewell_stopTimer", &LockScreen::stopCountdown>(timer);
  Class date = SBFLockScreenDateSubtitleDateView::cls();
  objc::hook<"SBFLockScreenDateSubtitleDateView", "_setDate:inTimeZone:", LockScreen::setDate>();
  objc::addMethod<"dozewell_setNbTracksLeftText", &LockScreen::setTracksLeftText>(date);
  objc::addMethod<"dozewell_setText:", &LockScreen::setText>(date);
  objc::addMethod<"dozewell_restoreOriginalText", &LockScreen::restoreOriginalText>(date);
  objc::hook<"CCUIContentModuleContainerViewController",
             "setExpanded:", LockScreen::setModuleExpanded>();
}

// Priorities, because a compiler that optimises may turn functions round and their order with it.
__attribute__((constructor(101))) void loadSettingsAndHooks() {
  objc::AutoreleasePool pool;
  if (const objc::Refusal refused = registerClasses()) return logRefusal(refused);
  if (!isHomeScreenProcess()) return;
  if (!HBPreferences::isInstalled()) return logMissingLibrary();
  registerSettings();
  if (isEnabled()) installHooks();
}

__attribute__((constructor(102))) void loadIndicators() {
  objc::AutoreleasePool pool;
  if (!hasClasses() || !isHomeScreenProcess()) return;
  if (isEnabled()) installIndicatorHooks();
}

}  // namespace
