// The root of a chart document.
#include "orbvisualization.h"

#include "attribute.h"
#include "attributevalue.h"
#include "chartprinter.h"
#include "chartstring.h"
#include "family.h"
#include "orbanimation.h"
#include "orbbrushing.h"
#include "orbcategoricaldomain.h"
#include "orbcategoricaldomainmodifier.h"
#include "orbcontainer.h"
#include "orbcontrolframe.h"
#include "orbdatabasesource.h"
#include "orbdelimitedfilesource.h"
#include "orbderivedvariable.h"
#include "orbdragelement.h"
#include "orbdrilldown.h"
#include "orbembeddedsource.h"
#include "orbexpressionvariable.h"
#include "orbextensionvis.h"
#include "orbfacetsortcontroller.h"
#include "orbgraph.h"
#include "orbintervaldomain.h"
#include "orbintervaldomainmodifier.h"
#include "orblabelframe.h"
#include "orblayercontroller.h"
#include "orblegend.h"
#include "orblineguidecontroller.h"
#include "orblocation.h"
#include "orbmultipleresponsevariable.h"
#include "orbpivotcontroller.h"
#include "orbpopup.h"
#include "orbrectangleguidecontroller.h"
#include "orbreportsource.h"
#include "orbresources.h"
#include "orbsavfilesource.h"
#include "orbsourcevariable.h"
#include "orbstreamingsource.h"
#include "orbstyle.h"
#include "orbstylecycle.h"
#include "orbswingcontroller.h"
#include "orbuni.h"
#include "orbusersource.h"
#include "reference.h"

#include <xercesc/dom/DOMElement.hpp>
#include <xercesc/dom/DOMNamedNodeMap.hpp>
#include <xercesc/util/XMLString.hpp>

#include <cstddef>
#include <sstream>
#include <string>
#include <unordered_map>
#include <unordered_set>

using namespace orbchart;
using xercesc::DOMElement;
using xercesc::DOMNode;
using xercesc::XMLString;

