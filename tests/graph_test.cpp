// Graphs: the order and the limits of their children, and their coordinates, dimensions and scales.
#include "chartstring.h"
#include "dom.h"
#include "keywords.h"
#include "orbarea.h"
#include "orbcategoricaldomain.h"
#include "orbcoordinates.h"
#include "orbderivedvariable.h"
#include "orbdimension.h"
#include "orbdimensionreference.h"
#include "orbdomainexclude.h"
#include "orbdomainintersect.h"
#include "orbdomainreplace.h"
#include "orbdomainunion.h"
#include "orbedge.h"
#include "orbexception.h"
#include "orbexpressionvariable.h"
#include "orbfaceting.h"
#include "orbgraph.h"
#include "orbinterval.h"
#include "orbintervaldomain.h"
#include "orbline.h"
#include "orbmultipleresponsevariable.h"
#include "orbpath.h"
#include "orbpoint.h"
#include "orbpolygon.h"
#include "orbposition.h"
#include "orbschema.h"
#include "orbsourcevariable.h"
#include "orbstyle.h"
#include "orbvisualization.h"
#include "orbx.h"
#include "orby.h"
#include "orbz.h"
#include "raised.h"

#include <gtest/gtest.h>

#include <string>

using test::childrenOf;
using test::expectKeywords;
using test::messageOf;
using test::NewDocument;
using test::Parsed;
using test::utf8;
using xercesc::DOMElement;

namespace {

/// A graph of a new document.
class Graph : public testing::Test {
protected:
  std::string children() const { return childrenOf(graph.getImplementation()); }

  const NewDocument document{u"visualization"};
  OrbVisualization root{document.root()};
  OrbGraph& graph = *root.addGraph(u"g");
};

/// The first element of a document with a given name.
DOMElement* find(const Parsed& parsed, const XMLCh* name) {
  return static_cast<DOMElement*>(parsed.document()->getElementsByTagName(name)->item(0));
}

} // namespace

TEST_F(Graph, KeepsItsChildrenInBands) {
  graph.addPoint(u"point");
  graph.addArea(u"area");
  graph.addEdge();
  EXPECT_EQ(children(), "point#point area#area edge") << "the elements have no order among them";
  graph.addFaceting();
  graph.addCoordinates(u"c1");
  graph.addLine(u"line");
  graph.addCoordinates(u"c2");
  EXPECT_EQ(children(), "coordinates#c1 coordinates#c2 faceting point#point area#area edge line#line");
  EXPECT_EQ(graph.getCoordinates(1), graph.getCoordinatess()[1]);
  EXPECT_EQ(graph.getCoordinates(2), nullptr);
  EXPECT_EQ(graph.getCoordinates(1)->getElementById(u"c2"), graph.getCoordinates(1)->getImplementation());
}

TEST_F(Graph, HasOneFaceting) {
  EXPECT_EQ(graph.getFaceting(), nullptr);
  graph.addFaceting();
  EXPECT_EQ(messageOf([&] { graph.addFaceting(); }),
            "Can not add a Faceting to a Graph because 1 Faceting(s) already exist(s).");
  EXPECT_EQ(children(), "faceting");
  EXPECT_EQ(graph.removeFacetings(), 1U);
  graph.addFaceting();

  const Parsed parsed("<graph><area/><faceting/><!--between--><faceting id='f'/></graph>");
  OrbGraph loaded(parsed.root());
  EXPECT_EQ(messageOf([&] { loaded.addFaceting(); }),
            "Can not add a Faceting to a Graph because 2 Faceting(s) already exist(s).");
  EXPECT_EQ(utf8(loaded.getFaceting()->getImplementation()->getAttribute(u"id")), "");
  loaded.addCoordinates(u"c");
  EXPECT_EQ(childrenOf(parsed.root()), "coordinates#c area faceting ! faceting#f") << "before the first follower";
  EXPECT_EQ(loaded.removeFacetings(), 2U);
  EXPECT_EQ(parsed.document()->getElementById(u"f"), nullptr);
}

