// A reference to a dimension.
#include "orbdimensionreference.h"

#include "attribute.h"
#include "loading.h"
#include "orbdimension.h"
#include "reference.h"

using namespace orbchart;
using xercesc::DOMElement;

OrbDimensionReference::OrbDimensionReference(DOMElement* element) : OrbBaseElement(element) { bindLeaf(*this); }
OrbDimensionReference::OrbDimensionReference(DOMElement* element, const OrbDimension& dimension) :
    OrbDimensionReference(element) {
  setRef(dimension);
}
OrbDimensionReference::~OrbDimensionReference() = default;

OrbDimension* OrbDimensionReference::getRef() const { return readReference<OrbDimension>(*this, _ref); }
void OrbDimensionReference::setRef(const OrbDimension& dimension) { writeReference(*this, _ref, dimension); }
void OrbDimensionReference::removeRef() { removeAttribute(*this, _ref); }
