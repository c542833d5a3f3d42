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
  long layoutBeforeRouting = minimizedLayout;
  MainQueue::Ticket nextSecond = 0;  // the queue's entry for the next step of the time line

  long volumeObserver = 0;  // AudioSystem's number for it; 0 while off the screen

  ~MRUNowPlayingViewController() { stopWatching(); }

  objc::Object initWithNibName_bundle(objc::Object name, objc::Object bundle);
  objc::Object itsDelegate() const { return autorelease(delegate.load()); }
  void setDelegate(objc::Object heard) { delegate = objc::weak(heard); }
  void loadView();
  void viewDidLoad();
  void viewWillAppear(bool animated);
  void viewDidAppear(bool animated);
  void viewDidDisappear(bool animated);
  // The view, and the header in it, change with it.
  void setLayout(long chosen);
  // To the routes, and back to the layout that was there before.
  void didSelectRoutingButton(objc::Object sender);
  // From 16 on.
  void presentRoutingControls(objc::Object source);
  void didSelectRoutingButtonOf(objc::Object transportControls, objc::Object button);
  void setRoutingViewController(objc::Object controller);
  // A change of what plays, or of the volume: the text of both comes from the phone's player.
  void update();

  static void registerClass();

 private:
  objc::Object moduleView() const;  // MRUNowPlayingView; nil before it is loaded
  void connectControls();
  void showEmbedded();
  void makeRoutesLater();
  void showTime();
  void showVolume();
  void stopClock();
  void stopWatching();
};

}  // namespace sim
