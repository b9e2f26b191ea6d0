// What the guides of a graph share.
#include "ctguidetype.h"

#include "attribute.h"
#include "family.h"
#include "orbconditionalstyle.h"
#include "orbextension.h"
#include "orblabel.h"
#include "orbstyle.h"
#include "orbuni.h"
#include "reference.h"

using namespace orbchart;

namespace {

constexpr Id id;
constexpr Reference<OrbStyle> style{OrbUni::_style};
constexpr Integer zOrder{OrbUni::_zOrder};
constexpr Text name{OrbUni::_name};

using Attributes = AttributeList<id, style, zOrder, name>;

// Extensions do not count.
using AfterLabels = FamilyList<OrbConditionalStyle>;
using Families = ChildFamilies<Joined<FamilyList<OrbLabel>, AfterLabels, FamilyList<OrbExtension>>>;

} // namespace

template <> const ElementDescription& orbchart::descriptionOf<CTGuideType>() {
  return elementDescription<CTGuideType, Attributes, Families>;
}

struct CTGuideType::Children : Families {};

CTGuideType::CTGuideType(xercesc::DOMElement* element) : OrbBaseElement(element), children_(new Children) {
  children_->load(*this);
}
CTGuideType::~CTGuideType() = default;

const XMLCh* CTGuideType::getId() const { return id.get(*this); }
void CTGuideType::setId(const XMLCh* value) { id.set(*this, value); }
void CTGuideType::removeId() { id.remove(*this); }

OrbStyle* CTGuideType::getStyle() const { return style.get(*this); }
void CTGuideType::setStyle(const OrbStyle& target) { style.set(*this, target); }
void CTGuideType::removeStyle() { style.remove(*this); }

int CTGuideType::getZOrder() const { return zOrder.get(*this); }
void CTGuideType::setZOrder(int value) { zOrder.set(*this, value); }
void CTGuideType::removeZOrder() { zOrder.remove(*this); }

const XMLCh* CTGuideType::getName() const { return name.get(*this); }
void CTGuideType::setName(const XMLCh* value) { name.set(*this, value); }
bool CTGuideType::isNamePresent() const { return name.isPresent(*this); }
void CTGuideType::removeName() { name.remove(*this); }

OrbLabel* CTGuideType::addLabel() { return children_->add<OrbLabel>(*this, AfterLabels{}); }
std::vector<OrbLabel*> CTGuideType::getLabels() const { return children_->all<OrbLabel>(); }
unsigned int CTGuideType::removeLabels() { return children_->removeAll<OrbLabel>(*this); }

OrbConditionalStyle* CTGuideType::addConditionalStyle(const XMLCh* when, const OrbStyle& style) {
  return children_->add<OrbConditionalStyle>(*this, atEnd, when, style);
}
std::vector<OrbConditionalStyle*> CTGuideType::getConditionalStyles() const {
  return children_->all<OrbConditionalStyle>();
}
unsigned int CTGuideType::removeConditionalStyles() { return children_->removeAll<OrbConditionalStyle>(*this); }

OrbExtension* CTGuideType::addExtension() { return children_->add<OrbExtension>(*this, atEnd); }
std::vector<OrbExtension*> CTGuideType::getExtensions() const { return children_->all<OrbExtension>(); }
unsigned int CTGuideType::removeExtensions() { return children_->removeAll<OrbExtension>(*this); }
