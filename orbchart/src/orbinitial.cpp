// The arrangement that a graph layout starts from.
#include "orbinitial.h"

#include "attribute.h"
#include "keyword.h"
#include "loading.h"
#include "orbuni.h"

using namespace orbchart;

namespace {

constexpr Id id;
constexpr Keywords type{OrbUni::_type,
                        OrbInitial::type_unset,
                        {
                            {OrbInitial::type_grid, OrbUni::_grid},
                            {OrbInitial::type_random, OrbUni::_random},
                            {OrbInitial::type_tree, OrbUni::_tree},
                            {OrbInitial::type_DAG, OrbInitial::_UTF_type_DAG},
                            {OrbInitial::type_circle, OrbUni::_circle},
                            {OrbInitial::type_data, OrbUni::_data},
                        }};
constexpr Text root{OrbInitial::_UTF_root};

using Attributes = AttributeList<id, type, root>;

} // namespace

template <> const ElementDescription& orbchart::descriptionOf<OrbInitial>() {
  return elementDescription<OrbInitial, Attributes>;
}

OrbInitial::OrbInitial(xercesc::DOMElement* element) : OrbBaseElement(element) { bindLeaf(*this); }
OrbInitial::~OrbInitial() = default;

const XMLCh* OrbInitial::getId() const { return id.get(*this); }
void OrbInitial::setId(const XMLCh* value) { id.set(*this, value); }
void OrbInitial::removeId() { id.remove(*this); }

OrbInitial::ENUM_type OrbInitial::getType() const { return type.get(*this); }
void OrbInitial::setType(ENUM_type value) { type.set(*this, value); }
void OrbInitial::removeType() { type.remove(*this); }

const XMLCh* OrbInitial::getRoot() const { return root.get(*this); }
void OrbInitial::setRoot(const XMLCh* value) { root.set(*this, value); }
void OrbInitial::removeRoot() { root.remove(*this); }
