// An estimate of density with a fixed window, element `fixedWindowDensityStatistic`.
#pragma once

#include "orbbaseelement.h"

/// Estimates the density of the rows of a cell, in a window of fixed size.
/// \ingroup statistics
class ORBCHART_EXPORT OrbFixedWindowDensityStatistic : public OrbBaseElement {
public:
  static constexpr XMLCh _UTF_fixedWindowDensityStatistic[] = u"fixedWindowDensityStatistic";
  static constexpr const XMLCh* elementName = _UTF_fixedWindowDensityStatistic;

  enum ENUM_kernel : int {
    kernel_unset = 0,
    kernel_uniform = 1,
    kernel_epanechnikov = 2,
    kernel_biweight = 3,
    kernel_triweight = 4,
    kernel_tricube = 5,
    kernel_gaussian = 6,
    kernel_cauchy = 7,
  };

  explicit OrbFixedWindowDensityStatistic(xercesc::DOMElement* element);
  ~OrbFixedWindowDensityStatistic() override;

  const XMLCh* getId() const;
  void setId(const XMLCh* id);
  bool isIdPresent() const;
  void removeId();

  /// How neighbours weigh; 0 when absent. OrbSmoothStatistic numbers the same keywords from 0.
  ENUM_kernel getKernel() const;
  void setKernel(ENUM_kernel kernel);
  bool isKernelPresent() const;
  void removeKernel();

  /// The number of segments that are drawn. A negative number is written and reads as 0.
  int getSegments() const;
  void setSegments(int segments);
  bool isSegmentsPresent() const;
  void removeSegments();

  /// Whether the bandwidth follows the kernel; false when absent.
  bool getMarron() const;
  void setMarron(bool marron);
  bool isMarronPresent() const;
  void removeMarron();

  /// Whether the estimate ends with the data; false when absent.
  bool getBounded() const;
  void setBounded(bool bounded);
  bool isBoundedPresent() const;
  void removeBounded();

  /// The share of the rows in the window.
  double getProportion() const;
  void setProportion(double proportion);
  bool isProportionPresent() const;
  void removeProportion();
};
