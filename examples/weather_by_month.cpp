// Months: rows that the value formatter writes, a mean for each month, and a smooth line over the days.
#include "parts.h"

#include <chrono>
#include <cstdio>
#include <cstdlib>

namespace {

/// The value formatter counts seconds from the midnight that begins 14 October 1582.
OBS valueOfDate(const std::string& text) {
  using namespace std::chrono;
  int year = 0;
  unsigned int month = 0;
  unsigned int day = 0;
  if (std::sscanf(text.c_str(), "%d-%u-%u", &year, &month, &day) != 3)
    throw std::runtime_error("no date: " + text);
  const year_month_day date{std::chrono::year{year}, std::chrono::month{month}, std::chrono::day{day}};
  const auto days = sys_days(date) - sys_days(1582y / October / 14);
  return {.number = static_cast<double>(seconds(days).count())};
}

/// The text of a date in the source: 2012-01-31T00:00:00.000.
std::string dateText(const std::string& date) {
  constexpr QUVA_Format format = {11, QUVA_Format::date, 0};
  return formatter::AsString(valueOfDate(date), format);
}

/// The text of a number in the source, with one decimal.
std::string numberText(const std::string& number) {
  const OBS value = {.number = std::strtod(number.c_str(), nullptr)};
  return formatter::formattedValue(&value, QUVA_Format::number, 8, 1, nullptr);
}

/// Day and highest temperature of each line of the table.
host::Table temperatures(const host::Table& table) {
  constexpr std::size_t dateColumn = 0;
  constexpr std::size_t highestColumn = 2;
  host::Table rows = {{"day", "highest"}};
  for (std::size_t line = 1; line < table.size(); ++line)
    rows.push_back({dateText(table[line][dateColumn]), numberText(table[line][highestColumn])});
  return rows;
}

OrbSourceVariable* addMeasured(OrbVisualization& chart, const OrbEmbeddedSource& source, const XMLCh* name,
                               const XMLCh* label) {
  OrbSourceVariable* variable = addVariable(chart, source, name, name, label);
  variable->setMeasurementLevel(CTVariableType::measurementLevel_interval);
  return variable;
}

/// Ticks at the beginnings of the months, labelled with their short names.
void addMonths(OrbDimension& dimension) {
  OrbMajorTicks* ticks = addAxis(dimension, u"2012")->addMajorTicks();
  ticks->setDelta(1U);
  ticks->setDeltaUnit(OrbMajorTicks::deltaUnit_month);
  OrbFormat* format = ticks->addFormat();
  format->setBaseFormat(OrbFormat::baseFormat_date);
  format->setShowMonth(true);
  format->setMonthFormat(OrbFormat::monthFormat_short);
  format->setShowYear(false);
  format->setShowDay(false);
}

void place(CTElementType& element, const OrbCoordinates& plane, const OrbSourceVariable& day,
           const OrbSourceVariable& highest) {
  element.setCoordinates(plane);
  element.addX()->setVariable(day);
  element.addY()->setVariable(highest);
}

std::string makeChart(const host::Table& table) {
  OrbDocument document;
  OrbVisualization* chart = document.GetVisualization();
  chart->setVersion(2.9);
  chart->setName(u"Temperature by month, from one day in seven");
  OrbEmbeddedSource* source = chart->addEmbeddedSource(u"weather");
  host::fillSource(*source, table, u"date;number");
  OrbSourceVariable* day = addMeasured(*chart, *source, u"day", u"Day");
  day->setInputDateFormatPattern(u"yyyy-MM-dd'T'HH:mm:ss.SSS");
  const OrbSourceVariable* highest = addMeasured(*chart, *source, u"highest", u"Highest temperature in °C");
  OrbIntervalDomain* year = addDomain(*chart, u"year", u"2012-01-01", u"2012-12-31");
  year->setDate(true);
  const OrbIntervalDomain* degrees = addDomain(*chart, u"degrees", u"0", u"35");

  OrbGraph* graph = chart->addGraph(u"graph");
  OrbCoordinates* plane = graph->addCoordinates(u"plane");
  addMonths(*addDimension(*plane, u"across", *year));
  addAxis(*addDimension(*plane, u"up", *degrees), u"°C");

  OrbInterval* months = graph->addInterval(u"months");
  place(*months, *plane, *day, *highest);
  OrbBinStatistic* byMonth = months->addBinStatistic();
  byMonth->setBinStart(u"2012-01-01");
  byMonth->setBinWidth(u"1 month");
  months->addSummaryStatistic()->setMethod(OrbSummaryStatistic::method_mean);

  OrbLine* course = graph->addLine(u"course");
  place(*course, *plane, *day, *highest);
  OrbSmoothStatistic* smoother = course->addSmoothStatistic();
  smoother->setMethod(OrbSmoothStatistic::method_loess);
  smoother->setProportion(0.4);
  return document.AsUTF8();
}

} // namespace

int main(int count, char** arguments) {
  return host::run(count, arguments, [](const std::string& data) {
    constexpr std::size_t daysOf2012 = 366;
    host::Table table = host::readTable(data + "/seattle-weather.csv");
    table.resize(1 + daysOf2012);
    const std::string printed = makeChart(temperatures(everyNth(table, 7)));
    std::cout << printed;

    host::ParsedChart parsed(printed);
    const OrbGraph* graph = parsed.chart().getGraphs().front();
    const OrbInterval* months = graph->getIntervals().front();
    const OrbLine* course = graph->getLines().front();
    std::clog << "weather_by_month: the mean of \"" << host::labelOf(months->getY()->getVariable()) << "\" in bins of "
              << host::toUtf8(months->getBinStatistics().front()->getBinWidth()) << ", under a smooth line over "
              << course->getSmoothStatistics().front()->getProportion() << " of the days; the first row is "
              << parsed.chart().getEmbeddedSources().front()->getRows().front()->getText().toUTF8() << "\n";
    host::requireSameAgain(parsed, printed);
  });
}
