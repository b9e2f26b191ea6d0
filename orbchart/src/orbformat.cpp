// How a number or a date is printed.
#include "orbformat.h"

#include "chartstring.h"
#include "family.h"
#include "keyword.h"
#include "orbrelabel.h"
#include "orbuni.h"
#include "orbunitrule.h"

using namespace orbchart;

namespace {

constexpr Keywords baseFormat{OrbUni::_baseFormat,
                              OrbFormat::baseFormat_unset,
                              {
                                  {OrbFormat::baseFormat_date, OrbUni::_date},
                                  {OrbFormat::baseFormat_time, OrbUni::_time},
                                  {OrbFormat::baseFormat_dateTime, OrbUni::_dateTime},
                                  {OrbFormat::baseFormat_elapsedTime, OrbFormat::_UTF_baseFormat_elapsedTime},
                              }};
constexpr Keywords scientific{OrbUni::_scientific,
                              OrbFormat::scientific_unset,
                              {
                                  {OrbFormat::scientific_true, OrbUni::_true},
                                  {OrbFormat::scientific_false, OrbUni::_false},
                                  {OrbFormat::scientific_onlyForSmall, OrbFormat::_UTF_scientific_onlyForSmall},
                                  {OrbFormat::scientific_whenNeeded, OrbFormat::_UTF_scientific_whenNeeded},
                              }};
constexpr Double small{OrbFormat::_UTF_small};
constexpr Text errorCharacter{OrbFormat::_UTF_errorCharacter};
constexpr Unsigned minimumFractionDigits{OrbUni::_minimumFractionDigits};
constexpr Unsigned maximumFractionDigits{OrbUni::_maximumFractionDigits};
constexpr Unsigned minimumIntegerDigits{OrbUni::_minimumIntegerDigits};
constexpr Unsigned maximumIntegerDigits{OrbUni::_maximumIntegerDigits};
constexpr Boolean useGrouping{OrbUni::_useGrouping};
constexpr Boolean hideNegatives{OrbUni::_hideNegatives};
constexpr Boolean negativesOutside{OrbUni::_negativesOutside};
constexpr Boolean negativesInParentheses{OrbUni::_negativesInParentheses};
constexpr Double scalingFactor{OrbUni::_scalingFactor};
constexpr Boolean tryStringsAsNumbers{OrbFormat::_UTF_tryStringsAsNumbers};
constexpr Keywords mdyOrder{OrbFormat::_UTF_mdyOrder,
                            OrbFormat::mdyOrder_unset,
                            {
                                {OrbFormat::mdyOrder_dayMonthYear, OrbFormat::_UTF_mdyOrder_dayMonthYear},
                                {OrbFormat::mdyOrder_dayYearMonth, OrbFormat::_UTF_mdyOrder_dayYearMonth},
                                {OrbFormat::mdyOrder_monthDayYear, OrbFormat::_UTF_mdyOrder_monthDayYear},
                                {OrbFormat::mdyOrder_monthYearDay, OrbFormat::_UTF_mdyOrder_monthYearDay},
                                {OrbFormat::mdyOrder_yearDayMonth, OrbFormat::_UTF_mdyOrder_yearDayMonth},
                                {OrbFormat::mdyOrder_yearMonthDay, OrbFormat::_UTF_mdyOrder_yearMonthDay},
                            }};
constexpr Keywords dayType{OrbUni::_dayType,
                           OrbFormat::dayType_unset,
                           {
                               {OrbFormat::dayType_month, OrbUni::_month},
                               {OrbFormat::dayType_year, OrbUni::_year},
                           }};
constexpr Keywords hourFormat{OrbUni::_hourFormat,
                              OrbFormat::hourFormat_unset,
                              {
                                  {OrbFormat::hourFormat_AMPM, OrbUni::_AMPM},
                                  {OrbFormat::hourFormat_AS_24, OrbUni::_AS_24},
                                  {OrbFormat::hourFormat_AS_12, OrbUni::_AS_12},
                              }};
constexpr Keywords monthFormat{OrbUni::_monthFormat,
                               OrbFormat::monthFormat_unset,
                               {
                                   {OrbFormat::monthFormat_short, OrbUni::_short},
                                   {OrbFormat::monthFormat_long, OrbUni::_long},
                                   {OrbFormat::monthFormat_number, OrbUni::_number},
                                   {OrbFormat::monthFormat_paddedNumber, OrbUni::_paddedNumber},
                               }};
constexpr Boolean dayOfMonthPadding{OrbUni::_dayOfMonthPadding};
constexpr Boolean weekPadding{OrbUni::_weekPadding};
constexpr Boolean dayPadding{OrbUni::_dayPadding};
constexpr Boolean hourPadding{OrbUni::_hourPadding};
constexpr Boolean minutePadding{OrbUni::_minutePadding};
constexpr Boolean secondPadding{OrbUni::_secondPadding};
constexpr Boolean showEra{OrbUni::_showEra};
constexpr Boolean showYear{OrbUni::_showYear};
constexpr Boolean showQuarter{OrbUni::_showQuarter};
constexpr Boolean showMonth{OrbUni::_showMonth};
constexpr Boolean showWeek{OrbUni::_showWeek};
constexpr Boolean showDay{OrbUni::_showDay};
constexpr Boolean showDayOfWeek{OrbUni::_showDayOfWeek};
constexpr Boolean showHour{OrbUni::_showHour};
constexpr Boolean showMinute{OrbUni::_showMinute};
constexpr Boolean showSecond{OrbUni::_showSecond};
constexpr Boolean showMillis{OrbUni::_showMillis};
constexpr Boolean dayOfWeekAbbreviation{OrbUni::_dayOfWeekAbbreviation};
constexpr Boolean yearAbbreviation{OrbUni::_yearAbbreviation};
constexpr Text quarterPrefix{OrbUni::_quarterPrefix};
constexpr Text quarterSuffix{OrbUni::_quarterSuffix};
constexpr Text weekSuffix{OrbFormat::_UTF_weekSuffix};

using Attributes =
    AttributeList<baseFormat, scientific, small, errorCharacter, minimumFractionDigits, maximumFractionDigits,
                  minimumIntegerDigits, maximumIntegerDigits, useGrouping, hideNegatives, negativesOutside,
                  negativesInParentheses, scalingFactor, tryStringsAsNumbers, mdyOrder, dayType, hourFormat,
                  monthFormat, dayOfMonthPadding, weekPadding, dayPadding, hourPadding, minutePadding, secondPadding,
                  showEra, showYear, showQuarter, showMonth, showWeek, showDay, showDayOfWeek, showHour, showMinute,
                  showSecond, showMillis, dayOfWeekAbbreviation, yearAbbreviation, quarterPrefix, quarterSuffix,
                  weekSuffix>;

using Families = ChildFamilies<FamilyList<OrbUnitRule, OrbRelabel>, Unknown::passes>;

/// The digits of a number of any size: the setters take a wider type than the others.
void setDigits(OrbFormat& format, const Unsigned& attribute, unsigned long value) {
  format.SetAttribute(attribute.name, ChartString(value).xc_str());
}

} // namespace

