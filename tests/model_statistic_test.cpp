// The statistics that fit a model: one list of keywords in several numberings, signed counts, references, and which of
// them look at children.
#include "dom.h"
#include "keywords.h"
#include "orbcategories.h"
#include "orbclusteringstatistic.h"
#include "orbdistributionstatistic.h"
#include "orbfixedwindowdensitystatistic.h"
#include "orbmapstatistic.h"
#include "orbnearestneighbordensitystatistic.h"
#include "orbregionstatistic.h"
#include "orbsmoothstatistic.h"
#include "orbsomstatistic.h"
#include "orbtagcloudstatistic.h"
#include "orbtukeystatistic.h"
#include "raised.h"
#include "variables.h"

#include <gtest/gtest.h>

#include <string>

using test::childrenOf;
using test::expectKeywords;
using test::NewDocument;
using test::Parsed;
using test::refuses;
using test::utf8;

namespace {

const std::string kernels = "uniform epanechnikov biweight triweight tricube gaussian cauchy";
const std::string distributions = "uniform normal t f chisquare gamma beta exponential logistic studentizedrange "
                                  "weibull poisson binomialnegative gaussianinverse";

/// The wrapper is found under its element's name, and children of any name are passed over.
template <class Statistic> void expectLeaf() {
  const Parsed parsed("<r><bogus/></r>");
  const Statistic statistic(parsed.root());
  EXPECT_EQ(parsed.root()->getUserData(Statistic::elementName), &statistic) << utf8(Statistic::elementName);
}

/// A negative count is written, and reads as none.
template <class Statistic>
void expectSigned(const XMLCh* attribute, int (Statistic::*get)() const, void (Statistic::*set)(int)) {
  const NewDocument document(Statistic::elementName);
  Statistic statistic(document.root());
  (statistic.*set)(12);
  EXPECT_EQ((statistic.*get)(), 12);
  (statistic.*set)(-1);
  EXPECT_EQ(utf8(document.root()->getAttribute(attribute)), "-1");
  EXPECT_EQ((statistic.*get)(), 0);
}

template <class Statistic> constexpr bool hasId = requires(Statistic& statistic) { statistic.setId(u""); }
|| requires(Statistic& statistic) { statistic.getId(); };

} // namespace

TEST(ModelStatistics, NumberTheSameKeywordsDifferently) {
  using Smooth = OrbSmoothStatistic;
  using Fixed = OrbFixedWindowDensityStatistic;
  using Nearest = OrbNearestNeighborDensityStatistic;
  expectKeywords<Smooth>(u"kernel", &Smooth::getKernel, &Smooth::setKernel, kernels, {.first = 0});
  expectKeywords<Fixed>(u"kernel", &Fixed::getKernel, &Fixed::setKernel, kernels);
  expectKeywords<Nearest>(u"kernel", &Nearest::getKernel, &Nearest::setKernel, kernels);
  expectKeywords<Smooth>(u"robust", &Smooth::getRobust, &Smooth::setRobust,
                         "andrews biweight cauchy fair huber logistic talwar welsch", {.first = 0});

  using Region = OrbRegionStatistic;
  using Distribution = OrbDistributionStatistic;
  expectKeywords<Region>(u"distribution", &Region::getDistribution, &Region::setDistribution, distributions,
                         {.first = 0});
  expectKeywords<Distribution>(u"distribution", &Distribution::getDistribution, &Distribution::setDistribution,
                               distributions);
}

TEST(ModelStatistics, KnowTheirModels) {
  using Smooth = OrbSmoothStatistic;
  expectKeywords<Smooth>(u"method", &Smooth::getMethod, &Smooth::setMethod,
                         "linear loess power quadratic monotonic cubic polynomial log piecewise mean median trim "
                         "spline step-left step-right step-center seasonal",
                         {.first = 0});
  expectKeywords<Smooth>(u"window", &Smooth::getWindow, &Smooth::setWindow, "fixed knn", {.first = 0});
  using Region = OrbRegionStatistic;
  expectKeywords<Region>(u"regionType", &Region::getRegionType, &Region::setRegionType,
                         "uniform range sd se linear quadratic cubic polynomial piecewise confi mad", {.first = 0});
  expectKeywords<Region>(u"location", &Region::getLocation, &Region::setLocation, "mean median mode", {.first = 0});
}

