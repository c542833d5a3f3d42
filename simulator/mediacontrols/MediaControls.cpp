// What the Now Playing module is made of.
#include "simulator/mediacontrols/MPButton.h"
#include "simulator/mediacontrols/MPMediaControls.h"
#include "simulator/mediacontrols/MRUArtworkView.h"
#include "simulator/mediacontrols/MRUControlCenterView.h"
#include "simulator/mediacontrols/MRUControlCenterViewController.h"
#include "simulator/mediacontrols/MRUEmbeddingView.h"
#include "simulator/mediacontrols/MRUMediaControlsModule.h"
#include "simulator/mediacontrols/MRUNowPlayingContainerView.h"
#include "simulator/mediacontrols/MRUNowPlayingHeaderView.h"
#include "simulator/mediacontrols/MRUNowPlayingLabelView.h"
#include "simulator/mediacontrols/MRUNowPlayingRoutingButton.h"
#include "simulator/mediacontrols/MRUNowPlayingTimeControl.h"
#include "simulator/mediacontrols/MRUNowPlayingTransportControlsView.h"
#include "simulator/mediacontrols/MRUNowPlayingView.h"
#include "simulator/mediacontrols/MRUNowPlayingViewController.h"
#include "simulator/mediacontrols/MRURoutingViewController.h"
#include "simulator/mediacontrols/MRUTransportButton.h"
#include "simulator/mediacontrols/MusicView.h"
#include "simulator/standin/Registration.h"

namespace sim {

void registerMediaControls() {
  MPButton::registerClass();
  MPMediaControls::registerClass();
  MRUNowPlayingRoutingButton::registerClass();
  MRUNowPlayingLabelView::registerClass();
  MRUArtworkView::registerClass();
  MRUNowPlayingHeaderView::registerClass();
  MRUNowPlayingTimeControl::registerClass();
  MRUTransportButton::registerClass();
  MRUNowPlayingTransportControlsView::registerClass();
  MRUEmbeddingView::registerClass();
  MRUNowPlayingContainerView::registerClass();
  MRUNowPlayingView::registerClass();
  MRURoutingViewController::registerClass();
  MRUNowPlayingViewController::registerClass();
  MRUControlCenterView::registerClass();
  MRUControlCenterViewController::registerClass();
  MRUMediaControlsModule::registerClass();
  MusicView::registerClass();
  addMusicApplication();
}

}  // namespace sim
