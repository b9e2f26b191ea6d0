// Axes, ticks, grid lines and labels: numberings, where their children go, limits, ids and loading.
#include "dom.h"
#include "elements.h"
#include "keywords.h"
#include "orbalternatelabel.h"
#include "orbaxis.h"
#include "orbaxistransformparameter.h"
#include "orbconditionalstyle.h"
#include "orbdescriptiongroup.h"
#include "orbformat.h"
#include "orbgridline.h"
#include "orblabel.h"
#include "orblabels.h"
#include "orbline.h"
#include "orbmajorticks.h"
#include "orbminorticks.h"
#include "orbstyle.h"
#include "orbstylereference.h"
#include "orbtext.h"
#include "raised.h"

#include <gtest/gtest.h>

#include <functional>
#include <string>
#include <utility>
#include <vector>

using test::attributeOf;
using test::childrenOf;
using test::expectKeywords;
using test::messageOf;
using test::NewDocument;
using test::Parsed;
using test::refuses;
using test::utf8;

namespace {

/// The adds of an axis in the order of their elements.
const std::vector<std::pair<std::string, std::function<void(OrbAxis&)>>> axisAdds = {
    {"label", [](OrbAxis& axis) { axis.addLabel(); }},
    {"majorTicks", [](OrbAxis& axis) { axis.addMajorTicks(); }},
    {"minorTicks", [](OrbAxis& axis) { axis.addMinorTicks(); }},
    {"axisTransformParameter", [](OrbAxis& axis) { axis.addAxisTransformParameter(); }},
};

/// Whether the document forgets the id of a child when it is removed.
template <class Wrapper, class Base, class Child>
bool forgets(Child* (Base::*add)(), unsigned int (Base::*removeAll)()) {
  const NewDocument document(Wrapper::elementName);
  Wrapper wrapper(document.root());
  (wrapper.*add)()->addID(u"child");
  EXPECT_TRUE(wrapper.doesIdExist(u"child"));
  EXPECT_EQ((wrapper.*removeAll)(), 1U);
  return !wrapper.doesIdExist(u"child");
}

} // namespace

TEST(Axis, KeywordsAreNumberedFromZeroAndThoseOfALabelFromOne) {
  expectKeywords<OrbAxis>(u"transform", &OrbAxis::getTransform, &OrbAxis::setTransform, "linear percent",
                          {.first = 0, .fallback = 2});
  expectKeywords<OrbAxis>(u"repeat", &OrbAxis::getRepeat, &OrbAxis::setRepeat, "never always", {.first = 0});
  expectKeywords<OrbMajorTicks>(u"position", &OrbMajorTicks::getPosition, &OrbMajorTicks::setPosition,
                                "inside outside cross", {.first = 0});
  expectKeywords<OrbMinorTicks>(u"position", &OrbMinorTicks::getPosition, &OrbMinorTicks::setPosition,
                                "inside outside cross", {.first = 0});
  expectKeywords<OrbMajorTicks>(u"deltaUnit", &OrbMajorTicks::getDeltaUnit, &OrbMajorTicks::setDeltaUnit,
                                "second minute hour day week month year", {.first = 0});
  expectKeywords<OrbLabel>(u"purpose", &OrbLabel::getPurpose, &OrbLabel::setPurpose,
                           "title subTitle subSubTitle footnote subFootnote subSubFootnote layer auto");
}

TEST(Axis, KeepsItsChildrenInOrder) {
  for (std::size_t first = 0; first < axisAdds.size(); ++first) {
    for (std::size_t second = first + 1; second < axisAdds.size(); ++second) {
      for (const bool inOrder : {true, false}) {
        const NewDocument document(u"axis");
        OrbAxis axis(document.root());
        axisAdds[inOrder ? first : second].second(axis);
        axisAdds[inOrder ? second : first].second(axis);
        EXPECT_EQ(childrenOf(document.root()), axisAdds[first].first + " " + axisAdds[second].first);
      }
    }
  }
}

