// A reference to a style.
#include "orbstylereference.h"

#include "attribute.h"
#include "loading.h"
#include "orbstyle.h"
#include "orbuni.h"
#include "reference.h"

using namespace orbchart;
using xercesc::DOMElement;

OrbStyleReference::OrbStyleReference(DOMElement* element) : OrbBaseElement(element) { bindLeaf(*this); }
OrbStyleReference::OrbStyleReference(DOMElement* element, const OrbStyle& style) : OrbStyleReference(element) {
  setRef(style);
}
OrbStyleReference::~OrbStyleReference() = default;

OrbStyle* OrbStyleReference::getRef() const { return readReference<OrbStyle>(*this, OrbUni::_ref); }
void OrbStyleReference::setRef(const OrbStyle& style) { writeReference(*this, OrbUni::_ref, style); }
void OrbStyleReference::removeRef() { removeAttribute(*this, OrbUni::_ref); }
