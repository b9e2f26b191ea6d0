// The y coordinate of a graphic element.
#include "orby.h"

#include "loading.h"

using namespace orbchart;

template <> const ElementDescription& orbchart::descriptionOf<OrbY>() {
  return elementDescription<OrbY, DerivedFrom<CTCoordinate>>;
}

OrbY::OrbY(xercesc::DOMElement* element) : CTCoordinate(element) { bindLeaf(*this); }
OrbY::~OrbY() = default;
