// A layout of nodes and edges.
#include "orbgraphlayoutstatistic.h"

#include "ctvariabletype.h"
#include "family.h"
#include "orbfixednode.h"
#include "orbhidesinglenodes.h"
#include "orbinitial.h"
#include "orbmove.h"
#include "orbpolarize.h"
#include "orbrandomize.h"
#include "orbswap.h"
#include "orbuni.h"
#include "reference.h"
#include "variablereference.h"

using namespace orbchart;

namespace {

constexpr Id id;
// Their getters look under keys that no wrapper registers.
constexpr Taking<CTVariableType, ReferenceTo<CTVariableType>> from{OrbUni::_from};
constexpr Taking<CTVariableType, ReferenceTo<CTVariableType>> to{OrbUni::_to};
constexpr Taking<CTVariableType, ReferenceTo<CTVariableType>> nodes{OrbGraphLayoutStatistic::_UTF_nodes};
constexpr VariableReference group{OrbGraphLayoutStatistic::_UTF_group};
constexpr VariableReference x{OrbUni::_x};
constexpr VariableReference y{OrbUni::_y};

using Attributes = AttributeList<id, from, to, nodes, group, x, y>;

using AfterInitials = FamilyList<OrbSwap, OrbRandomize, OrbMove, OrbFixedNode, OrbPolarize>;
using AfterSteps = FamilyList<OrbFixedNode>;
using Families = ChildFamilies<
    FamilyList<OrbInitial, OrbSwap, OrbRandomize, OrbMove, OrbFixedNode, OrbPolarize, OrbHideSingleNodes>>;

} // namespace

template <> const ElementDescription& orbchart::descriptionOf<OrbGraphLayoutStatistic>() {
  return elementDescription<OrbGraphLayoutStatistic, Attributes, Families>;
}

struct OrbGraphLayoutStatistic::Children : Families {};

OrbGraphLayoutStatistic::OrbGraphLayoutStatistic(xercesc::DOMElement* element) :
    OrbBaseElement(element), children_(new Children) {
  children_->load(*this);
  bind(*this);
}
OrbGraphLayoutStatistic::~OrbGraphLayoutStatistic() = default;

const XMLCh* OrbGraphLayoutStatistic::getId() const { return id.get(*this); }
void OrbGraphLayoutStatistic::setId(const XMLCh* value) { id.set(*this, value); }
void OrbGraphLayoutStatistic::removeId() { id.remove(*this); }

CTVariableType* OrbGraphLayoutStatistic::getFrom() const {
  from.requireTarget(*this, "From");
  return from.get(*this);
}
void OrbGraphLayoutStatistic::setFrom(const CTVariableType& target) { from.set(*this, target); }
void OrbGraphLayoutStatistic::removeFrom() { from.remove(*this); }

CTVariableType* OrbGraphLayoutStatistic::getTo() const {
  to.requireTarget(*this, "To");
  return to.get(*this);
}
void OrbGraphLayoutStatistic::setTo(const CTVariableType& target) { to.set(*this, target); }
void OrbGraphLayoutStatistic::removeTo() { to.remove(*this); }

CTVariableType* OrbGraphLayoutStatistic::getNodes() const { return nodes.get(*this); }
void OrbGraphLayoutStatistic::setNodes(const CTVariableType& target) { nodes.set(*this, target); }
void OrbGraphLayoutStatistic::removeNodes() { nodes.remove(*this); }

CTVariableType* OrbGraphLayoutStatistic::getGroup() const { return group.get(*this); }
void OrbGraphLayoutStatistic::setGroup(const CTVariableType& target) { group.set(*this, target); }
bool OrbGraphLayoutStatistic::isGroupPresent() const { return group.isPresent(*this); }
void OrbGraphLayoutStatistic::removeGroup() { group.remove(*this); }

CTVariableType* OrbGraphLayoutStatistic::getX() const { return x.get(*this); }
void OrbGraphLayoutStatistic::setX(const CTVariableType& target) { x.set(*this, target); }
bool OrbGraphLayoutStatistic::isXPresent() const { return x.isPresent(*this); }
void OrbGraphLayoutStatistic::removeX() { x.remove(*this); }

CTVariableType* OrbGraphLayoutStatistic::getY() const { return y.get(*this); }
void OrbGraphLayoutStatistic::setY(const CTVariableType& target) { y.set(*this, target); }
bool OrbGraphLayoutStatistic::isYPresent() const { return y.isPresent(*this); }
void OrbGraphLayoutStatistic::removeY() { y.remove(*this); }

OrbInitial* OrbGraphLayoutStatistic::addInitial() { return children_->add<OrbInitial>(*this, AfterInitials{}); }
std::vector<OrbInitial*> OrbGraphLayoutStatistic::getInitials() const { return children_->all<OrbInitial>(); }
unsigned int OrbGraphLayoutStatistic::removeInitials() { return children_->removeAll<OrbInitial>(*this); }

OrbSwap* OrbGraphLayoutStatistic::addSwap() { return children_->add<OrbSwap>(*this, AfterSteps{}); }
std::vector<OrbSwap*> OrbGraphLayoutStatistic::getSwaps() const { return children_->all<OrbSwap>(); }
unsigned int OrbGraphLayoutStatistic::removeSwaps() { return children_->removeAll<OrbSwap>(*this); }

OrbRandomize* OrbGraphLayoutStatistic::addRandomize() { return children_->add<OrbRandomize>(*this, AfterSteps{}); }
std::vector<OrbRandomize*> OrbGraphLayoutStatistic::getRandomizes() const { return children_->all<OrbRandomize>(); }
unsigned int OrbGraphLayoutStatistic::removeRandomizes() { return children_->removeAll<OrbRandomize>(*this); }

OrbMove* OrbGraphLayoutStatistic::addMove() { return children_->add<OrbMove>(*this, AfterSteps{}); }
std::vector<OrbMove*> OrbGraphLayoutStatistic::getMoves() const { return children_->all<OrbMove>(); }
unsigned int OrbGraphLayoutStatistic::removeMoves() { return children_->removeAll<OrbMove>(*this); }

OrbFixedNode* OrbGraphLayoutStatistic::addFixedNode() { return children_->add<OrbFixedNode>(*this, atEnd); }
std::vector<OrbFixedNode*> OrbGraphLayoutStatistic::getFixedNodes() const { return children_->all<OrbFixedNode>(); }
unsigned int OrbGraphLayoutStatistic::removeFixedNodes() { return children_->removeAll<OrbFixedNode>(*this); }

OrbPolarize* OrbGraphLayoutStatistic::addPolarize() { return children_->add<OrbPolarize>(*this, AfterSteps{}); }
std::vector<OrbPolarize*> OrbGraphLayoutStatistic::getPolarizes() const { return children_->all<OrbPolarize>(); }
unsigned int OrbGraphLayoutStatistic::removePolarizes() { return children_->removeAll<OrbPolarize>(*this); }

OrbHideSingleNodes* OrbGraphLayoutStatistic::addHideSingleNodes() {
  return children_->add<OrbHideSingleNodes>(*this, atEnd);
}
std::vector<OrbHideSingleNodes*> OrbGraphLayoutStatistic::getHideSingleNodess() const {
  return children_->all<OrbHideSingleNodes>();
}
unsigned int OrbGraphLayoutStatistic::removeHideSingleNodess() {
  return children_->removeAll<OrbHideSingleNodes>(*this);
}
