// Where new children go: for each add of a class with bands the kinds of children that it goes before.
#include "dom.h"
#include "orbchart.h"
#include "raised.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <functional>
#include <map>
#include <sstream>
#include <string>

using test::childrenOf;
using test::messageOf;
using test::NewDocument;
using test::Parsed;
using test::utf8;

namespace {

template <class Parent> using Adds = std::map<std::string, std::function<void(Parent&)>>;
/// Names of adds, and the children that those go before.
using Followers = std::vector<std::pair<std::string, std::string>>;

bool contains(const std::string& words, const std::string& word) {
  return (" " + words + " ").find(" " + word + " ") != std::string::npos;
}

std::string followersOf(const Followers& followers, const std::string& name) {
  for (const auto& [names, list] : followers) {
    if (contains(names, name))
      return list;
  }
  return "";
}

/// Each add is tried beside each kind of child: it goes ahead of its followers and behind all others.
template <class Concrete, class Parent> void expectPlaces(const Adds<Parent>& adds, const Followers& followers) {
  const test::Platform platform;
  for (const auto& [name, add] : adds) {
    for (const auto& [other, addOther] : adds) {
      const NewDocument document(Concrete::elementName);
      Concrete parent(document.root());
      addOther(parent);
      try {
        add(parent);
      } catch (const OrbException&) {
        continue; // a single child
      }
      const bool goesAhead = contains(followersOf(followers, name), other);
      EXPECT_EQ(childrenOf(document.root()), goesAhead || name == other ? name + " " + other : other + " " + name);
    }
  }
}

const std::string sources = "databaseSource delimitedFileSource reportSource embeddedSource streamingSource userSource";
const std::string variables = "sourceVariable derivedVariable expressionVariable multipleResponseVariable "
                              "categoricalDomain categoricalDomainModifier intervalDomainModifier intervalDomain";
const std::string frames = "graph container controlFrame legend labelFrame";
const std::string styles = "style styleCycle";

const Adds<OrbVisualization> rootAdds = {
    {"location", [](OrbVisualization& parent) { parent.addLocation(OrbLocation::part_top); }},
    {"extension", [](OrbVisualization& parent) { parent.addExtension(); }},
    {"databaseSource", [](OrbVisualization& parent) { parent.addDatabaseSource(u""); }},
    {"delimitedFileSource", [](OrbVisualization& parent) { parent.addDelimitedFileSource(u""); }},
    {"reportSource", [](OrbVisualization& parent) { parent.addReportSource(); }},
    {"embeddedSource", [](OrbVisualization& parent) { parent.addEmbeddedSource(u""); }},
    {"streamingSource", [](OrbVisualization& parent) { parent.addStreamingSource(u"", u""); }},
    {"userSource", [](OrbVisualization& parent) { parent.addUserSource(u""); }},
    {"savFileSource", [](OrbVisualization& parent) { parent.addSavFileSource(); }},
    {"sourceVariable", [](OrbVisualization& parent) { parent.addSourceVariable(u""); }},
    {"derivedVariable", [](OrbVisualization& parent) { parent.addDerivedVariable(u""); }},
    {"expressionVariable", [](OrbVisualization& parent) { parent.addExpressionVariable(u""); }},
    {"multipleResponseVariable", [](OrbVisualization& parent) { parent.addMultipleResponseVariable(); }},
    {"categoricalDomain", [](OrbVisualization& parent) { parent.addCategoricalDomain(u""); }},
    {"categoricalDomainModifier", [](OrbVisualization& parent) { parent.addCategoricalDomainModifier(); }},
    {"intervalDomainModifier", [](OrbVisualization& parent) { parent.addIntervalDomainModifier(); }},
    {"intervalDomain", [](OrbVisualization& parent) { parent.addIntervalDomain(u""); }},
    {"graph", [](OrbVisualization& parent) { parent.addGraph(u""); }},
    {"container", [](OrbVisualization& parent) { parent.addContainer(u""); }},
    {"controlFrame", [](OrbVisualization& parent) { parent.addControlFrame(); }},
    {"legend", [](OrbVisualization& parent) { parent.addLegend(u""); }},
    {"labelFrame", [](OrbVisualization& parent) { parent.addLabelFrame(u""); }},
    {"style", [](OrbVisualization& parent) { parent.addStyle(); }},
    {"styleCycle", [](OrbVisualization& parent) { parent.addStyleCycle(u""); }},
    {"popup", [](OrbVisualization& parent) { parent.addPopup(); }},
    {"drillDown", [](OrbVisualization& parent) { parent.addDrillDown(u""); }},
    {"animation", [](OrbVisualization& parent) { parent.addAnimation(); }},
    {"brushing", [](OrbVisualization& parent) { parent.addBrushing(); }},
    {"lineGuideController", [](OrbVisualization& parent) { parent.addLineGuideController(); }},
    {"rectangleGuideController", [](OrbVisualization& parent) { parent.addRectangleGuideController(); }},
    {"swingController", [](OrbVisualization& parent) { parent.addSwingController(); }},
    {"facetSortController", [](OrbVisualization& parent) { parent.addFacetSortController(); }},
    {"layerController", [](OrbVisualization& parent) { parent.addLayerController(); }},
    {"dragElement", [](OrbVisualization& parent) { parent.addDragElement(); }},
    {"pivotController", [](OrbVisualization& parent) { parent.addPivotController(); }},
    {"resources", [](OrbVisualization& parent) { parent.addResources(); }},
};

const Adds<OrbGraph> graphAdds = {
    {"extension", [](OrbGraph& parent) { parent.addExtension(); }},
    {"location", [](OrbGraph& parent) { parent.addLocation(OrbLocation::part_top); }},
    {"coordinates", [](OrbGraph& parent) { parent.addCoordinates(u""); }},
    {"faceting", [](OrbGraph& parent) { parent.addFaceting(); }},
    {"facetLayout", [](OrbGraph& parent) { parent.addFacetLayout(); }},
    {"area", [](OrbGraph& parent) { parent.addArea(u""); }},
    {"interval", [](OrbGraph& parent) { parent.addInterval(u""); }},
    {"line", [](OrbGraph& parent) { parent.addLine(u""); }},
    {"edge", [](OrbGraph& parent) { parent.addEdge(); }},
    {"path", [](OrbGraph& parent) { parent.addPath(u""); }},
    {"point", [](OrbGraph& parent) { parent.addPoint(u""); }},
    {"polygon", [](OrbGraph& parent) { parent.addPolygon(u""); }},
    {"schema", [](OrbGraph& parent) { parent.addSchema(u""); }},
    {"frameGuide", [](OrbGraph& parent) { parent.addFrameGuide(); }},
    {"functionGuide", [](OrbGraph& parent) { parent.addFunctionGuide(); }},
    {"rectangleGuide", [](OrbGraph& parent) { parent.addRectangleGuide(); }},
    {"lineGuide", [](OrbGraph& parent) { parent.addLineGuide(); }},
    {"planeGuide", [](OrbGraph& parent) { parent.addPlaneGuide(); }},
    {"pointGuide", [](OrbGraph& parent) { parent.addPointGuide(); }},
};

const Adds<CTElementType> elementAdds = {
    {"extension", [](CTElementType& parent) { parent.addExtension(); }},
    {"binStatistic", [](CTElementType& parent) { parent.addBinStatistic(); }},
    {"aggregateStatistic", [](CTElementType& parent) { parent.addAggregateStatistic(); }},
    {"clusteringStatistic", [](CTElementType& parent) { parent.addClusteringStatistic(); }},
    {"collectRowsStatistic", [](CTElementType& parent) { parent.addCollectRowsStatistic(); }},
    {"distributionStatistic", [](CTElementType& parent) { parent.addDistributionStatistic(); }},
    {"graphLayoutStatistic", [](CTElementType& parent) { parent.addGraphLayoutStatistic(); }},
    {"linkStatistic", [](CTElementType& parent) { parent.addLinkStatistic(); }},
    {"regionStatistic", [](CTElementType& parent) { parent.addRegionStatistic(); }},
    {"smoothStatistic", [](CTElementType& parent) { parent.addSmoothStatistic(); }},
    {"summaryStatistic", [](CTElementType& parent) { parent.addSummaryStatistic(); }},
    {"tagCloudStatistic", [](CTElementType& parent) { parent.addTagCloudStatistic(); }},
    {"evaluateStatistic", [](CTElementType& parent) { parent.addEvaluateStatistic(); }},
    {"fixedWindowDensityStatistic", [](CTElementType& parent) { parent.addFixedWindowDensityStatistic(); }},
    {"nearestNeighborDensityStatistic", [](CTElementType& parent) { parent.addNearestNeighborDensityStatistic(); }},
    {"tukeyStatistic", [](CTElementType& parent) { parent.addTukeyStatistic(); }},
    {"SOMStatistic", [](CTElementType& parent) { parent.addSOMStatistic(); }},
    {"when", [](CTElementType& parent) { parent.addWhen(); }},
    {"patternLinkStatistic", [](CTElementType& parent) { parent.addPatternLinkStatistic(); }},
    {"mapStatistic", [](CTElementType& parent) { parent.addMapStatistic(u"m"); }},
    {"dash", [](CTElementType& parent) { parent.addDash(); }},
    {"shape", [](CTElementType& parent) { parent.addShape(); }},
    {"size", [](CTElementType& parent) { parent.addSize(); }},
    {"rotation", [](CTElementType& parent) { parent.addRotation(); }},
    {"color", [](CTElementType& parent) { parent.addColor(); }},
    {"offset", [](CTElementType& parent) { parent.addOffset(); }},
    {"pattern", [](CTElementType& parent) { parent.addPattern(); }},
    {"transparency", [](CTElementType& parent) { parent.addTransparency(); }},
    {"labeling", [](CTElementType& parent) { parent.addLabeling(); }},
    {"split", [](CTElementType& parent) { parent.addSplit(); }},
    {"colorComponent", [](CTElementType& parent) { parent.addColorComponent(); }},
    {"styleBy", [](CTElementType& parent) { parent.addStyleBy(nullptr); }},
    {"position", [](CTElementType& parent) { parent.addPosition(); }},
    {"x", [](CTElementType& parent) { parent.addX(); }},
    {"y", [](CTElementType& parent) { parent.addY(); }},
    {"z", [](CTElementType& parent) { parent.addZ(); }},
    {"attach", [](CTElementType& parent) { parent.addAttach(); }},
    {"visibility", [](CTElementType& parent) { parent.addVisibility(); }},
    {"image", [](CTElementType& parent) { parent.addImage(); }},
    {"replicate", [](CTElementType& parent) { parent.addReplicate(); }},
    {"treeLayoutStatistic",
     [](CTElementType& parent) {
       const OrbSourceVariable variable(
           parent.getImplementation()->getOwnerDocument()->createElement(u"sourceVariable"));
       parent.addTreeLayoutStatistic(variable, variable);
     }},
    {"conditionalStyle",
     [](CTElementType& parent) {
       const OrbStyle style(parent.getImplementation()->getOwnerDocument()->createElement(u"style"));
       parent.addConditionalStyle(u"", style);
     }},
};

const Adds<OrbFaceting> facetingAdds = {
    {"attach", [](OrbFaceting& parent) { parent.addAttach(); }},
    {"binStatistic", [](OrbFaceting& parent) { parent.addBinStatistic(); }},
    {"aggregateStatistic", [](OrbFaceting& parent) { parent.addAggregateStatistic(); }},
    {"collectRowsStatistic", [](OrbFaceting& parent) { parent.addCollectRowsStatistic(); }},
    {"replicate", [](OrbFaceting& parent) { parent.addReplicate(); }},
    {"distributionStatistic", [](OrbFaceting& parent) { parent.addDistributionStatistic(); }},
    {"graphLayoutStatistic", [](OrbFaceting& parent) { parent.addGraphLayoutStatistic(); }},
    {"linkStatistic", [](OrbFaceting& parent) { parent.addLinkStatistic(); }},
    {"mapStatistic", [](OrbFaceting& parent) { parent.addMapStatistic(); }},
    {"regionStatistic", [](OrbFaceting& parent) { parent.addRegionStatistic(); }},
    {"smoothStatistic", [](OrbFaceting& parent) { parent.addSmoothStatistic(); }},
    {"evaluateStatistic", [](OrbFaceting& parent) { parent.addEvaluateStatistic(); }},
    {"fixedWindowDensityStatistic", [](OrbFaceting& parent) { parent.addFixedWindowDensityStatistic(); }},
    {"nearestNeighborDensityStatistic", [](OrbFaceting& parent) { parent.addNearestNeighborDensityStatistic(); }},
    {"summaryStatistic", [](OrbFaceting& parent) { parent.addSummaryStatistic(); }},
    {"tagCloudStatistic", [](OrbFaceting& parent) { parent.addTagCloudStatistic(); }},
    {"treeLayoutStatistic", [](OrbFaceting& parent) { parent.addTreeLayoutStatistic(); }},
    {"clusteringStatistic", [](OrbFaceting& parent) { parent.addClusteringStatistic(); }},
    {"SOMStatistic", [](OrbFaceting& parent) { parent.addSOMStatistic(); }},
    {"tukeyStatistic", [](OrbFaceting& parent) { parent.addTukeyStatistic(); }},
    {"when", [](OrbFaceting& parent) { parent.addWhen(); }},
    {"patternLinkStatistic", [](OrbFaceting& parent) { parent.addPatternLinkStatistic(); }},
    {"variableReference", [](OrbFaceting& parent) { parent.addVariableReference(); }},
    {"unity", [](OrbFaceting& parent) { parent.addUnity(); }},
    {"blend", [](OrbFaceting& parent) { parent.addBlend(); }},
    {"cross", [](OrbFaceting& parent) { parent.addCross(); }},
    {"dot", [](OrbFaceting& parent) { parent.addDot(); }},
    {"nest", [](OrbFaceting& parent) { parent.addNest(); }},
    {"layer", [](OrbFaceting& parent) { parent.addLayer(); }},
};

const Adds<OrbEmbeddedSource> sourceAdds = {
    {"aggregate", [](OrbEmbeddedSource& parent) { parent.addAggregate(); }},
    {"filter", [](OrbEmbeddedSource& parent) { parent.addFilter(); }},
    {"names", [](OrbEmbeddedSource& parent) { parent.addNames(); }},
    {"types", [](OrbEmbeddedSource& parent) { parent.addTypes(); }},
    {"row", [](OrbEmbeddedSource& parent) { parent.addRow(); }},
    {"dataReduction", [](OrbEmbeddedSource& parent) { parent.addDataReduction(); }},
    {"labels", [](OrbEmbeddedSource& parent) { parent.addLabels(); }},
    {"labelColumns", [](OrbEmbeddedSource& parent) { parent.addLabelColumns(); }},
};

} // namespace

