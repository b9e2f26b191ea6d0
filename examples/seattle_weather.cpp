// The weather of Seattle in two graphs: the highest temperature of each day as a line, and the rain of each month.
#include "parts.h"
#include "weatherdata.h"

namespace {

std::string makeChart(const host::Table& table) {
  OrbDocument document;
  OrbVisualization* chart = document.GetVisualization();
  chart->setVersion(2.9);
  chart->setName(u"The weather of Seattle");
  const WeatherData weather(*chart, table);

  OrbIntervalDomain* years = addDomain(*chart, u"years", u"2012-01-01", u"2015-12-31");
  years->setDate(true);
  const OrbIntervalDomain* degrees = addDomain(*chart, u"degrees", u"-5", u"40");
  const OrbIntervalDomain* millimetres = addDomain(*chart, u"millimetres", u"0", u"300");

  OrbGraph* temperature = chart->addGraph(u"temperature");
  OrbCoordinates* plane = temperature->addCoordinates(u"temperaturePlane");
  const OrbDimension* days = addDimension(*plane, u"days", *years);
  addDimension(*plane, u"temperatures", *degrees);
  OrbLine* line = temperature->addLine(u"highestLine");
  line->setCoordinates(*plane);
  line->setBreakRepresentation(OrbLine::breakRepresentation_gap);
  line->addX()->setVariable(*weather.date);
  line->addY()->setVariable(*weather.highest);

  OrbGraph* precipitation = chart->addGraph(u"precipitation");
  precipitation->setAlignCellHorizontallyWith(*days);
  plane = precipitation->addCoordinates(u"precipitationPlane");
  plane->addDimensionReference()->setRef(*days);
  addDimension(*plane, u"amounts", *millimetres);
  OrbInterval* months = precipitation->addInterval(u"months");
  months->setCoordinates(*plane);
  months->addX()->setVariable(*weather.date);
  months->addY()->setVariable(*weather.rain);
  OrbBinStatistic* byMonth = months->addBinStatistic();
  byMonth->setBinStart(u"2012-01-01");
  byMonth->setBinWidth(u"1 month");
  months->addSummaryStatistic()->setMethod(OrbSummaryStatistic::method_sum);
  return document.AsUTF8();
}

} // namespace

int main(int count, char** arguments) {
  return host::run(count, arguments, [](const std::string& data) {
    const std::string printed = makeChart(host::readTable(data + "/seattle-weather.csv"));
    std::cout << printed;

    host::ParsedChart parsed(printed);
    const std::vector<OrbGraph*> graphs = parsed.chart().getGraphs();
    const OrbLine* line = graphs[0]->getLines().front();
    const OrbInterval* months = graphs[1]->getIntervals().front();
    const OrbDimension* days = graphs[1]->getAlignCellHorizontallyWith();
    const auto* years = dynamic_cast<const OrbIntervalDomain*>(days->getDomain());
    std::clog << "seattle_weather: \"" << host::labelOf(line->getY()->getVariable()) << "\" by day, and the sum of \""
              << host::labelOf(months->getY()->getVariable()) << "\" in bins of "
              << host::toUtf8(months->getBinStatistics().front()->getBinWidth()) << ", from "
              << host::toUtf8(years->getRanges().front()->getMin()) << " to "
              << host::toUtf8(years->getRanges().front()->getMax()) << "\n";
    host::requireSameAgain(parsed, printed);
  });
}
