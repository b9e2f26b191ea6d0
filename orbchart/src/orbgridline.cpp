// A grid line.
#include "orbgridline.h"

#include "attribute.h"
#include "family.h"
#include "orbconditionalstyle.h"
#include "orbstyle.h"
#include "orbstylereference.h"
#include "orbuni.h"
#include "reference.h"

using namespace orbchart;

namespace {

constexpr Id id;
constexpr Reference<OrbStyle> style{OrbUni::_style};
constexpr Integer zOrder{OrbUni::_zOrder};

using Attributes = AttributeList<id, style, zOrder>;

constexpr OnlyOne oneConditionalStyle{"ConditionalStyle", "Gridline"};
constexpr OnlyOne oneStyleReference{"StyleReference", "Gridline"};

using AfterConditionalStyles = FamilyList<Limited<OrbStyleReference, oneStyleReference>>;
using Families =
    ChildFamilies<Joined<FamilyList<Limited<OrbConditionalStyle, oneConditionalStyle>>, AfterConditionalStyles>>;

} // namespace

template <> const ElementDescription& orbchart::descriptionOf<OrbGridline>() {
  return elementDescription<OrbGridline, Attributes, Families>;
}

struct OrbGridline::Children : Families {};

OrbGridline::OrbGridline(xercesc::DOMElement* element) : OrbBaseElement(element), children_(new Children) {
  children_->load(*this);
  bind(*this);
}
OrbGridline::~OrbGridline() = default;

const XMLCh* OrbGridline::getId() const { return id.get(*this); }
void OrbGridline::setId(const XMLCh* value) { id.set(*this, value); }
void OrbGridline::removeId() { id.remove(*this); }

OrbStyle* OrbGridline::getStyle() const { return style.get(*this); }
void OrbGridline::setStyle(const OrbStyle& target) { style.set(*this, target); }
void OrbGridline::removeStyle() { style.remove(*this); }

int OrbGridline::getZOrder() const { return zOrder.get(*this); }
void OrbGridline::setZOrder(int value) { zOrder.set(*this, value); }
void OrbGridline::removeZOrder() { zOrder.remove(*this); }

OrbConditionalStyle* OrbGridline::addConditionalStyle(const XMLCh* when, const OrbStyle& style) {
  return children_->add<OrbConditionalStyle>(*this, AfterConditionalStyles{}, when, style);
}
OrbConditionalStyle* OrbGridline::getConditionalStyle() const { return children_->first<OrbConditionalStyle>(); }
unsigned int OrbGridline::removeConditionalStyles() { return children_->removeAll<OrbConditionalStyle>(*this); }

OrbStyleReference* OrbGridline::addStyleReference() { return children_->add<OrbStyleReference>(*this, atEnd); }
OrbStyleReference* OrbGridline::getStyleReference() const { return children_->first<OrbStyleReference>(); }
unsigned int OrbGridline::removeStyleReferences() { return children_->removeAll<OrbStyleReference>(*this); }
