// What a bad document or a bad call gets: an error that says what is wrong, a document as it was, and never a crash.
#include "chartprinter.h"
#include "chartstring.h"
#include "dom.h"
#include "log.h"
#include "orbcategoricaldomain.h"
#include "orbcontainer.h"
#include "orbcoordinates.h"
#include "orbdimension.h"
#include "orbdocument.h"
#include "orbembeddedsource.h"
#include "orbfilter.h"
#include "orbgraph.h"
#include "orbintervaldomain.h"
#include "orbnames.h"
#include "orbrow.h"
#include "orbsourcevariable.h"
#include "orbvariablename.h"
#include "orbvisualization.h"
#include "raised.h"
#include "smallstack.h"

#include <gtest/gtest.h>

#include <optional>
#include <sstream>
#include <string>
#include <vector>

using test::childrenOf;
using test::messageOf;
using test::NewDocument;
using test::Parsed;
using test::utf8;
using xercesc::DOMDocument;
using xercesc::DOMElement;
using xercesc::DOMNode;

namespace {

std::string loadingOf(DOMDocument* document) {
  return messageOf([=] { const OrbDocument loaded(document); });
}

std::string onOneLine(const DOMNode* node) {
  std::ostringstream stream;
  ChartPrinter().Print(node, stream, false);
  std::string line = stream.str();
  line.pop_back();
  return line;
}

/// How many elements of a document have a wrapper.
unsigned int boundElements(DOMDocument& document) {
  const auto* elements = document.getElementsByTagName(u"*");
  unsigned int count = 0;
  for (XMLSize_t i = 0; const auto* element = elements->item(i); ++i)
    count += element->getUserData(element->getNodeName()) != nullptr ? 1 : 0;
  return count;
}

const std::string tooDeep = "Elements are nested more than 10240 levels deep below visualization.";

} // namespace

TEST(UnknownElement, EndsTheLoadWhereverItStands) {
  const struct {
    const char* parent;
    const char* inside;
  } cases[] = {
      {"visualization", R"(<visualization><graph/><bad a="1">t</bad><sourceVariable/></visualization>)"},
      {"graph", R"(<graph id="g">text<!--c--><bad/></graph>)"},
      {"embeddedSource", R"(<embeddedSource><names>a</names><row>1</row><bad><row/></bad></embeddedSource>)"},
      {"multipleResponseVariable", R"(<multipleResponseVariable><bad/></multipleResponseVariable>)"},
  };
  for (const auto& [parent, inside] : cases) {
    const bool isRoot = std::string(parent) == "visualization";
    const std::string xml =
        isRoot ? inside : std::string("<visualization><sourceVariable/>") + inside + "</visualization>";
    const Parsed parsed(xml);
    const test::Log log;
    const std::string message = std::string("Element ") + parent + " found unknown child bad(" + inside + "\n)";
    EXPECT_EQ(loadingOf(parsed.document()), message);
    EXPECT_EQ(log.messages(), std::vector<std::string>{"Error -- Orb: " + message});
    EXPECT_EQ(onOneLine(parsed.root()), xml);
    EXPECT_EQ(boundElements(*parsed.document()), 0U) << "no pointer to what has gone";

    DOMNode* bad = parsed.document()->getElementsByTagName(u"bad")->item(0);
    bad->getParentNode()->removeChild(bad);
    OrbDocument mended(parsed.document());
    EXPECT_EQ(mended.GetVisualization()->getSourceVariables().size(), 1U);
  }
}

