// A smoother, element `smoothStatistic`.
#pragma once

#include "orbbaseelement.h"

/// Smooths the rows of a cell by a model.
/// \ingroup statistics
class ORBCHART_EXPORT OrbSmoothStatistic : public OrbBaseElement {
public:
  static constexpr XMLCh _UTF_smoothStatistic[] = u"smoothStatistic";
  static constexpr const XMLCh* elementName = _UTF_smoothStatistic;

  static constexpr XMLCh _UTF_method_step_left[] = u"step-left";
  static constexpr XMLCh _UTF_method_step_right[] = u"step-right";
  static constexpr XMLCh _UTF_method_step_center[] = u"step-center";
  static constexpr XMLCh _UTF_method_seasonal[] = u"seasonal";
  static constexpr XMLCh _UTF_bandwidth[] = u"bandwidth";
  static constexpr XMLCh _UTF_intercept[] = u"intercept";

  enum ENUM_method : int {
    method_linear = 0,
    method_loess = 1,
    method_power = 2,
    method_quadratic = 3,
    method_monotonic = 4,
    method_cubic = 5,
    method_polynomial = 6,
    method_log = 7,
    method_piecewise = 8,
    method_mean = 9,
    method_median = 10,
    method_trim = 11,
    method_spline = 12,
    method_step_left = 13,
    method_step_right = 14,
    method_step_center = 15,
    method_seasonal = 16,
  };

  enum ENUM_kernel : int {
    kernel_uniform = 0,
    kernel_epanechnikov = 1,
    kernel_biweight = 2,
    kernel_triweight = 3,
    kernel_tricube = 4,
    kernel_gaussian = 5,
    kernel_cauchy = 6,
  };

  enum ENUM_robust : int {
    robust_andrews = 0,
    robust_biweight = 1,
    robust_cauchy = 2,
    robust_fair = 3,
    robust_huber = 4,
    robust_logistic = 5,
    robust_talwar = 6,
    robust_welsch = 7,
  };

  enum ENUM_window : int {
    window_fixed = 0,
    window_knn = 1,
  };

  explicit OrbSmoothStatistic(xercesc::DOMElement* element);
  ~OrbSmoothStatistic() override;

  const XMLCh* getId() const;
  void setId(const XMLCh* id);
  void removeId();

  /// The model; "linear" when absent.
  ENUM_method getMethod() const;
  void setMethod(ENUM_method method);
  void removeMethod();

  /// How neighbours weigh; "uniform" when absent. The density statistics number the same keywords from 1.
  ENUM_kernel getKernel() const;
  void setKernel(ENUM_kernel kernel);
  void removeKernel();

  /// How outliers weigh; "andrews" when absent.
  ENUM_robust getRobust() const;
  void setRobust(ENUM_robust robust);
  void removeRobust();

  /// How neighbours are chosen; "fixed" when absent.
  ENUM_window getWindow() const;
  void setWindow(ENUM_window window);
  void removeWindow();

  /// The width of the window.
  double getBandwidth() const;
  void setBandwidth(double bandwidth);
  void removeBandwidth();

  /// The share of the rows in the window.
  double getProportion() const;
  void setProportion(double proportion);
  void removeProportion();

  /// The value at the origin; 0.0 is one as well, and so it can be asked for its presence.
  double getIntercept() const;
  void setIntercept(double intercept);
  bool isInterceptPresent() const;
  void removeIntercept();

  /// The degree of a polynomial.
  unsigned int getDegree() const;
  void setDegree(unsigned int degree);
  void removeDegree();

  /// The number of neighbours in the window.
  unsigned int getNeighbors() const;
  void setNeighbors(unsigned int neighbors);
  void removeNeighbors();

  /// The number of segments that are drawn.
  unsigned int getSegments() const;
  void setSegments(unsigned int segments);
  void removeSegments();

  /// Where the pieces of the model meet. OrbRegionStatistic spells the attribute `cutPoints`.
  const XMLCh* getCutpoints() const;
  void setCutpoints(const XMLCh* cutpoints);
  void removeCutpoints();

  /// Whether the model ends with the data; false when absent.
  bool getBounded() const;
  void setBounded(bool bounded);
  void removeBounded();

  /// Whether the first step is drawn; false when absent.
  bool getFirstStep() const;
  void setFirstStep(bool firstStep);
  void removeFirstStep();

  /// Whether the values stand on a grid; false when absent.
  bool getGridded() const;
  void setGridded(bool gridded);
  void removeGridded();

  /// Whether the bandwidth follows the kernel; false when absent.
  bool getMarron() const;
  void setMarron(bool marron);
  void removeMarron();

  /// Whether spikes are drawn; false when absent.
  bool getSpikes() const;
  void setSpikes(bool spikes);
  void removeSpikes();
};