TEST_F(Graph, RemovesOfFamiliesStripTheirIds) {
  graph.addCoordinates(u"coordinates");
  graph.addArea(u"area");
  graph.addInterval(u"interval");
  graph.addLine(u"line");
  graph.addEdge()->setId(u"edge");
  graph.addPath(u"path");
  graph.addPoint(u"point");
  graph.addPolygon(u"polygon");
  graph.addSchema(u"schema");
  EXPECT_EQ(graph.getAreas().size() + graph.getIntervals().size() + graph.getLines().size() + graph.getEdges().size() +
                graph.getPaths().size() + graph.getPoints().size() + graph.getPolygons().size() +
                graph.getSchemas().size(),
            8U);
  const std::pair<const XMLCh*, unsigned int (OrbGraph::*)()> removes[] = {
      {u"coordinates", &OrbGraph::removeCoordinatess},
      {u"area", &OrbGraph::removeAreas},
      {u"interval", &OrbGraph::removeIntervals},
      {u"line", &OrbGraph::removeLines},
      {u"edge", &OrbGraph::removeEdges},
      {u"path", &OrbGraph::removePaths},
      {u"point", &OrbGraph::removePoints},
      {u"polygon", &OrbGraph::removePolygons},
      {u"schema", &OrbGraph::removeSchemas},
  };
  for (const auto& [id, remove] : removes) {
    SCOPED_TRACE(utf8(id));
    EXPECT_TRUE(graph.doesIdExist(id));
    EXPECT_EQ(std::invoke(remove, graph), 1U);
    EXPECT_FALSE(graph.doesIdExist(id));
    EXPECT_EQ(std::invoke(remove, graph), 0U);
  }
  EXPECT_EQ(children(), "");
}

TEST_F(Graph, RemovesASingleElementWithoutItsId) {
  OrbGraph& other = *root.addGraph(u"other");
  OrbPoint& foreign = *other.addPoint(u"foreign");
  CTElementType* elements[] = {graph.addPoint(u"p"),  graph.addInterval(u"i"), graph.addLine(u"l"),
                               graph.addArea(u"a"),   graph.addSchema(u"s"),   graph.addPath(u"h"),
                               graph.addPolygon(u"y")};
  OrbPoint& kept = *graph.addPoint(u"kept");
  OrbEdge& edge = *graph.addEdge();
  EXPECT_FALSE(graph.removeElement(foreign));
  EXPECT_FALSE(graph.removeElement(edge));
  EXPECT_EQ(childrenOf(other.getImplementation()), "point#foreign");
  for (CTElementType* element : elements)
    EXPECT_TRUE(graph.removeElement(*element));
  EXPECT_EQ(children(), "point#kept edge");
  EXPECT_EQ(graph.getPoints(), std::vector<OrbPoint*>{&kept});
  EXPECT_TRUE(graph.doesIdExist(u"p") && graph.doesIdExist(u"y"));

  OrbPoint second(kept.getImplementation());
  EXPECT_FALSE(graph.removeElement(second)) << "another wrapper over the element of one of the graph";
  EXPECT_EQ(children(), "point#kept edge");
}

TEST_F(Graph, RemovesASingleEdgeWithItsId) {
  graph.addEdge()->setId(u"a");
  graph.addEdge()->setId(u"b");
  EXPECT_FALSE(graph.removeEdge(2));
  EXPECT_TRUE(graph.removeEdge(0));
  EXPECT_EQ(children(), "edge#b");
  EXPECT_EQ(utf8(graph.getEdges()[0]->getId()), "b");
  EXPECT_FALSE(graph.doesIdExist(u"a"));
}

TEST_F(Graph, RefersToStylesAndDimensions) {
  OrbGraph& other = *root.addGraph(u"other");
  OrbDimension& dimension = *other.addCoordinates(u"c")->addDimension();
  graph.setAlignCellHorizontallyWith(dimension);
  EXPECT_FALSE(graph.getImplementation()->hasAttribute(u"alignCellHorizontallyWith")) << "a target without an id";
  dimension.setId(u"d");
  graph.setAlignCellHorizontallyWith(dimension);
  EXPECT_EQ(graph.getAlignCellHorizontallyWith(), &dimension);
  EXPECT_EQ(graph.getAlignCellVerticallyWith(), nullptr);
  graph.setAlignCellVerticallyWith(dimension);
  graph.removeAlignCellHorizontallyWith();
  EXPECT_EQ(graph.getAlignCellVerticallyWith(), &dimension);

  const Parsed parsed("<any><graph cellStyle='s' style='t' alignCellVerticallyWith='s'/><style id='s'/>"
                      "<style id='t'/></any>");
  OrbGraph loaded(find(parsed, u"graph"));
  EXPECT_EQ(loaded.getStyle(), nullptr);
  const OrbStyle s(find(parsed, u"style"));
  const OrbStyle t(s.getImplementation()->getNextElementSibling());
  EXPECT_EQ(loaded.getCellStyle(), &s);
  EXPECT_EQ(loaded.getStyle(), &t);
  EXPECT_EQ(loaded.getAlignCellVerticallyWith(), nullptr) << "a style is no dimension";
  loaded.setCellStyle(t);
  loaded.removeStyle();
  EXPECT_EQ(loaded.getCellStyle(), &t);
  EXPECT_EQ(loaded.getStyle(), nullptr);
}

