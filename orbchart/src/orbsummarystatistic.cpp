// A summary of rows.
#include "orbsummarystatistic.h"

#include "attribute.h"
#include "keyword.h"
#include "loading.h"
#include "orbuni.h"
#include "summarykeywords.h"

using namespace orbchart;

namespace {

constexpr auto& methods =
    numberedSummaries<OrbSummaryStatistic::method_mean, OrbSummaryStatistic::method_seSkewness>.table;

constexpr Keyword<OrbSummaryStatistic::ENUM_summaryBase> summaryBases[] = {
    {OrbSummaryStatistic::summaryBase_global, OrbSummaryStatistic::VSS_global},
    {OrbSummaryStatistic::summaryBase_aesthetic, OrbUni::_aesthetic},
    {OrbSummaryStatistic::summaryBase_coordinate, OrbSummaryStatistic::VSS_coordinate},
};

constexpr Keyword<OrbSummaryStatistic::ENUM_augment> augments[] = {
    {OrbSummaryStatistic::augment_zero, OrbSummaryStatistic::VSS_zero},
    {OrbSummaryStatistic::augment_missing, OrbSummaryStatistic::VSS_missing},
    {OrbSummaryStatistic::augment_none, OrbUni::_none},
};

} // namespace

OrbSummaryStatistic::OrbSummaryStatistic(xercesc::DOMElement* element) : OrbBaseElement(element) { bindLeaf(*this); }
OrbSummaryStatistic::~OrbSummaryStatistic() = default;

const XMLCh* OrbSummaryStatistic::getId() const { return GetAttribute(OrbUni::_id); }
void OrbSummaryStatistic::setId(const XMLCh* id) { writeId(*this, id); }
void OrbSummaryStatistic::removeId() { removeAttribute(*this, OrbUni::_id); }

OrbSummaryStatistic::ENUM_method OrbSummaryStatistic::getMethod() const {
  return readKeyword(*this, OrbUni::_method, methods, method_unset);
}
void OrbSummaryStatistic::setMethod(ENUM_method method) { writeKeyword(*this, OrbUni::_method, methods, method); }
void OrbSummaryStatistic::removeMethod() { removeAttribute(*this, OrbUni::_method); }

double OrbSummaryStatistic::getPercent() const { return readDouble(*this, OrbUni::_percent); }
void OrbSummaryStatistic::setPercent(double percent) { writeDouble(*this, OrbUni::_percent, percent); }
void OrbSummaryStatistic::removePercent() { removeAttribute(*this, OrbUni::_percent); }

OrbSummaryStatistic::ENUM_summaryBase OrbSummaryStatistic::getSummaryBase() const {
  return readKeyword(*this, _UTF_summaryBase, summaryBases, summaryBase_unset);
}
void OrbSummaryStatistic::setSummaryBase(ENUM_summaryBase summaryBase) {
  writeKeyword(*this, _UTF_summaryBase, summaryBases, summaryBase);
}
void OrbSummaryStatistic::removeSummaryBase() { removeAttribute(*this, _UTF_summaryBase); }

unsigned int OrbSummaryStatistic::getSummaryIndex() const { return readUnsigned(*this, _UTF_summaryIndex); }
void OrbSummaryStatistic::setSummaryIndex(unsigned int summaryIndex) {
  writeUnsigned(*this, _UTF_summaryIndex, summaryIndex);
}
bool OrbSummaryStatistic::isSummaryIndexPresent() const { return isPresent(*this, _UTF_summaryIndex); }
void OrbSummaryStatistic::removeSummaryIndex() { removeAttribute(*this, _UTF_summaryIndex); }

bool OrbSummaryStatistic::getSummaryAcrossPanels() const { return readBoolean(*this, _UTF_summaryAcrossPanels); }
void OrbSummaryStatistic::setSummaryAcrossPanels(bool summaryAcrossPanels) {
  writeBoolean(*this, _UTF_summaryAcrossPanels, summaryAcrossPanels);
}
void OrbSummaryStatistic::removeSummaryAcrossPanels() { removeAttribute(*this, _UTF_summaryAcrossPanels); }

OrbSummaryStatistic::ENUM_augment OrbSummaryStatistic::getAugment() const {
  return readKeyword(*this, _UTF_augment, augments, augment_unset);
}
void OrbSummaryStatistic::setAugment(ENUM_augment augment) { writeKeyword(*this, _UTF_augment, augments, augment); }
bool OrbSummaryStatistic::isAugmentPresent() const { return isPresent(*this, _UTF_augment); }
void OrbSummaryStatistic::removeAugment() { removeAttribute(*this, _UTF_augment); }

double OrbSummaryStatistic::getMultiple() const { return readDouble(*this, _UTF_multiple); }
void OrbSummaryStatistic::setMultiple(double multiple) { writeDouble(*this, _UTF_multiple, multiple); }
bool OrbSummaryStatistic::isMultiplePresent() const { return isPresent(*this, _UTF_multiple); }
void OrbSummaryStatistic::removeMultiple() { removeAttribute(*this, _UTF_multiple); }

bool OrbSummaryStatistic::getConvertIntervalToSingleValue() const {
  return readBoolean(*this, OrbUni::_convertIntervalToSingleValue);
}
void OrbSummaryStatistic::setConvertIntervalToSingleValue(bool convertIntervalToSingleValue) {
  writeBoolean(*this, OrbUni::_convertIntervalToSingleValue, convertIntervalToSingleValue);
}
void OrbSummaryStatistic::removeConvertIntervalToSingleValue() {
  removeAttribute(*this, OrbUni::_convertIntervalToSingleValue);
}
