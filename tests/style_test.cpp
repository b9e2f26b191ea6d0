// Styles: the record of attributes, each with its own name, and what deviates from the idioms; references to styles.
#include "chartstring.h"
#include "dom.h"
#include "keywords.h"
#include "orbconditionalstyle.h"
#include "orbexception.h"
#include "orbstyle.h"
#include "orbstylereference.h"

#include <gtest/gtest.h>

#include <cmath>
#include <sstream>
#include <string>
#include <type_traits>
#include <vector>

using test::childrenOf;
using test::NewDocument;
using test::Parsed;
using test::utf8;
using xercesc::DOMElement;

namespace {

/// The four operations of one attribute.
template <class Value> struct Attribute {
  const XMLCh* name;
  Value (OrbStyle::*get)() const;
  void (OrbStyle::*set)(Value);
  bool (OrbStyle::*isPresent)() const;
  void (OrbStyle::*remove)();
};

/// A style on its own.
class Style : public testing::Test {
protected:
  std::string text(const XMLCh* name) const { return utf8(element->getAttribute(name)); }

  /// The operations of each attribute are its own: they touch the attribute of its name and no other.
  template <class Value>
  void expectOwn(const std::vector<Attribute<Value>>& attributes, Value value, const std::string& written) {
    for (const Attribute<Value>& attribute : attributes) {
      SCOPED_TRACE(utf8(attribute.name));
      EXPECT_FALSE((style.*attribute.isPresent)());
      (style.*attribute.set)(value);
      EXPECT_EQ(text(attribute.name), written);
      EXPECT_EQ(element->getAttributes()->getLength(), 1U);
      if constexpr (std::is_pointer_v<Value>)
        EXPECT_EQ(utf8((style.*attribute.get)()), written);
      else
        EXPECT_EQ((style.*attribute.get)(), value);
      EXPECT_TRUE((style.*attribute.isPresent)());
      (style.*attribute.remove)();
      EXPECT_FALSE(element->hasAttributes());
    }
  }

  /// The keywords have the numbers from 1 on, and each is its attribute's own.
  template <class Value> void expectKeywords(const Attribute<Value>& attribute, const std::string& keywords) {
    int number = 0;
    std::istringstream words(keywords);
    for (std::string word; words >> word;)
      expectOwn<Value>({attribute}, static_cast<Value>(++number), word);
    test::expectKeywords<OrbStyle>(attribute.name, attribute.get, attribute.set, keywords);
  }

  const NewDocument document{u"style"};
  DOMElement* const element = document.root();
  OrbStyle style{element};
};

using S = OrbStyle;

} // namespace

