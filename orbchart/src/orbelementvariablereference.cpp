// A variable reference for one graphic element.
#include "orbelementvariablereference.h"

#include "attribute.h"
#include "ctelementtype.h"
#include "ctvariabletype.h"
#include "loading.h"
#include "orbuni.h"
#include "reference.h"

using namespace orbchart;

namespace {

constexpr Id id;
// Their getters look under no key and find nothing.
constexpr Taking<CTElementType, ReferenceTo<CTElementType>> element{OrbUni::_element};
constexpr Taking<CTVariableType, ReferenceTo<CTVariableType>> ref{OrbUni::_ref};

using Attributes = AttributeList<id, element, ref>;

} // namespace

template <> const ElementDescription& orbchart::descriptionOf<OrbElementVariableReference>() {
  return elementDescription<OrbElementVariableReference, Attributes>;
}

OrbElementVariableReference::OrbElementVariableReference(xercesc::DOMElement* element) : OrbBaseElement(element) {
  bindLeaf(*this);
}
OrbElementVariableReference::~OrbElementVariableReference() = default;

const XMLCh* OrbElementVariableReference::getId() const { return id.get(*this); }
void OrbElementVariableReference::setId(const XMLCh* value) { id.set(*this, value); }
bool OrbElementVariableReference::isIdPresent() const { return id.isPresent(*this); }
void OrbElementVariableReference::removeId() { id.remove(*this); }

CTElementType* OrbElementVariableReference::getElement() const { return element.get(*this); }
void OrbElementVariableReference::setElement(const CTElementType& target) { element.set(*this, target); }
bool OrbElementVariableReference::isElementPresent() const { return element.isPresent(*this); }
void OrbElementVariableReference::removeElement() { element.remove(*this); }

CTVariableType* OrbElementVariableReference::getRef() const { return ref.get(*this); }
void OrbElementVariableReference::setRef(const CTVariableType& target) { ref.set(*this, target); }
bool OrbElementVariableReference::isRefPresent() const { return ref.isPresent(*this); }
void OrbElementVariableReference::removeRef() { ref.remove(*this); }