template <> const ElementDescription& orbchart::descriptionOf<OrbFormat>() {
  return elementDescription<OrbFormat, DerivedFrom<CTFormatType>, Attributes, Families>;
}

struct OrbFormat::Children : Families {};

OrbFormat::OrbFormat(xercesc::DOMElement* element) : CTFormatType(element), children_(new Children) {
  children_->load(*this);
  bind(*this);
}
OrbFormat::~OrbFormat() = default;

OrbFormat::ENUM_baseFormat OrbFormat::getBaseFormat() const { return baseFormat.get(*this); }
void OrbFormat::setBaseFormat(ENUM_baseFormat value) { baseFormat.set(*this, value); }
bool OrbFormat::isBaseFormatPresent() const { return baseFormat.isPresent(*this); }
void OrbFormat::removeBaseFormat() { baseFormat.remove(*this); }

OrbFormat::ENUM_scientific OrbFormat::getScientific() const { return scientific.get(*this); }
void OrbFormat::setScientific(ENUM_scientific value) { scientific.set(*this, value); }
bool OrbFormat::isScientificPresent() const { return scientific.isPresent(*this); }
void OrbFormat::removeScientific() { scientific.remove(*this); }

double OrbFormat::getSmall() const { return small.get(*this); }
void OrbFormat::setSmall(double value) { small.set(*this, value); }
bool OrbFormat::isSmallPresent() const { return small.isPresent(*this); }
void OrbFormat::removeSmall() { small.remove(*this); }

