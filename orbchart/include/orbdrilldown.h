// A function or link that a mark leads to, element `drillDown`.
#pragma once

#include "ctinteraction.h"

#include <memory>

class CTVariableType;
class OrbVariableReference;

/// Follows a function or a link when the viewer acts on a target, and passes the values of the variables on.
/// \ingroup interaction
class ORBCHART_EXPORT OrbDrillDown : public CTInteraction {
public:
  static constexpr XMLCh _UTF_drillDown[] = u"drillDown";
  static constexpr const XMLCh* elementName = _UTF_drillDown;

  static constexpr XMLCh _UTF_targetIdentifier[] = u"targetIdentifier";

  enum ENUM_interactionType : int {
    interactionType_onClick = 0,
    interactionType_onMouseDown = 1,
    interactionType_onMouseUp = 2,
    interactionType_onMouseOver = 3,
    interactionType_onMouseOut = 4,
  };

  explicit OrbDrillDown(xercesc::DOMElement* element);
  /// The same, and writes the id before it looks at any child.
  OrbDrillDown(xercesc::DOMElement* element, const XMLCh* id);
  ~OrbDrillDown() override;

  /// What the viewer acts on, of any class. The getter never gives it: it is null when the target exists, and otherwise
  /// raises "Attribute Target refers to <id>, but that element does not exist.", for an absent target with an empty id.
  OrbBaseElement* getTarget() const;
  void setTarget(const OrbBaseElement& target);
  void removeTarget();

  /// The name of the function that is called.
  const XMLCh* getFunction() const;
  void setFunction(const XMLCh* function);
  void removeFunction();

  /// What the viewer does; "onClick" when absent.
  ENUM_interactionType getInteractionType() const;
  void setInteractionType(ENUM_interactionType interactionType);
  void removeInteractionType();

  /// The link that is followed, to which the values are added.
  const XMLCh* getUrlBase() const;
  void setUrlBase(const XMLCh* urlBase);
  void removeUrlBase();

  /// An identifier that goes with the target, free text.
  const XMLCh* getTargetIdentifier() const;
  void setTargetIdentifier(const XMLCh* targetIdentifier);
  bool isTargetIdentifierPresent() const;
  void removeTargetIdentifier();

  /// The variables whose values are passed on.
  OrbVariableReference* addVariableReference(const CTVariableType& variable);
  std::vector<OrbVariableReference*> getVariableReferences() const;
  unsigned int removeVariableReferences();

private:
  void init();

  struct Children;
  std::unique_ptr<Children> children_;
};
