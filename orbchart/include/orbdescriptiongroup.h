// Texts and facts about the data of a graphic element, element `descriptionGroup`.
#pragma once

#include "orbdescription.h"

class CTElementType;
class OrbText;

/// Texts and facts about the data of a graphic element, in the order in which a label shows them. The writer keeps its
/// children on one line.
/// \ingroup guides
class ORBCHART_EXPORT OrbDescriptionGroup : public OrbBaseElement {
public:
  static constexpr XMLCh _UTF_descriptionGroup[] = u"descriptionGroup";
  static constexpr const XMLCh* elementName = _UTF_descriptionGroup;

  explicit OrbDescriptionGroup(xercesc::DOMElement* element);
  OrbDescriptionGroup(xercesc::DOMElement* element, const OrbBaseElement& target);
  ~OrbDescriptionGroup() override;

  /// The id. The setter does not register it, so no look-up finds the element by it, and an empty or null id leaves the
  /// old one standing.
  const XMLCh* getId() const;
  void setId(const XMLCh* id);
  void removeId();

  /// What stands between the children, free text.
  const XMLCh* getSeparator() const;
  void setSeparator(const XMLCh* separator);
  void removeSeparator();

  /// The graphic element that is described. The setter takes any element that has an id; the getter finds lines,
  /// points, intervals, polygons, areas, schemas and paths, in this order, and is null for any other, an edge among
  /// them. Once written it cannot be removed.
  CTElementType* getTarget() const;
  void setTarget(const OrbBaseElement& target);

  /// The facts; they and the texts stand in the order of their addition.
  OrbDescription* addDescription(OrbDescription::ENUM_name name);
  std::vector<OrbDescription*> getDescriptions() const;
  unsigned int removeDescriptions();

  OrbText* addText();
  std::vector<OrbText*> getTexts() const;
  unsigned int removeTexts();

private:
  struct Children;
  std::unique_ptr<Children> children_;
};
