// A theoretical distribution.
#include "orbdistributionstatistic.h"

#include "distributionkeywords.h"
#include "keyword.h"
#include "loading.h"
#include "orbuni.h"

using namespace orbchart;

namespace {

constexpr Id id;
constexpr Keywords distribution{OrbUni::_distribution, OrbDistributionStatistic::distribution_unset,
                                distributionsOf<OrbDistributionStatistic>};
constexpr Text parameter{OrbUni::_parameter};
constexpr Text secondaryParameter{OrbDistributionStatistic::_UTF_secondaryParameter};
constexpr Integer segments{OrbUni::_segments};
constexpr Boolean scaledToData{OrbDistributionStatistic::_UTF_scaledToData};

using Attributes = AttributeList<id, distribution, parameter, secondaryParameter, segments, scaledToData>;

} // namespace

template <> const ElementDescription& orbchart::descriptionOf<OrbDistributionStatistic>() {
  return elementDescription<OrbDistributionStatistic, Attributes>;
}

OrbDistributionStatistic::OrbDistributionStatistic(xercesc::DOMElement* element) : OrbBaseElement(element) {
  bindLeaf(*this);
}
OrbDistributionStatistic::~OrbDistributionStatistic() = default;

const XMLCh* OrbDistributionStatistic::getId() const { return id.get(*this); }
void OrbDistributionStatistic::setId(const XMLCh* value) { id.set(*this, value); }
void OrbDistributionStatistic::removeId() { id.remove(*this); }

OrbDistributionStatistic::ENUM_distribution OrbDistributionStatistic::getDistribution() const {
  return distribution.get(*this);
}
void OrbDistributionStatistic::setDistribution(ENUM_distribution value) { distribution.set(*this, value); }
bool OrbDistributionStatistic::isDistributionPresent() const { return distribution.isPresent(*this); }
void OrbDistributionStatistic::removeDistribution() { distribution.remove(*this); }

const XMLCh* OrbDistributionStatistic::getParameter() const { return parameter.get(*this); }
void OrbDistributionStatistic::setParameter(const XMLCh* value) { parameter.set(*this, value); }
bool OrbDistributionStatistic::isParameterPresent() const { return parameter.isPresent(*this); }
void OrbDistributionStatistic::removeParameter() { parameter.remove(*this); }

const XMLCh* OrbDistributionStatistic::getSecondaryParameter() const { return secondaryParameter.get(*this); }
void OrbDistributionStatistic::setSecondaryParameter(const XMLCh* value) { secondaryParameter.set(*this, value); }
bool OrbDistributionStatistic::isSecondaryParameterPresent() const { return secondaryParameter.isPresent(*this); }
void OrbDistributionStatistic::removeSecondaryParameter() { secondaryParameter.remove(*this); }

int OrbDistributionStatistic::getSegments() const { return segments.get(*this); }
void OrbDistributionStatistic::setSegments(int value) { segments.set(*this, value); }
bool OrbDistributionStatistic::isSegmentsPresent() const { return segments.isPresent(*this); }
void OrbDistributionStatistic::removeSegments() { segments.remove(*this); }

bool OrbDistributionStatistic::getScaledToData() const { return scaledToData.get(*this); }
void OrbDistributionStatistic::setScaledToData(bool value) { scaledToData.set(*this, value); }
bool OrbDistributionStatistic::isScaledToDataPresent() const { return scaledToData.isPresent(*this); }
void OrbDistributionStatistic::removeScaledToData() { scaledToData.remove(*this); }