TEST(Bands, OfTheRoot) {
  const std::string afterFrames = styles + " popup drillDown";
  const std::string afterVariables = frames + " " + afterFrames;
  const std::string afterSources = variables + " " + afterVariables;
  const std::string afterExtensions = sources + " " + variables + " " + frames + " " + styles + " popup";
  expectPlaces<OrbVisualization>(rootAdds, {{"location", "extension " + afterExtensions},
                                            {"extension", afterExtensions},
                                            {sources, afterSources},
                                            {variables, afterVariables},
                                            {"graph container legend labelFrame", afterFrames},
                                            {styles, "animation popup drillDown brushing lineGuideController "
                                                     "rectangleGuideController swingController facetSortController "
                                                     "layerController dragElement"}});
}

TEST(Bands, OfAGraph) {
  const std::string guides = "frameGuide functionGuide rectangleGuide lineGuide planeGuide pointGuide";
  const std::string elements = "area interval line edge path point polygon schema";
  const std::string afterLayout = elements + " " + guides;
  expectPlaces<OrbGraph>(graphAdds, {{"extension", "location coordinates faceting facetLayout " + afterLayout},
                                     {"location", "coordinates faceting facetLayout " + afterLayout},
                                     {"coordinates", "faceting facetLayout " + afterLayout},
                                     {"faceting", "facetLayout " + afterLayout},
                                     {"facetLayout", afterLayout},
                                     {elements, guides}});
}

