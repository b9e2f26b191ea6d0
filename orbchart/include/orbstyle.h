// A named bundle of visual properties, element `style`.
#pragma once

#include "orbbaseelement.h"

#include <memory>

class ChartString;
class OrbExtensionStyle;

/// A named bundle of visual properties, to which most elements refer by its id.
///
/// A style is a flat record of optional attributes, and no more than that: a text is stored unchanged, and neither
/// lengths nor colours nor units are looked at. Unless it says otherwise, an absent text reads as empty, and an absent
/// number and an absent or unknown keyword as 0; a setter writes nothing for an empty text and for a number without a
/// keyword.
///
/// The triples `size`, `width`, `height` and `font-size` hold a preferred, a minimum and a maximum length in one text,
/// separated by ";". The setter of a triple keeps the field that stands there where it is given a null or empty text,
/// and writes two ";" always. The getter is as getPreferredMinMax(): it appends to what it is given.
/// \ingroup style
class ORBCHART_EXPORT OrbStyle : public OrbBaseElement {
public:
  static constexpr XMLCh _UTF_style[] = u"style";
  static constexpr const XMLCh* elementName = _UTF_style;

  /// Names for hosts; nothing in the library reads them.
  static constexpr XMLCh _transparent[] = u"transparent";
  static constexpr XMLCh _white[] = u"white";
  static constexpr XMLCh _black[] = u"black";
  static constexpr XMLCh _highContrast[] = u"highContrast";

  // Attributes

  static constexpr XMLCh _UTF_hue[] = u"hue";
  static constexpr XMLCh _UTF_saturation[] = u"saturation";
  static constexpr XMLCh _UTF_brightness[] = u"brightness";
  static constexpr XMLCh _UTF_hue2[] = u"hue2";
  static constexpr XMLCh _UTF_saturation2[] = u"saturation2";
  static constexpr XMLCh _UTF_brightness2[] = u"brightness2";

  static constexpr XMLCh _UTF_margin_left[] = u"margin-left";
  static constexpr XMLCh _UTF_margin_right[] = u"margin-right";
  static constexpr XMLCh _UTF_margin_top[] = u"margin-top";
  static constexpr XMLCh _UTF_margin_bottom[] = u"margin-bottom";
  static constexpr XMLCh _UTF_padding_left[] = u"padding-left";
  static constexpr XMLCh _UTF_padding_right[] = u"padding-right";
  static constexpr XMLCh _UTF_padding_top[] = u"padding-top";
  static constexpr XMLCh _UTF_padding_bottom[] = u"padding-bottom";

  static constexpr XMLCh _UTF_border_left_color[] = u"border-left-color";
  static constexpr XMLCh _UTF_border_right_color[] = u"border-right-color";
  static constexpr XMLCh _UTF_border_top_color[] = u"border-top-color";
  static constexpr XMLCh _UTF_border_bottom_color[] = u"border-bottom-color";

  static constexpr XMLCh _UTF_font_underline[] = u"font-underline";

  static constexpr XMLCh _UTF_textAlignment[] = u"textAlignment";
  static constexpr XMLCh _UTF_decimal_offset[] = u"decimal-offset";
  static constexpr XMLCh _UTF_ignoreNewLines[] = u"ignoreNewLines";
  static constexpr XMLCh _UTF_twoCharacterVertical[] = u"twoCharacterVertical";
  static constexpr XMLCh _UTF_baselineRotated[] = u"baselineRotated";
  static constexpr XMLCh _UTF_maxAttachedTextWidth[] = u"maxAttachedTextWidth";
  static constexpr XMLCh _UTF_maxAttachedTextHeight[] = u"maxAttachedTextHeight";
  static constexpr XMLCh _UTF_text_rotate[] = u"text_rotate";

  // Keywords

  static constexpr XMLCh ENUM_gradient_method_radial[] = u"radial";

  static constexpr XMLCh ENUM_stroke_decoration_etchLowered[] = u"etchLowered";
  static constexpr XMLCh ENUM_stroke_decoration_etchRaised[] = u"etchRaised";
  static constexpr XMLCh ENUM_stroke_decoration_bevel[] = u"bevel";

