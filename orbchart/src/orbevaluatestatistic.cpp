// An evaluation at a point.
#include "orbevaluatestatistic.h"

#include "attribute.h"
#include "loading.h"
#include "orbuni.h"

using namespace orbchart;
using xercesc::DOMElement;

namespace {

constexpr Id id;
constexpr Text x{OrbUni::_x};

using Attributes = AttributeList<id, x>;

} // namespace

template <> const ElementDescription& orbchart::descriptionOf<OrbEvaluateStatistic>() {
  return elementDescription<OrbEvaluateStatistic, Attributes>;
}

OrbEvaluateStatistic::OrbEvaluateStatistic(DOMElement* element) : OrbBaseElement(element) { bindLeaf(*this); }
OrbEvaluateStatistic::OrbEvaluateStatistic(DOMElement* element, const XMLCh* x) : OrbEvaluateStatistic(element) {
  setX(x);
}
OrbEvaluateStatistic::~OrbEvaluateStatistic() = default;

const XMLCh* OrbEvaluateStatistic::getId() const { return id.get(*this); }
void OrbEvaluateStatistic::setId(const XMLCh* value) { id.set(*this, value); }
bool OrbEvaluateStatistic::isIdPresent() const { return id.isPresent(*this); }
void OrbEvaluateStatistic::removeId() { id.remove(*this); }

const XMLCh* OrbEvaluateStatistic::getX() const { return x.get(*this); }
void OrbEvaluateStatistic::setX(const XMLCh* value) { x.set(*this, value); }
bool OrbEvaluateStatistic::isXPresent() const { return x.isPresent(*this); }
void OrbEvaluateStatistic::removeX() { x.remove(*this); }
