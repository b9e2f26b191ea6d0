// The edges of a network.
#include "orbedge.h"

#include "attribute.h"
#include "loading.h"
#include "orbuni.h"

using namespace orbchart;
using xercesc::DOMElement;

OrbEdge::OrbEdge(DOMElement* element) : CTElementType(element) { bind(*this); }
OrbEdge::~OrbEdge() = default;

bool OrbEdge::getPreserveStraightLines() const { return readBoolean(*this, OrbUni::_preserveStraightLines); }
void OrbEdge::setPreserveStraightLines(bool preserveStraightLines) {
  writeBoolean(*this, OrbUni::_preserveStraightLines, preserveStraightLines);
}
bool OrbEdge::isPreserveStraightLinesPresent() const { return isPresent(*this, OrbUni::_preserveStraightLines); }
void OrbEdge::removePreserveStraightLines() { removeAttribute(*this, OrbUni::_preserveStraightLines); }
