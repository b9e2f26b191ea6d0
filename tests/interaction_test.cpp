// The elements of interaction: which targets and sources their references find, numberings, and what they load.
#include "ctframe.h"
#include "dom.h"
#include "keywords.h"
#include "orbanimation.h"
#include "orbarea.h"
#include "orbbrushing.h"
#include "orbcolor.h"
#include "orbcolorcomponent.h"
#include "orbdash.h"
#include "orbdatabasesource.h"
#include "orbdelimitedfilesource.h"
#include "orbdragelement.h"
#include "orbdrilldown.h"
#include "orbedge.h"
#include "orbembeddedsource.h"
#include "orbfaceting.h"
#include "orbimage.h"
#include "orbinterval.h"
#include "orblabel.h"
#include "orblabeling.h"
#include "orblayercontroller.h"
#include "orbline.h"
#include "orblineguidecontroller.h"
#include "orboffset.h"
#include "orbpath.h"
#include "orbpattern.h"
#include "orbpivotcontroller.h"
#include "orbpoint.h"
#include "orbpolygon.h"
#include "orbpopup.h"
#include "orbrectangleguidecontroller.h"
#include "orbreshapesource.h"
#include "orbrotation.h"
#include "orbsavfilesource.h"
#include "orbschema.h"
#include "orbshape.h"
#include "orbsize.h"
#include "orbsourcevariable.h"
#include "orbsplit.h"
#include "orbstreamingsource.h"
#include "orbstyleby.h"
#include "orbswingcontroller.h"
#include "orbtokenmapping.h"
#include "orbtransparency.h"
#include "orbusersource.h"
#include "orbvariablereference.h"
#include "orbvisibility.h"
#include "raised.h"

#include <gtest/gtest.h>

#include <memory>

using test::childrenOf;
using test::expectKeywords;
using test::messageOf;
using test::NewDocument;
using test::Parsed;
using test::refuses;
using test::utf8;
using xercesc::DOMElement;

namespace {

/// A document with elements that references lead to.
class Interaction : public testing::Test {
protected:
  DOMElement* element(const XMLCh* name, const XMLCh* id = nullptr) {
    DOMElement* made = document.document()->createElement(name);
    document.root()->appendChild(made);
    OrbBaseElement(made).addID(id);
    return made;
  }
  template <class Wrapper> std::unique_ptr<Wrapper> make() {
    return std::make_unique<Wrapper>(element(Wrapper::elementName));
  }

  /// Wraps one element in several classes, from the last one on: at each step the getter finds the newest, which comes
  /// before all that were there.
  template <class... Classes, class Get> void expectOrder(DOMElement* shared, Get get) {
    (expectFirst<Classes>(shared, get), ...);
  }
  template <class Wrapper, class Get> void expectFirst(DOMElement* shared, Get get) {
    auto wrapper = std::make_shared<Wrapper>(shared);
    EXPECT_EQ(get(), wrapper.get()) << utf8(Wrapper::elementName);
    wrappers.push_back(wrapper);
  }

  template <class Wrapper> void expectLeaf() {
    DOMElement* parent = element(Wrapper::elementName);
    parent->appendChild(document.document()->createElement(u"bogus"));
    const Wrapper wrapper(parent);
    EXPECT_EQ(parent->getUserData(Wrapper::elementName), &wrapper) << utf8(Wrapper::elementName);
  }

  const NewDocument document{u"root"};
  std::vector<std::shared_ptr<OrbBaseElement>> wrappers;
};

} // namespace

TEST_F(Interaction, TargetsAreTriedInOrderAndEdgesNever) {
  const auto brushing = make<OrbBrushing>();
  const OrbEdge edge(element(u"edge", u"e"));
  OrbDragElement drag(element(u"dragElement"), edge);
  brushing->setTarget(edge);
  EXPECT_EQ(brushing->getTarget(), nullptr);
  EXPECT_EQ(drag.getTarget(), nullptr);
  EXPECT_TRUE(brushing->isTargetPresent() && drag.isTargetPresent());
  EXPECT_EQ(drag.getElementById(drag.GetAttribute(u"target")), edge.getImplementation());

  const OrbArea area(element(u"area", u"a"));
  drag.setTarget(area);
  EXPECT_EQ(drag.getTarget(), &area);
  brushing->SetAttribute(u"target", u"shared");
  expectOrder<OrbPath, OrbSchema, OrbArea, OrbPolygon, OrbInterval, OrbPoint, OrbLine>(
      element(u"shared", u"shared"), [&] { return brushing->getTarget(); });
}

