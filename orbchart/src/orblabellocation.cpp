// Where a label stands in one direction.
#include "orblabellocation.h"

#include "attribute.h"
#include "keyword.h"
#include "loading.h"
#include "orbuni.h"

using namespace orbchart;

namespace {

constexpr Keyword<OrbLabelLocation::ENUM_role> roles[] = {
    {OrbLabelLocation::role_x, OrbUni::_x},
    {OrbLabelLocation::role_y, OrbUni::_y},
};

} // namespace

OrbLabelLocation::OrbLabelLocation(xercesc::DOMElement* element) : CTAesthetic(element) { bind(*this); }
OrbLabelLocation::~OrbLabelLocation() = default;

OrbLabelLocation::ENUM_role OrbLabelLocation::getRole() const {
  return readKeyword(*this, OrbUni::_role, roles, role_x);
}
void OrbLabelLocation::setRole(ENUM_role role) { writeKeyword(*this, OrbUni::_role, roles, role); }
void OrbLabelLocation::removeRole() { removeAttribute(*this, OrbUni::_role); }
