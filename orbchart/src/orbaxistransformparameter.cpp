// One parameter of the transform of an axis.
#include "orbaxistransformparameter.h"

#include "attribute.h"
#include "loading.h"
#include "orbuni.h"

using namespace orbchart;

namespace {

constexpr Id id;
constexpr Text parameterName{OrbUni::_parameterName};
constexpr Text parameterValue{OrbUni::_parameterValue};

using Attributes = AttributeList<id, parameterName, parameterValue>;

} // namespace

template <> const ElementDescription& orbchart::descriptionOf<OrbAxisTransformParameter>() {
  return elementDescription<OrbAxisTransformParameter, Attributes>;
}

OrbAxisTransformParameter::OrbAxisTransformParameter(xercesc::DOMElement* element) : OrbBaseElement(element) {
  bindLeaf(*this);
}
OrbAxisTransformParameter::~OrbAxisTransformParameter() = default;

const XMLCh* OrbAxisTransformParameter::getId() const { return id.get(*this); }
void OrbAxisTransformParameter::setId(const XMLCh* value) { id.set(*this, value); }
void OrbAxisTransformParameter::removeId() { id.remove(*this); }

const XMLCh* OrbAxisTransformParameter::getParameterName() const { return parameterName.get(*this); }
void OrbAxisTransformParameter::setParameterName(const XMLCh* value) { parameterName.set(*this, value); }
void OrbAxisTransformParameter::removeParameterName() { parameterName.remove(*this); }

const XMLCh* OrbAxisTransformParameter::getParameterValue() const { return parameterValue.get(*this); }
void OrbAxisTransformParameter::setParameterValue(const XMLCh* value) { parameterValue.set(*this, value); }
void OrbAxisTransformParameter::removeParameterValue() { parameterValue.remove(*this); }
