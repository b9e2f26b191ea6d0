// The aesthetics: their numberings, loaders, limits and references, and what attaches an element to a target.
#include "dom.h"
#include "elements.h"
#include "keywords.h"
#include "orbattach.h"
#include "orbcategoricaldomain.h"
#include "orbcategoricaldomainmodifier.h"
#include "orbcolor.h"
#include "orbcolorcomponent.h"
#include "orbdash.h"
#include "orbderivedvariable.h"
#include "orbdomainunion.h"
#include "orbexpressionvariable.h"
#include "orbfootnotes.h"
#include "orbformatting.h"
#include "orbimage.h"
#include "orbintervaldomain.h"
#include "orbintervaldomainmodifier.h"
#include "orblabellocation.h"
#include "orboffset.h"
#include "orbpattern.h"
#include "orbrotation.h"
#include "orbshape.h"
#include "orbsize.h"
#include "orbsourcevariable.h"
#include "orbsplit.h"
#include "orbstyleby.h"
#include "orbsummarystatistic.h"
#include "orbtransparency.h"
#include "orbvisibility.h"
#include "raised.h"

#include <gtest/gtest.h>

#include <cmath>
#include <string>

using test::addElement;
using test::attributeOf;
using test::childrenOf;
using test::expectKeywords;
using test::messageOf;
using test::NewDocument;
using test::Parsed;
using test::utf8;
using xercesc::DOMElement;

