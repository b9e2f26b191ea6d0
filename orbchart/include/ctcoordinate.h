// What the coordinates of a graphic element share.
#pragma once

#include "orbbaseelement.h"

class CTVariableType;
class OrbDerivedVariable;
class OrbExpressionVariable;
class OrbSourceVariable;

/// Assigns a variable to one coordinate of a graphic element.
/// \ingroup elements
class ORBCHART_EXPORT CTCoordinate : public OrbBaseElement {
public:
  ~CTCoordinate() override;

  const XMLCh* getId() const;
  void setId(const XMLCh* id);
  void removeId();

  /// The variable: a source, derived or expression variable, else null. A multiple response variable can be written and
  /// reads as null.
  CTVariableType* getVariable() const;
  void setVariable(const CTVariableType& variable);
  void removeVariable();

  /// The variable if it is of the one kind, else null.
  OrbSourceVariable* getSourceVariable() const;
  OrbDerivedVariable* getDerivedVariable() const;
  OrbExpressionVariable* getExpressionVariable() const;

protected:
  explicit CTCoordinate(xercesc::DOMElement* element);
};
