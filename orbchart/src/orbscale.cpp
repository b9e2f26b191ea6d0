// How data values map onto a dimension.
#include "orbscale.h"

#include "attribute.h"
#include "keyword.h"
#include "loading.h"
#include "orbuni.h"

using namespace orbchart;
using xercesc::DOMElement;

namespace {

constexpr Keyword<OrbScale::ENUM_distribution> distributions[] = {
    {OrbScale::distribution_uniform, OrbUni::_uniform},
    {OrbScale::distribution_normal, OrbUni::_normal},
    {OrbScale::distribution_t, OrbUni::_t},
    {OrbScale::distribution_f, OrbUni::_f},
    {OrbScale::distribution_chisquare, OrbUni::_chisquare},
    {OrbScale::distribution_gamma, OrbUni::_gamma},
    {OrbScale::distribution_beta, OrbUni::_beta},
    {OrbScale::distribution_exponential, OrbUni::_exponential},
    {OrbScale::distribution_logistic, OrbUni::_logistic},
    {OrbScale::distribution_studentizedrange, OrbUni::_studentizedrange},
    {OrbScale::distribution_weibull, OrbScale::_UTF_distribution_weibull},
    {OrbScale::distribution_poisson, OrbUni::_poisson},
    {OrbScale::distribution_binomialnegative, OrbScale::_UTF_distribution_binomialnegative},
    {OrbScale::distribution_gaussianinverse, OrbScale::_UTF_distribution_gaussianinverse},
};

constexpr Keyword<OrbScale::ENUM_method> methods[] = {
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
};

} // namespace

OrbScale::OrbScale(DOMElement* element) : OrbBaseElement(element) { bindLeaf(*this); }
OrbScale::OrbScale(DOMElement* element, ENUM_method method) : OrbScale(element) { setMethod(method); }
OrbScale::~OrbScale() = default;

const XMLCh* OrbScale::getId() const { return GetAttribute(OrbUni::_id); }
void OrbScale::setId(const XMLCh* id) { writeId(*this, id); }
void OrbScale::removeId() { removeAttribute(*this, OrbUni::_id); }

bool OrbScale::getInvert() const { return readBoolean(*this, OrbUni::_invert); }
void OrbScale::setInvert(bool invert) { writeBoolean(*this, OrbUni::_invert, invert); }
void OrbScale::removeInvert() { removeAttribute(*this, OrbUni::_invert); }

const XMLCh* OrbScale::getOrigin() const { return GetAttribute(OrbUni::_origin); }
void OrbScale::setOrigin(const XMLCh* origin) { SetAttribute(OrbUni::_origin, origin); }
void OrbScale::removeOrigin() { removeAttribute(*this, OrbUni::_origin); }

double OrbScale::getBase() const { return readDouble(*this, OrbUni::_base); }
void OrbScale::setBase(double base) { writeDouble(*this, OrbUni::_base, base); }
void OrbScale::removeBase() { removeAttribute(*this, OrbUni::_base); }

OrbScale::ENUM_distribution OrbScale::getDistribution() const {
  return readKeyword(*this, OrbUni::_distribution, distributions, distribution_unset);
}
void OrbScale::setDistribution(ENUM_distribution distribution) {
  writeKeyword(*this, OrbUni::_distribution, distributions, distribution);
}
bool OrbScale::isDistributionPresent() const { return isPresent(*this, OrbUni::_distribution); }
void OrbScale::removeDistribution() { removeAttribute(*this, OrbUni::_distribution); }

double OrbScale::getDistributionParameter() const { return readDouble(*this, _UTF_distributionParameter); }
void OrbScale::setDistributionParameter(double parameter) { writeDouble(*this, _UTF_distributionParameter, parameter); }
bool OrbScale::isDistributionParameterPresent() const { return isPresent(*this, _UTF_distributionParameter); }
void OrbScale::removeDistributionParameter() { removeAttribute(*this, _UTF_distributionParameter); }

double OrbScale::getDistributionParameter2() const { return readDouble(*this, _UTF_distributionParameter2); }
void OrbScale::setDistributionParameter2(double parameter) {
  writeDouble(*this, _UTF_distributionParameter2, parameter);
}
bool OrbScale::isDistributionParameter2Present() const { return isPresent(*this, _UTF_distributionParameter2); }
void OrbScale::removeDistributionParameter2() { removeAttribute(*this, _UTF_distributionParameter2); }

OrbScale::ENUM_method OrbScale::getMethod() const { return readKeyword(*this, OrbUni::_method, methods, method_unset); }
void OrbScale::setMethod(ENUM_method method) { writeKeyword(*this, OrbUni::_method, methods, method); }
bool OrbScale::isMethodPresent() const { return isPresent(*this, OrbUni::_method); }
