// A pie: what share of the penguins each species has, stacked around a polar plane, in colours of their own.
#include "parts.h"
#include "penguindata.h"

#include <iterator>

namespace {

struct SpeciesColor {
  const XMLCh* species;
  const XMLCh* color;
};
constexpr SpeciesColor speciesColors[] = {
    {u"Adelie", u"darkorange"},
    {u"Chinstrap", u"mediumorchid"},
    {u"Gentoo", u"teal"},
};

void colorBySpecies(OrbInterval& slices, const PenguinData& penguins) {
  OrbColor* color = slices.addColor();
  color->setVariable(*penguins.species);
  for (const SpeciesColor& one : speciesColors) {
    OrbColorMapping* mapping = color->addColorMapping();
    mapping->setFrom(one.species);
    mapping->setTo(one.color);
  }
}

/// Patterns tell the slices apart where there are no colours.
void patternBySpecies(OrbVisualization& chart, OrbInterval& slices, const PenguinData& penguins) {
  OrbStyleCycle* patterns = chart.addStyleCycle(u"patterns");
  OrbCycle* cycle = patterns->addCycle();
  for (unsigned int pattern = 0; pattern < std::size(speciesColors); ++pattern)
    cycle->addStyle()->setPattern(pattern);
  OrbPattern* pattern = slices.addPattern();
  pattern->setVariable(*penguins.species);
  pattern->setCycle(*patterns);
}

std::string makeChart(const host::Table& table) {
  OrbDocument document;
  OrbVisualization* chart = document.GetVisualization();
  chart->setVersion(2.9);
  chart->setName(u"Penguins by species, one bird in ten");
  const PenguinData penguins(*chart, table);

  OrbGraph* graph = chart->addGraph(u"pie");
  OrbCoordinates* plane = graph->addCoordinates(u"plane");
  OrbDimension* around = plane->addDimension();
  around->setId(u"around");
  OrbPolarTransform* polar = plane->addPolarTransform();
  polar->setStartAngle(90);
  polar->setCounterClockwise(true);

  OrbInterval* slices = graph->addInterval(u"slices");
  slices->setCoordinates(*plane);
  slices->setPositionModifier(CTElementType::positionModifier_stack);
  slices->addY()->setVariable(*penguins.species);
  slices->addSummaryStatistic()->setMethod(OrbSummaryStatistic::method_percentCount);
  colorBySpecies(*slices, penguins);
  patternBySpecies(*chart, *slices, penguins);
  slices->addLabeling()->setVariable(*penguins.species);
  return document.AsUTF8();
}

} // namespace

int main(int count, char** arguments) {
  return host::run(count, arguments, [](const std::string& data) {
    const std::string printed = makeChart(everyNth(host::readTable(data + "/penguins.csv"), 10));
    std::cout << printed;

    host::ParsedChart parsed(printed);
    const OrbGraph* graph = parsed.chart().getGraphs().front();
    const OrbInterval* slices = graph->getIntervals().front();
    std::clog << "penguin_pie: the slices begin at "
              << graph->getCoordinates(0)->getPolarTransforms().front()->getStartAngle() << " degrees;";
    for (const OrbColorMapping* mapping : slices->getColors().front()->getColorMappings())
      std::clog << " " << host::toUtf8(mapping->getFrom()) << " is " << host::toUtf8(mapping->getTo());
    std::clog << "\n";
    host::requireSameAgain(parsed, printed);
  });
}
