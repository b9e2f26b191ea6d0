// Containers and frames: where their children go, what a removal does to ids, loading, and locations.
#include "ctframe.h"
#include "dom.h"
#include "elements.h"
#include "keywords.h"
#include "orbcontainer.h"
#include "orbcontrolframe.h"
#include "orbextension.h"
#include "orbgraph.h"
#include "orbimageresource.h"
#include "orblabel.h"
#include "orblabelframe.h"
#include "orblegend.h"
#include "orblocation.h"
#include "orbparagraph.h"
#include "orbresources.h"
#include "orbvisualization.h"
#include "raised.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <cstring>
#include <functional>

using test::addElement;
using test::childrenOf;
using test::expectKeywords;
using test::messageOf;
using test::NewDocument;
using test::Parsed;
using test::refuses;
using test::utf8;
using xercesc::DOMElement;

namespace {

/// A wrapper of a new document.
template <class Wrapper> struct New {
  std::string children() const { return childrenOf(document.root()); }

  const NewDocument document{Wrapper::elementName};
  Wrapper wrapper{document.root()};
};

/// The place of a virtual operation among those of its class, as a pointer to it holds it.
template <class Operation> std::uintptr_t slotOf(Operation operation) {
  std::uintptr_t slot = 0;
  std::memcpy(&slot, &operation, sizeof slot);
  return slot;
}

} // namespace

TEST(Container, PutsExtensionsAndLocationsBeforeAllButControlFrames) {
  const std::function<void(OrbContainer&)> followers[] = {
      [](OrbContainer& container) { container.addContainer(u"f"); },
      [](OrbContainer& container) { container.addGraph(u"f"); },
      [](OrbContainer& container) { container.addLegend(u"f"); },
      [](OrbContainer& container) { container.addLabelFrame(u"f"); },
  };
  const std::string names[] = {"container#f", "graph#f", "legend#f", "labelFrame#f"};
  for (std::size_t i = 0; i < std::size(names); ++i) {
    New<OrbContainer> made;
    followers[i](made.wrapper);
    made.wrapper.addExtension();
    EXPECT_EQ(made.children(), "extension " + names[i]) << "an extension looks at every follower for itself";
    made.wrapper.addLocation(OrbLocation::part_top);
    made.wrapper.addExtension();
    EXPECT_EQ(made.children(), "extension extension location " + names[i]);
  }

  New<OrbContainer> made;
  OrbContainer& container = made.wrapper;
  container.addControlFrame();
  EXPECT_EQ(container.getExtension(), nullptr);
  OrbExtension* first = container.addExtension();
  container.addLabelFrame(u"f");
  container.addGraph(u"g");
  container.addControlFrame();
  container.addContainer(u"c");
  EXPECT_EQ(container.addLocation(OrbLocation::part_width)->getPart(), OrbLocation::part_width);
  EXPECT_EQ(made.children(), "controlFrame extension location labelFrame#f graph#g controlFrame container#c");
  container.addExtension();
  EXPECT_EQ(container.getExtension(), first);
  EXPECT_EQ(container.removeExtensions(), 2U);
}

TEST(Container, TakesALegendOverWhoseElementStandsThere) {
  New<OrbContainer> made;
  DOMElement* element = addElement(made.document, u"legend", u"given");
  made.wrapper.addLegend(static_cast<OrbLegend*>(nullptr));
  EXPECT_TRUE(made.wrapper.getLegends().empty());
  auto* legend = new OrbLegend(element);
  made.wrapper.addLegend(legend);
  made.wrapper.addLegend(u"new");
  EXPECT_EQ(made.children(), "legend#given legend#new") << "the element stays where it stands";
  EXPECT_EQ(made.wrapper.getLegends().at(0), legend);
  EXPECT_EQ(made.wrapper.removeLegends(), 2U);
  EXPECT_EQ(made.children(), "");
}

TEST(Container, KeepsTheIdsOfWhatItRemoves) {
  New<OrbContainer> made;
  OrbContainer& container = made.wrapper;
  container.addContainer(u"c");
  container.addGraph(u"g");
  container.addLegend(u"l");
  container.addLabelFrame(u"f");
  container.addControlFrame()->setId(u"cf");
  container.addLocation(OrbLocation::part_left)->setId(u"at");
  EXPECT_EQ(container.removeContainers() + container.removeGraphs() + container.removeLegends() +
                container.removeLabelFrames() + container.removeControlFrames() + container.removeLocations(),
            6U);
  EXPECT_EQ(made.children(), "");
  for (const XMLCh* id : {u"c", u"g", u"l", u"f", u"cf", u"at"})
    EXPECT_TRUE(container.doesIdExist(id)) << utf8(id);
}

