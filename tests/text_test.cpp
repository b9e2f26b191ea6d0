// Texts, affixes, paragraphs and descriptions: how texts are read and replaced, numberings, ids and targets.
#include "chartstring.h"
#include "dom.h"
#include "elements.h"
#include "keywords.h"
#include "orbaffix.h"
#include "orbarea.h"
#include "orbdescription.h"
#include "orbdescription2.h"
#include "orbdescriptiongroup.h"
#include "orbedge.h"
#include "orbformat.h"
#include "orbinterval.h"
#include "orbline.h"
#include "orbparagraph.h"
#include "orbpath.h"
#include "orbpoint.h"
#include "orbpolygon.h"
#include "orbschema.h"
#include "orbtext.h"
#include "orbvaluedescription.h"
#include "raised.h"

#include <gtest/gtest.h>

#include <string>

using test::attributeOf;
using test::childrenOf;
using test::expectKeywords;
using test::messageOf;
using test::NewDocument;
using test::Parsed;
using test::refuses;
using test::utf8;

namespace {

template <class Wrapper> void expectJoinedText() {
  const std::string name = utf8(Wrapper::elementName);
  SCOPED_TRACE(name);
  const Parsed parsed("<" + name + ">a<!-- c -->b<element>d</element><![CDATA[e]]>f</" + name + ">");
  Wrapper wrapper(parsed.root());
  EXPECT_EQ(parsed.root()->getUserData(Wrapper::elementName), &wrapper);
  EXPECT_EQ(wrapper.getText().toUTF8(), "abf");
  EXPECT_EQ(wrapper.getText().toUTF8ForEng(), "aabf") << "the English form has the first text twice";
  wrapper.setText(u"1");
  wrapper.setText(u"2");
  EXPECT_EQ(wrapper.getText().toUTF8(), "2");
  EXPECT_EQ(childrenOf(parsed.root()), "! element \" \"") << "what is no text node stays";
  parsed.root()->appendChild(parsed.document()->createTextNode(u"3"));
  wrapper.setText(u"4");
  EXPECT_EQ(wrapper.getText().toUTF8(), "34") << "of two neighbours the second stays";

  const NewDocument document(Wrapper::elementName);
  Wrapper empty(document.root());
  EXPECT_EQ(empty.getText().xc_str(), nullptr);
  empty.setText(nullptr);
  EXPECT_EQ(childrenOf(document.root()), "\"");
  EXPECT_EQ(empty.getText().xc_str(), nullptr);
}

} // namespace

TEST(Text, IsAllTextNodesTogether) {
  const test::Platform platform;
  expectJoinedText<OrbText>();
  expectJoinedText<OrbDescription2>();
}

TEST(Text, KeywordsAreNumberedFromOne) {
  const std::string positions = "superscript subscript normal";
  expectKeywords<OrbText>(u"position", &OrbText::getPosition, &OrbText::setPosition, positions);
  expectKeywords<OrbAffix>(u"position", &OrbAffix::getPosition, &OrbAffix::setPosition, positions);
  expectKeywords<OrbDescription>(u"name", &OrbDescription::getName, &OrbDescription::setName,
                                 "name label variable value mean count stdev max min median filterVariable "
                                 "filterDomain size rsquared");
}

TEST(Text, AnIndentWithItsUnitReadsAsZero) {
  const NewDocument document(u"paragraph");
  OrbParagraph paragraph(document.root());
  paragraph.setHangingIndentPixels(4294967295U);
  EXPECT_EQ(attributeOf(paragraph, u"hangingIndent"), "4294967295px");
  paragraph.setHangingIndentPixels(10);
  EXPECT_EQ(attributeOf(paragraph, u"hangingIndent"), "10px");
  EXPECT_EQ(paragraph.getHangingIndent(), 0);
  paragraph.setHangingIndent(u"10");
  EXPECT_EQ(paragraph.getHangingIndent(), 10);
}

TEST(Text, ConstructorsWriteWhatTheyAreGiven) {
  const NewDocument document(u"affix");
  const OrbAffix affix(document.root(), u"$");
  EXPECT_EQ(utf8(affix.getValue()), "$");
  EXPECT_EQ(document.root()->getUserData(u"affix"), &affix);
  const NewDocument other(u"description");
  const OrbDescription description(other.root(), OrbDescription::name_mean);
  EXPECT_EQ(description.getName(), OrbDescription::name_mean);
}

