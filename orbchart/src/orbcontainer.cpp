// A group of graphs, legends and frames.
#include "orbcontainer.h"

#include "attribute.h"
#include "family.h"
#include "orbcontrolframe.h"
#include "orbextension.h"
#include "orbgraph.h"
#include "orblabelframe.h"
#include "orblegend.h"
#include "orbstyle.h"
#include "orbuni.h"
#include "reference.h"

using namespace orbchart;
using xercesc::DOMElement;

namespace {

constexpr Id id;
constexpr Reference<OrbStyle> style{OrbUni::_style};
constexpr Boolean clip{OrbUni::_clip};

using Attributes = AttributeList<id, style, clip>;

using AfterLocations = FamilyList<OrbContainer, OrbGraph, OrbLegend, OrbLabelFrame>;
using AfterExtensions = Joined<FamilyList<OrbLocation>, AfterLocations>;

using Families = ChildFamilies<Joined<FamilyList<OrbExtension>, AfterExtensions, FamilyList<OrbControlFrame>>>;

} // namespace

template <> const ElementDescription& orbchart::descriptionOf<OrbContainer>() {
  return elementDescription<OrbContainer, Attributes, Families>;
}

struct OrbContainer::Children : Families {};

OrbContainer::OrbContainer(DOMElement* element) : OrbBaseElement(element), children_(new Children) {
  children_->load(*this);
  bind(*this);
}
OrbContainer::OrbContainer(DOMElement* element, const XMLCh* id) : OrbContainer(element) { setId(id); }
OrbContainer::~OrbContainer() = default;

const XMLCh* OrbContainer::getId() const { return id.get(*this); }
void OrbContainer::setId(const XMLCh* value) { id.set(*this, value); }
void OrbContainer::removeId() { id.remove(*this); }

OrbStyle* OrbContainer::getStyle() const { return style.get(*this); }
void OrbContainer::setStyle(const OrbStyle& target) { style.set(*this, target); }
void OrbContainer::removeStyle() { style.remove(*this); }

bool OrbContainer::getClip() const { return clip.get(*this); }
void OrbContainer::setClip(bool value) { clip.set(*this, value); }
void OrbContainer::removeClip() { clip.remove(*this); }

OrbExtension* OrbContainer::addExtension() { return children_->add<OrbExtension>(*this, AfterExtensions{}); }
OrbExtension* OrbContainer::getExtension() const { return children_->first<OrbExtension>(); }
unsigned int OrbContainer::removeExtensions() { return children_->removeAll<OrbExtension>(*this); }

OrbLocation* OrbContainer::addLocation(OrbLocation::ENUM_part part) {
  return children_->add<OrbLocation>(*this, AfterLocations{}, part);
}
std::vector<OrbLocation*> OrbContainer::getLocations() const { return children_->all<OrbLocation>(); }
unsigned int OrbContainer::removeLocations() { return children_->removeAll<OrbLocation>(*this); }

OrbContainer* OrbContainer::addContainer(const XMLCh* id) { return children_->add<OrbContainer>(*this, atEnd, id); }
std::vector<OrbContainer*> OrbContainer::getContainers() const { return children_->all<OrbContainer>(); }
unsigned int OrbContainer::removeContainers() { return children_->removeAll<OrbContainer>(*this); }

OrbGraph* OrbContainer::addGraph(const XMLCh* id) { return children_->add<OrbGraph>(*this, atEnd, id); }
std::vector<OrbGraph*> OrbContainer::getGraphs() const { return children_->all<OrbGraph>(); }
unsigned int OrbContainer::removeGraphs() { return children_->removeAll<OrbGraph>(*this); }

OrbLegend* OrbContainer::addLegend(const XMLCh* id) { return children_->add<OrbLegend>(*this, atEnd, id); }
void OrbContainer::addLegend(OrbLegend* legend) {
  if (legend != nullptr)
    children_->append(legend);
}
std::vector<OrbLegend*> OrbContainer::getLegends() const { return children_->all<OrbLegend>(); }
unsigned int OrbContainer::removeLegends() { return children_->removeAll<OrbLegend>(*this); }

OrbLabelFrame* OrbContainer::addLabelFrame(const XMLCh* id) { return children_->add<OrbLabelFrame>(*this, atEnd, id); }
std::vector<OrbLabelFrame*> OrbContainer::getLabelFrames() const { return children_->all<OrbLabelFrame>(); }
unsigned int OrbContainer::removeLabelFrames() { return children_->removeAll<OrbLabelFrame>(*this); }

OrbControlFrame* OrbContainer::addControlFrame() { return children_->add<OrbControlFrame>(*this, atEnd); }
std::vector<OrbControlFrame*> OrbContainer::getControlFrames() const { return children_->all<OrbControlFrame>(); }
unsigned int OrbContainer::removeControlFrames() { return children_->removeAll<OrbControlFrame>(*this); }

void OrbContainer::dropMovedChildren() { children_->dropMoved(*this); }
