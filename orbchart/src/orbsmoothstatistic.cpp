// A smoother.
#include "orbsmoothstatistic.h"

#include "kernelkeywords.h"
#include "keyword.h"
#include "loading.h"
#include "orbuni.h"

using namespace orbchart;

namespace {

constexpr Id id;
constexpr Keywords method{OrbUni::_method,
                          AbsentReadsAs(OrbSmoothStatistic::method_linear),
                          {
                              {OrbSmoothStatistic::method_linear, OrbUni::_linear},
                              {OrbSmoothStatistic::method_loess, OrbUni::_loess},
                              {OrbSmoothStatistic::method_power, OrbUni::_power},
                              {OrbSmoothStatistic::method_quadratic, OrbUni::_quadratic},
                              {OrbSmoothStatistic::method_monotonic, OrbUni::_monotonic},
                              {OrbSmoothStatistic::method_cubic, OrbUni::_cubic},
                              {OrbSmoothStatistic::method_polynomial, OrbUni::_polynomial},
                              {OrbSmoothStatistic::method_log, OrbUni::_log},
                              {OrbSmoothStatistic::method_piecewise, OrbUni::_piecewise},
                              {OrbSmoothStatistic::method_mean, OrbUni::_mean},
                              {OrbSmoothStatistic::method_median, OrbUni::_median},
                              {OrbSmoothStatistic::method_trim, OrbUni::_trim},
                              {OrbSmoothStatistic::method_spline, OrbUni::_spline},
                              {OrbSmoothStatistic::method_step_left, OrbSmoothStatistic::_UTF_method_step_left},
                              {OrbSmoothStatistic::method_step_right, OrbSmoothStatistic::_UTF_method_step_right},
                              {OrbSmoothStatistic::method_step_center, OrbSmoothStatistic::_UTF_method_step_center},
                              {OrbSmoothStatistic::method_seasonal, OrbSmoothStatistic::_UTF_method_seasonal},
                          }};
constexpr Keywords kernel{OrbUni::_kernel, AbsentReadsAs(OrbSmoothStatistic::kernel_uniform),
                          kernelsOf<OrbSmoothStatistic>};
constexpr Keywords robust{OrbUni::_robust,
                          AbsentReadsAs(OrbSmoothStatistic::robust_andrews),
                          {
                              {OrbSmoothStatistic::robust_andrews, OrbUni::_andrews},
                              {OrbSmoothStatistic::robust_biweight, OrbUni::_biweight},
                              {OrbSmoothStatistic::robust_cauchy, OrbUni::_cauchy},
                              {OrbSmoothStatistic::robust_fair, OrbUni::_fair},
                              {OrbSmoothStatistic::robust_huber, OrbUni::_huber},
                              {OrbSmoothStatistic::robust_logistic, OrbUni::_logistic},
                              {OrbSmoothStatistic::robust_talwar, OrbUni::_talwar},
                              {OrbSmoothStatistic::robust_welsch, OrbUni::_welsch},
                          }};
constexpr Keywords window{OrbUni::_window,
                          AbsentReadsAs(OrbSmoothStatistic::window_fixed),
                          {
                              {OrbSmoothStatistic::window_fixed, OrbUni::_fixed},
                              {OrbSmoothStatistic::window_knn, OrbUni::_knn},
                          }};
constexpr Double bandwidth{OrbSmoothStatistic::_UTF_bandwidth};
constexpr Double proportion{OrbUni::_proportion};
constexpr Double intercept{OrbSmoothStatistic::_UTF_intercept};
constexpr Unsigned degree{OrbUni::_degree};
constexpr Unsigned neighbors{OrbUni::_neighbors};
constexpr Unsigned segments{OrbUni::_segments};
constexpr Text cutpoints{OrbUni::_cutpoints};
constexpr Boolean bounded{OrbUni::_bounded};
constexpr Boolean firstStep{OrbUni::_firstStep};
constexpr Boolean gridded{OrbUni::_gridded};
constexpr Boolean marron{OrbUni::_marron};
constexpr Boolean spikes{OrbUni::_spikes};

using Attributes = AttributeList<id, method, kernel, robust, window, bandwidth, proportion, intercept, degree,
                                 neighbors, segments, cutpoints, bounded, firstStep, gridded, marron, spikes>;

} // namespace

template <> const ElementDescription& orbchart::descriptionOf<OrbSmoothStatistic>() {
  return elementDescription<OrbSmoothStatistic, Attributes>;
}

OrbSmoothStatistic::OrbSmoothStatistic(xercesc::DOMElement* element) : OrbBaseElement(element) { bindLeaf(*this); }
OrbSmoothStatistic::~OrbSmoothStatistic() = default;

