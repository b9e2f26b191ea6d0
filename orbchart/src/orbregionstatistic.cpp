// A region around a fit.
#include "orbregionstatistic.h"

#include "distributionkeywords.h"
#include "keyword.h"
#include "loading.h"
#include "orbuni.h"

using namespace orbchart;

namespace {

constexpr Id id;
constexpr Keywords regionType{OrbUni::_regionType,
                              AbsentReadsAs(OrbRegionStatistic::regionType_uniform),
                              {
                                  {OrbRegionStatistic::regionType_uniform, OrbUni::_uniform},
                                  {OrbRegionStatistic::regionType_range, OrbUni::_range},
                                  {OrbRegionStatistic::regionType_sd, OrbUni::_sd},
                                  {OrbRegionStatistic::regionType_se, OrbUni::_se},
                                  {OrbRegionStatistic::regionType_linear, OrbUni::_linear},
                                  {OrbRegionStatistic::regionType_quadratic, OrbUni::_quadratic},
                                  {OrbRegionStatistic::regionType_cubic, OrbUni::_cubic},
                                  {OrbRegionStatistic::regionType_polynomial, OrbUni::_polynomial},
                                  {OrbRegionStatistic::regionType_piecewise, OrbUni::_piecewise},
                                  {OrbRegionStatistic::regionType_confi, OrbUni::_confi},
                                  {OrbRegionStatistic::regionType_mad, OrbUni::_mad},
                              }};
constexpr Keywords location{OrbUni::_location,
                            AbsentReadsAs(OrbRegionStatistic::location_mean),
                            {
                                {OrbRegionStatistic::location_mean, OrbUni::_mean},
                                {OrbRegionStatistic::location_median, OrbUni::_median},
                                {OrbRegionStatistic::location_mode, OrbUni::_mode},
                            }};
constexpr Keywords distribution{OrbUni::_distribution, AbsentReadsAs(OrbRegionStatistic::distribution_uniform),
                                distributionsOf<OrbRegionStatistic>};
constexpr Double alpha{OrbUni::_alpha};
constexpr Double df1{OrbUni::_df1};
constexpr Double df2{OrbUni::_df2};
constexpr Double intercept{OrbRegionStatistic::_UTF_intercept};
constexpr Unsigned degree{OrbUni::_degree};
constexpr Unsigned segments{OrbUni::_segments};
constexpr Unsigned numberConditionals{OrbUni::_numberConditionals};
constexpr Text cutPoints{OrbUni::_cutPoints};
constexpr Boolean bounded{OrbUni::_bounded};
constexpr Boolean predictIndividuals{OrbUni::_predictIndividuals};

using Attributes = AttributeList<id, regionType, location, distribution, alpha, df1, df2, intercept, degree, segments,
                                 numberConditionals, cutPoints, bounded, predictIndividuals>;

} // namespace

template <> const ElementDescription& orbchart::descriptionOf<OrbRegionStatistic>() {
  return elementDescription<OrbRegionStatistic, Attributes>;
}

OrbRegionStatistic::OrbRegionStatistic(xercesc::DOMElement* element) : OrbBaseElement(element) { bindLeaf(*this); }
OrbRegionStatistic::~OrbRegionStatistic() = default;

const XMLCh* OrbRegionStatistic::getId() const { return id.get(*this); }
void OrbRegionStatistic::setId(const XMLCh* value) { id.set(*this, value); }
void OrbRegionStatistic::removeId() { id.remove(*this); }

OrbRegionStatistic::ENUM_regionType OrbRegionStatistic::getRegionType() const { return regionType.get(*this); }
void OrbRegionStatistic::setRegionType(ENUM_regionType value) { regionType.set(*this, value); }
void OrbRegionStatistic::removeRegionType() { regionType.remove(*this); }

OrbRegionStatistic::ENUM_location OrbRegionStatistic::getLocation() const { return location.get(*this); }
void OrbRegionStatistic::setLocation(ENUM_location value) { location.set(*this, value); }
void OrbRegionStatistic::removeLocation() { location.remove(*this); }

OrbRegionStatistic::ENUM_distribution OrbRegionStatistic::getDistribution() const { return distribution.get(*this); }
void OrbRegionStatistic::setDistribution(ENUM_distribution value) { distribution.set(*this, value); }
void OrbRegionStatistic::removeDistribution() { distribution.remove(*this); }

double OrbRegionStatistic::getAlpha() const { return alpha.get(*this); }
void OrbRegionStatistic::setAlpha(double value) { alpha.set(*this, value); }
void OrbRegionStatistic::removeAlpha() { alpha.remove(*this); }

double OrbRegionStatistic::getDf1() const { return df1.get(*this); }
void OrbRegionStatistic::setDf1(double value) { df1.set(*this, value); }
void OrbRegionStatistic::removeDf1() { df1.remove(*this); }

double OrbRegionStatistic::getDf2() const { return df2.get(*this); }
void OrbRegionStatistic::setDf2(double value) { df2.set(*this, value); }
void OrbRegionStatistic::removeDf2() { df2.remove(*this); }

double OrbRegionStatistic::getIntercept() const { return intercept.get(*this); }
void OrbRegionStatistic::setIntercept(double value) { intercept.set(*this, value); }
bool OrbRegionStatistic::isInterceptPresent() const { return intercept.isPresent(*this); }
void OrbRegionStatistic::removeIntercept() { intercept.remove(*this); }

unsigned int OrbRegionStatistic::getDegree() const { return degree.get(*this); }
void OrbRegionStatistic::setDegree(unsigned int value) { degree.set(*this, value); }
void OrbRegionStatistic::removeDegree() { degree.remove(*this); }

unsigned int OrbRegionStatistic::getSegments() const { return segments.get(*this); }
void OrbRegionStatistic::setSegments(unsigned int value) { segments.set(*this, value); }
void OrbRegionStatistic::removeSegments() { segments.remove(*this); }

unsigned int OrbRegionStatistic::getNumberConditionals() const { return numberConditionals.get(*this); }
void OrbRegionStatistic::setNumberConditionals(unsigned int value) { numberConditionals.set(*this, value); }
void OrbRegionStatistic::removeNumberConditionals() { numberConditionals.remove(*this); }

const XMLCh* OrbRegionStatistic::getCutPoints() const { return cutPoints.get(*this); }
void OrbRegionStatistic::setCutPoints(const XMLCh* value) { cutPoints.set(*this, value); }
void OrbRegionStatistic::removeCutPoints() { cutPoints.remove(*this); }

bool OrbRegionStatistic::getBounded() const { return bounded.get(*this); }
void OrbRegionStatistic::setBounded(bool value) { bounded.set(*this, value); }
void OrbRegionStatistic::removeBounded() { bounded.remove(*this); }

bool OrbRegionStatistic::getPredictIndividuals() const { return predictIndividuals.get(*this); }
void OrbRegionStatistic::setPredictIndividuals(bool value) { predictIndividuals.set(*this, value); }
void OrbRegionStatistic::removePredictIndividuals() { predictIndividuals.remove(*this); }
