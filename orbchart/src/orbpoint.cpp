// Points.
#include "orbpoint.h"

#include "loading.h"

using namespace orbchart;
using xercesc::DOMElement;

OrbPoint::OrbPoint(DOMElement* element) : CTElementType(element) { bind(*this); }
OrbPoint::OrbPoint(DOMElement* element, const XMLCh* id) : CTElementType(element, id) { bind(*this); }
OrbPoint::~OrbPoint() = default;