TEST(UnknownElement, EndsEachWayOfWrappingByItself) {
  const Parsed parsed("<visualization><variableName><name/><bad/></variableName><graph/>text<bad/></visualization>");
  DOMElement* names = parsed.root()->getFirstElementChild();
  EXPECT_EQ(messageOf([=] { const OrbVariableName wrapper(names); }),
            "Element variableName found unknown child bad(<variableName><name/><bad/></variableName>\n)");

  OrbDocument document;
  OrbVisualization& root = *document.GetVisualization();
  DOMNode* const graph = document.getImplementation()->importNode(names->getNextSibling(), true);
  DOMNode* const bad = document.getImplementation()->importNode(parsed.root()->getLastChild(), true);
  for (DOMNode* node : {graph, bad, static_cast<DOMNode*>(document.getImplementation()->createTextNode(u"text"))})
    root.getImplementation()->appendChild(node);
  root.initWithChildren(nullptr);
  root.initWithChildren(root.getImplementation()->getLastChild());
  root.initWithChildren(graph);
  EXPECT_EQ(messageOf([&] { root.initWithChildren(bad); }).substr(0, 45),
            "Element visualization found unknown child bad");
  ASSERT_EQ(root.getGraphs().size(), 1U);
  EXPECT_EQ(root.getGraphs().front()->getImplementation(), graph);
  EXPECT_EQ(boundElements(*document.getImplementation()), 2U);
}

TEST(Roots, AreRefusedWhereThereIsNone) {
  EXPECT_EQ(loadingOf(nullptr), "There is no document to wrap: the pointer is null.");
  const NewDocument other(u"chart");
  other.root()->appendChild(other.document()->createElement(u"graph"));
  EXPECT_EQ(loadingOf(other.document()), "nothing raised") << "the root's own name is not asked for";
  other.root()->appendChild(other.document()->createElement(u"row"));
  EXPECT_EQ(loadingOf(other.document()), "Element chart found unknown child row(<chart><graph/><row/></chart>\n)");
  other.document()->removeChild(other.root())->release();
  EXPECT_EQ(loadingOf(other.document()), "There is no chart in the document: it has no root element.");
}

TEST(NodesThatAreNoElements, HaveNoWrapperAndStay) {
  const std::string body =
      "<?p?><!--top--><visualization>a<!--b--><?c d?><![CDATA[<e>]]><embeddedSource>f<!--g--><names>h<!--i-->j</names>"
      "<row><!--k-->1;2<![CDATA[;3]]></row></embeddedSource>l<sourceVariable>m<n/><?o?></sourceVariable></"
      "visualization>"
      "<!--end--><?q?>";
  const Parsed parsed(body);
  OrbDocument document(parsed.document());
  const OrbEmbeddedSource* source = document.GetVisualization()->getEmbeddedSources().front();
  EXPECT_EQ(source->getNames()->getText().toUTF8(), "h");
  EXPECT_EQ(source->getRows().front()->getText(1).toUTF8(), "2");
  EXPECT_TRUE(source->getRows().front()->getText(2).empty());
  std::ostringstream printed;
  ChartPrinter().Print(parsed.document(), printed);
  EXPECT_EQ(printed.str(), "<?xml version=\"1.0\" encoding=\"UTF-8\"?>" + body + "\n");

  // What an entity brings in is not among the children.
  const Parsed entity("<!DOCTYPE visualization [<!ENTITY g '<graph/>'>]><visualization>&g;<graph/></visualization>");
  OrbDocument withEntity(entity.document());
  EXPECT_EQ(withEntity.GetVisualization()->getGraphs().size(), 1U);
}

