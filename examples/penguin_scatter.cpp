// A scatter plot: the length and depth of the penguins' beaks, the species as colour, a panel for each island.
#include "penguindata.h"

namespace {

std::string makeChart(const host::Table& table) {
  OrbDocument document;
  OrbVisualization* chart = document.GetVisualization();
  chart->setVersion(2.9);
  chart->setName(u"Beaks by species and island");
  const PenguinData penguins(*chart, table);

  OrbStyle* round = chart->addStyle();
  round->setId(u"round");
  round->setSymbol(OrbStyle::symbol_circle);
  round->setSize(u"5pt");
  round->setOpacity2(0.7);

  OrbGraph* graph = chart->addGraph(u"beaks");
  OrbCoordinates* plane = graph->addCoordinates(u"plane");
  for (const XMLCh* id : {u"horizontal", u"vertical"}) {
    OrbDimension* dimension = plane->addDimension();
    dimension->setId(id);
    dimension->setNiceLowerMapping(true);
    dimension->setNiceUpperMapping(true);
    dimension->setFacetsShareScale(true);
    dimension->addScale(OrbScale::method_linear);
  }

  // One column of panels for each island, in one row.
  OrbCross* panels = graph->addFaceting()->addCross();
  panels->addVariableReference()->setRef(*penguins.island);
  panels->addUnity();

  OrbPoint* points = graph->addPoint(u"penguinPoints");
  points->setCoordinates(*plane);
  points->setStyle(*round);
  points->addX()->setVariable(*penguins.beakLength);
  points->addY()->setVariable(*penguins.beakDepth);
  points->addColor()->setVariable(*penguins.species);
  return document.AsUTF8();
}

} // namespace

int main(int count, char** arguments) {
  return host::run(count, arguments, [](const std::string& data) {
    const std::string printed = makeChart(host::readTable(data + "/penguins.csv"));
    std::cout << printed;

    host::ParsedChart parsed(printed);
    const OrbGraph* graph = parsed.chart().getGraphs().front();
    const OrbPoint* points = graph->getPoints().front();
    const OrbCross* panels = graph->getFaceting()->getCrosss().front();
    std::clog << "penguin_scatter: \"" << host::labelOf(points->getY()->getVariable()) << "\" over \""
              << host::labelOf(points->getX()->getVariable()) << "\", coloured by \""
              << host::labelOf(points->getColors().front()->getVariable()) << "\", a panel for each \""
              << host::labelOf(panels->getVariableReferences().front()->getRef()) << "\"\n";
    host::requireSameAgain(parsed, printed);
  });
}
