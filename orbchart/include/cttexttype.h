// What the elements that hold a text with a style share.
#pragma once

#include "chartstring.h"
#include "orbbaseelement.h"

class OrbStyle;

/// An element that holds a literal text: the text nodes among its children.
/// \ingroup guides
class ORBCHART_EXPORT CTTextType : public OrbBaseElement {
public:
  static constexpr XMLCh _UTF_position_superscript[] = u"superscript";
  static constexpr XMLCh _UTF_position_subscript[] = u"subscript";
  static constexpr XMLCh _UTF_definesReference[] = u"definesReference";
  static constexpr XMLCh _UTF_usesReference[] = u"usesReference";

  enum ENUM_position : int {
    position_unset = 0,
    position_superscript = 1,
    position_subscript = 2,
    position_normal = 3,
  };

  ~CTTextType() override;

  const XMLCh* getId() const;
  void setId(const XMLCh* id);
  void removeId();

  /// Whether the text is raised, lowered or neither; 0 when absent.
  ENUM_position getPosition() const;
  void setPosition(ENUM_position position);
  bool isPositionPresent() const;
  void removePosition();

  OrbStyle* getStyle() const;
  void setStyle(const OrbStyle& style);
  bool isStylePresent() const;
  void removeStyle();

  /// A name by which other texts refer to this one, free text.
  const XMLCh* getDefinesReference() const;
  void setDefinesReference(const XMLCh* definesReference);
  bool isDefinesReferencePresent() const;
  void removeDefinesReference();

  /// The name of the text that this one refers to, free text.
  const XMLCh* getUsesReference() const;
  void setUsesReference(const XMLCh* usesReference);
  bool isUsesReferencePresent() const;
  void removeUsesReference();

  /// The text of the element: all its text nodes in order as one, empty when there is none. The English form has the
  /// first of them twice. Setting it removes the old text and puts the new one behind whatever other children there
  /// are; of two neighbouring text nodes a remove leaves the second.
  ChartString getText() const;
  void setText(const XMLCh* text);
  void removeText();

protected:
  explicit CTTextType(xercesc::DOMElement* element);
};