TEST_F(Graph, ComesBackFromItsText) {
  graph.setClip(true);
  graph.addPoint(u"p")->addX();
  graph.addFaceting();
  OrbDimension& dimension = *graph.addCoordinates(u"c")->addDimension();
  dimension.addScale(OrbScale::method_power_safe)->setBase(0.5);
  graph.getCoordinates(0)->addDimensionReference();
  const std::string text = graph.AsUTF8();
  const Parsed parsed(text);
  const OrbGraph loaded(parsed.root());
  EXPECT_EQ(loaded.AsUTF8(), text);
  EXPECT_EQ(loaded.getCoordinates(0)->getDimensions()[0]->getScale()->getMethod(), OrbScale::method_power_safe);
}

TEST(Coordinates, HoldDimensionsAndReferencesMixed) {
  const NewDocument document(u"coordinates");
  OrbCoordinates coordinates(document.root());
  coordinates.addDimension()->setId(u"a");
  coordinates.addDimensionReference()->setRef(*coordinates.getDimensions()[0]);
  coordinates.addDimension()->setId(u"b");
  EXPECT_EQ(childrenOf(document.root()), "dimension#a dimensionReference dimension#b");
  EXPECT_EQ(coordinates.getDimensionReferences()[0]->getRef(), coordinates.getDimensions()[0]);

  EXPECT_FALSE(coordinates.removeDimension(2));
  EXPECT_TRUE(coordinates.removeDimension(0));
  EXPECT_EQ(coordinates.removeDimensions(), 1U);
  EXPECT_EQ(childrenOf(document.root()), "dimensionReference");
  EXPECT_TRUE(coordinates.doesIdExist(u"a") && coordinates.doesIdExist(u"b"));
  EXPECT_EQ(coordinates.getDimensionReferences()[0]->getRef(), nullptr) << "a dimension that is gone";
  EXPECT_EQ(coordinates.removeDimensionReferences(), 1U);
}

TEST(Coordinates, TakeTheirIdBeforeTheyLoadAndAGraphAfter) {
  const Parsed coordinates("<coordinates><any/></coordinates>");
  EXPECT_THROW(OrbCoordinates(coordinates.root(), u"c"), OrbException);
  EXPECT_EQ(utf8(coordinates.root()->getAttribute(u"id")), "c");
  const Parsed graph("<graph><any/></graph>");
  EXPECT_THROW(OrbGraph(graph.root(), u"g"), OrbException);
  EXPECT_FALSE(graph.root()->hasAttribute(u"id"));
}

TEST(Dimensions, HaveOneScale) {
  const Parsed parsed("<dimension><scale id='a' method='log'/><scale id='b'/></dimension>");
  OrbDimension dimension(parsed.root());
  EXPECT_EQ(messageOf([&] { dimension.addScale(OrbScale::method_linear); }),
            "Can not add a Scale to a Dimension because 2 Scale(s) already exist(s).");
  EXPECT_EQ(dimension.getScale()->getMethod(), OrbScale::method_log);
  EXPECT_EQ(dimension.removeScales(), 2U);
  EXPECT_FALSE(dimension.doesIdExist(u"a") || dimension.doesIdExist(u"b"));
  dimension.addScale(OrbScale::method_cLoglog);
  EXPECT_EQ(utf8(dimension.getScale()->getImplementation()->getAttribute(u"method")), "cLoglog");
}