TEST_F(Style, EveryAttributeIsItsOwn) {
  expectOwn<const XMLCh*>(
      {
          {u"color", &S::getColor, &S::setColor, &S::isColorPresent, &S::removeColor},
          {u"color2", &S::getColor2, &S::setColor2, &S::isColor2Present, &S::removeColor2},
          {u"opacity", &S::getOpacity, &S::setOpacity, &S::isOpacityPresent, &S::removeOpacity},
          {u"gradient-color", &S::getGradient_color, &S::setGradient_color, &S::isGradient_colorPresent,
           &S::removeGradient_color},
          {u"shadow-color", &S::getShadow_color, &S::setShadow_color, &S::isShadow_colorPresent,
           &S::removeShadow_color},
          {u"shadow-dx", &S::getShadow_dx, &S::setShadow_dx, &S::isShadow_dxPresent, &S::removeShadow_dx},
          {u"shadow-dy", &S::getShadow_dy, &S::setShadow_dy, &S::isShadow_dyPresent, &S::removeShadow_dy},
          {u"stroke-dasharray", &S::getStroke_dasharray, &S::setStroke_dasharray, &S::isStroke_dasharrayPresent,
           &S::removeStroke_dasharray},
          {u"stroke-width", &S::getStroke_width, &S::setStroke_width, &S::isStroke_widthPresent,
           &S::removeStroke_width},
          {u"background-image", &S::getBackground_image, &S::setBackground_image, &S::isBackground_imagePresent,
           &S::removeBackground_image},
          {u"margin", &S::getMargin, &S::setMargin, &S::isMarginPresent, &S::removeMargin},
          {u"margin-left", &S::getMargin_left, &S::setMargin_left, &S::isMargin_leftPresent, &S::removeMargin_left},
          {u"margin-right", &S::getMargin_right, &S::setMargin_right, &S::isMargin_rightPresent,
           &S::removeMargin_right},
          {u"margin-top", &S::getMargin_top, &S::setMargin_top, &S::isMargin_topPresent, &S::removeMargin_top},
          {u"margin-bottom", &S::getMargin_bottom, &S::setMargin_bottom, &S::isMargin_bottomPresent,
           &S::removeMargin_bottom},
          {u"padding", &S::getPadding, &S::setPadding, &S::isPaddingPresent, &S::removePadding},
          {u"padding-left", &S::getPadding_left, &S::setPadding_left, &S::isPadding_leftPresent,
           &S::removePadding_left},
          {u"padding-right", &S::getPadding_right, &S::setPadding_right, &S::isPadding_rightPresent,
           &S::removePadding_right},
          {u"padding-top", &S::getPadding_top, &S::setPadding_top, &S::isPadding_topPresent, &S::removePadding_top},
          {u"padding-bottom", &S::getPadding_bottom, &S::setPadding_bottom, &S::isPadding_bottomPresent,
           &S::removePadding_bottom},
          {u"border-left-color", &S::getBorder_left_color, &S::setBorder_left_color, &S::isBorder_left_colorPresent,
           &S::removeBorder_left_color},
          {u"border-right-color", &S::getBorder_right_color, &S::setBorder_right_color, &S::isBorder_right_colorPresent,
           &S::removeBorder_right_color},
          {u"border-top-color", &S::getBorder_top_color, &S::setBorder_top_color, &S::isBorder_top_colorPresent,
           &S::removeBorder_top_color},
          {u"border-bottom-color", &S::getBorder_bottom_color, &S::setBorder_bottom_color,
           &S::isBorder_bottom_colorPresent, &S::removeBorder_bottom_color},
          {u"font-family", &S::getFont_family, &S::setFont_family, &S::isFont_familyPresent, &S::removeFont_family},
          {u"bevel-size", &S::getBevel_size, &S::setBevel_size, &S::isBevel_sizePresent, &S::removeBevel_size},
          {u"depth", &S::getDepth, &S::setDepth, &S::isDepthPresent, &S::removeDepth},
          {u"decimal-offset", &S::getDecimal_offset, &S::setDecimal_offset, &S::isDecimal_offsetPresent,
           &S::removeDecimal_offset},
          {u"maxAttachedTextWidth", &S::getMaxAttachedTextWidth, &S::setMaxAttachedTextWidth,
           &S::isMaxAttachedTextWidthPresent, &S::removeMaxAttachedTextWidth},
          {u"maxAttachedTextHeight", &S::getMaxAttachedTextHeight, &S::setMaxAttachedTextHeight,
           &S::isMaxAttachedTextHeightPresent, &S::removeMaxAttachedTextHeight},
      },
      u" any; text", " any; text");
  expectOwn<double>(
      {
          {u"opacity2", &S::getOpacity2, &S::setOpacity2, &S::isOpacity2Present, &S::removeOpacity2},
          {u"hue", &S::getHue, &S::setHue, &S::isHuePresent, &S::removeHue},
          {u"saturation", &S::getSaturation, &S::setSaturation, &S::isSaturationPresent, &S::removeSaturation},
          {u"brightness", &S::getBrightness, &S::setBrightness, &S::isBrightnessPresent, &S::removeBrightness},
          {u"hue2", &S::getHue2, &S::setHue2, &S::isHue2Present, &S::removeHue2},
          {u"saturation2", &S::getSaturation2, &S::setSaturation2, &S::isSaturation2Present, &S::removeSaturation2},
          {u"brightness2", &S::getBrightness2, &S::setBrightness2, &S::isBrightness2Present, &S::removeBrightness2},
          {u"gradient-focus", &S::getGradient_focus, &S::setGradient_focus, &S::isGradient_focusPresent,
           &S::removeGradient_focus},
          {u"gradient-angle", &S::getGradient_angle, &S::setGradient_angle, &S::isGradient_anglePresent,
           &S::removeGradient_angle},
          {u"gradient-size", &S::getGradient_size, &S::setGradient_size, &S::isGradient_sizePresent,
           &S::removeGradient_size},
          {u"gradient-opacity", &S::getGradient_opacity, &S::setGradient_opacity, &S::isGradient_opacityPresent,
           &S::removeGradient_opacity},
          {u"shadow-opacity", &S::getShadow_opacity, &S::setShadow_opacity, &S::isShadow_opacityPresent,
           &S::removeShadow_opacity},
          {u"glyph-angle", &S::getGlyph_angle, &S::setGlyph_angle, &S::isGlyph_anglePresent, &S::removeGlyph_angle},
          {u"glyph-aspect", &S::getGlyph_aspect, &S::setGlyph_aspect, &S::isGlyph_aspectPresent,
           &S::removeGlyph_aspect},
          {u"labelAngle", &S::getLabelAngle, &S::setLabelAngle, &S::isLabelAnglePresent, &S::removeLabelAngle},
      },
      0.25, "0.25");
  expectOwn<unsigned int>(
      {
          {u"pattern", &S::getPattern, &S::setPattern, &S::isPatternPresent, &S::removePattern},
          {u"glyph-sides", &S::getGlyph_sides, &S::setGlyph_sides, &S::isGlyph_sidesPresent, &S::removeGlyph_sides},
      },
      7, "7");
  const std::vector<Attribute<bool>> booleans = {
      {u"gradient-isInverted", &S::getGradient_isInverted, &S::setGradient_isInverted, &S::isGradient_isInvertedPresent,
       &S::removeGradient_isInverted},
      {u"depthRelativeToWidth", &S::getDepthRelativeToWidth, &S::setDepthRelativeToWidth,
       &S::isDepthRelativeToWidthPresent, &S::removeDepthRelativeToWidth},
      {u"ignoreNewLines", &S::getIgnoreNewLines, &S::setIgnoreNewLines, &S::isIgnoreNewLinesPresent,
       &S::removeIgnoreNewLines},
      {u"twoCharacterVertical", &S::getTwoCharacterVertical, &S::setTwoCharacterVertical,
       &S::isTwoCharacterVerticalPresent, &S::removeTwoCharacterVertical},
      {u"baselineRotated", &S::getBaselineRotated, &S::setBaselineRotated, &S::isBaselineRotatedPresent,
       &S::removeBaselineRotated},
      {u"text-fit", &S::getText_fit, &S::setText_fit, &S::isText_fitPresent, &S::removeText_fit},
      {u"text_rotate", &S::getText_rotate, &S::setText_rotate, &S::isText_rotatePresent, &S::removeText_rotate},
      {u"visible", &S::getVisible, &S::setVisible, &S::isVisiblePresent, &S::removeVisible},
  };
  expectOwn(booleans, true, "true");
  expectOwn(booleans, false, "false");
}