const XMLCh* OrbFormat::getErrorCharacter() const { return errorCharacter.get(*this); }
void OrbFormat::setErrorCharacter(const XMLCh* value) { errorCharacter.set(*this, value); }
bool OrbFormat::isErrorCharacterPresent() const { return errorCharacter.isPresent(*this); }
void OrbFormat::removeErrorCharacter() { errorCharacter.remove(*this); }

unsigned int OrbFormat::getMinimumFractionDigits() const { return minimumFractionDigits.get(*this); }
void OrbFormat::setMinimumFractionDigits(unsigned int value) { minimumFractionDigits.set(*this, value); }
bool OrbFormat::isMinimumFractionDigitsPresent() const { return minimumFractionDigits.isPresent(*this); }
void OrbFormat::removeMinimumFractionDigits() { minimumFractionDigits.remove(*this); }

unsigned int OrbFormat::getMaximumFractionDigits() const { return maximumFractionDigits.get(*this); }
void OrbFormat::setMaximumFractionDigits(unsigned int value) { maximumFractionDigits.set(*this, value); }
bool OrbFormat::isMaximumFractionDigitsPresent() const { return maximumFractionDigits.isPresent(*this); }
void OrbFormat::removeMaximumFractionDigits() { maximumFractionDigits.remove(*this); }

unsigned int OrbFormat::getMinimumIntegerDigits() const { return minimumIntegerDigits.get(*this); }
void OrbFormat::setMinimumIntegerDigits(unsigned long value) { setDigits(*this, minimumIntegerDigits, value); }
bool OrbFormat::isMinimumIntegerDigitsPresent() const { return minimumIntegerDigits.isPresent(*this); }
void OrbFormat::removeMinimumIntegerDigits() { minimumIntegerDigits.remove(*this); }

unsigned int OrbFormat::getMaximumIntegerDigits() const { return maximumIntegerDigits.get(*this); }
void OrbFormat::setMaximumIntegerDigits(unsigned long value) { setDigits(*this, maximumIntegerDigits, value); }
bool OrbFormat::isMaximumIntegerDigitsPresent() const { return maximumIntegerDigits.isPresent(*this); }
void OrbFormat::removeMaximumIntegerDigits() { maximumIntegerDigits.remove(*this); }

bool OrbFormat::getUseGrouping() const { return useGrouping.get(*this); }
void OrbFormat::setUseGrouping(bool value) { useGrouping.set(*this, value); }
bool OrbFormat::isUseGroupingPresent() const { return useGrouping.isPresent(*this); }
void OrbFormat::removeUseGrouping() { useGrouping.remove(*this); }

bool OrbFormat::getHideNegatives() const { return hideNegatives.get(*this); }
void OrbFormat::setHideNegatives(bool value) { hideNegatives.set(*this, value); }
bool OrbFormat::isHideNegativesPresent() const { return hideNegatives.isPresent(*this); }
void OrbFormat::removeHideNegatives() { hideNegatives.remove(*this); }

bool OrbFormat::getNegativesOutside() const { return negativesOutside.get(*this); }
void OrbFormat::setNegativesOutside(bool value) { negativesOutside.set(*this, value); }
bool OrbFormat::isNegativesOutsidePresent() const { return negativesOutside.isPresent(*this); }
void OrbFormat::removeNegativesOutside() { negativesOutside.remove(*this); }