  static constexpr XMLCh ENUM_stroke_linecap_round[] = u"round";
  static constexpr XMLCh ENUM_stroke_linecap_butt[] = u"butt";

  static constexpr XMLCh ENUM_symbol_hollowBowtie[] = u"hollowBowtie";
  static constexpr XMLCh ENUM_symbol_hollowCircle[] = u"hollowCircle";
  static constexpr XMLCh ENUM_symbol_hollowStar[] = u"hollowStar";
  static constexpr XMLCh ENUM_symbol_hollowSquare[] = u"hollowSquare";
  static constexpr XMLCh ENUM_symbol_acrossDown[] = u"acrossDown";
  static constexpr XMLCh ENUM_symbol_acrossDownAcross[] = u"acrossDownAcross";
  static constexpr XMLCh ENUM_symbol_acrossDownArrow[] = u"acrossDownArrow";
  static constexpr XMLCh ENUM_symbol_acrossDownAcrossArrow[] = u"acrossDownAcrossArrow";
  static constexpr XMLCh ENUM_symbol_downAcross[] = u"downAcross";
  static constexpr XMLCh ENUM_symbol_downAcrossDown[] = u"downAcrossDown";
  static constexpr XMLCh ENUM_symbol_downAcrossArrow[] = u"downAcrossArrow";
  static constexpr XMLCh ENUM_symbol_downAcrossDownArrow[] = u"downAcrossDownArrow";
  static constexpr XMLCh ENUM_symbol_star3[] = u"star3";
  static constexpr XMLCh ENUM_symbol_star4[] = u"star4";
  static constexpr XMLCh ENUM_symbol_star5[] = u"star5";
  static constexpr XMLCh ENUM_symbol_star6[] = u"star6";
  static constexpr XMLCh ENUM_symbol_star7[] = u"star7";
  static constexpr XMLCh ENUM_symbol_star8[] = u"star8";
  static constexpr XMLCh ENUM_symbol_star9[] = u"star9";
  static constexpr XMLCh ENUM_symbol_star10[] = u"star10";
  static constexpr XMLCh ENUM_symbol_hollowStar3[] = u"hollowStar3";
  static constexpr XMLCh ENUM_symbol_hollowStar4[] = u"hollowStar4";
  static constexpr XMLCh ENUM_symbol_hollowStar5[] = u"hollowStar5";
  static constexpr XMLCh ENUM_symbol_hollowStar6[] = u"hollowStar6";
  static constexpr XMLCh ENUM_symbol_hollowStar7[] = u"hollowStar7";
  static constexpr XMLCh ENUM_symbol_hollowStar8[] = u"hollowStar8";
  static constexpr XMLCh ENUM_symbol_hollowStar9[] = u"hollowStar9";
  static constexpr XMLCh ENUM_symbol_hollowStar10[] = u"hollowStar10";
  static constexpr XMLCh ENUM_symbol_flower3[] = u"flower3";
  static constexpr XMLCh ENUM_symbol_flower4[] = u"flower4";
  static constexpr XMLCh ENUM_symbol_flower5[] = u"flower5";
  static constexpr XMLCh ENUM_symbol_flower6[] = u"flower6";
  static constexpr XMLCh ENUM_symbol_flower7[] = u"flower7";
  static constexpr XMLCh ENUM_symbol_flower8[] = u"flower8";
  static constexpr XMLCh ENUM_symbol_flower9[] = u"flower9";
  static constexpr XMLCh ENUM_symbol_flower10[] = u"flower10";
  static constexpr XMLCh ENUM_symbol_triangle[] = u"triangle";
  static constexpr XMLCh ENUM_symbol_pentagon[] = u"pentagon";
  static constexpr XMLCh ENUM_symbol_hexagon[] = u"hexagon";
  static constexpr XMLCh ENUM_symbol_heptagon[] = u"heptagon";
  static constexpr XMLCh ENUM_symbol_octagon[] = u"octagon";
  static constexpr XMLCh ENUM_symbol_nonagon[] = u"nonagon";
  static constexpr XMLCh ENUM_symbol_decagon[] = u"decagon";
  static constexpr XMLCh ENUM_symbol_hollowTriangle[] = u"hollowTriangle";
  static constexpr XMLCh ENUM_symbol_hollowPentagon[] = u"hollowPentagon";
  static constexpr XMLCh ENUM_symbol_hollowHexagon[] = u"hollowHexagon";
  static constexpr XMLCh ENUM_symbol_hollowHeptagon[] = u"hollowHeptagon";
  static constexpr XMLCh ENUM_symbol_hollowOctagon[] = u"hollowOctagon";
  static constexpr XMLCh ENUM_symbol_hollowNonagon[] = u"hollowNonagon";
  static constexpr XMLCh ENUM_symbol_hollowDecagon[] = u"hollowDecagon";
  static constexpr XMLCh ENUM_symbol_hollowRoundRectangle[] = u"hollowRoundRectangle";
  static constexpr XMLCh ENUM_symbol_elbow[] = u"elbow";
  static constexpr XMLCh ENUM_symbol_elbowArrow[] = u"elbowArrow";
  static constexpr XMLCh ENUM_symbol_arc[] = u"arc";
  static constexpr XMLCh ENUM_symbol_arcDown[] = u"arcDown";
  static constexpr XMLCh ENUM_symbol_roundRectangle[] = u"roundRectangle";

