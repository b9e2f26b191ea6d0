// How data values map onto a dimension.
#include "orbscale.h"

#include "attribute.h"
#include "distributionkeywords.h"
#include "keyword.h"
#include "loading.h"
#include "orbuni.h"

using namespace orbchart;
using xercesc::DOMElement;

namespace {

constexpr Id id;
constexpr Boolean invert{OrbUni::_invert};
constexpr Text origin{OrbUni::_origin};
constexpr Double base{OrbUni::_base};
constexpr Keywords distribution{OrbUni::_distribution, OrbScale::distribution_unset, distributionsOf<OrbScale>};
constexpr Double distributionParameter{OrbScale::_UTF_distributionParameter};
constexpr Double distributionParameter2{OrbScale::_UTF_distributionParameter2};
constexpr Keywords method{OrbUni::_method,
                          OrbScale::method_unset,
                          {
                              {OrbScale::method_linear, OrbUni::_linear},
                              {OrbScale::method_log, OrbUni::_log},
                              {OrbScale::method_power, OrbUni::_power},
                              {OrbScale::method_log_safe, OrbUni::_log_safe},
                              {OrbScale::method_power_safe, OrbUni::_power_safe},
                              {OrbScale::method_logit, OrbScale::_UTF_method_logit},
                              {OrbScale::method_probit, OrbScale::_UTF_method_probit},
                              {OrbScale::method_asn, OrbScale::_UTF_method_asn},
                              {OrbScale::method_atanh, OrbScale::_UTF_method_atanh},
                              {OrbScale::method_prob, OrbScale::_UTF_method_prob},
                              {OrbScale::method_cLoglog, OrbScale::_UTF_method_cLoglog},
                          }};

using Attributes =
    AttributeList<id, invert, origin, base, distribution, distributionParameter, distributionParameter2, method>;

} // namespace

template <> const ElementDescription& orbchart::descriptionOf<OrbScale>() {
  return elementDescription<OrbScale, Attributes>;
}

OrbScale::OrbScale(DOMElement* element) : OrbBaseElement(element) { bindLeaf(*this); }
OrbScale::OrbScale(DOMElement* element, ENUM_method method) : OrbScale(element) { setMethod(method); }
OrbScale::~OrbScale() = default;

const XMLCh* OrbScale::getId() const { return id.get(*this); }
void OrbScale::setId(const XMLCh* value) { id.set(*this, value); }
void OrbScale::removeId() { id.remove(*this); }

bool OrbScale::getInvert() const { return invert.get(*this); }
void OrbScale::setInvert(bool value) { invert.set(*this, value); }
void OrbScale::removeInvert() { invert.remove(*this); }

const XMLCh* OrbScale::getOrigin() const { return origin.get(*this); }
void OrbScale::setOrigin(const XMLCh* value) { origin.set(*this, value); }
void OrbScale::removeOrigin() { origin.remove(*this); }

double OrbScale::getBase() const { return base.get(*this); }
void OrbScale::setBase(double value) { base.set(*this, value); }
void OrbScale::removeBase() { base.remove(*this); }

OrbScale::ENUM_distribution OrbScale::getDistribution() const { return distribution.get(*this); }
void OrbScale::setDistribution(ENUM_distribution value) { distribution.set(*this, value); }
bool OrbScale::isDistributionPresent() const { return distribution.isPresent(*this); }
void OrbScale::removeDistribution() { distribution.remove(*this); }

double OrbScale::getDistributionParameter() const { return distributionParameter.get(*this); }
void OrbScale::setDistributionParameter(double value) { distributionParameter.set(*this, value); }
bool OrbScale::isDistributionParameterPresent() const { return distributionParameter.isPresent(*this); }
void OrbScale::removeDistributionParameter() { distributionParameter.remove(*this); }

double OrbScale::getDistributionParameter2() const { return distributionParameter2.get(*this); }
void OrbScale::setDistributionParameter2(double value) { distributionParameter2.set(*this, value); }
bool OrbScale::isDistributionParameter2Present() const { return distributionParameter2.isPresent(*this); }
void OrbScale::removeDistributionParameter2() { distributionParameter2.remove(*this); }

OrbScale::ENUM_method OrbScale::getMethod() const { return method.get(*this); }
void OrbScale::setMethod(ENUM_method value) { method.set(*this, value); }
bool OrbScale::isMethodPresent() const { return method.isPresent(*this); }