bool OrbFormat::getNegativesInParentheses() const { return negativesInParentheses.get(*this); }
void OrbFormat::setNegativesInParentheses(bool value) { negativesInParentheses.set(*this, value); }
bool OrbFormat::isNegativesInParenthesesPresent() const { return negativesInParentheses.isPresent(*this); }
void OrbFormat::removeNegativesInParentheses() { negativesInParentheses.remove(*this); }

double OrbFormat::getScalingFactor() const { return scalingFactor.get(*this); }
void OrbFormat::setScalingFactor(double value) { scalingFactor.set(*this, value); }
bool OrbFormat::isScalingFactorPresent() const { return scalingFactor.isPresent(*this); }
void OrbFormat::removeScalingFactor() { scalingFactor.remove(*this); }

bool OrbFormat::getTryStringsAsNumbers() const { return tryStringsAsNumbers.get(*this); }
void OrbFormat::setTryStringsAsNumbers(bool value) { tryStringsAsNumbers.set(*this, value); }
bool OrbFormat::isTryStringsAsNumbersPresent() const { return tryStringsAsNumbers.isPresent(*this); }
void OrbFormat::removeTryStringsAsNumbers() { tryStringsAsNumbers.remove(*this); }

OrbFormat::ENUM_mdyOrder OrbFormat::getMdyOrder() const { return mdyOrder.get(*this); }
void OrbFormat::setMdyOrder(ENUM_mdyOrder value) { mdyOrder.set(*this, value); }
bool OrbFormat::isMdyOrderPresent() const { return mdyOrder.isPresent(*this); }
void OrbFormat::removeMdyOrder() { mdyOrder.remove(*this); }

OrbFormat::ENUM_dayType OrbFormat::getDayType() const { return dayType.get(*this); }
void OrbFormat::setDayType(ENUM_dayType value) { dayType.set(*this, value); }
bool OrbFormat::isDayTypePresent() const { return dayType.isPresent(*this); }
void OrbFormat::removeDayType() { dayType.remove(*this); }

OrbFormat::ENUM_hourFormat OrbFormat::getHourFormat() const { return hourFormat.get(*this); }
void OrbFormat::setHourFormat(ENUM_hourFormat value) { hourFormat.set(*this, value); }
bool OrbFormat::isHourFormatPresent() const { return hourFormat.isPresent(*this); }
void OrbFormat::removeHourFormat() { hourFormat.remove(*this); }

OrbFormat::ENUM_monthFormat OrbFormat::getMonthFormat() const { return monthFormat.get(*this); }
void OrbFormat::setMonthFormat(ENUM_monthFormat value) { monthFormat.set(*this, value); }
bool OrbFormat::isMonthFormatPresent() const { return monthFormat.isPresent(*this); }
void OrbFormat::removeMonthFormat() { monthFormat.remove(*this); }

bool OrbFormat::getDayOfMonthPadding() const { return dayOfMonthPadding.get(*this); }
void OrbFormat::setDayOfMonthPadding(bool value) { dayOfMonthPadding.set(*this, value); }
bool OrbFormat::isDayOfMonthPaddingPresent() const { return dayOfMonthPadding.isPresent(*this); }
void OrbFormat::removeDayOfMonthPadding() { dayOfMonthPadding.remove(*this); }

bool OrbFormat::getWeekPadding() const { return weekPadding.get(*this); }
void OrbFormat::setWeekPadding(bool value) { weekPadding.set(*this, value); }
bool OrbFormat::isWeekPaddingPresent() const { return weekPadding.isPresent(*this); }
void OrbFormat::removeWeekPadding() { weekPadding.remove(*this); }

bool OrbFormat::getDayPadding() const { return dayPadding.get(*this); }
void OrbFormat::setDayPadding(bool value) { dayPadding.set(*this, value); }
bool OrbFormat::isDayPaddingPresent() const { return dayPadding.isPresent(*this); }
void OrbFormat::removeDayPadding() { dayPadding.remove(*this); }