TEST_F(Interaction, SourcesAreTriedInAnOrderThatDiffers) {
  const auto brushing = make<OrbBrushing>();
  brushing->SetAttribute(u"source", u"1");
  expectOrder<OrbSavFileSource, OrbReshapeSource, OrbDatabaseSource, OrbStreamingSource, OrbDelimitedFileSource,
              OrbEmbeddedSource, OrbUserSource>(element(u"shared", u"1"), [&] { return brushing->getSource(); });

  const auto controller = make<OrbLayerController>();
  controller->SetAttribute(u"source", u"2");
  DOMElement* shared = element(u"shared", u"2");
  const OrbStreamingSource streaming(shared);
  EXPECT_EQ(controller->getSource(), nullptr);
  expectOrder<OrbSavFileSource, OrbReshapeSource, OrbDatabaseSource, OrbDelimitedFileSource, OrbUserSource,
              OrbEmbeddedSource>(shared, [&] { return controller->getSource(); });
}

TEST_F(Interaction, ALayerControllerTellsItsTargetsApart) {
  const auto controller = make<OrbLayerController>();
  const OrbFaceting faceting(element(u"faceting", u"f"));
  const OrbLabel label(element(u"label", u"l"));
  controller->setTarget(faceting);
  EXPECT_EQ(controller->getFacetingTarget(), &faceting);
  EXPECT_EQ(controller->getLabelTarget(), nullptr);
  controller->setTarget(label);
  EXPECT_EQ(controller->getFacetingTarget(), nullptr);
  EXPECT_EQ(controller->getLabelTarget(), &label);
}

TEST_F(Interaction, AnAnimationNeitherWritesNorFindsWhatItIsAbout) {
  OrbDragElement other(element(u"dragElement", u"d"));
  OrbAnimation animation(element(u"animation"), other, u"years");
  EXPECT_EQ(animation.getImplementation()->getAttributes()->getLength(), 1U);
  EXPECT_EQ(utf8(animation.getName()), "years");
  animation.setTarget(other);
  animation.setSource(other);
  EXPECT_FALSE(animation.isTargetPresent() || animation.isSourcePresent());

  // As a parsed document has them.
  animation.SetAttribute(u"target", u"d");
  animation.SetAttribute(u"source", u"d");
  EXPECT_EQ(animation.getTarget(), nullptr);
  EXPECT_EQ(animation.getSource(), nullptr);
  EXPECT_TRUE(animation.isTargetPresent() && animation.isSourcePresent());
  animation.removeTarget();
  EXPECT_FALSE(animation.isTargetPresent());
  EXPECT_TRUE(animation.isSourcePresent());
}

TEST_F(Interaction, ASwingControllerWritesItsTargetAndNeverFindsIt) {
  const auto controller = make<OrbSwingController>();
  const CTFrame frame(element(u"frame", u"f"));
  controller->setTarget(frame);
  EXPECT_EQ(utf8(controller->GetAttribute(u"target")), "f");
  EXPECT_EQ(controller->getTarget(), nullptr);
  controller->setTarget(u"any text");
  EXPECT_EQ(utf8(controller->GetAttribute(u"target")), "any text");
  EXPECT_EQ(controller->getTarget(), nullptr);
  EXPECT_TRUE(controller->isTargetPresent());
}

/// The target of a drill-down or a popup is asked for only to see whether it exists.
template <class Wrapper> void expectTestsItsTarget(Wrapper& wrapper, DOMElement* existing, DOMElement* nameless) {
  const auto message = [&] { return messageOf([&] { EXPECT_EQ(wrapper.getTarget(), nullptr); }); };
  SCOPED_TRACE(utf8(Wrapper::elementName));
  EXPECT_EQ(message(), "Attribute Target refers to , but that element does not exist.");
  wrapper.setTarget(OrbBaseElement(existing));
  EXPECT_EQ(message(), "nothing raised");
  wrapper.setTarget(OrbBaseElement(nameless));
  EXPECT_EQ(utf8(wrapper.GetAttribute(u"target")), "e") << "an element without an id writes nothing";
  OrbBaseElement(existing).SetAttribute(u"id", u"other");
  EXPECT_EQ(message(), "Attribute Target refers to e, but that element does not exist.");
  OrbBaseElement(existing).addID(u"e");
}

TEST_F(Interaction, DrillDownsAndPopupsTestTheirTargets) {
  DOMElement* existing = element(u"anything", u"e");
  DOMElement* nameless = element(u"anything");
  expectTestsItsTarget(*make<OrbDrillDown>(), existing, nameless);
  expectTestsItsTarget(*make<OrbPopup>(), existing, nameless);
}

TEST_F(Interaction, DrillDownsReferToVariablesAndPopupsMapTokens) {
  const OrbSourceVariable variable(element(u"sourceVariable", u"v"));
  OrbDrillDown drillDown(element(u"drillDown"), u"d");
  EXPECT_EQ(drillDown.getElementById(u"d"), drillDown.getImplementation());
  EXPECT_EQ(drillDown.addVariableReference(variable)->getRef(), &variable);
  drillDown.addVariableReference(variable);
  EXPECT_EQ(childrenOf(drillDown.getImplementation()), "variableReference variableReference");
  EXPECT_EQ(drillDown.removeVariableReferences(), 2U);
  EXPECT_TRUE(refuses<OrbDrillDown>("<tokenMapping/>"));

  const auto popup = make<OrbPopup>();
  popup->addTokenMapping();
  EXPECT_EQ(childrenOf(popup->getImplementation()), "tokenMapping");
  EXPECT_EQ(popup->removeTokenMappings(), 1U);
  EXPECT_TRUE(refuses<OrbPopup>("<variableReference/>"));

  // The id is there before the children are looked at.
  const Parsed parsed("<drillDown><bogus/></drillDown>");
  EXPECT_EQ(messageOf([&] { const OrbDrillDown refused(parsed.root(), u"early"); }),
            "Element drillDown found unknown child bogus(<drillDown id=\"early\"><bogus/></drillDown>\n)");
  EXPECT_EQ(parsed.root()->getUserData(u"drillDown"), nullptr);
}

