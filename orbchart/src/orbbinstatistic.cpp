// A sorting of rows into bins.
#include "orbbinstatistic.h"

#include "attribute.h"
#include "keyword.h"
#include "loading.h"
#include "orbuni.h"

using namespace orbchart;

namespace {

constexpr Id id;
constexpr Keywords method{OrbUni::_method,
                          AbsentReadsAs(OrbBinStatistic::method_aggregate),
                          {
                              {OrbBinStatistic::method_aggregate, OrbBinStatistic::_UTF_method_aggregate},
                              {OrbBinStatistic::method_allDimensions, OrbBinStatistic::_UTF_method_allDimensions},
                              {OrbBinStatistic::method_notResponse, OrbBinStatistic::_UTF_method_notResponse},
                          }};
constexpr Keywords location{OrbUni::_location,
                            AbsentReadsAs(OrbBinStatistic::location_grid),
                            {
                                {OrbBinStatistic::location_grid, OrbUni::_grid},
                                {OrbBinStatistic::location_centroid, OrbUni::_centroid},
                            }};
constexpr Keywords gridType{OrbUni::_gridType,
                            AbsentReadsAs(OrbBinStatistic::gridType_hex),
                            {
                                {OrbBinStatistic::gridType_hex, OrbUni::_hex},
                                {OrbBinStatistic::gridType_dot, OrbUni::_dot},
                                {OrbBinStatistic::gridType_square, OrbUni::_square},
                                {OrbBinStatistic::gridType_voronoi, OrbBinStatistic::_UTF_gridType_voronoi},
                            }};
constexpr Text binCount{OrbUni::_binCount};
constexpr Text binWidth{OrbUni::_binWidth};
constexpr Text binStart{OrbBinStatistic::_UTF_binStart};
constexpr Text dimensions{OrbBinStatistic::_UTF_dimensions};
constexpr Boolean augment{OrbBinStatistic::_UTF_augment};

using Attributes = AttributeList<id, method, location, gridType, binCount, binWidth, binStart, dimensions, augment>;

// The getter knows the methods by these texts alone.
constexpr Keywords methodNumber{OrbUni::_method,
                                AbsentReadsAs(OrbBinStatistic::method_aggregate),
                                {
                                    {OrbBinStatistic::method_aggregate, u"0"},
                                    {OrbBinStatistic::method_allDimensions, u"1"},
                                    {OrbBinStatistic::method_notResponse, u"2"},
                                }};

} // namespace

template <> const ElementDescription& orbchart::descriptionOf<OrbBinStatistic>() {
  return elementDescription<OrbBinStatistic, Attributes>;
}

OrbBinStatistic::OrbBinStatistic(xercesc::DOMElement* element) : OrbBaseElement(element) { bindLeaf(*this); }
OrbBinStatistic::~OrbBinStatistic() = default;

const XMLCh* OrbBinStatistic::getId() const { return id.get(*this); }
void OrbBinStatistic::setId(const XMLCh* value) { id.set(*this, value); }
void OrbBinStatistic::removeId() { id.remove(*this); }

OrbBinStatistic::ENUM_method OrbBinStatistic::getMethod() const { return methodNumber.get(*this); }
void OrbBinStatistic::setMethod(ENUM_method value) { method.set(*this, value); }
void OrbBinStatistic::removeMethod() { method.remove(*this); }

OrbBinStatistic::ENUM_location OrbBinStatistic::getLocation() const { return location.get(*this); }
void OrbBinStatistic::setLocation(ENUM_location value) { location.set(*this, value); }
void OrbBinStatistic::removeLocation() { location.remove(*this); }

OrbBinStatistic::ENUM_gridType OrbBinStatistic::getGridType() const { return gridType.get(*this); }
void OrbBinStatistic::setGridType(ENUM_gridType value) { gridType.set(*this, value); }
void OrbBinStatistic::removeGridType() { gridType.remove(*this); }

const XMLCh* OrbBinStatistic::getBinCount() const { return binCount.get(*this); }
void OrbBinStatistic::setBinCount(const XMLCh* value) { binCount.set(*this, value); }
void OrbBinStatistic::removeBinCount() { binCount.remove(*this); }

const XMLCh* OrbBinStatistic::getBinWidth() const { return binWidth.get(*this); }
void OrbBinStatistic::setBinWidth(const XMLCh* value) { binWidth.set(*this, value); }
void OrbBinStatistic::removeBinWidth() { binWidth.remove(*this); }

const XMLCh* OrbBinStatistic::getBinStart() const { return binStart.get(*this); }
void OrbBinStatistic::setBinStart(const XMLCh* value) { binStart.set(*this, value); }
void OrbBinStatistic::removeBinStart() { binStart.remove(*this); }

const XMLCh* OrbBinStatistic::getDimensions() const { return dimensions.get(*this); }
void OrbBinStatistic::setDimensions(const XMLCh* value) { dimensions.set(*this, value); }
bool OrbBinStatistic::isDimensionsPresent() const { return dimensions.isPresent(*this); }
void OrbBinStatistic::removeDimensions() { dimensions.remove(*this); }

bool OrbBinStatistic::getAugment() const { return augment.get(*this); }
void OrbBinStatistic::setAugment(bool value) { augment.set(*this, value); }
bool OrbBinStatistic::isAugmentPresent() const { return augment.isPresent(*this); }
void OrbBinStatistic::removeAugment() { augment.remove(*this); }