bool OrbFormat::getHourPadding() const { return hourPadding.get(*this); }
void OrbFormat::setHourPadding(bool value) { hourPadding.set(*this, value); }
bool OrbFormat::isHourPaddingPresent() const { return hourPadding.isPresent(*this); }
void OrbFormat::removeHourPadding() { hourPadding.remove(*this); }

bool OrbFormat::getMinutePadding() const { return minutePadding.get(*this); }
void OrbFormat::setMinutePadding(bool value) { minutePadding.set(*this, value); }
bool OrbFormat::isMinutePaddingPresent() const { return minutePadding.isPresent(*this); }
void OrbFormat::removeMinutePadding() { minutePadding.remove(*this); }

bool OrbFormat::getSecondPadding() const { return secondPadding.get(*this); }
void OrbFormat::setSecondPadding(bool value) { secondPadding.set(*this, value); }
bool OrbFormat::isSecondPaddingPresent() const { return secondPadding.isPresent(*this); }
void OrbFormat::removeSecondPadding() { secondPadding.remove(*this); }

bool OrbFormat::getShowEra() const { return showEra.get(*this); }
void OrbFormat::setShowEra(bool value) { showEra.set(*this, value); }
bool OrbFormat::isShowEraPresent() const { return showEra.isPresent(*this); }
void OrbFormat::removeShowEra() { showEra.remove(*this); }

bool OrbFormat::getShowYear() const { return showYear.get(*this); }
void OrbFormat::setShowYear(bool value) { showYear.set(*this, value); }
bool OrbFormat::isShowYearPresent() const { return showYear.isPresent(*this); }
void OrbFormat::removeShowYear() { showYear.remove(*this); }

bool OrbFormat::getShowQuarter() const { return showQuarter.get(*this); }
void OrbFormat::setShowQuarter(bool value) { showQuarter.set(*this, value); }
bool OrbFormat::isShowQuarterPresent() const { return showQuarter.isPresent(*this); }
void OrbFormat::removeShowQuarter() { showQuarter.remove(*this); }

bool OrbFormat::getShowMonth() const { return showMonth.get(*this); }
void OrbFormat::setShowMonth(bool value) { showMonth.set(*this, value); }
bool OrbFormat::isShowMonthPresent() const { return showMonth.isPresent(*this); }
void OrbFormat::removeShowMonth() { showMonth.remove(*this); }

bool OrbFormat::getShowWeek() const { return showWeek.get(*this); }
void OrbFormat::setShowWeek(bool value) { showWeek.set(*this, value); }
bool OrbFormat::isShowWeekPresent() const { return showWeek.isPresent(*this); }
void OrbFormat::removeShowWeek() { showWeek.remove(*this); }

bool OrbFormat::getShowDay() const { return showDay.get(*this); }
void OrbFormat::setShowDay(bool value) { showDay.set(*this, value); }
bool OrbFormat::isShowDayPresent() const { return showDay.isPresent(*this); }
void OrbFormat::removeShowDay() { showDay.remove(*this); }

bool OrbFormat::getShowDayOfWeek() const { return showDayOfWeek.get(*this); }
void OrbFormat::setShowDayOfWeek(bool value) { showDayOfWeek.set(*this, value); }
bool OrbFormat::isShowDayOfWeekPresent() const { return showDayOfWeek.isPresent(*this); }
void OrbFormat::removeShowDayOfWeek() { showDayOfWeek.remove(*this); }

bool OrbFormat::getShowHour() const { return showHour.get(*this); }
void OrbFormat::setShowHour(bool value) { showHour.set(*this, value); }
bool OrbFormat::isShowHourPresent() const { return showHour.isPresent(*this); }
void OrbFormat::removeShowHour() { showHour.remove(*this); }

