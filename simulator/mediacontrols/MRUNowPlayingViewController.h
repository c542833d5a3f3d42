// The controller of the Now Playing module, in Control Center and on the lock screen.
#pragma once

#include "objc/Class.h"
#include "simulator/machine/MainQueue.h"
#include "simulator/mediacontrols/MRULayout.h"

namespace sim {

struct MRUNowPlayingViewController : objc::Implementation<MRUNowPlayingViewController> {
  objc::Strong<objc::Object> routingViewController;  // MRURoutingViewController
  objc::Weak<objc::Object> delegate;                 // hears of the ways to the routes and back
  long layout = minimizedLayout;
  // How the routes are shown: in the player, or on the system's own sheet.
  static constexpr long inThePlayer = 0, onASheet = 1;
  long routeControlsPresentation = inThePlayer;
  objc::Strong<objc::Object> mediaControls;  // MPMediaControls, once it was needed
  MainQueue::Ticket nextSecond = 0;          // the queue's entry for the next step of the time line

  // AudioSystem's and Radios' numbers for it; 0 while off the screen
  long volumeObserver = 0, routeObserver = 0;

  ~MRUNowPlayingViewController() { stopWatching(); }

  objc::Object initWithNibName_bundle(objc::Object name, objc::Object bundle);
  objc::Object itsDelegate() const { return autorelease(delegate.load()); }
  void setDelegate(objc::Object heard) { delegate = objc::weak(heard); }
  void loadView();
  void viewDidLoad();
  void viewWillAppear(bool animated);
  void viewDidAppear(bool animated);
  void viewDidDisappear(bool animated);
  // The view, and the header in it, change with it. Nothing happens when it is set already.
  void setLayout(long chosen);
  // Its routes come on the system's sheet; before its view is loaded.
  void presentRoutesOnASheet();
  void didSelectRoutingButton(objc::Object sender);
  // To the routes, and from them to the full player: whoever shows the player decides how.
  void presentRoutingControls(objc::Object source);
  void presentExternalRoutingControls(objc::Object source);
  // After a change of the route: one that cannot be played on together with others has no routes.
  void updateLayout();
  void didSelectRoutingButtonOf(objc::Object transportControls, objc::Object button);
  void setRoutingViewController(objc::Object controller);
  // A change of what plays, or of the volume: the text of both comes from the phone's player.
  void update();

  static void registerClass();

 private:
  objc::Object moduleView() const;  // MRUNowPlayingView; nil before it is loaded
  void connectControls();
  void apply(long wanted);
  void showEmbedded();
  static objc::Strong<objc::Object> makeRoutes();  // MRURoutingViewController
  void makeRoutesLater();
  void showTime();
  void showVolume();
  void stopClock();
  void stopWatching();
};

}  // namespace sim
