// Polygons.
#include "orbpolygon.h"

#include "attribute.h"
#include "loading.h"
#include "orbuni.h"

using namespace orbchart;
using xercesc::DOMElement;

OrbPolygon::OrbPolygon(DOMElement* element) : CTElementType(element) { bind(*this); }
OrbPolygon::OrbPolygon(DOMElement* element, const XMLCh* id) : CTElementType(element, id) { bind(*this); }
OrbPolygon::~OrbPolygon() = default;

bool OrbPolygon::getPreserveStraightLines() const { return readBoolean(*this, OrbUni::_preserveStraightLines); }
void OrbPolygon::setPreserveStraightLines(bool preserveStraightLines) {
  writeBoolean(*this, OrbUni::_preserveStraightLines, preserveStraightLines);
}
void OrbPolygon::removePreserveStraightLines() { removeAttribute(*this, OrbUni::_preserveStraightLines); }
