// A style under a condition.
#include "orbconditionalstyle.h"

#include "attribute.h"
#include "loading.h"
#include "orbstyle.h"
#include "orbuni.h"
#include "reference.h"

using namespace orbchart;
using xercesc::DOMElement;

OrbConditionalStyle::OrbConditionalStyle(DOMElement* element) : OrbBaseElement(element) { bindLeaf(*this); }
OrbConditionalStyle::OrbConditionalStyle(DOMElement* element, const XMLCh* when, const OrbStyle& style) :
    OrbConditionalStyle(element) {
  setWhen(when);
  setStyle(style);
}
OrbConditionalStyle::~OrbConditionalStyle() = default;

const XMLCh* OrbConditionalStyle::getId() const { return GetAttribute(OrbUni::_id); }
void OrbConditionalStyle::setId(const XMLCh* id) { writeId(*this, id); }
void OrbConditionalStyle::removeId() { removeAttribute(*this, OrbUni::_id); }

const XMLCh* OrbConditionalStyle::getWhen() const { return GetAttribute(OrbUni::_when); }
void OrbConditionalStyle::setWhen(const XMLCh* when) { SetAttribute(OrbUni::_when, when); }

OrbStyle* OrbConditionalStyle::getStyle() const { return readReference<OrbStyle>(*this, OrbUni::_style); }
void OrbConditionalStyle::setStyle(const OrbStyle& style) { writeReference(*this, OrbUni::_style, style); }
