// Script commands that draw the phone's screen.
#include <cstdlib>
#include <fstream>
#include <string>

#include "simulator/drawing/Png.h"
#include "simulator/drawing/Reference.h"
#include "simulator/drawing/SceneBuilder.h"
#include "simulator/drawing/SvgWriter.h"
#include "simulator/foundation/Kind.h"
#include "simulator/phone/FileContent.h"
#include "simulator/phone/script/Command.h"
#include "simulator/phone/script/Session.h"
#include "simulator/phone/script/Target.h"
#include "simulator/uikit/UIScreen.h"
#include "simulator/uikit/UIView.h"

namespace sim {
namespace {

using std::filesystem::path;

path besideTheScript(const std::string& file) {
  return Session::current().options.script.parent_path() / file;
}

void write(const path& file, const std::string& text) {
  std::ofstream stream(file, std::ios::binary);
  stream << text;
  if (!stream.flush()) throw ScriptError(0, file.string() + " cannot be written");
}

// The screen, or the view that the next word names.
scene::Node drawnScene(Arguments& words) {
  if (words.atEnd()) return screenScene();
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
  const path file = besideTheScript(word.text);
  const bool isPng = file.extension() == ".png";
  if (!isPng && file.extension() != ".svg")
    throw ScriptError(word.column, "expected a file, .svg or .png, found " + word.text);
  const std::string svg = svgDocument(drawnScene(words), embeddedImage);
  if (isPng)
    writePng(svg, file, UIScreen::mainScale);
  else
    write(file, svg);
}

// Set and not empty: references are written, not compared.
bool updatesReferences() {
  const char* value = std::getenv("DOZEWELL_UPDATE_SNAPSHOTS");
  return value != nullptr && *value != '\0';
}

std::string contentsOf(const path& file) {
  auto content = fileContent(file);
  if (!content)
    throw ScriptError(0, "there is no " + file.string() +
                             ": with DOZEWELL_UPDATE_SNAPSHOTS=1 in the environment the script "
                             "writes it");
  return *std::move(content);
}

void expectSnapshot(Arguments& words) {
  const Word word = words.word("an .svg file");
  const path file = besideTheScript(word.text);
  if (file.extension() != ".svg")
    throw ScriptError(word.column, "expected an .svg file, found " + word.text);
  const std::string drawn = svgDocument(drawnScene(words), namedImage);
  if (updatesReferences()) return write(file, drawn);
  const auto difference = firstDifference(contentsOf(file), drawn);
  if (!difference) return;
  path actual = file;
  write(actual.replace_extension(".actual.svg"), drawn);
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
