// A frame around a graph, element `frameGuide`.
#pragma once

#include "ctguidetype.h"

/// A frame around a graph.
/// \ingroup guides
class ORBCHART_EXPORT OrbFrameGuide : public CTGuideType {
public:
  static constexpr XMLCh _UTF_frameGuide[] = u"frameGuide";
  static constexpr const XMLCh* elementName = _UTF_frameGuide;

  explicit OrbFrameGuide(xercesc::DOMElement* element);
  ~OrbFrameGuide() override;

  /// Whether the frame is closed on all sides; false when absent.
  bool getComplete() const;
  void setComplete(bool complete);
  void removeComplete();
};
