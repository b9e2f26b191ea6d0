// A legend.
#include "orblegend.h"

#include "attribute.h"
#include "family.h"
#include "orbextension.h"
#include "orblabel.h"
#include "orblegendtarget.h"
#include "orbstyle.h"
#include "orbuni.h"
#include "reference.h"

using namespace orbchart;
using xercesc::DOMElement;

namespace {

constexpr Id id;
constexpr Reference<OrbStyle> tickTextStyle{OrbLegend::_UTF_tickTextStyle};
constexpr Reference<OrbStyle> tickFrameStyle{OrbLegend::_UTF_tickFrameStyle};
constexpr Boolean reverse{OrbUni::_reverse};
constexpr Reference<OrbStyle> style{OrbUni::_style};
constexpr Boolean clip{OrbUni::_clip};
constexpr Boolean verticalFlow{OrbLegend::_UTF_verticalFlow};
constexpr Integer numberOfRows{OrbLegend::_UTF_numberOfRows};
constexpr Integer numberOfColumns{OrbLegend::_UTF_numberOfColumns};

using Attributes =
    AttributeList<id, tickTextStyle, tickFrameStyle, reverse, style, clip, verticalFlow, numberOfRows, numberOfColumns>;

// The message has the plural, unlike that of any other class.
constexpr OnlyOne oneLabel{"Labels", "Legend"};

using AfterLabels = FamilyList<StripsIds<OrbLegendTarget>>;
using AfterLocations = Joined<FamilyList<StripsIds<Limited<OrbLabel, oneLabel>>>, AfterLabels>;
using AfterExtensions = Joined<FamilyList<StripsIds<OrbLocation>>, AfterLocations>;
using Families = ChildFamilies<Joined<FamilyList<OrbExtension>, AfterExtensions>>;

} // namespace

template <> const ElementDescription& orbchart::descriptionOf<OrbLegend>() {
  return elementDescription<OrbLegend, Attributes, Families>;
}

struct OrbLegend::Children : Families {};

OrbLegend::OrbLegend(DOMElement* element) : OrbBaseElement(element), children_(new Children) {
  children_->load(*this);
  bind(*this);
}
OrbLegend::OrbLegend(DOMElement* element, const XMLCh* id) : OrbLegend(element) { setId(id); }
OrbLegend::~OrbLegend() = default;

const XMLCh* OrbLegend::getId() const { return id.get(*this); }
void OrbLegend::setId(const XMLCh* value) { id.set(*this, value); }
void OrbLegend::removeId() { id.remove(*this); }

OrbStyle* OrbLegend::getTickTextStyle() const { return tickTextStyle.get(*this); }
void OrbLegend::setTickTextStyle(const OrbStyle& target) { tickTextStyle.set(*this, target); }
void OrbLegend::removeTickTextStyle() { tickTextStyle.remove(*this); }

OrbStyle* OrbLegend::getTickFrameStyle() const { return tickFrameStyle.get(*this); }
void OrbLegend::setTickFrameStyle(const OrbStyle& target) { tickFrameStyle.set(*this, target); }
void OrbLegend::removeTickFrameStyle() { tickFrameStyle.remove(*this); }

bool OrbLegend::getReverse() const { return reverse.get(*this); }
void OrbLegend::setReverse(bool value) { reverse.set(*this, value); }
void OrbLegend::removeReverse() { reverse.remove(*this); }

OrbStyle* OrbLegend::getStyle() const { return style.get(*this); }
void OrbLegend::setStyle(const OrbStyle& target) { style.set(*this, target); }
void OrbLegend::removeStyle() { style.remove(*this); }

bool OrbLegend::getClip() const { return clip.get(*this); }
void OrbLegend::setClip(bool value) { clip.set(*this, value); }
void OrbLegend::removeClip() { clip.remove(*this); }

bool OrbLegend::getVerticalFlow() const { return verticalFlow.get(*this); }
void OrbLegend::setVerticalFlow(bool value) { verticalFlow.set(*this, value); }
void OrbLegend::removeVerticalFlow() { verticalFlow.remove(*this); }

int OrbLegend::getNumberOfRows() const { return numberOfRows.get(*this); }
void OrbLegend::setNumberOfRows(int value) { numberOfRows.set(*this, value); }
void OrbLegend::removeNumberOfRows() { numberOfRows.remove(*this); }

int OrbLegend::getNumberOfColumns() const { return numberOfColumns.get(*this); }
void OrbLegend::setNumberOfColumns(int value) { numberOfColumns.set(*this, value); }
void OrbLegend::removeNumberOfColumns() { numberOfColumns.remove(*this); }

OrbExtension* OrbLegend::addExtension() { return children_->add<OrbExtension>(*this, AfterExtensions{}); }
OrbExtension* OrbLegend::getExtension() const { return children_->first<OrbExtension>(); }
unsigned int OrbLegend::removeExtensions() { return children_->removeAll<OrbExtension>(*this); }

OrbLocation* OrbLegend::addLocation(OrbLocation::ENUM_part part) {
  return children_->add<OrbLocation>(*this, AfterLocations{}, part);
}
std::vector<OrbLocation*> OrbLegend::getLocations() const { return children_->all<OrbLocation>(); }
unsigned int OrbLegend::removeLocations() { return children_->removeAll<OrbLocation>(*this); }

OrbLabel* OrbLegend::addLabel() { return children_->add<OrbLabel>(*this, AfterLabels{}); }
OrbLabel* OrbLegend::getLabel() const { return children_->first<OrbLabel>(); }
unsigned int OrbLegend::removeLabels() { return children_->removeAll<OrbLabel>(*this); }

OrbLegendTarget* OrbLegend::addLegendTarget(const XMLCh* id, const OrbBaseElement& target) {
  return children_->add<OrbLegendTarget>(*this, atEnd, id, target);
}
std::vector<OrbLegendTarget*> OrbLegend::getLegendTargets() const { return children_->all<OrbLegendTarget>(); }
unsigned int OrbLegend::removeLegendTargets() { return children_->removeAll<OrbLegendTarget>(*this); }
