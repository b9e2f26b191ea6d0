// An estimate of density by nearest neighbours, element `nearestNeighborDensityStatistic`.
#pragma once

#include "orbbaseelement.h"

/// Estimates the density of the rows of a cell, in a window of a number of neighbours.
/// \ingroup statistics
class ORBCHART_EXPORT OrbNearestNeighborDensityStatistic : public OrbBaseElement {
public:
  static constexpr XMLCh _UTF_nearestNeighborDensityStatistic[] = u"nearestNeighborDensityStatistic";
  static constexpr const XMLCh* elementName = _UTF_nearestNeighborDensityStatistic;

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

  explicit OrbNearestNeighborDensityStatistic(xercesc::DOMElement* element);
  ~OrbNearestNeighborDensityStatistic() override;

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

  /// The number of neighbours in the window. A negative number is written and reads as 0.
  int getNeighbors() const;
  void setNeighbors(int neighbors);
  bool isNeighborsPresent() const;
  void removeNeighbors();
};
