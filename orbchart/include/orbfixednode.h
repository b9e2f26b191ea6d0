// A node of a graph layout with a place of its own, element `fixedNode`.
#pragma once

#include "orbbaseelement.h"

/// A node of a graph layout with a place of its own.
/// \ingroup statistics
class ORBCHART_EXPORT OrbFixedNode : public OrbBaseElement {
public:
  static constexpr XMLCh _UTF_fixedNode[] = u"fixedNode";
  static constexpr const XMLCh* elementName = _UTF_fixedNode;

  static constexpr XMLCh _UTF_node[] = u"node";

  explicit OrbFixedNode(xercesc::DOMElement* element);
  ~OrbFixedNode() override;

  const XMLCh* getId() const;
  void setId(const XMLCh* id);
  void removeId();

  /// The node, free text.
  const XMLCh* getNode() const;
  void setNode(const XMLCh* node);
  void removeNode();

  /// The x coordinate of its place; 0.0 when absent.
  double getX() const;
  void setX(double x);
  void removeX();

  /// The y coordinate of its place; 0.0 when absent.
  double getY() const;
  void setY(double y);
  void removeY();
};
