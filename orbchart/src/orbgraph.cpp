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

constexpr Id id;
constexpr Reference<OrbStyle> cellStyle{OrbGraph::_UTF_cellStyle};
constexpr Reference<OrbStyle> style{OrbUni::_style};
constexpr Boolean clip{OrbUni::_clip};
constexpr Reference<OrbDimension> alignCellHorizontallyWith{OrbGraph::_UTF_alignCellHorizontallyWith};
constexpr Reference<OrbDimension> alignCellVerticallyWith{OrbGraph::_UTF_alignCellVerticallyWith};
constexpr Boolean axesOutside{OrbGraph::_UTF_axesOutside};

using Attributes =
    AttributeList<id, cellStyle, style, clip, alignCellHorizontallyWith, alignCellVerticallyWith, axesOutside>;

constexpr OnlyOne oneFaceting{"Faceting", "Graph"};

// The families by band, in document order; a band of the language without a class here is empty and keeps its place. A
// new family goes into its band, and with it into the record, the loader and the followers of the bands before it.
using Extensions = FamilyList<>;
using Locations = FamilyList<>;
using CoordinateSystems = FamilyList<StripsIds<OrbCoordinates>>;
using Facetings = FamilyList<StripsIds<Limited<OrbFaceting, oneFaceting>>>;
using FacetLayouts = FamilyList<>;
using Elements = FamilyList<StripsIds<OrbArea>, StripsIds<OrbInterval>, StripsIds<OrbLine>, StripsIds<OrbEdge>,
                            StripsIds<OrbPath>, StripsIds<OrbPoint>, StripsIds<OrbPolygon>, StripsIds<OrbSchema>>;
using Guides = FamilyList<>;

using AfterGuides = FamilyList<>;
using AfterElements = Joined<Guides, AfterGuides>;
using AfterFacetLayouts = Joined<Elements, AfterElements>;
using AfterFacetings = Joined<FacetLayouts, AfterFacetLayouts>;
using AfterCoordinateSystems = Joined<Facetings, AfterFacetings>;
using AfterLocations = Joined<CoordinateSystems, AfterCoordinateSystems>;
using AfterExtensions = Joined<Locations, AfterLocations>;

using Families = ChildFamilies<Joined<Extensions, AfterExtensions>>;

} // namespace

template <> const ElementDescription& orbchart::descriptionOf<OrbGraph>() {
  return elementDescription<OrbGraph, Attributes, Families>;
}

