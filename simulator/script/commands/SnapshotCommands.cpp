// Script commands that draw the phone's screen.
#include <cstdlib>
#include <string>

#include "simulator/drawing/Png.h"
#include "simulator/drawing/Reference.h"
#include "simulator/drawing/SceneBuilder.h"
#include "simulator/drawing/SvgWriter.h"
#include "simulator/foundation/Kind.h"
#include "simulator/script/Command.h"
#include "simulator/script/ScriptFiles.h"
#include "simulator/script/Session.h"
#include "simulator/script/values/Target.h"
#include "simulator/uikit/application/UIScreen.h"
#include "simulator/uikit/views/UIView.h"

namespace sim {
namespace {

using std::filesystem::path;

std::string endingOf(const Word& file) {
  return path(file.text).extension().string();
}

// The screen, or the view that the next word names.
scene::Node drawnScene(Arguments& words) {
  if (words.atEnd()) {
    words.finish();
    return screenScene();
  }
  const Word word = words.word("a view");
  words.finish();
  const objc::Object view = targetObject(word);
  const CALayer* layer = isA<UIView>(view) ? stateOf<CALayer>(UIView::layerOf(view)) : nullptr;
  if (layer == nullptr)
    throw ScriptError(word.column,
                      word.text + ": expected a view, found " + object_getClassName(view.get()));
  return sceneOf(*layer, Session::current().phone.clock.uptime());
}

void snapshot(Arguments& words) {
  const Word word = words.word("a file, .svg or .png");
  const bool isPng = endingOf(word) == ".png";
  if (!isPng && endingOf(word) != ".svg")
    throw ScriptError(word.column, "expected a file, .svg or .png, found " + word.text);
  const std::string svg = svgDocument(drawnScene(words), embeddedImage);
  scriptFiles().write(word, isPng ? pngOf(svg, UIScreen::mainScale) : svg);
}

// Set and not empty: references are written, not compared.
bool updatesReferences() {
  const char* value = std::getenv("DOZEWELL_UPDATE_SNAPSHOTS");
  return value != nullptr && *value != '\0';
}

std::string contentsOf(const Word& file) {
  auto content = scriptFiles().read(file);
  if (!content)
    throw ScriptError(0, "there is no " + scriptFiles().shown(file) +
                             ": with DOZEWELL_UPDATE_SNAPSHOTS=1 in the environment the script "
                             "writes it");
  return *std::move(content);
}

void expectSnapshot(Arguments& words) {
  const Word word = words.word("an .svg file");
  if (endingOf(word) != ".svg")
    throw ScriptError(word.column, "expected an .svg file, found " + word.text);
  const std::string drawn = svgDocument(drawnScene(words), namedImage);
  if (updatesReferences()) return scriptFiles().write(word, drawn);
  const auto difference = firstDifference(contentsOf(word), drawn);
  if (!difference) return;
  path actual = word.text;
  actual.replace_extension(".actual.svg");
  scriptFiles().write({actual.string(), word.quoted, word.column}, drawn);
  throw ScriptError(word.column, "what is drawn is not as in " + word.text + ": " + *difference +
                                     "; all of it is in " + actual.filename().string());
}

}  // namespace

void addDrawingCommands(CommandTable& table) {
  drawTransitions();
  table.add({"snapshot", Stage::running, "snapshot FILE [TARGET]", "snapshot screen.png",
             "Draws the screen, or one view, as it is at this moment, animations included, into a "
             "file beside the script, .svg or .png, replacing it.",
             snapshot});
  table.add({"expect-snapshot", Stage::running, "expect-snapshot FILE [TARGET]",
             "expect-snapshot screen.svg",
             "Requires the screen, or one view, to be drawn exactly as in an .svg file beside the "
             "script; images "
             "count by their paths. Otherwise what was drawn is written to FILE with the extension "
             ".actual.svg. With DOZEWELL_UPDATE_SNAPSHOTS=1 in the environment the file is "
             "written instead of compared.",
             expectSnapshot});
}

}  // namespace sim
