// A reference to a dimension.
#include "orbdimensionreference.h"

#include "attribute.h"
#include "loading.h"
#include "orbdimension.h"
#include "reference.h"

using namespace orbchart;
using xercesc::DOMElement;

namespace {

constexpr Reference<OrbDimension> ref{OrbDimensionReference::_ref};

using Attributes = AttributeList<ref>;

} // namespace

template <> const ElementDescription& orbchart::descriptionOf<OrbDimensionReference>() {
  return elementDescription<OrbDimensionReference, Attributes>;
}

OrbDimensionReference::OrbDimensionReference(DOMElement* element) : OrbBaseElement(element) { bindLeaf(*this); }
OrbDimensionReference::OrbDimensionReference(DOMElement* element, const OrbDimension& dimension) :
    OrbDimensionReference(element) {
  setRef(dimension);
}
OrbDimensionReference::~OrbDimensionReference() = default;

OrbDimension* OrbDimensionReference::getRef() const { return ref.get(*this); }
void OrbDimensionReference::setRef(const OrbDimension& target) { ref.set(*this, target); }
void OrbDimensionReference::removeRef() { ref.remove(*this); }
