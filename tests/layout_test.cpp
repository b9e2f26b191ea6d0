// The layout of facets and of nodes: the order and the limits of its children, and what a cell's property is set on.
#include "chartstring.h"
#include "dom.h"
#include "elements.h"
#include "keywords.h"
#include "orbalternating.h"
#include "orbarea.h"
#include "orbaxis.h"
#include "orbedge.h"
#include "orbfacetlayout.h"
#include "orbfacetlevel.h"
#include "orbfixednode.h"
#include "orbgraph.h"
#include "orbhidesinglenodes.h"
#include "orbinitial.h"
#include "orbintersect.h"
#include "orbinterval.h"
#include "orblabel.h"
#include "orblabelcolumns.h"
#include "orblabeling.h"
#include "orbline.h"
#include "orbmajorticks.h"
#include "orbmove.h"
#include "orbpath.h"
#include "orbpoint.h"
#include "orbpolarize.h"
#include "orbpolygon.h"
#include "orbrandomize.h"
#include "orbschema.h"
#include "orbsetcellproperties.h"
#include "orbsetformat.h"
#include "orbsetframestyle.h"
#include "orbsetmetadata.h"
#include "orbsetpagebreak.h"
#include "orbsetstyle.h"
#include "orbstyle.h"
#include "orbswap.h"
#include "orbtablelayout.h"
#include "orbunion.h"
#include "raised.h"

#include <gtest/gtest.h>

using test::addElement;
using test::childrenOf;
using test::expectKeywords;
using test::messageOf;
using test::NewDocument;
using test::Parsed;
using test::refuses;
using test::utf8;
using xercesc::DOMElement;

namespace {

/// A class that registers under a name and looks at no child.
template <class Wrapper> void expectLeaf(const std::string& name) {
  SCOPED_TRACE(name);
  const Parsed parsed("<" + name + "><other/></" + name + ">");
  const Wrapper wrapper(parsed.root());
  EXPECT_EQ(parsed.root()->getUserData(parsed.root()->getTagName()), &wrapper);
}

/// A class whose `style` leads to styles alone.
template <class Wrapper> void expectStyle() {
  const NewDocument document(Wrapper::elementName);
  SCOPED_TRACE(utf8(Wrapper::elementName));
  Wrapper wrapper(document.root());
  const OrbStyle style(addElement(document, u"style", u"s"));
  const OrbPoint point(addElement(document, u"point", u"p"));
  wrapper.setStyle(style);
  EXPECT_EQ(wrapper.getStyle(), &style);
  document.root()->setAttribute(u"style", u"p");
  EXPECT_EQ(wrapper.getStyle(), nullptr);
}

} // namespace

TEST(FacetLayout, KeepsItsChildrenInTheOrderOfTheAdds) {
  const NewDocument document(u"facetLayout");
  OrbFacetLayout layout(document.root());
  layout.addSetCellProperties();
  const OrbFacetLevel* first = layout.addFacetLevel(2U);
  layout.addTableLayout()->setId(u"t");
  const OrbFacetLevel* second = layout.addFacetLevel(u"l", 3U);
  layout.addTableLayout();
  EXPECT_EQ(childrenOf(document.root()), "setCellProperties facetLevel tableLayout#t facetLevel#l tableLayout");
  EXPECT_EQ(first->getLevel(), 2U);
  EXPECT_FALSE(first->getImplementation()->hasAttribute(u"id"));
  EXPECT_EQ(second->getLevel(), 3U);
  EXPECT_EQ(layout.getElementById(u"l"), second->getImplementation());

  EXPECT_EQ(layout.removeFacetLevels(), 2U);
  EXPECT_EQ(layout.removeTableLayouts(), 2U);
  EXPECT_FALSE(layout.doesIdExist(u"l"));
  EXPECT_TRUE(layout.doesIdExist(u"t"));
  EXPECT_EQ(childrenOf(document.root()), "setCellProperties");
}

TEST(FacetLayout, LoadsToItsDepth) {
  const Parsed parsed(
      "<facetLayout><facetLevel level='1'><axis/><axis/><axis/><axis/></facetLevel>"
      "<tableLayout><label/><label/></tableLayout><setCellProperties><union><intersect>"
      "<alternating odd='true'/></intersect></union><setFormat><format/></setFormat></setCellProperties>"
      "<tableLayout/></facetLayout>");
  const OrbFacetLayout layout(parsed.root());
  ASSERT_EQ(layout.getTableLayouts().size(), 2U);
  EXPECT_EQ(layout.getTableLayouts()[0]->getLabels().size(), 2U);
  ASSERT_EQ(layout.getFacetLevels().size(), 1U);
  EXPECT_EQ(layout.getFacetLevels()[0]->getAxiss().size(), 4U);
  ASSERT_EQ(layout.getSetCellPropertiess().size(), 1U);
  const OrbSetCellProperties& properties = *layout.getSetCellPropertiess()[0];
  EXPECT_EQ(properties.getSetFormats().at(0)->getFormats().size(), 1U);
  EXPECT_TRUE(properties.getUnions().at(0)->getIntersects().at(0)->getAlternatings().at(0)->getOdd());
}