TEST_F(Style, KeywordsCountFromOne) {
  expectKeywords<S::ENUM_gradient_method>({u"gradient-method", &S::getGradient_method, &S::setGradient_method,
                                           &S::isGradient_methodPresent, &S::removeGradient_method},
                                          "linear radial");
  expectKeywords<S::ENUM_stroke_decoration>({u"stroke-decoration", &S::getStroke_decoration, &S::setStroke_decoration,
                                             &S::isStroke_decorationPresent, &S::removeStroke_decoration},
                                            "etchLowered etchRaised bevel");
  expectKeywords<S::ENUM_stroke_linecap>({u"stroke-linecap", &S::getStroke_linecap, &S::setStroke_linecap,
                                          &S::isStroke_linecapPresent, &S::removeStroke_linecap},
                                         "round square butt");
  expectKeywords<S::ENUM_symbol>(
      {u"symbol", &S::getSymbolEnum, &S::setSymbol, &S::isSymbolPresent, &S::removeSymbol},
      "ibeam bowtie hollowBowtie flower plus polygon cross circle hollowCircle star hollowStar square "
      "hollowSquare acrossDown acrossDownAcross acrossDownArrow acrossDownAcrossArrow downAcross "
      "downAcrossDown downAcrossArrow downAcrossDownArrow arrow line male female star3 star4 star5 "
      "star6 star7 star8 star9 star10 hollowStar3 hollowStar4 hollowStar5 hollowStar6 hollowStar7 "
      "hollowStar8 hollowStar9 hollowStar10 flower3 flower4 flower5 flower6 flower7 flower8 flower9 "
      "flower10 triangle pentagon hexagon heptagon octagon nonagon decagon hollowTriangle "
      "hollowPentagon hollowHexagon hollowHeptagon hollowOctagon hollowNonagon hollowDecagon "
      "hollowRoundRectangle elbow elbowArrow arc arcDown roundRectangle none");
  expectKeywords<S::ENUM_background_method>({u"background-method", &S::getBackground_method, &S::setBackground_method,
                                             &S::isBackground_methodPresent, &S::removeBackground_method},
                                            "tile stretch zoom center left right top bottom");
  const std::vector<Attribute<S::ENUM_border_style>> sides = {
      {u"border-left", &S::getBorder_left, &S::setBorder_left, &S::isBorder_leftPresent, &S::removeBorder_left},
      {u"border-right", &S::getBorder_right, &S::setBorder_right, &S::isBorder_rightPresent, &S::removeBorder_right},
      {u"border-top", &S::getBorder_top, &S::setBorder_top, &S::isBorder_topPresent, &S::removeBorder_top},
      {u"border-bottom", &S::getBorder_bottom, &S::setBorder_bottom, &S::isBorder_bottomPresent,
       &S::removeBorder_bottom},
  };
  for (const auto& side : sides)
    expectKeywords(side, "none normal solid dashed thick thin double");
  expectKeywords<S::ENUM_font_style>(
      {u"font-style", &S::getFont_style, &S::setFont_style, &S::isFont_stylePresent, &S::removeFont_style},
      "regular italic");
  expectKeywords<S::ENUM_font_weight>(
      {u"font-weight", &S::getFont_weight, &S::setFont_weight, &S::isFont_weightPresent, &S::removeFont_weight},
      "regular bold");
  expectKeywords<S::ENUM_font_underline>({u"font-underline", &S::getFont_underline, &S::setFont_underline,
                                          &S::isFont_underlinePresent, &S::removeFont_underline},
                                         "none underline");
  expectKeywords<S::ENUM_labelInside>(
      {u"labelInside", &S::getLabelInside, &S::setLabelInside, &S::isLabelInsidePresent, &S::removeLabelInside},
      "true false preferred");
  expectKeywords<S::ENUM_labelLocationHorizontal>({u"labelLocationHorizontal", &S::getLabelLocationHorizontal,
                                                   &S::setLabelLocationHorizontal, &S::isLabelLocationHorizontalPresent,
                                                   &S::removeLabelLocationHorizontal},
                                                  "center positive negative");
  expectKeywords<S::ENUM_labelLocationVertical>({u"labelLocationVertical", &S::getLabelLocationVertical,
                                                 &S::setLabelLocationVertical, &S::isLabelLocationVerticalPresent,
                                                 &S::removeLabelLocationVertical},
                                                "center positive negative");
  expectKeywords<S::ENUM_textAlignment>({u"textAlignment", &S::getTextAlignment, &S::setTextAlignment,
                                         &S::isTextAlignmentPresent, &S::removeTextAlignment},
                                        "left right center decimal mixed");
}

