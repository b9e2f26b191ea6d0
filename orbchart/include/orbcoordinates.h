// A coordinate system of a graph, element `coordinates`.
#pragma once

#include "orbbaseelement.h"

#include <memory>

class OrbDimension;
class OrbDimensionReference;
class OrbFishEyeTransform;
class OrbFunctionalTransform;
class OrbInsetTransform;
class OrbMapProjection;
class OrbObliqueTransform;
class OrbParallelCoordinatesTransform;
class OrbPolarTransform;
class OrbRectangularTransform;
class OrbReflectionTransform;
class OrbRotationTransform;
class OrbSameRatioTransform;
class OrbTransposeTransform;

/// One coordinate system of a graph: its dimensions, and the transforms that are applied to them. All of them stand
/// mixed, in the order of their addition, save that a rectangular transform goes before an inset, and a polar or
/// transposing one before both.
/// \ingroup coordinates
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

  /// Rotations of the space by an angle.
  OrbRotationTransform* addRotationTransform();
  std::vector<OrbRotationTransform*> getRotationTransforms() const;
  unsigned int removeRotationTransforms();

  /// Reflections along a dimension.
  OrbReflectionTransform* addReflectionTransform();
  std::vector<OrbReflectionTransform*> getReflectionTransforms() const;
  unsigned int removeReflectionTransforms();

  /// Oblique projections.
  OrbObliqueTransform* addObliqueTransform();
  std::vector<OrbObliqueTransform*> getObliqueTransforms() const;
  unsigned int removeObliqueTransforms();

  /// Views of the rectangular space. A new one goes before the first inset.
  OrbRectangularTransform* addRectangularTransform();
  std::vector<OrbRectangularTransform*> getRectangularTransforms() const;
  unsigned int removeRectangularTransforms();

  /// Projections of a map.
  OrbMapProjection* addMapProjection();
  std::vector<OrbMapProjection*> getMapProjections() const;
  unsigned int removeMapProjections();

  /// Magnifying lenses.
  OrbFishEyeTransform* addFishEyeTransform();
  std::vector<OrbFishEyeTransform*> getFishEyeTransforms() const;
  unsigned int removeFishEyeTransforms();

  /// Functions along a dimension.
  OrbFunctionalTransform* addFunctionalTransform();
  std::vector<OrbFunctionalTransform*> getFunctionalTransforms() const;
  unsigned int removeFunctionalTransforms();

  /// Inset rectangles.
  OrbInsetTransform* addInsetTransform();
  std::vector<OrbInsetTransform*> getInsetTransforms() const;
  unsigned int removeInsetTransforms();

  /// Polar coordinates. A new transform goes before the first rectangular one or inset.
  OrbPolarTransform* addPolarTransform();
  std::vector<OrbPolarTransform*> getPolarTransforms() const;
  unsigned int removePolarTransforms();

  /// The same ratio on all dimensions.
  OrbSameRatioTransform* addSameRatioTransform();
  std::vector<OrbSameRatioTransform*> getSameRatioTransforms() const;
  unsigned int removeSameRatioTransforms();

  /// Exchanges of two dimensions. A new one goes before the first rectangular transform or inset. A remove takes the
  /// ids of these alone away, so that the document forgets them; those of the other transforms stay registered.
  OrbTransposeTransform* addTransposeTransform();
  std::vector<OrbTransposeTransform*> getTransposeTransforms() const;
  unsigned int removeTransposeTransforms();

  /// Parallel coordinates.
  OrbParallelCoordinatesTransform* addParallelCoordinatesTransform();
  std::vector<OrbParallelCoordinatesTransform*> getParallelCoordinatesTransforms() const;
  unsigned int removeParallelCoordinatesTransforms();

private:
  void init();

  struct Children;
  std::unique_ptr<Children> children_;
};
