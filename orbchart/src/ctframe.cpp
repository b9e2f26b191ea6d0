// What frames of a host share.
#include "ctframe.h"

#include "attribute.h"
#include "family.h"
#include "orbextension.h"
#include "orblocation.h"
#include "orbstyle.h"
#include "orbuni.h"
#include "reference.h"

using namespace orbchart;

namespace {

constexpr Id id;
constexpr Reference<OrbStyle> style{OrbUni::_style};
constexpr Boolean clip{OrbUni::_clip};

using Attributes = AttributeList<id, style, clip>;

using Families = ChildFamilies<FamilyList<OrbExtension, OrbLocation>, Unknown::passes>;

} // namespace

template <> const ElementDescription& orbchart::descriptionOf<CTFrame>() {
  return elementDescription<CTFrame, Attributes, Families>;
}

struct CTFrame::Children : Families {};

CTFrame::CTFrame(xercesc::DOMElement* element) : OrbBaseElement(element), children_(new Children) {
  children_->load(*this);
}
CTFrame::~CTFrame() = default;

const XMLCh* CTFrame::getId() const { return id.get(*this); }
void CTFrame::setId(const XMLCh* value) { id.set(*this, value); }
bool CTFrame::isIdPresent() const { return id.isPresent(*this); }
void CTFrame::removeId() { id.remove(*this); }

OrbStyle* CTFrame::getStyle() const { return style.get(*this); }
void CTFrame::setStyle(const OrbStyle& target) { style.set(*this, target); }
bool CTFrame::isStylePresent() const { return style.isPresent(*this); }
void CTFrame::removeStyle() { style.remove(*this); }

bool CTFrame::getClip() const { return clip.get(*this); }
void CTFrame::setClip(bool value) { clip.set(*this, value); }
bool CTFrame::isClipPresent() const { return clip.isPresent(*this); }
void CTFrame::removeClip() { clip.remove(*this); }

OrbExtension* CTFrame::addExtension() { return children_->add<OrbExtension>(*this, atEnd); }
OrbLocation* CTFrame::addLocation() { return children_->add<OrbLocation>(*this, atEnd); }
unsigned int CTFrame::removeExtensions() { return children_->removeAll<OrbExtension>(*this); }
unsigned int CTFrame::removeLocations() { return children_->removeAll<OrbLocation>(*this); }
std::vector<OrbExtension*> CTFrame::getExtensions() const { return children_->all<OrbExtension>(); }
std::vector<OrbLocation*> CTFrame::getLocations() const { return children_->all<OrbLocation>(); }
