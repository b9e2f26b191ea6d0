// A set of variables that hold the answers to one question, element `multipleResponseVariable`.
#pragma once

#include "ctvariabletype.h"

class OrbVariableReference;

/// A set of variables that together hold the answers to one question. No reference finds it.
///
/// A load raises the text of ChildNotFoundError on every child element that is not its own, those of the base included.
/// \ingroup variables
class ORBCHART_EXPORT OrbMultipleResponseVariable : public CTVariableType {
public:
  static constexpr XMLCh _UTF_multipleResponseVariable[] = u"multipleResponseVariable";
  static constexpr const XMLCh* elementName = _UTF_multipleResponseVariable;

  static constexpr XMLCh _UTF_categoryComponents[] = u"categoryComponents";

  explicit OrbMultipleResponseVariable(xercesc::DOMElement* element);
  ~OrbMultipleResponseVariable() override;

  /// Whether the components are categories; false when absent.
  bool getCategoryComponents() const;
  void setCategoryComponents(bool categoryComponents);
  bool isCategoryComponentsPresent() const;
  void removeCategoryComponents();

  /// The variables that belong to the set.
  OrbVariableReference* addVariableReference();
  std::vector<OrbVariableReference*> getVariableReferences() const;
  unsigned int removeVariableReferences();

private:
  struct Children;
  std::unique_ptr<Children> children_;
};