TEST_F(Style, SixBooleansAreTrueUnlessTheTextIsFalse) {
  using Reader = bool (OrbStyle::*)() const;
  const std::vector<std::pair<const XMLCh*, Reader>> inverted = {
      {u"visible", &S::getVisible},
      {u"gradient-isInverted", &S::getGradient_isInverted},
      {u"baselineRotated", &S::getBaselineRotated},
      {u"twoCharacterVertical", &S::getTwoCharacterVertical},
      {u"ignoreNewLines", &S::getIgnoreNewLines},
      {u"depthRelativeToWidth", &S::getDepthRelativeToWidth},
  };
  for (const auto& [name, get] : inverted) {
    EXPECT_TRUE((style.*get)()) << utf8(name);
    element->setAttribute(name, u"FALSE");
    EXPECT_TRUE((style.*get)()) << utf8(name);
  }
  const std::vector<std::pair<const XMLCh*, Reader>> plain = {{u"text-fit", &S::getText_fit},
                                                              {u"text_rotate", &S::getText_rotate}};
  for (const auto& [name, get] : plain) {
    EXPECT_FALSE((style.*get)()) << utf8(name);
    element->setAttribute(name, u"TRUE");
    EXPECT_FALSE((style.*get)()) << utf8(name);
  }
}