TEST(Axis, HasOneChildOfAKindButManyParameters) {
  const NewDocument document(u"axis");
  OrbAxis axis(document.root());
  for (const auto& [name, add] : axisAdds)
    add(axis);
  EXPECT_EQ(messageOf([&] { axis.addLabel(); }), "Can not add a Label to a Axis because 1 Label(s) already exist(s).");
  EXPECT_EQ(messageOf([&] { axis.addMajorTicks(); }),
            "Can not add a MajorTicks to a Axis because 1 MajorTicks(s) already exist(s).");
  EXPECT_EQ(messageOf([&] { axis.addMinorTicks(); }),
            "Can not add a MinorTicks to a Axis because 1 MinorTicks(s) already exist(s).");
  axis.addAxisTransformParameter();
  EXPECT_EQ(childrenOf(document.root()), "label majorTicks minorTicks axisTransformParameter axisTransformParameter");
}

TEST(Axis, LoadsChildrenInAnyOrderAndNumber) {
  const Parsed parsed("<axis><axisTransformParameter/><minorTicks><gridline/></minorTicks><label id='a'/><!-- c -->"
                      "<majorTicks/><label id='b'/></axis>");
  OrbAxis axis(parsed.root());
  EXPECT_EQ(parsed.root()->getUserData(u"axis"), &axis);
  EXPECT_EQ(axis.getAxisTransformParameters().size(), 1U);
  ASSERT_NE(axis.getMinorTicks(), nullptr);
  EXPECT_NE(axis.getMinorTicks()->getGridline(), nullptr);
  EXPECT_NE(axis.getMajorTicks(), nullptr);
  ASSERT_NE(axis.getLabel(), nullptr);
  EXPECT_EQ(attributeOf(*axis.getLabel(), u"id"), "a");
  EXPECT_EQ(messageOf([&] { axis.addLabel(); }), "Can not add a Label to a Axis because 2 Label(s) already exist(s).");
}

TEST(Axis, UnknownChildrenRaise) {
  EXPECT_TRUE(refuses<OrbAxis>("<axis/>"));
  EXPECT_TRUE(refuses<OrbMajorTicks>("<minorTicks/>"));
  EXPECT_TRUE(refuses<OrbMinorTicks>("<label/>"));
  EXPECT_TRUE(refuses<OrbGridline>("<style/>"));
  EXPECT_TRUE(refuses<OrbLabel>("<label/>"));
  EXPECT_TRUE(refuses<OrbAlternateLabel>("<label/>"));
  // These look at no child.
  EXPECT_FALSE(refuses<OrbAxisTransformParameter>("<bogus/>"));
  EXPECT_FALSE(refuses<OrbLabels>("<bogus/>"));
}

TEST(Axis, ARemoveTakesTheIdOfAGridLineAloneAway) {
  EXPECT_TRUE(forgets<OrbMajorTicks>(&OrbMajorTicks::addGridline, &OrbMajorTicks::removeGridlines));
  EXPECT_TRUE(forgets<OrbMinorTicks>(&OrbMinorTicks::addGridline, &OrbMinorTicks::removeGridlines));
  EXPECT_FALSE(forgets<OrbMajorTicks>(&OrbMajorTicks::addLabel, &OrbMajorTicks::removeLabels));
  EXPECT_FALSE(forgets<OrbMajorTicks>(&OrbMajorTicks::addFormat, &OrbMajorTicks::removeFormats));
  EXPECT_FALSE(forgets<OrbAxis>(&OrbAxis::addLabel, &OrbAxis::removeLabels));
  EXPECT_FALSE(forgets<OrbAxis>(&OrbAxis::addMajorTicks, &OrbAxis::removeMajorTickss));
  EXPECT_FALSE(forgets<OrbAxis>(&OrbAxis::addMinorTicks, &OrbAxis::removeMinorTickss));
  EXPECT_FALSE(forgets<OrbAxis>(&OrbAxis::addAxisTransformParameter, &OrbAxis::removeAxisTransformParameters));
  EXPECT_FALSE(forgets<OrbGridline>(&OrbGridline::addStyleReference, &OrbGridline::removeStyleReferences));
  EXPECT_FALSE(forgets<OrbLabel>(&OrbLabel::addText, &OrbLabel::removeTexts));
  EXPECT_FALSE(forgets<OrbLabel>(&OrbLabel::addAlternateLabel, &OrbLabel::removeAlternateLabels));
}