TEST(Container, LoadsContainersInContainers) {
  const Parsed parsed("<container><controlFrame/><container><legend/><location part='height'/></container>"
                      "<labelFrame/><graph/><extension><any/></extension></container>");
  const OrbContainer container(parsed.root());
  const OrbContainer* inner = container.getContainers().at(0);
  EXPECT_EQ(inner->getLocations().at(0)->getPart(), OrbLocation::part_height);
  EXPECT_EQ(inner->getLegends().size() + container.getGraphs().size() + container.getLabelFrames().size() +
                container.getControlFrames().size(),
            4U);
  EXPECT_EQ(parsed.root()->getUserData(u"container"), &container);
  EXPECT_TRUE(refuses<OrbContainer>("<style/>"));
  EXPECT_TRUE(refuses<OrbContainer>("<paragraph/>"));
}

TEST(LabelFrame, PutsExtensionsThenLocationsBeforeTheLabel) {
  New<OrbLabelFrame> made;
  OrbLabelFrame& frame = made.wrapper;
  frame.addParagraph();
  OrbLabel* label = frame.addLabel();
  frame.addControlFrame();
  OrbExtension* first = frame.addExtension();
  frame.addLocation(OrbLocation::part_left);
  frame.addExtension();
  EXPECT_EQ(made.children(), "paragraph extension extension location label controlFrame");
  EXPECT_EQ(frame.getExtension(), first);

  EXPECT_EQ(messageOf([&] { frame.addLabel(); }),
            "Can not add a Label to a LabelFrame because 1 Label(s) already exist(s).");
  EXPECT_EQ(frame.getLabel(), label);
  frame.removeLabels();
  frame.addExtension();
  frame.addLocation(OrbLocation::part_top);
  EXPECT_EQ(made.children(), "paragraph extension extension extension location controlFrame location")
      << "without a label a location goes last";
  EXPECT_TRUE(refuses<OrbLabelFrame>("<graph/>"));
}

TEST(LabelFrame, ForgetsTheIdsOfLocationsAndLabelsAlone) {
  New<OrbLabelFrame> made;
  OrbLabelFrame& frame = made.wrapper;
  frame.addLocation(OrbLocation::part_left)->setId(u"at");
  frame.addLabel()->setId(u"l");
  frame.addControlFrame()->setId(u"cf");
  frame.addParagraph()->setId(u"p");
  EXPECT_EQ(frame.removeLocations() + frame.removeLabels() + frame.removeControlFrames() + frame.removeParagraphs(),
            4U);
  EXPECT_FALSE(frame.doesIdExist(u"at") || frame.doesIdExist(u"l"));
  EXPECT_TRUE(frame.doesIdExist(u"cf") && frame.doesIdExist(u"p"));
  EXPECT_EQ(made.children(), "");
}

TEST(LabelFrame, LosesAllLocationsWhenThoseOfOnePartAreRemoved) {
  New<OrbLabelFrame> made;
  OrbLabelFrame& frame = made.wrapper;
  frame.addLocation(OrbLocation::part_top)->setId(u"1");
  frame.addLocation(OrbLocation::part_left)->setId(u"2");
  frame.addLocation(OrbLocation::part_top)->setId(u"3");
  frame.addLabel();
  EXPECT_EQ(frame.removeLocation(OrbLocation::part_top), 2U);
  EXPECT_TRUE(frame.getLocations().empty());
  EXPECT_EQ(made.children(), "location#2 label");
  EXPECT_TRUE(frame.doesIdExist(u"2"));
  EXPECT_FALSE(frame.doesIdExist(u"1") || frame.doesIdExist(u"3"));
  EXPECT_EQ(frame.getElementById(u"2")->getUserData(u"location"), nullptr) << "a wrapper that has ended";
  EXPECT_EQ(OrbLabelFrame(made.document.root()).getLocations().size(), 1U) << "loaded again";

  frame.addLocation(OrbLocation::part_top);
  EXPECT_EQ(frame.removeLocation(OrbLocation::part_bottom), 0U);
  EXPECT_TRUE(frame.getLocations().empty());
  EXPECT_EQ(made.children(), "location#2 location label");
}