  static constexpr XMLCh ENUM_background_method_tile[] = u"tile";
  static constexpr XMLCh ENUM_background_method_stretch[] = u"stretch";
  static constexpr XMLCh ENUM_background_method_zoom[] = u"zoom";

  static constexpr XMLCh ENUM_border_style_solid[] = u"solid";
  static constexpr XMLCh ENUM_border_style_dashed[] = u"dashed";
  static constexpr XMLCh ENUM_border_style_thick[] = u"thick";
  static constexpr XMLCh ENUM_border_style_thin[] = u"thin";
  static constexpr XMLCh ENUM_border_style_double[] = u"double";

  static constexpr XMLCh ENUM_font_underline_underline[] = u"underline";

  static constexpr XMLCh ENUM_labelInside_preferred[] = u"preferred";

  static constexpr XMLCh ENUM_labelLocationHorizontal_positive[] = u"positive";
  static constexpr XMLCh ENUM_labelLocationHorizontal_negative[] = u"negative";

  static constexpr XMLCh ENUM_labelLocationVertical_positive[] = u"positive";
  static constexpr XMLCh ENUM_labelLocationVertical_negative[] = u"negative";

  static constexpr XMLCh ENUM_textAlignment_decimal[] = u"decimal";
  static constexpr XMLCh ENUM_textAlignment_mixed[] = u"mixed";

  // Enumerations

  enum ENUM_gradient_method : int {
    gradient_method_unset = 0,
    gradient_method_linear = 1,
    gradient_method_radial = 2,
  };

  enum ENUM_stroke_decoration : int {
    stroke_decoration_unset = 0,
    stroke_decoration_etchLowered = 1,
    stroke_decoration_etchRaised = 2,
    stroke_decoration_bevel = 3,
  };

  enum ENUM_stroke_linecap : int {
    stroke_linecap_unset = 0,
    stroke_linecap_round = 1,
    stroke_linecap_square = 2,
    stroke_linecap_butt = 3,
  };

