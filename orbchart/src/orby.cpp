// The y coordinate of a graphic element.
#include "orby.h"

#include "loading.h"

OrbY::OrbY(xercesc::DOMElement* element) : CTCoordinate(element) { orbchart::bindLeaf(*this); }
OrbY::~OrbY() = default;
