// Links between points.
#include "orblinkstatistic.h"

#include "keyword.h"
#include "loading.h"
#include "orbuni.h"

using namespace orbchart;

namespace {

constexpr Id id;
constexpr Keywords type{
    OrbUni::_type,
    OrbLinkStatistic::type_unset,
    {
        {OrbLinkStatistic::type_byDimension, OrbLinkStatistic::_UTF_type_byDimension},
        {OrbLinkStatistic::type_complete, OrbUni::_complete},
        {OrbLinkStatistic::type_minimalSpanningTree, OrbLinkStatistic::_UTF_type_minimalSpanningTree},
        {OrbLinkStatistic::type_nearestNeighbor, OrbLinkStatistic::_UTF_type_nearestNeighbor},
        {OrbLinkStatistic::type_hull, OrbLinkStatistic::_UTF_type_hull},
        {OrbLinkStatistic::type_join, OrbLinkStatistic::_UTF_type_join},
        {OrbLinkStatistic::type_sequence, OrbLinkStatistic::_UTF_type_sequence},
        {OrbLinkStatistic::type_delaunay, OrbLinkStatistic::_UTF_type_delaunay},
        {OrbLinkStatistic::type_tsp, OrbLinkStatistic::_UTF_type_tsp},
        {OrbLinkStatistic::type_alpha, OrbUni::_alpha},
        {OrbLinkStatistic::type_gabriel, OrbLinkStatistic::_UTF_type_gabriel},
        {OrbLinkStatistic::type_relativeNeighborhood, OrbLinkStatistic::_UTF_type_relativeNeighborhood},
        {OrbLinkStatistic::type_knn, OrbUni::_knn},
        {OrbLinkStatistic::type_distance, OrbUni::_distance},
        {OrbLinkStatistic::type_influence, OrbLinkStatistic::_UTF_type_influence},
    }};
constexpr Keyword<OrbLinkStatistic::ENUM_location> locations[] = {
    {OrbLinkStatistic::location_centroid, OrbUni::_centroid},
    {OrbLinkStatistic::location_base, OrbUni::_base},
    {OrbLinkStatistic::location_origin, OrbUni::_origin},
    {OrbLinkStatistic::location_midrange, OrbUni::_midrange},
};
constexpr Keywords x{OrbUni::_x, OrbLinkStatistic::location_unset, locations};
constexpr Keywords y{OrbUni::_y, OrbLinkStatistic::location_unset, locations};
constexpr Keywords z{OrbUni::_z, OrbLinkStatistic::location_unset, locations};
constexpr Unsigned neighborCount{OrbLinkStatistic::_UTF_neighborCount};
constexpr Double radius{OrbUni::_radius};

using Attributes = AttributeList<id, type, x, y, z, neighborCount, radius>;

} // namespace

template <> const ElementDescription& orbchart::descriptionOf<OrbLinkStatistic>() {
  return elementDescription<OrbLinkStatistic, Attributes>;
}

OrbLinkStatistic::OrbLinkStatistic(xercesc::DOMElement* element) : OrbBaseElement(element) { bindLeaf(*this); }
OrbLinkStatistic::~OrbLinkStatistic() = default;

const XMLCh* OrbLinkStatistic::getId() const { return id.get(*this); }
void OrbLinkStatistic::setId(const XMLCh* value) { id.set(*this, value); }
void OrbLinkStatistic::removeId() { id.remove(*this); }

OrbLinkStatistic::ENUM_type OrbLinkStatistic::getType() const { return type.get(*this); }
void OrbLinkStatistic::setType(ENUM_type value) { type.set(*this, value); }
bool OrbLinkStatistic::isTypePresent() const { return type.isPresent(*this); }
void OrbLinkStatistic::removeType() { type.remove(*this); }

OrbLinkStatistic::ENUM_location OrbLinkStatistic::getX() const { return x.get(*this); }
void OrbLinkStatistic::setX(ENUM_location value) { x.set(*this, value); }
void OrbLinkStatistic::removeX() { x.remove(*this); }

OrbLinkStatistic::ENUM_location OrbLinkStatistic::getY() const { return y.get(*this); }
void OrbLinkStatistic::setY(ENUM_location value) { y.set(*this, value); }
void OrbLinkStatistic::removeY() { y.remove(*this); }

OrbLinkStatistic::ENUM_location OrbLinkStatistic::getZ() const { return z.get(*this); }
void OrbLinkStatistic::setZ(ENUM_location value) { z.set(*this, value); }
void OrbLinkStatistic::removeZ() { z.remove(*this); }

unsigned int OrbLinkStatistic::getNeighborCount() const { return neighborCount.get(*this); }
void OrbLinkStatistic::setNeighborCount(unsigned int value) { neighborCount.set(*this, value); }
bool OrbLinkStatistic::isNeighborCountPresent() const { return neighborCount.isPresent(*this); }
void OrbLinkStatistic::removeNeighborCount() { neighborCount.remove(*this); }

double OrbLinkStatistic::getRadius() const { return radius.get(*this); }
void OrbLinkStatistic::setRadius(double value) { radius.set(*this, value); }
bool OrbLinkStatistic::isRadiusPresent() const { return radius.isPresent(*this); }
void OrbLinkStatistic::removeRadius() { radius.remove(*this); }
