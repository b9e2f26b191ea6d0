// The dragging of a graphic element.
#include "orbdragelement.h"

#include "attribute.h"
#include "elementreference.h"
#include "loading.h"
#include "orbuni.h"

using namespace orbchart;
using xercesc::DOMElement;

namespace {

constexpr ElementReference target{OrbUni::_target};

using Attributes = AttributeList<target>;

} // namespace

template <> const ElementDescription& orbchart::descriptionOf<OrbDragElement>() {
  return elementDescription<OrbDragElement, DerivedFrom<CTInteraction>, Attributes>;
}

OrbDragElement::OrbDragElement(DOMElement* element) : CTInteraction(element) { bindLeaf(*this); }
OrbDragElement::OrbDragElement(DOMElement* element, const CTElementType& target) : OrbDragElement(element) {
  setTarget(target);
}
OrbDragElement::~OrbDragElement() = default;

CTElementType* OrbDragElement::getTarget() const { return target.get(*this); }
void OrbDragElement::setTarget(const CTElementType& newTarget) { target.set(*this, newTarget); }
bool OrbDragElement::isTargetPresent() const { return target.isPresent(*this); }
void OrbDragElement::removeTarget() { target.remove(*this); }
