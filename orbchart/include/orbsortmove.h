// One category out of its order, element `sortMove`.
#pragma once

#include "orbbaseelement.h"

/// Moves a category of a sort to the front or to the back.
/// \ingroup variables
class ORBCHART_EXPORT OrbSortMove : public OrbBaseElement {
public:
  static constexpr XMLCh _UTF_sortMove[] = u"sortMove";
  static constexpr const XMLCh* elementName = _UTF_sortMove;

  explicit OrbSortMove(xercesc::DOMElement* element);
  OrbSortMove(xercesc::DOMElement* element, const XMLCh* category);
  ~OrbSortMove() override;

  const XMLCh* getId() const;
  void setId(const XMLCh* id);
  bool isIdPresent() const;
  void removeId();

  /// The category.
  const XMLCh* getCategory() const;
  void setCategory(const XMLCh* category);
  void removeCategory();

  /// Whether it moves to the front rather than to the back; false when absent.
  bool getFirst() const;
  void setFirst(bool first);
  bool isFirstPresent() const;
  void removeFirst();

  /// Registers the wrapper. The constructors call it.
  void init();
};
