// The z coordinate of a graphic element.
#include "orbz.h"

#include "loading.h"

OrbZ::OrbZ(xercesc::DOMElement* element) : CTCoordinate(element) { orbchart::bindLeaf(*this); }
OrbZ::~OrbZ() = default;
