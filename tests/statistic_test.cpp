// Summaries, bins and conditions: one list of keywords in several numberings, fallbacks, getters unlike their setters.
#include "dom.h"
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

#include <iterator>
#include <limits>

using test::NewDocument;
using test::Parsed;
using test::utf8;
using xercesc::DOMElement;

namespace {

const XMLCh* const summaries[] = {
    u"mean",
    u"sum",
    u"midRange",
    u"percent",
    u"percentCount",
    u"fraction",
    u"fractionCount",
    u"range",
    u"confidenceIntervalOfMean",
    u"confidenceIntervalIndividual",
    u"count",
    u"confidenceIntervalOfCount",
    u"confidenceIntervalOfPercentCount",
    u"confidenceIntervalOfFractionCount",
    u"rowCount",
    u"stddev",
    u"stderr",
    u"median",
    u"max",
    u"min",
    u"variance",
    u"cumulativeSum",
    u"cumulativePercent",
    u"cumulativePercentCount",
    u"cumulativeFraction",
    u"cumulativeFractionCount",
    u"cumulativeCount",
    u"first",
    u"last",
    u"percentile",
    u"mode",
    u"countTrue",
    u"percentTrue",
    u"fractionTrue",
    u"kurtosis",
    u"seKurtosis",
    u"skewness",
    u"seSkewness",
};

/// Reads and writes every keyword of the list through an enumeration that knows the first of them.
template <class Wrapper, class Enumeration>
void expectNumbering(const XMLCh* attribute, Enumeration (Wrapper::*get)() const, void (Wrapper::*set)(Enumeration),
                     int first, int count, int fallback) {
  const NewDocument document(Wrapper::elementName);
  Wrapper wrapper(document.root());
  EXPECT_EQ((wrapper.*get)(), fallback);
  for (int index = -1; index <= static_cast<int>(std::size(summaries)); ++index) {
    const bool inList = index >= 0 && index < static_cast<int>(std::size(summaries));
    const bool known = inList && index < count;
    wrapper.SetAttribute(attribute, inList ? summaries[index] : u"Mean");
    EXPECT_EQ((wrapper.*get)(), known ? first + index : fallback) << index;
    wrapper.SetAttribute(attribute, u"kept");
    (wrapper.*set)(static_cast<Enumeration>(first + index));
    EXPECT_EQ(utf8(wrapper.GetAttribute(attribute)), known ? utf8(summaries[index]) : "kept") << index;
  }
}

} // namespace

TEST(Summaries, AreNumberedByEachEnumerationInItsWay) {
  expectNumbering(u"method", &OrbSummaryStatistic::getMethod, &OrbSummaryStatistic::setMethod, 0, 38, 38);
  expectNumbering(u"summary", &OrbWhen::getSummary, &OrbWhen::setSummary, 1, 34, 0);
}

TEST(Summaries, FallBackToThreeDifferentNumbers) {
  const NewDocument document(u"summaryStatistic");
  OrbSummaryStatistic statistic(document.root());
  EXPECT_EQ(statistic.getMethod(), 38);
  EXPECT_EQ(statistic.getSummaryBase(), 3);
  EXPECT_EQ(statistic.getAugment(), 0);
  statistic.setMethod(OrbSummaryStatistic::method_unset);
  statistic.setSummaryBase(OrbSummaryStatistic::summaryBase_unset);
  statistic.setAugment(OrbSummaryStatistic::augment_unset);
  EXPECT_EQ(document.root()->getAttributes()->getLength(), 0U);

  statistic.setSummaryBase(OrbSummaryStatistic::summaryBase_global);
  EXPECT_EQ(utf8(statistic.GetAttribute(u"summaryBase")), "global");
  statistic.SetAttribute(u"summaryBase", u"coordinate");
  EXPECT_EQ(statistic.getSummaryBase(), OrbSummaryStatistic::summaryBase_coordinate);
  for (const auto augment :
       {OrbSummaryStatistic::augment_zero, OrbSummaryStatistic::augment_missing, OrbSummaryStatistic::augment_none}) {
    statistic.setAugment(augment);
    EXPECT_EQ(statistic.getAugment(), augment);
  }
  EXPECT_EQ(utf8(statistic.GetAttribute(u"augment")), "none");
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

  EXPECT_EQ(bins.getLocation(), OrbBinStatistic::location_grid);
  bins.setLocation(OrbBinStatistic::location_centroid);
  EXPECT_EQ(bins.getLocation(), 1);
  number = 0;
  for (const char* keyword : {"hex", "dot", "square", "voronoi"}) {
    bins.setGridType(static_cast<OrbBinStatistic::ENUM_gridType>(number));
    EXPECT_EQ(utf8(bins.GetAttribute(u"gridType")), keyword);
    EXPECT_EQ(bins.getGridType(), number++);
  }
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
