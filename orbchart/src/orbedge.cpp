// The edges of a network.
#include "orbedge.h"

#include "attribute.h"
#include "loading.h"
#include "orbuni.h"

using namespace orbchart;
using xercesc::DOMElement;

namespace {

constexpr Boolean preserveStraightLines{OrbUni::_preserveStraightLines};

using Attributes = AttributeList<preserveStraightLines>;

} // namespace

template <> const ElementDescription& orbchart::descriptionOf<OrbEdge>() {
  return elementDescription<OrbEdge, DerivedFrom<CTElementType>, Attributes>;
}

OrbEdge::OrbEdge(DOMElement* element) : CTElementType(element) { bind(*this); }
OrbEdge::~OrbEdge() = default;

bool OrbEdge::getPreserveStraightLines() const { return preserveStraightLines.get(*this); }
void OrbEdge::setPreserveStraightLines(bool value) { preserveStraightLines.set(*this, value); }
bool OrbEdge::isPreserveStraightLinesPresent() const { return preserveStraightLines.isPresent(*this); }
void OrbEdge::removePreserveStraightLines() { preserveStraightLines.remove(*this); }
