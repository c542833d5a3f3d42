// The simulated phone's loader: documents are compiled, put into a bundle and loaded by name.
#include <gtest/gtest.h>

#include "objc/Class.h"
#include "simulator/coregraphics/Geometry.h"
#include "simulator/uikit/nib/NibCoder.h"
#include "tests/nibc/TestDocument.h"
#include "tests/resources/PhoneWithFiles.h"
#include "tools/nibc/Compiler.h"
#include "tools/nibc/nib/Graph.h"
#include "tools/nibc/nib/Writer.h"

namespace sim {
namespace {

using objc::Object;
using objc::Strong;

std::string events;  // what the test's own classes were told, in order

// A view of one's own, with an outlet.
struct NibProbe : objc::Implementation<NibProbe> {
  Strong<Object> outlet;

  Object initWithCoder(Object coder) {
    events += std::string("init ") + (outlet ? "late;" : "early;");
    return super<Object, "initWithCoder:">(coder);
  }
  void setOutlet(Object value) {
    events += "outlet;";
    outlet = objc::retain(value);
  }
  void awakeFromNib() { events += "awake;"; }
  void pressed(Object) { events += "pressed;"; }
  void setSelected(bool) { events += "selected;"; }

  static void registerClass() {
    objc::ClassBuilder<NibProbe>("NibProbe", "UIButton")
        .method<"initWithCoder:", &NibProbe::initWithCoder>()
        .readonlyProperty<"outlet", &NibProbe::outlet>()
        .method<"setOutlet:", &NibProbe::setOutlet>()
        .method<"awakeFromNib", &NibProbe::awakeFromNib>()
        .method<"pressed:", &NibProbe::pressed>()
        .method<"setSelected:", &NibProbe::setSelected>()
        .finish();
  }
};

class Loading : public PhoneWithFiles {
 protected:
  Loading() {
    static const bool registered = (NibProbe::registerClass(), true);
    (void)registered;
    events.clear();
  }

