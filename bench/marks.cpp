// Graphs and their marks: loading, building, printing, references and memory, beside plain Xerces doing the same work
// by hand.
#include "support.h"
#include "texts.h"

#include <array>
#include <optional>

using bench::seconds;
using xercesc::DOMDocument;
using xercesc::DOMElement;
using xercesc::DOMNode;

namespace {

constexpr unsigned int manyGraphs = 5'000;

const std::string& manyGraphsText() {
  static const std::string text = bench::graphsText(manyGraphs);
  return text;
}

// The same chart through the wrappers

struct Variables {
  explicit Variables(OrbVisualization& chart) :
      month(*chart.addSourceVariable(u"month")),
      rain(*chart.addSourceVariable(u"rain")),
      station(*chart.addSourceVariable(u"station")),
      year(*chart.addSourceVariable(u"year")) {}

  OrbSourceVariable& month;
  OrbSourceVariable& rain;
  OrbSourceVariable& station;
  OrbSourceVariable& year;
};

CTElementType& addMark(OrbGraph& graph, unsigned int number) {
  const auto id = u"mark" + bench::textOf(number);
  if (number % 3 == 0)
    return *graph.addPoint(id.c_str());
  if (number % 3 == 1)
    return *graph.addInterval(id.c_str());
  return *graph.addLine(id.c_str());
}

void fillMark(CTElementType& mark, const Variables& variables) {
  mark.addX()->setVariable(variables.month);
  mark.addY()->setVariable(variables.rain);
  mark.addColor()->setVariable(variables.station);
  mark.addSummaryStatistic()->setMethod(OrbSummaryStatistic::method_mean);
}

/// Adds a dimension with its scale and its axis, and answers the ticks, which are still to draw.
OrbMajorTicks& addDimension(OrbCoordinates& coordinates, const std::basic_string<XMLCh>& id, const XMLCh* title) {
  OrbDimension* dimension = coordinates.addDimension();
  dimension->setId(id.c_str());
  dimension->addScale(OrbScale::method_linear);
  OrbAxis* axis = dimension->addAxis();
  axis->addLabel()->addText()->setText(title);
  OrbMajorTicks* ticks = axis->addMajorTicks();
  ticks->setPosition(OrbMajorTicks::position_outside);
  ticks->addGridline();
  axis->addMinorTicks()->setNumber(4);
  return *ticks;
}

/// A graph that holds coordinates and panels and no mark yet.
OrbGraph& addFrame(OrbVisualization& chart, const Variables& variables, unsigned int graphNumber) {
  const auto number = bench::textOf(graphNumber);
  OrbGraph* graph = chart.addGraph((u"graph" + number).c_str());
  OrbCoordinates* coordinates = graph->addCoordinates((u"coordinates" + number).c_str());
  addDimension(*coordinates, u"across" + number, u"Month").addLabel()->addText()->setText(u"1999");
  addDimension(*coordinates, u"up" + number, u"Rain").addFormat()->setMaximumFractionDigits(2);
  OrbCross* cross = graph->addFaceting()->addCross();
  cross->addVariableReference()->setRef(variables.year);
  cross->addVariableReference()->setRef(variables.station);
  return *graph;
}

void addGraphs(OrbVisualization& chart, unsigned int count) {
  const Variables variables(chart);
  for (unsigned int number = 0; number < count; ++number) {
    OrbGraph& graph = addFrame(chart, variables, number);
    for (unsigned int mark = number * bench::marksOfAGraph; mark < (number + 1) * bench::marksOfAGraph; ++mark)
      fillMark(addMark(graph, mark), variables);
  }
}

// The same chart by hand

DOMElement& putByHand(DOMElement& parent, const XMLCh* name, DOMNode* before = nullptr) {
  DOMElement* element = parent.getOwnerDocument()->createElement(name);
  parent.insertBefore(element, before);
  return *element;
}

/// An id has to be marked as one, or no reference would find it.
DOMElement& putWithIdByHand(DOMElement& parent, const XMLCh* name, const std::basic_string<XMLCh>& id,
                            DOMNode* before = nullptr) {
  DOMElement& element = putByHand(parent, name, before);
  element.setAttribute(u"id", id.c_str());
  element.setIdAttribute(u"id", true);
  return element;
}

DOMElement& putMarkByHand(DOMElement& graph, unsigned int number) {
  return putWithIdByHand(graph, std::array{u"point", u"interval", u"line"}[number % 3],
                         u"mark" + bench::textOf(number));
}

void fillMarkByHand(DOMElement& mark) {
  DOMElement& x = putByHand(mark, u"x");
  x.setAttribute(u"variable", u"month");
  putByHand(mark, u"y").setAttribute(u"variable", u"rain");
  DOMElement& color = putByHand(mark, u"color", &x);
  color.setAttribute(u"variable", u"station");
  putByHand(mark, u"summaryStatistic", &color).setAttribute(u"method", u"mean");
}

void putLabelByHand(DOMElement& parent, const XMLCh* text) {
  DOMElement& label = putByHand(parent, u"label");
  putByHand(label, u"text").appendChild(parent.getOwnerDocument()->createTextNode(text));
}

DOMElement& putDimensionByHand(DOMElement& coordinates, const std::basic_string<XMLCh>& id, const XMLCh* title) {
  DOMElement& dimension = putWithIdByHand(coordinates, u"dimension", id);
  putByHand(dimension, u"scale").setAttribute(u"method", u"linear");
  DOMElement& axis = putByHand(dimension, u"axis");
  putLabelByHand(axis, title);
  DOMElement& ticks = putByHand(axis, u"majorTicks");
  ticks.setAttribute(u"position", u"outside");
  putByHand(ticks, u"gridline");
  putByHand(axis, u"minorTicks").setAttribute(u"number", u"4");
  return ticks;
}

DOMElement& putFrameByHand(DOMElement& chart, unsigned int graphNumber) {
  const auto number = bench::textOf(graphNumber);
  DOMElement& graph = putWithIdByHand(chart, u"graph", u"graph" + number);
  DOMElement& coordinates = putWithIdByHand(graph, u"coordinates", u"coordinates" + number);
  putLabelByHand(putDimensionByHand(coordinates, u"across" + number, u"Month"), u"1999");
  putByHand(putDimensionByHand(coordinates, u"up" + number, u"Rain"), u"format")
      .setAttribute(u"maximumFractionDigits", u"2");
  DOMElement& cross = putByHand(putByHand(graph, u"faceting"), u"cross");
  putByHand(cross, u"variableReference").setAttribute(u"ref", u"year");
  putByHand(cross, u"variableReference").setAttribute(u"ref", u"station");
  return graph;
}

void putGraphsByHand(DOMElement& chart, unsigned int count) {
  for (const XMLCh* variable : {u"month", u"rain", u"station", u"year"})
    putWithIdByHand(chart, u"sourceVariable", variable);
  for (unsigned int number = 0; number < count; ++number) {
    DOMElement& graph = putFrameByHand(chart, number);
    for (unsigned int mark = number * bench::marksOfAGraph; mark < (number + 1) * bench::marksOfAGraph; ++mark)
      fillMarkByHand(putMarkByHand(graph, mark));
  }
}

void checkGraphs() {
  const bench::Empty ours;
  const bench::Empty theirs;
  OrbDocument chart(ours.document());
  addGraphs(*chart.GetVisualization(), 3);
  putGraphsByHand(*theirs.document()->getDocumentElement(), 3);
  bench::requireSame(*ours.document(), *theirs.document());
  const bench::Parsed parsed(bench::graphsText(3));
  if (OrbDocument(parsed.document()).AsUTF8() != chart.AsUTF8())
    throw std::logic_error("the chart that is parsed and the one that is built differ");
}

// Loading

/// Binds something to each element below another, under the name of the element: the least that wrappers need.
void bindByHand(const DOMNode& parent) {
  for (DOMNode* child = parent.getFirstChild(); child != nullptr; child = child->getNextSibling()) {
    if (child->getNodeType() != DOMNode::ELEMENT_NODE)
      continue;
    child->setUserData(static_cast<DOMElement*>(child)->getTagName(), child, nullptr);
    bindByHand(*child);
  }
}

double load() {
  const bench::Parsed parsed(manyGraphsText());
  std::optional<OrbDocument> chart;
  return seconds([&] { chart.emplace(parsed.document()); });
}

double bind() {
  const bench::Parsed parsed(manyGraphsText());
  return seconds([&] { bindByHand(*parsed.document()->getDocumentElement()); });
}

constexpr unsigned int measuredMarks = 50'000;

/// One graph of marks that have x, y and color.
const std::string& marksText() {
  static const std::string text = [] {
    std::string graph = "\n\t<graph id=\"graph\">";
    for (unsigned int mark = 0; mark < measuredMarks; ++mark)
      graph += "\n\t\t<point id=\"mark" + std::to_string(mark) +
               "\">\n\t\t\t<color variable=\"station\"/>\n\t\t\t<x variable=\"month\"/>"
               "\n\t\t\t<y variable=\"rain\"/>\n\t\t</point>";
    return bench::graphChartText(graph + "\n\t</graph>");
  }();
  return text;
}

double bytesOfALoadedMark() {
  const bench::Parsed parsed(marksText());
  const double before = bench::heapInUse();
  const OrbDocument chart(parsed.document());
  return (bench::heapInUse() - before) / measuredMarks;
}

double bytesOfABoundMark() {
  const bench::Parsed parsed(marksText());
  const double before = bench::heapInUse();
  bindByHand(*parsed.document()->getDocumentElement());
  return (bench::heapInUse() - before) / measuredMarks;
}

// Building

double build() {
  const bench::Empty empty;
  OrbDocument chart(empty.document());
  return seconds([&] { addGraphs(*chart.GetVisualization(), manyGraphs); });
}

double buildByHand() {
  const bench::Empty empty;
  return seconds([&] { putGraphsByHand(*empty.document()->getDocumentElement(), manyGraphs); });
}

// Printing

struct ParsedGraphs {
  bench::Parsed parsed{manyGraphsText()};
  OrbDocument chart{parsed.document()};
};

struct MadeGraphs {
  MadeGraphs() { addGraphs(*chart.GetVisualization(), manyGraphs); }

