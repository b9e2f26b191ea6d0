// Mappings of values, style cycles, and the ranges of aesthetics as views.
#include "dom.h"
#include "elements.h"
#include "orbbooleanmapping.h"
#include "orbcolor.h"
#include "orbcolorcomponent.h"
#include "orbcolormapping.h"
#include "orbcycle.h"
#include "orbdash.h"
#include "orbdashmapping.h"
#include "orbderivedvariable.h"
#include "orbdoublemapping.h"
#include "orbexception.h"
#include "orbextension.h"
#include "orbfootnotemapping.h"
#include "orbfootnotes.h"
#include "orbformat.h"
#include "orbformatmapping.h"
#include "orbformatting.h"
#include "orbimage.h"
#include "orbintegermapping.h"
#include "orblengthmapping.h"
#include "orbpattern.h"
#include "orbshape.h"
#include "orbsize.h"
#include "orbsourcevariable.h"
#include "orbstringmapping.h"
#include "orbstyle.h"
#include "orbstylecycle.h"
#include "orbsummarystatistic.h"
#include "orbsymbolmapping.h"
#include "orbtokenmapping.h"
#include "orbtransparency.h"
#include "orbvaluemapentry.h"
#include "orbvisibility.h"
#include "raised.h"
#include "variables.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

using test::attributeOf;
using test::childrenOf;
using test::NewDocument;
using test::Parsed;
using test::refuses;
using test::utf8;

namespace {

/// An aesthetic loads its mappings, in their order and among whatever else it loads, adds them at the end, and takes
/// them away with their ids registered.
template <class Aesthetic, class Mapping>
void expectMappings(Mapping* (Aesthetic::*add)(), std::vector<Mapping*> (Aesthetic::*get)() const,
                    unsigned int (Aesthetic::*remove)(), const std::string& others) {
  const test::Platform platform;
  const std::string aesthetic = utf8(Aesthetic::elementName);
  const std::string mapping = utf8(Mapping::elementName);
  SCOPED_TRACE(aesthetic);
  const Parsed parsed("<" + aesthetic + "><" + mapping + " id='m'><bogus/></" + mapping + ">" + others + "<" + mapping +
                      " from='b'/></" + aesthetic + ">");
  Aesthetic wrapper(parsed.root());
  EXPECT_EQ(parsed.root()->getUserData(Aesthetic::elementName), &wrapper);
  ASSERT_EQ((wrapper.*get)().size(), 2U);
  EXPECT_EQ(utf8((wrapper.*get)()[0]->getId()), "m");
  EXPECT_EQ(utf8((wrapper.*get)()[1]->getFrom()), "b");
  const auto* element = parsed.document()->getElementById(u"m");
  EXPECT_EQ(element->getUserData(Mapping::elementName), (wrapper.*get)()[0]);

  Mapping* added = (wrapper.*add)();
  EXPECT_EQ(added->getImplementation(), parsed.root()->getLastChild());
  EXPECT_FALSE(added->getImplementation()->hasAttributes());
  EXPECT_EQ((wrapper.*remove)(), 3U);
  EXPECT_EQ(parsed.document()->getElementById(u"m"), element);
}

} // namespace

TEST(Mappings, AreLoadedBesideWhatTheBaseLoads) {
  const std::string others = "<scale/><bogus/><summaryStatistic/>";
  expectMappings(&OrbColor::addColorMapping, &OrbColor::getColorMappings, &OrbColor::removeColorMappings, others);
  expectMappings(&OrbColorComponent::addDoubleMapping, &OrbColorComponent::getDoubleMappings,
                 &OrbColorComponent::removeDoubleMappings, others);
  expectMappings(&OrbDash::addDashMapping, &OrbDash::getDashMappings, &OrbDash::removeDashMappings, others);
  expectMappings(&OrbPattern::addIntegerMapping, &OrbPattern::getIntegerMappings, &OrbPattern::removeIntegerMappings,
                 others);
  expectMappings(&OrbShape::addSymbolMapping, &OrbShape::getSymbolMappings, &OrbShape::removeSymbolMappings, others);
  expectMappings(&OrbSize::addLengthMapping, &OrbSize::getLengthMappings, &OrbSize::removeLengthMappings, others);
  expectMappings(&OrbTransparency::addDoubleMapping, &OrbTransparency::getDoubleMappings,
                 &OrbTransparency::removeDoubleMappings, others);
}

