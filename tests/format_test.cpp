// Formats: their numberings, numbers of any size, children and unit rules.
#include "dom.h"
#include "keywords.h"
#include "orbaffix.h"
#include "orbformat.h"
#include "orbrelabel.h"
#include "orbunitrule.h"

#include <gtest/gtest.h>

#include <limits>
#include <string>

using test::childrenOf;
using test::expectKeywords;
using test::NewDocument;
using test::Parsed;
using test::utf8;

TEST(Format, KeywordsAreNumberedFromOne) {
  expectKeywords<OrbFormat>(u"baseFormat", &OrbFormat::getBaseFormat, &OrbFormat::setBaseFormat,
                            "date time dateTime elapsedTime");
  expectKeywords<OrbFormat>(u"scientific", &OrbFormat::getScientific, &OrbFormat::setScientific,
                            "true false onlyForSmall whenNeeded");
  expectKeywords<OrbFormat>(u"mdyOrder", &OrbFormat::getMdyOrder, &OrbFormat::setMdyOrder,
                            "dayMonthYear dayYearMonth monthDayYear monthYearDay yearDayMonth yearMonthDay");
  expectKeywords<OrbFormat>(u"dayType", &OrbFormat::getDayType, &OrbFormat::setDayType, "month year");
  expectKeywords<OrbFormat>(u"monthFormat", &OrbFormat::getMonthFormat, &OrbFormat::setMonthFormat,
                            "short long number paddedNumber");
}

TEST(Format, HoursAreCountedByWordsInCapitals) {
  const NewDocument document(u"format");
  OrbFormat format(document.root());
  const auto written = [&](int number) {
    format.setHourFormat(static_cast<OrbFormat::ENUM_hourFormat>(number));
    return utf8(format.GetAttribute(u"hourFormat"));
  };
  EXPECT_EQ(written(0), "");
  EXPECT_EQ(written(1), "AMPM");
  EXPECT_EQ(format.getHourFormat(), 1);
  EXPECT_EQ(written(2), "AS_24");
  EXPECT_EQ(format.getHourFormat(), 2);
  EXPECT_EQ(written(3), "AS_12");
  EXPECT_EQ(format.getHourFormat(), 3);
  EXPECT_EQ(written(4), "AS_12");
  for (const XMLCh* text : {u"24", u"as_24", u"AS24"}) {
    format.SetAttribute(u"hourFormat", text);
    EXPECT_EQ(format.getHourFormat(), 0) << utf8(text);
  }
}

TEST(Format, IntegerDigitsAreWrittenWholeAndReadAs32Bits) {
  static_assert(sizeof(unsigned long) == 8);
  const NewDocument document(u"format");
  OrbFormat format(document.root());
  format.setMaximumIntegerDigits(4'294'967'303UL);
  EXPECT_EQ(utf8(format.GetAttribute(u"maximumIntegerDigits")), "4294967303");
  EXPECT_EQ(format.getMaximumIntegerDigits(), 7U);
  format.setMinimumIntegerDigits(std::numeric_limits<unsigned long>::max());
  EXPECT_EQ(utf8(format.GetAttribute(u"minimumIntegerDigits")), "18446744073709551615");
  EXPECT_EQ(format.getMinimumIntegerDigits(), 4'294'967'295U);
}

TEST(Format, ReadsItsHiddenSeparatorInLowerCaseAlone) {
  const Parsed parsed("<format hiddenSeparator='true'/>");
  const OrbFormat format(parsed.root());
  EXPECT_FALSE(format.getHiddenSeparator());
  EXPECT_FALSE(format.isHiddenSeparatorPresent());
  parsed.root()->setAttribute(u"hiddenseparator", u"true");
  EXPECT_TRUE(format.getHiddenSeparator());
}

TEST(Format, TakesANumberOfZero) {
  const NewDocument document(u"format");
  OrbFormat format(document.root());
  format.setScalingFactor(0.0);
  EXPECT_TRUE(format.isScalingFactorPresent());
  EXPECT_EQ(format.getScalingFactor(), 0.0);
}

TEST(Format, PassesOverUnknownChildrenAndAppendsTheKnown) {
  const Parsed parsed("<format><relabel/><bogus/><affix id='a'/><unitRule/><relabel/><scale/></format>");
  OrbFormat format(parsed.root());
  EXPECT_EQ(parsed.root()->getUserData(u"format"), &format);
  EXPECT_EQ(format.getAffixs().size(), 1U);
  EXPECT_EQ(format.getUnitRules().size(), 1U);
  EXPECT_EQ(format.getRelabels().size(), 2U);

  OrbRelabel* relabel = format.addRelabel(u"1", u"one");
  EXPECT_EQ(format.getRelabels().back(), relabel);
  EXPECT_EQ(utf8(relabel->getFrom()), "1");
  EXPECT_EQ(utf8(relabel->getTo()), "one");
  format.addAffix();
  format.addUnitRule()->setId(u"u");
  EXPECT_FALSE(format.addRelabel()->getImplementation()->hasAttributes());
  EXPECT_EQ(childrenOf(parsed.root()), "relabel bogus affix#a unitRule relabel scale relabel affix unitRule#u relabel");

  EXPECT_EQ(format.removeAffixs(), 2U);
  EXPECT_EQ(format.removeUnitRules(), 2U);
  EXPECT_EQ(format.removeRelabels(), 4U);
  EXPECT_EQ(childrenOf(parsed.root()), "bogus scale");
  EXPECT_TRUE(format.doesIdExist(u"a"));
  EXPECT_TRUE(format.doesIdExist(u"u"));
}

TEST(UnitRule, HasAFactorWhenItIsGivenOne) {
  const NewDocument document(u"unitRule");
  const OrbUnitRule rule(document.root(), 1000.0);
  EXPECT_EQ(document.root()->getUserData(u"unitRule"), &rule);
  EXPECT_EQ(utf8(rule.GetAttribute(u"factor")), "1000");

  const NewDocument other(u"format");
  OrbFormat format(other.root());
  EXPECT_FALSE(format.addUnitRule()->getImplementation()->hasAttributes());
  EXPECT_EQ(format.getUnitRules().back()->getFactor(), 0.0);
}
