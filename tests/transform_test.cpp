// The transforms of coordinates: where new ones go, what a remove does to their ids, and what they read and write.
#include "dom.h"
#include "keywords.h"
#include "orbcoordinates.h"
#include "orbdimension.h"
#include "orbdimensionreference.h"
#include "orbfisheyetransform.h"
#include "orbfunctionaltransform.h"
#include "orbinsettransform.h"
#include "orbmapprojection.h"
#include "orbobliquetransform.h"
#include "orbparallelcoordinatestransform.h"
#include "orbpolartransform.h"
#include "orbrectangulartransform.h"
#include "orbreflectiontransform.h"
#include "orbrotationtransform.h"
#include "orbsameratiotransform.h"
#include "orbtransposetransform.h"
#include "raised.h"

#include <gtest/gtest.h>

#include <functional>
#include <string>
#include <vector>

using test::childrenOf;
using test::expectKeywords;
using test::NewDocument;
using test::Parsed;
using test::refuses;
using test::utf8;

namespace {

struct Transform {
  std::string name;
  std::function<OrbBaseElement*(OrbCoordinates&)> add;
  std::function<unsigned int(OrbCoordinates&)> removeAll;
};

/// The transforms that go last.
const std::vector<Transform> plainTransforms = {
    {"rotationTransform", &OrbCoordinates::addRotationTransform, &OrbCoordinates::removeRotationTransforms},
    {"reflectionTransform", &OrbCoordinates::addReflectionTransform, &OrbCoordinates::removeReflectionTransforms},
    {"obliqueTransform", &OrbCoordinates::addObliqueTransform, &OrbCoordinates::removeObliqueTransforms},
    {"mapProjection", &OrbCoordinates::addMapProjection, &OrbCoordinates::removeMapProjections},
    {"fishEyeTransform", &OrbCoordinates::addFishEyeTransform, &OrbCoordinates::removeFishEyeTransforms},
    {"functionalTransform", &OrbCoordinates::addFunctionalTransform, &OrbCoordinates::removeFunctionalTransforms},
    {"insetTransform", &OrbCoordinates::addInsetTransform, &OrbCoordinates::removeInsetTransforms},
    {"sameRatioTransform", &OrbCoordinates::addSameRatioTransform, &OrbCoordinates::removeSameRatioTransforms},
    {"parallelCoordinatesTransform", &OrbCoordinates::addParallelCoordinatesTransform,
     &OrbCoordinates::removeParallelCoordinatesTransforms},
};
const Transform rectangular = {"rectangularTransform", &OrbCoordinates::addRectangularTransform,
                               &OrbCoordinates::removeRectangularTransforms};
const Transform polar = {"polarTransform", &OrbCoordinates::addPolarTransform, &OrbCoordinates::removePolarTransforms};
const Transform transposing = {"transposeTransform", &OrbCoordinates::addTransposeTransform,
                               &OrbCoordinates::removeTransposeTransforms};

/// The children of coordinates after an add.
std::string withAdded(const Transform& transform, const std::string& children) {
  const Parsed parsed("<coordinates>" + children + "</coordinates>");
  OrbCoordinates coordinates(parsed.root());
  transform.add(coordinates);
  return childrenOf(parsed.root());
}

/// Whether the document forgets the id of a transform when it is removed.
bool forgets(const Transform& transform) {
  const NewDocument document(u"coordinates");
  OrbCoordinates coordinates(document.root());
  transform.add(coordinates)->addID(u"t");
  EXPECT_TRUE(coordinates.doesIdExist(u"t"));
  EXPECT_EQ(transform.removeAll(coordinates), 1U);
  return !coordinates.doesIdExist(u"t");
}

} // namespace

TEST(Transforms, KeywordsAreNumberedClassByClass) {
  expectKeywords<OrbReflectionTransform>(u"dimension", &OrbReflectionTransform::getDimension,
                                         &OrbReflectionTransform::setDimension, "x y z",
                                         {.first = 0, .foreign = "theta"});
  expectKeywords<OrbFunctionalTransform>(u"dimension", &OrbFunctionalTransform::getDimension,
                                         &OrbFunctionalTransform::setDimension, "x y z",
                                         {.first = 0, .foreign = "theta"});
  expectKeywords<OrbFunctionalTransform>(u"method", &OrbFunctionalTransform::getMethod,
                                         &OrbFunctionalTransform::setMethod, "cosine log power",
                                         {.first = 0, .foreign = "linear"});
  expectKeywords<OrbRotationTransform>(u"dimension", &OrbRotationTransform::getDimension,
                                       &OrbRotationTransform::setDimension, "x y z theta r phi");
  expectKeywords<OrbMapProjection>(u"type", &OrbMapProjection::getType, &OrbMapProjection::setType,
                                   "lambert mercator transverseMercator orthographic winkelTripel local");
}

