// The x coordinate of a graphic element.
#include "orbx.h"

#include "loading.h"

using namespace orbchart;

template <> const ElementDescription& orbchart::descriptionOf<OrbX>() {
  return elementDescription<OrbX, DerivedFrom<CTCoordinate>>;
}

OrbX::OrbX(xercesc::DOMElement* element) : CTCoordinate(element) { bindLeaf(*this); }
OrbX::~OrbX() = default;