TEST_F(Style, GuardedSettersWriteNothingOutsideTheirBounds) {
  struct Share {
    const XMLCh* name;
    void (OrbStyle::*set)(double);
  };
  for (const Share& share : {Share{u"opacity2", &S::setOpacity2}, Share{u"gradient-opacity", &S::setGradient_opacity},
                             Share{u"shadow-opacity", &S::setShadow_opacity}}) {
    (style.*share.set)(0.0);
    EXPECT_EQ(text(share.name), "0");
    (style.*share.set)(1.0);
    for (const double outside : {-0.001, 1.5, std::nan(""), HUGE_VAL})
      (style.*share.set)(outside);
    EXPECT_EQ(text(share.name), "1");
  }
  style.setGlyph_aspect(0.5);
  for (const double outside : {0.0, -1.0, std::nan("")})
    style.setGlyph_aspect(outside);
  EXPECT_EQ(text(u"glyph-aspect"), "0.5");
  style.setGlyph_sides(2);
  style.setGlyph_sides(1);
  EXPECT_EQ(text(u"glyph-sides"), "2");
  style.setGlyph_sides(100);
  style.setGlyph_sides(101);
  EXPECT_EQ(text(u"glyph-sides"), "100");
}

TEST_F(Style, SymbolsAndBordersTakeForeignTexts) {
  style.setSymbol(u"heart");
  EXPECT_EQ(utf8(style.getSymbol()), "heart");
  EXPECT_EQ(style.getSymbolEnum(), 0);
  style.setSymbol(S::symbol_none);
  EXPECT_EQ(text(u"symbol"), "none");
  EXPECT_EQ(style.getSymbolEnum(), 70);

  struct Border {
    const XMLCh* name;
    void (OrbStyle::*set)(const XMLCh*);
    S::ENUM_border_style (OrbStyle::*get)() const;
    bool (OrbStyle::*isPresent)() const;
  };
  for (const Border& border :
       {Border{u"border-left", &S::setBorder_left, &S::getBorder_left, &S::isBorderLeftPresent},
        Border{u"border-right", &S::setBorder_right, &S::getBorder_right, &S::isBorderRightPresent},
        Border{u"border-top", &S::setBorder_top, &S::getBorder_top, &S::isBorderTopPresent},
        Border{u"border-bottom", &S::setBorder_bottom, &S::getBorder_bottom, &S::isBorderBottomPresent}}) {
    EXPECT_FALSE((style.*border.isPresent)());
    (style.*border.set)(u"dotted");
    EXPECT_EQ(text(border.name), "dotted");
    EXPECT_EQ((style.*border.get)(), 0);
    EXPECT_TRUE((style.*border.isPresent)());
  }
}

TEST_F(Style, TriplesKeepTheFieldsThatAreNotGiven) {
  style.setWidth(u"5pt", nullptr, nullptr);
  EXPECT_EQ(text(u"width"), "5pt;;");
  style.setWidth(nullptr, u"1pt", u"");
  EXPECT_EQ(text(u"width"), "5pt;1pt;");
  style.setWidth(u"", nullptr, u"9pt");
  EXPECT_EQ(text(u"width"), "5pt;1pt;9pt");

  element->setAttribute(u"height", u"2pt;3pt;4pt");
  style.setHeight(u"10pt", nullptr, nullptr);
  EXPECT_EQ(text(u"height"), "10pt;1pt;9pt") << "the other fields are the width's";

  style.setFontSize(u"", u"", u"");
  EXPECT_EQ(text(u"font-size"), ";;");
  EXPECT_TRUE(style.isFont_sizePresent());
  style.setFontSize(nullptr, u"8pt", nullptr);
  EXPECT_EQ(text(u"font-size"), ";8pt;");
  style.removeFont_size();
  EXPECT_FALSE(style.isFont_sizePresent());

  style.setSize(u"7%");
  style.setSize(nullptr, nullptr, style.getSize());
  EXPECT_EQ(text(u"size"), "7%;;7%");
}

