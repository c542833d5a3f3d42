// The panel coming and going.
#include "tweak/engine/Dozewell2Manager.h"
#include "tweak/panel/Dozewell2ViewControllerImplementation.h"

using Panel = Dozewell2ViewControllerImplementation;

namespace {

constexpr double seconds = 0.3;
constexpr unsigned long noOptions = 0;

template <class Visit>
void forEachView(NSArray views, Visit visit) {
  for (unsigned long i = 0; i < views.count(); ++i)
    visit(objc::as<UIView>(views.objectAtIndex(i)), i);
}

void setHidden(NSArray views, bool hidden) {
  forEachView(views, [hidden](UIView view, unsigned long) { view.setHidden(hidden); });
}

void setAlpha(NSArray views, double alpha) {
  forEachView(views, [alpha](UIView view, unsigned long) { view.setAlpha(alpha); });
}

// One panel height below its place.
CGRect below(CGRect frame) {
  return rect(0, frame.size.height, frame.size.width, frame.size.height);
}

}  // namespace

void Panel::showChooseSnoozeTimeView_transitionView_slideAnimated(bool show, UIView transition,
                                                                  bool slide) {
  chooseSnoozeTimeViewShowed = show;
  currentTimerView->setHidden(true);
  if (!show) return show_slideAnimated_transitionView(false, slide, transition);

  chooseSnoozeTimeView->setHidden(false);
  containerFrame = view().frame();
  containerView = objc::retain(transition);
  transitionViewsOriginalFramesArray = objc::retain(NSMutableArray::array());
  forEachView(transitionViews, [this](UIView host, unsigned long) {
    transitionViewsOriginalFramesArray->addObject(NSValue::valueWithCGRect(host.frame()));
  });
  view().setHidden(false);
  chooseSnoozeTimeView->setFrame(rect(0, 0, containerFrame.size.width, containerFrame.size.height));
  show_slideAnimated_transitionView(true, slide, transition);
}

// Unlike the other page, this one does not note the frames of the host's views.
void Panel::showCurrentTimerView_transitionView_slideAnimated(bool show, UIView transition,
                                                              bool slide) {
  currentTimerViewShowed = show;
  chooseSnoozeTimeView->setHidden(true);
  if (show) {
    currentTimerView->setHidden(false);
    currentTimerView->setupViewWithMode(selectedMode());
    currentTimerView->hideBottomButtons(false);
    containerFrame = view().frame();
    containerView = objc::retain(transition);
    currentTimerView->setFrame(rect(0, 0, containerFrame.size.width, containerFrame.size.height));
    view().setHidden(false);
  }
  show_slideAnimated_transitionView(show, slide, transition);
}

void Panel::show_slideAnimated_transitionView(bool show, bool slide, UIView) {
  if (show && slide) return slideIn();
  if (show) return fadeIn();
  if (slide) return slideOut();
  fadeOut();
}

// The completion puts back what the animation changed, hidden: whoever shows the host's views again
// finds them as they were.
void Panel::fadeIn() {
  view().setAlpha(0);
  view().setFrame(containerFrame);
  UIKit::animate(
      seconds,
      [panel = retained()] {
        panel->view().setAlpha(1);
        setAlpha(panel->transitionViews, 0);
      },
      UIKit::completion([panel = retained()] {
        setHidden(panel->transitionViews, true);
        setAlpha(panel->transitionViews, 1);
        panel->hasBeenShownUsingSlideAnimation = false;
      }));
}

void Panel::slideIn() {
  view().setFrame(below(containerFrame));
  UIKit::animate(
      seconds, 0, noOptions,
      [panel = retained()] {
        forEachView(panel->transitionViews, [](UIView host, unsigned long) {
          const auto [origin, size] = host.frame();
          host.setFrame(rect(origin.x, -size.height, size.width, size.height));
        });
        panel->view().setFrame(panel->containerFrame);
      },
      UIKit::completion([panel = retained()] {
        setHidden(panel->transitionViews, true);
        panel->hasBeenShownUsingSlideAnimation = true;
      }));
}

void Panel::slideOut() {
  setHidden(transitionViews, false);
  UIKit::animate(
      seconds, 0, noOptions,
      [panel = retained()] {
        forEachView(panel->transitionViews, [&panel](UIView host, unsigned long index) {
          const auto frame = panel->transitionViewsOriginalFramesArray->objectAtIndex(index);
          host.setFrame(objc::as<NSValue>(frame).CGRectValue());
        });
        panel->view().setFrame(below(panel->containerFrame));
      },
      UIKit::completion([panel = retained()] { panel->view().setHidden(true); }));
}

void Panel::fadeOut() {
  setHidden(transitionViews, false);
  setAlpha(transitionViews, 0);
  UIKit::animate(
      seconds,
      [panel = retained()] {
        setAlpha(panel->transitionViews, 1);
        panel->view().setAlpha(0);
      },
      UIKit::completion([panel = retained()] {
        panel->view().setHidden(true);
        panel->view().setAlpha(1);
      }));
}

void Panel::dismissCurrentView() {
  if (chooseSnoozeTimeViewShowed) {
    showChooseSnoozeTimeView_transitionView_slideAnimated(false, nullptr, false);
    // The actions page is a layer over the choose-time page, not a state of its own.
    if (!onTimerEndsSettingsView->isHidden()) hideOnTimerEndsSettingsView();
  } else if (currentTimerViewShowed) {
    showCurrentTimerView_transitionView_slideAnimated(false, nullptr, false);
  }
}

void Panel::dismissDozewell() {
  dismissCurrentView();
  const auto engine = Dozewell2Manager::sharedInstance();
  const auto last = engine.currentNowPlayingVC();
  last.dozewell_expandDozewell(false);
  // The host loads a player for every device that it finds, beside the one that shows the panel:
  // left in its routing layout that one would show an empty place. The last may have gone with its
  // device meanwhile. A player that was never in a module is where the panel returns to, as ever
  // (road-two-controllers).
  const bool isOfTheHost = last.parentViewController() || last.delegate();
  if (!isOfTheHost || !engine.isShowingDozewellUI()) return;
  const auto holder = UIViewController(self()).parentViewController();
  if (holder.get() != last.get() && isKindOf<MRUNowPlayingViewController>(holder))
    objc::as<DozewellNowPlayingController>(holder).dozewell_expandDozewell(false);
}