  enum ENUM_symbol : int {
    symbol_unset = 0,
    symbol_ibeam = 1,
    symbol_bowtie = 2,
    symbol_hollowBowtie = 3,
    symbol_flower = 4,
    symbol_plus = 5,
    symbol_polygon = 6,
    symbol_cross = 7,
    symbol_circle = 8,
    symbol_hollowCircle = 9,
    symbol_star = 10,
    symbol_hollowStar = 11,
    symbol_square = 12,
    symbol_hollowSquare = 13,
    symbol_acrossDown = 14,
    symbol_acrossDownAcross = 15,
    symbol_acrossDownArrow = 16,
    symbol_acrossDownAcrossArrow = 17,
    symbol_downAcross = 18,
    symbol_downAcrossDown = 19,
    symbol_downAcrossArrow = 20,
    symbol_downAcrossDownArrow = 21,
    symbol_arrow = 22,
    symbol_line = 23,
    symbol_male = 24,
    symbol_female = 25,
    symbol_star3 = 26,
    symbol_star4 = 27,
    symbol_star5 = 28,
    symbol_star6 = 29,
    symbol_star7 = 30,
    symbol_star8 = 31,
    symbol_star9 = 32,
    symbol_star10 = 33,
    symbol_hollowStar3 = 34,
    symbol_hollowStar4 = 35,
    symbol_hollowStar5 = 36,
    symbol_hollowStar6 = 37,
    symbol_hollowStar7 = 38,
    symbol_hollowStar8 = 39,
    symbol_hollowStar9 = 40,
    symbol_hollowStar10 = 41,
    symbol_flower3 = 42,
    symbol_flower4 = 43,
    symbol_flower5 = 44,
    symbol_flower6 = 45,
    symbol_flower7 = 46,
    symbol_flower8 = 47,
    symbol_flower9 = 48,
    symbol_flower10 = 49,
    symbol_triangle = 50,
    symbol_pentagon = 51,
    symbol_hexagon = 52,
    symbol_heptagon = 53,
    symbol_octagon = 54,
    symbol_nonagon = 55,
    symbol_decagon = 56,
    symbol_hollowTriangle = 57,
    symbol_hollowPentagon = 58,
    symbol_hollowHexagon = 59,
    symbol_hollowHeptagon = 60,
    symbol_hollowOctagon = 61,
    symbol_hollowNonagon = 62,
    symbol_hollowDecagon = 63,
    symbol_hollowRoundRectangle = 64,
    symbol_elbow = 65,
    symbol_elbowArrow = 66,
    symbol_arc = 67,
    symbol_arcDown = 68,
    symbol_roundRectangle = 69,
    symbol_none = 70,
  };

  enum ENUM_background_method : int {
    background_method_unset = 0,
    background_method_tile = 1,
    background_method_stretch = 2,
    background_method_zoom = 3,
    background_method_center = 4,
    background_method_left = 5,
    background_method_right = 6,
    background_method_top = 7,
    background_method_bottom = 8,
  };

  enum ENUM_border_style : int {
    border_style_unset = 0,
    border_style_none = 1,
    border_style_normal = 2,
    border_style_solid = 3,
    border_style_dashed = 4,
    border_style_thick = 5,
    border_style_thin = 6,
    border_style_double = 7,
  };

  enum ENUM_font_style : int {
    font_style_unset = 0,
    font_style_regular = 1,
    font_style_italic = 2,
  };

  enum ENUM_font_weight : int {
    font_weight_unset = 0,
    font_weight_regular = 1,
    font_weight_bold = 2,
  };

  enum ENUM_font_underline : int {
    font_underline_unset = 0,
    font_underline_none = 1,
    font_underline_underline = 2,
  };

  enum ENUM_labelInside : int {
    labelInside_unset = 0,
    labelInside_true = 1,
    labelInside_false = 2,
    labelInside_preferred = 3,
  };

  enum ENUM_labelLocationHorizontal : int {
    labelLocationHorizontal_unset = 0,
    labelLocationHorizontal_center = 1,
    labelLocationHorizontal_positive = 2,
    labelLocationHorizontal_negative = 3,
  };

  enum ENUM_labelLocationVertical : int {
    labelLocationVertical_unset = 0,
    labelLocationVertical_center = 1,
    labelLocationVertical_positive = 2,
    labelLocationVertical_negative = 3,
  };

  enum ENUM_textAlignment : int {
    textAlignment_unset = 0,
    textAlignment_left = 1,
    textAlignment_right = 2,
    textAlignment_center = 3,
    textAlignment_decimal = 4,
    textAlignment_mixed = 5,
  };

  explicit OrbStyle(xercesc::DOMElement* element);
  ~OrbStyle() override;

  // Identity

  const XMLCh* getId() const;
  void setId(const XMLCh* id);
  void removeId();

  // Colour and opacity

  /// A colour as text, and a second one.
  const XMLCh* getColor() const;
  void setColor(const XMLCh* color);
  bool isColorPresent() const;
  void removeColor();

  const XMLCh* getColor2() const;
  void setColor2(const XMLCh* color2);
  bool isColor2Present() const;
  void removeColor2();