TEST(OddIds, AreReadAsTheyStand) {
  const Parsed parsed(R"(<visualization id=""><graph id=" 1/#"/><graph id="x"/><graph id="x"/>)"
                      R"(<sourceVariable id="x" dependsOn="x"/><sourceVariable dependsOn=""/></visualization>)");
  const test::Log log;
  OrbDocument document(parsed.document());
  OrbVisualization& root = *document.GetVisualization();
  EXPECT_EQ(log.messages().size(), 0U) << "a load says nothing of them";
  EXPECT_EQ(root.getElementById(u" 1/#"), root.getGraphs().front()->getImplementation());
  EXPECT_EQ(root.getElementById(u""), nullptr);
  EXPECT_FALSE(root.doesIdExist(u"1/#"));
  EXPECT_EQ(root.getSourceVariables().back()->getDependsOn(), nullptr);

  // Under parents of one name the second is silent, and not found in place of the first before that one goes.
  OrbGraph* added = root.addGraph(u"x");
  EXPECT_EQ(utf8(added->getId()), "x");
  OrbEmbeddedSource* source = root.addEmbeddedSource(u" 1/#");
  EXPECT_EQ(log.messages().size(), 0U);
  source->addRow()->addID(u"x");
  ASSERT_EQ(log.messages().size(), 1U);
  EXPECT_EQ(log.messages().front(), "Error -- Orb: Attempting to add an existing ID to an element (x) existing: "
                                    "visualization-- attempted: embeddedSource-- 1/#");
}

TEST(NullArguments, DoNothing) {
  OrbDocument document;
  OrbVisualization& root = *document.GetVisualization();
  OrbSourceVariable* variable = root.addSourceVariable(nullptr);
  OrbEmbeddedSource* source = root.addEmbeddedSource(u"");
  OrbRow* row = source->addRow();
  OrbBaseElement& frame = root;
  const std::string before = document.AsUTF8();
  EXPECT_EQ(before.find(" id="), std::string::npos);

  frame.addID(nullptr);
  frame.addID(u"");
  EXPECT_FALSE(frame.doesIdExist(nullptr));
  EXPECT_EQ(frame.getElementById(nullptr), nullptr);
  EXPECT_EQ(frame.getStyleById(nullptr), nullptr);
  EXPECT_EQ(frame.ChildNotFoundError(nullptr).toUTF8().substr(0, 50),
            "Element visualization found unknown child (<visual");
  for (const auto set : {&CTVariableType::setId, &CTVariableType::setLabel, &CTVariableType::setCreator})
    (variable->*set)(nullptr);
  variable->setSource(*source);
  variable->setDependsOn(*variable);
  EXPECT_FALSE(row->setText(nullptr, 0));
  EXPECT_EQ(document.AsUTF8(), before);

  row->setText(u"1;2;3");
  EXPECT_TRUE(row->setText(nullptr, 1));
  EXPECT_EQ(row->getText().toUTF8(), "1;;3");
  row->setText(nullptr);
  EXPECT_TRUE(row->getText().empty());
  EXPECT_EQ(OrbBaseElement(nullptr).AsUTF8(), "");
}

TEST(NullElement, IsRefusedInEachWayOfLoading) {
  const std::string message = "A wrapper needs an element, and got a null pointer.";
  EXPECT_EQ(messageOf([] { const OrbVisualization wrapper(nullptr); }), message);
  EXPECT_EQ(messageOf([] { const OrbSourceVariable wrapper(nullptr, u"id"); }), message);
  EXPECT_EQ(messageOf([] { const OrbEmbeddedSource wrapper(nullptr, u"id"); }), message);
  EXPECT_EQ(messageOf([] { const OrbRow wrapper(nullptr); }), message);
  EXPECT_EQ(messageOf([] { const OrbCoordinates wrapper(nullptr, u"id"); }), message);
  OrbDocument document;
  const OrbCategoricalDomain& categories = *document.GetVisualization()->addCategoricalDomain(u"c");
  EXPECT_EQ(messageOf([&] { const OrbFilter wrapper(nullptr, u"name", categories); }), message);
  const OrbIntervalDomain& interval = *document.GetVisualization()->addIntervalDomain(u"i");
  EXPECT_EQ(messageOf([&] { const OrbFilter wrapper(nullptr, u"name", interval); }), message);
}