namespace {

constexpr Id id;
constexpr Double version{OrbUni::_version};
constexpr Text lang{OrbUni::_lang};
constexpr Text name{OrbUni::_name};
constexpr Text author{OrbUni::_author};
constexpr Text description{OrbUni::_description};
constexpr Text creator{OrbUni::_creator};
constexpr Text date{OrbUni::_date};
constexpr Text type{OrbUni::_type};
constexpr Boolean clip{OrbUni::_clip};
constexpr Reference<OrbStyle> style{OrbUni::_style};

using Attributes = AttributeList<id, version, lang, name, author, description, creator, date, type, clip, style>;

// The families by band, in document order. What keeps no band stands where the language has it.
using Locations = FamilyList<StripsIds<OrbLocation>>;
using Extensions = FamilyList<OrbExtensionVis>;
using Sources = FamilyList<StripsIds<OrbDatabaseSource>, StripsIds<OrbDelimitedFileSource>, OrbReportSource,
                           StripsIds<OrbEmbeddedSource>, StripsIds<OrbStreamingSource>, StripsIds<OrbUserSource>>;
using Variables =
    FamilyList<StripsIds<OrbSourceVariable>, StripsIds<OrbDerivedVariable>, StripsIds<OrbExpressionVariable>,
               OrbMultipleResponseVariable, StripsIds<OrbCategoricalDomain>, OrbCategoricalDomainModifier,
               OrbIntervalDomainModifier, StripsIds<OrbIntervalDomain>>;
using Frames = FamilyList<StripsIds<OrbGraph>, StripsIds<OrbContainer>, OrbControlFrame, StripsIds<OrbLegend>,
                          StripsIds<OrbLabelFrame>>;
using Styles = FamilyList<StripsIds<OrbStyle>, StripsIds<OrbStyleCycle>>;
using Popups = FamilyList<StripsIds<OrbPopup>>;
using DrillDowns = FamilyList<StripsIds<OrbDrillDown>>;
using Controllers = FamilyList<OrbAnimation, OrbBrushing, OrbLineGuideController, OrbRectangleGuideController,
                               OrbSwingController, OrbFacetSortController, OrbLayerController, OrbDragElement>;

using Families =
    ChildFamilies<Joined<Locations, Extensions, Sources, FamilyList<OrbSavFileSource>, Variables, Frames, Styles,
                         Popups, DrillDowns, Controllers, FamilyList<OrbPivotController, OrbResources>>>;

using AfterStyles = Joined<Popups, DrillDowns, Controllers>;
// Frames do not look at controllers, and what stands before the sources does not look at drill-downs.
using AfterFrames = Joined<Styles, Popups, DrillDowns>;
using AfterVariables = Joined<Frames, AfterFrames>;
using AfterSources = Joined<Variables, AfterVariables>;
using AfterExtensions = Joined<Sources, Variables, Frames, Styles, Popups>;
using AfterLocations = Joined<Extensions, AfterExtensions>;

/// Ends a wrapper that has left its family.
struct EndWrapper {
  void operator()(OrbBaseElement* wrapper) const { discard(wrapper, Registrations::go); }
};

/// The wrappers of a family, taken out one after the other. What was not taken, also when an operation fails on the
/// way, goes back in its order.
template <class Child, class List> class Released {
public:
  explicit Released(List& families) : families_(families), wrappers_(families.template releaseAll<Child>()) {}
  Released(const Released&) = delete;
  Released& operator=(const Released&) = delete;
  ~Released() {
    for (; at_ != wrappers_.size(); ++at_)
      keep();
  }

  /// The wrapper that is to keep or to take next; null after the last.
  Child* next() const { return at_ == wrappers_.size() ? nullptr : wrappers_[at_]; }
  void keep() { families_.append(wrappers_[at_++]); }
  Child* take() { return wrappers_[at_++]; }

private:
  List& families_;
  std::vector<Child*> wrappers_;
  std::size_t at_ = 0;
};

bool isNamed(const DOMNode& node, const XMLCh* name) { return XMLString::equals(node.getNodeName(), name); }

/// The node after another one in document order, below a root.
DOMNode* nextBelow(const DOMNode& root, DOMNode* node) {
  if (DOMNode* child = node->getFirstChild())
    return child;
  for (; node != &root; node = node->getParentNode()) {
    if (DOMNode* sibling = node->getNextSibling())
      return sibling;
  }
  return nullptr;
}

/// The containers of the root while they are dissolved. What is left of them at the end goes back to the root, and the
/// locations that pointed at those that have gone lose their targets: all of them in one walk.
class DissolvedContainers {
public:
  DissolvedContainers(DOMElement& root, Families& families) : root_(root), families_(families) {}
  DissolvedContainers(const DissolvedContainers&) = delete;
  DissolvedContainers& operator=(const DissolvedContainers&) = delete;
  ~DissolvedContainers() {
    for (std::unique_ptr<OrbContainer, EndWrapper>& container : containers_) {
      if (container != nullptr)
        families_.append(container.release());
    }
    clearTargets();
  }

  /// The container over a node; null when none is.
  OrbContainer* over(const DOMNode* node) {
    takeThoseThatCame();
    const auto found = indices_.find(node);
    return found == indices_.end() ? nullptr : containers_[found->second].get();
  }
  /// Ends a container that is empty.
  void end(const OrbContainer& container) {
    DOMElement* element = container.getImplementation();
    if (!isEmpty(container.getId()))
      ids_.emplace(container.getId());
    containers_[indices_.at(element)].reset();
    root_.removeChild(element);
  }

private:
  void takeThoseThatCame() {
    for (OrbContainer* container : families_.releaseAll<OrbContainer>()) {
      containers_.emplace_back(container);
      indices_.emplace(container->getImplementation(), containers_.size() - 1);
    }
  }
  void clearTargets() const {
    DOMNode* node = ids_.empty() ? nullptr : &root_;
    for (; node != nullptr; node = nextBelow(root_, node)) {
      if (!isNamed(*node, OrbUni::_location))
        continue;
      auto& location = static_cast<DOMElement&>(*node);
      if (ids_.count(location.getAttribute(OrbUni::_target)) != 0)
        location.removeAttribute(OrbUni::_target);
    }
  }