  /// Any text, where opacity2 takes a number.
  const XMLCh* getOpacity() const;
  void setOpacity(const XMLCh* opacity);
  bool isOpacityPresent() const;
  void removeOpacity();

  /// From 0.0 to 1.0; the setter writes no other value.
  double getOpacity2() const;
  void setOpacity2(double opacity2);
  bool isOpacity2Present() const;
  void removeOpacity2();

  /// A colour by its parts, and a second one.
  double getHue() const;
  void setHue(double hue);
  bool isHuePresent() const;
  void removeHue();

  double getSaturation() const;
  void setSaturation(double saturation);
  bool isSaturationPresent() const;
  void removeSaturation();

  double getBrightness() const;
  void setBrightness(double brightness);
  bool isBrightnessPresent() const;
  void removeBrightness();

  double getHue2() const;
  void setHue2(double hue2);
  bool isHue2Present() const;
  void removeHue2();

  double getSaturation2() const;
  void setSaturation2(double saturation2);
  bool isSaturation2Present() const;
  void removeSaturation2();

  double getBrightness2() const;
  void setBrightness2(double brightness2);
  bool isBrightness2Present() const;
  void removeBrightness2();

  /// The colours of areas and of lines, with their opacities. They can be read and removed, but nothing writes them.
  const XMLCh* getFill() const;
  bool isFillPresent() const;
  void removeFill();

  const XMLCh* getStroke() const;
  bool isStrokePresent() const;
  void removeStroke();

  const XMLCh* getFill_opacity() const;
  bool isFill_opacityPresent() const;
  void removeFill_opacity();

  const XMLCh* getStroke_opacity() const;
  bool isStroke_opacityPresent() const;
  void removeStroke_opacity();

  /// The number of a fill pattern.
  unsigned int getPattern() const;
  void setPattern(unsigned int pattern);
  bool isPatternPresent() const;
  void removePattern();

  // Gradient

  ENUM_gradient_method getGradient_method() const;
  void setGradient_method(ENUM_gradient_method gradientMethod);
  bool isGradient_methodPresent() const;
  void removeGradient_method();

  const XMLCh* getGradient_color() const;
  void setGradient_color(const XMLCh* gradientColor);
  bool isGradient_colorPresent() const;
  void removeGradient_color();

  double getGradient_focus() const;
  void setGradient_focus(double gradientFocus);
  bool isGradient_focusPresent() const;
  void removeGradient_focus();

  double getGradient_angle() const;
  void setGradient_angle(double gradientAngle);
  bool isGradient_anglePresent() const;
  void removeGradient_angle();

  double getGradient_size() const;
  void setGradient_size(double gradientSize);
  bool isGradient_sizePresent() const;
  void removeGradient_size();

  /// From 0.0 to 1.0; the setter writes no other value.
  double getGradient_opacity() const;
  void setGradient_opacity(double gradientOpacity);
  bool isGradient_opacityPresent() const;
  void removeGradient_opacity();

  /// True unless the text is "false": an absent one reads as true.
  bool getGradient_isInverted() const;
  void setGradient_isInverted(bool gradientIsInverted);
  bool isGradient_isInvertedPresent() const;
  void removeGradient_isInverted();

  // Shadow

  const XMLCh* getShadow_color() const;
  void setShadow_color(const XMLCh* shadowColor);
  bool isShadow_colorPresent() const;
  void removeShadow_color();

  /// From 0.0 to 1.0; the setter writes no other value.
  double getShadow_opacity() const;
  void setShadow_opacity(double shadowOpacity);
  bool isShadow_opacityPresent() const;
  void removeShadow_opacity();

  /// How far the shadow is moved, each a length.
  const XMLCh* getShadow_dx() const;
  void setShadow_dx(const XMLCh* shadowDx);
  bool isShadow_dxPresent() const;
  void removeShadow_dx();

  const XMLCh* getShadow_dy() const;
  void setShadow_dy(const XMLCh* shadowDy);
  bool isShadow_dyPresent() const;
  void removeShadow_dy();

  // Stroke

