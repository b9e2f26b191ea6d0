// A control to sort the facets of a graph, element `facetSortController`.
#pragma once

#include "ctinteraction.h"

class OrbGraph;

/// Lets the viewer sort the facets of a graph anew.
/// \ingroup interaction
class ORBCHART_EXPORT OrbFacetSortController : public CTInteraction {
public:
  static constexpr XMLCh _UTF_facetSortController[] = u"facetSortController";
  static constexpr const XMLCh* elementName = _UTF_facetSortController;

  explicit OrbFacetSortController(xercesc::DOMElement* element);
  ~OrbFacetSortController() override;

  /// The graph.
  OrbGraph* getTarget() const;
  void setTarget(const OrbGraph& target);
  bool isTargetPresent() const;
  void removeTarget();
};
