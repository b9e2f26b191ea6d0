// Bars: the mean body mass of the penguins by species and sex, the species in an order of their own.
#include "parts.h"
#include "penguindata.h"

namespace {

std::string makeChart(const host::Table& table) {
  OrbDocument document;
  OrbVisualization* chart = document.GetVisualization();
  chart->setVersion(2.9);
  chart->setName(u"Body mass by species and sex");
  const PenguinData penguins(*chart, table);

  OrbCategoricalDomain* bySize = chart->addCategoricalDomain(u"bySize");
  bySize->addVariableReference(*penguins.species);
  bySize->addCategories()->setText(u"Gentoo;Chinstrap;Adelie");

  OrbStyle* page = addStyle(*chart, u"page");
  page->setColor(u"white");
  page->setFontSize(u"10pt", u"8pt", nullptr);
  OrbStyle* bar = addStyle(*chart, u"bar");
  bar->setWidth(u"80%", nullptr, nullptr);
  bar->setStroke_width(u"0.5pt");
  OrbStyle* heavy = addStyle(*chart, u"heavy");
  heavy->setStroke_width(u"2pt");
  heavy->setFont_weight(OrbStyle::font_weight_bold);
  chart->setStyle(*page);

  OrbGraph* graph = chart->addGraph(u"masses");
  OrbCoordinates* plane = graph->addCoordinates(u"plane");
  OrbDimension* species = plane->addDimension();
  species->setId(u"bySpecies");
  species->setDomain(*bySize);
  species->setClusterVariable(*penguins.sex);
  species->setClusterGap(u"2pt");
  OrbDimension* mass = plane->addDimension();
  mass->setId(u"meanMass");
  mass->setNiceUpperMapping(true);
  mass->addScale(OrbScale::method_linear)->setOrigin(u"0");

  OrbInterval* bars = graph->addInterval(u"bars");
  bars->setCoordinates(*plane);
  bars->setStyle(*bar);
  bars->setPositionModifier(CTElementType::positionModifier_dodge);
  bars->addX()->setVariable(*penguins.species);
  bars->addY()->setVariable(*penguins.bodyMass);
  bars->addColor()->setVariable(*penguins.sex);
  bars->addSummaryStatistic()->setMethod(OrbSummaryStatistic::method_mean);
  bars->addConditionalStyle(u"bodyMass > 5000", *heavy);
  return document.AsUTF8();
}

} // namespace

int main(int count, char** arguments) {
  return host::run(count, arguments, [](const std::string& data) {
    const std::string printed = makeChart(host::readTable(data + "/penguins.csv"));
    std::cout << printed;

    host::ParsedChart parsed(printed);
    const OrbGraph* graph = parsed.chart().getGraphs().front();
    const OrbInterval* bars = graph->getIntervals().front();
    const OrbDimension* across = graph->getCoordinates(0)->getDimensions().front();
    const auto* order = dynamic_cast<const OrbCategoricalDomain*>(across->getDomain());
    std::clog << "penguin_bars: the mean of \"" << host::labelOf(bars->getY()->getVariable()) << "\" by \""
              << host::labelOf(bars->getX()->getVariable()) << "\" and \""
              << host::labelOf(across->getClusterVariable()) << "\", in the order "
              << order->getCategoriess().front()->getText().toUTF8() << "\n";
    host::requireSameAgain(parsed, printed);
  });
}