namespace {

TEST(Aesthetic, KeywordsAreNumberedClassByClass) {
  const std::string parts = "both main secondary stroke fill";
  expectKeywords<OrbColor>(u"affect", &OrbColor::getAffect, &OrbColor::setAffect, parts);
  expectKeywords<OrbColorComponent>(u"affect", &OrbColorComponent::getAffect, &OrbColorComponent::setAffect, parts,
                                    {.first = 0});
  expectKeywords<OrbTransparency>(u"affect", &OrbTransparency::getAffect, &OrbTransparency::setAffect, parts,
                                  {.first = 0});
  expectKeywords<OrbColor>(u"scale", &OrbColor::getScaleAttribute, &OrbColor::setScaleAttribute,
                           "bipolarBlack bipolarWhite bipolarGray bipolarLightGray bipolarDarkGray rainbow circular "
                           "temperature interpolated");
  expectKeywords<OrbColorComponent>(u"type", &OrbColorComponent::getType, &OrbColorComponent::setType,
                                    "hue saturation brightness");
  expectKeywords<OrbLabelLocation>(u"role", &OrbLabelLocation::getRole, &OrbLabelLocation::setRole, "x y",
                                   {.first = 0});
  expectKeywords<OrbSize>(u"type", &OrbSize::getType, &OrbSize::setType, "all width height depth aspect");
  expectKeywords<OrbAttach>(u"method", &OrbAttach::getMethod, &OrbAttach::setMethod,
                            "center outside vertical horizontal orthogonal");
  expectKeywords<OrbAttach>(u"attachLocation", &OrbAttach::getAttachLocation, &OrbAttach::setAttachLocation,
                            "label shape");
}

template <class Wrapper> std::string around(const std::string& children) {
  const test::Platform platform;
  const std::string name = utf8(Wrapper::elementName);
  return "<" + name + ">" + children + "</" + name + ">";
}

/// The wrapper stands over any children, under its element's name, and finds those of the base.
template <class Wrapper> void expectPasses() {
  const Parsed parsed(around<Wrapper>("<bogus/><summaryStatistic/><scale/><scale/>"));
  SCOPED_TRACE(utf8(Wrapper::elementName));
  const Wrapper wrapper(parsed.root());
  EXPECT_EQ(parsed.root()->getUserData(Wrapper::elementName), &wrapper);
  ASSERT_NE(wrapper.getScale(), nullptr);
  ASSERT_NE(wrapper.getSummaryStatistic(), nullptr);
  EXPECT_EQ(wrapper.getScale()->getImplementation()->getNextSibling(), parsed.root()->getLastChild());
  EXPECT_EQ(childrenOf(parsed.root()), "bogus summaryStatistic scale scale");
}

/// The wrapper refuses every child element but its own mappings, even those of the base. Texts and comments may stand.
template <class Wrapper> void expectRaises() {
  for (const std::string child : {"bogus", "scale", "summaryStatistic"}) {
    const Parsed parsed(around<Wrapper>("<" + child + "/>"));
    const std::string message = messageOf([&] { const Wrapper wrapper(parsed.root()); });
    EXPECT_EQ(message.find("Element " + utf8(Wrapper::elementName) + " found unknown child " + child + "("), 0U)
        << message;
    EXPECT_EQ(parsed.root()->getUserData(Wrapper::elementName), nullptr);
    DOMElement* refused = parsed.root()->getFirstElementChild();
    EXPECT_EQ(refused->getUserData(refused->getTagName()), nullptr) << "a wrapper that has ended";
    EXPECT_EQ(childrenOf(parsed.root()), child);
  }
  const Parsed parsed(around<Wrapper>(" <!-- none --> "));
  Wrapper wrapper(parsed.root());
  EXPECT_EQ(parsed.root()->getUserData(Wrapper::elementName), &wrapper);
  // What a load refuses can be added.
  wrapper.addScale(OrbScale::method_log);
  wrapper.addSummaryStatistic();
  EXPECT_EQ(childrenOf(parsed.root()), "\" ! \" scale summaryStatistic");
}

TEST(Aesthetic, MostLoadersPassOverUnknownChildren) {
  expectPasses<OrbColor>();
  expectPasses<OrbColorComponent>();
  expectPasses<OrbDash>();
  expectPasses<OrbLabelLocation>();
  expectPasses<OrbOffset>();
  expectPasses<OrbPattern>();
  expectPasses<OrbRotation>();
  expectPasses<OrbShape>();
  expectPasses<OrbSize>();
  expectPasses<OrbSplit>();
  expectPasses<OrbStyleBy>();
  expectPasses<OrbTransparency>();
}

TEST(Aesthetic, FourLoadersRaiseOnTheChildrenOfTheBaseToo) {
  expectRaises<OrbFootnotes>();
  expectRaises<OrbFormatting>();
  expectRaises<OrbImage>();
  expectRaises<OrbVisibility>();
}

TEST(Aesthetic, HoldsOneScaleAndOneSummaryStatisticInThisOrder) {
  const NewDocument document(u"color");
  OrbColor color(document.root());
  color.addColorMapping();
  color.throwIfNotAlone("Thing");
  OrbSummaryStatistic* statistic = color.addSummaryStatistic();
  OrbScale* scale = color.addScale(OrbScale::method_log_safe);
  EXPECT_EQ(childrenOf(document.root()), "colorMapping scale summaryStatistic");
  EXPECT_EQ(scale->getMethod(), OrbScale::method_log_safe);
  EXPECT_EQ(color.getScale(), scale);
  EXPECT_EQ(color.getSummaryStatistic(), statistic);

  EXPECT_EQ(messageOf([&] { color.addScale(OrbScale::method_log); }),
            "Can not add a Scale to a statistic because 1 Scale(s) already exist(s).");
  EXPECT_EQ(messageOf([&] { color.addSummaryStatistic(); }),
            "Can not add a SummaryStatistic to a statistic because 1 SummaryStatistic(s) already exist(s).");
  EXPECT_EQ(messageOf([&] { color.throwIfNotAlone("Thing"); }),
            "Can not add a SummaryStatistic to a statistic because 1 Thing(s) already exist(s).");
  EXPECT_EQ(childrenOf(document.root()), "colorMapping scale summaryStatistic");

  scale->getImplementation()->setAttribute(u"id", u"s");
  scale->getImplementation()->setIdAttribute(u"id", true);
  DOMElement* removed = scale->getImplementation();
  EXPECT_EQ(color.removeSummaryStatistics(), 1U);
  EXPECT_EQ(color.removeScales(), 1U);
  EXPECT_EQ(color.getScale(), nullptr);
  EXPECT_EQ(document.document()->getElementById(u"s"), removed);
  color.addScale(OrbScale::method_power);
  EXPECT_EQ(childrenOf(document.root()), "colorMapping scale");
}

TEST(Aesthetic, ReferencesTryTheirKeysInOrder) {
  const NewDocument document(u"root");
  OrbSplit split(addElement(document, u"split", u"a"));
  // Wrappers of two classes over one element show which is asked for first.
  DOMElement* shared = addElement(document, u"shared", u"d");
  const OrbCategoricalDomain categorical(shared);
  const OrbIntervalDomain interval(shared);
  const OrbIntervalDomainModifier intervalModifier(shared);
  const OrbCategoricalDomainModifier categoricalModifier(shared);
  const OrbExpressionVariable expression(shared);
  const OrbDerivedVariable derived(shared);

  EXPECT_EQ(split.getDomain(), nullptr);
  split.setDomain(categorical);
  EXPECT_EQ(split.getDomain(), &interval);
  split.SetAttribute(u"domainModifier", u"d");
  EXPECT_EQ(split.getDomainModifier(), &categoricalModifier);
  split.setVariable(derived);
  EXPECT_EQ(split.getVariable(), &derived);
  EXPECT_EQ(split.getSourceVariable(), nullptr);
  const OrbSourceVariable source(shared);
  EXPECT_EQ(split.getVariable(), &source);
  EXPECT_EQ(split.getSourceVariable(), &source);

  OrbIntervalDomainModifier modifier(addElement(document, u"intervalDomainModifier", u"m"));
  split.SetAttribute(u"domain", u"m");
  EXPECT_EQ(split.getDomain(), nullptr);
  split.SetAttribute(u"domainModifier", u"m");
  EXPECT_EQ(split.getDomainModifier(), &modifier);
}

TEST(Aesthetic, DomainModifierIsWrittenByTheClassAtRunTime) {
  struct Both : OrbDomainUnion, OrbIntervalDomainModifier {
    explicit Both(DOMElement* element) : OrbDomainUnion(element), OrbIntervalDomainModifier(element) {}
  };
  const NewDocument document(u"root");
  OrbSplit split(addElement(document, u"split", u"a"));
  const OrbDomainUnion domainUnion(addElement(document, u"domainUnion", u"u"));
  split.setDomainModifier(domainUnion);
  EXPECT_FALSE(split.isDomainModifierPresent());
  const Both both(addElement(document, u"intervalDomainModifier", u"m"));
  split.setDomainModifier(both);
  EXPECT_EQ(attributeOf(split, u"domainModifier"), "m");
}

TEST(Aesthetic, OnlyTheMissingRotationHasBounds) {
  const NewDocument document(u"rotation");
  OrbRotation rotation(document.root());
  const auto missing = [&](double angle) {
    rotation.setMissing(angle);
    return attributeOf(rotation, u"missing");
  };
  EXPECT_EQ(missing(400.0), "360");
  EXPECT_EQ(missing(-5.0), "0");
  EXPECT_EQ(missing(12.5), "12.5");
  EXPECT_EQ(missing(std::nextafter(360.0, 400.0)), "360");
  // Without a clamp the text is that of any number.
  for (const double angle : {360.0, 0.0, std::nan("")}) {
    rotation.setLow(angle);
    EXPECT_EQ(missing(angle), attributeOf(rotation, u"low"));
  }
  rotation.setHigh(400.0);
  EXPECT_EQ(rotation.getHigh(), 400.0);
  rotation.setLow(-5.0);
  EXPECT_EQ(rotation.getLow(), -5.0);

  OrbTransparency transparency(document.root());
  transparency.setHigh(2.0);
  EXPECT_EQ(transparency.getHigh(), 2.0);
}

TEST(Attach, WritesTheTargetKeyAloneAndTriesTheExpressionBeforeTheDerived) {
  const NewDocument document(u"root");
  DOMElement* shared = addElement(document, u"shared", u"k");
  const OrbDerivedVariable derived(shared);
  const OrbExpressionVariable expression(shared);
  const OrbSourceVariable key(addElement(document, u"sourceVariable", u"other"));
  OrbAttach attach(addElement(document, u"attach", u"a"), key, key, derived);
  EXPECT_EQ(attach.getImplementation()->getAttributes()->getLength(), 2U);
  EXPECT_EQ(attributeOf(attach, u"targetKey"), "k");
  EXPECT_EQ(attach.getTargetKey(), &expression);
  attach.setTargetKey(key);
  EXPECT_EQ(attach.getTargetKey(), &key);

  attach.SetAttribute(u"target", u"other");
  attach.removeTarget();
  EXPECT_FALSE(attach.getImplementation()->hasAttribute(u"target"));

  const Parsed parsed("<attach><bogus/></attach>");
  const OrbAttach loaded(parsed.root());
  EXPECT_EQ(parsed.root()->getUserData(u"attach"), &loaded);
}

} // namespace
