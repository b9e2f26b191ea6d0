// A layout of a tree, element `treeLayoutStatistic`.
#pragma once

#include "orbbaseelement.h"

class CTVariableType;
class OrbSourceVariable;

/// Gives the items of a tree their places; the tree is given by the pairs of an item and its parent.
/// \ingroup statistics
class ORBCHART_EXPORT OrbTreeLayoutStatistic : public OrbBaseElement {
public:
  static constexpr XMLCh _UTF_treeLayoutStatistic[] = u"treeLayoutStatistic";
  static constexpr const XMLCh* elementName = _UTF_treeLayoutStatistic;

  enum ENUM_method : int {
    method_treemap = 0,
    method_simple = 1,
  };

  explicit OrbTreeLayoutStatistic(xercesc::DOMElement* element);
  OrbTreeLayoutStatistic(xercesc::DOMElement* element, const CTVariableType& itemVariable,
                         const CTVariableType& parent);
  ~OrbTreeLayoutStatistic() override;

  const XMLCh* getId() const;
  void setId(const XMLCh* id);
  void removeId();

  /// How the tree is drawn; "treemap" when absent.
  ENUM_method getMethod() const;
  void setMethod(ENUM_method method);
  void removeMethod();

  /// The variable that names the items. The getter raises "Attribute ItemVariable refers to <id>, but that element does
  /// not exist." when no element carries the id, an absent one included; else it gives null: no wrapper registers the
  /// key under which it looks. The id is read from the DOM.
  CTVariableType* getItemVariable() const;
  void setItemVariable(const CTVariableType& variable);
  void removeItemVariable();

  /// The variable that names the parent of an item. The getter raises "Attribute Parent refers to <id>, but that
  /// element does not exist." when no element carries the id, an absent one included; else it gives null: no wrapper
  /// registers the key under which it looks. The id is read from the DOM.
  CTVariableType* getParent() const;
  void setParent(const CTVariableType& variable);
  void removeParent();

  /// The variable that gives the sizes. Any variable can be written; all but a source variable read as null.
  OrbSourceVariable* getSizeVariable() const;
  void setSizeVariable(const CTVariableType& variable);
  void removeSizeVariable();

  /// Whether the sizes of children add up; false when absent.
  bool getAddChildSizes() const;
  void setAddChildSizes(bool addChildSizes);
  void removeAddChildSizes();

  /// The space between items, as text; the setter with a number writes it without a unit.
  const XMLCh* getSpacing() const;
  void setSpacing(const XMLCh* spacing);
  void setSpacing(double spacing);
  void removeSpacing();

  /// The space inside items, as text; the setter with a number writes it without a unit.
  const XMLCh* getPadding() const;
  void setPadding(const XMLCh* padding);
  void setPadding(double padding);
  void removePadding();
};
