// One graph of a chart, element `graph`.
#pragma once

#include "orbbaseelement.h"
#include "orblocation.h"

#include <memory>

class CTElementType;
class OrbArea;
class OrbCoordinates;
class OrbDimension;
class OrbEdge;
class OrbExtension;
class OrbFacetLayout;
class OrbFaceting;
class OrbFrameGuide;
class OrbFunctionGuide;
class OrbInterval;
class OrbLine;
class OrbLineGuide;
class OrbPath;
class OrbPlaneGuide;
class OrbPoint;
class OrbPointGuide;
class OrbPolygon;
class OrbRectangleGuide;
class OrbSchema;
class OrbStyle;

/// One graph: a coordinate frame with its faceting, its layout of facets, the graphic elements that are drawn in it and
/// the guides that are laid over it.
///
/// The add operations keep the children in bands: extensions, locations, coordinates, the faceting, the facet layout,
/// the graphic elements, the guides. Within a band a new child goes last, whatever its kind. A load takes any order and
/// any number.
/// \ingroup graph
class ORBCHART_EXPORT OrbGraph : public OrbBaseElement {
public:
  static constexpr XMLCh _UTF_graph[] = u"graph";
  static constexpr const XMLCh* elementName = _UTF_graph;

  static constexpr XMLCh _UTF_cellStyle[] = u"cellStyle";
  static constexpr XMLCh _UTF_alignCellHorizontallyWith[] = u"alignCellHorizontallyWith";
  static constexpr XMLCh _UTF_alignCellVerticallyWith[] = u"alignCellVerticallyWith";
  static constexpr XMLCh _UTF_axesOutside[] = u"axesOutside";

  explicit OrbGraph(xercesc::DOMElement* element);
  OrbGraph(xercesc::DOMElement* element, const XMLCh* id);
  ~OrbGraph() override;

  const XMLCh* getId() const;
  void setId(const XMLCh* id);
  void removeId();

  /// The style of the single facets.
  OrbStyle* getCellStyle() const;
  void setCellStyle(const OrbStyle& style);
  void removeCellStyle();

  OrbStyle* getStyle() const;
  void setStyle(const OrbStyle& style);
  void removeStyle();

  /// Whether the drawing is cut at the edge; false when absent.
  bool getClip() const;
  void setClip(bool clip);
  void removeClip();

  /// The dimension, of this graph or another, with which the facets are aligned from left to right.
  OrbDimension* getAlignCellHorizontallyWith() const;
  void setAlignCellHorizontallyWith(const OrbDimension& dimension);
  void removeAlignCellHorizontallyWith();

  /// The dimension, of this graph or another, with which the facets are aligned from top to bottom.
  OrbDimension* getAlignCellVerticallyWith() const;
  void setAlignCellVerticallyWith(const OrbDimension& dimension);
  void removeAlignCellVerticallyWith();

  /// Whether the axes stand outside; false when absent.
  bool getAxesOutside() const;
  void setAxesOutside(bool axesOutside);
  void removeAxesOutside();

  /// Free attributes of the host. There may be several; the getter gives the first.
  OrbExtension* addExtension();
  OrbExtension* getExtension() const;
  unsigned int removeExtensions();

  /// Where the graph stands: each fixes one edge or size.
  OrbLocation* addLocation(OrbLocation::ENUM_part part);
  std::vector<OrbLocation*> getLocations() const;
  unsigned int removeLocations();
  /// Removes the locations of a part, takes their ids off them and returns how many that were. Of two neighbours in
  /// getLocations() that are both of the part the second is passed over and stays.
  unsigned int removeLocation(OrbLocation::ENUM_part part);

  /// The coordinate systems, of which a graphic element chooses one. The one at a position, counted from 0, is null
  /// past the end.
  OrbCoordinates* addCoordinates(const XMLCh* id);
  OrbCoordinates* getCoordinates(unsigned int index) const;
  std::vector<OrbCoordinates*> getCoordinatess() const;
  unsigned int removeCoordinatess();

  /// How the data is cut into panels, at most one. A second add raises "Can not add a Faceting to a Graph because 1
  /// Faceting(s) already exist(s)." with the number that there is.
  OrbFaceting* addFaceting();
  OrbFaceting* getFaceting() const;
  unsigned int removeFacetings();

  /// How the panels are laid out, at most one. A second add raises "Can not add a FacetLayout to a Graph because 1
  /// FacetLayout(s) already exist(s)." with the number that there is.
  OrbFacetLayout* addFacetLayout();
  OrbFacetLayout* getFacetLayout() const;
  unsigned int removeFacetLayouts();

  OrbArea* addArea(const XMLCh* id);
  std::vector<OrbArea*> getAreas() const;
  unsigned int removeAreas();

  OrbInterval* addInterval(const XMLCh* id);
  std::vector<OrbInterval*> getIntervals() const;
  unsigned int removeIntervals();

  OrbLine* addLine(const XMLCh* id);
  std::vector<OrbLine*> getLines() const;
  unsigned int removeLines();

  /// The edges. Alone among the graphic elements an edge is added without an id. Removing a single one takes its id off
  /// it, and answers false past the end.
  OrbEdge* addEdge();
  std::vector<OrbEdge*> getEdges() const;
  bool removeEdge(unsigned int index);
  unsigned int removeEdges();

  OrbPath* addPath(const XMLCh* id);
  std::vector<OrbPath*> getPaths() const;
  unsigned int removePaths();

  OrbPoint* addPoint(const XMLCh* id);
  std::vector<OrbPoint*> getPoints() const;
  unsigned int removePoints();

  OrbPolygon* addPolygon(const XMLCh* id);
  std::vector<OrbPolygon*> getPolygons() const;
  unsigned int removePolygons();

  OrbSchema* addSchema(const XMLCh* id);
  std::vector<OrbSchema*> getSchemas() const;
  unsigned int removeSchemas();

  OrbFrameGuide* addFrameGuide();
  std::vector<OrbFrameGuide*> getFrameGuides() const;
  unsigned int removeFrameGuides();

  OrbFunctionGuide* addFunctionGuide();
  std::vector<OrbFunctionGuide*> getFunctionGuides() const;
  unsigned int removeFunctionGuides();

  OrbRectangleGuide* addRectangleGuide();
  std::vector<OrbRectangleGuide*> getRectangleGuides() const;
  unsigned int removeRectangleGuides();

  OrbLineGuide* addLineGuide();
  std::vector<OrbLineGuide*> getLineGuides() const;
  unsigned int removeLineGuides();

  OrbPlaneGuide* addPlaneGuide();
  std::vector<OrbPlaneGuide*> getPlaneGuides() const;
  unsigned int removePlaneGuides();

  OrbPointGuide* addPointGuide();
  std::vector<OrbPointGuide*> getPointGuides() const;
  unsigned int removePointGuides();

  /// Removes one graphic element of this graph and ends its wrapper; its id stays registered. False, and then nothing
  /// changes, for an element of another graph and for every edge: removeEdge alone removes those.
  bool removeElement(CTElementType& element);

private:
  struct Children;
  std::unique_ptr<Children> children_;
};
