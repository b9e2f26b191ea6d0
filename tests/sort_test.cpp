// Sorts of categories, the domains and modifiers that hold them, and the control that sorts facets.
#include "dom.h"
#include "keywords.h"
#include "orbcategoricaldomain.h"
#include "orbcategoricaldomainmodifier.h"
#include "orbcategories.h"
#include "orbcategoryorder.h"
#include "orbexception.h"
#include "orbfacetsortcontroller.h"
#include "orbformat.h"
#include "orbgraph.h"
#include "orbintervaldomain.h"
#include "orbintervaldomainmodifier.h"
#include "orbrange.h"
#include "orbsimplesort.h"
#include "orbsortmove.h"
#include "orbsourcevariable.h"
#include "orbstatisticsort.h"
#include "orbunion.h"
#include "raised.h"
#include "variables.h"

#include <gtest/gtest.h>

#include <string>

using test::childrenOf;
using test::expectKeywords;
using test::messageOf;
using test::NewDocument;
using test::Parsed;
using test::refuses;
using test::utf8;

namespace {

const std::string refusal = "Can not add a StatisticSort to a CategoricalDomain because ";

/// Modifiers hold sorts of both kinds without a limit, in the order of the adds.
template <class Modifier> void expectSorts() {
  const NewDocument document(Modifier::elementName);
  Modifier modifier(document.root());
  modifier.addStatisticSort();
  modifier.addSimpleSort();
  modifier.addStatisticSort();
  modifier.addDomainUnion();
  modifier.addSimpleSort();
  EXPECT_EQ(childrenOf(document.root()), "statisticSort simpleSort statisticSort domainUnion simpleSort");
  Modifier again(document.root());
  EXPECT_EQ(again.getSimpleSorts().size(), 2U);
  EXPECT_EQ(again.removeStatisticSorts(), 2U);
  EXPECT_EQ(childrenOf(document.root()), "simpleSort domainUnion simpleSort");
}

/// The text of an order after a text was put into it at an index, and whether it was.
std::string changed(const char* text, const XMLCh* put, unsigned int index) {
  const Parsed parsed("<categoryOrder>" + std::string(text) + "</categoryOrder>");
  OrbCategoryOrder order(parsed.root());
  const bool isPlaced = order.setText(put, index);
  return (isPlaced ? "placed: " : "refused: ") + order.getText().toUTF8();
}

} // namespace

TEST(Sorts, BySummaryKnowAllButTheMoments) {
  using Simple = OrbSimpleSort;
  using Statistic = OrbStatisticSort;
  expectKeywords<Simple>(u"method", &Simple::getMethod, &Simple::setMethod, "data custom natural naturalUsingLabel",
                         {.first = 0});
  expectKeywords<Statistic>(u"method", &Statistic::getMethod, &Statistic::setMethod,
                            "mean sum midRange percent percentCount fraction fractionCount range "
                            "confidenceIntervalOfMean confidenceIntervalIndividual count confidenceIntervalOfCount "
                            "confidenceIntervalOfPercentCount confidenceIntervalOfFractionCount rowCount stddev "
                            "stderr median max min variance cumulativeSum cumulativePercent cumulativePercentCount "
                            "cumulativeFraction cumulativeFractionCount cumulativeCount first last percentile mode "
                            "countTrue percentTrue fractionTrue",
                            {.first = 0, .foreign = "kurtosis seKurtosis skewness seSkewness"});
  EXPECT_EQ(test::variablesFound(u"sourceVariable", &Statistic::getSourceVariable, &Statistic::setSourceVariable),
            "sourceVariable");
  EXPECT_EQ(test::variablesFound(u"statVariable", &Statistic::getStatVariable, &Statistic::setStatVariable),
            "sourceVariable");
}

