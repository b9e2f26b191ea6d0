// A statistic of a variable in its extension.
#include "orbextensionsv.h"

#include "attribute.h"
#include "keyword.h"
#include "loading.h"
#include "orbuni.h"

using namespace orbchart;

namespace {

constexpr Keywords statistic{
    OrbUni::_statistic,
    OrbExtensionSV::statistic_unset,
    {
        {OrbExtensionSV::statistic_numberOfCases, OrbExtensionSV::_UTF_statistic_numberOfCases},
        {OrbExtensionSV::statistic_percentageOfCases, OrbExtensionSV::_UTF_statistic_percentageOfCases},
        {OrbExtensionSV::statistic_meanOfValues, OrbExtensionSV::_UTF_statistic_meanOfValues},
        {OrbExtensionSV::statistic_medianOfValues, OrbExtensionSV::_UTF_statistic_medianOfValues},
        {OrbExtensionSV::statistic_modeOfValues, OrbExtensionSV::_UTF_statistic_modeOfValues},
        {OrbExtensionSV::statistic_sumOfValues, OrbExtensionSV::_UTF_statistic_sumOfValues},
        {OrbExtensionSV::statistic_standardDeviation, OrbExtensionSV::_UTF_statistic_standardDeviation},
        {OrbExtensionSV::statistic_variance, OrbUni::_variance},
        {OrbExtensionSV::statistic_minimumValue, OrbExtensionSV::_UTF_statistic_minimumValue},
        {OrbExtensionSV::statistic_maximumValue, OrbExtensionSV::_UTF_statistic_maximumValue},
        {OrbExtensionSV::statistic_cumulativeSum, OrbUni::_cumulativeSum},
        {OrbExtensionSV::statistic_cumulativeNumberOfCases, OrbExtensionSV::_UTF_statistic_cumulativeNumberOfCases},
        {OrbExtensionSV::statistic_cumulativePercentageOfCases,
         OrbExtensionSV::_UTF_statistic_cumulativePercentageOfCases},
        {OrbExtensionSV::statistic_percentile, OrbExtensionSV::_UTF_statistic_percentile},
        {OrbExtensionSV::statistic_percentageAbove, OrbExtensionSV::_UTF_statistic_percentageAbove},
        {OrbExtensionSV::statistic_percentageBelow, OrbExtensionSV::_UTF_statistic_percentageBelow},
        {OrbExtensionSV::statistic_numberAbove, OrbExtensionSV::_UTF_statistic_numberAbove},
        {OrbExtensionSV::statistic_numberBelow, OrbExtensionSV::_UTF_statistic_numberBelow},
        {OrbExtensionSV::statistic_percentageInside, OrbExtensionSV::_UTF_statistic_percentageInside},
        {OrbExtensionSV::statistic_numberInside, OrbExtensionSV::_UTF_statistic_numberInside},
        {OrbExtensionSV::statistic_gMedian, OrbExtensionSV::_UTF_statistic_gMedian},
        {OrbExtensionSV::statistic_gPtile, OrbExtensionSV::_UTF_statistic_gPtile},
        {OrbExtensionSV::statistic_percentLessThanOrEqualX, OrbExtensionSV::_UTF_statistic_percentLessThanOrEqualX},
        {OrbExtensionSV::statistic_numberLessThanOrEqualX, OrbExtensionSV::_UTF_statistic_numberLessThanOrEqualX},
        {OrbExtensionSV::statistic_percentGreaterThanOrEqualX,
         OrbExtensionSV::_UTF_statistic_percentGreaterThanOrEqualX},
        {OrbExtensionSV::statistic_numberGreaterThanOrEqualX, OrbExtensionSV::_UTF_statistic_numberGreaterThanOrEqualX},
        {OrbExtensionSV::statistic_percentEqualX, OrbExtensionSV::_UTF_statistic_percentEqualX},
        {OrbExtensionSV::statistic_numberEqualX, OrbExtensionSV::_UTF_statistic_numberEqualX},
        {OrbExtensionSV::statistic_xValue, OrbExtensionSV::_UTF_statistic_xValue},
        {OrbExtensionSV::statistic_validN, OrbExtensionSV::_UTF_statistic_validN},
        {OrbExtensionSV::statistic_customStatistic, OrbExtensionSV::_UTF_statistic_customStatistic},
    }};
constexpr Text variable{OrbUni::_variable};
constexpr Double value{OrbUni::_value};
constexpr Double min{OrbUni::_min};
constexpr Double max{OrbUni::_max};
constexpr Boolean valuesAreGroupedMidpoints{OrbExtensionSV::_UTF_valuesAreGroupedMidpoints};

using Attributes = AttributeList<statistic, variable, value, min, max, valuesAreGroupedMidpoints>;

} // namespace

template <> const ElementDescription& orbchart::descriptionOf<OrbExtensionSV>() {
  return elementDescription<OrbExtensionSV, DerivedFrom<OrbExtension>, Attributes, IsFree>;
}

OrbExtensionSV::OrbExtensionSV(xercesc::DOMElement* element) : OrbExtension(element) { bindLeaf(*this); }
OrbExtensionSV::~OrbExtensionSV() = default;

OrbExtensionSV::ENUM_statistic OrbExtensionSV::getStatistic() const { return statistic.get(*this); }
void OrbExtensionSV::setStatistic(ENUM_statistic value) { statistic.set(*this, value); }
void OrbExtensionSV::removeStatistic() { statistic.remove(*this); }

const XMLCh* OrbExtensionSV::getVariable() const { return variable.get(*this); }
void OrbExtensionSV::setVariable(const XMLCh* value) { variable.set(*this, value); }
void OrbExtensionSV::removeVariable() { variable.remove(*this); }

double OrbExtensionSV::getValue() const { return value.get(*this); }
void OrbExtensionSV::setValue(double newValue) { value.set(*this, newValue); }
void OrbExtensionSV::removeValue() { value.remove(*this); }

double OrbExtensionSV::getMin() const { return min.get(*this); }
void OrbExtensionSV::setMin(double value) { min.set(*this, value); }
void OrbExtensionSV::removeMin() { min.remove(*this); }

double OrbExtensionSV::getMax() const { return max.get(*this); }
void OrbExtensionSV::setMax(double value) { max.set(*this, value); }
void OrbExtensionSV::removeMax() { max.remove(*this); }

bool OrbExtensionSV::getValuesAreGroupedMidpoints() const { return valuesAreGroupedMidpoints.get(*this); }
void OrbExtensionSV::setValuesAreGroupedMidpoints(bool value) { valuesAreGroupedMidpoints.set(*this, value); }
void OrbExtensionSV::removeValuesAreGroupedMidpoints() { valuesAreGroupedMidpoints.remove(*this); }
