// What hides nodes without links in a graph layout, element `hideSingleNodes`.
#pragma once

#include "orbbaseelement.h"

/// Hides the nodes of a graph layout that have no link.
/// \ingroup statistics
class ORBCHART_EXPORT OrbHideSingleNodes : public OrbBaseElement {
public:
  static constexpr XMLCh _UTF_hideSingleNodes[] = u"hideSingleNodes";
  static constexpr const XMLCh* elementName = _UTF_hideSingleNodes;

  static constexpr XMLCh _UTF_whenEdgesHidden[] = u"whenEdgesHidden";

  explicit OrbHideSingleNodes(xercesc::DOMElement* element);
  ~OrbHideSingleNodes() override;

  const XMLCh* getId() const;
  void setId(const XMLCh* id);
  bool isIdPresent() const;
  void removeId();

  /// Whether they are hidden as well when it is the edges that are hidden; false when absent.
  bool getWhenEdgesHidden() const;
  void setWhenEdgesHidden(bool whenEdgesHidden);
  bool isWhenEdgesHiddenPresent() const;
  void removeWhenEdgesHidden();
};
