// The graph algebra: operators and their operands, the bands of a faceting, variable references and selection terms.
#include "chartstring.h"
#include "ctelementtype.h"
#include "dom.h"
#include "domprinter.h"
#include "keywords.h"
#include "orbaggregatestatistic.h"
#include "orbattach.h"
#include "orbbinstatistic.h"
#include "orbblend.h"
#include "orbcollectrowsstatistic.h"
#include "orbcross.h"
#include "orbderivedvariable.h"
#include "orbdot.h"
#include "orbelementvariablereference.h"
#include "orbevaluatestatistic.h"
#include "orbexpressionvariable.h"
#include "orbfaceting.h"
#include "orbintersect.h"
#include "orbintersectwhere.h"
#include "orblayer.h"
#include "orbmultipleresponsevariable.h"
#include "orbnest.h"
#include "orbpoint.h"
#include "orbreplicate.h"
#include "orbscope.h"
#include "orbsourcevariable.h"
#include "orbsummarystatistic.h"
#include "orbunion.h"
#include "orbunity.h"
#include "orbvariablereference.h"
#include "orbwhen.h"
#include "orbwhere.h"
#include "raised.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <sstream>

using test::childrenOf;
using test::NewDocument;
using test::Parsed;
using test::refuses;
using test::utf8;
using xercesc::DOMElement;

namespace {

/// An element as text on one line.
std::string printed(const DOMElement* element) {
  std::ostringstream stream;
  DOMPrinter().Print(element, stream, false);
  std::string text = stream.str();
  text.erase(std::remove(text.begin(), text.end(), '\n'), text.end());
  return text;
}

/// The operands of a wrapper by family: how many it has, then how many of their ids are known after their removal.
template <class Wrapper> std::string removeOperands(Wrapper& wrapper) {
  std::ostringstream line;
  line << wrapper.removeVariableReferences() << wrapper.removeUnitys() << wrapper.removeBlends()
       << wrapper.removeCrosss() << wrapper.removeDots() << wrapper.removeNests() << " ";
  for (const XMLCh* id : {u"v", u"u", u"b", u"c", u"d", u"n"})
    line << (wrapper.doesIdExist(id) ? utf8(id) : "-");
  return line.str();
}

/// Loads one operand of each family, adds one of each, and removes them all.
template <class Wrapper> void expectOperands(const std::string& removed) {
  const std::string name = ChartString(Wrapper::elementName).toUTF8();
  SCOPED_TRACE(name);
  const Parsed parsed("<" + name +
                      "><!-- operands --><nest id='n'/>text<unity id='u'/><cross id='c'/><variableReference id='v'/>"
                      "<dot id='d'/><blend id='b'/></" +
                      name + ">");
  Wrapper wrapper(parsed.root());
  wrapper.addCross()->addUnity();
  wrapper.addDot()->addNest();
  wrapper.addUnity();
  wrapper.addNest()->addDot();
  wrapper.addVariableReference();
  wrapper.addBlend()->addCross();
  EXPECT_EQ(childrenOf(parsed.root()), "! nest#n \" unity#u cross#c variableReference#v dot#d blend#b "
                                       "cross dot unity nest variableReference blend");
  EXPECT_EQ(utf8(wrapper.getCrosss()[0]->getId()), "c");
  EXPECT_EQ(wrapper.getCrosss()[1]->getUnitys().size(), 1U);
  EXPECT_EQ(wrapper.getBlends()[1]->getCrosss().size(), 1U);
  EXPECT_EQ(removeOperands(wrapper), removed);
  EXPECT_EQ(childrenOf(parsed.root()), "! \"");
}

using AddOne = OrbBaseElement* (*)(OrbFaceting&);
template <auto add> OrbBaseElement* addOne(OrbFaceting& faceting) { return (faceting.*add)(); }

constexpr AddOne addStatistic[] = {
    addOne<&OrbFaceting::addWhen>,
    addOne<&OrbFaceting::addSummaryStatistic>,
    addOne<&OrbFaceting::addBinStatistic>,
    addOne<&OrbFaceting::addAttach>,
    addOne<&OrbFaceting::addEvaluateStatistic>,
    addOne<&OrbFaceting::addReplicate>,
    addOne<&OrbFaceting::addCollectRowsStatistic>,
    addOne<&OrbFaceting::addAggregateStatistic>,
};
constexpr AddOne addTerm[] = {
    addOne<&OrbFaceting::addLayer>,
    addOne<&OrbFaceting::addNest>,
    addOne<&OrbFaceting::addDot>,
    addOne<&OrbFaceting::addCross>,
    addOne<&OrbFaceting::addBlend>,
    addOne<&OrbFaceting::addUnity>,
    addOne<&OrbFaceting::addVariableReference>,
};
constexpr char statistics[] = "when summaryStatistic binStatistic attach evaluateStatistic replicate "
                              "collectRowsStatistic aggregateStatistic";

} // namespace

