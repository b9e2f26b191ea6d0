// One graph of a chart.
#include "orbgraph.h"

#include "attribute.h"
#include "family.h"
#include "orbarea.h"
#include "orbcoordinates.h"
#include "orbdimension.h"
#include "orbedge.h"
#include "orbextension.h"
#include "orbfaceting.h"
#include "orbfacetlayout.h"
#include "orbframeguide.h"
#include "orbfunctionguide.h"
#include "orbinterval.h"
#include "orbline.h"
#include "orblineguide.h"
#include "orbpath.h"
#include "orbplaneguide.h"
#include "orbpoint.h"
#include "orbpointguide.h"
#include "orbpolygon.h"
#include "orbrectangleguide.h"
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
constexpr OnlyOne oneFacetLayout{"FacetLayout", "Graph"};

// The families by band, in document order.
using Extensions = FamilyList<OrbExtension>;
using Locations = FamilyList<StripsIds<OrbLocation>>;
using CoordinateSystems = FamilyList<StripsIds<OrbCoordinates>>;
using Facetings = FamilyList<StripsIds<Limited<OrbFaceting, oneFaceting>>>;
using FacetLayouts = FamilyList<StripsIds<Limited<OrbFacetLayout, oneFacetLayout>>>;
using Elements = FamilyList<StripsIds<OrbArea>, StripsIds<OrbInterval>, StripsIds<OrbLine>, StripsIds<OrbEdge>,
                            StripsIds<OrbPath>, StripsIds<OrbPoint>, StripsIds<OrbPolygon>, StripsIds<OrbSchema>>;
// The ids of removed rectangle guides stay.
using Guides = FamilyList<StripsIds<OrbFrameGuide>, StripsIds<OrbFunctionGuide>, OrbRectangleGuide,
                          StripsIds<OrbLineGuide>, StripsIds<OrbPlaneGuide>, StripsIds<OrbPointGuide>>;

using AfterElements = Guides;
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

OrbExtension* OrbGraph::addExtension() { return children_->add<OrbExtension>(*this, AfterExtensions{}); }
OrbExtension* OrbGraph::getExtension() const { return children_->first<OrbExtension>(); }
unsigned int OrbGraph::removeExtensions() { return children_->removeAll<OrbExtension>(*this); }

OrbLocation* OrbGraph::addLocation(OrbLocation::ENUM_part part) {
  return children_->add<OrbLocation>(*this, AfterLocations{}, part);
}
std::vector<OrbLocation*> OrbGraph::getLocations() const { return children_->all<OrbLocation>(); }
unsigned int OrbGraph::removeLocations() { return children_->removeAll<OrbLocation>(*this); }
unsigned int OrbGraph::removeLocation(OrbLocation::ENUM_part part) {
  unsigned int count = 0;
  // The index moves on after a removal as well: what follows a removed location is passed over.
  for (std::size_t index = 0; index < children_->count<OrbLocation>(); ++index) {
    if (children_->at<OrbLocation>(index)->getPart() == part && children_->removeAt<OrbLocation>(*this, index, true))
      ++count;
  }
  return count;
}

OrbCoordinates* OrbGraph::addCoordinates(const XMLCh* id) {
  return children_->add<OrbCoordinates>(*this, AfterCoordinateSystems{}, id);
}
OrbCoordinates* OrbGraph::getCoordinates(unsigned int index) const { return children_->at<OrbCoordinates>(index); }
std::vector<OrbCoordinates*> OrbGraph::getCoordinatess() const { return children_->all<OrbCoordinates>(); }
unsigned int OrbGraph::removeCoordinatess() { return children_->removeAll<OrbCoordinates>(*this); }

OrbFaceting* OrbGraph::addFaceting() { return children_->add<OrbFaceting>(*this, AfterFacetings{}); }
OrbFaceting* OrbGraph::getFaceting() const { return children_->first<OrbFaceting>(); }
unsigned int OrbGraph::removeFacetings() { return children_->removeAll<OrbFaceting>(*this); }

OrbFacetLayout* OrbGraph::addFacetLayout() { return children_->add<OrbFacetLayout>(*this, AfterFacetLayouts{}); }
OrbFacetLayout* OrbGraph::getFacetLayout() const { return children_->first<OrbFacetLayout>(); }
unsigned int OrbGraph::removeFacetLayouts() { return children_->removeAll<OrbFacetLayout>(*this); }

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

OrbFrameGuide* OrbGraph::addFrameGuide() { return children_->add<OrbFrameGuide>(*this, atEnd); }
std::vector<OrbFrameGuide*> OrbGraph::getFrameGuides() const { return children_->all<OrbFrameGuide>(); }
unsigned int OrbGraph::removeFrameGuides() { return children_->removeAll<OrbFrameGuide>(*this); }

OrbFunctionGuide* OrbGraph::addFunctionGuide() { return children_->add<OrbFunctionGuide>(*this, atEnd); }
std::vector<OrbFunctionGuide*> OrbGraph::getFunctionGuides() const { return children_->all<OrbFunctionGuide>(); }
unsigned int OrbGraph::removeFunctionGuides() { return children_->removeAll<OrbFunctionGuide>(*this); }

OrbRectangleGuide* OrbGraph::addRectangleGuide() { return children_->add<OrbRectangleGuide>(*this, atEnd); }
std::vector<OrbRectangleGuide*> OrbGraph::getRectangleGuides() const { return children_->all<OrbRectangleGuide>(); }
unsigned int OrbGraph::removeRectangleGuides() { return children_->removeAll<OrbRectangleGuide>(*this); }

OrbLineGuide* OrbGraph::addLineGuide() { return children_->add<OrbLineGuide>(*this, atEnd); }
std::vector<OrbLineGuide*> OrbGraph::getLineGuides() const { return children_->all<OrbLineGuide>(); }
unsigned int OrbGraph::removeLineGuides() { return children_->removeAll<OrbLineGuide>(*this); }

OrbPlaneGuide* OrbGraph::addPlaneGuide() { return children_->add<OrbPlaneGuide>(*this, atEnd); }
std::vector<OrbPlaneGuide*> OrbGraph::getPlaneGuides() const { return children_->all<OrbPlaneGuide>(); }
unsigned int OrbGraph::removePlaneGuides() { return children_->removeAll<OrbPlaneGuide>(*this); }

OrbPointGuide* OrbGraph::addPointGuide() { return children_->add<OrbPointGuide>(*this, atEnd); }
std::vector<OrbPointGuide*> OrbGraph::getPointGuides() const { return children_->all<OrbPointGuide>(); }
unsigned int OrbGraph::removePointGuides() { return children_->removeAll<OrbPointGuide>(*this); }

bool OrbGraph::removeElement(CTElementType& element) {
  return children_->removeAmong<OrbPoint, OrbInterval, OrbLine, OrbArea, OrbSchema, OrbPath, OrbPolygon>(*this,
                                                                                                         element);
}
