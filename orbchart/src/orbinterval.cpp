// Bars.
#include "orbinterval.h"

#include "attribute.h"
#include "loading.h"

using namespace orbchart;
using xercesc::DOMElement;

OrbInterval::OrbInterval(DOMElement* element) : CTElementType(element) { bind(*this); }
OrbInterval::OrbInterval(DOMElement* element, const XMLCh* id) : CTElementType(element, id) { bind(*this); }
OrbInterval::~OrbInterval() = default;

bool OrbInterval::getCenterIn3D() const { return readBoolean(*this, _UTF_centerIn3D); }
void OrbInterval::setCenterIn3D(bool centerIn3D) { writeBoolean(*this, _UTF_centerIn3D, centerIn3D); }
void OrbInterval::removeCenterIn3D() { removeAttribute(*this, _UTF_centerIn3D); }
