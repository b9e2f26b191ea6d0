// What ties a graphic element or a faceting to a target.
#include "orbattach.h"

#include "attribute.h"
#include "keyword.h"
#include "loading.h"
#include "orbderivedvariable.h"
#include "orbexpressionvariable.h"
#include "orbsourcevariable.h"
#include "orbuni.h"
#include "reference.h"

using namespace orbchart;
using xercesc::DOMElement;

namespace {

constexpr Keyword<OrbAttach::ENUM_method> methods[] = {
    {OrbAttach::method_center, OrbUni::_center},
    {OrbAttach::method_outside, OrbUni::_outside},
    {OrbAttach::method_vertical, OrbAttach::_UTF_method_vertical},
    {OrbAttach::method_horizontal, OrbAttach::_UTF_method_horizontal},
    {OrbAttach::method_orthogonal, OrbAttach::_UTF_method_orthogonal},
};

constexpr Keyword<OrbAttach::ENUM_attachLocation> attachLocations[] = {
    {OrbAttach::attachLocation_label, OrbUni::_label},
    {OrbAttach::attachLocation_shape, OrbUni::_shape},
};

} // namespace

OrbAttach::OrbAttach(DOMElement* element) : OrbBaseElement(element) { bindLeaf(*this); }
OrbAttach::OrbAttach(DOMElement* element, const OrbBaseElement& /*target*/, const CTVariableType& /*key*/,
                     const CTVariableType& targetKey) :
    OrbAttach(element) {
  setTargetKey(targetKey);
}
OrbAttach::~OrbAttach() = default;

const XMLCh* OrbAttach::getId() const { return GetAttribute(OrbUni::_id); }
void OrbAttach::setId(const XMLCh* id) { writeId(*this, id); }
void OrbAttach::removeId() { removeAttribute(*this, OrbUni::_id); }

void OrbAttach::removeTarget() { removeAttribute(*this, OrbUni::_target); }

// The expression variable comes before the derived one here.
CTVariableType* OrbAttach::getTargetKey() const {
  return readReferenceTo<CTVariableType, OrbSourceVariable, OrbExpressionVariable, OrbDerivedVariable>(*this,
                                                                                                       _UTF_targetKey);
}
void OrbAttach::setTargetKey(const CTVariableType& targetKey) { writeReference(*this, _UTF_targetKey, targetKey); }
void OrbAttach::removeTargetKey() { removeAttribute(*this, _UTF_targetKey); }

OrbAttach::ENUM_method OrbAttach::getMethod() const {
  return readKeyword(*this, OrbUni::_method, methods, method_unset);
}
void OrbAttach::setMethod(ENUM_method method) { writeKeyword(*this, OrbUni::_method, methods, method); }
bool OrbAttach::isMethodPresent() const { return isPresent(*this, OrbUni::_method); }
void OrbAttach::removeMethod() { removeAttribute(*this, OrbUni::_method); }

OrbAttach::ENUM_attachLocation OrbAttach::getAttachLocation() const {
  return readKeyword(*this, _UTF_attachLocation, attachLocations, attachLocation_unset);
}
void OrbAttach::setAttachLocation(ENUM_attachLocation attachLocation) {
  writeKeyword(*this, _UTF_attachLocation, attachLocations, attachLocation);
}
bool OrbAttach::isAttachLocationPresent() const { return isPresent(*this, _UTF_attachLocation); }
void OrbAttach::removeAttachLocation() { removeAttribute(*this, _UTF_attachLocation); }
