// One graph of a chart.
#include "orbgraph.h"

#include "attribute.h"
#include "family.h"
#include "orbuni.h"

using namespace orbchart;
using xercesc::DOMElement;

struct OrbGraph::Children : ChildFamilies<FamilyList<>> {};

OrbGraph::OrbGraph(DOMElement* element) : OrbBaseElement(element), children_(new Children) {
  children_->load(*this);
  bind(*this);
}
OrbGraph::OrbGraph(DOMElement* element, const XMLCh* id) : OrbGraph(element) { setId(id); }
OrbGraph::~OrbGraph() = default;

const XMLCh* OrbGraph::getId() const { return GetAttribute(OrbUni::_id); }
void OrbGraph::setId(const XMLCh* id) { writeId(*this, id); }
void OrbGraph::removeId() { removeAttribute(*this, OrbUni::_id); }

bool OrbGraph::getClip() const { return readBoolean(*this, OrbUni::_clip); }
void OrbGraph::setClip(bool clip) { writeBoolean(*this, OrbUni::_clip, clip); }
void OrbGraph::removeClip() { removeAttribute(*this, OrbUni::_clip); }

bool OrbGraph::getAxesOutside() const { return readBoolean(*this, _UTF_axesOutside); }
void OrbGraph::setAxesOutside(bool axesOutside) { writeBoolean(*this, _UTF_axesOutside, axesOutside); }
void OrbGraph::removeAxesOutside() { removeAttribute(*this, _UTF_axesOutside); }