  const XMLCh* getStroke_dasharray() const;
  void setStroke_dasharray(const XMLCh* strokeDasharray);
  bool isStroke_dasharrayPresent() const;
  void removeStroke_dasharray();

  const XMLCh* getStroke_width() const;
  void setStroke_width(const XMLCh* strokeWidth);
  bool isStroke_widthPresent() const;
  void removeStroke_width();

  ENUM_stroke_decoration getStroke_decoration() const;
  void setStroke_decoration(ENUM_stroke_decoration strokeDecoration);
  bool isStroke_decorationPresent() const;
  void removeStroke_decoration();

  ENUM_stroke_linecap getStroke_linecap() const;
  void setStroke_linecap(ENUM_stroke_linecap strokeLinecap);
  bool isStroke_linecapPresent() const;
  void removeStroke_linecap();

  // Glyph

  /// A triple, which can be read and written as one text too.
  const XMLCh* getSize() const;
  void getSize(ChartString& preferred, ChartString& minimum, ChartString& maximum) const;
  void setSize(const XMLCh* size);
  void setSize(const XMLCh* preferred, const XMLCh* minimum, const XMLCh* maximum);
  bool isSizePresent() const;
  void removeSize();

  /// The name of a symbol: any text, of which the enumeration knows seventy. It reads another as 0, and "none" as 70.
  const XMLCh* getSymbol() const;
  ENUM_symbol getSymbolEnum() const;
  void setSymbol(const XMLCh* symbol);
  void setSymbol(ENUM_symbol symbol);
  bool isSymbolPresent() const;
  void removeSymbol();

  /// From 2 to 100; the setter writes no other value.
  unsigned int getGlyph_sides() const;
  void setGlyph_sides(unsigned int glyphSides);
  bool isGlyph_sidesPresent() const;
  void removeGlyph_sides();

  double getGlyph_angle() const;
  void setGlyph_angle(double glyphAngle);
  bool isGlyph_anglePresent() const;
  void removeGlyph_angle();

  /// Above 0.0; the setter writes no other value.
  double getGlyph_aspect() const;
  void setGlyph_aspect(double glyphAspect);
  bool isGlyph_aspectPresent() const;
  void removeGlyph_aspect();

  // Background

  /// How the image fills the background.
  ENUM_background_method getBackground_method() const;
  void setBackground_method(ENUM_background_method backgroundMethod);
  bool isBackground_methodPresent() const;
  void removeBackground_method();

  const XMLCh* getBackground_image() const;
  void setBackground_image(const XMLCh* backgroundImage);
  bool isBackground_imagePresent() const;
  void removeBackground_image();

  // Box

  /// Five attributes that know nothing of each other: no side reads the short form, and the short form sets no side.
  const XMLCh* getMargin() const;
  void setMargin(const XMLCh* margin);
  bool isMarginPresent() const;
  void removeMargin();

  const XMLCh* getMargin_left() const;
  void setMargin_left(const XMLCh* marginLeft);
  bool isMargin_leftPresent() const;
  void removeMargin_left();

  const XMLCh* getMargin_right() const;
  void setMargin_right(const XMLCh* marginRight);
  bool isMargin_rightPresent() const;
  void removeMargin_right();

  const XMLCh* getMargin_top() const;
  void setMargin_top(const XMLCh* marginTop);
  bool isMargin_topPresent() const;
  void removeMargin_top();

  const XMLCh* getMargin_bottom() const;
  void setMargin_bottom(const XMLCh* marginBottom);
  bool isMargin_bottomPresent() const;
  void removeMargin_bottom();

  /// Five attributes, as the margins.
  const XMLCh* getPadding() const;
  void setPadding(const XMLCh* padding);
  bool isPaddingPresent() const;
  void removePadding();

  const XMLCh* getPadding_left() const;
  void setPadding_left(const XMLCh* paddingLeft);
  bool isPadding_leftPresent() const;
  void removePadding_left();

  const XMLCh* getPadding_right() const;
  void setPadding_right(const XMLCh* paddingRight);
  bool isPadding_rightPresent() const;
  void removePadding_right();

  const XMLCh* getPadding_top() const;
  void setPadding_top(const XMLCh* paddingTop);
  bool isPadding_topPresent() const;
  void removePadding_top();

