// One graph of a chart.
#include "orbgraph.h"

#include "attribute.h"
#include "family.h"
#include "orbarea.h"
#include "orbcoordinates.h"
#include "orbdimension.h"
#include "orbedge.h"
#include "orbfaceting.h"
#include "orbinterval.h"
#include "orbline.h"
#include "orbpath.h"
#include "orbpoint.h"
#include "orbpolygon.h"
#include "orbschema.h"
#include "orbstyle.h"
#include "orbuni.h"
#include "reference.h"

using namespace orbchart;
using xercesc::DOMElement;

namespace {

// The families by band, in document order; a band of the language without a class here is empty and keeps its place. A
// new family goes into its band, and with it into the record, the loader and the followers of the bands before it.
using Extensions = FamilyList<>;
using Locations = FamilyList<>;
using CoordinateSystems = FamilyList<OrbCoordinates>;
using Facetings = FamilyList<OrbFaceting>;
using FacetLayouts = FamilyList<>;
using Elements = FamilyList<OrbArea, OrbInterval, OrbLine, OrbEdge, OrbPath, OrbPoint, OrbPolygon, OrbSchema>;
using Guides = FamilyList<>;

using AfterGuides = FamilyList<>;
using AfterElements = Joined<Guides, AfterGuides>;
using AfterFacetLayouts = Joined<Elements, AfterElements>;
using AfterFacetings = Joined<FacetLayouts, AfterFacetLayouts>;
using AfterCoordinateSystems = Joined<Facetings, AfterFacetings>;
using AfterLocations = Joined<CoordinateSystems, AfterCoordinateSystems>;
using AfterExtensions = Joined<Locations, AfterLocations>;

} // namespace

struct OrbGraph::Children : ChildFamilies<Joined<Extensions, AfterExtensions>> {
  /// Removes a graphic element if its class is one of these and its wrapper is in the family of that class.
  template <class... Classes> bool removeAmong(const OrbGraph& graph, const CTElementType& element) {
    return (removeSame<Classes>(graph, dynamic_cast<const Classes*>(&element)) || ...);
  }

private:
  template <class Child> bool removeSame(const OrbGraph& graph, const Child* wrapper) {
    for (std::size_t index = 0; wrapper != nullptr && index < count<Child>(); ++index) {
      if (at<Child>(index) == wrapper)
        return removeAt<Child>(graph, index);
    }
    return false;
  }
};

OrbGraph::OrbGraph(DOMElement* element) : OrbBaseElement(element), children_(new Children) {
  children_->load(*this);
  bind(*this);
}
OrbGraph::OrbGraph(DOMElement* element, const XMLCh* id) : OrbGraph(element) { setId(id); }
OrbGraph::~OrbGraph() = default;

const XMLCh* OrbGraph::getId() const { return GetAttribute(OrbUni::_id); }
void OrbGraph::setId(const XMLCh* id) { writeId(*this, id); }
void OrbGraph::removeId() { removeAttribute(*this, OrbUni::_id); }

OrbStyle* OrbGraph::getCellStyle() const { return readReference<OrbStyle>(*this, _UTF_cellStyle); }
void OrbGraph::setCellStyle(const OrbStyle& style) { writeReference(*this, _UTF_cellStyle, style); }
void OrbGraph::removeCellStyle() { removeAttribute(*this, _UTF_cellStyle); }

OrbStyle* OrbGraph::getStyle() const { return readReference<OrbStyle>(*this, OrbUni::_style); }
void OrbGraph::setStyle(const OrbStyle& style) { writeReference(*this, OrbUni::_style, style); }
void OrbGraph::removeStyle() { removeAttribute(*this, OrbUni::_style); }

bool OrbGraph::getClip() const { return readBoolean(*this, OrbUni::_clip); }
void OrbGraph::setClip(bool clip) { writeBoolean(*this, OrbUni::_clip, clip); }
void OrbGraph::removeClip() { removeAttribute(*this, OrbUni::_clip); }

OrbDimension* OrbGraph::getAlignCellHorizontallyWith() const {
  return readReference<OrbDimension>(*this, _UTF_alignCellHorizontallyWith);
}
void OrbGraph::setAlignCellHorizontallyWith(const OrbDimension& dimension) {
  writeReference(*this, _UTF_alignCellHorizontallyWith, dimension);
}
void OrbGraph::removeAlignCellHorizontallyWith() { removeAttribute(*this, _UTF_alignCellHorizontallyWith); }

OrbDimension* OrbGraph::getAlignCellVerticallyWith() const {
  return readReference<OrbDimension>(*this, _UTF_alignCellVerticallyWith);
}
void OrbGraph::setAlignCellVerticallyWith(const OrbDimension& dimension) {
  writeReference(*this, _UTF_alignCellVerticallyWith, dimension);
}
void OrbGraph::removeAlignCellVerticallyWith() { removeAttribute(*this, _UTF_alignCellVerticallyWith); }