struct OrbGraph::Children : Families {
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

const XMLCh* OrbGraph::getId() const { return id.get(*this); }
void OrbGraph::setId(const XMLCh* value) { id.set(*this, value); }
void OrbGraph::removeId() { id.remove(*this); }

OrbStyle* OrbGraph::getCellStyle() const { return cellStyle.get(*this); }
void OrbGraph::setCellStyle(const OrbStyle& target) { cellStyle.set(*this, target); }
void OrbGraph::removeCellStyle() { cellStyle.remove(*this); }

OrbStyle* OrbGraph::getStyle() const { return style.get(*this); }
void OrbGraph::setStyle(const OrbStyle& target) { style.set(*this, target); }
void OrbGraph::removeStyle() { style.remove(*this); }

bool OrbGraph::getClip() const { return clip.get(*this); }
void OrbGraph::setClip(bool value) { clip.set(*this, value); }
void OrbGraph::removeClip() { clip.remove(*this); }

OrbDimension* OrbGraph::getAlignCellHorizontallyWith() const { return alignCellHorizontallyWith.get(*this); }
void OrbGraph::setAlignCellHorizontallyWith(const OrbDimension& target) {
  alignCellHorizontallyWith.set(*this, target);
}
void OrbGraph::removeAlignCellHorizontallyWith() { alignCellHorizontallyWith.remove(*this); }

OrbDimension* OrbGraph::getAlignCellVerticallyWith() const { return alignCellVerticallyWith.get(*this); }
void OrbGraph::setAlignCellVerticallyWith(const OrbDimension& target) { alignCellVerticallyWith.set(*this, target); }
void OrbGraph::removeAlignCellVerticallyWith() { alignCellVerticallyWith.remove(*this); }

bool OrbGraph::getAxesOutside() const { return axesOutside.get(*this); }
void OrbGraph::setAxesOutside(bool value) { axesOutside.set(*this, value); }
void OrbGraph::removeAxesOutside() { axesOutside.remove(*this); }

OrbCoordinates* OrbGraph::addCoordinates(const XMLCh* id) {
  return children_->add<OrbCoordinates>(*this, AfterCoordinateSystems{}, id);
}
OrbCoordinates* OrbGraph::getCoordinates(unsigned int index) const { return children_->at<OrbCoordinates>(index); }
std::vector<OrbCoordinates*> OrbGraph::getCoordinatess() const { return children_->all<OrbCoordinates>(); }
unsigned int OrbGraph::removeCoordinatess() { return children_->removeAll<OrbCoordinates>(*this); }

OrbFaceting* OrbGraph::addFaceting() { return children_->add<OrbFaceting>(*this, AfterFacetings{}); }
OrbFaceting* OrbGraph::getFaceting() const { return children_->first<OrbFaceting>(); }
unsigned int OrbGraph::removeFacetings() { return children_->removeAll<OrbFaceting>(*this); }

OrbArea* OrbGraph::addArea(const XMLCh* id) { return children_->add<OrbArea>(*this, AfterElements{}, id); }
std::vector<OrbArea*> OrbGraph::getAreas() const { return children_->all<OrbArea>(); }
unsigned int OrbGraph::removeAreas() { return children_->removeAll<OrbArea>(*this); }

OrbInterval* OrbGraph::addInterval(const XMLCh* id) { return children_->add<OrbInterval>(*this, AfterElements{}, id); }
std::vector<OrbInterval*> OrbGraph::getIntervals() const { return children_->all<OrbInterval>(); }
unsigned int OrbGraph::removeIntervals() { return children_->removeAll<OrbInterval>(*this); }

OrbLine* OrbGraph::addLine(const XMLCh* id) { return children_->add<OrbLine>(*this, AfterElements{}, id); }
std::vector<OrbLine*> OrbGraph::getLines() const { return children_->all<OrbLine>(); }
unsigned int OrbGraph::removeLines() { return children_->removeAll<OrbLine>(*this); }

OrbEdge* OrbGraph::addEdge() { return children_->add<OrbEdge>(*this, AfterElements{}); }
std::vector<OrbEdge*> OrbGraph::getEdges() const { return children_->all<OrbEdge>(); }
bool OrbGraph::removeEdge(unsigned int index) { return children_->removeAt<OrbEdge>(*this, index, true); }
unsigned int OrbGraph::removeEdges() { return children_->removeAll<OrbEdge>(*this); }

OrbPath* OrbGraph::addPath(const XMLCh* id) { return children_->add<OrbPath>(*this, AfterElements{}, id); }
std::vector<OrbPath*> OrbGraph::getPaths() const { return children_->all<OrbPath>(); }
unsigned int OrbGraph::removePaths() { return children_->removeAll<OrbPath>(*this); }

OrbPoint* OrbGraph::addPoint(const XMLCh* id) { return children_->add<OrbPoint>(*this, AfterElements{}, id); }
std::vector<OrbPoint*> OrbGraph::getPoints() const { return children_->all<OrbPoint>(); }
unsigned int OrbGraph::removePoints() { return children_->removeAll<OrbPoint>(*this); }

OrbPolygon* OrbGraph::addPolygon(const XMLCh* id) { return children_->add<OrbPolygon>(*this, AfterElements{}, id); }
std::vector<OrbPolygon*> OrbGraph::getPolygons() const { return children_->all<OrbPolygon>(); }
unsigned int OrbGraph::removePolygons() { return children_->removeAll<OrbPolygon>(*this); }

OrbSchema* OrbGraph::addSchema(const XMLCh* id) { return children_->add<OrbSchema>(*this, AfterElements{}, id); }
std::vector<OrbSchema*> OrbGraph::getSchemas() const { return children_->all<OrbSchema>(); }
unsigned int OrbGraph::removeSchemas() { return children_->removeAll<OrbSchema>(*this); }

bool OrbGraph::removeElement(CTElementType& element) {
  return children_->removeAmong<OrbPoint, OrbInterval, OrbLine, OrbArea, OrbSchema, OrbPath, OrbPolygon>(*this,
                                                                                                         element);
}
