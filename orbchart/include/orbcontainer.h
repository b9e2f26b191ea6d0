// A group of graphs, legends and frames, element `container`.
#pragma once

#include "orbbaseelement.h"
#include "orblocation.h"

#include <memory>

class OrbControlFrame;
class OrbExtension;
class OrbGraph;
class OrbLabelFrame;
class OrbLegend;

/// A group of graphs, legends and frames that are placed together, and of further containers.
///
/// Extensions stand first and locations after them; all else goes last, in the order of the adds. Extensions and
/// locations do not look at control frames: beside these alone they go last, too.
/// \ingroup graph
class ORBCHART_EXPORT OrbContainer : public OrbBaseElement {
public:
  static constexpr XMLCh _UTF_container[] = u"container";
  static constexpr const XMLCh* elementName = _UTF_container;

  explicit OrbContainer(xercesc::DOMElement* element);
  /// The same, and then writes the id.
  OrbContainer(xercesc::DOMElement* element, const XMLCh* id);
  ~OrbContainer() override;

  const XMLCh* getId() const;
  void setId(const XMLCh* id);
  void removeId();

  OrbStyle* getStyle() const;
  void setStyle(const OrbStyle& style);
  void removeStyle();

  /// Whether the drawing is cut at the edge; false when absent.
  bool getClip() const;
  void setClip(bool clip);
  void removeClip();

  /// Free attributes of the host. There is no limit, but the getter gives the first alone.
  OrbExtension* addExtension();
  OrbExtension* getExtension() const;
  unsigned int removeExtensions();

  /// Where the container stands: each fixes one edge or size.
  OrbLocation* addLocation(OrbLocation::ENUM_part part);
  std::vector<OrbLocation*> getLocations() const;
  unsigned int removeLocations();

  OrbContainer* addContainer(const XMLCh* id);
  std::vector<OrbContainer*> getContainers() const;
  unsigned int removeContainers();

  OrbGraph* addGraph(const XMLCh* id);
  std::vector<OrbGraph*> getGraphs() const;
  unsigned int removeGraphs();

  /// The legends. The second add takes a wrapper over whose element the caller has placed in this container; null does
  /// nothing.
  OrbLegend* addLegend(const XMLCh* id);
  void addLegend(OrbLegend* legend);
  std::vector<OrbLegend*> getLegends() const;
  unsigned int removeLegends();

  OrbLabelFrame* addLabelFrame(const XMLCh* id);
  std::vector<OrbLabelFrame*> getLabelFrames() const;
  unsigned int removeLabelFrames();

  OrbControlFrame* addControlFrame();
  std::vector<OrbControlFrame*> getControlFrames() const;
  unsigned int removeControlFrames();

private:
  friend class OrbVisualization;
  /// Ends the wrappers of children that the root has moved out.
  void dropMovedChildren();

  struct Children;
  std::unique_ptr<Children> children_;
};
