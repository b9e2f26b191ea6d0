// A statistic of a variable in its extension, element `extension`.
#pragma once

#include "orbextension.h"

/// The extension of a variable: it holds a statistic that was computed of the variable.
/// \ingroup variables
class ORBCHART_EXPORT OrbExtensionSV : public OrbExtension {
public:
  static constexpr XMLCh _UTF_statistic_numberOfCases[] = u"numberOfCases";
  static constexpr XMLCh _UTF_statistic_percentageOfCases[] = u"percentageOfCases";
  static constexpr XMLCh _UTF_statistic_meanOfValues[] = u"meanOfValues";
  static constexpr XMLCh _UTF_statistic_medianOfValues[] = u"medianOfValues";
  static constexpr XMLCh _UTF_statistic_modeOfValues[] = u"modeOfValues";
  static constexpr XMLCh _UTF_statistic_sumOfValues[] = u"sumOfValues";
  static constexpr XMLCh _UTF_statistic_standardDeviation[] = u"standardDeviation";
  static constexpr XMLCh _UTF_statistic_minimumValue[] = u"minimumValue";
  static constexpr XMLCh _UTF_statistic_maximumValue[] = u"maximumValue";
  static constexpr XMLCh _UTF_statistic_cumulativeNumberOfCases[] = u"cumulativeNumberOfCases";
  static constexpr XMLCh _UTF_statistic_cumulativePercentageOfCases[] = u"cumulativePercentageOfCases";
  static constexpr XMLCh _UTF_statistic_percentile[] = u"percentile";
  static constexpr XMLCh _UTF_statistic_percentageAbove[] = u"percentageAbove";
  static constexpr XMLCh _UTF_statistic_percentageBelow[] = u"percentageBelow";
  static constexpr XMLCh _UTF_statistic_numberAbove[] = u"numberAbove";
  static constexpr XMLCh _UTF_statistic_numberBelow[] = u"numberBelow";
  static constexpr XMLCh _UTF_statistic_percentageInside[] = u"percentageInside";
  static constexpr XMLCh _UTF_statistic_numberInside[] = u"numberInside";
  static constexpr XMLCh _UTF_statistic_gMedian[] = u"gMedian";
  static constexpr XMLCh _UTF_statistic_gPtile[] = u"gPtile";
  static constexpr XMLCh _UTF_statistic_percentLessThanOrEqualX[] = u"percentLessThanOrEqualX";
  static constexpr XMLCh _UTF_statistic_numberLessThanOrEqualX[] = u"numberLessThanOrEqualX";
  static constexpr XMLCh _UTF_statistic_percentGreaterThanOrEqualX[] = u"percentGreaterThanOrEqualX";
  static constexpr XMLCh _UTF_statistic_numberGreaterThanOrEqualX[] = u"numberGreaterThanOrEqualX";
  static constexpr XMLCh _UTF_statistic_percentEqualX[] = u"percentEqualX";
  static constexpr XMLCh _UTF_statistic_numberEqualX[] = u"numberEqualX";
  static constexpr XMLCh _UTF_statistic_xValue[] = u"xValue";
  static constexpr XMLCh _UTF_statistic_validN[] = u"validN";
  static constexpr XMLCh _UTF_statistic_customStatistic[] = u"customStatistic";
  static constexpr XMLCh _UTF_valuesAreGroupedMidpoints[] = u"valuesAreGroupedMidpoints";

  enum ENUM_statistic : int {
    statistic_unset = 0,
    statistic_numberOfCases = 1,
    statistic_percentageOfCases = 2,
    statistic_meanOfValues = 3,
    statistic_medianOfValues = 4,
    statistic_modeOfValues = 5,
    statistic_sumOfValues = 6,
    statistic_standardDeviation = 7,
    statistic_variance = 8,
    statistic_minimumValue = 9,
    statistic_maximumValue = 10,
    statistic_cumulativeSum = 11,
    statistic_cumulativeNumberOfCases = 12,
    statistic_cumulativePercentageOfCases = 13,
    statistic_percentile = 14,
    statistic_percentageAbove = 15,
    statistic_percentageBelow = 16,
    statistic_numberAbove = 17,
    statistic_numberBelow = 18,
    statistic_percentageInside = 19,
    statistic_numberInside = 20,
    statistic_gMedian = 21,
    statistic_gPtile = 22,
    statistic_percentLessThanOrEqualX = 23,
    statistic_numberLessThanOrEqualX = 24,
    statistic_percentGreaterThanOrEqualX = 25,
    statistic_numberGreaterThanOrEqualX = 26,
    statistic_percentEqualX = 27,
    statistic_numberEqualX = 28,
    statistic_xValue = 29,
    statistic_validN = 30,
    statistic_customStatistic = 31,
  };

  explicit OrbExtensionSV(xercesc::DOMElement* element);
  ~OrbExtensionSV() override;

  /// The statistic; 0 when absent.
  ENUM_statistic getStatistic() const;
  void setStatistic(ENUM_statistic statistic);
  void removeStatistic();

  /// The name of the variable that the statistic is of.
  const XMLCh* getVariable() const;
  void setVariable(const XMLCh* variable);
  void removeVariable();

  /// The number that the statistic takes beside the data, as the rank of a percentile; 0.0 when absent.
  double getValue() const;
  void setValue(double value);
  void removeValue();

  /// The lower end of the range that the statistic counts in; 0.0 when absent.
  double getMin() const;
  void setMin(double min);
  void removeMin();

  /// The upper end of the range that the statistic counts in; 0.0 when absent.
  double getMax() const;
  void setMax(double max);
  void removeMax();

  /// Whether the values stand for the middles of groups; false when absent.
  bool getValuesAreGroupedMidpoints() const;
  void setValuesAreGroupedMidpoints(bool valuesAreGroupedMidpoints);
  void removeValuesAreGroupedMidpoints();
};
