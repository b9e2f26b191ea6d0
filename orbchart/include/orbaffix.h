// The affix of a format, element `affix`.
#pragma once

#include "orbbaseelement.h"

/// A text that a format puts before or behind a value.
/// \ingroup style
class ORBCHART_EXPORT OrbAffix : public OrbBaseElement {
public:
  static constexpr XMLCh _UTF_affix[] = u"affix";
  static constexpr const XMLCh* elementName = _UTF_affix;

  static constexpr XMLCh _UTF_position_superscript[] = u"superscript";
  static constexpr XMLCh _UTF_position_subscript[] = u"subscript";
  static constexpr XMLCh _UTF_definesReference[] = u"definesReference";

  enum ENUM_position : int {
    position_unset = 0,
    position_superscript = 1,
    position_subscript = 2,
    position_normal = 3,
  };

  explicit OrbAffix(xercesc::DOMElement* element);
  OrbAffix(xercesc::DOMElement* element, const XMLCh* value);
  ~OrbAffix() override;

  const XMLCh* getId() const;
  void setId(const XMLCh* id);
  bool isIdPresent() const;
  void removeId();

  /// The text itself.
  const XMLCh* getValue() const;
  void setValue(const XMLCh* value);
  bool isValuePresent() const;
  void removeValue();

  /// Whether it stands behind the value and not before it; false when absent.
  bool getSuffix() const;
  void setSuffix(bool suffix);
  bool isSuffixPresent() const;
  void removeSuffix();

  /// Whether the text is raised, lowered or neither; 0 when absent.
  ENUM_position getPosition() const;
  void setPosition(ENUM_position position);
  bool isPositionPresent() const;
  void removePosition();

  /// A name by which texts refer to the affix, free text.
  const XMLCh* getDefinesReference() const;
  void setDefinesReference(const XMLCh* definesReference);
  bool isDefinesReferencePresent() const;
  void removeDefinesReference();
};