TEST(FacetLayout, ItsLoadersRefuseUnknownChildrenWhereTheyLook) {
  EXPECT_TRUE(refuses<OrbFacetLayout>("<axis/>"));
  EXPECT_TRUE(refuses<OrbFacetLevel>("<label/>"));
  EXPECT_TRUE(refuses<OrbTableLayout>("<axis/>"));
  EXPECT_TRUE(refuses<OrbSetCellProperties>("<intersect/>"));
  EXPECT_TRUE(refuses<OrbSetFormat>("<format/><style/>"));
  expectLeaf<OrbAlternating>("alternating");
  expectLeaf<OrbLabelColumns>("labelColumns");
  expectLeaf<OrbSetFrameStyle>("setFrameStyle");
  expectLeaf<OrbSetMetaData>("setMetaData");
  expectLeaf<OrbSetPageBreak>("setPageBreak");
  expectLeaf<OrbSetStyle>("setStyle");
}

TEST(FacetLayout, RefersToStyles) {
  expectStyle<OrbFacetLevel>();
  expectStyle<OrbTableLayout>();
  expectStyle<OrbSetStyle>();
  expectStyle<OrbSetFrameStyle>();
}

TEST(FacetLayout, KeywordsAreNumberedFromOne) {
  expectKeywords<OrbFacetLayout>(u"method", &OrbFacetLayout::getMethod, &OrbFacetLayout::setMethod,
                                 "structured unstructured transposed coordinates");
  expectKeywords<OrbTableLayout>(u"fitCells", &OrbTableLayout::getFitCells, &OrbTableLayout::setFitCells,
                                 "none cells ticks both");
  expectKeywords<OrbSetPageBreak>(u"type", &OrbSetPageBreak::getType, &OrbSetPageBreak::setType,
                                  "below right keepTogetherTop keepTogetherLeft");
}

TEST(FacetLevel, HasThreeAxes) {
  const NewDocument document(u"facetLevel");
  OrbFacetLevel level(document.root());
  level.addAxis()->setId(u"a");
  level.addAxis();
  level.addAxis();
  EXPECT_EQ(messageOf([&] { level.addAxis(); }),
            "Can not add a Axis to a FacetLevel because 3 Axis(s) already exist(s).");
  EXPECT_EQ(childrenOf(document.root()), "axis#a axis axis");
  EXPECT_EQ(level.removeAxiss(), 3U);
  EXPECT_FALSE(level.doesIdExist(u"a"));
  level.addAxis();
  EXPECT_EQ(level.getAxiss().size(), 1U);

  const Parsed parsed("<facetLevel><axis/><axis/><axis/><axis/></facetLevel>");
  OrbFacetLevel loaded(parsed.root());
  EXPECT_EQ(messageOf([&] { loaded.addAxis(); }),
            "Can not add a Axis to a FacetLevel because 4 Axis(s) already exist(s).");
}

TEST(FacetLevel, LoadsOnlyWithoutALevel) {
  EXPECT_EQ(OrbFacetLevel(NewDocument(u"facetLevel").root()).getLevel(), 0U);
  const Parsed parsed("<facetLevel><axis/><other/></facetLevel>");
  const OrbFacetLevel numbered(parsed.root(), 4U);
  EXPECT_EQ(numbered.getLevel(), 4U);
  EXPECT_TRUE(numbered.getAxiss().empty());
  EXPECT_EQ(parsed.root()->getUserData(u"facetLevel"), &numbered);
  const OrbFacetLevel named(parsed.root(), u"l", 5U);
  EXPECT_EQ(named.getElementById(u"l"), parsed.root());
  EXPECT_EQ(named.getLevel(), 5U);
  EXPECT_EQ(parsed.root()->getUserData(u"facetLevel"), &named);
}

TEST(TableLayout, HoldsAnyNumberOfLabelsAndLeavesTheirIds) {
  const NewDocument document(u"tableLayout");
  OrbTableLayout layout(document.root());
  layout.addLabel()->setId(u"a");
  layout.addLabel()->setId(u"b");
  EXPECT_EQ(childrenOf(document.root()), "label#a label#b");
  EXPECT_EQ(layout.removeLabels(), 2U);
  EXPECT_TRUE(layout.doesIdExist(u"a"));
}

TEST(CellProperties, StandBeforeTheUnionsInTheOrderOfTheAdds) {
  const NewDocument document(u"setCellProperties");
  OrbSetCellProperties properties(document.root());
  properties.addSetStyle();
  properties.addUnion()->setId(u"u");
  properties.addSetFrameStyle();
  properties.addUnion();
  properties.addSetPageBreak();
  properties.addSetMetaData();
  properties.addSetFormat();
  properties.addSetStyle();
  EXPECT_EQ(childrenOf(document.root()),
            "setStyle setFrameStyle setPageBreak setMetaData setFormat setStyle union#u union");
  EXPECT_EQ(properties.removeSetStyles(), 2U);
  EXPECT_EQ(properties.removeUnions(), 2U);
  EXPECT_TRUE(properties.doesIdExist(u"u"));
  EXPECT_EQ(childrenOf(document.root()), "setFrameStyle setPageBreak setMetaData setFormat");
}

