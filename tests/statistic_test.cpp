// Summaries, bins and conditions: one list of keywords in several numberings, fallbacks, getters unlike their setters.
#include "dom.h"
#include "keywords.h"
#include "orbaggregate.h"
#include "orbaggregation.h"
#include "orbbinstatistic.h"
#include "orbderivedvariable.h"
#include "orbevaluatestatistic.h"
#include "orbexpressionvariable.h"
#include "orbintersectwhere.h"
#include "orbsourcevariable.h"
#include "orbsummarystatistic.h"
#include "orbwhen.h"
#include "orbwhere.h"

#include <gtest/gtest.h>

#include <limits>
#include <string>

using test::expectKeywords;
using test::NewDocument;
using test::Parsed;
using test::utf8;
using xercesc::DOMElement;

namespace {

const std::string summaries = "mean sum midRange percent percentCount fraction fractionCount range "
                              "confidenceIntervalOfMean confidenceIntervalIndividual count confidenceIntervalOfCount "
                              "confidenceIntervalOfPercentCount confidenceIntervalOfFractionCount rowCount stddev "
                              "stderr median max min variance cumulativeSum cumulativePercent cumulativePercentCount "
                              "cumulativeFraction cumulativeFractionCount cumulativeCount first last percentile mode "
                              "countTrue percentTrue fractionTrue";
const char* const moments = "kurtosis seKurtosis skewness seSkewness";

} // namespace

TEST(Summaries, AreNumberedByEachEnumerationInItsWay) {
  using S = OrbSummaryStatistic;
  expectKeywords<S>(u"method", &S::getMethod, &S::setMethod, summaries + " " + moments, {.first = 0, .fallback = 38});
  expectKeywords<S>(u"summaryBase", &S::getSummaryBase, &S::setSummaryBase, "global aesthetic coordinate",
                    {.first = 0, .fallback = 3});
  expectKeywords<S>(u"augment", &S::getAugment, &S::setAugment, "zero missing none");
  expectKeywords<OrbWhen>(u"summary", &OrbWhen::getSummary, &OrbWhen::setSummary, summaries, {.foreign = moments});
}

TEST(Summaries, KeepTheLargestIndex) {
  const NewDocument document(u"summaryStatistic");
  OrbSummaryStatistic statistic(document.root());
  statistic.setSummaryIndex(std::numeric_limits<unsigned int>::max());
  EXPECT_EQ(statistic.getSummaryIndex(), std::numeric_limits<unsigned int>::max());
}

TEST(Bins, ReadTheirMethodAsANumberAndWriteItAsAKeyword) {
  const NewDocument document(u"binStatistic");
  OrbBinStatistic bins(document.root());
  int number = 0;
  for (const char* keyword : {"aggregate", "allDimensions", "notResponse"}) {
    bins.setMethod(static_cast<OrbBinStatistic::ENUM_method>(number));
    EXPECT_EQ(utf8(bins.GetAttribute(u"method")), keyword);
    EXPECT_EQ(bins.getMethod(), 0);
    bins.SetAttribute(u"method", std::u16string{static_cast<XMLCh>(u'0' + number)}.c_str());
    EXPECT_EQ(bins.getMethod(), number++);
  }
  bins.setMethod(static_cast<OrbBinStatistic::ENUM_method>(3));
  EXPECT_EQ(bins.getMethod(), OrbBinStatistic::method_notResponse) << "the text \"2\" still stands";
  bins.SetAttribute(u"method", u"3");
  EXPECT_EQ(bins.getMethod(), 0);

  expectKeywords<OrbBinStatistic>(u"location", &OrbBinStatistic::getLocation, &OrbBinStatistic::setLocation,
                                  "grid centroid", {.first = 0});
  expectKeywords<OrbBinStatistic>(u"gridType", &OrbBinStatistic::getGridType, &OrbBinStatistic::setGridType,
                                  "hex dot square voronoi", {.first = 0});
}

TEST(Conditions, FindVariablesThatAnAggregationDoesNot) {
  const Parsed parsed("<r><a/><w/><s id='s'/><d id='d'/><e id='e'/></r>");
  auto* first = static_cast<DOMElement*>(parsed.root()->getFirstChild());
  auto* second = static_cast<DOMElement*>(first->getNextSibling());
  const OrbSourceVariable source(parsed.document()->getElementById(u"s"));
  const OrbDerivedVariable derived(parsed.document()->getElementById(u"d"));
  const OrbExpressionVariable expression(parsed.document()->getElementById(u"e"));

  OrbAggregation aggregation(first, u"others", source, 0.1);
  EXPECT_EQ(utf8(aggregation.getNewCategory()), "others");
  EXPECT_EQ(utf8(aggregation.GetAttribute(u"minFraction")), "0.1");
  EXPECT_EQ(aggregation.getSumVariable(), &source);
  for (const CTVariableType* variable :
       {static_cast<const CTVariableType*>(&derived), static_cast<const CTVariableType*>(&expression)}) {
    aggregation.setSumVariable(*variable);
    EXPECT_EQ(utf8(aggregation.GetAttribute(u"sumVariable")), utf8(variable->getId()));
    EXPECT_EQ(aggregation.getSumVariable(), nullptr);
    OrbWhere where(second);
    where.setVariable(*variable);
    EXPECT_EQ(where.getVariable(), variable);
  }

  const OrbIntersectWhere both(second, source, derived);
  EXPECT_EQ(both.getVariable(), &source);
  EXPECT_EQ(both.getVariable2(), &derived);
}

TEST(Conditions, KeepWhatTheyAreGiven) {
  const NewDocument document(u"when");
  OrbWhen when(document.root());
  when.setMin(0.1);
  when.setMax(-1.0 / 3);
  EXPECT_EQ(utf8(when.GetAttribute(u"min")), "0.1");
  EXPECT_EQ(when.getMax(), -0.3333333333333333);
  EXPECT_TRUE(when.isMinPresent());

  OrbEvaluateStatistic evaluate(document.root(), u"1.5");
  evaluate.setX(u"");
  EXPECT_EQ(utf8(evaluate.getX()), "1.5");
  const OrbAggregate aggregate(document.root(), u"a b");
  EXPECT_EQ(utf8(aggregate.getKeyVariables()), "a b");
}
