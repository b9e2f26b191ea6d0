// The statistics that lay graphs and trees out and draw links: getters that raise or find nothing, where children go.
#include "dom.h"
#include "keywords.h"
#include "orbfixednode.h"
#include "orbgraphlayoutstatistic.h"
#include "orbhidesinglenodes.h"
#include "orbinitial.h"
#include "orblinkstatistic.h"
#include "orbmove.h"
#include "orbpatternlinkstatistic.h"
#include "orbpolarize.h"
#include "orbrandomize.h"
#include "orbsourcevariable.h"
#include "orbswap.h"
#include "orbtreelayoutstatistic.h"
#include "raised.h"
#include "variables.h"

#include <gtest/gtest.h>

#include <functional>
#include <map>
#include <sstream>
#include <string>

using test::allVariables;
using test::childrenOf;
using test::expectKeywords;
using test::messageOf;
using test::NewDocument;
using test::Parsed;
using test::refuses;
using test::utf8;
using test::variablesFound;

namespace {

using Graph = OrbGraphLayoutStatistic;
using Tree = OrbTreeLayoutStatistic;
using Link = OrbLinkStatistic;

const std::map<std::string, std::function<void(Graph&)>> adds = {
    {"initial", &Graph::addInitial},
    {"swap", &Graph::addSwap},
    {"randomize", &Graph::addRandomize},
    {"move", &Graph::addMove},
    {"polarize", &Graph::addPolarize},
    {"fixedNode", &Graph::addFixedNode},
    {"hideSingleNodes", &Graph::addHideSingleNodes},
};

/// The children of a layout to which they were added in the order of a line.
std::string placed(const std::string& line) {
  const NewDocument document(u"graphLayoutStatistic");
  Graph layout(document.root());
  std::istringstream names(line);
  for (std::string name; names >> name;)
    adds.at(name)(layout);
  return childrenOf(document.root());
}

/// A getter finds no wrapper even where the element is there, and raises where it is not.
template <class Wrapper, class Target>
void expectBlind(const XMLCh* attribute, const std::string& word, Target* (Wrapper::*get)() const,
                 void (Wrapper::*set)(const CTVariableType&)) {
  EXPECT_EQ(variablesFound(attribute, get, set), "");
  const NewDocument document(Wrapper::elementName);
  const Wrapper wrapper(document.root());
  const auto messageWith = [&](const std::string& id) {
    return "Attribute " + word + " refers to " + id + ", but that element does not exist.";
  };
  EXPECT_EQ(messageOf([&] { (wrapper.*get)(); }), messageWith(""));
  document.root()->setAttribute(attribute, u"gone");
  EXPECT_EQ(messageOf([&] { (wrapper.*get)(); }), messageWith("gone"));
}

} // namespace

TEST(GraphLayout, FindsTheVariablesOfItsPlacesAlone) {
  expectBlind(u"from", "From", &Graph::getFrom, &Graph::setFrom);
  expectBlind(u"to", "To", &Graph::getTo, &Graph::setTo);
  EXPECT_EQ(variablesFound(u"nodes", &Graph::getNodes, &Graph::setNodes), "");
  EXPECT_EQ(variablesFound(u"group", &Graph::getGroup, &Graph::setGroup), allVariables);
  EXPECT_EQ(variablesFound(u"x", &Graph::getX, &Graph::setX), allVariables);
  EXPECT_EQ(variablesFound(u"y", &Graph::getY, &Graph::setY), allVariables);

  const Parsed parsed("<graphLayoutStatistic x='gone'/>");
  const Graph layout(parsed.root());
  EXPECT_EQ(layout.getNodes(), nullptr) << "an absent one does not raise";
  EXPECT_TRUE(layout.isXPresent());
  EXPECT_EQ(layout.getX(), nullptr);
}

TEST(GraphLayout, PutsTheStepsBetweenTheInitialAndTheFixedNodes) {
  for (const std::string step : {"swap", "randomize", "move", "polarize"}) {
    EXPECT_EQ(placed("fixedNode " + step + " initial"), "initial " + step + " fixedNode");
    EXPECT_EQ(placed(step + " initial initial"), "initial initial " + step);
    EXPECT_EQ(placed("hideSingleNodes " + step), "hideSingleNodes " + step);
    EXPECT_EQ(placed("initial " + step), "initial " + step);
  }
  EXPECT_EQ(placed("polarize fixedNode move swap randomize swap"), "polarize move swap randomize swap fixedNode");
  EXPECT_EQ(placed("fixedNode initial"), "initial fixedNode");
  // Neither of the two that are appended looks at the other, and no initial looks at a hideSingleNodes.
  EXPECT_EQ(placed("hideSingleNodes fixedNode"), "hideSingleNodes fixedNode");
  EXPECT_EQ(placed("fixedNode hideSingleNodes"), "fixedNode hideSingleNodes");
  EXPECT_EQ(placed("hideSingleNodes initial"), "hideSingleNodes initial");
}

