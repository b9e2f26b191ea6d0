// A reference to a style.
#include "orbstylereference.h"

#include "attribute.h"
#include "loading.h"
#include "orbstyle.h"
#include "orbuni.h"
#include "reference.h"

using namespace orbchart;
using xercesc::DOMElement;

namespace {

constexpr Reference<OrbStyle> ref{OrbUni::_ref};

using Attributes = AttributeList<ref>;

} // namespace

template <> const ElementDescription& orbchart::descriptionOf<OrbStyleReference>() {
  return elementDescription<OrbStyleReference, Attributes>;
}

OrbStyleReference::OrbStyleReference(DOMElement* element) : OrbBaseElement(element) { bindLeaf(*this); }
OrbStyleReference::OrbStyleReference(DOMElement* element, const OrbStyle& style) : OrbStyleReference(element) {
  setRef(style);
}
OrbStyleReference::~OrbStyleReference() = default;

OrbStyle* OrbStyleReference::getRef() const { return ref.get(*this); }
void OrbStyleReference::setRef(const OrbStyle& target) { ref.set(*this, target); }
void OrbStyleReference::removeRef() { ref.remove(*this); }
