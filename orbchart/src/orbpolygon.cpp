// Polygons.
#include "orbpolygon.h"

#include "attribute.h"
#include "loading.h"
#include "orbuni.h"

using namespace orbchart;
using xercesc::DOMElement;

namespace {

constexpr Boolean preserveStraightLines{OrbUni::_preserveStraightLines};

using Attributes = AttributeList<preserveStraightLines>;

} // namespace

template <> const ElementDescription& orbchart::descriptionOf<OrbPolygon>() {
  return elementDescription<OrbPolygon, DerivedFrom<CTElementType>, Attributes>;
}

OrbPolygon::OrbPolygon(DOMElement* element) : CTElementType(element) { bind(*this); }
OrbPolygon::OrbPolygon(DOMElement* element, const XMLCh* id) : CTElementType(element, id) { bind(*this); }
OrbPolygon::~OrbPolygon() = default;

bool OrbPolygon::getPreserveStraightLines() const { return preserveStraightLines.get(*this); }
void OrbPolygon::setPreserveStraightLines(bool value) { preserveStraightLines.set(*this, value); }
void OrbPolygon::removePreserveStraightLines() { preserveStraightLines.remove(*this); }
