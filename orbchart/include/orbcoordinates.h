// A coordinate system of a graph, element `coordinates`.
#pragma once

#include "orbbaseelement.h"

#include <memory>

class OrbDimension;
class OrbDimensionReference;

/// One coordinate system of a graph: its dimensions, and the transforms that are applied to them. Dimensions and
/// references to dimensions stand mixed, in the order of their addition.
class ORBCHART_EXPORT OrbCoordinates : public OrbBaseElement {
public:
  static constexpr XMLCh _UTF_coordinates[] = u"coordinates";
  static constexpr const XMLCh* elementName = _UTF_coordinates;

  explicit OrbCoordinates(xercesc::DOMElement* element);
  /// The id is written before the children are wrapped.
  OrbCoordinates(xercesc::DOMElement* element, const XMLCh* id);
  ~OrbCoordinates() override;

  const XMLCh* getId() const;
  void setId(const XMLCh* id);
  void removeId();

  /// The dimensions. A remove leaves their ids registered: a new dimension with such an id is not found by it. Removing
  /// a single one answers false past the end.
  OrbDimension* addDimension();
  std::vector<OrbDimension*> getDimensions() const;
  bool removeDimension(unsigned int index);
  unsigned int removeDimensions();

  /// The dimensions that stand elsewhere in the document.
  OrbDimensionReference* addDimensionReference();
  std::vector<OrbDimensionReference*> getDimensionReferences() const;
  unsigned int removeDimensionReferences();

private:
  void init();

  struct Children;
  std::unique_ptr<Children> children_;
};
