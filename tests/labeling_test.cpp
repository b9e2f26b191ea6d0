// Labelings: what hides the operations of the base, the places and limits of the children, and their two wrappers.
#include "dom.h"
#include "keywords.h"
#include "orbcategoricaldomain.h"
#include "orbcolor.h"
#include "orbcolorcomponent.h"
#include "orbexpressionvariable.h"
#include "orbfootnotes.h"
#include "orbformat.h"
#include "orbformatting.h"
#include "orbintervaldomain.h"
#include "orblabeling.h"
#include "orblabellocation.h"
#include "orbrotation.h"
#include "orbscale.h"
#include "orbsize.h"
#include "orbstyleby.h"
#include "orbsummarystatistic.h"
#include "orbtransparency.h"
#include "orbvisibility.h"
#include "raised.h"
#include "variables.h"

#include <gtest/gtest.h>

#include <sstream>
#include <string>

using test::childrenOf;
using test::messageOf;
using test::NewDocument;
using test::Parsed;
using test::refuses;
using test::utf8;

namespace {

/// The children of a labeling that has one child after an add.
template <class Child> std::string addedTo(const std::string& child, Child* (OrbLabeling::*add)()) {
  const Parsed parsed("<labeling><" + child + "/></labeling>");
  OrbLabeling labeling(parsed.root());
  (labeling.*add)();
  return childrenOf(parsed.root());
}

} // namespace

TEST(Labeling, NumbersThePartsOfASchemaFromOne) {
  test::expectKeywords<OrbLabeling>(u"part", &OrbLabeling::getPart, &OrbLabeling::setPart, "median outlier extreme");
}

TEST(Labeling, FindsFewerVariablesThanItsBase) {
  EXPECT_EQ(test::variablesFound(u"variable", &OrbLabeling::getVariable, &OrbLabeling::setVariable),
            "sourceVariable derivedVariable");
  const Parsed parsed("<root><labeling variable='e'/><expressionVariable id='e'/></root>");
  const OrbExpressionVariable expression(parsed.document()->getElementById(u"e"));
  const OrbLabeling labeling(parsed.root()->getFirstElementChild());
  const CTAesthetic& base = labeling;
  EXPECT_EQ(base.getVariable(), &expression);
}

TEST(Labeling, TriesTheDomainsInTheReverseOrderOfItsBase) {
  const Parsed parsed("<root><labeling/><shared id='s'/></root>");
  auto* shared = parsed.document()->getElementById(u"s");
  OrbLabeling labeling(parsed.root()->getFirstElementChild());
  const CTAesthetic& base = labeling;
  const OrbIntervalDomain interval(shared);
  labeling.setDomain(interval);
  EXPECT_EQ(labeling.getDomain(), &interval);
  // Wrappers of two classes over one element show which is asked for first.
  const OrbCategoricalDomain categorical(shared);
  EXPECT_EQ(labeling.getDomain(), &categorical);
  EXPECT_EQ(base.getDomain(), &interval);
}

TEST(Labeling, PutsItsSingleChildrenBeforeAllOthers) {
  std::istringstream others(
      "visibility styleBy size color colorComponent transparency rotation labelLocation footnotes formatting");
  for (std::string other; others >> other;) {
    EXPECT_EQ(addedTo(other, &OrbLabeling::addScale), "scale " + other);
    EXPECT_EQ(addedTo(other, &OrbLabeling::addSummaryStatistic), "summaryStatistic " + other);
    EXPECT_EQ(addedTo(other, &OrbLabeling::addFormat), "format " + other);
  }
  EXPECT_EQ(addedTo("summaryStatistic", &OrbLabeling::addScale), "scale summaryStatistic");
  EXPECT_EQ(addedTo("format", &OrbLabeling::addScale), "scale format");
  EXPECT_EQ(addedTo("format", &OrbLabeling::addSummaryStatistic), "summaryStatistic format");
  EXPECT_EQ(addedTo("scale", &OrbLabeling::addFormat), "scale format");
}

TEST(Labeling, KeepsTheOthersInTheOrderOfTheAdds) {
  const NewDocument document(u"labeling");
  OrbLabeling labeling(document.root());
  EXPECT_EQ(document.root()->getUserData(u"labeling"), &labeling);
  labeling.addFormatting();
  labeling.addFootnotes();
  labeling.addLabelLocation();
  labeling.addRotation();
  labeling.addTransparency();
  labeling.addColorComponent();
  labeling.addColor();
  labeling.addSize();
  labeling.addStyleBy();
  labeling.addVisibility();
  labeling.addFormatting();
  labeling.addColor()->setId(u"c");
  EXPECT_EQ(childrenOf(document.root()), "formatting footnotes labelLocation rotation transparency colorComponent "
                                         "color size styleBy visibility formatting color#c");

  OrbLabeling again(document.root());
  EXPECT_EQ(again.getFootnotess().size() + again.getLabelLocations().size() + again.getRotations().size() +
                again.getTransparencys().size() + again.getColorComponents().size() + again.getSizes().size() +
                again.getStyleBys().size() + again.getVisibilitys().size(),
            8U);
  EXPECT_EQ(again.getFormattings().size(), 2U);
  EXPECT_EQ(again.removeColors(), 2U);
  EXPECT_TRUE(again.doesIdExist(u"c"));
}

