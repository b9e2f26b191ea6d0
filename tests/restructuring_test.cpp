// Restructuring a loaded document: containers to the root, styles under a style, legends under a container.
#include "chartstring.h"
#include "dom.h"
#include "orbcontainer.h"
#include "orbdocument.h"
#include "orbgraph.h"
#include "orblabelframe.h"
#include "orblegend.h"
#include "orblocation.h"
#include "orbstyle.h"
#include "orbvisualization.h"
#include "raised.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <optional>

using test::childrenOf;
using test::messageOf;
using test::Parsed;
using test::utf8;
using xercesc::DOMElement;

namespace {

/// A parsed document and its chart.
struct Chart {
  explicit Chart(const std::string& content) : parsed("<visualization>" + content + "</visualization>") {}

  Parsed parsed;
  OrbDocument document{parsed.document()};
  OrbVisualization& root = *document.GetVisualization();

  std::string children() const { return childrenOf(parsed.root()); }
  /// The attribute of the location with an id.
  std::string targetOf(const XMLCh* id) const { return utf8(root.getElementById(id)->getAttribute(u"target")); }
};

} // namespace

TEST(Containers, AreDissolvedInPlaceAndInDocumentOrder) {
  Chart chart(R"(<style id="s"/><container id="a"><!-- c --><location part="left" id="l1"/><graph id="g1"/>text)"
              R"(<container id="b"><legend id="l"/><container id="c"><graph id="g2"/></container></container>)"
              R"(<location part="top" id="l2"/><graph id="g3"/></container><labelFrame id="f"/>)"
              R"(<container id="d"><location id="gone"/><labelFrame id="h"/></container>)");
  EXPECT_EQ(chart.root.reparentContainerChildren(), 4U);
  EXPECT_EQ(chart.children(), "style#s ! graph#g1 \" legend#l graph#g2 graph#g3 labelFrame#f labelFrame#h");
  EXPECT_TRUE(chart.root.getContainers().empty());
  const std::vector<OrbGraph*> graphs = chart.root.getGraphs();
  ASSERT_EQ(graphs.size(), 3U);
  EXPECT_EQ(chart.root.getLegends().size(), 1U);
  EXPECT_EQ(chart.root.getLabelFrames().size(), 2U);

  // The locations go to the front of the container's last graph, in reverse, and its wrapper does not hold them.
  DOMElement* last = chart.root.getElementById(u"g3");
  EXPECT_EQ(childrenOf(last), "location#l2 location#l1");
  OrbGraph* lastGraph = *std::find_if(graphs.begin(), graphs.end(),
                                      [=](const OrbGraph* graph) { return graph->getImplementation() == last; });
  EXPECT_EQ(last->getUserData(u"graph"), lastGraph);
  EXPECT_TRUE(lastGraph->getLocations().empty());
  EXPECT_EQ(chart.root.getElementById(u"l1")->getUserData(u"location"), nullptr);
  EXPECT_EQ(chart.root.getElementById(u"gone")->getParentNode(), nullptr) << "a container without a graph drops them";
  EXPECT_NE(chart.root.getElementById(u"a"), nullptr) << "the id is not stripped";
  EXPECT_EQ(chart.root.reparentContainerChildren(), 0U);
}

TEST(Containers, AreForgottenByTheLocationsThatPointAtThem) {
  Chart chart(R"(<location id="x" target="a"/><location id="y" target="g"/><location id="z" target=""/>)"
              R"(<container id="a"><graph id="g"><location id="w" target="a"/></graph></container>)"
              R"(<container><graph/></container>)");
  EXPECT_EQ(chart.root.reparentContainerChildren(), 2U);
  EXPECT_FALSE(chart.root.getElementById(u"x")->hasAttribute(u"target"));
  EXPECT_FALSE(chart.root.getElementById(u"w")->hasAttribute(u"target"));
  EXPECT_EQ(chart.targetOf(u"y"), "g");
  EXPECT_TRUE(chart.root.getElementById(u"z")->hasAttribute(u"target")) << "a container without an id is no target";
}

TEST(Containers, StopAtAChildThatTheRootDoesNotKnow) {
  Chart chart(R"(<container id="a"><graph id="g"/></container><location id="x" target="a"/>)"
              R"(<container id="b"><location id="l"/><legend id="k"/><labelFrame id="f"/></container>)"
              R"(<container id="c"><graph id="h"/></container>)");
  OrbContainer* second = chart.root.getContainers()[1];
  DOMElement* element = second->getImplementation();
  element->insertBefore(chart.parsed.document()->createElement(u"odd"), element->getLastChild());
  EXPECT_EQ(
      messageOf([&] { chart.root.reparentContainerChildren(); }).find("Element visualization found unknown child odd("),
      0U);
  EXPECT_EQ(chart.children(), "graph#g location#x legend#k odd container#b container#c");
  EXPECT_FALSE(chart.root.getElementById(u"x")->hasAttribute(u"target")) << "the first container has gone";
  ASSERT_EQ(chart.root.getContainers().size(), 2U);
  EXPECT_EQ(chart.root.getContainers()[0], second);
  EXPECT_TRUE(second->getLegends().empty()) << "what was moved has its wrapper at the root";
  EXPECT_TRUE(second->getLocations().empty());
  ASSERT_EQ(second->getLabelFrames().size(), 1U);
  EXPECT_EQ(chart.root.getLegends().size(), 1U);
  EXPECT_NE(chart.document.AsUTF8().find("<labelFrame id=\"f\"/>"), std::string::npos);

  chart.root.removeChildElement(second);
  chart.parsed.root()->removeChild(chart.parsed.root()->getElementsByTagName(u"odd")->item(0) == nullptr
                                       ? chart.parsed.root()->getFirstChild()
                                       : chart.parsed.root()->getElementsByTagName(u"odd")->item(0));
  EXPECT_EQ(chart.root.reparentContainerChildren(), 1U) << "a container out of the tree stays as it is";
  EXPECT_EQ(chart.root.getContainers().size(), 1U);
}