TEST(CellProperties, LookForOneKindOfTargetAtATime) {
  const NewDocument document(u"setStyle");
  OrbSetStyle property(document.root());
  const OrbLine line(addElement(document, u"line", u"line"));
  const OrbGraph graph(addElement(document, u"graph", u"graph"));
  const OrbLabeling labeling(addElement(document, u"labeling", u"labeling"));
  const OrbMajorTicks majorTicks(addElement(document, u"majorTicks", u"majorTicks"));
  const auto expectTarget = [&](const OrbBaseElement& target) {
    EXPECT_EQ(property.getElementTarget(), &target == &line ? &line : nullptr);
    EXPECT_EQ(property.getGraphTarget(), &target == &graph ? &graph : nullptr);
    EXPECT_EQ(property.getLabelingTarget(), &target == &labeling ? &labeling : nullptr);
    EXPECT_EQ(property.getMajorTicksTarget(), &target == &majorTicks ? &majorTicks : nullptr);
  };
  expectTarget(property);
  property.setTarget(line);
  expectTarget(line);
  property.setTarget(graph);
  expectTarget(graph);
  property.setTarget(labeling);
  expectTarget(labeling);
  property.setTarget(majorTicks);
  expectTarget(majorTicks);
  property.removeTarget();
  EXPECT_FALSE(property.isTargetPresent());
  expectTarget(property);

  const OrbEdge edge(addElement(document, u"edge", u"edge"));
  property.setTarget(edge);
  EXPECT_EQ(utf8(property.GetAttribute(u"target")), "edge");
  EXPECT_TRUE(property.isTargetPresent());
  expectTarget(edge);
}

TEST(CellProperties, TryTheGraphicElementsInOrder) {
  const NewDocument document(u"setStyle");
  OrbSetStyle property(document.root());
  // Wrappers of all classes over one element, the last that is asked for first.
  DOMElement* shared = addElement(document, u"shared", u"e");
  property.SetAttribute(u"target", u"e");
  const OrbEdge edge(shared);
  EXPECT_EQ(property.getElementTarget(), nullptr);
  const OrbPath path(shared);
  EXPECT_EQ(property.getElementTarget(), &path);
  const OrbSchema schema(shared);
  EXPECT_EQ(property.getElementTarget(), &schema);
  const OrbArea area(shared);
  EXPECT_EQ(property.getElementTarget(), &area);
  const OrbPolygon polygon(shared);
  EXPECT_EQ(property.getElementTarget(), &polygon);
  const OrbInterval interval(shared);
  EXPECT_EQ(property.getElementTarget(), &interval);
  const OrbPoint point(shared);
  EXPECT_EQ(property.getElementTarget(), &point);
  const OrbLine line(shared);
  EXPECT_EQ(property.getElementTarget(), &line);
}

TEST(Alternating, StandsAmongTheConditionsOfATerm) {
  const NewDocument document(u"intersect");
  OrbIntersect term(document.root());
  term.addAlternating()->setId(u"a");
  term.addWhere();
  term.addAlternating();
  EXPECT_EQ(childrenOf(document.root()), "alternating#a where alternating");
  EXPECT_EQ(term.removeAlternatings(), 2U);
  EXPECT_TRUE(term.doesIdExist(u"a"));
}

TEST(LabelColumns, ReplaceTheirTextWhenOneIsAdded) {
  const NewDocument document(u"labelColumns");
  OrbLabelColumns columns(document.root());
  EXPECT_TRUE(columns.getText().empty());
  columns.addText(u"first");
  columns.addText(u"second");
  EXPECT_EQ(columns.getText().toUTF8(), "second");
  EXPECT_EQ(childrenOf(document.root()), "\"");
  columns.removeText();
  EXPECT_TRUE(columns.getText().empty());
}

TEST(NodeLayout, ItsOptionsLookAtNoChild) {
  expectLeaf<OrbMove>("move");
  expectLeaf<OrbPolarize>("polarize");
  expectLeaf<OrbRandomize>("randomize");
  expectLeaf<OrbSwap>("swap");
  expectLeaf<OrbInitial>("initial");
  expectLeaf<OrbFixedNode>("fixedNode");
  expectLeaf<OrbHideSingleNodes>("hideSingleNodes");
}

TEST(NodeLayout, InitialTypesMatchByCase) {
  const NewDocument document(u"initial");
  OrbInitial initial(document.root());
  EXPECT_EQ(initial.getType(), 0);
  int number = 0;
  for (const char* keyword : {"grid", "random", "tree", "DAG", "circle", "data"}) {
    initial.setType(static_cast<OrbInitial::ENUM_type>(++number));
    EXPECT_EQ(utf8(initial.GetAttribute(u"type")), keyword);
    EXPECT_EQ(initial.getType(), number);
  }
  for (const int outside : {0, 7})
    initial.setType(static_cast<OrbInitial::ENUM_type>(outside));
  EXPECT_EQ(initial.getType(), OrbInitial::type_data);
  document.root()->setAttribute(u"type", u"dag");
  EXPECT_EQ(initial.getType(), 0);
}
