// A map projection.
#include "orbmapprojection.h"

#include "attribute.h"
#include "keyword.h"
#include "loading.h"
#include "orbuni.h"

using namespace orbchart;

namespace {

constexpr Id id;
constexpr Keywords type{OrbUni::_type,
                        OrbMapProjection::type_unset,
                        {
                            {OrbMapProjection::type_lambert, OrbUni::_lambert},
                            {OrbMapProjection::type_mercator, OrbUni::_mercator},
                            {OrbMapProjection::type_transverseMercator, OrbMapProjection::_UTF_type_transverseMercator},
                            {OrbMapProjection::type_orthographic, OrbUni::_orthographic},
                            {OrbMapProjection::type_winkelTripel, OrbMapProjection::_UTF_type_winkelTripel},
                            {OrbMapProjection::type_local, OrbMapProjection::_UTF_type_local},
                        }};

using Attributes = AttributeList<id, type>;

} // namespace

template <> const ElementDescription& orbchart::descriptionOf<OrbMapProjection>() {
  return elementDescription<OrbMapProjection, Attributes>;
}

OrbMapProjection::OrbMapProjection(xercesc::DOMElement* element) : OrbBaseElement(element) { bindLeaf(*this); }
OrbMapProjection::~OrbMapProjection() = default;

const XMLCh* OrbMapProjection::getId() const { return id.get(*this); }
void OrbMapProjection::setId(const XMLCh* value) { id.set(*this, value); }
bool OrbMapProjection::isIdPresent() const { return id.isPresent(*this); }
void OrbMapProjection::removeId() { id.remove(*this); }

OrbMapProjection::ENUM_type OrbMapProjection::getType() const { return type.get(*this); }
void OrbMapProjection::setType(ENUM_type value) { type.set(*this, value); }
bool OrbMapProjection::isTypePresent() const { return type.isPresent(*this); }
void OrbMapProjection::removeType() { type.remove(*this); }