  DOMElement& root_;
  Families& families_;
  std::vector<std::unique_ptr<OrbContainer, EndWrapper>> containers_;
  std::unordered_map<const DOMNode*, std::size_t> indices_;
  std::unordered_set<std::u16string> ids_;
};

/// Moves the children of a container ahead of it, its locations to the front of the last graph among them.
void moveChildrenOut(OrbVisualization& root, DOMElement& container) {
  std::vector<DOMNode*> locations;
  DOMNode* graph = nullptr;
  while (DOMNode* child = container.getFirstChild()) {
    container.removeChild(child);
    if (isNamed(*child, OrbUni::_location)) {
      locations.push_back(child);
      continue;
    }
    root.getImplementation()->insertBefore(child, &container);
    root.initWithChildren(child);
    if (isNamed(*child, OrbUni::_graph))
      graph = child;
  }
  for (DOMNode* location : locations) {
    if (graph != nullptr)
      graph->insertBefore(location, graph->getFirstChild());
  }
}

/// Copies the attributes of an element one by one, the empty ones too.
void copyAttributes(const DOMElement& from, DOMElement& to) {
  const xercesc::DOMNamedNodeMap* attributes = from.getAttributes();
  for (XMLSize_t i = 0; i < attributes->getLength(); ++i)
    to.setAttribute(attributes->item(i)->getNodeName(), attributes->item(i)->getNodeValue());
}
} // namespace

template <> const ElementDescription& orbchart::descriptionOf<OrbVisualization>() {
  return elementDescription<OrbVisualization, Attributes, Families>;
}

struct OrbVisualization::Children : Families {};

OrbVisualization::OrbVisualization(DOMElement* element) : OrbBaseElement(element), children_(new Children) { init(); }
OrbVisualization::OrbVisualization(DOMElement* element, double version, const XMLCh* id) : OrbVisualization(element) {
  setId(id);
  setVersion(version);
}
OrbVisualization::~OrbVisualization() = default;

std::string OrbVisualization::AsUTF8() const {
  std::ostringstream stream;
  ChartPrinter printer;
  printer.setPrintWhiteSpace(true);
  printer.Print(getImplementation()->getOwnerDocument(), stream);
  return std::move(stream).str();
}

void OrbVisualization::init() {
  children_->load(*this);
  bind(*this);
}
void OrbVisualization::initWithChildren(xercesc::DOMNode* node) { children_->loadOne(*this, node); }

const XMLCh* OrbVisualization::getId() const { return id.get(*this); }
void OrbVisualization::setId(const XMLCh* value) { id.set(*this, value); }
void OrbVisualization::removeId() { id.remove(*this); }

double OrbVisualization::getVersion() const { return version.get(*this); }
void OrbVisualization::setVersion(double value) { version.set(*this, value); }

const XMLCh* OrbVisualization::getLang() const { return lang.get(*this); }
void OrbVisualization::setLang(const XMLCh* value) { lang.set(*this, value); }
void OrbVisualization::removeLang() { lang.remove(*this); }

const XMLCh* OrbVisualization::getName() const { return name.get(*this); }
void OrbVisualization::setName(const XMLCh* value) { name.set(*this, value); }
void OrbVisualization::removeName() { name.remove(*this); }

const XMLCh* OrbVisualization::getAuthor() const { return author.get(*this); }
void OrbVisualization::setAuthor(const XMLCh* value) { author.set(*this, value); }
void OrbVisualization::removeAuthor() { author.remove(*this); }

const XMLCh* OrbVisualization::getDescription() const { return description.get(*this); }
void OrbVisualization::setDescription(const XMLCh* value) { description.set(*this, value); }
void OrbVisualization::removeDescription() { description.remove(*this); }

const XMLCh* OrbVisualization::getCreator() const { return creator.get(*this); }
void OrbVisualization::setCreator(const XMLCh* value) { creator.set(*this, value); }
void OrbVisualization::removeCreator() { creator.remove(*this); }

const XMLCh* OrbVisualization::getDate() const { return date.get(*this); }
void OrbVisualization::setDate(const XMLCh* value) { date.set(*this, value); }
void OrbVisualization::removeDate() { date.remove(*this); }

const XMLCh* OrbVisualization::getType() const { return type.get(*this); }
void OrbVisualization::setType(const XMLCh* value) { type.set(*this, value); }
void OrbVisualization::removeType() { type.remove(*this); }

bool OrbVisualization::getClip() const { return clip.get(*this); }
void OrbVisualization::setClip(bool value) { clip.set(*this, value); }
void OrbVisualization::removeClip() { clip.remove(*this); }

OrbStyle* OrbVisualization::getStyle() const { return style.get(*this); }
void OrbVisualization::setStyle(const OrbStyle& target) { style.set(*this, target); }
void OrbVisualization::removeStyle() { style.remove(*this); }

