#include "simulator/drawing/SceneJson.h"

#include <cmath>

#include "simulator/drawing/SvgContent.h"
#include "simulator/drawing/SvgElement.h"

namespace sim {
namespace {

using nlohmann::json;

// What no screen could show is left away.
json rounded(double value) {
  constexpr double precision = 1e4;
  const double near = std::round(value * precision) / precision;
  return near == std::floor(near) && std::abs(near) < 1e9 ? json(long(near)) : json(near);
}

json rectangle(const CGRect& rect) {
  return {rounded(rect.origin.x), rounded(rect.origin.y), rounded(rect.size.width),
          rounded(rect.size.height)};
}

// "#rrggbbaa"
json written(const scene::Color& color) {
  constexpr std::size_t alphaDigits = 2;
  const std::string alpha = svgColor({0, 0, color[3], 0}).substr(5, alphaDigits);
  return svgColor(color) + alpha;
}

json contentJson(std::monostate) {
  return {};
}

json contentJson(const scene::Text& text) {
  constexpr const char* alignments[] = {"left", "center", "right"};
  json lines = json::array();
  for (const TextLine& line : text.lines)
    lines.push_back({{"text", line.text},
                     {"width", rounded(line.width)},
                     {"spacing", rounded(line.isTracked ? text.style.tracking() : 0)}});
  return {{"type", "text"},
          {"lines", lines},
          {"size", rounded(text.style.pointSize)},
          {"weight", text.style.cssWeight()},
          {"display", text.style.isDisplay()},
          {"monospacedDigits", text.style.monospacedDigits},
          {"color", written(text.color)},
          {"baseline", rounded(text.baseline)},
          {"lineHeight", rounded(text.style.lineHeight())},
          {"alignment", alignments[int(text.alignment)]},
          {"rightToLeft", text.isRightToLeft}};
}

json contentJson(const scene::Image& image) {
  json made = {{"type", "image"}, {"file", image.file}, {"frame", rectangle(image.frame)}};
  if (image.tint) made["tint"] = written(*image.tint);
  if (image.isMirrored) made["mirrored"] = true;
  return made;
}

json contentJson(const scene::Shape& shape) {
  constexpr const char* caps[] = {"butt", "round", "square"};
  constexpr const char* joins[] = {"miter", "round", "bevel"};
  json made = {{"type", "shape"}, {"path", svgPath(shape.path)}};
  if (shape.fill) made["fill"] = written(*shape.fill);
  made["rule"] = shape.rule == FillRule::evenOdd ? "evenodd" : "nonzero";
  if (const auto& stroke = shape.stroke)
    made["stroke"] = {{"color", written(stroke->color)},
                      {"width", rounded(stroke->width)},
                      {"cap", caps[int(stroke->cap)]},
                      {"join", joins[int(stroke->join)]},
                      {"miterLimit", rounded(stroke->miterLimit)},
                      {"dashes", stroke->dashes},
                      {"dashPhase", rounded(stroke->dashPhase)}};
  return made;
}

json contentJson(const scene::Gradient& gradient) {
  json stops = json::array();
  for (const auto& stop : gradient.stops)
    stops.push_back({{"at", rounded(stop.at)}, {"color", written(stop.color)}});
  return {{"type", "gradient"},
          {"stops", stops},
          {"start", {rounded(gradient.start.x), rounded(gradient.start.y)}},
          {"end", {rounded(gradient.end.x), rounded(gradient.end.y)}}};
}

json matrix(const CGAffineTransform& transform) {
  return {rounded(transform.a), rounded(transform.b),  rounded(transform.c),
          rounded(transform.d), rounded(transform.tx), rounded(transform.ty)};
}

void addAccessibility(json& made, const scene::Accessibility& its) {
  constexpr const char* roles[] = {"button", "group", "slider", "picker", "text", "unspoken"};
  made["role"] = roles[int(its.role)];
  if (!its.label.empty()) made["label"] = its.label;
  if (!its.value.empty()) made["value"] = its.value;
  if (!its.isEnabled) made["enabled"] = false;
  if (its.isSelected) made["selected"] = true;
  if (its.role == scene::Accessibility::Role::picker) {
    made["row"] = its.row;
    made["rows"] = its.rows;
  }
}

void addLooks(json& made, const scene::Attributes& attributes) {
  if (attributes.opacity != 1) made["opacity"] = rounded(attributes.opacity);
  if (attributes.cornerRadius != 0) made["radius"] = rounded(cornerRadius(attributes));
  if (attributes.backdropBlur != 0) made["backdropBlur"] = rounded(attributes.backdropBlur);
  if (attributes.clips) made["clips"] = true;
  if (attributes.background) made["background"] = written(*attributes.background);
  if (const auto& border = attributes.border)
    made["border"] = {{"width", rounded(border->width)}, {"color", written(border->color)}};
  if (attributes.content.index() != 0)
    made["content"] =
        std::visit([](const auto& content) { return contentJson(content); }, attributes.content);
}

}  // namespace

json nodeJson(const FlatNode& node) {
  json made = {{"kind", node.attributes.kind},
               {"bounds", rectangle(node.attributes.bounds)},
               {"transform", matrix(node.attributes.toParent)},
               {"children", node.children}};
  addLooks(made, node.attributes);
  if (node.attributes.accessibility) addAccessibility(made, *node.attributes.accessibility);
  if (!node.before.empty()) {
    made["before"] = node.before;
    made["beforeOpacity"] = rounded(node.beforeOpacity);
  }
  if (!node.mask.empty()) made["mask"] = node.mask;
  return made;
}

json wholeSceneJson(const FlatScene& scene) {
  json nodes = json::object();
  for (const auto& [name, node] : scene) nodes[name] = nodeJson(node);
  return {{"root", rootNodeName}, {"nodes", std::move(nodes)}, {"gone", json::array()}};
}

json changesJson(const SceneChanges& changes) {
  json nodes = json::object();
  for (const auto* entry : changes.changed) nodes[entry->first] = nodeJson(entry->second);
  return {{"nodes", std::move(nodes)}, {"gone", changes.gone}};
}

}  // namespace sim
