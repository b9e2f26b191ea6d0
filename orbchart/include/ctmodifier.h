// What the operations of a domain modifier share.
#pragma once

#include "orbbaseelement.h"

#include <memory>

class OrbCategories2;
class OrbRange;
class OrbVariableReference;

/// One operation on the values of a domain, and the values that it works with. They stand in the order of the adds.
/// \ingroup variables
class ORBCHART_EXPORT CTModifier : public OrbBaseElement {
public:
  ~CTModifier() override;

  /// The variables whose values take part. The caller sets the reference on the wrapper that it gets.
  OrbVariableReference* addVariableReference();
  std::vector<OrbVariableReference*> getVariableReferences() const;
  unsigned int removeVariableReferences();

  OrbCategories2* addCategories2();
  std::vector<OrbCategories2*> getCategories2s() const;
  unsigned int removeCategories2s();

  OrbRange* addRange();
  std::vector<OrbRange*> getRanges() const;
  unsigned int removeRanges();

protected:
  explicit CTModifier(xercesc::DOMElement* element);

private:
  struct Children;
  std::unique_ptr<Children> children_;
};
