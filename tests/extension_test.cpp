// Extensions: free attributes, and what the extensions of the root, of a variable and of a style hold beside them.
#include "chartstring.h"
#include "dom.h"
#include "keywords.h"
#include "orbextension.h"
#include "orbextensionstyle.h"
#include "orbextensionsv.h"
#include "orbextensionvis.h"
#include "orblabelframe.h"
#include "orblegend.h"
#include "orbstyle.h"
#include "orbstylecycle.h"
#include "orbvisualization.h"

#include <gtest/gtest.h>

using test::childrenOf;
using test::expectKeywords;
using test::NewDocument;
using test::Parsed;
using test::utf8;
using xercesc::DOMElement;

namespace {

/// The extension of a root that has frames, a legend and a style cycle.
class RootExtension : public testing::Test {
protected:
  std::string text(const XMLCh* name) const { return utf8(extension.getAttribute(name)); }

  const NewDocument document{u"visualization"};
  OrbVisualization root{document.root()};
  OrbLabelFrame& frame = *root.addLabelFrame(u"f");
  OrbLabelFrame& other = *root.addLabelFrame(u"o");
  OrbLegend& legend = *root.addLegend(u"l");
  OrbStyleCycle& cycle = *root.addStyleCycle(u"c");
  OrbExtensionVis& extension = *root.addExtension();
};

template <class Wrapper> void expectTakesAnything() {
  const Parsed parsed("<extension a='1' id='x'><bogus><extension/></bogus></extension>");
  Wrapper wrapper(parsed.root());
  OrbExtension& extension = wrapper;
  EXPECT_EQ(parsed.root()->getUserData(u"extension"), &wrapper);
  EXPECT_EQ(utf8(extension.getAttribute(u"a")), "1");
  extension.setAttribute(u"a", u"");
  extension.setAttribute(u"no name", u"2");
  extension.setAttribute(u"b", u"2");
  EXPECT_EQ(utf8(extension.getAttribute(u"a")) + utf8(extension.getAttribute(u"b")), "12");
  extension.removeAttribute(u"a");
  extension.removeAttribute(u"absent");
  EXPECT_FALSE(parsed.root()->hasAttribute(u"a"));
  EXPECT_EQ(childrenOf(parsed.root()), "bogus");
  EXPECT_NE(extension.AsUTF8().find("<bogus>"), std::string::npos);
}

} // namespace

TEST(Extension, HoldsAnyAttributeAndIgnoresChildren) {
  expectTakesAnything<OrbExtension>();
  expectTakesAnything<OrbExtensionVis>();
  expectTakesAnything<OrbExtensionSV>();
  expectTakesAnything<OrbExtensionStyle>();
}

TEST(Extension, OfAVariableNumbersItsStatisticsFromOne) {
  expectKeywords<OrbExtensionSV>(
      u"statistic", &OrbExtensionSV::getStatistic, &OrbExtensionSV::setStatistic,
      "numberOfCases percentageOfCases meanOfValues medianOfValues modeOfValues sumOfValues standardDeviation variance "
      "minimumValue maximumValue cumulativeSum cumulativeNumberOfCases cumulativePercentageOfCases percentile "
      "percentageAbove percentageBelow numberAbove numberBelow percentageInside numberInside gMedian gPtile "
      "percentLessThanOrEqualX numberLessThanOrEqualX percentGreaterThanOrEqualX numberGreaterThanOrEqualX "
      "percentEqualX numberEqualX xValue validN customStatistic");
}

TEST(Extension, OfAStyleReadsNumbersWhereItWritesWords) {
  const NewDocument document(u"extension");
  OrbExtensionStyle extension(document.root());
  const auto written = [&](int number) {
    extension.setConversionType(static_cast<OrbExtensionStyle::ENUM_conversionType>(number));
    EXPECT_EQ(extension.getConversionType(), 0) << number;
    return utf8(extension.getAttribute(u"conversionType"));
  };
  EXPECT_EQ(written(2), "");
  EXPECT_EQ(written(1), "frame");
  EXPECT_EQ(written(-1), "frame");
  EXPECT_EQ(written(0), "text");
  extension.setAttribute(u"conversionType", u"1");
  EXPECT_EQ(extension.getConversionType(), OrbExtensionStyle::conversionType_frame);
  extension.setAttribute(u"conversionType", u"01");
  EXPECT_EQ(extension.getConversionType(), OrbExtensionStyle::conversionType_text);

  OrbStyle style(document.document()->createElement(u"style"));
  document.root()->appendChild(style.getImplementation());
  style.setId(u"s");
  extension.setConvertedFrom(style);
  EXPECT_EQ(extension.getConvertedFrom(), &style);
}

