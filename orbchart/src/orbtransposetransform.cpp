// An exchange of two dimensions.
#include "orbtransposetransform.h"

#include "attribute.h"
#include "loading.h"

using namespace orbchart;

namespace {

constexpr Id id;
constexpr Unsigned dimension1{OrbTransposeTransform::_UTF_dimension1};
constexpr Unsigned dimension2{OrbTransposeTransform::_UTF_dimension2};

using Attributes = AttributeList<id, dimension1, dimension2>;

} // namespace

template <> const ElementDescription& orbchart::descriptionOf<OrbTransposeTransform>() {
  return elementDescription<OrbTransposeTransform, Attributes>;
}

OrbTransposeTransform::OrbTransposeTransform(xercesc::DOMElement* element) : OrbBaseElement(element) {
  bindLeaf(*this);
}
OrbTransposeTransform::~OrbTransposeTransform() = default;

const XMLCh* OrbTransposeTransform::getId() const { return id.get(*this); }
void OrbTransposeTransform::setId(const XMLCh* value) { id.set(*this, value); }
void OrbTransposeTransform::removeId() { id.remove(*this); }

unsigned int OrbTransposeTransform::getDimension1() const { return dimension1.get(*this); }
void OrbTransposeTransform::setDimension1(unsigned int value) { dimension1.set(*this, value); }
bool OrbTransposeTransform::isDimension1Present() const { return dimension1.isPresent(*this); }
void OrbTransposeTransform::removeDimension1() { dimension1.remove(*this); }

unsigned int OrbTransposeTransform::getDimension2() const { return dimension2.get(*this); }
void OrbTransposeTransform::setDimension2(unsigned int value) { dimension2.set(*this, value); }
bool OrbTransposeTransform::isDimension2Present() const { return dimension2.isPresent(*this); }
void OrbTransposeTransform::removeDimension2() { dimension2.remove(*this); }