TEST(ElementsThatAHostMoves, AreNotFoundByReferencesOnceTheirWrappersHaveGone) {
  OrbDocument document;
  OrbVisualization& root = *document.GetVisualization();
  OrbGraph& reading = *root.addGraph(u"reading");
  OrbGraph& graph = *root.addGraph(u"graph");
  OrbCoordinates& coordinates = *graph.addCoordinates(u"c");
  OrbDimension& taken = *coordinates.addDimension();
  taken.setId(u"taken");
  OrbDimension& moved = *coordinates.addDimension();
  moved.setId(u"moved");
  reading.setAlignCellHorizontallyWith(taken);
  reading.setAlignCellVerticallyWith(moved);
  coordinates.removeChildElement(&taken);
  root.getImplementation()->appendChild(moved.getImplementation());
  EXPECT_EQ(reading.getAlignCellHorizontallyWith(), &taken);
  EXPECT_EQ(reading.getAlignCellVerticallyWith(), &moved);
  graph.removeCoordinatess();
  EXPECT_EQ(reading.getAlignCellHorizontallyWith(), nullptr);
  EXPECT_EQ(reading.getAlignCellVerticallyWith(), nullptr);
}

TEST(OwnTexts, MayBeArguments) {
  OrbDocument document;
  OrbVisualization& root = *document.GetVisualization();
  const XMLCh text[] = u"a text that is long enough to lie in a buffer of its own";
  OrbSourceVariable* variable = root.addSourceVariable(text);
  variable->setLabel(variable->getId());
  variable->setLabel(variable->getLabel());
  variable->addID(variable->getId());
  const OrbSourceVariable* second = root.addSourceVariable(variable->getId());
  EXPECT_EQ(utf8(second->getId()), utf8(text));
  EXPECT_EQ(utf8(variable->getLabel()), utf8(text));

  OrbRow* row = root.addEmbeddedSource(u"s")->addRow();
  row->setText(u"one;two");
  row->setText(row->getImplementation()->getFirstChild()->getNodeValue());
  EXPECT_TRUE(row->setText(row->getImplementation()->getFirstChild()->getNodeValue(), 1));
  EXPECT_EQ(row->getText().toUTF8(), "one;one;two");
}

TEST(HardCharacters, ArePrintedSoThatAParseGivesThemBack) {
  OrbDocument document;
  OrbVisualization& root = *document.GetVisualization();
  const XMLCh text[] = u"\n\"'<&>]]>\u00e9\U0001F600\n";
  root.setName(text);
  root.setDescription(u"a\xd800"
                      u"b\xdc00");
  OrbRow* row = root.addEmbeddedSource(u"s")->addRow();
  row->setText(text);
  const test::Log log;
  const Parsed parsed(document.AsUTF8());
  EXPECT_EQ(log.messages().size(), 1U) << "for the halves of pairs, which no document can hold";
  OrbDocument again(parsed.document());
  EXPECT_EQ(utf8(again.GetVisualization()->getName()), utf8(text));
  EXPECT_EQ(utf8(again.GetVisualization()->getDescription()), "ab");
  EXPECT_EQ(again.GetVisualization()->getEmbeddedSources().front()->getRows().front()->getText().toUTF8(), utf8(text));

  // Version 1.1 has control characters as well.
  document.getImplementation()->setXmlVersion(u"1.1");
  root.setName(u"\x01\x1f\x7f\u0085\u2028.");
  row->setText(u"\x01\r;\x7f");
  const Parsed version11(document.AsUTF8());
  OrbDocument controls(version11.document());
  EXPECT_EQ(utf8(controls.GetVisualization()->getName()), "\x01\x1f\x7f  .") << "but for its line breaks";
  EXPECT_EQ(controls.GetVisualization()->getEmbeddedSources().front()->getRows().front()->getText().toUTF8(),
            "\x01\r;\x7f");
}