TEST(Transforms, OnlyThreeLookForTheirPlace) {
  for (const Transform& transform : plainTransforms) {
    EXPECT_EQ(withAdded(transform, "<rectangularTransform/><insetTransform/><polarTransform/>"),
              "rectangularTransform insetTransform polarTransform " + transform.name);
  }
  EXPECT_EQ(withAdded(rectangular, "<polarTransform/><insetTransform/><fishEyeTransform/>"),
            "polarTransform rectangularTransform insetTransform fishEyeTransform");
  EXPECT_EQ(withAdded(rectangular, "<insetTransform/><polarTransform/>"),
            "rectangularTransform insetTransform polarTransform");
  EXPECT_EQ(withAdded(rectangular, "<rectangularTransform/><polarTransform/><transposeTransform/>"),
            "rectangularTransform polarTransform transposeTransform rectangularTransform");
  for (const Transform& transform : {polar, transposing}) {
    EXPECT_EQ(withAdded(transform, "<dimension/><rectangularTransform/><insetTransform/>"),
              "dimension " + transform.name + " rectangularTransform insetTransform");
    EXPECT_EQ(withAdded(transform, "<dimension/><insetTransform/><rectangularTransform/>"),
              "dimension " + transform.name + " insetTransform rectangularTransform");
    EXPECT_EQ(withAdded(transform, "<polarTransform/><transposeTransform/><sameRatioTransform/>"),
              "polarTransform transposeTransform sameRatioTransform " + transform.name);
  }
}

TEST(Transforms, StandMixedWithDimensions) {
  const NewDocument document(u"coordinates");
  OrbCoordinates coordinates(document.root());
  coordinates.addRotationTransform();
  coordinates.addRectangularTransform();
  coordinates.addFishEyeTransform();
  coordinates.addTransposeTransform();
  coordinates.addPolarTransform();
  coordinates.addDimension();
  coordinates.addInsetTransform();
  coordinates.addDimensionReference();
  EXPECT_EQ(childrenOf(document.root()), "rotationTransform transposeTransform polarTransform rectangularTransform "
                                         "fishEyeTransform dimension insetTransform dimensionReference");
}

TEST(Transforms, ARemoveTakesTheIdOfATransposingOneAloneAway) {
  for (const Transform& transform : plainTransforms)
    EXPECT_FALSE(forgets(transform)) << transform.name;
  EXPECT_FALSE(forgets(rectangular));
  EXPECT_FALSE(forgets(polar));
  EXPECT_TRUE(forgets(transposing));
}

TEST(Transforms, AreAllLoadedAndLookAtNoChild) {
  std::string children;
  std::vector<Transform> all = plainTransforms;
  all.insert(all.begin(), {transposing, rectangular, polar});
  for (const Transform& transform : all)
    children.append("<").append(transform.name).append("><any/></").append(transform.name).append(">");
  const Parsed parsed("<coordinates>" + children + children + "</coordinates>");
  OrbCoordinates coordinates(parsed.root());
  for (const auto* child = parsed.root()->getFirstElementChild(); child != nullptr;
       child = child->getNextElementSibling())
    EXPECT_NE(child->getUserData(child->getTagName()), nullptr) << utf8(child->getTagName());
  for (const Transform& transform : all)
    EXPECT_EQ(transform.removeAll(coordinates), 2U) << transform.name;
  EXPECT_TRUE(refuses<OrbCoordinates>("<transform/>"));
}

TEST(Transforms, TheIdOfAnObliqueOneIsNotRegistered) {
  const NewDocument document(u"obliqueTransform");
  OrbObliqueTransform oblique(document.root());
  oblique.setId(u"o");
  EXPECT_EQ(utf8(oblique.getId()), "o");
  EXPECT_FALSE(oblique.doesIdExist(u"o"));
  oblique.setId(u"");
  EXPECT_EQ(utf8(oblique.getId()), "o") << "an empty id writes nothing";

  const Parsed parsed("<obliqueTransform id='old'/>");
  OrbObliqueTransform marked(parsed.root());
  EXPECT_TRUE(marked.doesIdExist(u"old"));
  marked.setId(u"new");
  EXPECT_FALSE(marked.doesIdExist(u"old") || marked.doesIdExist(u"new"));
}

TEST(Transforms, AZeroThatIsWrittenIsPresent) {
  const NewDocument document(u"transposeTransform");
  OrbTransposeTransform transform(document.root());
  EXPECT_EQ(transform.getDimension1(), 0U);
  EXPECT_FALSE(transform.isDimension1Present());
  transform.setDimension1(0);
  EXPECT_TRUE(transform.isDimension1Present());
  EXPECT_FALSE(transform.isDimension2Present());
  EXPECT_EQ(utf8(transform.GetAttribute(u"dimension1")), "0");
}

TEST(Transforms, TheBoundsOfAnInsetAreSpelledWithHyphens) {
  const NewDocument document(u"insetTransform");
  OrbInsetTransform inset(document.root());
  inset.setX_min(0.25);
  inset.setY_min(-1);
  inset.setZ_min(2);
  inset.setX_max(3);
  inset.setY_max(4);
  inset.setZ_max(5);
  const auto attribute = [&](const XMLCh* name) { return utf8(inset.GetAttribute(name)); };
  EXPECT_EQ(attribute(u"x-min"), "0.25");
  EXPECT_EQ(attribute(u"y-min"), "-1");
  EXPECT_EQ(attribute(u"z-min"), "2");
  EXPECT_EQ(attribute(u"x-max"), "3");
  EXPECT_EQ(attribute(u"y-max"), "4");
  EXPECT_EQ(attribute(u"z-max"), "5");
}