OrbLocation* OrbVisualization::addLocation(OrbLocation::ENUM_part part) {
  return children_->add<OrbLocation>(*this, AfterLocations{}, part);
}
std::vector<OrbLocation*> OrbVisualization::getLocations() const { return children_->all<OrbLocation>(); }
unsigned int OrbVisualization::removeLocations() { return children_->removeAll<OrbLocation>(*this); }

OrbExtensionVis* OrbVisualization::addExtension() { return children_->add<OrbExtensionVis>(*this, AfterExtensions{}); }
OrbExtensionVis* OrbVisualization::getExtension() const {
  for (OrbExtensionVis* extension : children_->all<OrbExtensionVis>()) {
    if (isEmpty(extension->GetAttribute(OrbUni::_drillDown)))
      return extension;
  }
  return nullptr;
}
unsigned int OrbVisualization::removeExtensions() { return children_->removeAll<OrbExtensionVis>(*this); }

OrbDatabaseSource* OrbVisualization::addDatabaseSource(const XMLCh* id) {
  return children_->add<OrbDatabaseSource>(*this, AfterSources{}, id);
}
std::vector<OrbDatabaseSource*> OrbVisualization::getDatabaseSources() const {
  return children_->all<OrbDatabaseSource>();
}
unsigned int OrbVisualization::removeDatabaseSources() { return children_->removeAll<OrbDatabaseSource>(*this); }

OrbDelimitedFileSource* OrbVisualization::addDelimitedFileSource(const XMLCh* id) {
  return children_->add<OrbDelimitedFileSource>(*this, AfterSources{}, id);
}
std::vector<OrbDelimitedFileSource*> OrbVisualization::getDelimitedFileSources() const {
  return children_->all<OrbDelimitedFileSource>();
}
unsigned int OrbVisualization::removeDelimitedFileSources() {
  return children_->removeAll<OrbDelimitedFileSource>(*this);
}

OrbReportSource* OrbVisualization::addReportSource() { return children_->add<OrbReportSource>(*this, AfterSources{}); }
std::vector<OrbReportSource*> OrbVisualization::getReportSources() const { return children_->all<OrbReportSource>(); }
unsigned int OrbVisualization::removeReportSources() { return children_->removeAll<OrbReportSource>(*this); }

OrbEmbeddedSource* OrbVisualization::addEmbeddedSource(const XMLCh* id) {
  return children_->add<OrbEmbeddedSource>(*this, AfterSources{}, id);
}
std::vector<OrbEmbeddedSource*> OrbVisualization::getEmbeddedSources() const {
  return children_->all<OrbEmbeddedSource>();
}
unsigned int OrbVisualization::removeEmbeddedSources() { return children_->removeAll<OrbEmbeddedSource>(*this); }

OrbStreamingSource* OrbVisualization::addStreamingSource(const XMLCh* id, const XMLCh* url) {
  return children_->add<OrbStreamingSource>(*this, AfterSources{}, id, url);
}
std::vector<OrbStreamingSource*> OrbVisualization::getStreamingSources() const {
  return children_->all<OrbStreamingSource>();
}
unsigned int OrbVisualization::removeStreamingSources() { return children_->removeAll<OrbStreamingSource>(*this); }

OrbUserSource* OrbVisualization::addUserSource(const XMLCh* id) {
  return children_->add<OrbUserSource>(*this, AfterSources{}, id);
}
std::vector<OrbUserSource*> OrbVisualization::getUserSources() const { return children_->all<OrbUserSource>(); }
unsigned int OrbVisualization::removeUserSources() { return children_->removeAll<OrbUserSource>(*this); }

OrbSavFileSource* OrbVisualization::addSavFileSource() { return children_->add<OrbSavFileSource>(*this, atEnd); }
std::vector<OrbSavFileSource*> OrbVisualization::getSavFileSources() const {
  return children_->all<OrbSavFileSource>();
}
unsigned int OrbVisualization::removeSavFileSources() { return children_->removeAll<OrbSavFileSource>(*this); }

OrbSourceVariable* OrbVisualization::addSourceVariable(const XMLCh* id) {
  return children_->add<OrbSourceVariable>(*this, AfterVariables{}, id);
}
std::vector<OrbSourceVariable*> OrbVisualization::getSourceVariables() const {
  return children_->all<OrbSourceVariable>();
}
unsigned int OrbVisualization::removeSourceVariables() { return children_->removeAll<OrbSourceVariable>(*this); }
bool OrbVisualization::removeSourceVariable(OrbSourceVariable& variable) {
  return children_->removeOver<OrbSourceVariable>(*this, variable.getImplementation());
}

