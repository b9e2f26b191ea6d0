// How a number or a date is printed, element `format`.
#pragma once

#include "ctformattype.h"

#include <memory>

class OrbRelabel;
class OrbUnitRule;

/// How a rendering engine prints a number or a date: digits, grouping, parts of a date, what surrounds the value, and
/// what stands in the place of certain values. The library stores the settings and formats nothing by them. A load
/// passes over child elements that it does not know. Children stand in the order of addition, those of the base among
/// them.
/// \ingroup style
class ORBCHART_EXPORT OrbFormat : public CTFormatType {
public:
  static constexpr XMLCh _UTF_format[] = u"format";
  static constexpr const XMLCh* elementName = _UTF_format;

  static constexpr XMLCh _UTF_baseFormat_elapsedTime[] = u"elapsedTime";
  static constexpr XMLCh _UTF_scientific_onlyForSmall[] = u"onlyForSmall";
  static constexpr XMLCh _UTF_scientific_whenNeeded[] = u"whenNeeded";
  static constexpr XMLCh _UTF_small[] = u"small";
  static constexpr XMLCh _UTF_errorCharacter[] = u"errorCharacter";
  static constexpr XMLCh _UTF_tryStringsAsNumbers[] = u"tryStringsAsNumbers";
  static constexpr XMLCh _UTF_mdyOrder[] = u"mdyOrder";
  static constexpr XMLCh _UTF_mdyOrder_dayMonthYear[] = u"dayMonthYear";
  static constexpr XMLCh _UTF_mdyOrder_dayYearMonth[] = u"dayYearMonth";
  static constexpr XMLCh _UTF_mdyOrder_monthDayYear[] = u"monthDayYear";
  static constexpr XMLCh _UTF_mdyOrder_monthYearDay[] = u"monthYearDay";
  static constexpr XMLCh _UTF_mdyOrder_yearDayMonth[] = u"yearDayMonth";
  static constexpr XMLCh _UTF_mdyOrder_yearMonthDay[] = u"yearMonthDay";
  static constexpr XMLCh _UTF_weekSuffix[] = u"weekSuffix";

  enum ENUM_baseFormat : int {
    baseFormat_unset = 0,
    baseFormat_date = 1,
    baseFormat_time = 2,
    baseFormat_dateTime = 3,
    baseFormat_elapsedTime = 4,
  };

  enum ENUM_scientific : int {
    scientific_unset = 0,
    scientific_true = 1,
    scientific_false = 2,
    scientific_onlyForSmall = 3,
    scientific_whenNeeded = 4,
  };

  enum ENUM_mdyOrder : int {
    mdyOrder_unset = 0,
    mdyOrder_dayMonthYear = 1,
    mdyOrder_dayYearMonth = 2,
    mdyOrder_monthDayYear = 3,
    mdyOrder_monthYearDay = 4,
    mdyOrder_yearDayMonth = 5,
    mdyOrder_yearMonthDay = 6,
  };

  enum ENUM_dayType : int {
    dayType_unset = 0,
    dayType_month = 1,
    dayType_year = 2,
  };

  enum ENUM_hourFormat : int {
    hourFormat_unset = 0,
    hourFormat_AMPM = 1,
    hourFormat_AS_24 = 2,
    hourFormat_AS_12 = 3,
  };

  enum ENUM_monthFormat : int {
    monthFormat_unset = 0,
    monthFormat_short = 1,
    monthFormat_long = 2,
    monthFormat_number = 3,
    monthFormat_paddedNumber = 4,
  };

  explicit OrbFormat(xercesc::DOMElement* element);
  ~OrbFormat() override;

  /// The kind of value: a date, a time, both, or an elapsed time; 0 when absent, for a number.
  ENUM_baseFormat getBaseFormat() const;
  void setBaseFormat(ENUM_baseFormat baseFormat);
  bool isBaseFormatPresent() const;
  void removeBaseFormat();

  /// When a number is printed with an exponent; 0 when absent.
  ENUM_scientific getScientific() const;
  void setScientific(ENUM_scientific scientific);
  bool isScientificPresent() const;
  void removeScientific();

  /// The number below which a value is small.
  double getSmall() const;
  void setSmall(double small);
  bool isSmallPresent() const;
  void removeSmall();

  /// What is printed in the place of a value that cannot be.
  const XMLCh* getErrorCharacter() const;
  void setErrorCharacter(const XMLCh* errorCharacter);
  bool isErrorCharacterPresent() const;
  void removeErrorCharacter();