TEST(Bands, OfAGraphicElement) {
  const std::string positions = "x y z position";
  const std::string aesthetics = "styleBy dash shape size rotation color offset pattern transparency labeling split "
                                 "colorComponent";
  const std::string afterStatistics = aesthetics + " " + positions;
  // All but the fixedWindowDensityStatistic, which an extension does not look for.
  const std::string mostStatistics =
      "binStatistic aggregateStatistic clusteringStatistic SOMStatistic when collectRowsStatistic "
      "distributionStatistic graphLayoutStatistic linkStatistic mapStatistic regionStatistic smoothStatistic "
      "summaryStatistic tagCloudStatistic treeLayoutStatistic evaluateStatistic nearestNeighborDensityStatistic "
      "tukeyStatistic patternLinkStatistic";
  const std::string afterExtensions = "attach " + mostStatistics + " " + afterStatistics;
  expectPlaces<OrbPoint>(elementAdds, {{"extension", afterExtensions},
                                       {"conditionalStyle", "fixedWindowDensityStatistic " + afterExtensions},
                                       {"binStatistic", "smoothStatistic " + afterStatistics},
                                       {mostStatistics + " fixedWindowDensityStatistic", afterStatistics},
                                       {aesthetics, positions}});
}

TEST(Bands, OfAFaceting) {
  const std::string terms = "variableReference unity blend cross dot nest layer";
  std::string statistics;
  for (const auto& [name, add] : facetingAdds)
    statistics += contains(terms, name) ? "" : name + " ";
  expectPlaces<OrbFaceting>(facetingAdds, {{statistics, terms}});
}

