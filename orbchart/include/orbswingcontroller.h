// A function that acts on a frame, element `swingController`.
#pragma once

#include "ctinteraction.h"

class CTFrame;

/// Lets the viewer start a function that acts on a frame.
/// \ingroup interaction
class ORBCHART_EXPORT OrbSwingController : public CTInteraction {
public:
  static constexpr XMLCh _UTF_swingController[] = u"swingController";
  static constexpr const XMLCh* elementName = _UTF_swingController;

  explicit OrbSwingController(xercesc::DOMElement* element);
  ~OrbSwingController() override;

  /// The frame, by its id. The getter is always null, for a valid target too: nothing leads to the wrapper of a frame.
  CTFrame* getTarget() const;
  void setTarget(const XMLCh* target);
  void setTarget(const CTFrame& target);
  bool isTargetPresent() const;
  void removeTarget();

  /// The name of the function.
  const XMLCh* getFunction() const;
  void setFunction(const XMLCh* function);
  bool isFunctionPresent() const;
  void removeFunction();
};
