// Guides and legends: where their children go, limits, ids, loading, and the references of what a legend explains.
#include "dom.h"
#include "elements.h"
#include "keywords.h"
#include "orbcategoricaldomain.h"
#include "orbconditionalstyle.h"
#include "orbdomainexclude.h"
#include "orbdomainintersect.h"
#include "orbdomainreplace.h"
#include "orbdomainunion.h"
#include "orbexception.h"
#include "orbextension.h"
#include "orbframeguide.h"
#include "orbfunctionguide.h"
#include "orbgraph.h"
#include "orbintervaldomain.h"
#include "orblabel.h"
#include "orblegend.h"
#include "orblegendtarget.h"
#include "orblineguide.h"
#include "orbplaneguide.h"
#include "orbpointguide.h"
#include "orbrectangleguide.h"
#include "orbstyle.h"
#include "raised.h"

#include <gtest/gtest.h>

#include <functional>
#include <string>
#include <vector>

using test::addElement;
using test::attributeOf;
using test::childrenOf;
using test::expectKeywords;
using test::messageOf;
using test::NewDocument;
using test::Parsed;
using test::refuses;
using test::utf8;
using xercesc::DOMElement;

namespace {

/// Whether the document forgets the id of a child when it is removed.
template <class Wrapper, class Child>
bool forgets(const std::function<Child*(Wrapper&)>& add, unsigned int (Wrapper::*removeAll)()) {
  const NewDocument document(Wrapper::elementName);
  Wrapper wrapper(document.root());
  add(wrapper)->addID(u"child");
  EXPECT_TRUE(wrapper.doesIdExist(u"child"));
  EXPECT_EQ((wrapper.*removeAll)(), 1U);
  return !wrapper.doesIdExist(u"child");
}

/// A guide stands under its element's name, finds the children of all guides, and refuses any other.
template <class Guide> void expectLoads() {
  const std::string name = utf8(Guide::elementName);
  SCOPED_TRACE(name);
  const Parsed parsed("<" + name + "><extension/><label/><conditionalStyle/><label/></" + name + ">");
  Guide guide(parsed.root());
  EXPECT_EQ(parsed.root()->getUserData(Guide::elementName), &guide);
  EXPECT_EQ(guide.getLabels().size(), 2U);
  EXPECT_EQ(guide.getConditionalStyles().size(), 1U);
  EXPECT_EQ(guide.getExtensions().size(), 1U);
  EXPECT_TRUE(refuses<Guide>("<style/>"));
}

OrbLegendTarget* addTarget(OrbLegend& legend) { return legend.addLegendTarget(u"target", legend); }

/// The adds of a legend in the order of their elements.
struct LegendAdd {
  std::string name;
  std::function<void(OrbLegend&)> add;
};
const std::vector<LegendAdd> legendAdds = {
    {"extension", [](OrbLegend& legend) { legend.addExtension(); }},
    {"location", [](OrbLegend& legend) { legend.addLocation(OrbLocation::part_top); }},
    {"label", [](OrbLegend& legend) { legend.addLabel(); }},
    {"legendTarget#target", [](OrbLegend& legend) { addTarget(legend); }},
};

} // namespace

TEST(Guide, TheNormalOfAPlaneIsNumberedFromZero) {
  expectKeywords<OrbPlaneGuide>(u"normal", &OrbPlaneGuide::getNormal, &OrbPlaneGuide::setNormal, "x y z", {.first = 0});
}

TEST(Guide, EachLoadsTheChildrenOfAllGuides) {
  expectLoads<OrbFrameGuide>();
  expectLoads<OrbFunctionGuide>();
  expectLoads<OrbLineGuide>();
  expectLoads<OrbPlaneGuide>();
  expectLoads<OrbPointGuide>();
  expectLoads<OrbRectangleGuide>();
}

TEST(Guide, LabelsGoBeforeConditionalStylesAndNotBeforeExtensions) {
  const NewDocument document(u"any");
  const OrbStyle style(addElement(document, u"style", u"red"));
  OrbPointGuide guide(addElement(document, u"pointGuide", u"guide"));
  const auto children = [&] { return childrenOf(guide.getImplementation()); };
  guide.addExtension();
  guide.addLabel();
  guide.addLabel();
  EXPECT_EQ(children(), "extension label label");
  const OrbConditionalStyle* conditional = guide.addConditionalStyle(u"x > 0", style);
  EXPECT_EQ(attributeOf(*conditional, u"when"), "x > 0");
  EXPECT_EQ(attributeOf(*conditional, u"style"), "red");
  guide.addExtension();
  guide.addConditionalStyle(u"x < 0", style);
  guide.addLabel();
  EXPECT_EQ(children(), "extension label label label conditionalStyle extension conditionalStyle");
}

