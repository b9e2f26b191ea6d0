// A region around a fit, element `regionStatistic`.
#pragma once

#include "orbbaseelement.h"

/// A region around a fit to the rows of a cell.
/// \ingroup statistics
class ORBCHART_EXPORT OrbRegionStatistic : public OrbBaseElement {
public:
  static constexpr XMLCh _UTF_regionStatistic[] = u"regionStatistic";
  static constexpr const XMLCh* elementName = _UTF_regionStatistic;

  static constexpr XMLCh _UTF_intercept[] = u"intercept";

  enum ENUM_regionType : int {
    regionType_uniform = 0,
    regionType_range = 1,
    regionType_sd = 2,
    regionType_se = 3,
    regionType_linear = 4,
    regionType_quadratic = 5,
    regionType_cubic = 6,
    regionType_polynomial = 7,
    regionType_piecewise = 8,
    regionType_confi = 9,
    regionType_mad = 10,
  };

  enum ENUM_location : int {
    location_mean = 0,
    location_median = 1,
    location_mode = 2,
  };

  enum ENUM_distribution : int {
    distribution_uniform = 0,
    distribution_normal = 1,
    distribution_t = 2,
    distribution_f = 3,
    distribution_chisquare = 4,
    distribution_gamma = 5,
    distribution_beta = 6,
    distribution_exponential = 7,
    distribution_logistic = 8,
    distribution_studentizedrange = 9,
    distribution_weibull = 10,
    distribution_poisson = 11,
    distribution_binomialnegative = 12,
    distribution_gaussianinverse = 13,
  };

  explicit OrbRegionStatistic(xercesc::DOMElement* element);
  ~OrbRegionStatistic() override;

  const XMLCh* getId() const;
  void setId(const XMLCh* id);
  void removeId();

  /// What the region spans; "uniform" when absent.
  ENUM_regionType getRegionType() const;
  void setRegionType(ENUM_regionType regionType);
  void removeRegionType();

  /// What the region lies around; "mean" when absent.
  ENUM_location getLocation() const;
  void setLocation(ENUM_location location);
  void removeLocation();

  /// The distribution of the values; "uniform" when absent. OrbDistributionStatistic and OrbScale number the same
  /// keywords from 1.
  ENUM_distribution getDistribution() const;
  void setDistribution(ENUM_distribution distribution);
  void removeDistribution();

  /// The level of confidence.
  double getAlpha() const;
  void setAlpha(double alpha);
  void removeAlpha();

  /// The first number of degrees of freedom.
  double getDf1() const;
  void setDf1(double df1);
  void removeDf1();

  /// The second number of degrees of freedom.
  double getDf2() const;
  void setDf2(double df2);
  void removeDf2();

  /// The value at the origin; 0.0 is one as well, and so it can be asked for its presence.
  double getIntercept() const;
  void setIntercept(double intercept);
  bool isInterceptPresent() const;
  void removeIntercept();

  /// The degree of a polynomial.
  unsigned int getDegree() const;
  void setDegree(unsigned int degree);
  void removeDegree();

  /// The number of segments that are drawn.
  unsigned int getSegments() const;
  void setSegments(unsigned int segments);
  void removeSegments();

  /// The number of conditional regions.
  unsigned int getNumberConditionals() const;
  void setNumberConditionals(unsigned int numberConditionals);
  void removeNumberConditionals();

  /// Where the pieces of the model meet. OrbSmoothStatistic spells the attribute `cutpoints`.
  const XMLCh* getCutPoints() const;
  void setCutPoints(const XMLCh* cutPoints);
  void removeCutPoints();

  /// Whether the region ends with the data; false when absent.
  bool getBounded() const;
  void setBounded(bool bounded);
  void removeBounded();

  /// Whether the region is for single values rather than for the fit; false when absent.
  bool getPredictIndividuals() const;
  void setPredictIndividuals(bool predictIndividuals);
  void removePredictIndividuals();
};