TEST(Mappings, OfFourAestheticsStandAlone) {
  expectMappings(&OrbFootnotes::addFootnoteMapping, &OrbFootnotes::getFootnoteMappings,
                 &OrbFootnotes::removeFootnoteMappings, "");
  expectMappings(&OrbImage::addStringMapping, &OrbImage::getStringMappings, &OrbImage::removeStringMappings, "");
  expectMappings(&OrbVisibility::addBooleanMapping, &OrbVisibility::getBooleanMappings,
                 &OrbVisibility::removeBooleanMappings, "");
  const Parsed parsed("<formatting><formatMapping><format/></formatMapping></formatting>");
  OrbFormatting formatting(parsed.root());
  ASSERT_EQ(formatting.getFormatMappings().size(), 1U);
  EXPECT_EQ(formatting.getFormatMappings()[0]->getFormats().size(), 1U);
  formatting.addFormatMapping();
  EXPECT_EQ(formatting.removeFormatMappings(), 2U);
}

TEST(Mappings, AreMadeWithTheirValueAloneOrWithBoth) {
  struct Mapping : CTAestheticMapping {
    explicit Mapping(xercesc::DOMElement* element) : CTAestheticMapping(element, u"a") {}
  };
  const auto made = [](const auto& make) {
    const NewDocument document(u"mapping");
    const auto mapping = make(document.root());
    return attributeOf(mapping, u"from") + "-" + attributeOf(mapping, u"to");
  };
  using Element = xercesc::DOMElement;
  EXPECT_EQ(made([](Element* element) { return OrbBooleanMapping(element, false); }), "-false");
  EXPECT_EQ(made([](Element* element) { return OrbColorMapping(element, u"red"); }), "-red");
  EXPECT_EQ(made([](Element* element) { return OrbDoubleMapping(element, 0.5); }), "-0.5");
  EXPECT_EQ(made([](Element* element) { return OrbLengthMapping(element, u"5px"); }), "-5px");
  EXPECT_EQ(made([](Element* element) { return OrbStringMapping(element, u"b"); }), "-b");
  EXPECT_EQ(made([](Element* element) { return OrbDashMapping(element, u"a", u"2,1"); }), "a-2,1");
  EXPECT_EQ(made([](Element* element) { return OrbIntegerMapping(element, u"a", 4'000'000'000U); }), "a-4000000000");
  EXPECT_EQ(made([](Element* element) { return OrbSymbolMapping(element, u"a", u"no symbol"); }), "a-no symbol");
  EXPECT_EQ(made([](Element* element) { return OrbFootnoteMapping(element, u"a", u"b"); }), "a-b");
  EXPECT_EQ(made([](Element* element) { return Mapping(element); }), "a-");
}

TEST(Mappings, OntoFormatsHoldNothingElse) {
  const Parsed parsed("<formatMapping to='x'><format/></formatMapping>");
  OrbFormatMapping mapping(parsed.root());
  mapping.addFormat()->setId(u"f");
  EXPECT_EQ(childrenOf(parsed.root()), "format format#f");
  EXPECT_EQ(mapping.removeFormats(), 2U);
  EXPECT_TRUE(mapping.doesIdExist(u"f"));
  EXPECT_TRUE(refuses<OrbFormatMapping>("<affix/>"));
}

TEST(TokenMapping, KeepsTheOrderOfAddition) {
  const Parsed parsed("<tokenMapping><format/><summaryStatistic/></tokenMapping>");
  OrbTokenMapping mapping(parsed.root());
  mapping.addSummaryStatistic()->setId(u"s");
  mapping.addFormat()->setId(u"f");
  mapping.addSummaryStatistic();
  EXPECT_EQ(childrenOf(parsed.root()), "format summaryStatistic summaryStatistic#s format#f summaryStatistic");
  EXPECT_EQ(mapping.removeSummaryStatistics(), 3U);
  EXPECT_EQ(mapping.removeFormats(), 2U);
  EXPECT_TRUE(mapping.doesIdExist(u"s"));
  EXPECT_TRUE(mapping.doesIdExist(u"f"));
  EXPECT_TRUE(refuses<OrbTokenMapping>("<scale/>"));
}

TEST(TokenMapping, LeadsToItsVariable) {
  EXPECT_EQ(test::variablesFound(u"variable", &OrbTokenMapping::getVariable, &OrbTokenMapping::setVariable),
            test::allVariables);

  const Parsed parsed("<r><sourceVariable id='v'/><tokenMapping/><tokenMapping><bogus/></tokenMapping></r>");
  const OrbSourceVariable variable(parsed.document()->getElementById(u"v"));
  auto* element = parsed.root()->getFirstElementChild()->getNextElementSibling();
  const OrbTokenMapping mapping(element, variable);
  EXPECT_EQ(mapping.getVariable(), &variable);
  EXPECT_EQ(element->getUserData(u"tokenMapping"), &mapping);
  auto* refused = element->getNextElementSibling();
  EXPECT_THROW(OrbTokenMapping(refused, variable), OrbException);
  EXPECT_EQ(utf8(refused->getAttribute(u"variable")), "v") << "written before the children are looked at";
  EXPECT_EQ(refused->getUserData(u"tokenMapping"), nullptr);
}

TEST(ValueMap, LeavesTheElementsOfWhatItRemoves) {
  const Parsed parsed("<derivedVariable><valueMapEntry to='1'/><bogus/><format/><valueMapEntry/></derivedVariable>");
  OrbDerivedVariable variable(parsed.root());
  EXPECT_EQ(variable.getFormats().size(), 1U);
  ASSERT_EQ(variable.getValueMapEntrys().size(), 2U);
  EXPECT_EQ(utf8(variable.getValueMapEntrys()[0]->getTo()), "1");
  EXPECT_EQ(variable.removeValueMapEntrys(), 0U);
  EXPECT_TRUE(variable.getValueMapEntrys().empty());
  EXPECT_EQ(parsed.root()->getFirstElementChild()->getUserData(u"valueMapEntry"), nullptr);

  OrbValueMapEntry* added = variable.addValueMapEntry();
  EXPECT_EQ(variable.getValueMapEntrys(), std::vector<OrbValueMapEntry*>{added});
  EXPECT_EQ(childrenOf(parsed.root()), "valueMapEntry bogus format valueMapEntry valueMapEntry");
  EXPECT_EQ(OrbDerivedVariable(parsed.root()).getValueMapEntrys().size(), 3U);
}

TEST(StyleCycle, KeepsItsCyclesBeforeItsExtensions) {
  const NewDocument document(u"styleCycle");
  OrbStyleCycle styles(document.root(), u"c");
  EXPECT_EQ(document.root()->getUserData(u"styleCycle"), &styles);
  EXPECT_EQ(document.document()->getElementById(u"c"), document.root());
  styles.addExtension();
  styles.addCycle();
  styles.addExtension();
  styles.addCycle();
  EXPECT_EQ(childrenOf(document.root()), "cycle cycle extension extension");
  const OrbStyleCycle again(document.root());
  EXPECT_EQ(again.getCycles().size() + again.getExtensions().size(), 4U);
  EXPECT_TRUE(refuses<OrbStyleCycle>("<style/>"));
  EXPECT_TRUE(refuses<OrbCycle>("<extension/>"));
}

TEST(StyleCycle, ForgetsTheIdsOfItsCyclesAndTheseOfTheirStyles) {
  const Parsed parsed("<styleCycle><cycle id='c1'><style id='s1'/></cycle><cycle id='c2'><style id='s2'/></cycle>"
                      "<extension id='e'/></styleCycle>");
  OrbStyleCycle styles(parsed.root());
  OrbCycle& cycle = *styles.getCycles().at(0);
  cycle.addStyle();
  EXPECT_EQ(childrenOf(cycle.getImplementation()), "style#s1 style");
  EXPECT_EQ(cycle.removeStyles(), 2U);
  EXPECT_FALSE(styles.doesIdExist(u"s1"));
  EXPECT_EQ(styles.removeCycles(), 2U);
  EXPECT_FALSE(styles.doesIdExist(u"c1"));
  EXPECT_FALSE(styles.doesIdExist(u"c2"));
  EXPECT_TRUE(styles.doesIdExist(u"s2")) << "an id deeper down";
  EXPECT_EQ(styles.removeExtensions(), 1U);
  EXPECT_TRUE(styles.doesIdExist(u"e"));
}

TEST(AestheticRange, IsAViewOfTheAestheticsElement) {
  const NewDocument document(u"size");
  OrbSize size(document.root());
  AGAestheticRangeLengths lengths = size.getAestheticRangeLengths();
  EXPECT_EQ(document.root()->getUserData(u"size"), &size);
  lengths.setHigh(1.5);
  EXPECT_EQ(utf8(size.getHigh()), "1.5");
  lengths.setLow(u"2in");
  EXPECT_EQ(utf8(size.getLow()), "2in");
  AGAestheticRangeLengths second(lengths);
  second.removeLow();
  EXPECT_EQ(utf8(lengths.getLow()), "");

  const NewDocument other(u"transparency");
  OrbTransparency transparency(other.root());
  transparency.getAestheticRangeZeroOne().setHigh(2.0);
  EXPECT_EQ(transparency.getHigh(), 2.0);
  AGAestheticRangeZeroOne numbers(transparency.getAestheticRangeZeroOne());
  numbers.setLow(-1.5);
  EXPECT_EQ(transparency.getLow(), -1.5);
  EXPECT_EQ(numbers.getHigh(), 2.0);
}
