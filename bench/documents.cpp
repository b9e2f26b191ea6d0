// Whole documents: wrapping, printing, adding and removing, beside plain Xerces doing the same work by hand.
#include "support.h"
#include "texts.h"

#include <optional>

using bench::seconds;
using xercesc::DOMDocument;
using xercesc::DOMElement;
using xercesc::DOMNode;

namespace {

constexpr unsigned int manyRows = 200'000;
constexpr XMLCh rowText[] = u"12.5;north;1999";

const std::string& manyRowsText() {
  static const std::string text = bench::rowsText(manyRows);
  return text;
}

constexpr unsigned int manyStyles = 100'000;

/// A chart of styles with eight attributes each.
const std::string& manyStylesText() {
  static const std::string text = [] {
    std::string chart = "<visualization>";
    for (unsigned int style = 0; style < manyStyles; ++style)
      chart += "\n\t<style id=\"style" + std::to_string(style) +
               "\" color=\"steelblue\" color2=\"white\" opacity=\"0.5\" stroke-width=\"2pt\" font-family=\"serif\""
               " font-size=\"12pt\" visible=\"true\"/>";
    return chart + "\n</visualization>\n";
  }();
  return text;
}

struct ParsedChart {
  explicit ParsedChart(unsigned int rows) : parsed(rows == manyRows ? manyRowsText() : bench::rowsText(rows)) {}

  bench::Parsed parsed;
  OrbDocument chart{parsed.document()};
  OrbEmbeddedSource* source = chart.GetVisualization()->getEmbeddedSources().front();
};

void addRows(OrbEmbeddedSource& source, unsigned int count) {
  for (unsigned int row = 0; row < count; ++row)
    source.addRow()->setText(rowText);
}

/// What adding rows to an empty source makes, by hand: each goes before the one that was made first.
void addRowsByHand(DOMElement& source, unsigned int count) {
  DOMDocument* document = source.getOwnerDocument();
  DOMElement* first = nullptr;
  for (unsigned int i = 0; i < count; ++i) {
    DOMElement* row = document->createElement(u"row");
    source.insertBefore(row, first);
    row->appendChild(document->createTextNode(rowText));
    first = first == nullptr ? row : first;
  }
}

struct MadeChart {
  explicit MadeChart(unsigned int rows) { addRows(*source, rows); }

  bench::Empty empty;
  OrbDocument chart{empty.document()};
  OrbEmbeddedSource* source = chart.GetVisualization()->addEmbeddedSource(u"data");
};

/// A chart of variables, made by hand.
struct AttributedChart {
  explicit AttributedChart(unsigned int elements) {
    DOMDocument* document = chart.getImplementation();
    for (unsigned int i = 0; i < elements; ++i) {
      DOMElement* element = document->createElement(u"sourceVariable");
      document->getDocumentElement()->appendChild(element);
      for (const XMLCh* name :
           {u"id", u"source", u"sourceName", u"label", u"shortLabel", u"creator", u"key", u"weight"})
        element->setAttribute(name, (u"value" + bench::textOf(i)).c_str());
    }
  }

