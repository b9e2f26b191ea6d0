// Restructuring a whole chart: what grows with its size, beside the same work on ten charts of a tenth.
#include "support.h"

using bench::seconds;

namespace {

constexpr unsigned int many = 10'000;
constexpr unsigned int parts = 10;

std::string chartText(const std::string& children) { return "<visualization>" + children + "\n</visualization>\n"; }

/// Containers with a graph, a location and a legend. The legend is as wide as its container.
std::string containersText(unsigned int count) {
  std::string containers;
  for (unsigned int i = 0; i < count; ++i) {
    const std::string number = std::to_string(i);
    containers += "\n\t<container id=\"container" + number +
                  "\">\n\t\t<location part=\"left\" method=\"fixed\" value=\"10%\"/>\n\t\t<graph id=\"graph" + number +
                  "\"/>\n\t\t<legend id=\"legend" + number +
                  "\">\n\t\t\t<location part=\"width\" method=\"same\" target=\"container" + number +
                  "\"/>\n\t\t</legend>\n\t</container>";
  }
  return chartText(containers);
}

/// A style that is to take others.
std::string stylesText(unsigned int count) {
  std::string styles = "\n\t<style id=\"target\"/>";
  for (unsigned int i = 0; i < count; ++i)
    styles += "\n\t<style id=\"style" + std::to_string(i) + "\" color=\"steelblue\" opacity=\"0.5\" visible=\"true\"/>";
  return chartText(styles);
}

/// A container that is to take legends.
std::string legendsText(unsigned int count) {
  std::string legends = "\n\t<container id=\"target\"/>";
  for (unsigned int i = 0; i < count; ++i)
    legends += "\n\t<legend id=\"legend" + std::to_string(i) +
               "\">\n\t\t<label>\n\t\t\t<text>Station</text>\n\t\t</label>\n\t</legend>";
  return chartText(legends);
}

unsigned int flatten(OrbVisualization& chart) { return chart.reparentContainerChildren(); }
unsigned int gatherStyles(OrbVisualization& chart) { return chart.reparentStyles(*chart.getStyleById(u"target")); }
unsigned int gatherLegends(OrbVisualization& chart) {
  return chart.reparentLegendChildren(*chart.getContainers().front());
}

/// Marks the ids below an element, as a validating parser does: else none of them would be found.
void registerIds(const xercesc::DOMElement& parent) {
  for (xercesc::DOMElement* child = parent.getFirstElementChild(); child; child = child->getNextElementSibling()) {
    if (child->hasAttribute(u"id"))
      child->setIdAttribute(u"id", true);
    registerIds(*child);
  }
}

double restructure(const std::string& text, unsigned int count, unsigned int (*operation)(OrbVisualization&)) {
  const bench::Parsed parsed(text);
  registerIds(*parsed.document()->getDocumentElement());
  OrbDocument chart(parsed.document());
  unsigned int moved = 0;
  const double time = seconds([&] { moved = operation(*chart.GetVisualization()); });
  if (moved != count)
    throw std::logic_error("what is measured does not restructure the whole chart");
  return time;
}

void compareGrowth(const std::string& work, const std::string& beside, std::string (*text)(unsigned int),
                   unsigned int (*operation)(OrbVisualization&)) {
  const auto whole = [operation, xml = text(many)] { return restructure(xml, many, operation); };
  const auto inParts = [operation, xml = text(many / parts)] {
    double total = 0;
    for (unsigned int part = 0; part < parts; ++part)
      total += restructure(xml, many / parts, operation);
    return total;
  };
  bench::compareTimes(work, beside, 1.3, 15, whole, inParts);
}

} // namespace

int main(int argc, char** argv) {
  const bench::Platform platform;
  compareGrowth("flatten 10,000 containers with a graph, a location and a legend each", "1,000 containers, ten times",
                containersText, flatten);
  compareGrowth("gather 10,000 styles under one", "1,000 styles, ten times", stylesText, gatherStyles);
  compareGrowth("gather 10,000 legends under a container", "1,000 legends, ten times", legendsText, gatherLegends);
  return bench::run(argc, argv);
}
