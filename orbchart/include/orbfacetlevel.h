// One level of the facets of a graph, element `facetLevel`.
#pragma once

#include "orbbaseelement.h"

#include <memory>

class OrbAxis;
class OrbStyle;

/// One level of the facets of a graph, with the axes that show it.
/// \ingroup graph
class ORBCHART_EXPORT OrbFacetLevel : public OrbBaseElement {
public:
  static constexpr XMLCh _UTF_facetLevel[] = u"facetLevel";
  static constexpr const XMLCh* elementName = _UTF_facetLevel;

  explicit OrbFacetLevel(xercesc::DOMElement* element);
  /// For a new element: these two do not look at its children.
  OrbFacetLevel(xercesc::DOMElement* element, unsigned int level);
  OrbFacetLevel(xercesc::DOMElement* element, const XMLCh* id, unsigned int level);
  ~OrbFacetLevel() override;

  const XMLCh* getId() const;
  void setId(const XMLCh* id);
  void removeId();

  /// The gap between the panels, free text.
  const XMLCh* getGap() const;
  void setGap(const XMLCh* gap);
  void removeGap();

  OrbStyle* getStyle() const;
  void setStyle(const OrbStyle& style);
  void removeStyle();

  /// The place in the order of drawing; 0 when absent. A negative one is written, and reads as 0.
  int getZOrder() const;
  void setZOrder(int zOrder);
  void removeZOrder();

  /// The number of the level; 0 when absent. Once written it cannot be removed.
  unsigned int getLevel() const;
  void setLevel(unsigned int level);

  /// The axes, at most three. A fourth add raises "Can not add a Axis to a FacetLevel because 3 Axis(s) already
  /// exist(s)." with the number that there is. A remove takes the ids off them.
  OrbAxis* addAxis();
  std::vector<OrbAxis*> getAxiss() const;
  unsigned int removeAxiss();

private:
  struct Children;
  std::unique_ptr<Children> children_;
};
