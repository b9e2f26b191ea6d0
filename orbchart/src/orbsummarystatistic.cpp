// A summary of rows.
#include "orbsummarystatistic.h"

#include "attribute.h"
#include "keyword.h"
#include "loading.h"
#include "orbuni.h"
#include "summarykeywords.h"

using namespace orbchart;

namespace {

constexpr Id id;
constexpr Keywords method{OrbUni::_method, OrbSummaryStatistic::method_unset,
                          numberedSummaries<OrbSummaryStatistic::method_mean, OrbSummaryStatistic::method_seSkewness>};
constexpr Double percent{OrbUni::_percent};
constexpr Keywords summaryBase{OrbSummaryStatistic::_UTF_summaryBase,
                               OrbSummaryStatistic::summaryBase_unset,
                               {
                                   {OrbSummaryStatistic::summaryBase_global, OrbSummaryStatistic::VSS_global},
                                   {OrbSummaryStatistic::summaryBase_aesthetic, OrbUni::_aesthetic},
                                   {OrbSummaryStatistic::summaryBase_coordinate, OrbSummaryStatistic::VSS_coordinate},
                               }};
constexpr Unsigned summaryIndex{OrbSummaryStatistic::_UTF_summaryIndex};
constexpr Boolean summaryAcrossPanels{OrbSummaryStatistic::_UTF_summaryAcrossPanels};
constexpr Keywords augment{OrbSummaryStatistic::_UTF_augment,
                           OrbSummaryStatistic::augment_unset,
                           {
                               {OrbSummaryStatistic::augment_zero, OrbSummaryStatistic::VSS_zero},
                               {OrbSummaryStatistic::augment_missing, OrbSummaryStatistic::VSS_missing},
                               {OrbSummaryStatistic::augment_none, OrbUni::_none},
                           }};
constexpr Double multiple{OrbSummaryStatistic::_UTF_multiple};
constexpr Boolean convertIntervalToSingleValue{OrbUni::_convertIntervalToSingleValue};

using Attributes = AttributeList<id, method, percent, summaryBase, summaryIndex, summaryAcrossPanels, augment, multiple,
                                 convertIntervalToSingleValue>;

} // namespace

template <> const ElementDescription& orbchart::descriptionOf<OrbSummaryStatistic>() {
  return elementDescription<OrbSummaryStatistic, Attributes>;
}

OrbSummaryStatistic::OrbSummaryStatistic(xercesc::DOMElement* element) : OrbBaseElement(element) { bindLeaf(*this); }
OrbSummaryStatistic::~OrbSummaryStatistic() = default;

const XMLCh* OrbSummaryStatistic::getId() const { return id.get(*this); }
void OrbSummaryStatistic::setId(const XMLCh* value) { id.set(*this, value); }
void OrbSummaryStatistic::removeId() { id.remove(*this); }

OrbSummaryStatistic::ENUM_method OrbSummaryStatistic::getMethod() const { return method.get(*this); }
void OrbSummaryStatistic::setMethod(ENUM_method value) { method.set(*this, value); }
void OrbSummaryStatistic::removeMethod() { method.remove(*this); }

double OrbSummaryStatistic::getPercent() const { return percent.get(*this); }
void OrbSummaryStatistic::setPercent(double value) { percent.set(*this, value); }
void OrbSummaryStatistic::removePercent() { percent.remove(*this); }

OrbSummaryStatistic::ENUM_summaryBase OrbSummaryStatistic::getSummaryBase() const { return summaryBase.get(*this); }
void OrbSummaryStatistic::setSummaryBase(ENUM_summaryBase value) { summaryBase.set(*this, value); }
void OrbSummaryStatistic::removeSummaryBase() { summaryBase.remove(*this); }

unsigned int OrbSummaryStatistic::getSummaryIndex() const { return summaryIndex.get(*this); }
void OrbSummaryStatistic::setSummaryIndex(unsigned int value) { summaryIndex.set(*this, value); }
bool OrbSummaryStatistic::isSummaryIndexPresent() const { return summaryIndex.isPresent(*this); }
void OrbSummaryStatistic::removeSummaryIndex() { summaryIndex.remove(*this); }

bool OrbSummaryStatistic::getSummaryAcrossPanels() const { return summaryAcrossPanels.get(*this); }
void OrbSummaryStatistic::setSummaryAcrossPanels(bool value) { summaryAcrossPanels.set(*this, value); }
void OrbSummaryStatistic::removeSummaryAcrossPanels() { summaryAcrossPanels.remove(*this); }

OrbSummaryStatistic::ENUM_augment OrbSummaryStatistic::getAugment() const { return augment.get(*this); }
void OrbSummaryStatistic::setAugment(ENUM_augment value) { augment.set(*this, value); }
bool OrbSummaryStatistic::isAugmentPresent() const { return augment.isPresent(*this); }
void OrbSummaryStatistic::removeAugment() { augment.remove(*this); }

double OrbSummaryStatistic::getMultiple() const { return multiple.get(*this); }
void OrbSummaryStatistic::setMultiple(double value) { multiple.set(*this, value); }
bool OrbSummaryStatistic::isMultiplePresent() const { return multiple.isPresent(*this); }
void OrbSummaryStatistic::removeMultiple() { multiple.remove(*this); }

bool OrbSummaryStatistic::getConvertIntervalToSingleValue() const { return convertIntervalToSingleValue.get(*this); }
void OrbSummaryStatistic::setConvertIntervalToSingleValue(bool value) {
  convertIntervalToSingleValue.set(*this, value);
}
void OrbSummaryStatistic::removeConvertIntervalToSingleValue() { convertIntervalToSingleValue.remove(*this); }
