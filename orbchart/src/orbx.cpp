// The x coordinate of a graphic element.
#include "orbx.h"

#include "loading.h"

OrbX::OrbX(xercesc::DOMElement* element) : CTCoordinate(element) { orbchart::bindLeaf(*this); }
OrbX::~OrbX() = default;
