// A function along one dimension.
#include "orbfunctionaltransform.h"

#include "attribute.h"
#include "keyword.h"
#include "loading.h"
#include "orbuni.h"
#include "spacedimension.h"

using namespace orbchart;

namespace {

constexpr Id id;
constexpr auto& dimension = dimensionOf<OrbFunctionalTransform>;
constexpr Keywords method{OrbUni::_method,
                          AbsentReadsAs(OrbFunctionalTransform::method_cosine),
                          {
                              {OrbFunctionalTransform::method_cosine, OrbUni::_cosine},
                              {OrbFunctionalTransform::method_log, OrbUni::_log},
                              {OrbFunctionalTransform::method_power, OrbUni::_power},
                          }};
constexpr Double base{OrbUni::_base};

using Attributes = AttributeList<id, dimension, method, base>;

} // namespace

template <> const ElementDescription& orbchart::descriptionOf<OrbFunctionalTransform>() {
  return elementDescription<OrbFunctionalTransform, Attributes>;
}

OrbFunctionalTransform::OrbFunctionalTransform(xercesc::DOMElement* element) : OrbBaseElement(element) {
  bindLeaf(*this);
}
OrbFunctionalTransform::~OrbFunctionalTransform() = default;

const XMLCh* OrbFunctionalTransform::getId() const { return id.get(*this); }
void OrbFunctionalTransform::setId(const XMLCh* value) { id.set(*this, value); }
void OrbFunctionalTransform::removeId() { id.remove(*this); }

OrbFunctionalTransform::ENUM_dimension OrbFunctionalTransform::getDimension() const { return dimension.get(*this); }
void OrbFunctionalTransform::setDimension(ENUM_dimension value) { dimension.set(*this, value); }
void OrbFunctionalTransform::removeDimension() { dimension.remove(*this); }

OrbFunctionalTransform::ENUM_method OrbFunctionalTransform::getMethod() const { return method.get(*this); }
void OrbFunctionalTransform::setMethod(ENUM_method value) { method.set(*this, value); }
void OrbFunctionalTransform::removeMethod() { method.remove(*this); }

double OrbFunctionalTransform::getBase() const { return base.get(*this); }
void OrbFunctionalTransform::setBase(double value) { base.set(*this, value); }
void OrbFunctionalTransform::removeBase() { base.remove(*this); }