TEST(Guide, ARemoveLeavesIdsRegistered) {
  const NewDocument document(u"style");
  const OrbStyle style(document.root());
  EXPECT_FALSE((forgets<OrbLineGuide, OrbLabel>(&OrbLineGuide::addLabel, &OrbLineGuide::removeLabels)));
  EXPECT_FALSE((forgets<OrbLineGuide, OrbConditionalStyle>(
      [&](OrbLineGuide& guide) { return guide.addConditionalStyle(u"x", style); },
      &OrbLineGuide::removeConditionalStyles)));
  EXPECT_FALSE((forgets<OrbLineGuide, OrbExtension>(&OrbLineGuide::addExtension, &OrbLineGuide::removeExtensions)));
}

TEST(Guide, CoordinatesOfALineAreTexts) {
  const Parsed parsed("<lineGuide z1='' z2='50%'/>");
  OrbLineGuide guide(parsed.root());
  EXPECT_FALSE(guide.isZ1Present());
  EXPECT_TRUE(guide.isZ2Present());
  guide.setX1(u"mean(a)");
  EXPECT_EQ(utf8(guide.getX1()), "mean(a)");
  EXPECT_EQ(utf8(guide.getZ2()), "50%");
}

TEST(Legend, KeepsItsChildrenInOrder) {
  for (std::size_t first = 0; first < legendAdds.size(); ++first) {
    for (std::size_t second = first + 1; second < legendAdds.size(); ++second) {
      for (const bool inOrder : {true, false}) {
        const NewDocument document(u"legend");
        OrbLegend legend(document.root());
        legendAdds[inOrder ? first : second].add(legend);
        legendAdds[inOrder ? second : first].add(legend);
        EXPECT_EQ(childrenOf(document.root()), legendAdds[first].name + " " + legendAdds[second].name);
      }
    }
  }
}

TEST(Legend, HasOneLabelWhichTheMessageNamesInThePlural) {
  const NewDocument document(u"legend");
  OrbLegend legend(document.root());
  for (const LegendAdd& child : legendAdds)
    child.add(legend);
  EXPECT_EQ(messageOf([&] { legend.addLabel(); }),
            "Can not add a Labels to a Legend because 1 Labels(s) already exist(s).");
  const OrbLocation* location = legend.addLocation(OrbLocation::part_width);
  EXPECT_EQ(location->getPart(), OrbLocation::part_width);
  const OrbExtension* extension = legend.getExtension();
  legend.addExtension();
  EXPECT_EQ(legend.getExtension(), extension) << "the first of several";
  EXPECT_EQ(childrenOf(document.root()), "extension extension location location label legendTarget#target");
}

TEST(Legend, LoadsChildrenInAnyOrderAndNumber) {
  const Parsed parsed("<legend><legendTarget><any/></legendTarget><label id='a'/><label id='b'/><!-- c -->"
                      "<extension/><location/></legend>");
  OrbLegend legend(parsed.root());
  EXPECT_EQ(parsed.root()->getUserData(u"legend"), &legend);
  ASSERT_NE(legend.getLabel(), nullptr);
  EXPECT_EQ(utf8(legend.getLabel()->getId()), "a");
  EXPECT_NE(legend.getExtension(), nullptr);
  EXPECT_EQ(legend.getLocations().size(), 1U);
  EXPECT_EQ(legend.getLegendTargets().size(), 1U);
  EXPECT_EQ(messageOf([&] { legend.addLabel(); }),
            "Can not add a Labels to a Legend because 2 Labels(s) already exist(s).");
  EXPECT_TRUE(refuses<OrbLegend>("<legend/>"));
}

TEST(Legend, ARemoveTakesTheIdsOfAllButTheExtensionsAway) {
  EXPECT_FALSE((forgets<OrbLegend, OrbExtension>(&OrbLegend::addExtension, &OrbLegend::removeExtensions)));
  EXPECT_TRUE((forgets<OrbLegend, OrbLocation>(
      [](OrbLegend& legend) { return legend.addLocation(OrbLocation::part_left); }, &OrbLegend::removeLocations)));
  EXPECT_TRUE((forgets<OrbLegend, OrbLabel>(&OrbLegend::addLabel, &OrbLegend::removeLabels)));
  EXPECT_TRUE((forgets<OrbLegend, OrbLegendTarget>(&addTarget, &OrbLegend::removeLegendTargets)));
}