bool OrbFormat::getShowMinute() const { return showMinute.get(*this); }
void OrbFormat::setShowMinute(bool value) { showMinute.set(*this, value); }
bool OrbFormat::isShowMinutePresent() const { return showMinute.isPresent(*this); }
void OrbFormat::removeShowMinute() { showMinute.remove(*this); }

bool OrbFormat::getShowSecond() const { return showSecond.get(*this); }
void OrbFormat::setShowSecond(bool value) { showSecond.set(*this, value); }
bool OrbFormat::isShowSecondPresent() const { return showSecond.isPresent(*this); }
void OrbFormat::removeShowSecond() { showSecond.remove(*this); }

bool OrbFormat::getShowMillis() const { return showMillis.get(*this); }
void OrbFormat::setShowMillis(bool value) { showMillis.set(*this, value); }
bool OrbFormat::isShowMillisPresent() const { return showMillis.isPresent(*this); }
void OrbFormat::removeShowMillis() { showMillis.remove(*this); }

bool OrbFormat::getDayOfWeekAbbreviation() const { return dayOfWeekAbbreviation.get(*this); }
void OrbFormat::setDayOfWeekAbbreviation(bool value) { dayOfWeekAbbreviation.set(*this, value); }
bool OrbFormat::isDayOfWeekAbbreviationPresent() const { return dayOfWeekAbbreviation.isPresent(*this); }
void OrbFormat::removeDayOfWeekAbbreviation() { dayOfWeekAbbreviation.remove(*this); }

bool OrbFormat::getYearAbbreviation() const { return yearAbbreviation.get(*this); }
void OrbFormat::setYearAbbreviation(bool value) { yearAbbreviation.set(*this, value); }
bool OrbFormat::isYearAbbreviationPresent() const { return yearAbbreviation.isPresent(*this); }
void OrbFormat::removeYearAbbreviation() { yearAbbreviation.remove(*this); }

const XMLCh* OrbFormat::getQuarterPrefix() const { return quarterPrefix.get(*this); }
void OrbFormat::setQuarterPrefix(const XMLCh* value) { quarterPrefix.set(*this, value); }
bool OrbFormat::isQuarterPrefixPresent() const { return quarterPrefix.isPresent(*this); }
void OrbFormat::removeQuarterPrefix() { quarterPrefix.remove(*this); }

const XMLCh* OrbFormat::getQuarterSuffix() const { return quarterSuffix.get(*this); }
void OrbFormat::setQuarterSuffix(const XMLCh* value) { quarterSuffix.set(*this, value); }
bool OrbFormat::isQuarterSuffixPresent() const { return quarterSuffix.isPresent(*this); }
void OrbFormat::removeQuarterSuffix() { quarterSuffix.remove(*this); }

const XMLCh* OrbFormat::getWeekSuffix() const { return weekSuffix.get(*this); }
void OrbFormat::setWeekSuffix(const XMLCh* value) { weekSuffix.set(*this, value); }
bool OrbFormat::isWeekSuffixPresent() const { return weekSuffix.isPresent(*this); }
void OrbFormat::removeWeekSuffix() { weekSuffix.remove(*this); }

OrbUnitRule* OrbFormat::addUnitRule() { return children_->add<OrbUnitRule>(*this, atEnd); }
std::vector<OrbUnitRule*> OrbFormat::getUnitRules() const { return children_->all<OrbUnitRule>(); }
unsigned int OrbFormat::removeUnitRules() { return children_->removeAll<OrbUnitRule>(*this); }

OrbRelabel* OrbFormat::addRelabel() { return children_->add<OrbRelabel>(*this, atEnd); }
OrbRelabel* OrbFormat::addRelabel(const XMLCh* from, const XMLCh* to) {
  OrbRelabel* relabel = addRelabel();
  relabel->setFrom(from);
  relabel->setTo(to);
  return relabel;
}
std::vector<OrbRelabel*> OrbFormat::getRelabels() const { return children_->all<OrbRelabel>(); }
unsigned int OrbFormat::removeRelabels() { return children_->removeAll<OrbRelabel>(*this); }