TEST_F(RootExtension, NumberedAttributesAreThoseOfTheFixedNames) {
  extension.setTitle(frame, 1);
  extension.setTitle(other, 2);
  EXPECT_EQ(extension.getTitle1(), &frame);
  EXPECT_EQ(extension.getTitle2(), &other);
  extension.setFootnote3(frame);
  EXPECT_EQ(extension.getFootnote(3), &frame);
  extension.setLegend(2, legend);
  EXPECT_EQ(extension.getLegend2(), &legend);
  EXPECT_EQ(extension.getLegend(1), nullptr);

  extension.setText(frame, 0);
  extension.setKey(frame, 4294967295U);
  EXPECT_EQ(text(u"textbox0"), "f");
  EXPECT_EQ(text(u"key4294967295"), "f");
  EXPECT_EQ(extension.getText(0), &frame);
  EXPECT_EQ(extension.getKey(4294967295U), &frame);
  extension.setKey(frame, 7);
  extension.removeKey(4294967295U);
  EXPECT_EQ(extension.getKey(4294967295U), nullptr);
  EXPECT_EQ(extension.getKey(7), &frame);
}

TEST_F(RootExtension, LeadsToTheClassOfEachAttribute) {
  extension.setLegend1(legend);
  extension.setStyleCycleRepository(cycle);
  EXPECT_EQ(extension.getLegend1(), &legend);
  EXPECT_EQ(extension.getStyleCycleRepository(), &cycle);
  for (const XMLCh* name : {u"subtitle", u"legend1", u"styleCycleColor"})
    extension.setAttribute(name, u"f");
  EXPECT_EQ(extension.getSubtitle(), &frame);
  EXPECT_EQ(extension.getLegend1(), nullptr) << "an element of another class";
  EXPECT_EQ(extension.getStyleCycleColor(), nullptr) << "an element of another class";
}

TEST_F(RootExtension, TheStatisticsSummaryIsTheFirstOfThreeThatIsFound) {
  EXPECT_EQ(extension.getStatisticsSummary(7), nullptr);
  extension.setStatisticsSummary(frame, 1);
  EXPECT_EQ(text(u"statisticsSummary1"), "f");
  EXPECT_EQ(extension.getStatisticsSummary(7), &frame);
  extension.setStatisticsSummary(other, 7);
  EXPECT_EQ(extension.getStatisticsSummary(7), &other);
  EXPECT_EQ(extension.getStatisticsSummary(8), &frame);
  extension.setAttribute(u"statisticsSummary", u"f");
  EXPECT_EQ(extension.getStatisticsSummary(7), &frame);
  extension.setAttribute(u"statisticsSummary", u"l");
  EXPECT_EQ(extension.getStatisticsSummary(7), nullptr) << "an element of another class ends the search";
  extension.setAttribute(u"statisticsSummary", u"nothing");
  EXPECT_EQ(extension.getStatisticsSummary(7), &other);
  extension.removeStatisticsSummary();
  EXPECT_EQ(text(u"statisticsSummary"), "");
  EXPECT_EQ(text(u"statisticsSummary7"), "o") << "the remove takes the one without a number";
  extension.setStatisticsSummary(frame, -3);
  EXPECT_EQ(text(u"statisticsSummary-3"), "f");
}

TEST_F(RootExtension, StyleCyclesAreNamedByAttributesAndFoundByIds) {
  extension.setStyleCycle(u"mine");
  EXPECT_EQ(text(u"mine"), "mine");
  EXPECT_EQ(extension.getStyleCycle(u"mine"), nullptr);
  EXPECT_EQ(extension.getStyleCycle(u"c"), &cycle) << "although no attribute names it";
  EXPECT_EQ(extension.getStyleCycle(u"f"), nullptr) << "an element of another class";
  extension.removeStyleCycle(u"mine");
  EXPECT_EQ(text(u"mine"), "");
}

TEST_F(RootExtension, StringsWriteAttributesToo) {
  extension.setAttribute(ChartString(u"a"), ChartString(u"1"));
  EXPECT_EQ(text(u"a"), "1");
  extension.setAttribute(ChartString(u"a"), ChartString(u""));
  extension.setAttribute(ChartString(u"a"), ChartString());
  extension.setAttribute(ChartString(), ChartString(u"2"));
  EXPECT_EQ(text(u"a"), "1");
  EXPECT_EQ(extension.getImplementation()->getAttributes()->getLength(), 1U);
  extension.setAttribute(u"a", u"3");
  EXPECT_EQ(text(u"a"), "3");
}