  const XMLCh* getPadding_bottom() const;
  void setPadding_bottom(const XMLCh* paddingBottom);
  bool isPadding_bottomPresent() const;
  void removePadding_bottom();

  /// A triple.
  void getWidth(ChartString& preferred, ChartString& minimum, ChartString& maximum) const;
  void setWidth(const XMLCh* preferred, const XMLCh* minimum, const XMLCh* maximum);
  bool isWidthPresent() const;
  void removeWidth();

  /// A triple, but the setter keeps fields of the width, not of the old height: with a width of "5pt;1pt;9pt",
  /// setHeight(u"10pt", nullptr, nullptr) writes "10pt;1pt;9pt".
  void getHeight(ChartString& preferred, ChartString& minimum, ChartString& maximum) const;
  void setHeight(const XMLCh* preferred, const XMLCh* minimum, const XMLCh* maximum);
  bool isHeightPresent() const;
  void removeHeight();

  // Border

  /// The lines of the four sides. One of the two setters takes any text; a text that is no keyword reads as 0. The two
  /// is-present operations do the same.
  ENUM_border_style getBorder_left() const;
  void setBorder_left(const XMLCh* style);
  void setBorder_left(ENUM_border_style style);
  bool isBorder_leftPresent() const;
  bool isBorderLeftPresent() const;
  void removeBorder_left();

  ENUM_border_style getBorder_right() const;
  void setBorder_right(const XMLCh* style);
  void setBorder_right(ENUM_border_style style);
  bool isBorder_rightPresent() const;
  bool isBorderRightPresent() const;
  void removeBorder_right();

  ENUM_border_style getBorder_top() const;
  void setBorder_top(const XMLCh* style);
  void setBorder_top(ENUM_border_style style);
  bool isBorder_topPresent() const;
  bool isBorderTopPresent() const;
  void removeBorder_top();

  ENUM_border_style getBorder_bottom() const;
  void setBorder_bottom(const XMLCh* style);
  void setBorder_bottom(ENUM_border_style style);
  bool isBorder_bottomPresent() const;
  bool isBorderBottomPresent() const;
  void removeBorder_bottom();

  const XMLCh* getBorder_left_color() const;
  void setBorder_left_color(const XMLCh* borderLeftColor);
  bool isBorder_left_colorPresent() const;
  void removeBorder_left_color();

  const XMLCh* getBorder_right_color() const;
  void setBorder_right_color(const XMLCh* borderRightColor);
  bool isBorder_right_colorPresent() const;
  void removeBorder_right_color();

  const XMLCh* getBorder_top_color() const;
  void setBorder_top_color(const XMLCh* borderTopColor);
  bool isBorder_top_colorPresent() const;
  void removeBorder_top_color();

  const XMLCh* getBorder_bottom_color() const;
  void setBorder_bottom_color(const XMLCh* borderBottomColor);
  bool isBorder_bottom_colorPresent() const;
  void removeBorder_bottom_color();

  // Font

  const XMLCh* getFont_family() const;
  void setFont_family(const XMLCh* fontFamily);
  bool isFont_familyPresent() const;
  void removeFont_family();

  /// A triple.
  void getFontSize(ChartString& preferred, ChartString& minimum, ChartString& maximum) const;
  void setFontSize(const XMLCh* preferred, const XMLCh* minimum, const XMLCh* maximum);
  bool isFont_sizePresent() const;
  void removeFont_size();

  ENUM_font_style getFont_style() const;
  void setFont_style(ENUM_font_style fontStyle);
  bool isFont_stylePresent() const;
  void removeFont_style();

  ENUM_font_weight getFont_weight() const;
  void setFont_weight(ENUM_font_weight fontWeight);
  bool isFont_weightPresent() const;
  void removeFont_weight();

  ENUM_font_underline getFont_underline() const;
  void setFont_underline(ENUM_font_underline fontUnderline);
  bool isFont_underlinePresent() const;
  void removeFont_underline();

  // Depth

  const XMLCh* getBevel_size() const;
  void setBevel_size(const XMLCh* bevelSize);
  bool isBevel_sizePresent() const;
  void removeBevel_size();