TEST(ModelStatistics, CountInSignedNumbersOnlyWhereTheyDo) {
  using Distribution = OrbDistributionStatistic;
  using Fixed = OrbFixedWindowDensityStatistic;
  using Nearest = OrbNearestNeighborDensityStatistic;
  expectSigned<Distribution>(u"segments", &Distribution::getSegments, &Distribution::setSegments);
  expectSigned<Fixed>(u"segments", &Fixed::getSegments, &Fixed::setSegments);
  expectSigned<Nearest>(u"segments", &Nearest::getSegments, &Nearest::setSegments);
  expectSigned<Nearest>(u"neighbors", &Nearest::getNeighbors, &Nearest::setNeighbors);

  const NewDocument document(u"smoothStatistic");
  OrbSmoothStatistic smooth(document.root());
  smooth.setNeighbors(4'000'000'000U);
  EXPECT_EQ(smooth.getNeighbors(), 4'000'000'000U);
  OrbRegionStatistic region(document.root());
  region.setSegments(4'000'000'000U);
  EXPECT_EQ(region.getSegments(), 4'000'000'000U);
}

TEST(ModelStatistics, SpellTheCutPointsInTwoWays) {
  const Parsed parsed("<smoothStatistic cutPoints='1 2'/>");
  const OrbSmoothStatistic smooth(parsed.root());
  EXPECT_EQ(utf8(smooth.getCutpoints()), "");
  EXPECT_EQ(utf8(OrbRegionStatistic(parsed.root()).getCutPoints()), "1 2");
}

TEST(ModelStatistics, LookAtNoChildAndTwoHaveNoId) {
  expectLeaf<OrbSmoothStatistic>();
  expectLeaf<OrbRegionStatistic>();
  expectLeaf<OrbDistributionStatistic>();
  expectLeaf<OrbFixedWindowDensityStatistic>();
  expectLeaf<OrbNearestNeighborDensityStatistic>();
  expectLeaf<OrbTukeyStatistic>();
  expectLeaf<OrbClusteringStatistic>();
  expectLeaf<OrbSOMStatistic>();
  expectLeaf<OrbTagCloudStatistic>();
  EXPECT_EQ(utf8(OrbSOMStatistic::elementName), "SOMStatistic");
  EXPECT_TRUE(hasId<OrbTukeyStatistic>);
  EXPECT_FALSE(hasId<OrbSOMStatistic>);
  EXPECT_FALSE(hasId<OrbClusteringStatistic>);
}

TEST(ModelStatistics, FindVariablesOfTheirClasses) {
  using Cloud = OrbTagCloudStatistic;
  EXPECT_EQ(test::variablesFound(u"wordVariable", &Cloud::getWordVariable, &Cloud::setWordVariable),
            test::allVariables);
  EXPECT_EQ(test::variablesFound(u"sizeVariable", &Cloud::getSizeVariable, &Cloud::setSizeVariable),
            test::allVariables);
  EXPECT_EQ(test::variablesFound(u"keyVariable", &OrbMapStatistic::getKeyVariable, &OrbMapStatistic::setKeyVariable),
            "sourceVariable");
}

TEST(MapStatistic, HoldsCategoriesInTheOrderOfTheAdds) {
  const Parsed parsed("<mapStatistic><!-- c --><categories/></mapStatistic>");
  OrbMapStatistic map(parsed.root(), u"world");
  EXPECT_EQ(parsed.root()->getUserData(u"mapStatistic"), &map);
  EXPECT_EQ(utf8(map.getMapFile()), "world");
  EXPECT_EQ(map.getCategoriess().size(), 1U);
  const OrbCategories* added = map.addCategories();
  EXPECT_EQ(childrenOf(parsed.root()), "! categories categories");
  EXPECT_EQ(map.getCategoriess().back(), added);
  EXPECT_EQ(map.removeCategoriess(), 2U);
  EXPECT_EQ(childrenOf(parsed.root()), "!");

  EXPECT_TRUE(refuses<OrbMapStatistic>("<category/>"));
  const Parsed refused("<mapStatistic><category/></mapStatistic>");
  EXPECT_THROW(OrbMapStatistic(refused.root(), u"world"), OrbException);
  EXPECT_FALSE(refused.root()->hasAttributes()) << "the children come before the argument";
}