TEST_F(Interaction, ABrushingHoldsAestheticsInTheOrderOfTheirAdds) {
  const auto brushing = make<OrbBrushing>();
  OrbBrushing& b = *brushing;
  b.addImage();
  b.addTransparency();
  b.addStyleBy();
  b.addSplit();
  b.addSize();
  b.addShape();
  b.addRotation();
  b.addPattern();
  b.addOffset();
  b.addLabeling();
  b.addDash();
  b.addColor();
  b.addColorComponent();
  b.addVisibility();
  EXPECT_EQ(childrenOf(b.getImplementation()), "image transparency styleBy split size shape rotation pattern offset "
                                               "labeling dash color colorComponent visibility");
  const auto& before = b.getLabelings();
  b.addLabeling();
  EXPECT_EQ(before.size(), 1U) << "a copy";
  b.addImage()->getImplementation()->setAttribute(u"id", u"i");
  b.getImages().at(1)->getImplementation()->setIdAttribute(u"id", true);

  const OrbBrushing loaded(b.getImplementation());
  EXPECT_EQ(loaded.getLabelings().size() + loaded.getImages().size(), 4U);
  EXPECT_EQ(loaded.getVisibilitys().size() + loaded.getColorComponents().size() + loaded.getColors().size() +
                loaded.getDashs().size() + loaded.getOffsets().size() + loaded.getPatterns().size() +
                loaded.getRotations().size() + loaded.getShapes().size() + loaded.getSizes().size() +
                loaded.getSplits().size() + loaded.getStyleBys().size() + loaded.getTransparencys().size(),
            12U);
  EXPECT_EQ(b.removeLabelings() + b.removeImages(), 4U);
  EXPECT_TRUE(b.doesIdExist(u"i")) << "the id of what is removed stays";
  EXPECT_EQ(b.removeVisibilitys() + b.removeColorComponents() + b.removeColors() + b.removeDashs() + b.removeOffsets() +
                b.removePatterns() + b.removeRotations() + b.removeShapes() + b.removeSizes() + b.removeSplits() +
                b.removeStyleBys() + b.removeTransparencys(),
            12U);
  EXPECT_EQ(childrenOf(b.getImplementation()), "");
  EXPECT_TRUE(refuses<OrbBrushing>("<position/>"));
  EXPECT_TRUE(refuses<OrbBrushing>("<extension/>"));
}

TEST_F(Interaction, MostClassesLookAtNoChild) {
  expectLeaf<OrbAnimation>();
  expectLeaf<OrbDragElement>();
  expectLeaf<OrbLayerController>();
  expectLeaf<OrbLineGuideController>();
  expectLeaf<OrbPivotController>();
  expectLeaf<OrbRectangleGuideController>();
  expectLeaf<OrbSwingController>();
}

TEST(InteractionKeywords, CountFromOneButForTheKindOfDrillDown) {
  expectKeywords<OrbBrushing>(u"linkMode", &OrbBrushing::getLinkMode, &OrbBrushing::setLinkMode,
                              "source receiver both");
  expectKeywords<OrbBrushing>(u"selectionMode", &OrbBrushing::getSelectionMode, &OrbBrushing::setSelectionMode,
                              "click rectangle hover lasso");
  expectKeywords<OrbAnimation>(u"mode", &OrbAnimation::getMode, &OrbAnimation::setMode, "fullAnimation manipulation");
  expectKeywords<OrbAnimation>(u"sortMethod", &OrbAnimation::getSortMethod, &OrbAnimation::setSortMethod,
                               "data natural");
  expectKeywords<OrbAnimation>(u"tickMethod", &OrbAnimation::getTickMethod, &OrbAnimation::setTickMethod, "none full");
  expectKeywords<OrbLineGuideController>(u"newLineOrientation", &OrbLineGuideController::getNewLineOrientation,
                                         &OrbLineGuideController::setNewLineOrientation, "x y z");
  expectKeywords<OrbPopup>(u"part", &OrbPopup::getPart, &OrbPopup::setPart, "median outlier extreme");
  expectKeywords<OrbDrillDown>(u"interactionType", &OrbDrillDown::getInteractionType, &OrbDrillDown::setInteractionType,
                               "onClick onMouseDown onMouseUp onMouseOver onMouseOut", {.first = 0});
}
