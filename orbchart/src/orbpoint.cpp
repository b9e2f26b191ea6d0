// Points.
#include "orbpoint.h"

#include "attribute.h"
#include "loading.h"

using namespace orbchart;
using xercesc::DOMElement;

template <> const ElementDescription& orbchart::descriptionOf<OrbPoint>() {
  return elementDescription<OrbPoint, DerivedFrom<CTElementType>>;
}

OrbPoint::OrbPoint(DOMElement* element) : CTElementType(element) { bind(*this); }
OrbPoint::OrbPoint(DOMElement* element, const XMLCh* id) : CTElementType(element, id) { bind(*this); }
OrbPoint::~OrbPoint() = default;