TEST(MajorTicks, HoldALabelOrAFormat) {
  const NewDocument document(u"majorTicks");
  OrbMajorTicks ticks(document.root());
  ticks.addFormat();
  EXPECT_EQ(messageOf([&] { ticks.addLabel(); }),
            "Can not add a Label to a MajorTicks because 1 Format(s) already exist(s).");
  EXPECT_EQ(messageOf([&] { ticks.addFormat(); }),
            "Can not add a Format to a MajorTicks because 1 Format(s) already exist(s).");
  EXPECT_EQ(childrenOf(document.root()), "format");
  ticks.removeFormats();
  ticks.addLabel();
  EXPECT_EQ(messageOf([&] { ticks.addLabel(); }),
            "Can not add a Label to a MajorTicks because 1 Label(s) already exist(s).");
  EXPECT_EQ(messageOf([&] { ticks.addFormat(); }),
            "Can not add a Format to a MajorTicks because 1 Label(s) already exist(s).");
  EXPECT_EQ(childrenOf(document.root()), "label");
}

TEST(MajorTicks, ALoadTakesALabelBesideFormats) {
  const Parsed parsed("<majorTicks><format/><format/><label/></majorTicks>");
  OrbMajorTicks ticks(parsed.root());
  EXPECT_EQ(ticks.getFormats().size(), 2U);
  EXPECT_EQ(ticks.getLabels().size(), 1U);
  // The labels are counted first.
  EXPECT_EQ(messageOf([&] { ticks.addFormat(); }),
            "Can not add a Format to a MajorTicks because 1 Label(s) already exist(s).");
  ticks.removeLabels();
  EXPECT_EQ(messageOf([&] { ticks.addLabel(); }),
            "Can not add a Label to a MajorTicks because 2 Format(s) already exist(s).");
}

TEST(MajorTicks, HaveTheirGridLineInFront) {
  const NewDocument document(u"majorTicks");
  OrbMajorTicks ticks(document.root());
  ticks.addLabel();
  ticks.addGridline();
  EXPECT_EQ(childrenOf(document.root()), "gridline label");
  EXPECT_EQ(messageOf([&] { ticks.addGridline(); }),
            "Can not add a Gridline to a MajorTicks because 1 Gridline(s) already exist(s).");
  ticks.removeLabels();
  ticks.addFormat();
  EXPECT_EQ(childrenOf(document.root()), "gridline format");
  ticks.removeGridlines();
  ticks.addGridline();
  EXPECT_EQ(childrenOf(document.root()), "gridline format");

  const NewDocument minorDocument(u"minorTicks");
  OrbMinorTicks minorTicks(minorDocument.root());
  minorTicks.addGridline();
  EXPECT_EQ(messageOf([&] { minorTicks.addGridline(); }),
            "Can not add a Gridline to a MinorTicks because 1 Gridline(s) already exist(s).");
}

TEST(MajorTicks, SomeAttributesAreWrittenInTwoForms) {
  const NewDocument document(u"majorTicks");
  OrbMajorTicks ticks(document.root());
  ticks.setDelta(4294967295U);
  EXPECT_EQ(attributeOf(ticks, u"delta"), "4294967295");
  EXPECT_EQ(ticks.getDelta(), 4294967295.0);
  ticks.setDelta(2.5);
  EXPECT_EQ(attributeOf(ticks, u"delta"), "2.5");
  EXPECT_EQ(ticks.getDelta(), 2.5);
  ticks.setBase(u"first");
  EXPECT_EQ(utf8(ticks.getBase()), "first");
  ticks.setBase(-0.5);
  EXPECT_EQ(utf8(ticks.getBase()), "-0.5");
  ticks.setLength(u"5%");
  EXPECT_EQ(utf8(ticks.getLength()), "5%");
  ticks.setLength(1.25);
  EXPECT_EQ(utf8(ticks.getLength()), "1.25");

  const NewDocument minorDocument(u"minorTicks");
  OrbMinorTicks minorTicks(minorDocument.root());
  minorTicks.setLength(1.25);
  minorTicks.setLength(u"5%");
  EXPECT_EQ(utf8(minorTicks.getLength()), "5%");
}