TEST(Legend, TakesItsIdAfterItHasLoaded) {
  const Parsed refused("<legend><any/></legend>");
  EXPECT_THROW(OrbLegend(refused.root(), u"l"), OrbException);
  EXPECT_FALSE(refused.root()->hasAttribute(u"id"));
  const Parsed parsed("<legend><label/></legend>");
  const OrbLegend legend(parsed.root(), u"l");
  EXPECT_EQ(legend.getElementById(u"l"), parsed.root());
  EXPECT_NE(legend.getLabel(), nullptr);
}

TEST(LegendTarget, LeadsToTheElementOfAnyClass) {
  const NewDocument document(u"any");
  OrbGraph graph(addElement(document, u"graph", u"g"));
  DOMElement* element = document.document()->createElement(u"legendTarget");
  document.root()->appendChild(element);
  OrbLegendTarget target(element, u"t", graph);
  EXPECT_EQ(element->getUserData(u"legendTarget"), &target);
  EXPECT_EQ(target.getElementById(u"t"), element);
  EXPECT_EQ(target.getTarget(), graph.getImplementation());
  target.setTarget(OrbBaseElement(addElement(document, u"unknown", u"u")));
  ASSERT_NE(target.getTarget(), nullptr) << "an element without a wrapper";
  EXPECT_EQ(utf8(target.getTarget()->getTagName()), "unknown");
  target.setTarget(graph);
  graph.removeId();
  EXPECT_EQ(target.getTarget(), nullptr);
  target.setTarget(graph);
  EXPECT_EQ(attributeOf(target, u"target"), "g") << "a target without an id writes nothing";

  DOMElement* other = document.document()->createElement(u"legendTarget");
  OrbLegendTarget(other, u"o", graph);
  EXPECT_EQ(other->getAttributes()->getLength(), 1U);
  EXPECT_TRUE(other->hasAttribute(u"id"));
}

TEST(LegendTarget, RaisesWithoutADomain) {
  const NewDocument document(u"any");
  OrbLegendTarget target(addElement(document, u"legendTarget", u"t"));
  const auto message = [&] { return messageOf([&] { target.getDomain(); }); };
  EXPECT_EQ(message(), "Attribute Domain refers to , but that element does not exist.");
  target.SetAttribute(u"domain", u"missing");
  EXPECT_EQ(message(), "Attribute Domain refers to missing, but that element does not exist.");
  target.SetAttribute(u"domain", u"t");
  EXPECT_EQ(message(), "Attribute Domain refers to t, but that element does not exist.") << "it is no domain";

  // Wrappers of both classes over one element show which is asked for first.
  DOMElement* shared = addElement(document, u"shared", u"d");
  const OrbCategoricalDomain categorical(shared);
  target.setDomain(categorical);
  EXPECT_EQ(target.getDomain(), &categorical);
  const OrbIntervalDomain interval(shared);
  EXPECT_EQ(target.getDomain(), &interval);
}

TEST(LegendTarget, FindsFourModifiersInOrder) {
  const NewDocument document(u"any");
  OrbLegendTarget target(addElement(document, u"legendTarget", u"t"));
  EXPECT_EQ(target.getDomainModifier(), nullptr);
  DOMElement* shared = addElement(document, u"shared", u"m");
  const OrbDomainUnion unite(shared);
  target.setDomainModifier(unite);
  EXPECT_EQ(target.getDomainModifier(), &unite);
  const OrbDomainReplace replace(shared);
  EXPECT_EQ(target.getDomainModifier(), &replace);
  const OrbDomainIntersect intersect(shared);
  EXPECT_EQ(target.getDomainModifier(), &intersect);
  const OrbDomainExclude exclude(shared);
  EXPECT_EQ(target.getDomainModifier(), &exclude);

  class Foreign : public CTModifier {
  public:
    explicit Foreign(DOMElement* element) : CTModifier(element) {}
  };
  target.setDomainModifier(Foreign(addElement(document, u"foreign", u"f")));
  EXPECT_EQ(attributeOf(target, u"domainModifier"), "m") << "a modifier of another class writes nothing";
}
