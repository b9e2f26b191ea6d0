// A condition on a summary of rows, element `when`.
#pragma once

#include "orbbaseelement.h"

/// A condition that holds a summary of the rows against two bounds.
/// \ingroup elements
class ORBCHART_EXPORT OrbWhen : public OrbBaseElement {
public:
  static constexpr XMLCh _UTF_when[] = u"when";
  static constexpr const XMLCh* elementName = _UTF_when;

  static constexpr XMLCh _UTF_summary[] = u"summary";

  enum ENUM_summary : int {
    summary_unset = 0,
    summary_mean = 1,
    summary_sum = 2,
    summary_midRange = 3,
    summary_percent = 4,
    summary_percentCount = 5,
    summary_fraction = 6,
    summary_fractionCount = 7,
    summary_range = 8,
    summary_confidenceIntervalOfMean = 9,
    summary_confidenceIntervalIndividual = 10,
    summary_count = 11,
    summary_confidenceIntervalOfCount = 12,
    summary_confidenceIntervalOfPercentCount = 13,
    summary_confidenceIntervalOfFractionCount = 14,
    summary_rowCount = 15,
    summary_stddev = 16,
    summary_stderr = 17,
    summary_median = 18,
    summary_max = 19,
    summary_min = 20,
    summary_variance = 21,
    summary_cumulativeSum = 22,
    summary_cumulativePercent = 23,
    summary_cumulativePercentCount = 24,
    summary_cumulativeFraction = 25,
    summary_cumulativeFractionCount = 26,
    summary_cumulativeCount = 27,
    summary_first = 28,
    summary_last = 29,
    summary_percentile = 30,
    summary_mode = 31,
    summary_countTrue = 32,
    summary_percentTrue = 33,
    summary_fractionTrue = 34,
  };

  explicit OrbWhen(xercesc::DOMElement* element);
  ~OrbWhen() override;

  const XMLCh* getId() const;
  void setId(const XMLCh* id);
  bool isIdPresent() const;
  void removeId();

  /// The summary; 0 when absent.
  ENUM_summary getSummary() const;
  void setSummary(ENUM_summary summary);
  bool isSummaryPresent() const;
  void removeSummary();

  /// The two bounds; 0.0 when absent, which isMinPresent() and isMaxPresent() tell from a bound of 0.
  double getMin() const;
  void setMin(double min);
  bool isMinPresent() const;
  void removeMin();

  double getMax() const;
  void setMax(double max);
  bool isMaxPresent() const;
  void removeMax();
};