TEST(ControlFrame, AppendsAndLeadsToAnyElement) {
  New<OrbControlFrame> made;
  OrbControlFrame& frame = made.wrapper;
  frame.addLocation(OrbLocation::part_right);
  frame.addExtension();
  frame.addLocation(OrbLocation::part_left);
  EXPECT_EQ(made.children(), "location extension location");
  EXPECT_EQ(frame.getExtensions().size(), 1U);
  EXPECT_EQ(frame.getLocations().at(1)->getPart(), OrbLocation::part_left);

  DOMElement* anything = addElement(made.document, u"anything", u"a");
  frame.setTargetSpecification(OrbBaseElement(anything));
  EXPECT_EQ(frame.getTargetSpecification(), anything) << "although it has no wrapper";
  frame.setTargetSpecification(*frame.getExtensions().at(0));
  EXPECT_EQ(frame.getTargetSpecification(), anything) << "an element without an id writes nothing";
  frame.SetAttribute(u"targetSpecification", u"none");
  EXPECT_EQ(frame.getTargetSpecification(), nullptr);
  EXPECT_TRUE(refuses<OrbControlFrame>("<label/>"));
}

TEST(Frame, IsForHostsToDeriveFrom) {
  struct HostFrame : CTFrame {
    using CTFrame::CTFrame;
    OrbLocation* addLocation() override {
      OrbLocation* location = CTFrame::addLocation();
      location->setPart(OrbLocation::part_bottom);
      return location;
    }
  };
  const Parsed parsed("<frame id='f'><bogus/><location/><extension/></frame>");
  HostFrame host(parsed.root());
  EXPECT_EQ(parsed.root()->getUserData(u"frame"), nullptr) << "it registers nothing";
  CTFrame& frame = host;
  EXPECT_EQ(frame.addLocation()->getPart(), OrbLocation::part_bottom) << "the host's operation";
  EXPECT_TRUE(frame.isIdPresent());
  CTFrame plain(parsed.root());
  EXPECT_FALSE(plain.addLocation()->getImplementation()->hasAttributes());
  plain.addExtension();
  EXPECT_EQ(childrenOf(parsed.root()), "bogus location extension location location extension");
  EXPECT_EQ(plain.removeLocations(), 3U);
  EXPECT_EQ(plain.removeExtensions(), 2U);
  EXPECT_EQ(childrenOf(parsed.root()), "bogus");
}

TEST(Frame, KeepsTheOrderOfItsVirtualOperations) {
  const std::uintptr_t slots[] = {slotOf(&OrbBaseElement::AsUTF8),   slotOf(&CTFrame::addExtension),
                                  slotOf(&CTFrame::addLocation),     slotOf(&CTFrame::removeExtensions),
                                  slotOf(&CTFrame::removeLocations), slotOf(&CTFrame::getExtensions),
                                  slotOf(&CTFrame::getLocations)};
  for (std::size_t i = 1; i < std::size(slots); ++i)
    EXPECT_EQ(slots[i] - slots[i - 1], sizeof(void*)) << i;
}

TEST(Location, KeywordsCountFromZero) {
  expectKeywords<OrbLocation>(u"part", &OrbLocation::getPart, &OrbLocation::setPart,
                              "left right top bottom width height", {.first = 0});
  expectKeywords<OrbLocation>(u"method", &OrbLocation::getMethod, &OrbLocation::setMethod,
                              "fixed sizeToContent same attach", {.first = 0});
}

TEST(Location, WritesItsTargetAndNeverFindsIt) {
  New<OrbVisualization> made;
  OrbVisualization& root = made.wrapper;
  root.setId(u"v");
  OrbLocation& location = *root.addLocation(OrbLocation::part_top);
  const auto written = [&](const auto& target) {
    location.setTarget(target);
    EXPECT_NE(location.getElementById(location.GetAttribute(u"target")), nullptr);
    EXPECT_EQ(location.getTarget(), nullptr);
    return utf8(location.GetAttribute(u"target"));
  };
  EXPECT_EQ(written(*root.addGraph(u"g")), "g");
  EXPECT_EQ(written(*root.addLegend(u"l")), "l");
  EXPECT_EQ(written(*root.addLabelFrame(u"f")), "f");
  EXPECT_EQ(written(*root.addContainer(u"c")), "c");
  EXPECT_EQ(written(root), "v");
}

TEST(Location, LooksAtNoChild) {
  const Parsed parsed("<location><bogus/></location>");
  const OrbLocation location(parsed.root());
  EXPECT_EQ(parsed.root()->getUserData(u"location"), &location);
}

TEST(Resources, HoldImagesAndNothingElse) {
  New<OrbResources> made;
  made.wrapper.addImageResource()->setId(u"i");
  EXPECT_EQ(made.children(), "imageResource#i");
  EXPECT_EQ(made.wrapper.removeImageResources(), 1U);
  EXPECT_TRUE(made.wrapper.doesIdExist(u"i"));
  const Parsed parsed("<resources><imageResource><bogus/></imageResource></resources>");
  EXPECT_EQ(OrbResources(parsed.root()).getImageResources().size(), 1U);
  EXPECT_TRUE(refuses<OrbResources>("<image/>"));
}
