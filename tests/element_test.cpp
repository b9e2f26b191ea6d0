// The graphic elements: where their children go, limits, removal by position, numberings, loading and references.
#include "dom.h"
#include "keywords.h"
#include "orbaggregatestatistic.h"
#include "orbarea.h"
#include "orbattach.h"
#include "orbbinstatistic.h"
#include "orbcollectrowsstatistic.h"
#include "orbcolor.h"
#include "orbcolorcomponent.h"
#include "orbconditionalstyle.h"
#include "orbcoordinates.h"
#include "orbdash.h"
#include "orbedge.h"
#include "orbevaluatestatistic.h"
#include "orbimage.h"
#include "orbinterval.h"
#include "orbline.h"
#include "orboffset.h"
#include "orbpath.h"
#include "orbpattern.h"
#include "orbpoint.h"
#include "orbpolygon.h"
#include "orbposition.h"
#include "orbreplicate.h"
#include "orbrotation.h"
#include "orbschema.h"
#include "orbshape.h"
#include "orbsize.h"
#include "orbsplit.h"
#include "orbstyle.h"
#include "orbstyleby.h"
#include "orbsummarystatistic.h"
#include "orbtransparency.h"
#include "orbvisibility.h"
#include "orbwhen.h"
#include "orbx.h"
#include "orby.h"
#include "orbz.h"
#include "raised.h"

#include <gtest/gtest.h>

#include <functional>
#include <map>
#include <sstream>
#include <vector>

using test::childrenOf;
using test::expectKeywords;
using test::messageOf;
using test::NewDocument;
using test::Parsed;
using test::utf8;
using xercesc::DOMElement;