TEST(Sorts, OfTheSimpleKindKeepMovesBeforeOrders) {
  const NewDocument document(u"simpleSort");
  OrbSimpleSort simple(document.root());
  simple.addCategoryOrder();
  const OrbSortMove* move = simple.addSortMove(u"other");
  simple.addCategoryOrder();
  simple.addSortMove(nullptr);
  EXPECT_EQ(childrenOf(document.root()), "sortMove sortMove categoryOrder categoryOrder");
  EXPECT_EQ(utf8(move->getCategory()), "other");
  EXPECT_EQ(move->getImplementation()->getUserData(u"sortMove"), move);
  EXPECT_FALSE(simple.getSortMoves().back()->getImplementation()->hasAttributes());
  OrbSimpleSort again(document.root());
  EXPECT_EQ(again.removeSortMoves(), 2U);
  EXPECT_EQ(again.getCategoryOrders().size(), 2U);
  EXPECT_TRUE(refuses<OrbSimpleSort>("<union/>"));
}

TEST(Sorts, ByStatisticKeepTheOrderOfTheAdds) {
  const NewDocument document(u"statisticSort");
  OrbStatisticSort statistic(document.root());
  statistic.addUnion();
  statistic.addSortMove(u"a");
  statistic.addUnion();
  statistic.addSortMove(u"b");
  EXPECT_EQ(childrenOf(document.root()), "union sortMove union sortMove");
  OrbStatisticSort again(document.root());
  EXPECT_EQ(utf8(again.getSortMoves().at(1)->getCategory()), "b");
  EXPECT_EQ(again.removeUnions(), 2U);
  EXPECT_TRUE(refuses<OrbStatisticSort>("<categoryOrder/>"));

  const Parsed refused("<statisticSort><v id='v'/></statisticSort>");
  const OrbSourceVariable variable(refused.document()->getElementById(u"v"));
  EXPECT_THROW(OrbStatisticSort(refused.root(), variable), OrbException);
  EXPECT_EQ(utf8(refused.root()->getAttribute(u"sourceVariable")), "v") << "written before the children are looked at";
  EXPECT_EQ(refused.root()->getUserData(u"statisticSort"), nullptr);
}

TEST(CategoryOrder, GivesItsFirstFieldAlone) {
  const Parsed parsed("<categoryOrder>;;a;b;c</categoryOrder>");
  OrbCategoryOrder order(parsed.root());
  EXPECT_EQ(order.getText(0).toUTF8(), "a");
  EXPECT_EQ(order.getText(1).toUTF8(), "");
  EXPECT_EQ(order.getText().toUTF8(), ";;a;b;c");
  order.setText(u"x;y");
  EXPECT_EQ(order.getText(0).toUTF8(), "x");
  order.removeText();
  EXPECT_EQ(order.getText(0).toUTF8(), "");
}

TEST(CategoryOrder, TakesATextInBetweenAndDropsTheSeparators) {
  EXPECT_EQ(changed("a;b;c", u"x", 0), "placed: xabc");
  EXPECT_EQ(changed("a;b;c", u"x", 1), "placed: axbc");
  EXPECT_EQ(changed(";a;;b", u"x;y", 1), "placed: ax;yb");
  EXPECT_EQ(changed("a;b;c", u"", 2), "placed: abc");
  EXPECT_EQ(changed("a;b;c", nullptr, 0), "placed: abc");
  EXPECT_EQ(changed("a;b;c", u"x", 3), "refused: a;b;c");
  EXPECT_EQ(changed("", u"x", 0), "refused: ");
  EXPECT_EQ(changed(";;", u"x", 0), "refused: ;;");
}