OrbDerivedVariable* OrbVisualization::addDerivedVariable(const XMLCh* id) {
  return children_->add<OrbDerivedVariable>(*this, AfterVariables{}, id);
}
std::vector<OrbDerivedVariable*> OrbVisualization::getDerivedVariables() const {
  return children_->all<OrbDerivedVariable>();
}
unsigned int OrbVisualization::removeDerivedVariables() { return children_->removeAll<OrbDerivedVariable>(*this); }
bool OrbVisualization::removeDerivedVariable(OrbDerivedVariable& variable) {
  return children_->removeOver<OrbDerivedVariable>(*this, variable.getImplementation());
}

OrbExpressionVariable* OrbVisualization::addExpressionVariable(const XMLCh* id) {
  return children_->add<OrbExpressionVariable>(*this, AfterVariables{}, id);
}
std::vector<OrbExpressionVariable*> OrbVisualization::getExpressionVariables() const {
  return children_->all<OrbExpressionVariable>();
}
unsigned int OrbVisualization::removeExpressionVariables() {
  return children_->removeAll<OrbExpressionVariable>(*this);
}

OrbMultipleResponseVariable* OrbVisualization::addMultipleResponseVariable() {
  return children_->add<OrbMultipleResponseVariable>(*this, AfterVariables{});
}
std::vector<OrbMultipleResponseVariable*> OrbVisualization::getMultipleResponseVariables() const {
  return children_->all<OrbMultipleResponseVariable>();
}
unsigned int OrbVisualization::removeMultipleResponseVariables() {
  return children_->removeAll<OrbMultipleResponseVariable>(*this);
}

OrbCategoricalDomain* OrbVisualization::addCategoricalDomain(const XMLCh* id) {
  return children_->add<OrbCategoricalDomain>(*this, AfterVariables{}, id);
}
std::vector<OrbCategoricalDomain*> OrbVisualization::getCategoricalDomains() const {
  return children_->all<OrbCategoricalDomain>();
}
unsigned int OrbVisualization::removeCategoricalDomains() { return children_->removeAll<OrbCategoricalDomain>(*this); }

OrbCategoricalDomainModifier* OrbVisualization::addCategoricalDomainModifier() {
  return children_->add<OrbCategoricalDomainModifier>(*this, AfterVariables{});
}
std::vector<OrbCategoricalDomainModifier*> OrbVisualization::getCategoricalDomainModifiers() const {
  return children_->all<OrbCategoricalDomainModifier>();
}
unsigned int OrbVisualization::removeCategoricalDomainModifiers() {
  return children_->removeAll<OrbCategoricalDomainModifier>(*this);
}

OrbIntervalDomainModifier* OrbVisualization::addIntervalDomainModifier() {
  return children_->add<OrbIntervalDomainModifier>(*this, AfterVariables{});
}
std::vector<OrbIntervalDomainModifier*> OrbVisualization::getIntervalDomainModifiers() const {
  return children_->all<OrbIntervalDomainModifier>();
}
unsigned int OrbVisualization::removeIntervalDomainModifiers() {
  return children_->removeAll<OrbIntervalDomainModifier>(*this);
}

OrbIntervalDomain* OrbVisualization::addIntervalDomain(const XMLCh* id) {
  return children_->add<OrbIntervalDomain>(*this, AfterVariables{}, id);
}
std::vector<OrbIntervalDomain*> OrbVisualization::getIntervalDomains() const {
  return children_->all<OrbIntervalDomain>();
}
unsigned int OrbVisualization::removeIntervalDomains() { return children_->removeAll<OrbIntervalDomain>(*this); }

OrbGraph* OrbVisualization::addGraph(const XMLCh* id) { return children_->add<OrbGraph>(*this, AfterFrames{}, id); }
std::vector<OrbGraph*> OrbVisualization::getGraphs() const { return children_->all<OrbGraph>(); }
unsigned int OrbVisualization::removeGraphs() { return children_->removeAll<OrbGraph>(*this); }

OrbContainer* OrbVisualization::addContainer(const XMLCh* id) {
  return children_->add<OrbContainer>(*this, AfterFrames{}, id);
}
std::vector<OrbContainer*> OrbVisualization::getContainers() const { return children_->all<OrbContainer>(); }
unsigned int OrbVisualization::removeContainers() { return children_->removeAll<OrbContainer>(*this); }

