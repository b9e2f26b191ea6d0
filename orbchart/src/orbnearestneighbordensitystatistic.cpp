// An estimate of density by nearest neighbours.
#include "orbnearestneighbordensitystatistic.h"

#include "kernelkeywords.h"
#include "keyword.h"
#include "loading.h"
#include "orbuni.h"

using namespace orbchart;

namespace {

constexpr Id id;
constexpr Keywords kernel{OrbUni::_kernel, OrbNearestNeighborDensityStatistic::kernel_unset,
                          kernelsOf<OrbNearestNeighborDensityStatistic>};
constexpr Integer segments{OrbUni::_segments};
constexpr Boolean marron{OrbUni::_marron};
constexpr Boolean bounded{OrbUni::_bounded};
constexpr Integer neighbors{OrbUni::_neighbors};

using Attributes = AttributeList<id, kernel, segments, marron, bounded, neighbors>;

} // namespace

template <> const ElementDescription& orbchart::descriptionOf<OrbNearestNeighborDensityStatistic>() {
  return elementDescription<OrbNearestNeighborDensityStatistic, Attributes>;
}

OrbNearestNeighborDensityStatistic::OrbNearestNeighborDensityStatistic(xercesc::DOMElement* element) :
    OrbBaseElement(element) {
  bindLeaf(*this);
}
OrbNearestNeighborDensityStatistic::~OrbNearestNeighborDensityStatistic() = default;

const XMLCh* OrbNearestNeighborDensityStatistic::getId() const { return id.get(*this); }
void OrbNearestNeighborDensityStatistic::setId(const XMLCh* value) { id.set(*this, value); }
bool OrbNearestNeighborDensityStatistic::isIdPresent() const { return id.isPresent(*this); }
void OrbNearestNeighborDensityStatistic::removeId() { id.remove(*this); }

OrbNearestNeighborDensityStatistic::ENUM_kernel OrbNearestNeighborDensityStatistic::getKernel() const {
  return kernel.get(*this);
}
void OrbNearestNeighborDensityStatistic::setKernel(ENUM_kernel value) { kernel.set(*this, value); }
bool OrbNearestNeighborDensityStatistic::isKernelPresent() const { return kernel.isPresent(*this); }
void OrbNearestNeighborDensityStatistic::removeKernel() { kernel.remove(*this); }

int OrbNearestNeighborDensityStatistic::getSegments() const { return segments.get(*this); }
void OrbNearestNeighborDensityStatistic::setSegments(int value) { segments.set(*this, value); }
bool OrbNearestNeighborDensityStatistic::isSegmentsPresent() const { return segments.isPresent(*this); }
void OrbNearestNeighborDensityStatistic::removeSegments() { segments.remove(*this); }

bool OrbNearestNeighborDensityStatistic::getMarron() const { return marron.get(*this); }
void OrbNearestNeighborDensityStatistic::setMarron(bool value) { marron.set(*this, value); }
bool OrbNearestNeighborDensityStatistic::isMarronPresent() const { return marron.isPresent(*this); }
void OrbNearestNeighborDensityStatistic::removeMarron() { marron.remove(*this); }

bool OrbNearestNeighborDensityStatistic::getBounded() const { return bounded.get(*this); }
void OrbNearestNeighborDensityStatistic::setBounded(bool value) { bounded.set(*this, value); }
bool OrbNearestNeighborDensityStatistic::isBoundedPresent() const { return bounded.isPresent(*this); }
void OrbNearestNeighborDensityStatistic::removeBounded() { bounded.remove(*this); }

int OrbNearestNeighborDensityStatistic::getNeighbors() const { return neighbors.get(*this); }
void OrbNearestNeighborDensityStatistic::setNeighbors(int value) { neighbors.set(*this, value); }
bool OrbNearestNeighborDensityStatistic::isNeighborsPresent() const { return neighbors.isPresent(*this); }
void OrbNearestNeighborDensityStatistic::removeNeighbors() { neighbors.remove(*this); }
