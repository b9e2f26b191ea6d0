// One layer of a faceting, element `layer`.
#pragma once

#include "orbbaseelement.h"

class CTVariableType;

/// One layer of a faceting: a variable, and one value of it if only that is meant. A load does not look at its
/// children.
/// \ingroup graph
class ORBCHART_EXPORT OrbLayer : public OrbBaseElement {
public:
  static constexpr XMLCh _UTF_layer[] = u"layer";
  static constexpr const XMLCh* elementName = _UTF_layer;

  static constexpr XMLCh _UTF_titleVisible[] = u"titleVisible";

  enum ENUM_method : int {
    method_unset = 0,
    method_cross = 1,
    method_nest = 2,
    method_dot = 3,
  };

  explicit OrbLayer(xercesc::DOMElement* element);
  OrbLayer(xercesc::DOMElement* element, const CTVariableType& variable, const XMLCh* value);
  ~OrbLayer() override;

  const XMLCh* getId() const;
  void setId(const XMLCh* id);
  bool isIdPresent() const;
  void removeId();

  /// The variable of the layer: a source, derived or expression variable, else null.
  CTVariableType* getVariable() const;
  void setVariable(const CTVariableType& variable);
  bool isVariablePresent() const;
  void removeVariable();

  /// One value of the variable, as text.
  const XMLCh* getValue() const;
  void setValue(const XMLCh* value);
  bool isValuePresent() const;
  void removeValue();

  /// Whether the layer is shown; false when absent.
  bool getVisible() const;
  void setVisible(bool visible);
  bool isVisiblePresent() const;
  void removeVisible();

  /// How the layer joins the others; 0 when absent.
  ENUM_method getMethod() const;
  void setMethod(ENUM_method method);
  bool isMethodPresent() const;
  void removeMethod();

  /// Whether its title is shown; false when absent.
  bool getTitleVisible() const;
  void setTitleVisible(bool titleVisible);
  bool isTitleVisiblePresent() const;
  void removeTitleVisible();
};