  /// The number of digits behind the decimal mark, at least. Nothing compares it with the most.
  unsigned int getMinimumFractionDigits() const;
  void setMinimumFractionDigits(unsigned int minimumFractionDigits);
  bool isMinimumFractionDigitsPresent() const;
  void removeMinimumFractionDigits();

  /// The number of digits behind the decimal mark, at most.
  unsigned int getMaximumFractionDigits() const;
  void setMaximumFractionDigits(unsigned int maximumFractionDigits);
  bool isMaximumFractionDigitsPresent() const;
  void removeMaximumFractionDigits();

  /// The number of digits ahead of the decimal mark, at least. The setter takes more than 32 bits and writes them all;
  /// the getter reads 32.
  unsigned int getMinimumIntegerDigits() const;
  void setMinimumIntegerDigits(unsigned long minimumIntegerDigits);
  bool isMinimumIntegerDigitsPresent() const;
  void removeMinimumIntegerDigits();

  /// The number of digits ahead of the decimal mark, at most; written and read as the least number.
  unsigned int getMaximumIntegerDigits() const;
  void setMaximumIntegerDigits(unsigned long maximumIntegerDigits);
  bool isMaximumIntegerDigitsPresent() const;
  void removeMaximumIntegerDigits();

  /// Whether digits are grouped; false when absent.
  bool getUseGrouping() const;
  void setUseGrouping(bool useGrouping);
  bool isUseGroupingPresent() const;
  void removeUseGrouping();

  /// Whether the sign of negative numbers is left out; false when absent.
  bool getHideNegatives() const;
  void setHideNegatives(bool hideNegatives);
  bool isHideNegativesPresent() const;
  void removeHideNegatives();

  /// Whether the sign stands outside of the prefix and the suffix; false when absent.
  bool getNegativesOutside() const;
  void setNegativesOutside(bool negativesOutside);
  bool isNegativesOutsidePresent() const;
  void removeNegativesOutside();

  /// Whether negative numbers stand in parentheses; false when absent.
  bool getNegativesInParentheses() const;
  void setNegativesInParentheses(bool negativesInParentheses);
  bool isNegativesInParenthesesPresent() const;
  void removeNegativesInParentheses();

  /// The number by which values are multiplied.
  double getScalingFactor() const;
  void setScalingFactor(double scalingFactor);
  bool isScalingFactorPresent() const;
  void removeScalingFactor();

  /// Whether texts that read as numbers are printed as such; false when absent.
  bool getTryStringsAsNumbers() const;
  void setTryStringsAsNumbers(bool tryStringsAsNumbers);
  bool isTryStringsAsNumbersPresent() const;
  void removeTryStringsAsNumbers();

  /// The order of the parts of a date; 0 when absent.
  ENUM_mdyOrder getMdyOrder() const;
  void setMdyOrder(ENUM_mdyOrder mdyOrder);
  bool isMdyOrderPresent() const;
  void removeMdyOrder();

  /// Whether days count in the month or in the year; 0 when absent.
  ENUM_dayType getDayType() const;
  void setDayType(ENUM_dayType dayType);
  bool isDayTypePresent() const;
  void removeDayType();

  /// How hours are counted; 0 when absent.
  ENUM_hourFormat getHourFormat() const;
  void setHourFormat(ENUM_hourFormat hourFormat);
  bool isHourFormatPresent() const;
  void removeHourFormat();

  /// How months are printed; 0 when absent.
  ENUM_monthFormat getMonthFormat() const;
  void setMonthFormat(ENUM_monthFormat monthFormat);
  bool isMonthFormatPresent() const;
  void removeMonthFormat();

  /// Whether days of a month are padded with zeros; false when absent.
  bool getDayOfMonthPadding() const;
  void setDayOfMonthPadding(bool dayOfMonthPadding);
  bool isDayOfMonthPaddingPresent() const;
  void removeDayOfMonthPadding();

  /// Whether weeks are padded with zeros; false when absent.
  bool getWeekPadding() const;
  void setWeekPadding(bool weekPadding);
  bool isWeekPaddingPresent() const;
  void removeWeekPadding();

  /// Whether days are padded with zeros; false when absent.
  bool getDayPadding() const;
  void setDayPadding(bool dayPadding);
  bool isDayPaddingPresent() const;
  void removeDayPadding();

  /// Whether hours are padded with zeros; false when absent.
  bool getHourPadding() const;
  void setHourPadding(bool hourPadding);
  bool isHourPaddingPresent() const;
  void removeHourPadding();

