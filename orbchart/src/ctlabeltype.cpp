// What labels and alternate labels share.
#include "ctlabeltype.h"

#include "attribute.h"
#include "family.h"
#include "orbalternatelabel.h"
#include "orbdescriptiongroup.h"
#include "orbstyle.h"
#include "orbtext.h"
#include "orbuni.h"
#include "reference.h"

using namespace orbchart;

namespace {

constexpr Id id;
constexpr Reference<OrbStyle> style{OrbUni::_style};
constexpr Reference<OrbStyle> textFrameStyle{CTLabelType::_UTF_textFrameStyle};
constexpr Integer zOrder{OrbUni::_zOrder};

using Attributes = AttributeList<id, style, textFrameStyle, zOrder>;

// Texts do not count.
using AfterDescriptionGroups = FamilyList<OrbAlternateLabel>;
using Families = ChildFamilies<Joined<FamilyList<OrbDescriptionGroup, OrbText>, AfterDescriptionGroups>>;

} // namespace

template <> const ElementDescription& orbchart::descriptionOf<CTLabelType>() {
  return elementDescription<CTLabelType, Attributes, Families>;
}

struct CTLabelType::Children : Families {};

CTLabelType::CTLabelType(xercesc::DOMElement* element) : OrbBaseElement(element), children_(new Children) {
  children_->load(*this);
}
CTLabelType::~CTLabelType() = default;

const XMLCh* CTLabelType::getId() const { return id.get(*this); }
void CTLabelType::setId(const XMLCh* value) { id.set(*this, value); }
void CTLabelType::removeId() { id.remove(*this); }

OrbStyle* CTLabelType::getStyle() const { return style.get(*this); }
void CTLabelType::setStyle(const OrbStyle& target) { style.set(*this, target); }
void CTLabelType::removeStyle() { style.remove(*this); }

OrbStyle* CTLabelType::getTextFrameStyle() const { return textFrameStyle.get(*this); }
void CTLabelType::setTextFrameStyle(const OrbStyle& target) { textFrameStyle.set(*this, target); }
void CTLabelType::removeTextFrameStyle() { textFrameStyle.remove(*this); }

int CTLabelType::getZOrder() const { return zOrder.get(*this); }
void CTLabelType::setZOrder(int value) { zOrder.set(*this, value); }
void CTLabelType::removeZOrder() { zOrder.remove(*this); }

OrbDescriptionGroup* CTLabelType::addDescriptionGroup(const OrbBaseElement& target) {
  return children_->add<OrbDescriptionGroup>(*this, AfterDescriptionGroups{}, target);
}
std::vector<OrbDescriptionGroup*> CTLabelType::getDescriptionGroups() const {
  return children_->all<OrbDescriptionGroup>();
}
unsigned int CTLabelType::removeDescriptionGroups() { return children_->removeAll<OrbDescriptionGroup>(*this); }

OrbText* CTLabelType::addText() { return children_->add<OrbText>(*this, atEnd); }
std::vector<OrbText*> CTLabelType::getTexts() const { return children_->all<OrbText>(); }
unsigned int CTLabelType::removeTexts() { return children_->removeAll<OrbText>(*this); }

OrbAlternateLabel* CTLabelType::addAlternateLabel() { return children_->add<OrbAlternateLabel>(*this, atEnd); }
std::vector<OrbAlternateLabel*> CTLabelType::getAlternateLabels() const { return children_->all<OrbAlternateLabel>(); }
unsigned int CTLabelType::removeAlternateLabels() { return children_->removeAll<OrbAlternateLabel>(*this); }
