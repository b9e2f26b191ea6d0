// A sorting of rows into bins.
#include "orbbinstatistic.h"

#include "attribute.h"
#include "keyword.h"
#include "loading.h"
#include "orbuni.h"

using namespace orbchart;

namespace {

constexpr Keyword<OrbBinStatistic::ENUM_method> methods[] = {
    {OrbBinStatistic::method_aggregate, OrbBinStatistic::_UTF_method_aggregate},
    {OrbBinStatistic::method_allDimensions, OrbBinStatistic::_UTF_method_allDimensions},
    {OrbBinStatistic::method_notResponse, OrbBinStatistic::_UTF_method_notResponse},
};

constexpr Keyword<OrbBinStatistic::ENUM_location> locations[] = {
    {OrbBinStatistic::location_grid, OrbUni::_grid},
    {OrbBinStatistic::location_centroid, OrbUni::_centroid},
};

constexpr Keyword<OrbBinStatistic::ENUM_gridType> gridTypes[] = {
    {OrbBinStatistic::gridType_hex, OrbUni::_hex},
    {OrbBinStatistic::gridType_dot, OrbUni::_dot},
    {OrbBinStatistic::gridType_square, OrbUni::_square},
    {OrbBinStatistic::gridType_voronoi, OrbBinStatistic::_UTF_gridType_voronoi},
};

// The getter knows the methods by these texts alone.
constexpr Keyword<OrbBinStatistic::ENUM_method> methodNumbers[] = {
    {OrbBinStatistic::method_aggregate, u"0"},
    {OrbBinStatistic::method_allDimensions, u"1"},
    {OrbBinStatistic::method_notResponse, u"2"},
};

} // namespace

OrbBinStatistic::OrbBinStatistic(xercesc::DOMElement* element) : OrbBaseElement(element) { bindLeaf(*this); }
OrbBinStatistic::~OrbBinStatistic() = default;

const XMLCh* OrbBinStatistic::getId() const { return GetAttribute(OrbUni::_id); }
void OrbBinStatistic::setId(const XMLCh* id) { writeId(*this, id); }
void OrbBinStatistic::removeId() { removeAttribute(*this, OrbUni::_id); }

OrbBinStatistic::ENUM_method OrbBinStatistic::getMethod() const {
  return readKeyword(*this, OrbUni::_method, methodNumbers, method_aggregate);
}
void OrbBinStatistic::setMethod(ENUM_method method) { writeKeyword(*this, OrbUni::_method, methods, method); }
void OrbBinStatistic::removeMethod() { removeAttribute(*this, OrbUni::_method); }

OrbBinStatistic::ENUM_location OrbBinStatistic::getLocation() const {
  return readKeyword(*this, OrbUni::_location, locations, location_grid);
}
void OrbBinStatistic::setLocation(ENUM_location location) {
  writeKeyword(*this, OrbUni::_location, locations, location);
}
void OrbBinStatistic::removeLocation() { removeAttribute(*this, OrbUni::_location); }

OrbBinStatistic::ENUM_gridType OrbBinStatistic::getGridType() const {
  return readKeyword(*this, OrbUni::_gridType, gridTypes, gridType_hex);
}
void OrbBinStatistic::setGridType(ENUM_gridType gridType) {
  writeKeyword(*this, OrbUni::_gridType, gridTypes, gridType);
}
void OrbBinStatistic::removeGridType() { removeAttribute(*this, OrbUni::_gridType); }

const XMLCh* OrbBinStatistic::getBinCount() const { return GetAttribute(OrbUni::_binCount); }
void OrbBinStatistic::setBinCount(const XMLCh* binCount) { SetAttribute(OrbUni::_binCount, binCount); }
void OrbBinStatistic::removeBinCount() { removeAttribute(*this, OrbUni::_binCount); }

const XMLCh* OrbBinStatistic::getBinWidth() const { return GetAttribute(OrbUni::_binWidth); }
void OrbBinStatistic::setBinWidth(const XMLCh* binWidth) { SetAttribute(OrbUni::_binWidth, binWidth); }
void OrbBinStatistic::removeBinWidth() { removeAttribute(*this, OrbUni::_binWidth); }

const XMLCh* OrbBinStatistic::getBinStart() const { return GetAttribute(_UTF_binStart); }
void OrbBinStatistic::setBinStart(const XMLCh* binStart) { SetAttribute(_UTF_binStart, binStart); }
void OrbBinStatistic::removeBinStart() { removeAttribute(*this, _UTF_binStart); }

const XMLCh* OrbBinStatistic::getDimensions() const { return GetAttribute(_UTF_dimensions); }
void OrbBinStatistic::setDimensions(const XMLCh* dimensions) { SetAttribute(_UTF_dimensions, dimensions); }
bool OrbBinStatistic::isDimensionsPresent() const { return isPresent(*this, _UTF_dimensions); }
void OrbBinStatistic::removeDimensions() { removeAttribute(*this, _UTF_dimensions); }

bool OrbBinStatistic::getAugment() const { return readBoolean(*this, _UTF_augment); }
void OrbBinStatistic::setAugment(bool augment) { writeBoolean(*this, _UTF_augment, augment); }
bool OrbBinStatistic::isAugmentPresent() const { return isPresent(*this, _UTF_augment); }
void OrbBinStatistic::removeAugment() { removeAttribute(*this, _UTF_augment); }
