// An estimate of density with a fixed window.
#include "orbfixedwindowdensitystatistic.h"

#include "kernelkeywords.h"
#include "keyword.h"
#include "loading.h"
#include "orbuni.h"

using namespace orbchart;

namespace {

constexpr Id id;
constexpr Keywords kernel{OrbUni::_kernel, OrbFixedWindowDensityStatistic::kernel_unset,
                          kernelsOf<OrbFixedWindowDensityStatistic>};
constexpr Integer segments{OrbUni::_segments};
constexpr Boolean marron{OrbUni::_marron};
constexpr Boolean bounded{OrbUni::_bounded};
constexpr Double proportion{OrbUni::_proportion};

using Attributes = AttributeList<id, kernel, segments, marron, bounded, proportion>;

} // namespace

template <> const ElementDescription& orbchart::descriptionOf<OrbFixedWindowDensityStatistic>() {
  return elementDescription<OrbFixedWindowDensityStatistic, Attributes>;
}

OrbFixedWindowDensityStatistic::OrbFixedWindowDensityStatistic(xercesc::DOMElement* element) : OrbBaseElement(element) {
  bindLeaf(*this);
}
OrbFixedWindowDensityStatistic::~OrbFixedWindowDensityStatistic() = default;

const XMLCh* OrbFixedWindowDensityStatistic::getId() const { return id.get(*this); }
void OrbFixedWindowDensityStatistic::setId(const XMLCh* value) { id.set(*this, value); }
bool OrbFixedWindowDensityStatistic::isIdPresent() const { return id.isPresent(*this); }
void OrbFixedWindowDensityStatistic::removeId() { id.remove(*this); }

OrbFixedWindowDensityStatistic::ENUM_kernel OrbFixedWindowDensityStatistic::getKernel() const {
  return kernel.get(*this);
}
void OrbFixedWindowDensityStatistic::setKernel(ENUM_kernel value) { kernel.set(*this, value); }
bool OrbFixedWindowDensityStatistic::isKernelPresent() const { return kernel.isPresent(*this); }
void OrbFixedWindowDensityStatistic::removeKernel() { kernel.remove(*this); }

int OrbFixedWindowDensityStatistic::getSegments() const { return segments.get(*this); }
void OrbFixedWindowDensityStatistic::setSegments(int value) { segments.set(*this, value); }
bool OrbFixedWindowDensityStatistic::isSegmentsPresent() const { return segments.isPresent(*this); }
void OrbFixedWindowDensityStatistic::removeSegments() { segments.remove(*this); }

bool OrbFixedWindowDensityStatistic::getMarron() const { return marron.get(*this); }
void OrbFixedWindowDensityStatistic::setMarron(bool value) { marron.set(*this, value); }
bool OrbFixedWindowDensityStatistic::isMarronPresent() const { return marron.isPresent(*this); }
void OrbFixedWindowDensityStatistic::removeMarron() { marron.remove(*this); }

bool OrbFixedWindowDensityStatistic::getBounded() const { return bounded.get(*this); }
void OrbFixedWindowDensityStatistic::setBounded(bool value) { bounded.set(*this, value); }
bool OrbFixedWindowDensityStatistic::isBoundedPresent() const { return bounded.isPresent(*this); }
void OrbFixedWindowDensityStatistic::removeBounded() { bounded.remove(*this); }

double OrbFixedWindowDensityStatistic::getProportion() const { return proportion.get(*this); }
void OrbFixedWindowDensityStatistic::setProportion(double value) { proportion.set(*this, value); }
bool OrbFixedWindowDensityStatistic::isProportionPresent() const { return proportion.isPresent(*this); }
void OrbFixedWindowDensityStatistic::removeProportion() { proportion.remove(*this); }