TEST(DomainSorts, AreOneInAllAndAlwaysRefusedAsStatisticSorts) {
  const NewDocument document(u"categoricalDomain");
  OrbCategoricalDomain domain(document.root());
  OrbSourceVariable variable(document.document()->createElement(u"sourceVariable"));
  variable.setId(u"v");
  const auto addSimple = [&] { domain.addSimpleSort(); };
  const auto addStatistic = [&] { domain.addStatisticSort(variable); };

  addSimple();
  EXPECT_EQ(messageOf(addSimple), refusal + "1 SimpleSort(s) already exist(s).");
  EXPECT_EQ(messageOf(addStatistic), refusal + "1 SimpleSort(s) already exist(s).");
  EXPECT_EQ(childrenOf(document.root()), "simpleSort");
  EXPECT_EQ(domain.removeSimpleSorts(), 1U);

  EXPECT_EQ(domain.addStatisticSort(variable)->getSourceVariable(), &variable);
  EXPECT_EQ(messageOf(addSimple), refusal + "1 StatisticSort(s) already exist(s).");
  EXPECT_EQ(messageOf(addStatistic), refusal + "1 StatisticSort(s) already exist(s).");
  EXPECT_EQ(childrenOf(document.root()), "statisticSort");

  const Parsed parsed("<categoricalDomain><simpleSort/><statisticSort/><simpleSort/></categoricalDomain>");
  OrbCategoricalDomain full(parsed.root());
  EXPECT_EQ(full.getSimpleSorts().size(), 2U);
  EXPECT_EQ(messageOf([&] { full.addSimpleSort(); }), refusal + "1 StatisticSort(s) already exist(s).");
  EXPECT_EQ(full.removeStatisticSorts(), 1U);
  EXPECT_EQ(messageOf([&] { full.addSimpleSort(); }), refusal + "2 SimpleSort(s) already exist(s).");
}

TEST(DomainSorts, HaveNoLimitInAModifier) {
  expectSorts<OrbCategoricalDomainModifier>();
  expectSorts<OrbIntervalDomainModifier>();
}

TEST(DomainFormats, GoFirstInACategoricalDomainAndLastInAnIntervalDomain) {
  const NewDocument document(u"categoricalDomain");
  OrbCategoricalDomain categories(document.root());
  OrbSourceVariable variable(document.document()->createElement(u"sourceVariable"));
  variable.setId(u"v");
  const auto children = [&] { return childrenOf(document.root()); };
  categories.addSimpleSort();
  categories.addFormat();
  EXPECT_EQ(children(), "format simpleSort");
  categories.addCategories();
  categories.addVariableReference(variable);
  EXPECT_EQ(children(), "format variableReference categories simpleSort");
  categories.addFormat();
  EXPECT_EQ(children(), "format format variableReference categories simpleSort");
  EXPECT_EQ(categories.removeSimpleSorts(), 1U);
  EXPECT_EQ(categories.removeFormats(), 2U);
  categories.addFormat();
  EXPECT_EQ(children(), "format variableReference categories");
  EXPECT_EQ(categories.removeVariableReferences(), 1U);
  categories.addFormat();
  categories.addStatisticSort(variable);
  categories.addDomainReference(categories);
  EXPECT_EQ(children(), "format format domainReference categories statisticSort");

  const NewDocument other(u"intervalDomain");
  OrbIntervalDomain ranges(other.root());
  ranges.addRange();
  ranges.addFormat();
  EXPECT_EQ(childrenOf(other.root()), "range format");
  EXPECT_EQ(messageOf([&] { ranges.addFormat(); }),
            "Can not add a Format to a IntervalDomain because 1 Format(s) already exist(s).");
  ranges.addRange();
  EXPECT_EQ(childrenOf(other.root()), "range format range");
  OrbIntervalDomain again(other.root());
  EXPECT_EQ(again.getFormats().size(), 1U);
  EXPECT_EQ(again.removeFormats(), 1U);
}

TEST(FacetSortController, LeadsToAGraph) {
  const Parsed parsed("<r><facetSortController id='c'><bogus/></facetSortController><graph id='g'/></r>");
  auto* element = parsed.document()->getElementById(u"c");
  OrbFacetSortController controller(element);
  EXPECT_EQ(element->getUserData(u"facetSortController"), &controller);
  const OrbGraph graph(parsed.document()->getElementById(u"g"));
  EXPECT_EQ(controller.getTarget(), nullptr);
  controller.setTarget(graph);
  EXPECT_EQ(controller.getTarget(), &graph);
  element->setAttribute(u"target", u"c");
  EXPECT_EQ(controller.getTarget(), nullptr) << "an element of another class";
}
