// How data values map onto a dimension, element `scale`.
#pragma once

#include "orbbaseelement.h"

/// How data values map onto a dimension, an aesthetic or a labeling. The library ties no attribute to a method or a
/// distribution: what is written is stored.
/// \ingroup coordinates
class ORBCHART_EXPORT OrbScale : public OrbBaseElement {
public:
  static constexpr XMLCh _UTF_scale[] = u"scale";
  static constexpr const XMLCh* elementName = _UTF_scale;

  static constexpr XMLCh _UTF_distributionParameter[] = u"distributionParameter";
  static constexpr XMLCh _UTF_distributionParameter2[] = u"distributionParameter2";
  static constexpr XMLCh _UTF_distribution_weibull[] = u"weibull";
  static constexpr XMLCh _UTF_distribution_binomialnegative[] = u"binomialnegative";
  static constexpr XMLCh _UTF_distribution_gaussianinverse[] = u"gaussianinverse";
  static constexpr XMLCh _UTF_method_logit[] = u"logit";
  static constexpr XMLCh _UTF_method_probit[] = u"probit";
  static constexpr XMLCh _UTF_method_asn[] = u"asn";
  static constexpr XMLCh _UTF_method_atanh[] = u"atanh";
  static constexpr XMLCh _UTF_method_prob[] = u"prob";
  static constexpr XMLCh _UTF_method_cLoglog[] = u"cLoglog";

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
  enum ENUM_method : int {
    method_unset = 0,
    method_linear = 1,
    method_log = 2,
    method_power = 3,
    method_log_safe = 4,
    method_power_safe = 5,
    method_logit = 6,
    method_probit = 7,
    method_asn = 8,
    method_atanh = 9,
    method_prob = 10,
    method_cLoglog = 11,
  };

  explicit OrbScale(xercesc::DOMElement* element);
  OrbScale(xercesc::DOMElement* element, ENUM_method method);
  ~OrbScale() override;

  const XMLCh* getId() const;
  void setId(const XMLCh* id);
  void removeId();

  /// Whether the scale runs the other way; false when absent.
  bool getInvert() const;
  void setInvert(bool invert);
  void removeInvert();

  /// The value at which the scale begins, free text.
  const XMLCh* getOrigin() const;
  void setOrigin(const XMLCh* origin);
  void removeOrigin();

  /// The base of a logarithm or the exponent of a power; 0.0 when absent.
  double getBase() const;
  void setBase(double base);
  void removeBase();

  /// The distribution by whose probabilities values are mapped; 0 when absent.
  ENUM_distribution getDistribution() const;
  void setDistribution(ENUM_distribution distribution);
  bool isDistributionPresent() const;
  void removeDistribution();

  /// The first parameter of the distribution; 0.0 when absent.
  double getDistributionParameter() const;
  void setDistributionParameter(double parameter);
  bool isDistributionParameterPresent() const;
  void removeDistributionParameter();

  /// The second parameter of the distribution; 0.0 when absent.
  double getDistributionParameter2() const;
  void setDistributionParameter2(double parameter);
  bool isDistributionParameter2Present() const;
  void removeDistributionParameter2();

  /// The function by which values are mapped; 0 when absent. Once written it cannot be removed.
  ENUM_method getMethod() const;
  void setMethod(ENUM_method method);
  bool isMethodPresent() const;
};