TEST(Dimensions, ReferToDomainsModifiersAndVariables) {
  const Parsed parsed("<any><dimension domain='style'/><style id='style'/><intervalDomain id='interval'/>"
                      "<categoricalDomain id='categorical'/><domainExclude id='exclude'/>"
                      "<domainIntersect id='intersect'/><domainReplace id='replace'/><domainUnion id='union'/>"
                      "<sourceVariable id='source'/><multipleResponseVariable id='multiple'/></any>");
  OrbDimension dimension(find(parsed, u"dimension"));
  const OrbStyle style(find(parsed, u"style"));
  const OrbIntervalDomain interval(find(parsed, u"intervalDomain"));
  const OrbCategoricalDomain categorical(find(parsed, u"categoricalDomain"));
  EXPECT_EQ(dimension.getDomain(), nullptr) << "a style is no domain";
  dimension.setDomain(interval);
  EXPECT_EQ(dimension.getDomain(), &interval);
  dimension.setDomain(categorical);
  EXPECT_EQ(dimension.getDomain(), &categorical);
  dimension.removeDomain();
  EXPECT_EQ(dimension.getDomain(), nullptr);

  const OrbDomainExclude exclude(find(parsed, u"domainExclude"));
  const OrbDomainIntersect intersect(find(parsed, u"domainIntersect"));
  const OrbDomainReplace replace(find(parsed, u"domainReplace"));
  const OrbDomainUnion unite(find(parsed, u"domainUnion"));
  for (const CTModifier* modifier :
       {static_cast<const CTModifier*>(&exclude), static_cast<const CTModifier*>(&intersect),
        static_cast<const CTModifier*>(&replace), static_cast<const CTModifier*>(&unite)}) {
    dimension.setDomainModifier(*modifier);
    EXPECT_EQ(dimension.getDomainModifier(), modifier);
  }
  class Foreign : public CTModifier {
  public:
    explicit Foreign(DOMElement* element) : CTModifier(element) {}
  };
  dimension.setDomainModifier(Foreign(exclude.getImplementation()));
  EXPECT_EQ(dimension.getDomainModifier(), &unite) << "a modifier of another class writes nothing";
  dimension.removeDomainModifier();
  EXPECT_FALSE(dimension.isDomainModifierPresent());

  const OrbSourceVariable source(find(parsed, u"sourceVariable"));
  const OrbMultipleResponseVariable multiple(find(parsed, u"multipleResponseVariable"));
  dimension.setClusterVariable(source);
  EXPECT_EQ(dimension.getClusterVariable(), &source);
  dimension.setClusterVariable(multiple);
  EXPECT_EQ(utf8(dimension.getImplementation()->getAttribute(u"clusterVariable")), "multiple");
  EXPECT_EQ(dimension.getClusterVariable(), nullptr);
}

TEST(Scales, HaveDistributionsAndMethods) {
  const NewDocument document(u"scale");
  OrbScale scale(document.root());
  expectKeywords<OrbScale>(u"distribution", &OrbScale::getDistribution, &OrbScale::setDistribution,
                           "uniform normal t f chisquare gamma beta exponential logistic studentizedrange "
                           "weibull poisson binomialnegative gaussianinverse");
  expectKeywords<OrbScale>(u"method", &OrbScale::getMethod, &OrbScale::setMethod,
                           "linear log power log.safe power.safe logit probit asn atanh prob cLoglog");
  scale.setDistributionParameter(1.5);
  scale.setDistributionParameter2(-2);
  EXPECT_EQ(scale.getDistributionParameter(), 1.5);
  EXPECT_EQ(scale.getDistributionParameter2(), -2.0);
  scale.removeDistributionParameter();
  EXPECT_FALSE(scale.isDistributionParameterPresent());
  EXPECT_TRUE(scale.isDistributionParameter2Present());
}

TEST(CoordinatesOfElements, ReferToAVariableOfThreeKinds) {
  const Parsed parsed("<any><position variable='e'/><x variable='d'/><y variable='s'><any/></y><z variable='m'/>"
                      "<sourceVariable id='s'/><derivedVariable id='d'/><expressionVariable id='e'/>"
                      "<multipleResponseVariable id='m'/></any>");
  const OrbSourceVariable source(find(parsed, u"sourceVariable"));
  const OrbDerivedVariable derived(find(parsed, u"derivedVariable"));
  const OrbExpressionVariable expression(find(parsed, u"expressionVariable"));
  const OrbMultipleResponseVariable multiple(find(parsed, u"multipleResponseVariable"));
  const OrbPosition position(find(parsed, u"position"));
  const OrbX x(find(parsed, u"x"));
  OrbY y(find(parsed, u"y"));
  const OrbZ z(find(parsed, u"z"));
  for (const OrbBaseElement* wrapper :
       {static_cast<const OrbBaseElement*>(&position), static_cast<const OrbBaseElement*>(&x),
        static_cast<const OrbBaseElement*>(&y), static_cast<const OrbBaseElement*>(&z)}) {
    const DOMElement* element = wrapper->getImplementation();
    EXPECT_EQ(element->getUserData(element->getTagName()), wrapper) << utf8(element->getTagName());
  }

  EXPECT_EQ(position.getVariable(), &expression);
  EXPECT_EQ(position.getExpressionVariable(), &expression);
  EXPECT_EQ(position.getSourceVariable(), nullptr);
  EXPECT_EQ(x.getVariable(), &derived);
  EXPECT_EQ(x.getDerivedVariable(), &derived);
  EXPECT_EQ(y.getVariable(), &source);
  EXPECT_EQ(y.getSourceVariable(), &source);
  EXPECT_EQ(y.getExpressionVariable(), nullptr);
  EXPECT_EQ(z.getVariable(), nullptr) << "a multiple response variable is found under no key";
  y.setVariable(multiple);
  EXPECT_EQ(utf8(y.getImplementation()->getAttribute(u"variable")), "m");
}