OrbControlFrame* OrbVisualization::addControlFrame() { return children_->add<OrbControlFrame>(*this, atEnd); }
std::vector<OrbControlFrame*> OrbVisualization::getControlFrames() const { return children_->all<OrbControlFrame>(); }
unsigned int OrbVisualization::removeControlFrames() { return children_->removeAll<OrbControlFrame>(*this); }

OrbLegend* OrbVisualization::addLegend(const XMLCh* id) { return children_->add<OrbLegend>(*this, AfterFrames{}, id); }
OrbLegend* OrbVisualization::addLegend(DOMElement* element) {
  return element == nullptr ? nullptr : children_->adopt<OrbLegend>(*this, element, AfterFrames{});
}
std::vector<OrbLegend*> OrbVisualization::getLegends() const { return children_->all<OrbLegend>(); }
unsigned int OrbVisualization::removeLegends() { return children_->removeAll<OrbLegend>(*this); }

OrbLabelFrame* OrbVisualization::addLabelFrame(const XMLCh* id) {
  return children_->add<OrbLabelFrame>(*this, AfterFrames{}, id);
}
std::vector<OrbLabelFrame*> OrbVisualization::getLabelFrames() const { return children_->all<OrbLabelFrame>(); }
unsigned int OrbVisualization::removeLabelFrames() { return children_->removeAll<OrbLabelFrame>(*this); }

OrbStyle* OrbVisualization::addStyle() { return children_->add<OrbStyle>(*this, AfterStyles{}); }
std::vector<OrbStyle*> OrbVisualization::getStyles() const { return children_->all<OrbStyle>(); }
unsigned int OrbVisualization::removeStyles() { return children_->removeAll<OrbStyle>(*this); }

OrbStyleCycle* OrbVisualization::addStyleCycle(const XMLCh* id) {
  return children_->add<OrbStyleCycle>(*this, AfterStyles{}, id);
}
std::vector<OrbStyleCycle*> OrbVisualization::getStyleCycles() const { return children_->all<OrbStyleCycle>(); }
unsigned int OrbVisualization::removeStyleCycles() { return children_->removeAll<OrbStyleCycle>(*this); }

OrbPopup* OrbVisualization::addPopup() { return children_->add<OrbPopup>(*this, atEnd); }
std::vector<OrbPopup*> OrbVisualization::getPopups() const { return children_->all<OrbPopup>(); }
unsigned int OrbVisualization::removePopups() { return children_->removeAll<OrbPopup>(*this); }

OrbDrillDown* OrbVisualization::addDrillDown(const XMLCh* id) { return children_->add<OrbDrillDown>(*this, atEnd, id); }
std::vector<OrbDrillDown*> OrbVisualization::getDrillDowns() const { return children_->all<OrbDrillDown>(); }
unsigned int OrbVisualization::removeDrillDowns() { return children_->removeAll<OrbDrillDown>(*this); }

OrbAnimation* OrbVisualization::addAnimation() { return children_->add<OrbAnimation>(*this, atEnd); }
std::vector<OrbAnimation*> OrbVisualization::getAnimations() const { return children_->all<OrbAnimation>(); }
unsigned int OrbVisualization::removeAnimations() { return children_->removeAll<OrbAnimation>(*this); }

OrbBrushing* OrbVisualization::addBrushing() { return children_->add<OrbBrushing>(*this, atEnd); }
std::vector<OrbBrushing*> OrbVisualization::getBrushings() const { return children_->all<OrbBrushing>(); }
unsigned int OrbVisualization::removeBrushings() { return children_->removeAll<OrbBrushing>(*this); }

OrbLineGuideController* OrbVisualization::addLineGuideController() {
  return children_->add<OrbLineGuideController>(*this, atEnd);
}
std::vector<OrbLineGuideController*> OrbVisualization::getLineGuideControllers() const {
  return children_->all<OrbLineGuideController>();
}
unsigned int OrbVisualization::removeLineGuideControllers() {
  return children_->removeAll<OrbLineGuideController>(*this);
}

OrbRectangleGuideController* OrbVisualization::addRectangleGuideController() {
  return children_->add<OrbRectangleGuideController>(*this, atEnd);
}
std::vector<OrbRectangleGuideController*> OrbVisualization::getRectangleGuideControllers() const {
  return children_->all<OrbRectangleGuideController>();
}
unsigned int OrbVisualization::removeRectangleGuideControllers() {
  return children_->removeAll<OrbRectangleGuideController>(*this);
}

