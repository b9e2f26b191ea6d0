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

constexpr Id id;
constexpr Text target{OrbUni::_target};
// The expression variable comes before the derived one here.
constexpr Taking<CTVariableType,
                 ReferenceTo<CTVariableType, OrbSourceVariable, OrbExpressionVariable, OrbDerivedVariable>>
    targetKey{OrbAttach::_UTF_targetKey};
constexpr Keywords method{OrbUni::_method,
                          OrbAttach::method_unset,
                          {
                              {OrbAttach::method_center, OrbUni::_center},
                              {OrbAttach::method_outside, OrbUni::_outside},
                              {OrbAttach::method_vertical, OrbAttach::_UTF_method_vertical},
                              {OrbAttach::method_horizontal, OrbAttach::_UTF_method_horizontal},
                              {OrbAttach::method_orthogonal, OrbAttach::_UTF_method_orthogonal},
                          }};
constexpr Keywords attachLocation{OrbAttach::_UTF_attachLocation,
                                  OrbAttach::attachLocation_unset,
                                  {
                                      {OrbAttach::attachLocation_label, OrbUni::_label},
                                      {OrbAttach::attachLocation_shape, OrbUni::_shape},
                                  }};

using Attributes = AttributeList<id, target, targetKey, method, attachLocation>;

} // namespace

template <> const ElementDescription& orbchart::descriptionOf<OrbAttach>() {
  return elementDescription<OrbAttach, Attributes>;
}

OrbAttach::OrbAttach(DOMElement* element) : OrbBaseElement(element) { bindLeaf(*this); }
OrbAttach::OrbAttach(DOMElement* element, const OrbBaseElement& /*target*/, const CTVariableType& /*key*/,
                     const CTVariableType& targetKey) :
    OrbAttach(element) {
  setTargetKey(targetKey);
}
OrbAttach::~OrbAttach() = default;

const XMLCh* OrbAttach::getId() const { return id.get(*this); }
void OrbAttach::setId(const XMLCh* value) { id.set(*this, value); }
void OrbAttach::removeId() { id.remove(*this); }

void OrbAttach::removeTarget() { target.remove(*this); }

CTVariableType* OrbAttach::getTargetKey() const { return targetKey.get(*this); }
void OrbAttach::setTargetKey(const CTVariableType& target) { targetKey.set(*this, target); }
void OrbAttach::removeTargetKey() { targetKey.remove(*this); }

OrbAttach::ENUM_method OrbAttach::getMethod() const { return method.get(*this); }
void OrbAttach::setMethod(ENUM_method value) { method.set(*this, value); }
bool OrbAttach::isMethodPresent() const { return method.isPresent(*this); }
void OrbAttach::removeMethod() { method.remove(*this); }

OrbAttach::ENUM_attachLocation OrbAttach::getAttachLocation() const { return attachLocation.get(*this); }
void OrbAttach::setAttachLocation(ENUM_attachLocation value) { attachLocation.set(*this, value); }
bool OrbAttach::isAttachLocationPresent() const { return attachLocation.isPresent(*this); }
void OrbAttach::removeAttachLocation() { attachLocation.remove(*this); }
