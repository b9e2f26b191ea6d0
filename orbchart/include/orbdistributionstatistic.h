// A theoretical distribution, element `distributionStatistic`.
#pragma once

#include "orbbaseelement.h"

/// A theoretical distribution beside the rows of a cell.
/// \ingroup statistics
class ORBCHART_EXPORT OrbDistributionStatistic : public OrbBaseElement {
public:
  static constexpr XMLCh _UTF_distributionStatistic[] = u"distributionStatistic";
  static constexpr const XMLCh* elementName = _UTF_distributionStatistic;

  static constexpr XMLCh _UTF_secondaryParameter[] = u"secondaryParameter";
  static constexpr XMLCh _UTF_scaledToData[] = u"scaledToData";

  enum ENUM_distribution : int {
    distribution_unset = 0,
    distribution_uniform = 1,
    distribution_normal = 2,
    distribution_t = 3,
    distribution_f = 4,
    distribution_chisquare = 5,
    distribution_gamma = 6,
    distribution_beta = 7,
    distribution_exponential = 8,
    distribution_logistic = 9,
    distribution_studentizedrange = 10,
    distribution_weibull = 11,
    distribution_poisson = 12,
    distribution_binomialnegative = 13,
    distribution_gaussianinverse = 14,
  };

  explicit OrbDistributionStatistic(xercesc::DOMElement* element);
  ~OrbDistributionStatistic() override;

  const XMLCh* getId() const;
  void setId(const XMLCh* id);
  void removeId();

  /// The distribution; 0 when absent. OrbRegionStatistic numbers the same keywords from 0.
  ENUM_distribution getDistribution() const;
  void setDistribution(ENUM_distribution distribution);
  bool isDistributionPresent() const;
  void removeDistribution();

  /// The first parameter, as text.
  const XMLCh* getParameter() const;
  void setParameter(const XMLCh* parameter);
  bool isParameterPresent() const;
  void removeParameter();

  /// The second parameter, as text.
  const XMLCh* getSecondaryParameter() const;
  void setSecondaryParameter(const XMLCh* secondaryParameter);
  bool isSecondaryParameterPresent() const;
  void removeSecondaryParameter();

  /// The number of segments that are drawn. A negative number is written and reads as 0.
  int getSegments() const;
  void setSegments(int segments);
  bool isSegmentsPresent() const;
  void removeSegments();

  /// Whether the distribution is scaled to the data; false when absent.
  bool getScaledToData() const;
  void setScaledToData(bool scaledToData);
  bool isScaledToDataPresent() const;
  void removeScaledToData();
};