TEST(Gridline, HasOneConditionalStyleInFrontOfOneReference) {
  const Parsed parsed("<gridline><style id='red'/></gridline>");
  auto* styleElement = parsed.root()->getFirstElementChild();
  const OrbStyle style(styleElement);
  parsed.root()->removeChild(styleElement);
  OrbGridline gridline(parsed.root());
  gridline.addStyleReference();
  OrbConditionalStyle* conditionalStyle = gridline.addConditionalStyle(u"x > 0", style);
  EXPECT_EQ(attributeOf(*conditionalStyle, u"when"), "x > 0");
  EXPECT_EQ(attributeOf(*conditionalStyle, u"style"), "red");
  EXPECT_EQ(messageOf([&] { gridline.addConditionalStyle(u"x > 0", style); }),
            "Can not add a ConditionalStyle to a Gridline because 1 ConditionalStyle(s) already exist(s).");
  EXPECT_EQ(messageOf([&] { gridline.addStyleReference(); }),
            "Can not add a StyleReference to a Gridline because 1 StyleReference(s) already exist(s).");
  EXPECT_EQ(childrenOf(parsed.root()), "conditionalStyle styleReference");

  conditionalStyle->addID(u"c");
  EXPECT_EQ(gridline.removeConditionalStyles(), 1U);
  EXPECT_TRUE(gridline.doesIdExist(u"c"));

  const Parsed loaded("<gridline><styleReference/><conditionalStyle/></gridline>");
  const OrbGridline reloaded(loaded.root());
  EXPECT_NE(reloaded.getConditionalStyle(), nullptr);
  EXPECT_NE(reloaded.getStyleReference(), nullptr);
}

TEST(Label, ADescriptionGroupAloneGoesInFrontOfTheAlternates) {
  const NewDocument document(u"label");
  OrbLabel label(document.root());
  OrbLine line(document.document()->createElement(u"line"));
  line.setId(u"l");
  label.addAlternateLabel();
  label.addText();
  OrbDescriptionGroup* group = label.addDescriptionGroup(line);
  EXPECT_EQ(attributeOf(*group, u"target"), "l");
  EXPECT_EQ(childrenOf(document.root()), "descriptionGroup alternateLabel text");
  label.removeAlternateLabels();
  label.addDescriptionGroup(line);
  label.addAlternateLabel();
  EXPECT_EQ(childrenOf(document.root()), "descriptionGroup text descriptionGroup alternateLabel");

  group->addID(u"g");
  EXPECT_EQ(label.removeDescriptionGroups(), 2U);
  EXPECT_TRUE(label.doesIdExist(u"g"));
}

TEST(Label, LoadsAlternatesOfAlternates) {
  const Parsed parsed("<label><alternateLabel><text/><alternateLabel><descriptionGroup/><text/><text/>"
                      "</alternateLabel></alternateLabel></label>");
  const OrbLabel label(parsed.root());
  EXPECT_EQ(parsed.root()->getUserData(u"label"), &label);
  ASSERT_EQ(label.getAlternateLabels().size(), 1U);
  const OrbAlternateLabel* outer = label.getAlternateLabels()[0];
  EXPECT_EQ(parsed.root()->getFirstElementChild()->getUserData(u"alternateLabel"), outer);
  EXPECT_EQ(outer->getTexts().size(), 1U);
  ASSERT_EQ(outer->getAlternateLabels().size(), 1U);
  EXPECT_EQ(outer->getAlternateLabels()[0]->getTexts().size(), 2U);
  EXPECT_EQ(outer->getAlternateLabels()[0]->getDescriptionGroups().size(), 1U);
}

TEST(Labels, HoldOneText) {
  const Parsed parsed("<labels>a<!-- c -->b</labels>");
  OrbLabels labels(parsed.root());
  EXPECT_EQ(parsed.root()->getUserData(u"labels"), &labels);
  EXPECT_EQ(labels.getText().toUTF8(), "a") << "the first text alone is read";
  labels.addText(u"1;2");
  labels.addText(u"3;4");
  EXPECT_EQ(labels.getText().toUTF8(), "3;4");
  EXPECT_EQ(childrenOf(parsed.root()), "! \"");
  parsed.root()->appendChild(parsed.document()->createTextNode(u"5"));
  labels.removeText();
  EXPECT_EQ(labels.getText().toUTF8(), "5") << "of two neighbours the second stays";
  labels.removeText();
  EXPECT_TRUE(labels.getText().empty());
}
