// The z coordinate of a graphic element.
#include "orbz.h"

#include "loading.h"

using namespace orbchart;

template <> const ElementDescription& orbchart::descriptionOf<OrbZ>() {
  return elementDescription<OrbZ, DerivedFrom<CTCoordinate>>;
}

OrbZ::OrbZ(xercesc::DOMElement* element) : CTCoordinate(element) { bindLeaf(*this); }
OrbZ::~OrbZ() = default;