TEST_F(Style, TripleGettersAppendToWhatTheyAreGiven) {
  const auto fields = [](const ChartString& a, const ChartString& b, const ChartString& c) {
    return a.toUTF8() + "|" + b.toUTF8() + "|" + c.toUTF8();
  };
  ChartString preferred(u"p"), minimum(u"m"), maximum(u"x");
  element->setAttribute(u"height", u"5pt");
  style.getHeight(preferred, minimum, maximum);
  EXPECT_EQ(fields(preferred, minimum, maximum), "p5pt|m|x");
  element->setAttribute(u"font-size", u";8pt;9pt;10pt");
  style.getFontSize(preferred, minimum, maximum);
  EXPECT_EQ(fields(preferred, minimum, maximum), "p5pt|m8pt|x9pt");
  element->setAttribute(u"size", u"1;2");
  style.getSize(preferred, minimum, maximum);
  style.getWidth(preferred, minimum, maximum);
  EXPECT_EQ(fields(preferred, minimum, maximum), "p5pt1|m8pt2|x9pt");

  ChartString text(u"1;2;3");
  ChartString english;
  style.getPreferredMinMax(text, text, english, maximum);
  EXPECT_EQ(fields(text, english, maximum), "1;2;31|2|x9pt3");
  EXPECT_EQ(english.toUTF8ForEng(), "2");
}

TEST_F(Style, FillAndStrokeAreOnlyReadAndRemoved) {
  const Parsed parsed("<style fill='red' stroke='blue' fill-opacity='0.1' stroke-opacity='0.2'/>");
  OrbStyle loaded(parsed.root());
  EXPECT_EQ(utf8(loaded.getFill()) + utf8(loaded.getStroke()), "redblue");
  EXPECT_EQ(utf8(loaded.getFill_opacity()) + utf8(loaded.getStroke_opacity()), "0.10.2");
  loaded.removeFill();
  loaded.removeStroke_opacity();
  EXPECT_FALSE(loaded.isFillPresent() || loaded.isStroke_opacityPresent());
  EXPECT_TRUE(loaded.isStrokePresent() && loaded.isFill_opacityPresent());
  loaded.removeStroke();
  loaded.removeFill_opacity();
  EXPECT_FALSE(parsed.root()->hasAttributes());
}

TEST_F(Style, HoldsStylesAndNothingElse) {
  style.addStyle()->setId(u"a");
  style.addStyle()->setId(u"b");
  style.getStyles()[1]->addStyle()->setId(u"deep");
  EXPECT_EQ(childrenOf(element), "style#a style#b");
  EXPECT_EQ(style.getStyleById(u"deep"), style.getStyles()[1]->getStyles()[0]);
  EXPECT_EQ(style.removeStyles(), 2U);
  EXPECT_EQ(style.getStyleById(u"a"), nullptr);
  EXPECT_FALSE(style.doesIdExist(u"a"));
  EXPECT_TRUE(style.doesIdExist(u"deep")) << "ids deeper in a removed child stay";
  EXPECT_EQ(childrenOf(element), "");

  const Parsed parsed("<style><style><gradient/></style></style>");
  EXPECT_THROW(OrbStyle{parsed.root()}, OrbException);
}

TEST(StyleReferences, FindTheStyleOfTheirId) {
  const Parsed parsed("<styles><style id='s'/><style/><styleReference id='r'/><conditionalStyle><any/>"
                      "</conditionalStyle></styles>");
  DOMElement* child = parsed.root()->getFirstElementChild();
  const OrbStyle style(child);
  const OrbStyle nameless(child = child->getNextElementSibling());
  OrbStyleReference reference(child = child->getNextElementSibling(), style);
  OrbConditionalStyle conditional(child->getNextElementSibling(), u"a > 1", style);

  EXPECT_EQ(reference.getRef(), &style);
  reference.setRef(nameless);
  EXPECT_EQ(reference.getRef(), &style) << "a style without an id writes nothing";
  reference.getImplementation()->setAttribute(u"ref", u"r");
  EXPECT_EQ(reference.getRef(), nullptr) << "an element of another class";
  reference.removeRef();
  EXPECT_EQ(reference.getRef(), nullptr);

  EXPECT_EQ(conditional.getStyle(), &style);
  EXPECT_EQ(utf8(conditional.getWhen()), "a > 1");
  EXPECT_EQ(conditional.getImplementation()->getUserData(u"conditionalStyle"), &conditional);
}
