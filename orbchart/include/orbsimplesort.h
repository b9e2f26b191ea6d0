// A sort of categories by what they are, element `simpleSort`.
#pragma once

#include "orbbaseelement.h"

#include <memory>

class OrbCategoryOrder;
class OrbSortMove;

/// Sorts categories by the data, naturally, or by a list. The moves stand before the lists. An unknown child element
/// raises at a load.
/// \ingroup variables
class ORBCHART_EXPORT OrbSimpleSort : public OrbBaseElement {
public:
  static constexpr XMLCh _UTF_simpleSort[] = u"simpleSort";
  static constexpr const XMLCh* elementName = _UTF_simpleSort;

  static constexpr XMLCh _UTF_method_custom[] = u"custom";

  enum ENUM_method : int {
    method_data = 0,
    method_custom = 1,
    method_natural = 2,
    method_naturalUsingLabel = 3,
  };

  explicit OrbSimpleSort(xercesc::DOMElement* element);
  ~OrbSimpleSort() override;

  const XMLCh* getId() const;
  void setId(const XMLCh* id);
  void removeId();

  /// By what is sorted; "data" when absent.
  ENUM_method getMethod() const;
  void setMethod(ENUM_method method);
  void removeMethod();

  /// Whether the order is descending; false when absent.
  bool getDescending() const;
  void setDescending(bool descending);
  void removeDescending();

  /// The categories that move out of the order.
  OrbSortMove* addSortMove(const XMLCh* category);
  std::vector<OrbSortMove*> getSortMoves() const;
  unsigned int removeSortMoves();

  /// The lists of a custom order.
  OrbCategoryOrder* addCategoryOrder();
  std::vector<OrbCategoryOrder*> getCategoryOrders() const;
  unsigned int removeCategoryOrders();

private:
  struct Children;
  std::unique_ptr<Children> children_;
};
