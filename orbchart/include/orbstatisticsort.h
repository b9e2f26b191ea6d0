// A sort of categories by a statistic, element `statisticSort`.
#pragma once

#include "orbbaseelement.h"

#include <memory>

class CTVariableType;
class OrbSortMove;
class OrbSourceVariable;
class OrbUnion;

/// Sorts categories by a summary of a variable. Moves and unions stand in the order of addition. An unknown child
/// element raises at a load.
/// \ingroup variables
class ORBCHART_EXPORT OrbStatisticSort : public OrbBaseElement {
public:
  static constexpr XMLCh _UTF_statisticSort[] = u"statisticSort";
  static constexpr const XMLCh* elementName = _UTF_statisticSort;

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
  };

  explicit OrbStatisticSort(xercesc::DOMElement* element);
  /// Writes the variable before it looks for children.
  OrbStatisticSort(xercesc::DOMElement* element, const CTVariableType& sourceVariable);
  ~OrbStatisticSort() override;

  const XMLCh* getId() const;
  void setId(const XMLCh* id);
  void removeId();

  /// The summary; "mean" when absent. The keywords and numbers are those of OrbSummaryStatistic, without the last four.
  ENUM_method getMethod() const;
  void setMethod(ENUM_method method);
  void removeMethod();

  /// Whether the order is descending; false when absent.
  bool getDescending() const;
  void setDescending(bool descending);
  void removeDescending();

  /// The variable whose categories are sorted. Any variable can be written; all but a source variable read as null.
  OrbSourceVariable* getSourceVariable() const;
  void setSourceVariable(const CTVariableType& variable);

  /// The variable that is summarised. Any variable can be written; all but a source variable read as null.
  OrbSourceVariable* getStatVariable() const;
  void setStatVariable(const CTVariableType& variable);
  void removeStatVariable();

  /// The categories that move out of the order.
  OrbSortMove* addSortMove(const XMLCh* category);
  std::vector<OrbSortMove*> getSortMoves() const;
  unsigned int removeSortMoves();

  /// Which rows are summarised.
  OrbUnion* addUnion();
  std::vector<OrbUnion*> getUnions() const;
  unsigned int removeUnions();

private:
  struct Children;
  std::unique_ptr<Children> children_;
};
