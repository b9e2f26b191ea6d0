// A summary of rows, element `summaryStatistic`.
#pragma once

#include "orbbaseelement.h"

/// A summary of the rows of a cell by one method.
/// \ingroup statistics
class ORBCHART_EXPORT OrbSummaryStatistic : public OrbBaseElement {
public:
  static constexpr XMLCh _UTF_summaryStatistic[] = u"summaryStatistic";
  static constexpr const XMLCh* elementName = _UTF_summaryStatistic;

  static constexpr XMLCh _UTF_summaryBase[] = u"summaryBase";
  static constexpr XMLCh _UTF_summaryIndex[] = u"summaryIndex";
  static constexpr XMLCh _UTF_summaryAcrossPanels[] = u"summaryAcrossPanels";
  static constexpr XMLCh _UTF_augment[] = u"augment";
  static constexpr XMLCh _UTF_multiple[] = u"multiple";

  static constexpr XMLCh VSS_percentCount[] = u"percentCount";
  static constexpr XMLCh VSS_fractionCount[] = u"fractionCount";
  static constexpr XMLCh VSS_confidenceIntervalOfCount[] = u"confidenceIntervalOfCount";
  static constexpr XMLCh VSS_confidenceIntervalOfPercentCount[] = u"confidenceIntervalOfPercentCount";
  static constexpr XMLCh VSS_confidenceIntervalOfFractionCount[] = u"confidenceIntervalOfFractionCount";
  static constexpr XMLCh VSS_rowCount[] = u"rowCount";
  static constexpr XMLCh VSS_cumulativePercent[] = u"cumulativePercent";
  static constexpr XMLCh VSS_cumulativePercentCount[] = u"cumulativePercentCount";
  static constexpr XMLCh VSS_cumulativeFraction[] = u"cumulativeFraction";
  static constexpr XMLCh VSS_cumulativeFractionCount[] = u"cumulativeFractionCount";
  static constexpr XMLCh VSS_cumulativeCount[] = u"cumulativeCount";
  static constexpr XMLCh VSS_last[] = u"last";
  static constexpr XMLCh VSS_percentile[] = u"percentile";
  static constexpr XMLCh VSS_countTrue[] = u"countTrue";
  static constexpr XMLCh VSS_percentTrue[] = u"percentTrue";
  static constexpr XMLCh VSS_fractionTrue[] = u"fractionTrue";
  static constexpr XMLCh VSS_kurtosis[] = u"kurtosis";
  static constexpr XMLCh VSS_seKurtosis[] = u"seKurtosis";
  static constexpr XMLCh VSS_skewness[] = u"skewness";
  static constexpr XMLCh VSS_seSkewness[] = u"seSkewness";
  static constexpr XMLCh VSS_global[] = u"global";
  static constexpr XMLCh VSS_coordinate[] = u"coordinate";
  static constexpr XMLCh VSS_zero[] = u"zero";
  static constexpr XMLCh VSS_missing[] = u"missing";

  enum ENUM_method : int {
    method_mean = 0,
    method_sum = 1,
    method_midRange = 2,
    method_percent = 3,
    method_percentCount = 4,
    method_fraction = 5,
    method_fractionCount = 6,
    method_range = 7,
    method_confidenceIntervalOfMean = 8,
    method_confidenceIntervalIndividual = 9,
    method_count = 10,
    method_confidenceIntervalOfCount = 11,
    method_confidenceIntervalOfPercentCount = 12,
    method_confidenceIntervalOfFractionCount = 13,
    method_rowCount = 14,
    method_stddev = 15,
    method_stderr = 16,
    method_median = 17,
    method_max = 18,
    method_min = 19,
    method_variance = 20,
    method_cumulativeSum = 21,
    method_cumulativePercent = 22,
    method_cumulativePercentCount = 23,
    method_cumulativeFraction = 24,
    method_cumulativeFractionCount = 25,
    method_cumulativeCount = 26,
    method_first = 27,
    method_last = 28,
    method_percentile = 29,
    method_mode = 30,
    method_countTrue = 31,
    method_percentTrue = 32,
    method_fractionTrue = 33,
    method_kurtosis = 34,
    method_seKurtosis = 35,
    method_skewness = 36,
    method_seSkewness = 37,
    method_unset = 38,
  };

  enum ENUM_summaryBase : int {
    summaryBase_global = 0,
    summaryBase_aesthetic = 1,
    summaryBase_coordinate = 2,
    summaryBase_unset = 3,
  };

  enum ENUM_augment : int {
    augment_unset = 0,
    augment_zero = 1,
    augment_missing = 2,
    augment_none = 3,
  };

  explicit OrbSummaryStatistic(xercesc::DOMElement* element);
  ~OrbSummaryStatistic() override;

  const XMLCh* getId() const;
  void setId(const XMLCh* id);
  void removeId();

  /// The method; 38, which has no keyword, when absent.
  ENUM_method getMethod() const;
  void setMethod(ENUM_method method);
  void removeMethod();

  /// The percentage that some methods take.
  double getPercent() const;
  void setPercent(double percent);
  void removePercent();

  /// What the summary is based on: all the data, an aesthetic or a coordinate; 3, which has no keyword, when absent.
  ENUM_summaryBase getSummaryBase() const;
  void setSummaryBase(ENUM_summaryBase summaryBase);
  void removeSummaryBase();

  /// Which aesthetic or coordinate, where summaryBase says one of these.
  unsigned int getSummaryIndex() const;
  void setSummaryIndex(unsigned int summaryIndex);
  bool isSummaryIndexPresent() const;
  void removeSummaryIndex();

  /// Whether the summary runs over all panels; false when absent.
  bool getSummaryAcrossPanels() const;
  void setSummaryAcrossPanels(bool summaryAcrossPanels);
  void removeSummaryAcrossPanels();

  /// What stands in for cells without rows; 0 when absent.
  ENUM_augment getAugment() const;
  void setAugment(ENUM_augment augment);
  bool isAugmentPresent() const;
  void removeAugment();

  /// 0.0 when absent.
  double getMultiple() const;
  void setMultiple(double multiple);
  bool isMultiplePresent() const;
  void removeMultiple();

  /// Whether an interval is reduced to one value; false when absent.
  bool getConvertIntervalToSingleValue() const;
  void setConvertIntervalToSingleValue(bool convertIntervalToSingleValue);
  void removeConvertIntervalToSingleValue();
};