TEST(Bands, OfAnEmbeddedSource) {
  expectPlaces<OrbEmbeddedSource>(sourceAdds, {{"aggregate", "filter names types row"},
                                               {"filter", "names types row"},
                                               {"names", "types row labels labelColumns"},
                                               {"types row", "row labels labelColumns"},
                                               {"labels", "labelColumns"}});
}

TEST(Bands, OfAVariableAndADimension) {
  const NewDocument document(u"sourceVariable");
  OrbSourceVariable variable(document.root());
  OrbFormat* format = variable.addFormat();
  variable.addAggregation(u"other", variable, 0.1);
  OrbExtensionSV* extension = variable.addExtension();
  EXPECT_EQ(childrenOf(document.root()), "extension aggregation format");
  EXPECT_EQ(variable.getExtension(), extension);
  EXPECT_EQ(messageOf([&] { variable.addFormat(); }),
            "Can not add a Format to a VariableType because 1 Format(s) already exist(s).");
  // A copy of a format is appended and counted by nothing, with what is below it, from any document.
  const Parsed parsed("<format prefix='p'><relabel from='a' to='b'/></format>");
  OrbFormat foreign(parsed.root());
  variable.addFormat(foreign);
  variable.addFormat(*format);
  ASSERT_EQ(variable.getFormats().size(), 3U);
  EXPECT_EQ(utf8(variable.getFormats()[1]->getPrefix()), "p");
  EXPECT_EQ(variable.getFormats()[1]->getRelabels().size(), 1U);
  EXPECT_EQ(messageOf([&] { variable.addFormat(); }),
            "Can not add a Format to a VariableType because 3 Format(s) already exist(s).");

  const NewDocument other(u"dimension");
  OrbDimension dimension(other.root());
  dimension.addAxis()->setId(u"a");
  dimension.addScale(OrbScale::method_linear);
  dimension.addAxis()->setId(u"b");
  EXPECT_EQ(childrenOf(other.root()), "scale axis#a axis#b");
  EXPECT_EQ(messageOf([&] { dimension.addAxis(); }), "Dimension can have at most 2 axis children.");
  EXPECT_EQ(messageOf([&] { dimension.addScale(OrbScale::method_linear); }),
            "Can not add a Scale to a Dimension because 1 Scale(s) already exist(s).");
  EXPECT_FALSE(dimension.removeAxis(2));
  EXPECT_TRUE(dimension.removeAxis(0));
  EXPECT_TRUE(dimension.doesIdExist(u"a")) << "the id stays registered";
  EXPECT_EQ(dimension.removeAxiss(), 1U);
  EXPECT_FALSE(dimension.doesIdExist(u"b"));
}

