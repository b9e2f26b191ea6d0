// A coordinate of a graphic element, one of any number.
#include "orbposition.h"

#include "loading.h"

using namespace orbchart;

template <> const ElementDescription& orbchart::descriptionOf<OrbPosition>() {
  return elementDescription<OrbPosition, DerivedFrom<CTCoordinate>>;
}

OrbPosition::OrbPosition(xercesc::DOMElement* element) : CTCoordinate(element) { bindLeaf(*this); }
OrbPosition::~OrbPosition() = default;
