// A plane laid over a graph.
#include "orbplaneguide.h"

#include "keyword.h"
#include "loading.h"
#include "orbuni.h"

using namespace orbchart;

namespace {

constexpr Keywords normal{OrbUni::_normal,
                          AbsentReadsAs(OrbPlaneGuide::normal_x),
                          {
                              {OrbPlaneGuide::normal_x, OrbUni::_x},
                              {OrbPlaneGuide::normal_y, OrbUni::_y},
                              {OrbPlaneGuide::normal_z, OrbUni::_z},
                          }};

using Attributes = AttributeList<normal>;

} // namespace

template <> const ElementDescription& orbchart::descriptionOf<OrbPlaneGuide>() {
  return elementDescription<OrbPlaneGuide, DerivedFrom<CTGuideType>, Attributes>;
}

OrbPlaneGuide::OrbPlaneGuide(xercesc::DOMElement* element) : CTGuideType(element) { bind(*this); }
OrbPlaneGuide::~OrbPlaneGuide() = default;

OrbPlaneGuide::ENUM_normal OrbPlaneGuide::getNormal() const { return normal.get(*this); }
void OrbPlaneGuide::setNormal(ENUM_normal value) { normal.set(*this, value); }
void OrbPlaneGuide::removeNormal() { normal.remove(*this); }