TEST(Bands, OfAStyle) {
  const NewDocument document(u"style");
  OrbStyle style(document.root());
  OrbExtensionStyle* first = style.addExtension();
  style.addExtension();
  style.addStyle();
  EXPECT_EQ(childrenOf(document.root()), "style extension extension");
  EXPECT_EQ(style.getExtension(), first);
}

TEST(Elements, GiveTheirLabelingsAliveAndRemoveOneByItsElement) {
  const NewDocument document(u"point");
  OrbPoint point(document.root());
  const std::vector<OrbLabeling*>& labelings = point.getLabelings();
  EXPECT_TRUE(labelings.empty());
  point.addLabeling();
  OrbLabeling* second = point.addLabeling();
  EXPECT_EQ(labelings.size(), 2U);
  OrbLabeling stranger(document.document()->createElement(u"labeling"));
  point.removeLabeling(stranger);
  EXPECT_EQ(labelings.size(), 2U);
  OrbLabeling twin(second->getImplementation());
  point.removeLabeling(twin);
  ASSERT_EQ(labelings.size(), 1U);
  EXPECT_NE(labelings[0]->getImplementation(), twin.getImplementation());

  const OrbSourceVariable variable(document.document()->createElement(u"sourceVariable"));
  EXPECT_FALSE(point.addTreeLayoutStatistic(variable, variable)->getImplementation()->hasAttributes());
  EXPECT_EQ(utf8(point.addMapStatistic(u"world")->getMapFile()), "world");
}