TEST(Description, HasOneFormatAndNoOtherChild) {
  const Parsed parsed("<description><format/></description>");
  OrbDescription description(parsed.root());
  EXPECT_EQ(parsed.root()->getUserData(u"description"), &description);
  ASSERT_EQ(description.getFormats().size(), 1U);
  EXPECT_EQ(messageOf([&] { description.addFormat(); }),
            "Can not add a Format to a Description because 1 Format(s) already exist(s).");
  description.getFormats()[0]->addID(u"f");
  EXPECT_EQ(description.removeFormats(), 1U);
  EXPECT_TRUE(description.doesIdExist(u"f"));
  description.addFormat();
  EXPECT_EQ(childrenOf(parsed.root()), "format");
  EXPECT_TRUE(refuses<OrbDescription>("<text/>"));
}

TEST(Description, OfValuesIsAText) {
  const Parsed parsed("<valueDescription><description>a<format/></description><value/></valueDescription>");
  OrbValueDescription group(parsed.root());
  ASSERT_EQ(group.getDescriptions().size(), 1U);
  EXPECT_EQ(group.getDescriptions()[0]->getText().toUTF8(), "a");
  EXPECT_EQ(group.getValues().size(), 1U);
  OrbDescription2* added = group.addDescription();
  added->addID(u"d");
  group.addValue();
  EXPECT_EQ(childrenOf(parsed.root()), "description value description#d value");
  EXPECT_EQ(group.removeDescriptions(), 2U);
  EXPECT_TRUE(group.doesIdExist(u"d"));
  EXPECT_TRUE(refuses<OrbValueDescription>("<text/>"));
  EXPECT_FALSE(refuses<OrbText>("<bogus/>"));
}

TEST(DescriptionGroup, ItsIdIsNotRegistered) {
  const NewDocument document(u"descriptionGroup");
  OrbDescriptionGroup group(document.root());
  group.setId(u"g");
  EXPECT_EQ(utf8(group.getId()), "g");
  EXPECT_FALSE(group.doesIdExist(u"g"));
  group.setId(u"");
  EXPECT_EQ(utf8(group.getId()), "g") << "an empty id does not take the old one away";
}

TEST(DescriptionGroup, FindsTargetsOfSevenClassesInOrder) {
  const Parsed parsed("<root><shared id='s'/><edge id='e'/><text id='t'/><descriptionGroup/></root>");
  auto* shared = parsed.root()->getFirstElementChild();
  auto* edgeElement = shared->getNextElementSibling();
  auto* textElement = edgeElement->getNextElementSibling();
  OrbDescriptionGroup group(textElement->getNextElementSibling());
  EXPECT_EQ(group.getTarget(), nullptr);
  // Wrappers of several classes over one element show which is asked for first.
  const OrbPath path(shared);
  group.setTarget(path);
  EXPECT_EQ(group.getTarget(), &path);
  const OrbSchema schema(shared);
  EXPECT_EQ(group.getTarget(), &schema);
  const OrbArea area(shared);
  EXPECT_EQ(group.getTarget(), &area);
  const OrbPolygon polygon(shared);
  EXPECT_EQ(group.getTarget(), &polygon);
  const OrbInterval interval(shared);
  EXPECT_EQ(group.getTarget(), &interval);
  const OrbPoint point(shared);
  EXPECT_EQ(group.getTarget(), &point);
  const OrbLine line(shared);
  EXPECT_EQ(group.getTarget(), &line);

  const OrbEdge edge(edgeElement);
  group.setTarget(edge);
  EXPECT_EQ(attributeOf(group, u"target"), "e");
  EXPECT_EQ(group.getTarget(), nullptr) << "no edge is found";
  const OrbText text(textElement);
  group.setTarget(text);
  EXPECT_EQ(attributeOf(group, u"target"), "t") << "any element is written";
  EXPECT_EQ(group.getTarget(), nullptr);
}

TEST(DescriptionGroup, KeepsTheOrderOfAddition) {
  const Parsed parsed("<descriptionGroup><text/>, <description name='max'/></descriptionGroup>");
  OrbDescriptionGroup group(parsed.root());
  EXPECT_EQ(group.getTexts().size(), 1U);
  ASSERT_EQ(group.getDescriptions().size(), 1U);
  EXPECT_EQ(group.getDescriptions()[0]->getName(), OrbDescription::name_max);
  OrbText* text = group.addText();
  text->setId(u"t");
  OrbDescription* description = group.addDescription(OrbDescription::name_rsquared);
  EXPECT_EQ(description->getName(), OrbDescription::name_rsquared);
  description->setId(u"d");
  group.addText();
  EXPECT_EQ(childrenOf(parsed.root()), "text \" description text#t description#d text");

  EXPECT_EQ(group.removeTexts(), 3U);
  EXPECT_EQ(group.removeDescriptions(), 2U);
  EXPECT_FALSE(group.doesIdExist(u"t"));
  EXPECT_FALSE(group.doesIdExist(u"d"));
  EXPECT_TRUE(refuses<OrbDescriptionGroup>("<format/>"));
}