namespace {

DOMElement* addElement(const NewDocument& document, const XMLCh* name) {
  return static_cast<DOMElement*>(document.root()->appendChild(document.document()->createElement(name)));
}

using Names = std::vector<std::string>;
const Names statistics = {"binStatistic",     "aggregateStatistic", "collectRowsStatistic",
                          "summaryStatistic", "evaluateStatistic",  "when"};
const Names aesthetics = {"styleBy", "dash",    "shape",        "size",  "rotation",      "color",
                          "offset",  "pattern", "transparency", "split", "colorComponent"};
const Names positions = {"x", "y", "z", "position"};
const Names unplaced = {"attach", "visibility", "image", "replicate"};

/// What one family offers, by the name of its element.
struct Operations {
  std::function<void(CTElementType&)> add;
  std::function<std::size_t(const CTElementType&)> count;
  std::function<unsigned int(CTElementType&)> removeAll;
};
template <class Child>
Operations family(Child* (CTElementType::*add)(), std::vector<Child*> (CTElementType::*all)() const,
                  unsigned int (CTElementType::*removeAll)()) {
  return {add, [all](const CTElementType& element) { return (element.*all)().size(); }, removeAll};
}
template <class Child>
Operations single(Child* (CTElementType::*add)(), Child* (CTElementType::*get)() const,
                  unsigned int (CTElementType::*removeAll)()) {
  return {add, [get](const CTElementType& element) { return (element.*get)() == nullptr ? 0U : 1U; }, removeAll};
}

using E = CTElementType;
const std::map<std::string, Operations> families = {
    {"conditionalStyle",
     {[](E& element) {
        OrbStyle style(element.getImplementation()->getOwnerDocument()->createElement(u"style"));
        style.setId(u"s");
        const OrbConditionalStyle* added = element.addConditionalStyle(u"a > 1", style);
        EXPECT_EQ(utf8(added->GetAttribute(u"when")), "a > 1");
        EXPECT_EQ(utf8(added->GetAttribute(u"style")), "s");
      },
      [](const E& element) { return element.getConditionalStyles().size(); }, &E::removeConditionalStyles}},
    {"styleBy",
     {[](E& element) { element.addStyleBy(nullptr); }, [](const E& element) { return element.getStyleBys().size(); },
      &E::removeStyleBys}},
    {"dash", family(&E::addDash, &E::getDashs, &E::removeDashs)},
    {"shape", family(&E::addShape, &E::getShapes, &E::removeShapes)},
    {"size", family(&E::addSize, &E::getSizes, &E::removeSizes)},
    {"rotation", family(&E::addRotation, &E::getRotations, &E::removeRotations)},
    {"color", family(&E::addColor, &E::getColors, &E::removeColors)},
    {"offset", family(&E::addOffset, &E::getOffsets, &E::removeOffsets)},
    {"pattern", family(&E::addPattern, &E::getPatterns, &E::removePatterns)},
    {"transparency", family(&E::addTransparency, &E::getTransparencys, &E::removeTransparencys)},
    {"split", family(&E::addSplit, &E::getSplits, &E::removeSplits)},
    {"colorComponent", family(&E::addColorComponent, &E::getColorComponents, &E::removeColorComponents)},
    {"position", family(&E::addPosition, &E::getPositions, &E::removePositions)},
    {"x", single(&E::addX, &E::getX, &E::removeXs)},
    {"y", single(&E::addY, &E::getY, &E::removeYs)},
    {"z", single(&E::addZ, &E::getZ, &E::removeZs)},
    {"binStatistic", family(&E::addBinStatistic, &E::getBinStatistics, &E::removeBinStatistics)},
    {"aggregateStatistic",
     family(&E::addAggregateStatistic, &E::getAggregateStatistics, &E::removeAggregateStatistics)},
    {"collectRowsStatistic",
     family(&E::addCollectRowsStatistic, &E::getCollectRowsStatistics, &E::removeCollectRowsStatistics)},
    {"summaryStatistic", family(&E::addSummaryStatistic, &E::getSummaryStatistics, &E::removeSummaryStatistics)},
    {"evaluateStatistic", family(&E::addEvaluateStatistic, &E::getEvaluateStatistics, &E::removeEvaluateStatistics)},
    {"attach", family(&E::addAttach, &E::getAttachs, &E::removeAttach)},
    {"visibility", family(&E::addVisibility, &E::getVisibilitys, &E::removeVisibilitys)},
    {"image", family(&E::addImage, &E::getImages, &E::removeImages)},
    {"replicate", family(&E::addReplicate, &E::getReplicates, &E::removeReplicates)},
    {"when", family(&E::addWhen, &E::getWhens, &E::removeWhens)},
};

/// The children of a point to which they were added in the order of a line.
std::string placed(const std::string& line) {
  const NewDocument document(u"point");
  OrbPoint point(document.root());
  std::istringstream names(line);
  for (std::string name; names >> name;)
    families.at(name).add(point);
  return childrenOf(document.root());
}

TEST(Element, GroupsFallIntoOrderWhateverTheOrderOfTheAdds) {
  const test::Platform platform;
  for (const std::string& statistic : statistics) {
    for (const std::string& aesthetic : aesthetics) {
      for (const std::string& position : positions) {
        ASSERT_EQ(placed(position + " " + aesthetic + " " + statistic + " conditionalStyle"),
                  "conditionalStyle " + statistic + " " + aesthetic + " " + position);
      }
    }
  }
  // What comes second in its group goes behind the first, and the head is in front of any group.
  for (const auto& [first, group] : {std::pair("when", statistics), {"color", aesthetics}, {"position", positions}}) {
    for (const std::string& second : group)
      ASSERT_EQ(placed(first + (" " + second) + " conditionalStyle conditionalStyle"),
                "conditionalStyle conditionalStyle " + (first + (" " + second)));
  }
  for (const std::string& statistic : statistics)
    ASSERT_EQ(placed("x " + statistic), statistic + " x");
  for (const Names& group : {statistics, aesthetics, positions}) {
    for (const std::string& name : group)
      ASSERT_EQ(placed(name + " conditionalStyle"), "conditionalStyle " + name);
  }
  EXPECT_EQ(placed("size x color"), "size color x");
  EXPECT_EQ(placed("position x color z binStatistic y"), "binStatistic color position x z y");
}

TEST(Element, ChildrenOfNoGroupStayWhereTheyWereAppended) {
  for (const std::string& name : unplaced) {
    EXPECT_EQ(placed("x " + name), "x " + name);
    EXPECT_EQ(placed(name + " color binStatistic y"), name + " binStatistic color y");
    EXPECT_EQ(placed(name + " conditionalStyle"),
              name == "attach" ? "conditionalStyle attach" : name + " conditionalStyle");
  }
}

TEST(Element, StyleByGoesBeforeTheAestheticThatItStyles) {
  const NewDocument document(u"root");
  OrbPoint point(addElement(document, u"point"));
  OrbPoint other(addElement(document, u"point"));
  const auto children = [&] { return childrenOf(point.getImplementation()); };
  point.addSize();
  OrbColor* color = point.addColor();
  point.addX();
  OrbVisibility* visibility = point.addVisibility();
  point.addStyleBy(color)->setId(u"1");
  EXPECT_EQ(children(), "size styleBy#1 color x visibility");
  // What stands behind x goes by x, and the aesthetic of another element says nothing.
  point.addStyleBy(visibility)->setId(u"2");
  point.addStyleBy(other.addColor())->setId(u"3");
  EXPECT_EQ(children(), "size styleBy#1 color styleBy#2 styleBy#3 x visibility");
  EXPECT_EQ(childrenOf(other.getImplementation()), "color");

  // The statistics look for the first wrapper of each family alone, and here a later one stands ahead of it.
  other.addStyleBy(nullptr)->setId(u"4");
  other.addStyleBy(other.getColors().front())->setId(u"5");
  other.addBinStatistic();
  EXPECT_EQ(childrenOf(other.getImplementation()), "styleBy#5 binStatistic color styleBy#4");
}

TEST(Element, HasOneXOneYAndOneZ) {
  const NewDocument document(u"schema");
  OrbSchema schema(document.root());
  for (const std::string name : {"x", "y", "z"}) {
    const Operations& child = families.at(name);
    EXPECT_EQ(child.count(schema), 0U);
    child.add(schema);
    const std::string word(1, static_cast<char>(name[0] - 'a' + 'A'));
    EXPECT_EQ(messageOf([&] { child.add(schema); }),
              "Can not add a " + word + " to a ElementType because 1 " + word + "(s) already exist(s).");
    EXPECT_EQ(childrenOf(document.root()), name);
    EXPECT_EQ(child.removeAll(schema), 1U);
    child.add(schema);
    EXPECT_EQ(child.removeAll(schema), 1U);
  }

  const Parsed parsed("<point><x id='1'/><color/><x id='2'/></point>");
  OrbPoint point(parsed.root());
  EXPECT_EQ(point.getX()->getImplementation(), parsed.root()->getFirstChild());
  EXPECT_EQ(messageOf([&] { point.addX(); }), "Can not add a X to a ElementType because 2 X(s) already exist(s).");
  EXPECT_EQ(childrenOf(parsed.root()), "x#1 color x#2");
  EXPECT_EQ(point.removeXs(), 2U);
}

template <class Child>
void expectRemovesOne(std::vector<Child*> (CTElementType::*all)() const,
                      bool (CTElementType::*removeOne)(unsigned long)) {
  const test::Platform platform;
  const std::string name = utf8(Child::elementName);
  SCOPED_TRACE(name);
  const Parsed parsed("<line><" + name + " id='1'/><" + name + " id='2'/><x/><" + name + " id='3'/></line>");
  OrbLine line(parsed.root());
  const std::vector<Child*> before = (line.*all)();
  EXPECT_FALSE((line.*removeOne)(3));
  EXPECT_TRUE((line.*removeOne)(1));
  EXPECT_EQ((line.*all)(), (std::vector<Child*>{before[0], before[2]}));
  EXPECT_EQ(childrenOf(parsed.root()), name + "#1 x " + name + "#3");
  EXPECT_NE(parsed.document()->getElementById(u"2"), nullptr);
  EXPECT_FALSE((line.*removeOne)(2));
}

TEST(Element, RemovesOneOfFiveFamiliesByPosition) {
  expectRemovesOne(&E::getStyleBys, &E::removeStyleBy);
  expectRemovesOne(&E::getDashs, &E::removeDash);
  expectRemovesOne(&E::getShapes, &E::removeShape);
  expectRemovesOne(&E::getColors, &E::removeColor);
  expectRemovesOne(&E::getPatterns, &E::removePattern);
}

TEST(Element, KeywordsHaveTheirNumbers) {
  expectKeywords<OrbPoint>(u"labelCollisionHandling", &E::getLabelCollisionHandling, &E::setLabelCollisionHandling,
                           "none normal fast quality extreme basic outside inside");
  expectKeywords<OrbPoint>(u"positionModifier", &E::getPositionModifier, &E::setPositionModifier,
                           "none center stack stackInterpolating setMissingsToZero minusIntersection dodge pile "
                           "jitterJointUniform jitterConditionalUniform jitterJointNormal jitterConditionalNormal "
                           "centerStacked");
  expectKeywords<OrbPoint>(u"clip", &E::getClip, &E::setClip, "none cell domain", {.first = 0});
  const std::string breaks = "gap interpolate wings";
  const XMLCh* name = u"breakRepresentation";
  expectKeywords<OrbArea>(name, &OrbArea::getBreakRepresentation, &OrbArea::setBreakRepresentation, breaks);
  expectKeywords<OrbLine>(name, &OrbLine::getBreakRepresentation, &OrbLine::setBreakRepresentation, breaks);
  expectKeywords<OrbPath>(name, &OrbPath::getBreakRepresentation, &OrbPath::setBreakRepresentation, breaks);
}

/// The wrapper stands under its element's name, refuses an unknown child, and leaves no pointer behind when it does.
template <class Wrapper> void expectStrict() {
  const test::Platform platform;
  const std::string name = utf8(Wrapper::elementName);
  SCOPED_TRACE(name);
  const Parsed good("<" + name + " id='i'>text<!-- comment --><x/></" + name + ">");
  const Wrapper wrapper(good.root());
  EXPECT_EQ(good.root()->getUserData(Wrapper::elementName), &wrapper);
  EXPECT_NE(wrapper.getX(), nullptr);
  const Parsed bad("<" + name + "><x/><bogus/></" + name + ">");
  const std::string message = messageOf([&] { const Wrapper failed(bad.root()); });
  EXPECT_EQ(message.find("Element " + name + " found unknown child bogus("), 0U) << message;
  EXPECT_EQ(bad.root()->getUserData(Wrapper::elementName), nullptr);
}

TEST(Element, EveryKindRefusesUnknownChildren) {
  expectStrict<OrbArea>();
  expectStrict<OrbEdge>();
  expectStrict<OrbInterval>();
  expectStrict<OrbLine>();
  expectStrict<OrbPath>();
  expectStrict<OrbPoint>();
  expectStrict<OrbPolygon>();
  expectStrict<OrbSchema>();
}

TEST(Element, APointWithEverythingComesBackAsItWas) {
  const NewDocument document(u"point");
  OrbPoint point(document.root(), u"p");
  EXPECT_EQ(document.document()->getElementById(u"p"), document.root());
  for (const auto& [name, child] : families)
    child.add(point);
  point.setName(u"points");
  point.setDot(true);
  point.setShowCollidingLabels(false);
  point.setXLocation(0.25);
  point.setYLocation(-1e300);
  point.setZLocation(3);
  point.setZOrder(-4);
  point.setClip(OrbPoint::clip_domain);
  const std::string text = point.AsUTF8();

  const Parsed parsed(text);
  OrbPoint loaded(parsed.root());
  EXPECT_EQ(loaded.AsUTF8(), text);
  EXPECT_EQ(utf8(loaded.getName()), "points");
  EXPECT_TRUE(loaded.getDot());
  EXPECT_EQ(loaded.getXLocation(), 0.25);
  EXPECT_EQ(loaded.getYLocation(), -1e300);
  EXPECT_EQ(loaded.getZLocation(), 3);
  EXPECT_EQ(utf8(loaded.GetAttribute(u"zOrder")), "-4");
  EXPECT_EQ(loaded.getZOrder(), 0);
  for (const auto& [name, child] : families) {
    SCOPED_TRACE(name);
    EXPECT_EQ(child.count(loaded), 1U);
    EXPECT_EQ(child.removeAll(loaded), 1U);
    EXPECT_EQ(child.removeAll(loaded), 0U);
  }
  EXPECT_EQ(parsed.root()->getFirstElementChild(), nullptr);
}

TEST(Element, ReferencesResolveUnderTheNameOfTheirTarget) {
  const NewDocument document(u"root");
  OrbStyle style(addElement(document, u"style"));
  OrbCoordinates coordinates(addElement(document, u"coordinates"));
  OrbSchema schema(addElement(document, u"schema"), u"e");
  schema.setOutlierStyle(style);
  EXPECT_FALSE(schema.getImplementation()->hasAttribute(u"outlierStyle"));
  style.setId(u"s");
  coordinates.setId(u"c");
  schema.setCoordinates(coordinates);
  EXPECT_EQ(schema.getCoordinates(), &coordinates);

  using Get = OrbStyle* (OrbSchema::*)() const;
  using Set = void (OrbSchema::*)(const OrbStyle&);
  using Remove = void (OrbSchema::*)();
  struct Reference {
    const XMLCh* name;
    Get get;
    Set set;
    Remove remove;
  };
  const Reference references[] = {
      {u"style", &OrbSchema::getStyle, &OrbSchema::setStyle, &OrbSchema::removeStyle},
      {u"medianStyle", &OrbSchema::getMedianStyle, &OrbSchema::setMedianStyle, &OrbSchema::removeMedianStyle},
      {u"fenceStyle", &OrbSchema::getFenceStyle, &OrbSchema::setFenceStyle, &OrbSchema::removeFenceStyle},
      {u"hingeStyle", &OrbSchema::getHingeStyle, &OrbSchema::setHingeStyle, &OrbSchema::removeHingeStyle},
      {u"outlierStyle", &OrbSchema::getOutlierStyle, &OrbSchema::setOutlierStyle, &OrbSchema::removeOutlierStyle},
      {u"extremeStyle", &OrbSchema::getExtremeStyle, &OrbSchema::setExtremeStyle, &OrbSchema::removeExtremeStyle},
  };
  for (const auto& [name, get, set, remove] : references) {
    SCOPED_TRACE(utf8(name));
    (schema.*set)(style);
    EXPECT_EQ(utf8(schema.GetAttribute(name)), "s");
    EXPECT_EQ((schema.*get)(), &style);
    for (const XMLCh* wrong : {u"c", u"nobody"}) {
      schema.SetAttribute(name, wrong);
      EXPECT_EQ((schema.*get)(), nullptr);
    }
    (schema.*remove)();
    EXPECT_FALSE(schema.getImplementation()->hasAttribute(name));
  }
}

} // namespace