  bench::Empty empty;
  OrbDocument chart{empty.document()};
};

// Loading

/// Binds something to each child element, which is the least that wrappers need.
void bindChildrenByHand(const DOMNode& parent, const XMLCh* key) {
  for (DOMNode* child = parent.getFirstChild(); child != nullptr; child = child->getNextSibling()) {
    if (child->getNodeType() == DOMNode::ELEMENT_NODE)
      child->setUserData(key, child, nullptr);
  }
}

void bindRowsByHand(const DOMDocument& document) {
  for (DOMNode* source = document.getDocumentElement()->getFirstChild(); source; source = source->getNextSibling())
    bindChildrenByHand(*source, u"row");
}

void bindStylesByHand(const DOMDocument& document) { bindChildrenByHand(*document.getDocumentElement(), u"style"); }

double wrap(const std::string& text) {
  const bench::Parsed parsed(text);
  std::optional<OrbDocument> chart;
  return seconds([&] { chart.emplace(parsed.document()); });
}

double bind(const std::string& text, void (*bindByHand)(const DOMDocument&)) {
  const bench::Parsed parsed(text);
  return seconds([&] { bindByHand(*parsed.document()); });
}

void compareWrapping(const std::string& work, const std::string& (*text)(), void (*bindByHand)(const DOMDocument&)) {
  bench::compareTimes(
      work, "`setUserData` on each element by hand", 1.15, 21, [=] { return wrap(text()); },
      [=] { return bind(text(), bindByHand); });
}

double parse() {
  std::optional<bench::Parsed> parsed;
  return seconds([&] { parsed.emplace(manyRowsText()); });
}

double bytesOfAWrapper() {
  const bench::Parsed parsed(manyRowsText());
  const double before = bench::heapInUse();
  const OrbDocument chart(parsed.document());
  return (bench::heapInUse() - before) / manyRows;
}

double bytesOfABinding() {
  const bench::Parsed parsed(manyRowsText());
  const double before = bench::heapInUse();
  bindRowsByHand(*parsed.document());
  return (bench::heapInUse() - before) / manyRows;
}

// Printing

template <class Chart> double print(unsigned int size) {
  const Chart made(size);
  std::string text;
  return seconds([&] { text = made.chart.AsUTF8(); });
}

template <class Chart> double serialize(unsigned int size) {
  const Chart made(size);
  xercesc::MemBufFormatTarget target;
  return seconds([&] { bench::serialize(*made.chart.getImplementation(), target); });
}

template <class Chart> void comparePrinting(const std::string& work, double limit, unsigned int size) {
  bench::compareTimes(
      work, "`DOMLSSerializer`, indented", limit, 9, [=] { return print<Chart>(size); },
      [=] { return serialize<Chart>(size); });
}

// Rows

double addAllRows() {
  MadeChart made(0);
  return seconds([&] { addRows(*made.source, manyRows); });
}

double addAllRowsByHand() {
  MadeChart made(0);
  return seconds([&] { addRowsByHand(*made.source->getImplementation(), manyRows); });
}

void checkRowsByHand() {
  const MadeChart ours(10);
  MadeChart theirs(0);
  addRowsByHand(*theirs.source->getImplementation(), 10);
  bench::requireSame(*ours.chart.getImplementation(), *theirs.chart.getImplementation());
}

/// One more row, as the mean of a thousand.
template <class Chart> double addOneRowTo(unsigned int rows) {
  constexpr unsigned int more = 1'000;
  Chart made(rows);
  return seconds([&] { addRows(*made.source, more); }) / more;
}

template <class Chart> void compareGrowth(const std::string& work) {
  bench::compareTimes(
      work, "one at 2,000 rows", 2, 7, [] { return addOneRowTo<Chart>(manyRows); },
      [] { return addOneRowTo<Chart>(manyRows / 100); });
}

double removeAllRows() {
  MadeChart made(manyRows);
  return seconds([&] { made.source->removeRows(); });
}

double removeTenthsOfRows() {
  double total = 0;
  for (int part = 0; part < 10; ++part) {
    MadeChart made(manyRows / 10);
    total += seconds([&] { made.source->removeRows(); });
  }
  return total;
}

// Attributes

/// How much the process grows by writing an attribute a million times, after a warm-up.
template <class Write> double growthByWriting(Write write) {
  const auto writeAll = [&](unsigned int count) {
    for (unsigned int i = 0; i < count; ++i)
      write(bench::textOf(i).c_str());
  };
  writeAll(10'000);
  const double before = bench::residentMemory();
  writeAll(1'000'000);
  return std::max(0.0, bench::residentMemory() - before);
}

double growthOfWrapper() {
  MadeChart made(0);
  return growthByWriting([&](const XMLCh* value) { made.source->SetAttribute(u"missing", value); });
}

double growthByHand() {
  MadeChart made(0);
  DOMElement* element = made.source->getImplementation();
  return growthByWriting([&](const XMLCh* value) {
    xercesc::DOMAttr* attribute = element->getOwnerDocument()->createAttribute(u"missing");
    attribute->setValue(value);
    element->setAttributeNode(attribute);
  });
}

// A small document, from nothing to its text

constexpr unsigned int smallRows = 40;
constexpr unsigned int smallVariables = 15;

void fill(OrbVisualization& chart) {
  chart.setVersion(2.9);
  OrbEmbeddedSource* source = chart.addEmbeddedSource(u"data");
  source->addNames()->setText(u"value;region;year");
  source->addTypes()->setText(u"double;string;int");
  addRows(*source, smallRows);
  for (unsigned int i = 0; i < smallVariables; ++i) {
    const auto number = bench::textOf(i);
    OrbSourceVariable* variable = chart.addSourceVariable((u"variable" + number).c_str());
    variable->setSource(*source);
    variable->setSourceName((u"column " + number).c_str());
    variable->setLabel((u"The label of column " + number).c_str());
    variable->setMeasurementLevel(CTVariableType::measurementLevel_ratio);
    variable->setCategorical(false);
  }
  chart.addGraph(u"graph")->setClip(true);
}

DOMElement& addByHand(DOMNode& parent, const XMLCh* name, const XMLCh* text = nullptr) {
  DOMDocument* document = parent.getOwnerDocument();
  DOMElement* element = document->createElement(name);
  parent.appendChild(element);
  if (text != nullptr)
    element->appendChild(document->createTextNode(text));
  return *element;
}

/// An id has to be marked as one, or no reference would find it.
DOMElement& addWithIdByHand(DOMNode& parent, const XMLCh* name, const XMLCh* id) {
  DOMElement& element = addByHand(parent, name);
  element.setAttribute(u"id", id);
  element.setIdAttribute(u"id", true);
  return element;
}

DOMDocument* makeByHand() {
  DOMDocument* document = bench::implementation()->createDocument(nullptr, u"visualization", nullptr);
  DOMElement& root = *document->getDocumentElement();
  root.setAttribute(u"xmlns", u"http://orbchart.example/visualization");
  root.setAttribute(u"xmlns:xsi", u"http://www.w3.org/2001/XMLSchema-instance");
  root.setAttribute(u"xsi:schemaLocation", u"http://orbchart.example/visualization "
                                           u"http://orbchart.example/visualization/orbml-2.9.xsd");
  root.setAttribute(u"version", u"2.9");
  DOMElement& source = addWithIdByHand(root, u"embeddedSource", u"data");
  addByHand(source, u"names", u"value;region;year");
  addByHand(source, u"types", u"double;string;int");
  for (unsigned int i = 0; i < smallRows; ++i)
    addByHand(source, u"row", rowText);
  for (unsigned int i = 0; i < smallVariables; ++i) {
    const auto number = bench::textOf(i);
    DOMElement& variable = addWithIdByHand(root, u"sourceVariable", (u"variable" + number).c_str());
    variable.setAttribute(u"source", u"data");
    variable.setAttribute(u"sourceName", (u"column " + number).c_str());
    variable.setAttribute(u"label", (u"The label of column " + number).c_str());
    variable.setAttribute(u"measurementLevel", u"ratio");
    variable.setAttribute(u"categorical", u"false");
  }
  addWithIdByHand(root, u"graph", u"graph").setAttribute(u"clip", u"true");
  return document;
}

constexpr unsigned int smallDocuments = 100;

double makeSmallDocuments() {
  std::size_t size = 0;
  const double time = seconds([&] {
    for (unsigned int i = 0; i < smallDocuments; ++i) {
      OrbDocument chart;
      fill(*chart.GetVisualization());
      size += chart.AsUTF8().size();
    }
  });
  benchmark::DoNotOptimize(size);
  return time / smallDocuments;
}

double makeSmallDocumentsByHand() {
  std::size_t size = 0;
  const double time = seconds([&] {
    for (unsigned int i = 0; i < smallDocuments; ++i) {
      DOMDocument* document = makeByHand();
      xercesc::MemBufFormatTarget target;
      bench::serialize(*document, target);
      size += target.getLen();
      document->release();
    }
  });
  benchmark::DoNotOptimize(size);
  return time / smallDocuments;
}

void checkSmallDocuments() {
  OrbDocument chart;
  fill(*chart.GetVisualization());
  DOMDocument* document = makeByHand();
  bench::requireSame(*chart.getImplementation(), *document);
  document->release();
}

} // namespace

int main(int argc, char** argv) {
  const bench::Platform platform;
  checkRowsByHand();
  checkSmallDocuments();

  const std::string parsed = "wrap a parsed source of 200,000 rows";
  const std::string styles = "100,000 styles of 8 attributes";
  compareWrapping(parsed, manyRowsText, bindRowsByHand);
  compareWrapping("wrap " + styles, manyStylesText, bindStylesByHand);
  bench::compareTimes(
      parsed, "parsing it", 0.45, 5, [] { return wrap(manyRowsText()); }, parse);
  bench::compareBytes("memory of each of these wrappers", "`setUserData` alone", 0, bytesOfAWrapper, bytesOfABinding);

  bench::compareTextToText("200,000 rows", 9, manyRowsText);
  bench::compareTextToText(styles, 9, manyStylesText);
  comparePrinting<ParsedChart>("print that source, indented", 0.40, manyRows);
  comparePrinting<MadeChart>("print 200,000 rows that were added, indented", 0.40, manyRows);
  comparePrinting<AttributedChart>("print 100,000 elements with 8 attributes each", 0.45, manyRows / 2);

  bench::compareTimes("add 200,000 rows with text", "the same DOM by hand", 1.5, 10, addAllRows, addAllRowsByHand);
  compareGrowth<MadeChart>("add a row at 200,000 rows");
  compareGrowth<ParsedChart>("the same in a parsed source with comments, names and types");
  bench::compareTimes("remove 200,000 rows", "20,000 rows, ten times", 2, 5, removeAllRows, removeTenthsOfRows);

  bench::compareBytes("growth by writing one attribute 1,000,000 times",
                      "new attribute nodes, the old ones not released", 1024 * 1024, growthOfWrapper, growthByHand);
  bench::compareTimes("make and print a document of 60 elements",
                      "the same DOM by hand, ids registered, and `DOMLSSerializer`", 1.15, 40, makeSmallDocuments,
                      makeSmallDocumentsByHand);
  return bench::run(argc, argv);
}