  const XMLCh* getDepth() const;
  void setDepth(const XMLCh* depth);
  bool isDepthPresent() const;
  void removeDepth();

  /// True unless the text is "false": an absent one reads as true.
  bool getDepthRelativeToWidth() const;
  void setDepthRelativeToWidth(bool depthRelativeToWidth);
  bool isDepthRelativeToWidthPresent() const;
  void removeDepthRelativeToWidth();

  // Text and labels

  double getLabelAngle() const;
  void setLabelAngle(double labelAngle);
  bool isLabelAnglePresent() const;
  void removeLabelAngle();

  /// Not a boolean: true, false and preferred are 1, 2 and 3.
  ENUM_labelInside getLabelInside() const;
  void setLabelInside(ENUM_labelInside labelInside);
  bool isLabelInsidePresent() const;
  void removeLabelInside();

  ENUM_labelLocationHorizontal getLabelLocationHorizontal() const;
  void setLabelLocationHorizontal(ENUM_labelLocationHorizontal labelLocationHorizontal);
  bool isLabelLocationHorizontalPresent() const;
  void removeLabelLocationHorizontal();

  ENUM_labelLocationVertical getLabelLocationVertical() const;
  void setLabelLocationVertical(ENUM_labelLocationVertical labelLocationVertical);
  bool isLabelLocationVerticalPresent() const;
  void removeLabelLocationVertical();

  ENUM_textAlignment getTextAlignment() const;
  void setTextAlignment(ENUM_textAlignment textAlignment);
  bool isTextAlignmentPresent() const;
  void removeTextAlignment();

  const XMLCh* getDecimal_offset() const;
  void setDecimal_offset(const XMLCh* decimalOffset);
  bool isDecimal_offsetPresent() const;
  void removeDecimal_offset();

  /// These three are true unless the text is "false": absent ones read as true.
  bool getIgnoreNewLines() const;
  void setIgnoreNewLines(bool ignoreNewLines);
  bool isIgnoreNewLinesPresent() const;
  void removeIgnoreNewLines();

  bool getTwoCharacterVertical() const;
  void setTwoCharacterVertical(bool twoCharacterVertical);
  bool isTwoCharacterVerticalPresent() const;
  void removeTwoCharacterVertical();

  bool getBaselineRotated() const;
  void setBaselineRotated(bool baselineRotated);
  bool isBaselineRotatedPresent() const;
  void removeBaselineRotated();

  const XMLCh* getMaxAttachedTextWidth() const;
  void setMaxAttachedTextWidth(const XMLCh* maxAttachedTextWidth);
  bool isMaxAttachedTextWidthPresent() const;
  void removeMaxAttachedTextWidth();

  const XMLCh* getMaxAttachedTextHeight() const;
  void setMaxAttachedTextHeight(const XMLCh* maxAttachedTextHeight);
  bool isMaxAttachedTextHeightPresent() const;
  void removeMaxAttachedTextHeight();

  /// These two are true for "true" alone: absent ones read as false.
  bool getText_fit() const;
  void setText_fit(bool textFit);
  bool isText_fitPresent() const;
  void removeText_fit();

  bool getText_rotate() const;
  void setText_rotate(bool textRotate);
  bool isText_rotatePresent() const;
  void removeText_rotate();

  /// True unless the text is "false": an absent one reads as true.
  bool getVisible() const;
  void setVisible(bool visible);
  bool isVisiblePresent() const;
  void removeVisible();

  // Children

  /// The styles that the style holds.
  OrbStyle* addStyle();
  std::vector<OrbStyle*> getStyles() const;
  unsigned int removeStyles();

  /// Where the style came from. There may be several; the getter gives the first.
  OrbExtensionStyle* addExtension();
  OrbExtensionStyle* getExtension() const;
  unsigned int removeExtensions();

  // Triples

  /// Appends the text up to the first ";" to `preferred`, up to the second to `minimum` and up to the third to
  /// `maximum`, none of which is cleared first; what follows the third is ignored.
  void getPreferredMinMax(const ChartString& text, ChartString& preferred, ChartString& minimum,
                          ChartString& maximum) const;

private:
  struct Children;
  std::unique_ptr<Children> children_;
};