TEST(Graphs, PassOverTheSecondOfTwoNeighbouringLocations) {
  const Parsed parsed("<graph><location part='left' id='1'/><location part='left' id='2'/><location part='right'/>"
                      "<location part='left' id='3'/></graph>");
  OrbGraph graph(parsed.root());
  EXPECT_EQ(graph.removeLocation(OrbLocation::part_left), 2U);
  EXPECT_EQ(childrenOf(parsed.root()), "location#2 location");
  EXPECT_FALSE(graph.doesIdExist(u"1") || graph.doesIdExist(u"3")) << "the ids are taken off";
  EXPECT_EQ(graph.removeLocation(OrbLocation::part_top), 0U);
  graph.addFacetLayout();
  EXPECT_EQ(messageOf([&] { graph.addFacetLayout(); }),
            "Can not add a FacetLayout to a Graph because 1 FacetLayout(s) already exist(s).");
  graph.addRectangleGuide()->setId(u"rectangle");
  graph.addLineGuide()->setId(u"line");
  EXPECT_EQ(graph.removeRectangleGuides() + graph.removeLineGuides(), 2U);
  EXPECT_TRUE(graph.doesIdExist(u"rectangle")) << "alone among the guides";
  EXPECT_FALSE(graph.doesIdExist(u"line"));
}

TEST(Root, GivesTheFirstExtensionThatIsForNoDrillDown) {
  const Parsed parsed("<visualization><extension drillDown='d'/><extension drillDown=''/></visualization>");
  const OrbVisualization root(parsed.root());
  EXPECT_EQ(root.getExtension()->getImplementation(), parsed.root()->getLastChild());
  const Parsed none("<visualization><extension drillDown='d'/></visualization>");
  EXPECT_EQ(OrbVisualization(none.root()).getExtension(), nullptr);
}

TEST(Root, StripsTheIdsOfSomeFamiliesOnly) {
  const std::string stripped = "location databaseSource sourceVariable graph container legend labelFrame style "
                               "styleCycle popup drillDown";
  const std::string kept = "reportSource controlFrame animation brushing lineGuideController pivotController resources";
  std::string content;
  std::istringstream names(stripped + " " + kept);
  for (std::string name; names >> name;)
    content += "<" + name + " id='" + name + "'/>";
  const Parsed parsed("<visualization>" + content + "</visualization>");
  OrbVisualization root(parsed.root());
  root.removeLocations();
  root.removeDatabaseSources();
  root.removeSourceVariables();
  root.removeGraphs();
  root.removeContainers();
  root.removeLegends();
  root.removeLabelFrames();
  root.removeStyles();
  root.removeStyleCycles();
  root.removePopups();
  root.removeDrillDowns();
  root.removeReportSources();
  root.removeControlFrames();
  root.removeAnimations();
  root.removeBrushings();
  root.removeLineGuideControllers();
  root.removePivotControllers();
  root.removeResourcess();
  EXPECT_EQ(childrenOf(parsed.root()), "");
  std::istringstream again(stripped + " " + kept);
  for (std::string name; again >> name;)
    EXPECT_EQ(root.doesIdExist(std::u16string(name.begin(), name.end()).c_str()), contains(kept, name)) << name;
}

TEST(Root, HasNumberedTitlesAndFootnotesInItsExtension) {
  const Parsed parsed("<visualization><extension/><labelFrame id='f'/></visualization>");
  const OrbVisualization root(parsed.root());
  OrbExtensionVis& extension = *root.getExtension();
  OrbLabelFrame* frame = root.getLabelFrames().front();
  extension.setTitle(*frame, 1);
  extension.setFootnote(*frame, 2);
  EXPECT_EQ(extension.getTitle(1), frame);
  EXPECT_EQ(extension.getTitle1(), frame) << "one attribute under two names";
  EXPECT_EQ(extension.getFootnote2(), frame);
  EXPECT_EQ(extension.getTitle(2), nullptr);
}
