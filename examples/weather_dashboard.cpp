// A dashboard: two graphs in containers of their own, a legend, a pop-up, a drill-down, brushing, and lines that the
// viewer draws. It is printed as it is, and again without its containers, its styles gathered under one and its legend
// in a container of legends.
#include "parts.h"
#include "weatherdata.h"

namespace {

void place(OrbContainer& container, OrbLocation::ENUM_part edge, const XMLCh* value) {
  OrbLocation* location = container.addLocation(edge);
  location->setMethod(OrbLocation::method_fixed);
  location->setValue(value);
}

/// A container in the upper or the lower half of the chart.
OrbContainer* addHalf(OrbVisualization& chart, const XMLCh* id, const XMLCh* top, const XMLCh* bottom) {
  OrbContainer* half = chart.addContainer(id);
  place(*half, OrbLocation::part_top, top);
  place(*half, OrbLocation::part_bottom, bottom);
  return half;
}

struct Domains {
  explicit Domains(OrbVisualization& chart) :
      days(*addDomain(chart, u"january", u"2012-01-01", u"2012-01-31")),
      degrees(*addDomain(chart, u"degrees", u"-5", u"15")),
      millimetres(*addDomain(chart, u"millimetres", u"0", u"40")) {
    days.setDate(true);
  }

  OrbIntervalDomain& days;
  OrbIntervalDomain& degrees;
  OrbIntervalDomain& millimetres;
};

OrbGraph* addTemperatures(OrbContainer& half, const WeatherData& weather, const Domains& domains,
                          const OrbStyle& style) {
  OrbGraph* graph = half.addGraph(u"temperatures");
  OrbCoordinates* plane = graph->addCoordinates(u"temperaturePlane");
  addAxis(*addDimension(*plane, u"days", domains.days), u"January 2012");
  addAxis(*addDimension(*plane, u"temperatureScale", domains.degrees), u"°C");
  OrbLine* line = graph->addLine(u"highestLine");
  line->setCoordinates(*plane);
  line->setStyle(style);
  line->addX()->setVariable(*weather.date);
  line->addY()->setVariable(*weather.highest);
  return graph;
}

/// The rain stands below the days of the temperatures.
OrbGraph* addRain(OrbContainer& half, const WeatherData& weather, const OrbDimension& days,
                  const OrbIntervalDomain& millimetres, const OrbStyle& style) {
  OrbGraph* graph = half.addGraph(u"precipitation");
  graph->setAlignCellHorizontallyWith(days);
  OrbCoordinates* plane = graph->addCoordinates(u"rainPlane");
  plane->addDimensionReference()->setRef(days);
  addAxis(*addDimension(*plane, u"rainScale", millimetres), u"mm");
  OrbInterval* bars = graph->addInterval(u"rainBars");
  bars->setCoordinates(*plane);
  bars->setStyle(style);
  bars->addX()->setVariable(*weather.date);
  bars->addY()->setVariable(*weather.rain);
  OrbColor* color = bars->addColor();
  color->setId(u"rainColors");
  color->setVariable(*weather.rain);
  color->setLow(u"lightblue");
  color->setHigh(u"navy");
  return graph;
}

/// What the viewer can do: read a value, open a day, mark days, and draw lines at days.
void addInteraction(OrbVisualization& chart, const WeatherData& weather, const CTElementType& line,
                    const CTElementType& bars) {
  OrbPopup* popup = chart.addPopup();
  popup->setTarget(line);
  popup->setTokenTemplate(u"{name}: {value}");
  OrbTokenMapping* token = popup->addTokenMapping();
  token->setVariable(*weather.highest);
  token->setColumnToken(u"{name}");
  token->setValueToken(u"{value}");

  OrbDrillDown* drillDown = chart.addDrillDown(u"dayDetails");
  drillDown->setTarget(bars);
  drillDown->setInteractionType(OrbDrillDown::interactionType_onClick);
  drillDown->setUrlBase(u"https://weather.example/day");
  drillDown->addVariableReference(*weather.date);

  OrbBrushing* brushing = chart.addBrushing();
  brushing->setTarget(bars);
  brushing->setSelectionMode(OrbBrushing::selectionMode_rectangle);

  chart.addLineGuideController()->setNewLineOrientation(OrbLineGuideController::newLineOrientation_x);
}

void addLegend(OrbVisualization& chart, const OrbColor& colors) {
  OrbLegend* legend = chart.addLegend(u"rainLegend");
  legend->addLabel()->addText()->setText(u"Rain in mm");
  legend->addLegendTarget(u"rainKey", colors);
}

void fill(OrbVisualization& chart, const host::Table& table) {
  chart.setVersion(2.9);
  chart.setName(u"The weather of January 2012");
  const WeatherData weather(chart, table);
  const Domains domains(chart);
  OrbStyle* theme = addStyle(chart, u"theme");
  theme->setFontSize(u"10pt", u"8pt", nullptr);
  OrbStyle* warm = addStyle(chart, u"warm");
  warm->setColor(u"firebrick");
  OrbStyle* wet = addStyle(chart, u"wet");
  wet->setOpacity(u"0.8");
  chart.setStyle(*theme);

  OrbContainer* upper = addHalf(chart, u"upperHalf", u"0%", u"50%");
  OrbGraph* temperatures = addTemperatures(*upper, weather, domains, *warm);
  OrbContainer* lower = addHalf(chart, u"lowerHalf", u"50%", u"100%");
  const OrbDimension* across = temperatures->getCoordinates(0)->getDimensions().front();
  OrbGraph* rain = addRain(*lower, weather, *across, domains.millimetres, *wet);
  const OrbInterval* bars = rain->getIntervals().front();
  addLegend(chart, *bars->getColors().front());
  addInteraction(chart, weather, *temperatures->getLines().front(), *bars);
}

struct Flattened {
  unsigned int containers;
  unsigned int styles;
  unsigned int legends;
};

/// For an engine that knows no nesting: the graphs stand at the root, the styles under one, the legends in one place.
Flattened flatten(OrbVisualization& chart) {
  Flattened moved{};
  moved.containers = chart.reparentContainerChildren();
  moved.styles = chart.reparentStyles(*chart.getStyles().front());
  moved.legends = chart.reparentLegendChildren(*chart.addContainer(u"legends"));
  return moved;
}

} // namespace

int main(int count, char** arguments) {
  return host::run(count, arguments, [](const std::string& data) {
    constexpr std::size_t daysOfJanuary = 31;
    host::Table table = host::readTable(data + "/seattle-weather.csv");
    table.resize(1 + daysOfJanuary);
    OrbDocument document;
    fill(*document.GetVisualization(), table);
    const std::string nested = document.AsUTF8();
    const Flattened moved = flatten(*document.GetVisualization());
    const std::string flat = document.AsUTF8();
    std::cout << nested << flat;

    host::ParsedChart parsedNested(nested);
    host::requireSameAgain(parsedNested, nested);
    host::ParsedChart parsed(flat);
    const std::vector<OrbGraph*> graphs = parsed.chart().getGraphs();
    std::clog << "weather_dashboard: \"" << host::labelOf(graphs[0]->getLines().front()->getY()->getVariable())
              << "\" over \"" << host::labelOf(graphs[1]->getIntervals().front()->getY()->getVariable()) << "\"; "
              << moved.containers << " containers dissolved, " << moved.styles << " styles and " << moved.legends
              << " legend moved\n";
    host::requireSameAgain(parsed, flat);
  });
}