TEST(DeepNesting, IsLoadedPrintedAndReleasedToTenThousandLevels) {
  std::optional<OrbDocument> document(std::in_place);
  DOMDocument* dom = document->getImplementation();
  dom->setStrictErrorChecking(false);
  OrbRow* row = document->GetVisualization()->addEmbeddedSource(u"s")->addRow();
  OrbSourceVariable* variable = document->GetVisualization()->addSourceVariable(u"v");
  for (DOMElement* top : {row->getImplementation(), variable->getImplementation()}) {
    for (int level = 0; level < 10'000; ++level)
      top = static_cast<DOMElement*>(top->appendChild(dom->createElement(u"a")));
  }
  EXPECT_EQ(loadingOf(dom), "nothing raised");
  EXPECT_EQ(onOneLine(row->getImplementation()).size(), std::string("<row></row>").size() + 9'999 * 7 + 4);
  document.reset();
}

TEST(DeepNesting, NeedsNoDeepStack) {
  // The path of elements from the root down, the last of which is nested in itself to the limit.
  for (const std::vector<const XMLCh*>& path : {std::vector<const XMLCh*>{u"container"},
                                                {u"style"},
                                                {u"graph", u"faceting", u"blend"},
                                                {u"labelFrame", u"label", u"alternateLabel"}}) {
    const NewDocument document(u"visualization");
    DOMElement* innermost = document.root();
    for (const XMLCh* name : path)
      innermost = document.nest(innermost, name, 1);
    innermost = document.nest(innermost, path.back(), 10'240 - static_cast<unsigned int>(path.size()));
    std::string printed;
    test::onSmallStack([&] {
      const OrbDocument chart(document.document());
      printed = onOneLine(document.root());
    });
    EXPECT_GT(printed.size(), std::size_t{10'000} * (utf8(path.back()).size() + 2)) << utf8(path.back());
    document.nest(innermost, path.back(), 1);
    test::onSmallStack([&] { EXPECT_EQ(loadingOf(document.document()), tooDeep) << utf8(path.back()); });
  }
}

TEST(DeepNesting, OfWhatTheLibraryMadeEndsOnASmallStack) {
  test::onSmallStack([] {
    OrbDocument document;
    document.getImplementation()->setStrictErrorChecking(false);
    OrbContainer* container = document.GetVisualization()->addContainer(nullptr);
    for (int level = 1; level < 10'240; ++level)
      container = container->addContainer(nullptr);
    EXPECT_EQ(loadingOf(document.getImplementation()), "nothing raised");
  });
}

TEST(DeepNesting, IsRefusedBeyondAndReleased) {
  const struct {
    std::vector<const XMLCh*> path;
    std::string message;
  } cases[] = {
      {{u"embeddedSource", u"row"}, tooDeep},
      {{u"graph"}, "Element graph found unknown child unknown(<graph><unknown><unknown>"},
  };
  for (const auto& [path, message] : cases) {
    const NewDocument document(u"visualization");
    DOMElement* innermost = document.root();
    for (const XMLCh* name : path)
      innermost = document.nest(innermost, name, 1);
    document.nest(innermost, u"unknown", 1'000'000);
    EXPECT_EQ(loadingOf(document.document()).substr(0, message.size()), message);
  }
}

TEST(DeepNesting, OfWhatAHostAddsIsReleasedWithTheDocument) {
  std::optional<OrbDocument> document(std::in_place);
  DOMDocument* dom = document->getImplementation();
  dom->setStrictErrorChecking(false);
  DOMElement* const row = document->GetVisualization()->addEmbeddedSource(u"s")->addRow()->getImplementation();
  DOMElement* innermost = row;
  for (int level = 0; level < 1'000'000; ++level)
    innermost = static_cast<DOMElement*>(innermost->appendChild(dom->createElement(u"a")));
  EXPECT_EQ(loadingOf(dom), tooDeep);
  EXPECT_EQ(row->getUserData(u"row"), document->GetVisualization()->getEmbeddedSources().front()->getRows().front())
      << "the failed load took no other's wrapper away";
  document.reset();
}