TEST(Algebra, EveryOperatorTakesEveryOperandInOrderOfAddition) {
  expectOperands<OrbBlend>("222222 vu--d-");
  expectOperands<OrbCross>("222222 vu--d-");
  expectOperands<OrbNest>("222222 vu--d-");
  expectOperands<OrbDot>("222222 vubcdn");
  expectOperands<OrbFaceting>("222222 vubcdn");
}

TEST(Algebra, ALayerStandsUnderAFacetingOnly) {
  EXPECT_TRUE(refuses<OrbBlend>("<layer/>"));
  EXPECT_TRUE(refuses<OrbCross>("<layer/>"));
  EXPECT_TRUE(refuses<OrbNest>("<layer/>"));
  EXPECT_TRUE(refuses<OrbDot>("<layer/>"));
  EXPECT_FALSE(refuses<OrbFaceting>("<layer><cross/></layer>"));
}

TEST(Algebra, LoadersRefuseUnknownChildrenWhereTheyLook) {
  EXPECT_TRUE(refuses<OrbFaceting>("<cross/><union/>"));
  EXPECT_TRUE(refuses<OrbCross>("<summaryStatistic/>"));
  EXPECT_TRUE(refuses<OrbVariableReference>("<unity/>"));
  EXPECT_TRUE(refuses<OrbIntersect>("<intersect/>"));
  EXPECT_TRUE(refuses<OrbUnion>("<where/>"));
  EXPECT_FALSE(
      refuses<OrbVariableReference>("<!-- c -->t<elementVariableReference><other/></elementVariableReference>"));
  EXPECT_FALSE(refuses<OrbCross>("<unity><other/></unity>"));
  EXPECT_FALSE(refuses<OrbScope>("<other/>"));
}

TEST(Faceting, KeepsStatisticsBeforeTerms) {
  for (const AddOne add : addTerm) {
    const NewDocument document(u"faceting");
    OrbFaceting faceting(document.root());
    const std::string term = utf8(add(faceting)->getImplementation()->getTagName());
    for (const AddOne addOneStatistic : addStatistic)
      addOneStatistic(faceting);
    EXPECT_EQ(childrenOf(document.root()), std::string(statistics) + " " + term);
  }

  const NewDocument document(u"faceting");
  OrbFaceting faceting(document.root());
  for (const AddOne add : addStatistic)
    add(faceting);
  for (const AddOne add : addTerm)
    add(faceting);
  EXPECT_EQ(childrenOf(document.root()),
            std::string(statistics) + " layer nest dot cross blend unity variableReference");
  EXPECT_EQ(faceting.removeSummaryStatistics() + faceting.removeWhens() + faceting.removeAttachs(), 3U);
  EXPECT_EQ(faceting.removeLayers(), 1U);
  faceting.addLayer();
  faceting.addSummaryStatistic();
  EXPECT_EQ(childrenOf(document.root()), "binStatistic evaluateStatistic replicate collectRowsStatistic "
                                         "aggregateStatistic summaryStatistic nest dot cross blend unity "
                                         "variableReference layer");
}

TEST(Faceting, PrintsWhatItLoaded) {
  const std::string text =
      R"(<faceting augmentEmptyCells="true" id="f"><binStatistic/><cross id="outer"><nest><blend><cross id="inner">)"
      R"(<unity/><variableReference ref="a"><elementVariableReference element="p" ref="b"/></variableReference>)"
      R"(</cross></blend></nest></cross><layer method="nest" value="1" variable="a"/></faceting>)";
  const Parsed parsed(text);
  const OrbFaceting faceting(parsed.root());
  EXPECT_TRUE(faceting.getAugmentEmptyCells());
  EXPECT_EQ(faceting.getLayers()[0]->getMethod(), OrbLayer::method_nest);
  const OrbCross& inner = *faceting.getCrosss()[0]->getNests()[0]->getBlends()[0]->getCrosss()[0];
  EXPECT_EQ(utf8(inner.getId()), "inner");
  EXPECT_EQ(inner.getVariableReferences()[0]->getElementVariableReferences().size(), 1U);
  EXPECT_EQ(printed(parsed.root()), text);
}

