// A variable reference for one graphic element.
#include "orbelementvariablereference.h"

#include "attribute.h"
#include "ctelementtype.h"
#include "ctvariabletype.h"
#include "loading.h"
#include "orbuni.h"
#include "reference.h"

using namespace orbchart;

OrbElementVariableReference::OrbElementVariableReference(xercesc::DOMElement* element) : OrbBaseElement(element) {
  bindLeaf(*this);
}
OrbElementVariableReference::~OrbElementVariableReference() = default;

const XMLCh* OrbElementVariableReference::getId() const { return GetAttribute(OrbUni::_id); }
void OrbElementVariableReference::setId(const XMLCh* id) { writeId(*this, id); }
bool OrbElementVariableReference::isIdPresent() const { return isPresent(*this, OrbUni::_id); }
void OrbElementVariableReference::removeId() { removeAttribute(*this, OrbUni::_id); }

// Neither getter finds a wrapper: they look under no key.
CTElementType* OrbElementVariableReference::getElement() const { return nullptr; }
void OrbElementVariableReference::setElement(const CTElementType& element) {
  writeReference(*this, OrbUni::_element, element);
}
bool OrbElementVariableReference::isElementPresent() const { return isPresent(*this, OrbUni::_element); }
void OrbElementVariableReference::removeElement() { removeAttribute(*this, OrbUni::_element); }

CTVariableType* OrbElementVariableReference::getRef() const { return nullptr; }
void OrbElementVariableReference::setRef(const CTVariableType& variable) {
  writeReference(*this, OrbUni::_ref, variable);
}
bool OrbElementVariableReference::isRefPresent() const { return isPresent(*this, OrbUni::_ref); }
void OrbElementVariableReference::removeRef() { removeAttribute(*this, OrbUni::_ref); }
