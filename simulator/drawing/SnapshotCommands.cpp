// Script commands that draw the phone's screen.
#include <cstdlib>
#include <fstream>
#include <iterator>
#include <string>

#include "simulator/drawing/Png.h"
#include "simulator/drawing/Reference.h"
#include "simulator/drawing/SceneBuilder.h"
#include "simulator/drawing/SvgWriter.h"
#include "simulator/phone/script/Command.h"
#include "simulator/phone/script/Session.h"
#include "simulator/uikit/UIScreen.h"

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

void snapshot(Arguments& words) {
  const Word word = words.word("a file, .svg or .png");
  words.finish();
  const path file = besideTheScript(word.text);
  const bool isPng = file.extension() == ".png";
  if (!isPng && file.extension() != ".svg")
    throw ScriptError(word.column, "expected a file, .svg or .png, found " + word.text);
  const std::string svg = svgDocument(screenScene(), embeddedImage);
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
  std::ifstream stream(file, std::ios::binary);
  if (!stream)
    throw ScriptError(0, "there is no " + file.string() +
                             ": with DOZEWELL_UPDATE_SNAPSHOTS=1 in the environment the script "
                             "writes it");
  return {std::istreambuf_iterator<char>(stream), {}};
}

void expectSnapshot(Arguments& words) {
  const Word word = words.word("an .svg file");
  words.finish();
  const path file = besideTheScript(word.text);
  if (file.extension() != ".svg")
    throw ScriptError(word.column, "expected an .svg file, found " + word.text);
  const std::string drawn = svgDocument(screenScene(), namedImage);
  if (updatesReferences()) return write(file, drawn);
  const auto difference = firstDifference(contentsOf(file), drawn);
  if (!difference) return;
  path actual = file;
  write(actual.replace_extension(".actual.svg"), drawn);
  throw ScriptError(word.column, "the screen is not as in " + word.text + ": " + *difference +
                                     "; all of it is in " + actual.filename().string());
}

}  // namespace

void addDrawingCommands(CommandTable& table) {
  drawTransitions();
  table.add({"snapshot", Stage::running, "snapshot FILE", "snapshot screen.png",
             "Draws the screen as it is at this moment, animations included, into a file beside "
             "the script, .svg or .png, replacing it.",
             snapshot});
  table.add({"expect-snapshot", Stage::running, "expect-snapshot FILE",
             "expect-snapshot screen.svg",
             "Requires the screen to be drawn exactly as in an .svg file beside the script; images "
             "count by their paths. Otherwise what was drawn is written to FILE with the extension "
             ".actual.svg. With DOZEWELL_UPDATE_SNAPSHOTS=1 in the environment the file is "
             "written instead of compared.",
             expectSnapshot});
}

}  // namespace sim
