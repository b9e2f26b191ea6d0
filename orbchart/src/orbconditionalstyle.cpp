// A style under a condition.
#include "orbconditionalstyle.h"

#include "attribute.h"
#include "loading.h"
#include "orbstyle.h"
#include "orbuni.h"
#include "reference.h"

using namespace orbchart;
using xercesc::DOMElement;

namespace {

constexpr Id id;
constexpr Text when{OrbUni::_when};
constexpr Reference<OrbStyle> style{OrbUni::_style};

using Attributes = AttributeList<id, when, style>;

} // namespace

template <> const ElementDescription& orbchart::descriptionOf<OrbConditionalStyle>() {
  return elementDescription<OrbConditionalStyle, Attributes>;
}

OrbConditionalStyle::OrbConditionalStyle(DOMElement* element) : OrbBaseElement(element) { bindLeaf(*this); }
OrbConditionalStyle::OrbConditionalStyle(DOMElement* element, const XMLCh* when, const OrbStyle& style) :
    OrbConditionalStyle(element) {
  setWhen(when);
  setStyle(style);
}
OrbConditionalStyle::~OrbConditionalStyle() = default;

const XMLCh* OrbConditionalStyle::getId() const { return id.get(*this); }
void OrbConditionalStyle::setId(const XMLCh* value) { id.set(*this, value); }
void OrbConditionalStyle::removeId() { id.remove(*this); }

const XMLCh* OrbConditionalStyle::getWhen() const { return when.get(*this); }
void OrbConditionalStyle::setWhen(const XMLCh* value) { when.set(*this, value); }

OrbStyle* OrbConditionalStyle::getStyle() const { return style.get(*this); }
void OrbConditionalStyle::setStyle(const OrbStyle& target) { style.set(*this, target); }
