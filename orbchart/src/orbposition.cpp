// A coordinate of a graphic element, one of any number.
#include "orbposition.h"

#include "loading.h"

OrbPosition::OrbPosition(xercesc::DOMElement* element) : CTCoordinate(element) { orbchart::bindLeaf(*this); }
OrbPosition::~OrbPosition() = default;