TEST(Labeling, HoldsOneScaleOneSummaryStatisticAndOneFormat) {
  const Parsed parsed("<labeling><format/><format/></labeling>");
  OrbLabeling labeling(parsed.root());
  EXPECT_EQ(labeling.getFormats().size(), 2U);
  labeling.throwIfNotAlone("Thing");
  EXPECT_FALSE(labeling.addScale()->getImplementation()->hasAttributes());
  labeling.addSummaryStatistic();
  EXPECT_EQ(messageOf([&] { labeling.addScale(); }),
            "Can not add a Scale to a Labeling because 1 Scale(s) already exist(s).");
  EXPECT_EQ(messageOf([&] { labeling.addSummaryStatistic(); }),
            "Can not add a SummaryStatistic to a Labeling because 1 SummaryStatistic(s) already exist(s).");
  EXPECT_EQ(messageOf([&] { labeling.addFormat(); }),
            "Can not add a Format to a Labeling because 2 Format(s) already exist(s).");
  labeling.removeFormats();
  labeling.addFormat();
  EXPECT_EQ(messageOf([&] { labeling.addFormat(); }),
            "Can not add a Format to a Labeling because 1 Format(s) already exist(s).");
  EXPECT_EQ(messageOf([&] { labeling.throwIfNotAlone("Thing"); }),
            "Can not add a SummaryStatistic to a Labeling because 1 Thing(s) already exist(s).");
  EXPECT_EQ(childrenOf(parsed.root()), "scale summaryStatistic format");
}

TEST(Labeling, HasTwoWrappersOfItsLoadedScales) {
  const Parsed parsed("<labeling><color/><scale id='s'/><summaryStatistic/><scale/></labeling>");
  OrbLabeling labeling(parsed.root());
  const CTAesthetic& base = labeling;
  auto* element = parsed.document()->getElementById(u"s");
  ASSERT_NE(labeling.getScale(), nullptr);
  ASSERT_NE(base.getScale(), nullptr);
  EXPECT_NE(labeling.getScale(), base.getScale());
  EXPECT_EQ(labeling.getScale()->getImplementation(), element);
  EXPECT_EQ(base.getScale()->getImplementation(), element);
  EXPECT_EQ(element->getUserData(u"scale"), labeling.getScale());
  EXPECT_NE(labeling.getSummaryStatistic(), base.getSummaryStatistic());
  EXPECT_EQ(parsed.root()->getUserData(u"labeling"), &labeling);

  EXPECT_EQ(labeling.removeScales(), 2U);
  EXPECT_EQ(labeling.getScale(), nullptr);
  EXPECT_EQ(base.getScale()->getImplementation(), element) << "it stays as it was loaded";
  EXPECT_EQ(element->getParentNode(), nullptr);
  EXPECT_EQ(childrenOf(parsed.root()), "color summaryStatistic");
}

TEST(Labeling, HidesWhatIsAddedToItFromItsBase) {
  const NewDocument document(u"labeling");
  OrbLabeling labeling(document.root());
  CTAesthetic& base = labeling;
  labeling.addScale();
  EXPECT_EQ(base.getScale(), nullptr);
  base.addSummaryStatistic();
  EXPECT_EQ(labeling.getSummaryStatistic(), nullptr);
  labeling.addSummaryStatistic();
  EXPECT_EQ(messageOf([&] { base.addSummaryStatistic(); }),
            "Can not add a SummaryStatistic to a statistic because 1 SummaryStatistic(s) already exist(s).");
}

TEST(Labeling, LeavesNothingOfALoadThatFails) {
  const Parsed parsed("<labeling><scale/><visibility/><bogus/></labeling>");
  const std::string message = messageOf([&] { const OrbLabeling labeling(parsed.root()); });
  EXPECT_EQ(message.find("Element labeling found unknown child bogus("), 0U) << message;
  EXPECT_EQ(parsed.root()->getUserData(u"labeling"), nullptr);
  EXPECT_EQ(parsed.root()->getFirstElementChild()->getUserData(u"scale"), nullptr);
  EXPECT_EQ(childrenOf(parsed.root()), "scale visibility bogus");
  EXPECT_TRUE(refuses<OrbLabeling>("<dash/>"));
}
