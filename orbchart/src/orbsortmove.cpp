// One category out of its order.
#include "orbsortmove.h"

#include "attribute.h"
#include "loading.h"
#include "orbuni.h"

using namespace orbchart;

namespace {

constexpr Id id;
constexpr Text category{OrbUni::_category};
constexpr Boolean first{OrbUni::_first};

using Attributes = AttributeList<id, category, first>;

} // namespace

template <> const ElementDescription& orbchart::descriptionOf<OrbSortMove>() {
  return elementDescription<OrbSortMove, Attributes>;
}

OrbSortMove::OrbSortMove(xercesc::DOMElement* element) : OrbBaseElement(element) { init(); }
OrbSortMove::OrbSortMove(xercesc::DOMElement* element, const XMLCh* category) : OrbSortMove(element) {
  setCategory(category);
}
OrbSortMove::~OrbSortMove() = default;

const XMLCh* OrbSortMove::getId() const { return id.get(*this); }
void OrbSortMove::setId(const XMLCh* value) { id.set(*this, value); }
bool OrbSortMove::isIdPresent() const { return id.isPresent(*this); }
void OrbSortMove::removeId() { id.remove(*this); }

const XMLCh* OrbSortMove::getCategory() const { return category.get(*this); }
void OrbSortMove::setCategory(const XMLCh* value) { category.set(*this, value); }
void OrbSortMove::removeCategory() { category.remove(*this); }

bool OrbSortMove::getFirst() const { return first.get(*this); }
void OrbSortMove::setFirst(bool value) { first.set(*this, value); }
bool OrbSortMove::isFirstPresent() const { return first.isPresent(*this); }
void OrbSortMove::removeFirst() { first.remove(*this); }

void OrbSortMove::init() { bindLeaf(*this); }