const XMLCh* OrbSmoothStatistic::getId() const { return id.get(*this); }
void OrbSmoothStatistic::setId(const XMLCh* value) { id.set(*this, value); }
void OrbSmoothStatistic::removeId() { id.remove(*this); }

OrbSmoothStatistic::ENUM_method OrbSmoothStatistic::getMethod() const { return method.get(*this); }
void OrbSmoothStatistic::setMethod(ENUM_method value) { method.set(*this, value); }
void OrbSmoothStatistic::removeMethod() { method.remove(*this); }

OrbSmoothStatistic::ENUM_kernel OrbSmoothStatistic::getKernel() const { return kernel.get(*this); }
void OrbSmoothStatistic::setKernel(ENUM_kernel value) { kernel.set(*this, value); }
void OrbSmoothStatistic::removeKernel() { kernel.remove(*this); }

OrbSmoothStatistic::ENUM_robust OrbSmoothStatistic::getRobust() const { return robust.get(*this); }
void OrbSmoothStatistic::setRobust(ENUM_robust value) { robust.set(*this, value); }
void OrbSmoothStatistic::removeRobust() { robust.remove(*this); }

OrbSmoothStatistic::ENUM_window OrbSmoothStatistic::getWindow() const { return window.get(*this); }
void OrbSmoothStatistic::setWindow(ENUM_window value) { window.set(*this, value); }
void OrbSmoothStatistic::removeWindow() { window.remove(*this); }

double OrbSmoothStatistic::getBandwidth() const { return bandwidth.get(*this); }
void OrbSmoothStatistic::setBandwidth(double value) { bandwidth.set(*this, value); }
void OrbSmoothStatistic::removeBandwidth() { bandwidth.remove(*this); }

double OrbSmoothStatistic::getProportion() const { return proportion.get(*this); }
void OrbSmoothStatistic::setProportion(double value) { proportion.set(*this, value); }
void OrbSmoothStatistic::removeProportion() { proportion.remove(*this); }

double OrbSmoothStatistic::getIntercept() const { return intercept.get(*this); }
void OrbSmoothStatistic::setIntercept(double value) { intercept.set(*this, value); }
bool OrbSmoothStatistic::isInterceptPresent() const { return intercept.isPresent(*this); }
void OrbSmoothStatistic::removeIntercept() { intercept.remove(*this); }

unsigned int OrbSmoothStatistic::getDegree() const { return degree.get(*this); }
void OrbSmoothStatistic::setDegree(unsigned int value) { degree.set(*this, value); }
void OrbSmoothStatistic::removeDegree() { degree.remove(*this); }

unsigned int OrbSmoothStatistic::getNeighbors() const { return neighbors.get(*this); }
void OrbSmoothStatistic::setNeighbors(unsigned int value) { neighbors.set(*this, value); }
void OrbSmoothStatistic::removeNeighbors() { neighbors.remove(*this); }

unsigned int OrbSmoothStatistic::getSegments() const { return segments.get(*this); }
void OrbSmoothStatistic::setSegments(unsigned int value) { segments.set(*this, value); }
void OrbSmoothStatistic::removeSegments() { segments.remove(*this); }

const XMLCh* OrbSmoothStatistic::getCutpoints() const { return cutpoints.get(*this); }
void OrbSmoothStatistic::setCutpoints(const XMLCh* value) { cutpoints.set(*this, value); }
void OrbSmoothStatistic::removeCutpoints() { cutpoints.remove(*this); }

bool OrbSmoothStatistic::getBounded() const { return bounded.get(*this); }
void OrbSmoothStatistic::setBounded(bool value) { bounded.set(*this, value); }
void OrbSmoothStatistic::removeBounded() { bounded.remove(*this); }

bool OrbSmoothStatistic::getFirstStep() const { return firstStep.get(*this); }
void OrbSmoothStatistic::setFirstStep(bool value) { firstStep.set(*this, value); }
void OrbSmoothStatistic::removeFirstStep() { firstStep.remove(*this); }

bool OrbSmoothStatistic::getGridded() const { return gridded.get(*this); }
void OrbSmoothStatistic::setGridded(bool value) { gridded.set(*this, value); }
void OrbSmoothStatistic::removeGridded() { gridded.remove(*this); }

bool OrbSmoothStatistic::getMarron() const { return marron.get(*this); }
void OrbSmoothStatistic::setMarron(bool value) { marron.set(*this, value); }
void OrbSmoothStatistic::removeMarron() { marron.remove(*this); }

bool OrbSmoothStatistic::getSpikes() const { return spikes.get(*this); }
void OrbSmoothStatistic::setSpikes(bool value) { spikes.set(*this, value); }
void OrbSmoothStatistic::removeSpikes() { spikes.remove(*this); }