TEST(GraphLayout, LoadsEveryKindOfChildAndNoOther) {
  const Parsed parsed("<graphLayoutStatistic><hideSingleNodes/><fixedNode/><polarize/><move/><randomize/><swap/>"
                      "<initial/><initial/></graphLayoutStatistic>");
  Graph layout(parsed.root());
  EXPECT_EQ(parsed.root()->getUserData(u"graphLayoutStatistic"), &layout);
  EXPECT_EQ(layout.removeHideSingleNodess(), 1U);
  EXPECT_EQ(layout.removeFixedNodes(), 1U);
  EXPECT_EQ(layout.removePolarizes(), 1U);
  EXPECT_EQ(layout.removeMoves(), 1U);
  EXPECT_EQ(layout.removeRandomizes(), 1U);
  EXPECT_EQ(layout.removeSwaps(), 1U);
  EXPECT_EQ(layout.getInitials().size(), 2U);
  EXPECT_EQ(childrenOf(parsed.root()), "initial initial");
  EXPECT_TRUE(refuses<Graph>("<alternating/>"));
}

TEST(TreeLayout, WritesVariablesThatItDoesNotFind) {
  expectKeywords<Tree>(u"method", &Tree::getMethod, &Tree::setMethod, "treemap simple", {.first = 0});
  expectBlind(u"itemVariable", "ItemVariable", &Tree::getItemVariable, &Tree::setItemVariable);
  expectBlind(u"parent", "Parent", &Tree::getParent, &Tree::setParent);
  EXPECT_EQ(variablesFound(u"sizeVariable", &Tree::getSizeVariable, &Tree::setSizeVariable), "sourceVariable");

  const Parsed parsed("<treeLayoutStatistic><bogus/><v id='item'/><v id='parent'/></treeLayoutStatistic>");
  const OrbSourceVariable itemVariable(parsed.document()->getElementById(u"item"));
  const OrbSourceVariable parentVariable(parsed.document()->getElementById(u"parent"));
  const Tree tree(parsed.root(), itemVariable, parentVariable);
  EXPECT_EQ(parsed.root()->getUserData(u"treeLayoutStatistic"), &tree);
  EXPECT_EQ(utf8(parsed.root()->getAttribute(u"itemVariable")), "item");
  EXPECT_EQ(utf8(parsed.root()->getAttribute(u"parent")), "parent");
}

TEST(TreeLayout, KeepsSpacesAsText) {
  const NewDocument document(u"treeLayoutStatistic");
  Tree tree(document.root());
  tree.setSpacing(2.5);
  tree.setPadding(1.0 / 3);
  EXPECT_EQ(utf8(tree.getSpacing()), "2.5");
  EXPECT_EQ(utf8(tree.getPadding()), "0.3333333333333333");
  tree.setSpacing(u"3px");
  tree.setPadding(u"10%");
  EXPECT_EQ(utf8(tree.getSpacing()), "3px");
  EXPECT_EQ(utf8(tree.getPadding()), "10%");
}

TEST(Links, KnowTheirRulesAndWhereTheyTouch) {
  expectKeywords<Link>(u"type", &Link::getType, &Link::setType,
                       "byDimension complete minimalSpanningTree nearestNeighbor hull join sequence delaunay tsp alpha "
                       "gabriel relativeNeighborhood knn distance influence",
                       {.foreign = "minimalSpanning"});
  expectKeywords<Link>(u"x", &Link::getX, &Link::setX, "centroid base origin midrange");
  expectKeywords<Link>(u"y", &Link::getY, &Link::setY, "centroid base origin midrange");
  expectKeywords<Link>(u"z", &Link::getZ, &Link::setZ, "centroid base origin midrange");
  EXPECT_EQ(utf8(Link::OrbLinkStatistic_byDimension), "byDimension");
  EXPECT_EQ(utf8(Link::OrbLinkStatistic_complete), "complete");
  EXPECT_EQ(utf8(Link::OrbLinkStatistic_hull), "hull");
  EXPECT_EQ(utf8(Link::OrbLinkStatistic_nearestNeighbor), "nearestNeighbor");
  EXPECT_EQ(utf8(Link::OrbLinkStatistic_minimalSpanning), "minimalSpanning");
}

TEST(Links, OfPatternsFindTheVariableOfTheItems) {
  using Pattern = OrbPatternLinkStatistic;
  EXPECT_EQ(variablesFound(u"item", &Pattern::getItem, &Pattern::setItem), allVariables);
}