TEST(Styles, MoveUnderAStyleWithTheirAttributesAlone) {
  Chart chart(R"(<style id="a" color="red" width=""><style id="inner"/></style><style id="target"/>)"
              R"(<style id="b" color="blue"/><graph id="g" style="b"/>)");
  const std::vector<OrbStyle*> styles = chart.root.getStyles();
  OrbStyle& target = *styles[1];
  EXPECT_EQ(chart.root.reparentStyles(target), 2U);
  EXPECT_EQ(chart.children(), "style#target graph#g");
  EXPECT_EQ(chart.root.getStyles(), std::vector<OrbStyle*>{&target});
  EXPECT_EQ(childrenOf(target.getImplementation()), "style#a style#b");
  OrbStyle* a = chart.root.getStyleById(u"a");
  ASSERT_EQ(a, target.getStyles().front());
  EXPECT_EQ(utf8(a->getColor()), "red");
  EXPECT_TRUE(a->getImplementation()->hasAttribute(u"width")) << "an empty attribute is copied as well";
  EXPECT_TRUE(a->getStyles().empty()) << "children are not copied";
  EXPECT_EQ(chart.root.getGraphs().front()->getStyle(), target.getStyles().back());
  EXPECT_EQ(chart.root.reparentStyles(target), 0U);
}

TEST(Styles, StayWithTheTargetsIdAndMayHoldTheTarget) {
  Chart chart(R"(<style/><style color="red"/><style id="x"><style id="target"/></style>)");
  // The target has no id, and so all styles without one stay.
  EXPECT_EQ(chart.root.reparentStyles(*chart.root.getStyles().front()), 1U);
  EXPECT_EQ(chart.children(), "style style");

  Chart other(R"(<style id="x"><style id="target"/></style><style id="y"/>)");
  EXPECT_EQ(other.root.reparentStyles(*other.root.getStyles().front()->getStyles().front()), 2U);
  EXPECT_EQ(other.children(), "");
  EXPECT_TRUE(other.root.getStyles().empty());
}

TEST(Legends, MoveUnderAContainerWithTheirWrappers) {
  Chart chart(R"(<legend id="a"/><container id="c"><legend id="first"/></container><legend id="b"><label/></legend>)");
  const std::vector<OrbLegend*> legends = chart.root.getLegends();
  OrbContainer& container = *chart.root.getContainers().front();
  EXPECT_EQ(chart.root.reparentLegendChildren(container), 2U);
  EXPECT_EQ(chart.children(), "container#c");
  EXPECT_EQ(childrenOf(container.getImplementation()), "legend#first legend#a legend#b");
  EXPECT_TRUE(chart.root.getLegends().empty());
  ASSERT_EQ(container.getLegends().size(), 3U);
  EXPECT_TRUE(std::equal(legends.begin(), legends.end(), container.getLegends().begin() + 1));
  EXPECT_EQ(chart.root.getElementById(u"b")->getUserData(u"legend"), legends[1]);
  EXPECT_NE(legends[1]->getLabel(), nullptr);
}

TEST(Legends, OfTheHostAreAdoptedInTheirPlace) {
  Chart chart(R"(<graph/><style/>)");
  EXPECT_EQ(chart.root.addLegend(static_cast<DOMElement*>(nullptr)), nullptr);
  DOMElement* element = chart.parsed.document()->createElement(u"legend");
  element->appendChild(chart.parsed.document()->createElement(u"label"));
  OrbLegend* legend = chart.root.addLegend(element);
  EXPECT_EQ(chart.children(), "graph legend style");
  EXPECT_EQ(legend->getImplementation(), element);
  EXPECT_NE(legend->getLabel(), nullptr);

  DOMElement* refused = chart.parsed.document()->createElement(u"legend");
  refused->appendChild(chart.parsed.document()->createElement(u"odd"));
  EXPECT_EQ(messageOf([&] { chart.root.addLegend(refused); }).find("Element legend found unknown child odd("), 0U);
  EXPECT_EQ(chart.children(), "graph legend style");
  EXPECT_EQ(refused->getUserData(u"legend"), nullptr);
  EXPECT_EQ(chart.root.getLegends().size(), 1U);
}