  Object load(const std::string& bytes, Object owner = nullptr) {
    write("/b.bundle/Layout.nib", bytes);
    return objc::send<Object, "loadNibNamed:owner:options:">(bundleAt("/b.bundle"),
                                                             string("Layout"), owner, Object());
  }
  Object compileAndLoad(const std::string& objects, Object owner = nullptr,
                        const std::string& after = "") {
    return load(nib::write(xib::compile(xib::document(objects, after))), owner);
  }
  static Object element(Object array, unsigned long index) {
    return objc::send<Object, "objectAtIndex:">(array, index);
  }
  static unsigned long count(Object array) { return objc::send<unsigned long, "count">(array); }
  static Object subview(Object view, unsigned long index = 0) {
    return element(objc::send<Object, "subviews">(view), index);
  }
  static Object probe() { return objc::autorelease(NibProbe::make()); }
};

std::string proxies(const std::string& ownersConnections = "") {
  return "<placeholder placeholderIdentifier=\"IBFilesOwner\" id=\"-1\"><connections>" +
         ownersConnections +
         "</connections></placeholder>"
         "<placeholder placeholderIdentifier=\"IBFirstResponder\" id=\"-2\"/>";
}

TEST_F(Loading, GivesTheOutermostViewsWithoutTheProxies) {
  const Object loaded = compileAndLoad(proxies() + xib::view(""));
  ASSERT_EQ(count(loaded), 1U);
  EXPECT_TRUE(isKindOf(element(loaded, 0), "UIView"));
}

TEST_F(Loading, PlacesViews) {
  const Object root = element(compileAndLoad(xib::subview("label", "")), 0);
  EXPECT_EQ((objc::send<CGRect, "frame">(root)), (CGRect{{0, 0}, {100, 50}}));
  ASSERT_EQ(count(objc::send<Object, "subviews">(root)), 1U);
  EXPECT_EQ((objc::send<CGRect, "frame">(subview(root))), (CGRect{{10, 20}, {30, 40}}));
  EXPECT_EQ((objc::send<Object, "superview">(subview(root))).get(), root.get());
}

TEST_F(Loading, AnswersForAbsentKeysAsThePlatformDoes) {
  const Object plain = element(compileAndLoad(xib::view("autoresizesSubviews=\"NO\"")), 0);
  EXPECT_FALSE((objc::send<bool, "autoresizesSubviews">(plain)));
  EXPECT_FALSE((objc::send<bool, "isHidden">(plain)));
  EXPECT_TRUE((objc::send<bool, "isUserInteractionEnabled">(plain)));
  EXPECT_EQ((objc::send<double, "alpha">(plain)), 1);
}

TEST_F(Loading, DecodesWhatViewsAreLike) {
  const Object view =
      element(compileAndLoad(xib::view(
                  "hidden=\"YES\" alpha=\"0.25\" tag=\"7\" userInteractionEnabled=\"NO\" "
                  "contentMode=\"center\"",
                  "<color key=\"backgroundColor\" red=\"1\" green=\"0.5\" blue=\"0.1\" alpha=\"1\" "
                  "colorSpace=\"custom\" customColorSpace=\"sRGB\"/>")),
              0);
  EXPECT_TRUE((objc::send<bool, "isHidden">(view)));
  EXPECT_EQ((objc::send<double, "alpha">(view)), 0.25);
  EXPECT_EQ((objc::send<long, "tag">(view)), 7);
  EXPECT_FALSE((objc::send<bool, "isUserInteractionEnabled">(view)));
  EXPECT_EQ((objc::send<long, "contentMode">(view)), 4);
  const Object wanted = objc::send<Object, "colorWithRed:green:blue:alpha:">(
      objc_getClass("UIColor"), 1.0, 0.5, 0.1, 1.0);
  EXPECT_TRUE((objc::send<bool, "isEqual:">(objc::send<Object, "backgroundColor">(view), wanted)));
}

TEST_F(Loading, DecodesLabels) {
  const Object label = subview(element(
      compileAndLoad(xib::subview("label",
                                  "text=\"Größe\" textAlignment=\"center\" numberOfLines=\"0\" "
                                  "minimumScaleFactor=\"0.5\"",
                                  "<fontDescription key=\"fontDescription\" type=\"system\" "
                                  "weight=\"semibold\" pointSize=\"15\"/>")),
      0));
  EXPECT_EQ(text(objc::send<Object, "text">(label)), "Größe");
  EXPECT_EQ((objc::send<long, "textAlignment">(label)), 1);
  EXPECT_EQ((objc::send<long, "numberOfLines">(label)), 0);
  EXPECT_TRUE((objc::send<bool, "adjustsFontSizeToFitWidth">(label)));
  EXPECT_EQ((objc::send<double, "minimumScaleFactor">(label)), 0.5);
  const Object font = objc::send<Object, "font">(label);
  EXPECT_EQ((objc::send<double, "pointSize">(font)), 15);
  EXPECT_EQ(text(objc::send<Object, "fontName">(font)), ".SFUI-Semibold");
}

TEST_F(Loading, DecodesButtonsByState) {
  const Object button =
      subview(element(compileAndLoad(xib::subview("button", "buttonType=\"system\" enabled=\"NO\"",
                                                  "<state key=\"normal\" title=\"Go\"/>"
                                                  "<state key=\"selected\" title=\"Stop\"/>")),
                      0));
  EXPECT_EQ(text(objc::send<Object, "titleForState:">(button, 0UL)), "Go");
  EXPECT_EQ(text(objc::send<Object, "titleForState:">(button, 4UL)), "Stop");
  EXPECT_EQ((objc::send<long, "buttonType">(button)), 1);
  EXPECT_FALSE((objc::send<bool, "isEnabled">(button)));
}

TEST_F(Loading, DecodesConstraintsIntoTheViewsThatOwnThem) {
  const Object root = element(
      compileAndLoad(xib::view("",
                               "<subviews><view id=\"s\" horizontalHuggingPriority=\"251\" "
                               "translatesAutoresizingMaskIntoConstraints=\"NO\"><rect "
                               "key=\"frame\" x=\"0\" y=\"0\" width=\"1\" height=\"1\"/></view>"
                               "</subviews><constraints><constraint firstItem=\"s\" "
                               "firstAttribute=\"leading\" relation=\"lessThanOrEqual\" "
                               "secondItem=\"v\" secondAttribute=\"trailing\" multiplier=\"0.5\" "
                               "constant=\"6\" priority=\"999\" identifier=\"gap\" id=\"c\"/>"
                               "</constraints>")),
      0);
  const Object inner = subview(root);
  EXPECT_FALSE((objc::send<bool, "translatesAutoresizingMaskIntoConstraints">(inner)));
  EXPECT_TRUE((objc::send<bool, "translatesAutoresizingMaskIntoConstraints">(root)));
  EXPECT_EQ((objc::send<float, "contentHuggingPriorityForAxis:">(inner, 0L)), 251);
  EXPECT_EQ((objc::send<float, "contentHuggingPriorityForAxis:">(inner, 1L)), 250);
  EXPECT_EQ((objc::send<float, "contentCompressionResistancePriorityForAxis:">(inner, 0L)), 750);
  const Object constraints = objc::send<Object, "constraints">(root);
  ASSERT_EQ(count(constraints), 1U);
  const Object constraint = element(constraints, 0);
  EXPECT_EQ((objc::send<Object, "firstItem">(constraint)).get(), inner.get());
  EXPECT_EQ((objc::send<Object, "secondItem">(constraint)).get(), root.get());
  EXPECT_EQ((objc::send<long, "firstAttribute">(constraint)), 5);
  EXPECT_EQ((objc::send<long, "secondAttribute">(constraint)), 6);
  EXPECT_EQ((objc::send<long, "relation">(constraint)), -1);
  EXPECT_EQ((objc::send<double, "multiplier">(constraint)), 0.5);
  EXPECT_EQ((objc::send<double, "constant">(constraint)), 6);
  EXPECT_EQ((objc::send<float, "priority">(constraint)), 999);
  EXPECT_EQ(text(objc::send<Object, "identifier">(constraint)), "gap");
  EXPECT_TRUE((objc::send<bool, "isActive">(constraint)));
}

TEST_F(Loading, DecodesStacks) {
  const Object stack = subview(element(
      compileAndLoad(xib::subview("stackView",
                                  "axis=\"vertical\" distribution=\"fillEqually\" "
                                  "alignment=\"center\" spacing=\"6.5\"",
                                  "<subviews><view id=\"a\"><rect key=\"frame\" x=\"0\" y=\"0\" "
                                  "width=\"1\" height=\"1\"/></view></subviews>")),
      0));
  EXPECT_EQ((objc::send<long, "axis">(stack)), 1);
  EXPECT_EQ((objc::send<long, "distribution">(stack)), 1);
  EXPECT_EQ((objc::send<long, "alignment">(stack)), 3);
  EXPECT_EQ((objc::send<double, "spacing">(stack)), 6.5);
  const Object arranged = objc::send<Object, "arrangedSubviews">(stack);
  ASSERT_EQ(count(arranged), 1U);
  EXPECT_EQ(element(arranged, 0).get(), subview(stack).get());
}

TEST_F(Loading, InitialisesThenConnectsThenAwakes) {
  const Object root = element(
      compileAndLoad(xib::subview("button", "customClass=\"NibProbe\"",
                                  "<connections><outlet property=\"outlet\" destination=\"v\" "
                                  "id=\"o\"/></connections>")),
      0);
  EXPECT_EQ(events, "init early;outlet;awake;");
  EXPECT_EQ((objc::send<Object, "outlet">(subview(root))).get(), root.get());
}

TEST_F(Loading, SendsNoMessagesForStatesThatAreOff) {
  compileAndLoad(xib::subview("button", "customClass=\"NibProbe\""));
  EXPECT_EQ(events, "init early;awake;");
}

TEST_F(Loading, ConnectsTheOwner) {
  const Object owner = probe();
  const std::string outlet = "<outlet property=\"outlet\" destination=\"v\" id=\"o\"/>";
  const Object root = element(compileAndLoad(proxies(outlet) + xib::view(""), owner), 0);
  EXPECT_EQ((objc::send<Object, "outlet">(owner)).get(), root.get());
  EXPECT_EQ(events, "outlet;");  // the owner is not of the layout: it does not awake
}

TEST_F(Loading, ConnectsActions) {
  const Object owner = probe();
  const auto action = [](const char* to, const char* id) {
    return std::string("<action selector=\"pressed:\" destination=\"") + to +
           "\" eventType=\"touchUpInside\" id=\"" + id + "\"/>";
  };
  const Object root =
      element(compileAndLoad(proxies() + xib::subview("button", "",
                                                      "<connections>" + action("-1", "a") +
                                                          action("-2", "b") + "</connections>"),
                             owner),
              0);
  const Object button = subview(root);
  const auto names = [&](Object target) {
    return objc::send<Object, "actionsForTarget:forControlEvent:">(button, target, 64UL);
  };
  EXPECT_EQ(text(element(names(owner), 0)), "pressed:");
  EXPECT_EQ(text(element(names(nullptr), 0)), "pressed:");  // up the responder chain
  objc::send<void, "sendActionsForControlEvents:">(button, 64UL);
  EXPECT_EQ(events, "pressed;");
}

TEST_F(Loading, SetsRuntimeAttributes) {
  const Object root =
      element(compileAndLoad(xib::view("",
                                       "<userDefinedRuntimeAttributes><userDefinedRuntimeAttribute "
                                       "type=\"number\" keyPath=\"tag\"><integer key=\"value\" "
                                       "value=\"8\"/></userDefinedRuntimeAttribute>"
                                       "</userDefinedRuntimeAttributes>")),
              0);
  EXPECT_EQ((objc::send<long, "tag">(root)), 8);
}

TEST_F(Loading, FallsBackOnTheOriginalClass) {
  const Object root = element(compileAndLoad(xib::view("customClass=\"Unheard\"")), 0);
  EXPECT_STREQ(object_getClassName(root.get()), "UIView");
  EXPECT_EQ(TestPhone::count("log \"Unknown class Unheard in Interface Builder file.\""), 1);
}

TEST_F(Loading, NamesImagesThatAreNotThere) {
  compileAndLoad(xib::subview("imageView", "image=\"moon\""), nullptr,
                 "<resources><image name=\"moon\" width=\"1\" height=\"1\"/></resources>");
  EXPECT_EQ(TestPhone::count("log \"Could not load the \\\"moon\\\" image referenced from a nib "
                             "in the bundle with identifier \\\"(null)\\\"\""),
            1);
}

TEST_F(Loading, FreesEverythingWithTheOutermostViews) {
  objc::Weak<Object> root, inner;
  {
    const objc::AutoreleasePool pool;
    const Object loaded = element(compileAndLoad(xib::subview("label", "")), 0);
    root = objc::weak(loaded);
    inner = objc::weak(subview(loaded));
  }
  EXPECT_FALSE(root.load());
  EXPECT_FALSE(inner.load());
}

TEST_F(Loading, WorksThroughUINibAsOftenAsOneLikes) {
  write("/b.bundle/Layout.nib", nib::write(xib::compile(xib::document(xib::view("")))));
  const Object nib = objc::send<Object, "nibWithNibName:bundle:">(
      objc_getClass("UINib"), string("Layout"), bundleAt("/b.bundle"));
  const auto instantiate = [&] {
    return element(objc::send<Object, "instantiateWithOwner:options:">(nib, Object(), Object()), 0);
  };
  EXPECT_NE(instantiate().get(), instantiate().get());
}

TEST_F(Loading, StopsWithThePlatformsMessages) {
  std::filesystem::create_directories(phone.file("/b.bundle"));
  EXPECT_DEATH((objc::send<Object, "loadNibNamed:owner:options:">(
                   bundleAt("/b.bundle"), string("None"), Object(), Object())),
               "NSInternalInconsistencyException.*Could not load NIB in bundle: .* with name "
               "'None'");
  EXPECT_DEATH(load("no layout at all"),
               "the nib 'Layout' cannot be read: offset 0: is no compiled layout");
  const std::string outlet = "<outlet property=\"unheard\" destination=\"v\" id=\"o\"/>";
  EXPECT_DEATH(compileAndLoad(proxies(outlet) + xib::view(""), probe()),
               "not key value coding-compliant for the key unheard");
}

// A layout of the test's own, around one object that stands in the list of outermost ones.
std::string layoutAround(nib::Graph& graph, nib::Node* object) {
  nib::Node* root = graph.make("NSObject");
  root->setObject("UINibTopLevelObjectsKey", graph.array({object}));
  return nib::write(nib::Graph::archive(root));
}

TEST_F(Loading, NamesAbsentClassesAndUsesTheirFallbacks) {
  nib::Graph graph;
  const std::string bytes = layoutAround(graph, graph.make("UIUnheard"));
  EXPECT_DEATH(load(bytes),
               "NSInvalidUnarchiveOperationException.*Could not instantiate class "
               "named UIUnheard because no class named UIUnheard was found");
  nib::Node* root = graph.make("NSObject");
  root->setObject("UINibTopLevelObjectsKey", graph.array({graph.make("UIUnheard")}));
  nib::Archive archive = nib::Graph::archive(root);
  archive.classes.push_back({"UIView", {}});
  archive.classes[2].fallbacks = {3};
  ASSERT_EQ(archive.classes[2].name, "UIUnheard");
  EXPECT_TRUE(isKindOf(element(load(nib::write(archive)), 0), "UIView"));
}

TEST_F(Loading, RefusesWhatIsNoConstraint) {
  nib::Graph graph;
  nib::Node* view = graph.make("UIView");
  view->setObject("UIViewAutolayoutConstraints", graph.array({graph.make("NSArray")}));
  EXPECT_DEATH(load(layoutAround(graph, view)),
               "expected an object of class NSLayoutConstraint, found one of class NSArray");
}

TEST_F(Loading, RefusesConstraintsOfWhatIsNoView) {
  nib::Graph graph;
  nib::Node* view = graph.make("UIView");
  nib::Node* constraint = graph.make("NSLayoutConstraint");
  constraint->setObject("NSFirstItem", graph.make("NSArray"));
  view->setObject("UIViewAutolayoutConstraints", graph.array({constraint}));
  EXPECT_DEATH(load(layoutAround(graph, view)),
               "expected an object of class UIView, found one of class NSArray");
}

// What an initWithCoder: finds under keys of every type.
struct CoderProbe : objc::Implementation<CoderProbe> {
  static inline std::string seen;