TEST(Algebra, HoldsTenThousandNestedOperators) {
  const NewDocument document(u"faceting");
  DOMElement* innermost = document.root();
  for (int round = 0; round < 2500; ++round) {
    for (const XMLCh* name : {u"cross", u"nest", u"blend", u"dot"})
      innermost = document.nest(innermost, name, 1);
  }
  document.nest(innermost, u"unity", 1);
  const OrbFaceting faceting(document.root());
  const OrbCross* cross = faceting.getCrosss()[0];
  const OrbDot* dot = nullptr;
  for (int round = 0; round < 2500; ++round) {
    dot = cross->getNests()[0]->getBlends()[0]->getDots()[0];
    cross = round == 2499 ? nullptr : dot->getCrosss()[0];
  }
  EXPECT_EQ(dot->getUnitys().size(), 1U);

  const std::string text = printed(document.root());
  const Parsed again(text);
  const OrbFaceting loadedAgain(again.root());
  EXPECT_TRUE(printed(again.root()) == text);
}

TEST(Layer, NumbersItsMethods) {
  test::expectKeywords<OrbLayer>(u"method", &OrbLayer::getMethod, &OrbLayer::setMethod, "cross nest dot",
                                 {.foreign = "blend"});
}

TEST(VariableReferences, FindThreeKindsOfVariable) {
  const Parsed parsed("<r><variableReference/><layer/><s id='s'/><d id='d'/><e id='e'/><m id='m'/></r>");
  auto* reference = static_cast<DOMElement*>(parsed.root()->getFirstChild());
  const auto element = [&](const XMLCh* id) { return parsed.document()->getElementById(id); };
  const OrbSourceVariable source(element(u"s"));
  const OrbDerivedVariable derived(element(u"d"));
  const OrbExpressionVariable expression(element(u"e"));
  const OrbMultipleResponseVariable multiple(element(u"m"));

  OrbVariableReference wrapper(reference, source);
  EXPECT_EQ(wrapper.getRef(), &source);
  wrapper.setRef(derived);
  EXPECT_EQ(wrapper.getRef(), &derived);
  wrapper.setRef(expression);
  EXPECT_EQ(wrapper.getRef(), &expression);
  wrapper.setRef(multiple);
  EXPECT_EQ(utf8(wrapper.GetAttribute(u"ref")), "m");
  EXPECT_EQ(wrapper.getRef(), nullptr);

  const OrbLayer layer(static_cast<DOMElement*>(reference->getNextSibling()), derived, u"a value");
  EXPECT_EQ(layer.getVariable(), &derived);
  EXPECT_EQ(utf8(layer.getValue()), "a value");
}

TEST(VariableReferences, OfSingleElementsAreWrittenAndNeverFound) {
  const Parsed parsed("<elementVariableReference><point id='p'/><sourceVariable id='s'/></elementVariableReference>");
  const OrbPoint point(parsed.document()->getElementById(u"p"));
  const OrbSourceVariable source(parsed.document()->getElementById(u"s"));
  OrbElementVariableReference reference(parsed.root());
  EXPECT_FALSE(reference.isElementPresent() || reference.isRefPresent());
  reference.setElement(point);
  reference.setRef(source);
  EXPECT_TRUE(reference.isElementPresent() && reference.isRefPresent());
  EXPECT_EQ(utf8(reference.GetAttribute(u"element")), "p");
  EXPECT_EQ(utf8(reference.GetAttribute(u"ref")), "s");
  EXPECT_EQ(reference.getElement(), nullptr);
  EXPECT_EQ(reference.getRef(), nullptr);
}

TEST(Selections, AreTermsOfConditions) {
  const NewDocument document(u"union");
  OrbUnion selection(document.root());
  OrbIntersect* term = selection.addIntersect();
  term->addIntersectWhere();
  term->addWhere()->setInclude(u"1");
  term->addIntersectWhere();
  selection.addIntersect()->addWhere()->setExclude(u"2");
  EXPECT_EQ(childrenOf(term->getImplementation()), "intersectWhere where intersectWhere");

  const Parsed parsed(printed(document.root()));
  OrbUnion loaded(parsed.root());
  ASSERT_EQ(loaded.getIntersects().size(), 2U);
  EXPECT_EQ(loaded.getIntersects()[0]->getIntersectWheres().size(), 2U);
  EXPECT_EQ(utf8(loaded.getIntersects()[1]->getWheres()[0]->getExclude()), "2");
  EXPECT_EQ(loaded.removeIntersects(), 2U);
  EXPECT_EQ(childrenOf(parsed.root()), "");
}

TEST(Scope, ReadsItsFirstTextAndLeavesWhatIsNoText) {
  const Parsed parsed("<scope><!-- c -->first<!-- d -->second<other/></scope>");
  OrbScope scope(parsed.root());
  EXPECT_EQ(scope.getText().toUTF8(), "first");
  scope.setText(u"new");
  EXPECT_EQ(childrenOf(parsed.root()), "! ! other \"");
  scope.removeText();
  EXPECT_TRUE(scope.getText().empty());
}
