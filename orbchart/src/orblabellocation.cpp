// Where a label stands in one direction.
#include "orblabellocation.h"

#include "attribute.h"
#include "keyword.h"
#include "loading.h"
#include "orbuni.h"

using namespace orbchart;

namespace {

constexpr Keywords role{OrbUni::_role,
                        AbsentReadsAs(OrbLabelLocation::role_x),
                        {
                            {OrbLabelLocation::role_x, OrbUni::_x},
                            {OrbLabelLocation::role_y, OrbUni::_y},
                        }};

using Attributes = AttributeList<role>;

} // namespace

template <> const ElementDescription& orbchart::descriptionOf<OrbLabelLocation>() {
  return elementDescription<OrbLabelLocation, DerivedFrom<CTAesthetic>, Attributes>;
}

OrbLabelLocation::OrbLabelLocation(xercesc::DOMElement* element) : CTAesthetic(element) { bind(*this); }
OrbLabelLocation::~OrbLabelLocation() = default;

OrbLabelLocation::ENUM_role OrbLabelLocation::getRole() const { return role.get(*this); }
void OrbLabelLocation::setRole(ENUM_role value) { role.set(*this, value); }
void OrbLabelLocation::removeRole() { role.remove(*this); }