  /// Whether minutes are padded with zeros; false when absent.
  bool getMinutePadding() const;
  void setMinutePadding(bool minutePadding);
  bool isMinutePaddingPresent() const;
  void removeMinutePadding();

  /// Whether seconds are padded with zeros; false when absent.
  bool getSecondPadding() const;
  void setSecondPadding(bool secondPadding);
  bool isSecondPaddingPresent() const;
  void removeSecondPadding();

  /// Whether the era is printed; false when absent.
  bool getShowEra() const;
  void setShowEra(bool showEra);
  bool isShowEraPresent() const;
  void removeShowEra();

  /// Whether the year is printed; false when absent.
  bool getShowYear() const;
  void setShowYear(bool showYear);
  bool isShowYearPresent() const;
  void removeShowYear();

  /// Whether the quarter is printed; false when absent.
  bool getShowQuarter() const;
  void setShowQuarter(bool showQuarter);
  bool isShowQuarterPresent() const;
  void removeShowQuarter();

  /// Whether the month is printed; false when absent.
  bool getShowMonth() const;
  void setShowMonth(bool showMonth);
  bool isShowMonthPresent() const;
  void removeShowMonth();

  /// Whether the week is printed; false when absent.
  bool getShowWeek() const;
  void setShowWeek(bool showWeek);
  bool isShowWeekPresent() const;
  void removeShowWeek();

  /// Whether the day is printed; false when absent.
  bool getShowDay() const;
  void setShowDay(bool showDay);
  bool isShowDayPresent() const;
  void removeShowDay();

  /// Whether the day of the week is printed; false when absent.
  bool getShowDayOfWeek() const;
  void setShowDayOfWeek(bool showDayOfWeek);
  bool isShowDayOfWeekPresent() const;
  void removeShowDayOfWeek();

  /// Whether the hour is printed; false when absent.
  bool getShowHour() const;
  void setShowHour(bool showHour);
  bool isShowHourPresent() const;
  void removeShowHour();

  /// Whether the minute is printed; false when absent.
  bool getShowMinute() const;
  void setShowMinute(bool showMinute);
  bool isShowMinutePresent() const;
  void removeShowMinute();

  /// Whether the second is printed; false when absent.
  bool getShowSecond() const;
  void setShowSecond(bool showSecond);
  bool isShowSecondPresent() const;
  void removeShowSecond();

  /// Whether milliseconds are printed; false when absent.
  bool getShowMillis() const;
  void setShowMillis(bool showMillis);
  bool isShowMillisPresent() const;
  void removeShowMillis();

  /// Whether days of the week are abbreviated; false when absent.
  bool getDayOfWeekAbbreviation() const;
  void setDayOfWeekAbbreviation(bool dayOfWeekAbbreviation);
  bool isDayOfWeekAbbreviationPresent() const;
  void removeDayOfWeekAbbreviation();

  /// Whether years are abbreviated; false when absent.
  bool getYearAbbreviation() const;
  void setYearAbbreviation(bool yearAbbreviation);
  bool isYearAbbreviationPresent() const;
  void removeYearAbbreviation();

  /// The text in front of a quarter.
  const XMLCh* getQuarterPrefix() const;
  void setQuarterPrefix(const XMLCh* quarterPrefix);
  bool isQuarterPrefixPresent() const;
  void removeQuarterPrefix();

  /// The text behind a quarter.
  const XMLCh* getQuarterSuffix() const;
  void setQuarterSuffix(const XMLCh* quarterSuffix);
  bool isQuarterSuffixPresent() const;
  void removeQuarterSuffix();

  /// The text behind a week.
  const XMLCh* getWeekSuffix() const;
  void setWeekSuffix(const XMLCh* weekSuffix);
  bool isWeekSuffixPresent() const;
  void removeWeekSuffix();

  /// Factors by which values are scaled into units. A new one has no factor.
  OrbUnitRule* addUnitRule();
  std::vector<OrbUnitRule*> getUnitRules() const;
  unsigned int removeUnitRules();

  /// Labels in the place of others. The second add sets both texts of the new child.
  OrbRelabel* addRelabel();
  OrbRelabel* addRelabel(const XMLCh* from, const XMLCh* to);
  std::vector<OrbRelabel*> getRelabels() const;
  unsigned int removeRelabels();

private:
  struct Children;
  std::unique_ptr<Children> children_;
};