  Object initWithCoder(Object source) {
    const NibCoder coder(source);
    const auto note = [](double value) { seen += notation(number(value)) + ' '; };
    note(coder.number("float"));
    note(coder.number("int"));  // no getter of floats reads integers
    note(double(coder.integer("int")));
    note(double(coder.integer("float")));
    note(double(coder.flag("int")));
    note(double(coder.has("nothing")));
    note(double(coder.has("int")));
    note(coder.rect("rect").size.height);
    note(coder.point("rect").x);          // another number of numbers
    seen += text(coder.object("again"));  // a repeated key gives its values in turn
    seen += ' ' + text(coder.object("again"));
    return super<Object, "init">();
  }
};

TEST_F(Loading, ReadsValuesByTheRulesOfTheirTypes) {
  objc::ClassBuilder<CoderProbe>("CoderProbe", "NSObject")
      .method<"initWithCoder:", &CoderProbe::initWithCoder>()
      .finish();
  nib::Graph graph;
  nib::Node* object = graph.make("CoderProbe");
  object->setFloat("float", 0.5F);
  object->setInteger("int", 300);
  object->setData("rect", std::string("\7", 1) + std::string(24, '\0') +
                              std::string("\0\0\0\0\0\0\xf0\x3f", 8));
  object->setObject("again", graph.string("one"));
  object->setObject("again", graph.string("two"));
  load(layoutAround(graph, object));
  EXPECT_EQ(CoderProbe::seen, "0.5 0 300 0 1 0 1 1 0 one two");
}

TEST_F(Loading, AnArrayWithANilElementIsNil) {
  nib::Graph graph;
  nib::Node* holder = graph.make("UIButtonContent");
  nib::Node* image = graph.make("UIImageNibPlaceholder");  // of no image: nil
  image->setObject("UIResourceName", graph.string("none"));
  holder->setObject("UITitle", graph.array({graph.string("a"), image}));
  const Object content = element(load(layoutAround(graph, holder)), 0);
  EXPECT_TRUE(isKindOf(content, "UIButtonContent"));
  EXPECT_EQ((objc::send<Object, "title">(content)).get(), nullptr);
}

}  // namespace
}  // namespace sim
