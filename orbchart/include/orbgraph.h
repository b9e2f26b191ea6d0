// One graph of a chart, element `graph`.
#pragma once

#include "orbbaseelement.h"

#include <memory>

/// One graph: the centre of a chart description.
class ORBCHART_EXPORT OrbGraph : public OrbBaseElement {
public:
  static constexpr XMLCh _UTF_graph[] = u"graph";
  static constexpr const XMLCh* elementName = _UTF_graph;

  static constexpr XMLCh _UTF_axesOutside[] = u"axesOutside";

  explicit OrbGraph(xercesc::DOMElement* element);
  OrbGraph(xercesc::DOMElement* element, const XMLCh* id);
  ~OrbGraph() override;

  const XMLCh* getId() const;
  void setId(const XMLCh* id);
  void removeId();

  /// Whether the drawing is cut at the edge; false when absent.
  bool getClip() const;
  void setClip(bool clip);
  void removeClip();

  /// Whether the axes stand outside; false when absent.
  bool getAxesOutside() const;
  void setAxesOutside(bool axesOutside);
  void removeAxesOutside();

private:
  struct Children;
  std::unique_ptr<Children> children_;
};
