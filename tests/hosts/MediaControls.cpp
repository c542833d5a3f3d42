// The parts of the Now Playing module, each by itself.
#include "simulator/mediacontrols/Glyphs.h"
#include "simulator/mediacontrols/MRUNowPlayingHeaderView.h"
#include "simulator/uikit/views/UIView.h"
#include "tests/hosts/TestHost.h"

namespace sim {
namespace {

using objc::Object;
using objc::send;
using objc::Strong;

class MediaControls : public TestHost {
 protected:
  static Strong<Object> make(const char* name) {
    return objc::adopt(send<Object, "new">(objc_getClass(name)));
  }
  static CGRect frame(Object view) { return send<CGRect, "frame">(view); }

  Strong<Object> header(long layout, const std::string& title, const std::string& artist) {
    auto made = make("MRUNowPlayingHeaderView");
    send<void, "setFrame:">(made.get(), CGRect{{0, 0}, {289, 64}});
    send<void, "setLayout:">(made.get(), layout);
    const Object labels = send<Object, "labelView">(made.get());
    send<void, "setTitle:">(labels, string(title));
    send<void, "setArtist:">(labels, artist.empty() ? Object() : string(artist));
    send<void, "setRoute:">(labels, string("iPhone"));
    send<void, "setNeedsLayout">(made.get());
    send<void, "layoutIfNeeded">(made.get());
    return made;
  }
};

TEST_F(MediaControls, TheRoutingButtonIsAtTheRightEdgeInEveryLayout) {
  boot();
  for (const long layout : {0L, 1L, 2L, 3L}) {
    const auto made = header(layout, "A", "The Band");
    const CGRect button = frame(send<Object, "routingButton">(made.get()));
    EXPECT_EQ(button.origin.x + button.size.width, 289) << layout;
    EXPECT_EQ(button.size, (CGSize{36, 36})) << layout;
  }
}

TEST_F(MediaControls, NoTextLiesUnderTheButtons) {
  boot();
  const std::string longTitle(200, 'm');
  for (const long layout : {0L, 1L, 2L, 3L}) {
    const auto made = header(layout, longTitle, longTitle);
    const CGRect button = frame(send<Object, "routingButton">(made.get()));
    const CGRect text = frame(send<Object, "labelView">(made.get()));
    const bool isBelow = text.origin.y >= button.origin.y + button.size.height;
    // Also where another button stands 40 points before it.
    EXPECT_TRUE(isBelow || text.origin.x + text.size.width <= button.origin.x - 40) << layout;
  }
}

TEST_F(MediaControls, TheTextIsAsTallAsItNeeds) {
  boot();
  const auto height = [&](const std::string& title, const std::string& artist) {
    const auto made = header(2, title, artist);
    return frame(send<Object, "labelView">(made.get())).size.height;
  };
  EXPECT_LT(height("", ""), height("A", ""));
  EXPECT_LE(height("A", ""), 40);
  EXPECT_GT(height("A", "The Band"), 40);
  // What is too long for its line stays in it.
  EXPECT_EQ(height("One word after another until it is too long", "The Band"),
            height("A", "The Band"));
  // Only the full player says where sound goes to.
  const auto small = header(0, "A", "The Band");
  EXPECT_LE(frame(send<Object, "labelView">(small.get())).size.height, 40);
}

TEST_F(MediaControls, AHeaderMayHideItsRoutingButton) {
  boot();
  const auto made = header(2, "A", "");
  const Object button = send<Object, "routingButton">(made.get());
  send<void, "setShowRoutingButton:">(made.get(), false);
  EXPECT_EQ((send<double, "alpha">(button)), 0);
  send<void, "layoutIfNeeded">(made.get());
  EXPECT_EQ((send<double, "alpha">(button)), 0);
  EXPECT_FALSE((send<bool, "isHidden">(button)));
  send<void, "setShowRoutingButton:">(made.get(), true);
  EXPECT_EQ((send<double, "alpha">(button)), 1);
}

TEST_F(MediaControls, TheRoutingGlyphIsBlueWhileSoundGoesElsewhere) {
  boot();
  const auto button = make("MRUNowPlayingRoutingButton");
  const Object glyph = send<Object, "packageView">(button.get());
  const Object shapes = send<Object, "sublayers">(send<Object, "layer">(glyph));
  const Object triangle = send<Object, "objectAtIndex:">(shapes, 0UL);
  const auto before = objc::retain(send<Object, "fillColor">(triangle));
  send<void, "setActive:">(button.get(), true);
  EXPECT_FALSE((send<bool, "isEqual:">(before.get(), send<Object, "fillColor">(triangle))));
  send<void, "setActive:">(button.get(), false);
  EXPECT_TRUE((send<bool, "isEqual:">(before.get(), send<Object, "fillColor">(triangle))));
}

TEST_F(MediaControls, AnEmbeddingViewShowsOneController) {
  boot();
  const auto embedding = make("MRUEmbeddingView"), first = make("UIViewController"),
             second = make("UIViewController");
  send<void, "setFrame:">(embedding.get(), CGRect{{0, 0}, {100, 50}});
  send<void, "showViewController">(embedding.get());  // none
  send<void, "setEmbeddedViewController:">(embedding.get(), first.get());
  EXPECT_FALSE((send<bool, "isViewLoaded">(first.get())));
  send<void, "showViewController">(embedding.get());
  const Object view = send<Object, "view">(first.get());
  EXPECT_EQ((send<Object, "superview">(view)), embedding.get());
  EXPECT_TRUE((send<bool, "isActive">(embedding.get())));
  EXPECT_EQ(frame(view), (CGRect{{0, 0}, {100, 50}}));
  send<void, "setEmbeddedViewController:">(embedding.get(), second.get());
  EXPECT_FALSE((send<Object, "superview">(view)));
  EXPECT_FALSE((send<bool, "isActive">(embedding.get())));
  send<void, "showViewController">(embedding.get());
  send<void, "removeViewController">(embedding.get());
  EXPECT_FALSE((send<Object, "superview">(send<Object, "view">(second.get()))));
  EXPECT_EQ((send<Object, "embeddedViewController">(embedding.get())), second.get());
}

TEST_F(MediaControls, AnEmbeddedControllerIsAChildOfTheViewsOwn) {
  boot();
  const auto owner = make("UIViewController"), child = make("UIViewController"),
             embedding = make("MRUEmbeddingView");
  send<void, "addSubview:">(send<Object, "view">(owner.get()), embedding.get());
  send<void, "setEmbeddedViewController:">(embedding.get(), child.get());
  send<void, "showViewController">(embedding.get());
  EXPECT_EQ((send<Object, "parentViewController">(child.get())), owner.get());
  send<void, "removeViewController">(embedding.get());
  EXPECT_FALSE((send<Object, "parentViewController">(child.get())));
}

TEST_F(MediaControls, AnEmbeddingViewShowsUnderTheParentThatItIsGiven) {
  boot();
  const auto owner = make("UIViewController"), child = make("UIViewController"),
             embedding = make("MRUEmbeddingView");
  {
    const objc::AutoreleasePool pool;
    const auto parent = make("UIViewController");
    send<void, "embedViewController:parent:">(embedding.get(), child.get(), parent.get());
    EXPECT_EQ((send<Object, "parent">(embedding.get())), parent.get());
    send<void, "showViewController">(embedding.get());
    EXPECT_EQ((send<Object, "parentViewController">(child.get())), parent.get());
    send<void, "hideViewController">(embedding.get());
    EXPECT_FALSE((send<Object, "parentViewController">(child.get())));
  }
  // Not owned.
  EXPECT_FALSE((send<Object, "parent">(embedding.get())));
  send<void, "addSubview:">(send<Object, "view">(owner.get()), embedding.get());
  send<void, "showViewController">(embedding.get());
  EXPECT_EQ((send<Object, "parentViewController">(child.get())), owner.get());
}

TEST_F(MediaControls, AnEmbeddingViewIsAsTallAsItsControllerPrefers) {
  boot();
  const auto embedding = make("MRUEmbeddingView"), child = make("UIViewController");
  send<void, "setPreferredContentSize:">(child.get(), CGSize{10, 70});
  const auto fitting = [&](CGSize room) {
    return send<CGSize, "sizeThatFits:">(embedding.get(), room);
  };
  EXPECT_EQ(fitting({300, 200}), (CGSize{300, 0}));
  send<void, "setEmbeddedViewController:">(embedding.get(), child.get());
  EXPECT_EQ(fitting({300, 200}), (CGSize{300, 70}));
  EXPECT_EQ(fitting({300, 50}), (CGSize{300, 50}));
}

TEST_F(MediaControls, GlyphsStayInTheirSquare) {
  for (const Path& path :
       {transportPath(TransportSymbol::previous), transportPath(TransportSymbol::play),
        transportPath(TransportSymbol::pause), transportPath(TransportSymbol::next),
        routingTriangle(), routingWaves(), notePath()}) {
    EXPECT_FALSE(path.empty());
    for (const PathElement& element : path)
      for (const CGPoint& point : element.points)
        EXPECT_TRUE((CGRect{{}, {glyphSize, glyphSize}}.contains(point)))
            << point.x << ' ' << point.y;
  }
}

}  // namespace
}  // namespace sim
