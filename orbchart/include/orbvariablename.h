// Names of a variable with the scopes in which they hold, element `variableName`.
#pragma once

#include "orbbaseelement.h"

#include <memory>

class OrbName;
class OrbScope;

/// Names of a variable with the scopes in which they hold. No class of the library makes it or takes it as a child: a
/// host sets it over an element of its own.
/// \ingroup variables
class ORBCHART_EXPORT OrbVariableName : public OrbBaseElement {
public:
  static constexpr XMLCh _UTF_variableName[] = u"variableName";
  static constexpr const XMLCh* elementName = _UTF_variableName;

  explicit OrbVariableName(xercesc::DOMElement* element);
  ~OrbVariableName() override;

  OrbName* addName();
  std::vector<OrbName*> getNames() const;
  unsigned int removeNames();

  OrbScope* addScope();
  std::vector<OrbScope*> getScopes() const;
  unsigned int removeScopes();

private:
  struct Children;
  std::unique_ptr<Children> children_;
};
