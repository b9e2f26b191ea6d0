// Axes and guides: body mass against flipper length, with titles, ticks, grid lines, a legend, a footnote, and labels
// on the marks.
#include "parts.h"
#include "penguindata.h"

namespace {

/// An axis with labelled ticks every so many units, a grid line at each, and four small ticks between them.
void addMeasuredAxis(OrbDimension& dimension, const XMLCh* title, unsigned int delta, const OrbStyle& gridStyle) {
  OrbAxis* axis = addAxis(dimension, title);
  OrbMajorTicks* major = axis->addMajorTicks();
  major->setDelta(delta);
  major->setPosition(OrbMajorTicks::position_outside);
  major->addGridline()->setStyle(gridStyle);
  OrbFormat* format = major->addFormat();
  format->setUseGrouping(true);
  format->setMaximumFractionDigits(0);
  OrbMinorTicks* minor = axis->addMinorTicks();
  minor->setNumber(4);
  minor->setPosition(OrbMinorTicks::position_inside);
}

OrbPoint* addPoints(OrbGraph& graph, const OrbCoordinates& plane, const PenguinData& penguins) {
  OrbPoint* points = graph.addPoint(u"birds");
  points->setCoordinates(plane);
  points->addX()->setVariable(*penguins.flipperLength);
  points->addY()->setVariable(*penguins.bodyMass);
  points->setLabelCollisionHandling(CTElementType::labelCollisionHandling_normal);
  OrbLabeling* labels = points->addLabeling();
  labels->setVariable(*penguins.island);
  labels->setConnectingLines(true);
  return points;
}

/// A frame with a text at one edge of the graph.
void addFrame(OrbVisualization& chart, const OrbGraph& graph, OrbLocation::ENUM_part edge,
              OrbLabel::ENUM_purpose purpose, const XMLCh* text) {
  OrbLabelFrame* frame = chart.addLabelFrame(nullptr);
  OrbLocation* location = frame->addLocation(edge);
  location->setMethod(OrbLocation::method_attach);
  location->setTarget(graph);
  OrbLabel* label = frame->addLabel();
  label->setPurpose(purpose);
  label->addText()->setText(text);
}

void addLegend(OrbVisualization& chart, const OrbGraph& graph, const OrbColor& colors) {
  OrbLegend* legend = chart.addLegend(u"legend");
  OrbLocation* location = legend->addLocation(OrbLocation::part_left);
  location->setMethod(OrbLocation::method_attach);
  location->setTarget(graph);
  legend->addLabel()->addText()->setText(u"Species");
  legend->addLegendTarget(u"speciesColors", colors);
}

std::string makeChart(const host::Table& table) {
  OrbDocument document;
  OrbVisualization* chart = document.GetVisualization();
  chart->setVersion(2.9);
  chart->setName(u"Body mass and flipper length");
  const PenguinData penguins(*chart, table);
  const OrbIntervalDomain* lengths = addDomain(*chart, u"lengths", u"170", u"240");
  const OrbIntervalDomain* masses = addDomain(*chart, u"masses", u"2500", u"6500");
  OrbStyle* grid = addStyle(*chart, u"grid");
  grid->setColor(u"#dddddd");
  grid->setStroke_dasharray(u"2pt;2pt");

  OrbGraph* graph = chart->addGraph(u"graph");
  OrbCoordinates* plane = graph->addCoordinates(u"plane");
  addMeasuredAxis(*addDimension(*plane, u"across", *lengths), u"Flipper length in mm", 10, *grid);
  addMeasuredAxis(*addDimension(*plane, u"up", *masses), u"Body mass in grams", 1000, *grid);
  OrbColor* colors = addPoints(*graph, *plane, penguins)->addColor();
  colors->setId(u"colors"); // by which the legend finds it
  colors->setVariable(*penguins.species);

  addLegend(*chart, *graph, *colors);
  addFrame(*chart, *graph, OrbLocation::part_bottom, OrbLabel::purpose_title, u"Heavier birds have longer flippers");
  addFrame(*chart, *graph, OrbLocation::part_top, OrbLabel::purpose_footnote, u"One bird in fifteen is shown.");
  return document.AsUTF8();
}

} // namespace

int main(int count, char** arguments) {
  return host::run(count, arguments, [](const std::string& data) {
    const std::string printed = makeChart(everyNth(host::readTable(data + "/penguins.csv"), 15));
    std::cout << printed;

    host::ParsedChart parsed(printed);
    const OrbGraph* graph = parsed.chart().getGraphs().front();
    const OrbAxis* axis = graph->getCoordinates(0)->getDimensions().front()->getAxiss().front();
    const OrbLegend* legend = parsed.chart().getLegends().front();
    std::clog << "penguin_axes: \"" << axis->getLabel()->getTexts().front()->getText().toUTF8()
              << "\" with a tick every " << axis->getMajorTicks()->getDelta() << " and "
              << axis->getMinorTicks()->getNumber() << " between them; the legend shows \""
              << legend->getLabel()->getTexts().front()->getText().toUTF8() << "\"\n";
    host::requireSameAgain(parsed, printed);
  });
}
