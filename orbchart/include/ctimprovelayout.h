// What the improvement steps of a graph layout share.
#pragma once

#include "orbbaseelement.h"

/// One step that improves the layout of nodes and links.
/// \ingroup statistics
class ORBCHART_EXPORT CTImproveLayout : public OrbBaseElement {
public:
  static constexpr XMLCh _UTF_ignoreLinkCrossings[] = u"ignoreLinkCrossings";
  static constexpr XMLCh _UTF_maxIterations[] = u"maxIterations";
  static constexpr XMLCh _UTF_maxTime[] = u"maxTime";
  static constexpr XMLCh _UTF_respectGroups[] = u"respectGroups";

  ~CTImproveLayout() override;

  const XMLCh* getId() const;
  void setId(const XMLCh* id);
  void removeId();

  /// Whether crossings of links do not count; false when absent.
  bool getIgnoreLinkCrossings() const;
  void setIgnoreLinkCrossings(bool ignoreLinkCrossings);
  void removeIgnoreLinkCrossings();

  /// The most iterations of the step; 0 when absent.
  unsigned int getMaxIterations() const;
  void setMaxIterations(unsigned int maxIterations);
  void removeMaxIterations();

  /// The most time of the step; 0.0 when absent.
  double getMaxTime() const;
  void setMaxTime(double maxTime);
  void removeMaxTime();

  /// Whether groups are kept together; false when absent.
  bool getRespectGroups() const;
  void setRespectGroups(bool respectGroups);
  bool isRespectGroupsPresent() const;
  void removeRespectGroups();

protected:
  explicit CTImproveLayout(xercesc::DOMElement* element);
};
