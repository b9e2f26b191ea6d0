// A table: how many penguins of each species and sex live on each island, a panel for each island and sex, the islands
// in the order of their birds' mass, and the cells of one island set off.
#include "parts.h"
#include "penguindata.h"

namespace {

/// The islands, those with the heaviest birds first.
OrbCategoricalDomain* addIslands(OrbVisualization& chart, const PenguinData& penguins) {
  OrbCategoricalDomain* islands = chart.addCategoricalDomain(u"islands");
  islands->addVariableReference(*penguins.island);
  OrbStatisticSort* sort = islands->addStatisticSort(*penguins.island);
  sort->setStatVariable(*penguins.bodyMass);
  sort->setMethod(OrbStatisticSort::method_mean);
  sort->setDescending(true);
  return islands;
}

/// Panels of sexes below panels of islands.
void addPanels(OrbGraph& graph, const PenguinData& penguins) {
  OrbCross* panels = graph.addFaceting()->addCross();
  panels->addVariableReference()->setRef(*penguins.sex);
  panels->addVariableReference()->setRef(*penguins.island);
}

void addLevel(OrbFacetLayout& layout, unsigned int number, const XMLCh* title) {
  OrbFacetLevel* level = layout.addFacetLevel(number);
  level->setGap(u"3pt");
  level->addAxis()->addLabel()->addText()->setText(title);
}

/// Sets the counts of one island in bold type, without decimals.
void setOff(OrbFacetLayout& layout, const PenguinData& penguins, const OrbLabeling& counts, const OrbStyle& style) {
  OrbSetCellProperties* properties = layout.addSetCellProperties();
  OrbSetStyle* setStyle = properties->addSetStyle();
  setStyle->setTarget(counts);
  setStyle->setStyle(style);
  OrbSetFormat* setFormat = properties->addSetFormat();
  setFormat->setTarget(counts);
  setFormat->addFormat()->setMaximumFractionDigits(0);
  OrbWhere* where = properties->addUnion()->addIntersect()->addWhere();
  where->setVariable(*penguins.island);
  where->setInclude(u"Biscoe");
}

/// A mark without a shape, whose label is the count.
OrbLabeling* addCounts(OrbGraph& graph, const OrbCoordinates& plane, const PenguinData& penguins) {
  OrbPoint* cells = graph.addPoint(u"cells");
  cells->setCoordinates(plane);
  cells->addY()->setVariable(*penguins.species);
  OrbLabeling* counts = cells->addLabeling();
  counts->setId(u"counts");
  counts->addSummaryStatistic()->setMethod(OrbSummaryStatistic::method_count);
  return counts;
}

std::string makeChart(const host::Table& table) {
  OrbDocument document;
  OrbVisualization* chart = document.GetVisualization();
  chart->setVersion(2.9);
  chart->setName(u"Penguins by species, island and sex");
  const PenguinData penguins(*chart, table);
  const OrbCategoricalDomain* islands = addIslands(*chart, penguins);
  OrbStyle* bold = addStyle(*chart, u"bold");
  bold->setFont_weight(OrbStyle::font_weight_bold);

  OrbGraph* graph = chart->addGraph(u"table");
  OrbCoordinates* plane = graph->addCoordinates(u"plane");
  OrbDimension* up = plane->addDimension();
  up->setId(u"up");
  addAxis(*up, u"Species");
  addPanels(*graph, penguins);
  const OrbLabeling* counts = addCounts(*graph, *plane, penguins);

  // The islands are panels and no dimension of the plane: the variable itself carries their order.
  penguins.island->setDomain(*islands);
  OrbFacetLayout* layout = graph->addFacetLayout();
  layout->setMethod(OrbFacetLayout::method_structured);
  OrbTableLayout* cells = layout->addTableLayout();
  cells->setFitCells(OrbTableLayout::fitCells_both);
  cells->addLabel()->addText()->setText(u"Penguins");
  addLevel(*layout, 1, u"Sex");
  addLevel(*layout, 2, u"Island");
  setOff(*layout, penguins, *counts, *bold);
  return document.AsUTF8();
}

} // namespace

int main(int count, char** arguments) {
  return host::run(count, arguments, [](const std::string& data) {
    const std::string printed = makeChart(everyNth(host::readTable(data + "/penguins.csv"), 12));
    std::cout << printed;

    host::ParsedChart parsed(printed);
    const OrbGraph* graph = parsed.chart().getGraphs().front();
    const std::vector<OrbVariableReference*> panels =
        graph->getFaceting()->getCrosss().front()->getVariableReferences();
    const OrbSetCellProperties* properties = graph->getFacetLayout()->getSetCellPropertiess().front();
    const OrbWhere* where = properties->getUnions().front()->getIntersects().front()->getWheres().front();
    std::clog << "penguin_table: panels of \"" << host::labelOf(panels[0]->getRef()) << "\" by \""
              << host::labelOf(panels[1]->getRef()) << "\"; set off is \"" << host::toUtf8(where->getInclude())
              << "\"\n";
    host::requireSameAgain(parsed, printed);
  });
}
