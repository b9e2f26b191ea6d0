// A frame with a control.
#include "orbcontrolframe.h"

#include "attribute.h"
#include "family.h"
#include "orbextension.h"
#include "orbstyle.h"
#include "orbuni.h"
#include "reference.h"

using namespace orbchart;
using xercesc::DOMElement;

namespace {

constexpr Id id;
constexpr Reference<OrbStyle> style{OrbUni::_style};
constexpr Boolean clip{OrbUni::_clip};
constexpr AnyReference targetSpecification{OrbControlFrame::_UTF_targetSpecification};
constexpr Text targetAttribute{OrbControlFrame::_UTF_targetAttribute};
constexpr Text title{OrbControlFrame::_UTF_title};
constexpr Double min{OrbUni::_min};
constexpr Double max{OrbUni::_max};
constexpr Unsigned divisions{OrbControlFrame::_UTF_divisions};

using Attributes = AttributeList<id, style, clip, targetSpecification, targetAttribute, title, min, max, divisions>;

using Families = ChildFamilies<FamilyList<OrbExtension, OrbLocation>>;

} // namespace

template <> const ElementDescription& orbchart::descriptionOf<OrbControlFrame>() {
  return elementDescription<OrbControlFrame, Attributes, Families>;
}

struct OrbControlFrame::Children : Families {};

OrbControlFrame::OrbControlFrame(DOMElement* element) : OrbBaseElement(element), children_(new Children) {
  children_->load(*this);
  bind(*this);
}
OrbControlFrame::OrbControlFrame(DOMElement* element, const XMLCh* id) : OrbControlFrame(element) { setId(id); }
OrbControlFrame::~OrbControlFrame() = default;

const XMLCh* OrbControlFrame::getId() const { return id.get(*this); }
void OrbControlFrame::setId(const XMLCh* value) { id.set(*this, value); }
void OrbControlFrame::removeId() { id.remove(*this); }

OrbStyle* OrbControlFrame::getStyle() const { return style.get(*this); }
void OrbControlFrame::setStyle(const OrbStyle& target) { style.set(*this, target); }
void OrbControlFrame::removeStyle() { style.remove(*this); }

bool OrbControlFrame::getClip() const { return clip.get(*this); }
void OrbControlFrame::setClip(bool value) { clip.set(*this, value); }
void OrbControlFrame::removeClip() { clip.remove(*this); }

DOMElement* OrbControlFrame::getTargetSpecification() const { return targetSpecification.get(*this); }
void OrbControlFrame::setTargetSpecification(const OrbBaseElement& target) { targetSpecification.set(*this, target); }
void OrbControlFrame::removeTargetSpecification() { targetSpecification.remove(*this); }

const XMLCh* OrbControlFrame::getTargetAttribute() const { return targetAttribute.get(*this); }
void OrbControlFrame::setTargetAttribute(const XMLCh* value) { targetAttribute.set(*this, value); }
void OrbControlFrame::removeTargetAttribute() { targetAttribute.remove(*this); }

const XMLCh* OrbControlFrame::getTitle() const { return title.get(*this); }
void OrbControlFrame::setTitle(const XMLCh* value) { title.set(*this, value); }
void OrbControlFrame::removeTitle() { title.remove(*this); }

double OrbControlFrame::getMin() const { return min.get(*this); }
void OrbControlFrame::setMin(double value) { min.set(*this, value); }
void OrbControlFrame::removeMin() { min.remove(*this); }

double OrbControlFrame::getMax() const { return max.get(*this); }
void OrbControlFrame::setMax(double value) { max.set(*this, value); }
void OrbControlFrame::removeMax() { max.remove(*this); }

unsigned int OrbControlFrame::getDivisions() const { return divisions.get(*this); }
void OrbControlFrame::setDivisions(unsigned int value) { divisions.set(*this, value); }
void OrbControlFrame::removeDivisions() { divisions.remove(*this); }

OrbExtension* OrbControlFrame::addExtension() { return children_->add<OrbExtension>(*this, atEnd); }
std::vector<OrbExtension*> OrbControlFrame::getExtensions() const { return children_->all<OrbExtension>(); }
unsigned int OrbControlFrame::removeExtensions() { return children_->removeAll<OrbExtension>(*this); }

OrbLocation* OrbControlFrame::addLocation(OrbLocation::ENUM_part part) {
  return children_->add<OrbLocation>(*this, atEnd, part);
}
std::vector<OrbLocation*> OrbControlFrame::getLocations() const { return children_->all<OrbLocation>(); }
unsigned int OrbControlFrame::removeLocations() { return children_->removeAll<OrbLocation>(*this); }