OrbSwingController* OrbVisualization::addSwingController() { return children_->add<OrbSwingController>(*this, atEnd); }
std::vector<OrbSwingController*> OrbVisualization::getSwingControllers() const {
  return children_->all<OrbSwingController>();
}
unsigned int OrbVisualization::removeSwingControllers() { return children_->removeAll<OrbSwingController>(*this); }

OrbFacetSortController* OrbVisualization::addFacetSortController() {
  return children_->add<OrbFacetSortController>(*this, atEnd);
}
std::vector<OrbFacetSortController*> OrbVisualization::getFacetSortControllers() const {
  return children_->all<OrbFacetSortController>();
}
unsigned int OrbVisualization::removeFacetSortControllers() {
  return children_->removeAll<OrbFacetSortController>(*this);
}

OrbLayerController* OrbVisualization::addLayerController() { return children_->add<OrbLayerController>(*this, atEnd); }
std::vector<OrbLayerController*> OrbVisualization::getLayerControllers() const {
  return children_->all<OrbLayerController>();
}
unsigned int OrbVisualization::removeLayerControllers() { return children_->removeAll<OrbLayerController>(*this); }

OrbDragElement* OrbVisualization::addDragElement() { return children_->add<OrbDragElement>(*this, atEnd); }
std::vector<OrbDragElement*> OrbVisualization::getDragElements() const { return children_->all<OrbDragElement>(); }
unsigned int OrbVisualization::removeDragElements() { return children_->removeAll<OrbDragElement>(*this); }

OrbPivotController* OrbVisualization::addPivotController() { return children_->add<OrbPivotController>(*this, atEnd); }
std::vector<OrbPivotController*> OrbVisualization::getPivotControllers() const {
  return children_->all<OrbPivotController>();
}
unsigned int OrbVisualization::removePivotControllers() { return children_->removeAll<OrbPivotController>(*this); }

OrbResources* OrbVisualization::addResources() { return children_->add<OrbResources>(*this, atEnd); }
std::vector<OrbResources*> OrbVisualization::getResourcess() const { return children_->all<OrbResources>(); }
unsigned int OrbVisualization::removeResourcess() { return children_->removeAll<OrbResources>(*this); }

unsigned int OrbVisualization::reparentContainerChildren() {
  DOMElement* root = getImplementation();
  DissolvedContainers containers(*root, *children_);
  unsigned int count = 0;
  for (DOMNode* node = root->getFirstChild(); node != nullptr;) {
    OrbContainer* container = containers.over(node);
    if (container == nullptr) {
      node = node->getNextSibling();
      continue;
    }
    DOMNode* const before = node->getPreviousSibling();
    try {
      moveChildrenOut(*this, *container->getImplementation());
    } catch (...) {
      container->dropMovedChildren();
      throw;
    }
    containers.end(*container);
    ++count;
    // What came out of the container stands in its place, and a container among it is next.
    node = before == nullptr ? root->getFirstChild() : before->getNextSibling();
  }
  return count;
}

unsigned int OrbVisualization::reparentStyles(OrbStyle& target) {
  // The wrappers of moved styles end at last: the target may lie below one of them.
  std::vector<std::unique_ptr<OrbStyle, EndWrapper>> moved;
  const ChartString targetId(target.getId());
  Released<OrbStyle, Families> styles(*children_);
  while (OrbStyle* style = styles.next()) {
    if (targetId.equals(style->getId())) {
      styles.keep();
      continue;
    }
    const ChartString id(style->getId());
    style->removeId();
    getImplementation()->removeChild(style->getImplementation());
    moved.emplace_back(styles.take());
    OrbStyle* copy = target.addStyle();
    copyAttributes(*style->getImplementation(), *copy->getImplementation());
    copy->setId(id.xc_str());
  }
  return static_cast<unsigned int>(moved.size());
}

unsigned int OrbVisualization::reparentLegendChildren(OrbContainer& target) {
  unsigned int count = 0;
  Released<OrbLegend, Families> legends(*children_);
  while (OrbLegend* legend = legends.next()) {
    target.getImplementation()->appendChild(getImplementation()->removeChild(legend->getImplementation()));
    target.addLegend(legends.take());
    ++count;
  }
  return count;
}
