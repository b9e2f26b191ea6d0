// What ties a graphic element or a faceting to a target, element `attach`.
#pragma once

#include "orbbaseelement.h"

class CTVariableType;

/// Ties a graphic element or a faceting, through a key variable, to a label or a shape of a target.
/// \ingroup elements
class ORBCHART_EXPORT OrbAttach : public OrbBaseElement {
public:
  static constexpr XMLCh _UTF_attach[] = u"attach";
  static constexpr const XMLCh* elementName = _UTF_attach;

  static constexpr XMLCh _UTF_targetKey[] = u"targetKey";
  static constexpr XMLCh _UTF_method_vertical[] = u"vertical";
  static constexpr XMLCh _UTF_method_horizontal[] = u"horizontal";
  static constexpr XMLCh _UTF_method_orthogonal[] = u"orthogonal";
  static constexpr XMLCh _UTF_attachLocation[] = u"attachLocation";

  enum ENUM_method : int {
    method_unset = 0,
    method_center = 1,
    method_outside = 2,
    method_vertical = 3,
    method_horizontal = 4,
    method_orthogonal = 5,
  };

  enum ENUM_attachLocation : int {
    attachLocation_unset = 0,
    attachLocation_label = 1,
    attachLocation_shape = 2,
  };

  explicit OrbAttach(xercesc::DOMElement* element);
  /// Writes the target's key alone: the target and the key are not used.
  OrbAttach(xercesc::DOMElement* element, const OrbBaseElement& target, const CTVariableType& key,
            const CTVariableType& targetKey);
  ~OrbAttach() override;

  const XMLCh* getId() const;
  void setId(const XMLCh* id);
  void removeId();

  /// No operation writes or reads the target: one that a parsed document names can be removed.
  void removeTarget();

  /// The variable that identifies the rows of the target: a source, expression or derived variable, in this order, else
  /// null.
  CTVariableType* getTargetKey() const;
  void setTargetKey(const CTVariableType& targetKey);
  void removeTargetKey();

  /// How it is placed at the target; 0 when absent.
  ENUM_method getMethod() const;
  void setMethod(ENUM_method method);
  bool isMethodPresent() const;
  void removeMethod();

  /// The part of the target that it is tied to; 0 when absent.
  ENUM_attachLocation getAttachLocation() const;
  void setAttachLocation(ENUM_attachLocation attachLocation);
  bool isAttachLocationPresent() const;
  void removeAttachLocation();
};