  bench::Empty empty;
  OrbDocument chart{empty.document()};
};

template <class Chart> double print() {
  const Chart made;
  std::string text;
  return seconds([&] { text = made.chart.AsUTF8(); });
}

template <class Chart> double serialize() {
  const Chart made;
  xercesc::MemBufFormatTarget target;
  return seconds([&] { bench::serialize(*made.chart.getImplementation(), target); });
}

// References

struct ReferringChart {
  static constexpr unsigned int marks = 25'000;
  static constexpr unsigned int variables = 20;

  ReferringChart() {
    std::vector<OrbSourceVariable*> all;
    for (unsigned int variable = 0; variable < variables; ++variable)
      all.push_back(chart.GetVisualization()->addSourceVariable((u"variable" + bench::textOf(variable)).c_str()));
    OrbGraph* graph = chart.GetVisualization()->addGraph(u"graph");
    for (unsigned int number = 0; number < marks; ++number) {
      CTElementType& mark = addMark(*graph, number);
      coordinates.push_back(mark.addX());
      coordinates.back()->setVariable(*all[number % variables]);
      aesthetics.push_back(mark.addColor());
      aesthetics.back()->setVariable(*all[(number + 1) % variables]);
    }
  }

  bench::Empty empty;
  OrbDocument chart{empty.document()};
  std::vector<CTCoordinate*> coordinates;
  std::vector<CTAesthetic*> aesthetics;
};

template <class Variable> void count(unsigned int& found, const Variable* variable) { found += variable != nullptr; }

void requireAll(unsigned int found) {
  if (found != 2 * ReferringChart::marks)
    throw std::logic_error("a reference finds no variable");
}

double resolve() {
  const ReferringChart made;
  unsigned int found = 0;
  const double time = seconds([&] {
    for (const CTCoordinate* coordinate : made.coordinates)
      count(found, coordinate->getVariable());
    for (const CTAesthetic* aesthetic : made.aesthetics)
      count(found, aesthetic->getVariable());
  });
  requireAll(found);
  return time;
}

double resolveByHand() {
  const ReferringChart made;
  std::vector<DOMElement*> elements;
  for (const CTCoordinate* coordinate : made.coordinates)
    elements.push_back(coordinate->getImplementation());
  for (const CTAesthetic* aesthetic : made.aesthetics)
    elements.push_back(aesthetic->getImplementation());
  unsigned int found = 0;
  const double time = seconds([&] {
    for (const DOMElement* element : elements) {
      const DOMElement* target = element->getOwnerDocument()->getElementById(element->getAttribute(u"variable"));
      if (target != nullptr)
        count(found, static_cast<OrbSourceVariable*>(target->getUserData(u"sourceVariable")));
    }
  });
  requireAll(found);
  return time;
}

// Growing a graph

constexpr unsigned int manyMarks = 100'000;

/// A graph that holds coordinates, panels and 1,000 marks.
struct FullGraph {
  FullGraph() {
    for (unsigned int number = 0; number < 1'000; ++number)
      addMark(graph, number);
  }
  DOMElement& element() const { return *graph.getImplementation(); }

  bench::Empty empty;
  OrbDocument chart{empty.document()};
  OrbGraph& graph = addFrame(*chart.GetVisualization(), Variables(*chart.GetVisualization()), 0);
};

void addMarks(OrbGraph& graph, unsigned int count) {
  for (unsigned int number = 0; number < count; ++number)
    graph.addPoint((u"more" + bench::textOf(number)).c_str());
}

void addMarksByHand(DOMElement& graph, unsigned int count) {
  for (unsigned int number = 0; number < count; ++number)
    putWithIdByHand(graph, u"point", u"more" + bench::textOf(number));
}

void addCoordinates(OrbGraph& graph, unsigned int count) {
  for (unsigned int number = 0; number < count; ++number)
    graph.addCoordinates((u"more" + bench::textOf(number)).c_str());
}

/// Coordinates go before the panels, which come after the coordinates that the graph has already.
void addCoordinatesByHand(DOMElement& graph, unsigned int count) {
  DOMNode* faceting = graph.getFirstChild()->getNextSibling();
  for (unsigned int number = 0; number < count; ++number)
    putWithIdByHand(graph, u"coordinates", u"more" + bench::textOf(number), faceting);
}

void checkGrowth() {
  const FullGraph ours;
  addMarks(ours.graph, 10);
  addCoordinates(ours.graph, 10);
  const FullGraph theirs;
  addMarksByHand(theirs.element(), 10);
  addCoordinatesByHand(theirs.element(), 10);
  bench::requireSame(*ours.chart.getImplementation(), *theirs.chart.getImplementation());
}

void compareGrowth(const std::string& work, const std::string& beside, void (*ours)(OrbGraph&, unsigned int),
                   void (*byHand)(DOMElement&, unsigned int)) {
  const auto grow = [=] {
    const FullGraph made;
    return seconds([&] { ours(made.graph, manyMarks); });
  };
  const auto growByHand = [=] {
    const FullGraph made;
    return seconds([&] { byHand(made.element(), manyMarks); });
  };
  bench::compareTimes(work, beside, 1.6, 9, grow, growByHand);
}

} // namespace

int main(int argc, char** argv) {
  const bench::Platform platform;
  checkGraphs();
  checkGrowth();

  const std::string graphs = "5,000 graphs of 40 elements";
  const std::string described = graphs + " with axes, ticks, labels and marks";
  bench::compareTimes("load " + described, "`setUserData` on each element by hand", 1.15, 15, load, bind);
  bench::compareTextToText(graphs, 9, manyGraphsText);
  bench::compareTimes("build " + graphs, "the same DOM by hand, ids registered", 1.45, 9, build, buildByHand);
  bench::compareTimes("print " + graphs + " that were parsed", "`DOMLSSerializer`, indented", 0.30, 7,
                      print<ParsedGraphs>, serialize<ParsedGraphs>);
  bench::compareTimes("print " + graphs + " that were built", "`DOMLSSerializer`, indented", 0.35, 7, print<MadeGraphs>,
                      serialize<MadeGraphs>);
  bench::compareTimes("resolve 50,000 references to variables", "`getAttribute`, `getElementById` and `getUserData`",
                      1.15, 21, resolve, resolveByHand);
  compareGrowth("add 100,000 marks to a graph of panels, coordinates and 1,000 marks", "`insertBefore` at the end",
                addMarks, addMarksByHand);
  compareGrowth("add 100,000 coordinates to the same", "`insertBefore` at the known panels", addCoordinates,
                addCoordinatesByHand);
  bench::compareBytes("memory of a loaded mark with x, y and color, beside its DOM", "`setUserData` four times", 1'900,
                      bytesOfALoadedMark, bytesOfABoundMark);
  return bench::run(argc, argv);
}