bool OrbGraph::getAxesOutside() const { return readBoolean(*this, _UTF_axesOutside); }
void OrbGraph::setAxesOutside(bool axesOutside) { writeBoolean(*this, _UTF_axesOutside, axesOutside); }
void OrbGraph::removeAxesOutside() { removeAttribute(*this, _UTF_axesOutside); }

OrbCoordinates* OrbGraph::addCoordinates(const XMLCh* id) {
  return children_->add<OrbCoordinates>(*this, AfterCoordinateSystems{}, id);
}
OrbCoordinates* OrbGraph::getCoordinates(unsigned int index) const { return children_->at<OrbCoordinates>(index); }
std::vector<OrbCoordinates*> OrbGraph::getCoordinatess() const { return children_->all<OrbCoordinates>(); }
unsigned int OrbGraph::removeCoordinatess() { return children_->removeAll<OrbCoordinates>(*this, Ids::strip); }

OrbFaceting* OrbGraph::addFaceting() {
  return children_->add<OrbFaceting>(*this, OnlyOne("Faceting", "Graph"), AfterFacetings{});
}
OrbFaceting* OrbGraph::getFaceting() const { return children_->first<OrbFaceting>(); }
unsigned int OrbGraph::removeFacetings() { return children_->removeAll<OrbFaceting>(*this, Ids::strip); }

OrbArea* OrbGraph::addArea(const XMLCh* id) { return children_->add<OrbArea>(*this, AfterElements{}, id); }
std::vector<OrbArea*> OrbGraph::getAreas() const { return children_->all<OrbArea>(); }
unsigned int OrbGraph::removeAreas() { return children_->removeAll<OrbArea>(*this, Ids::strip); }

OrbInterval* OrbGraph::addInterval(const XMLCh* id) { return children_->add<OrbInterval>(*this, AfterElements{}, id); }
std::vector<OrbInterval*> OrbGraph::getIntervals() const { return children_->all<OrbInterval>(); }
unsigned int OrbGraph::removeIntervals() { return children_->removeAll<OrbInterval>(*this, Ids::strip); }

OrbLine* OrbGraph::addLine(const XMLCh* id) { return children_->add<OrbLine>(*this, AfterElements{}, id); }
std::vector<OrbLine*> OrbGraph::getLines() const { return children_->all<OrbLine>(); }
unsigned int OrbGraph::removeLines() { return children_->removeAll<OrbLine>(*this, Ids::strip); }

OrbEdge* OrbGraph::addEdge() { return children_->add<OrbEdge>(*this, AfterElements{}); }
std::vector<OrbEdge*> OrbGraph::getEdges() const { return children_->all<OrbEdge>(); }
bool OrbGraph::removeEdge(unsigned int index) { return children_->removeAt<OrbEdge>(*this, index, Ids::strip); }
unsigned int OrbGraph::removeEdges() { return children_->removeAll<OrbEdge>(*this, Ids::strip); }

OrbPath* OrbGraph::addPath(const XMLCh* id) { return children_->add<OrbPath>(*this, AfterElements{}, id); }
std::vector<OrbPath*> OrbGraph::getPaths() const { return children_->all<OrbPath>(); }
unsigned int OrbGraph::removePaths() { return children_->removeAll<OrbPath>(*this, Ids::strip); }

OrbPoint* OrbGraph::addPoint(const XMLCh* id) { return children_->add<OrbPoint>(*this, AfterElements{}, id); }
std::vector<OrbPoint*> OrbGraph::getPoints() const { return children_->all<OrbPoint>(); }
unsigned int OrbGraph::removePoints() { return children_->removeAll<OrbPoint>(*this, Ids::strip); }

OrbPolygon* OrbGraph::addPolygon(const XMLCh* id) { return children_->add<OrbPolygon>(*this, AfterElements{}, id); }
std::vector<OrbPolygon*> OrbGraph::getPolygons() const { return children_->all<OrbPolygon>(); }
unsigned int OrbGraph::removePolygons() { return children_->removeAll<OrbPolygon>(*this, Ids::strip); }

OrbSchema* OrbGraph::addSchema(const XMLCh* id) { return children_->add<OrbSchema>(*this, AfterElements{}, id); }
std::vector<OrbSchema*> OrbGraph::getSchemas() const { return children_->all<OrbSchema>(); }
unsigned int OrbGraph::removeSchemas() { return children_->removeAll<OrbSchema>(*this, Ids::strip); }

bool OrbGraph::removeElement(CTElementType& element) {
  return children_->removeAmong<OrbPoint, OrbInterval, OrbLine, OrbArea, OrbSchema, OrbPath, OrbPolygon>(*this,
                                                                                                         element);
}
