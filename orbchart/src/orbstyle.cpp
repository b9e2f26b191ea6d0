// A named bundle of visual properties.
#include "orbstyle.h"

#include "attribute.h"
#include "attributevalue.h"
#include "chartstring.h"
#include "family.h"
#include "keyword.h"
#include "orbextensionstyle.h"
#include "orbuni.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <string>

using namespace orbchart;

namespace {

constexpr Keyword<OrbStyle::ENUM_border_style> borderStyles[] = {
    {OrbStyle::border_style_none, OrbUni::_none},
    {OrbStyle::border_style_normal, OrbUni::_normal},
    {OrbStyle::border_style_solid, OrbStyle::ENUM_border_style_solid},
    {OrbStyle::border_style_dashed, OrbStyle::ENUM_border_style_dashed},
    {OrbStyle::border_style_thick, OrbStyle::ENUM_border_style_thick},
    {OrbStyle::border_style_thin, OrbStyle::ENUM_border_style_thin},
    {OrbStyle::border_style_double, OrbStyle::ENUM_border_style_double},
};

constexpr Id id;
constexpr Text color{OrbUni::_color};
constexpr Text color2{OrbUni::_color2};
constexpr Text opacity{OrbUni::_opacity};
constexpr Double opacity2{OrbUni::_opacity2};
constexpr Double hue{OrbStyle::_UTF_hue};
constexpr Double saturation{OrbStyle::_UTF_saturation};
constexpr Double brightness{OrbStyle::_UTF_brightness};
constexpr Double hue2{OrbStyle::_UTF_hue2};
constexpr Double saturation2{OrbStyle::_UTF_saturation2};
constexpr Double brightness2{OrbStyle::_UTF_brightness2};
constexpr Text fill{OrbUni::_fill};
constexpr Text stroke{OrbUni::_stroke};
constexpr Text fill_opacity{OrbUni::_fill_opacity};
constexpr Text stroke_opacity{OrbUni::_stroke_opacity};
constexpr Unsigned pattern{OrbUni::_pattern};
constexpr Keywords gradient_method{OrbUni::_gradient_method,
                                   OrbStyle::gradient_method_unset,
                                   {
                                       {OrbStyle::gradient_method_linear, OrbUni::_linear},
                                       {OrbStyle::gradient_method_radial, OrbStyle::ENUM_gradient_method_radial},
                                   }};
constexpr Text gradient_color{OrbUni::_gradient_color};
constexpr Double gradient_focus{OrbUni::_gradient_focus};
constexpr Double gradient_angle{OrbUni::_gradient_angle};
constexpr Double gradient_size{OrbUni::_gradient_size};
constexpr Double gradient_opacity{OrbUni::_gradient_opacity};
constexpr TrueUnlessFalse gradient_isInverted{OrbUni::_gradient_isInverted};
constexpr Text shadow_color{OrbUni::_shadow_color};
constexpr Double shadow_opacity{OrbUni::_shadow_opacity};
constexpr Text shadow_dx{OrbUni::_shadow_dx};
constexpr Text shadow_dy{OrbUni::_shadow_dy};
constexpr Text stroke_dasharray{OrbUni::_stroke_dasharray};
constexpr Text stroke_width{OrbUni::_stroke_width};
constexpr Keywords stroke_decoration{
    OrbUni::_stroke_decoration,
    OrbStyle::stroke_decoration_unset,
    {
        {OrbStyle::stroke_decoration_etchLowered, OrbStyle::ENUM_stroke_decoration_etchLowered},
        {OrbStyle::stroke_decoration_etchRaised, OrbStyle::ENUM_stroke_decoration_etchRaised},
        {OrbStyle::stroke_decoration_bevel, OrbStyle::ENUM_stroke_decoration_bevel},
    }};
constexpr Keywords stroke_linecap{OrbUni::_stroke_linecap,
                                  OrbStyle::stroke_linecap_unset,
                                  {
                                      {OrbStyle::stroke_linecap_round, OrbStyle::ENUM_stroke_linecap_round},
                                      {OrbStyle::stroke_linecap_square, OrbUni::_square},
                                      {OrbStyle::stroke_linecap_butt, OrbStyle::ENUM_stroke_linecap_butt},
                                  }};
constexpr Text size{OrbUni::_size};
constexpr Keywords symbol{OrbUni::_symbol,
                          OrbStyle::symbol_unset,
                          {
                              {OrbStyle::symbol_ibeam, OrbUni::_ibeam},
                              {OrbStyle::symbol_bowtie, OrbUni::_bowtie},
                              {OrbStyle::symbol_hollowBowtie, OrbStyle::ENUM_symbol_hollowBowtie},
                              {OrbStyle::symbol_flower, OrbUni::_flower},
                              {OrbStyle::symbol_plus, OrbUni::_plus},
                              {OrbStyle::symbol_polygon, OrbUni::_polygon},
                              {OrbStyle::symbol_cross, OrbUni::_cross},
                              {OrbStyle::symbol_circle, OrbUni::_circle},
                              {OrbStyle::symbol_hollowCircle, OrbStyle::ENUM_symbol_hollowCircle},
                              {OrbStyle::symbol_star, OrbUni::_star},
                              {OrbStyle::symbol_hollowStar, OrbStyle::ENUM_symbol_hollowStar},
                              {OrbStyle::symbol_square, OrbUni::_square},
                              {OrbStyle::symbol_hollowSquare, OrbStyle::ENUM_symbol_hollowSquare},
                              {OrbStyle::symbol_acrossDown, OrbStyle::ENUM_symbol_acrossDown},
                              {OrbStyle::symbol_acrossDownAcross, OrbStyle::ENUM_symbol_acrossDownAcross},
                              {OrbStyle::symbol_acrossDownArrow, OrbStyle::ENUM_symbol_acrossDownArrow},
                              {OrbStyle::symbol_acrossDownAcrossArrow, OrbStyle::ENUM_symbol_acrossDownAcrossArrow},
                              {OrbStyle::symbol_downAcross, OrbStyle::ENUM_symbol_downAcross},
                              {OrbStyle::symbol_downAcrossDown, OrbStyle::ENUM_symbol_downAcrossDown},
                              {OrbStyle::symbol_downAcrossArrow, OrbStyle::ENUM_symbol_downAcrossArrow},
                              {OrbStyle::symbol_downAcrossDownArrow, OrbStyle::ENUM_symbol_downAcrossDownArrow},
                              {OrbStyle::symbol_arrow, OrbUni::_arrow},
                              {OrbStyle::symbol_line, OrbUni::_line},
                              {OrbStyle::symbol_male, OrbUni::_male},
                              {OrbStyle::symbol_female, OrbUni::_female},
                              {OrbStyle::symbol_star3, OrbStyle::ENUM_symbol_star3},
                              {OrbStyle::symbol_star4, OrbStyle::ENUM_symbol_star4},
                              {OrbStyle::symbol_star5, OrbStyle::ENUM_symbol_star5},
                              {OrbStyle::symbol_star6, OrbStyle::ENUM_symbol_star6},
                              {OrbStyle::symbol_star7, OrbStyle::ENUM_symbol_star7},
                              {OrbStyle::symbol_star8, OrbStyle::ENUM_symbol_star8},
                              {OrbStyle::symbol_star9, OrbStyle::ENUM_symbol_star9},
                              {OrbStyle::symbol_star10, OrbStyle::ENUM_symbol_star10},
                              {OrbStyle::symbol_hollowStar3, OrbStyle::ENUM_symbol_hollowStar3},
                              {OrbStyle::symbol_hollowStar4, OrbStyle::ENUM_symbol_hollowStar4},
                              {OrbStyle::symbol_hollowStar5, OrbStyle::ENUM_symbol_hollowStar5},
                              {OrbStyle::symbol_hollowStar6, OrbStyle::ENUM_symbol_hollowStar6},
                              {OrbStyle::symbol_hollowStar7, OrbStyle::ENUM_symbol_hollowStar7},
                              {OrbStyle::symbol_hollowStar8, OrbStyle::ENUM_symbol_hollowStar8},
                              {OrbStyle::symbol_hollowStar9, OrbStyle::ENUM_symbol_hollowStar9},
                              {OrbStyle::symbol_hollowStar10, OrbStyle::ENUM_symbol_hollowStar10},
                              {OrbStyle::symbol_flower3, OrbStyle::ENUM_symbol_flower3},
                              {OrbStyle::symbol_flower4, OrbStyle::ENUM_symbol_flower4},
                              {OrbStyle::symbol_flower5, OrbStyle::ENUM_symbol_flower5},
                              {OrbStyle::symbol_flower6, OrbStyle::ENUM_symbol_flower6},
                              {OrbStyle::symbol_flower7, OrbStyle::ENUM_symbol_flower7},
                              {OrbStyle::symbol_flower8, OrbStyle::ENUM_symbol_flower8},
                              {OrbStyle::symbol_flower9, OrbStyle::ENUM_symbol_flower9},
                              {OrbStyle::symbol_flower10, OrbStyle::ENUM_symbol_flower10},
                              {OrbStyle::symbol_triangle, OrbStyle::ENUM_symbol_triangle},
                              {OrbStyle::symbol_pentagon, OrbStyle::ENUM_symbol_pentagon},
                              {OrbStyle::symbol_hexagon, OrbStyle::ENUM_symbol_hexagon},
                              {OrbStyle::symbol_heptagon, OrbStyle::ENUM_symbol_heptagon},
                              {OrbStyle::symbol_octagon, OrbStyle::ENUM_symbol_octagon},
                              {OrbStyle::symbol_nonagon, OrbStyle::ENUM_symbol_nonagon},
                              {OrbStyle::symbol_decagon, OrbStyle::ENUM_symbol_decagon},
                              {OrbStyle::symbol_hollowTriangle, OrbStyle::ENUM_symbol_hollowTriangle},
                              {OrbStyle::symbol_hollowPentagon, OrbStyle::ENUM_symbol_hollowPentagon},
                              {OrbStyle::symbol_hollowHexagon, OrbStyle::ENUM_symbol_hollowHexagon},
                              {OrbStyle::symbol_hollowHeptagon, OrbStyle::ENUM_symbol_hollowHeptagon},
                              {OrbStyle::symbol_hollowOctagon, OrbStyle::ENUM_symbol_hollowOctagon},
                              {OrbStyle::symbol_hollowNonagon, OrbStyle::ENUM_symbol_hollowNonagon},
                              {OrbStyle::symbol_hollowDecagon, OrbStyle::ENUM_symbol_hollowDecagon},
                              {OrbStyle::symbol_hollowRoundRectangle, OrbStyle::ENUM_symbol_hollowRoundRectangle},
                              {OrbStyle::symbol_elbow, OrbStyle::ENUM_symbol_elbow},
                              {OrbStyle::symbol_elbowArrow, OrbStyle::ENUM_symbol_elbowArrow},
                              {OrbStyle::symbol_arc, OrbStyle::ENUM_symbol_arc},
                              {OrbStyle::symbol_arcDown, OrbStyle::ENUM_symbol_arcDown},
                              {OrbStyle::symbol_roundRectangle, OrbStyle::ENUM_symbol_roundRectangle},
                              {OrbStyle::symbol_none, OrbUni::_none},
                          },
                          OtherTexts::allowed};
constexpr Unsigned glyph_sides{OrbUni::_glyph_sides};
constexpr Double glyph_angle{OrbUni::_glyph_angle};
constexpr Double glyph_aspect{OrbUni::_glyph_aspect};
constexpr Keywords background_method{
    OrbUni::_background_method,
    OrbStyle::background_method_unset,
    {
        {OrbStyle::background_method_tile, OrbStyle::ENUM_background_method_tile},
        {OrbStyle::background_method_stretch, OrbStyle::ENUM_background_method_stretch},
        {OrbStyle::background_method_zoom, OrbStyle::ENUM_background_method_zoom},
        {OrbStyle::background_method_center, OrbUni::_center},
        {OrbStyle::background_method_left, OrbUni::_left},
        {OrbStyle::background_method_right, OrbUni::_right},
        {OrbStyle::background_method_top, OrbUni::_top},
        {OrbStyle::background_method_bottom, OrbUni::_bottom},
    }};
constexpr Text background_image{OrbUni::_background_image};
constexpr Text margin{OrbUni::_margin};
constexpr Text margin_left{OrbStyle::_UTF_margin_left};
constexpr Text margin_right{OrbStyle::_UTF_margin_right};
constexpr Text margin_top{OrbStyle::_UTF_margin_top};
constexpr Text margin_bottom{OrbStyle::_UTF_margin_bottom};
constexpr Text padding{OrbUni::_padding};
constexpr Text padding_left{OrbStyle::_UTF_padding_left};
constexpr Text padding_right{OrbStyle::_UTF_padding_right};
constexpr Text padding_top{OrbStyle::_UTF_padding_top};
constexpr Text padding_bottom{OrbStyle::_UTF_padding_bottom};
constexpr Text width{OrbUni::_width};
constexpr Text height{OrbUni::_height};
constexpr Keywords border_left{OrbUni::_border_left, OrbStyle::border_style_unset, borderStyles, OtherTexts::allowed};
constexpr Keywords border_right{OrbUni::_border_right, OrbStyle::border_style_unset, borderStyles, OtherTexts::allowed};
constexpr Keywords border_top{OrbUni::_border_top, OrbStyle::border_style_unset, borderStyles, OtherTexts::allowed};
constexpr Keywords border_bottom{OrbUni::_border_bottom, OrbStyle::border_style_unset, borderStyles,
                                 OtherTexts::allowed};
constexpr Text border_left_color{OrbStyle::_UTF_border_left_color};
constexpr Text border_right_color{OrbStyle::_UTF_border_right_color};
constexpr Text border_top_color{OrbStyle::_UTF_border_top_color};
constexpr Text border_bottom_color{OrbStyle::_UTF_border_bottom_color};
constexpr Text font_family{OrbUni::_font_family};
constexpr Text font_size{OrbUni::_font_size};
constexpr Keywords font_style{OrbUni::_font_style,
                              OrbStyle::font_style_unset,
                              {
                                  {OrbStyle::font_style_regular, OrbUni::_regular},
                                  {OrbStyle::font_style_italic, OrbUni::_italic},
                              }};
constexpr Keywords font_weight{OrbUni::_font_weight,
                               OrbStyle::font_weight_unset,
                               {
                                   {OrbStyle::font_weight_regular, OrbUni::_regular},
                                   {OrbStyle::font_weight_bold, OrbUni::_bold},
                               }};
constexpr Keywords font_underline{OrbStyle::_UTF_font_underline,
                                  OrbStyle::font_underline_unset,
                                  {
                                      {OrbStyle::font_underline_none, OrbUni::_none},
                                      {OrbStyle::font_underline_underline, OrbStyle::ENUM_font_underline_underline},
                                  }};
constexpr Text bevel_size{OrbUni::_bevel_size};
constexpr Text depth{OrbUni::_depth};
constexpr TrueUnlessFalse depthRelativeToWidth{OrbUni::_depthRelativeToWidth};
constexpr Double labelAngle{OrbUni::_labelAngle};
constexpr Keywords labelInside{OrbUni::_labelInside,
                               OrbStyle::labelInside_unset,
                               {
                                   {OrbStyle::labelInside_true, OrbUni::_true},
                                   {OrbStyle::labelInside_false, OrbUni::_false},
                                   {OrbStyle::labelInside_preferred, OrbStyle::ENUM_labelInside_preferred},
                               }};
constexpr Keywords labelLocationHorizontal{
    OrbUni::_labelLocationHorizontal,
    OrbStyle::labelLocationHorizontal_unset,
    {
        {OrbStyle::labelLocationHorizontal_center, OrbUni::_center},
        {OrbStyle::labelLocationHorizontal_positive, OrbStyle::ENUM_labelLocationHorizontal_positive},
        {OrbStyle::labelLocationHorizontal_negative, OrbStyle::ENUM_labelLocationHorizontal_negative},
    }};
constexpr Keywords labelLocationVertical{
    OrbUni::_labelLocationVertical,
    OrbStyle::labelLocationVertical_unset,
    {
        {OrbStyle::labelLocationVertical_center, OrbUni::_center},
        {OrbStyle::labelLocationVertical_positive, OrbStyle::ENUM_labelLocationVertical_positive},
        {OrbStyle::labelLocationVertical_negative, OrbStyle::ENUM_labelLocationVertical_negative},
    }};
constexpr Keywords textAlignment{OrbStyle::_UTF_textAlignment,
                                 OrbStyle::textAlignment_unset,
                                 {
                                     {OrbStyle::textAlignment_left, OrbUni::_left},
                                     {OrbStyle::textAlignment_right, OrbUni::_right},
                                     {OrbStyle::textAlignment_center, OrbUni::_center},
                                     {OrbStyle::textAlignment_decimal, OrbStyle::ENUM_textAlignment_decimal},
                                     {OrbStyle::textAlignment_mixed, OrbStyle::ENUM_textAlignment_mixed},
                                 }};
constexpr Text decimal_offset{OrbStyle::_UTF_decimal_offset};
constexpr TrueUnlessFalse ignoreNewLines{OrbStyle::_UTF_ignoreNewLines};
constexpr TrueUnlessFalse twoCharacterVertical{OrbStyle::_UTF_twoCharacterVertical};
constexpr TrueUnlessFalse baselineRotated{OrbStyle::_UTF_baselineRotated};
constexpr Text maxAttachedTextWidth{OrbStyle::_UTF_maxAttachedTextWidth};
constexpr Text maxAttachedTextHeight{OrbStyle::_UTF_maxAttachedTextHeight};
constexpr Boolean text_fit{OrbUni::_text_fit};
constexpr Boolean text_rotate{OrbStyle::_UTF_text_rotate};
constexpr TrueUnlessFalse visible{OrbUni::_visible};

using Attributes =
    AttributeList<id, color, color2, opacity, opacity2, hue, saturation, brightness, hue2, saturation2, brightness2,
                  fill, stroke, fill_opacity, stroke_opacity, pattern, gradient_method, gradient_color, gradient_focus,
                  gradient_angle, gradient_size, gradient_opacity, gradient_isInverted, shadow_color, shadow_opacity,
                  shadow_dx, shadow_dy, stroke_dasharray, stroke_width, stroke_decoration, stroke_linecap, size, symbol,
                  glyph_sides, glyph_angle, glyph_aspect, background_method, background_image, margin, margin_left,
                  margin_right, margin_top, margin_bottom, padding, padding_left, padding_right, padding_top,
                  padding_bottom, width, height, border_left, border_right, border_top, border_bottom,
                  border_left_color, border_right_color, border_top_color, border_bottom_color, font_family, font_size,
                  font_style, font_weight, font_underline, bevel_size, depth, depthRelativeToWidth, labelAngle,
                  labelInside, labelLocationHorizontal, labelLocationVertical, textAlignment, decimal_offset,
                  ignoreNewLines, twoCharacterVertical, baselineRotated, maxAttachedTextWidth, maxAttachedTextHeight,
                  text_fit, text_rotate, visible>;

/// Writes a number from 0.0 to 1.0, and no other.
void setShare(OrbStyle& style, const Double& attribute, double share) {
  if (share >= 0.0 && share <= 1.0)
    attribute.set(style, share);
}

/// Writes the three fields of a triple: those given, and for a null or empty one the field of the old text.
void setTriple(OrbStyle& style, const Text& attribute, const XMLCh* oldText, const std::array<const XMLCh*, 3>& given) {
  std::array<ChartString, 3> fields;
  style.getPreferredMinMax(oldText, fields[0], fields[1], fields[2]);
  ChartString text;
  for (std::size_t i = 0; i < fields.size(); ++i) {
    if (i != 0)
      text.append(u';');
    text.append(isEmpty(given[i]) ? fields[i].xc_str() : given[i]);
  }
  attribute.set(style, text.xc_str());
}

using AfterStyles = FamilyList<OrbExtensionStyle>;
using Families = ChildFamilies<FamilyList<StripsIds<OrbStyle>, OrbExtensionStyle>>;

} // namespace

template <> const ElementDescription& orbchart::descriptionOf<OrbStyle>() {
  return elementDescription<OrbStyle, Attributes, Families>;
}

struct OrbStyle::Children : Families {};

OrbStyle::OrbStyle(xercesc::DOMElement* element) : OrbBaseElement(element), children_(new Children) {
  children_->load(*this);
  bind(*this);
}
OrbStyle::~OrbStyle() = default;

// Identity

const XMLCh* OrbStyle::getId() const { return id.get(*this); }
void OrbStyle::setId(const XMLCh* value) { id.set(*this, value); }
void OrbStyle::removeId() { id.remove(*this); }

// Colour and opacity

const XMLCh* OrbStyle::getColor() const { return color.get(*this); }
void OrbStyle::setColor(const XMLCh* value) { color.set(*this, value); }
bool OrbStyle::isColorPresent() const { return color.isPresent(*this); }
void OrbStyle::removeColor() { color.remove(*this); }

const XMLCh* OrbStyle::getColor2() const { return color2.get(*this); }
void OrbStyle::setColor2(const XMLCh* value) { color2.set(*this, value); }
bool OrbStyle::isColor2Present() const { return color2.isPresent(*this); }
void OrbStyle::removeColor2() { color2.remove(*this); }

const XMLCh* OrbStyle::getOpacity() const { return opacity.get(*this); }
void OrbStyle::setOpacity(const XMLCh* value) { opacity.set(*this, value); }
bool OrbStyle::isOpacityPresent() const { return opacity.isPresent(*this); }
void OrbStyle::removeOpacity() { opacity.remove(*this); }

double OrbStyle::getOpacity2() const { return opacity2.get(*this); }
void OrbStyle::setOpacity2(double value) { setShare(*this, opacity2, value); }
bool OrbStyle::isOpacity2Present() const { return opacity2.isPresent(*this); }
void OrbStyle::removeOpacity2() { opacity2.remove(*this); }

double OrbStyle::getHue() const { return hue.get(*this); }
void OrbStyle::setHue(double value) { hue.set(*this, value); }
bool OrbStyle::isHuePresent() const { return hue.isPresent(*this); }
void OrbStyle::removeHue() { hue.remove(*this); }

double OrbStyle::getSaturation() const { return saturation.get(*this); }
void OrbStyle::setSaturation(double value) { saturation.set(*this, value); }
bool OrbStyle::isSaturationPresent() const { return saturation.isPresent(*this); }
void OrbStyle::removeSaturation() { saturation.remove(*this); }

double OrbStyle::getBrightness() const { return brightness.get(*this); }
void OrbStyle::setBrightness(double value) { brightness.set(*this, value); }
bool OrbStyle::isBrightnessPresent() const { return brightness.isPresent(*this); }
void OrbStyle::removeBrightness() { brightness.remove(*this); }

double OrbStyle::getHue2() const { return hue2.get(*this); }
void OrbStyle::setHue2(double value) { hue2.set(*this, value); }
bool OrbStyle::isHue2Present() const { return hue2.isPresent(*this); }
void OrbStyle::removeHue2() { hue2.remove(*this); }

double OrbStyle::getSaturation2() const { return saturation2.get(*this); }
void OrbStyle::setSaturation2(double value) { saturation2.set(*this, value); }
bool OrbStyle::isSaturation2Present() const { return saturation2.isPresent(*this); }
void OrbStyle::removeSaturation2() { saturation2.remove(*this); }

double OrbStyle::getBrightness2() const { return brightness2.get(*this); }
void OrbStyle::setBrightness2(double value) { brightness2.set(*this, value); }
bool OrbStyle::isBrightness2Present() const { return brightness2.isPresent(*this); }
void OrbStyle::removeBrightness2() { brightness2.remove(*this); }

const XMLCh* OrbStyle::getFill() const { return fill.get(*this); }
bool OrbStyle::isFillPresent() const { return fill.isPresent(*this); }
void OrbStyle::removeFill() { fill.remove(*this); }

const XMLCh* OrbStyle::getStroke() const { return stroke.get(*this); }
bool OrbStyle::isStrokePresent() const { return stroke.isPresent(*this); }
void OrbStyle::removeStroke() { stroke.remove(*this); }

const XMLCh* OrbStyle::getFill_opacity() const { return fill_opacity.get(*this); }
bool OrbStyle::isFill_opacityPresent() const { return fill_opacity.isPresent(*this); }
void OrbStyle::removeFill_opacity() { fill_opacity.remove(*this); }

const XMLCh* OrbStyle::getStroke_opacity() const { return stroke_opacity.get(*this); }
bool OrbStyle::isStroke_opacityPresent() const { return stroke_opacity.isPresent(*this); }
void OrbStyle::removeStroke_opacity() { stroke_opacity.remove(*this); }

unsigned int OrbStyle::getPattern() const { return pattern.get(*this); }
void OrbStyle::setPattern(unsigned int value) { pattern.set(*this, value); }
bool OrbStyle::isPatternPresent() const { return pattern.isPresent(*this); }
void OrbStyle::removePattern() { pattern.remove(*this); }

// Gradient

OrbStyle::ENUM_gradient_method OrbStyle::getGradient_method() const { return gradient_method.get(*this); }
void OrbStyle::setGradient_method(ENUM_gradient_method value) { gradient_method.set(*this, value); }
bool OrbStyle::isGradient_methodPresent() const { return gradient_method.isPresent(*this); }
void OrbStyle::removeGradient_method() { gradient_method.remove(*this); }

const XMLCh* OrbStyle::getGradient_color() const { return gradient_color.get(*this); }
void OrbStyle::setGradient_color(const XMLCh* value) { gradient_color.set(*this, value); }
bool OrbStyle::isGradient_colorPresent() const { return gradient_color.isPresent(*this); }
void OrbStyle::removeGradient_color() { gradient_color.remove(*this); }

double OrbStyle::getGradient_focus() const { return gradient_focus.get(*this); }
void OrbStyle::setGradient_focus(double value) { gradient_focus.set(*this, value); }
bool OrbStyle::isGradient_focusPresent() const { return gradient_focus.isPresent(*this); }
void OrbStyle::removeGradient_focus() { gradient_focus.remove(*this); }

double OrbStyle::getGradient_angle() const { return gradient_angle.get(*this); }
void OrbStyle::setGradient_angle(double value) { gradient_angle.set(*this, value); }
bool OrbStyle::isGradient_anglePresent() const { return gradient_angle.isPresent(*this); }
void OrbStyle::removeGradient_angle() { gradient_angle.remove(*this); }

double OrbStyle::getGradient_size() const { return gradient_size.get(*this); }
void OrbStyle::setGradient_size(double value) { gradient_size.set(*this, value); }
bool OrbStyle::isGradient_sizePresent() const { return gradient_size.isPresent(*this); }
void OrbStyle::removeGradient_size() { gradient_size.remove(*this); }

double OrbStyle::getGradient_opacity() const { return gradient_opacity.get(*this); }
void OrbStyle::setGradient_opacity(double value) { setShare(*this, gradient_opacity, value); }
bool OrbStyle::isGradient_opacityPresent() const { return gradient_opacity.isPresent(*this); }
void OrbStyle::removeGradient_opacity() { gradient_opacity.remove(*this); }

bool OrbStyle::getGradient_isInverted() const { return gradient_isInverted.get(*this); }
void OrbStyle::setGradient_isInverted(bool value) { gradient_isInverted.set(*this, value); }
bool OrbStyle::isGradient_isInvertedPresent() const { return gradient_isInverted.isPresent(*this); }
void OrbStyle::removeGradient_isInverted() { gradient_isInverted.remove(*this); }

// Shadow

const XMLCh* OrbStyle::getShadow_color() const { return shadow_color.get(*this); }
void OrbStyle::setShadow_color(const XMLCh* value) { shadow_color.set(*this, value); }
bool OrbStyle::isShadow_colorPresent() const { return shadow_color.isPresent(*this); }
void OrbStyle::removeShadow_color() { shadow_color.remove(*this); }

double OrbStyle::getShadow_opacity() const { return shadow_opacity.get(*this); }
void OrbStyle::setShadow_opacity(double value) { setShare(*this, shadow_opacity, value); }
bool OrbStyle::isShadow_opacityPresent() const { return shadow_opacity.isPresent(*this); }
void OrbStyle::removeShadow_opacity() { shadow_opacity.remove(*this); }

const XMLCh* OrbStyle::getShadow_dx() const { return shadow_dx.get(*this); }
void OrbStyle::setShadow_dx(const XMLCh* value) { shadow_dx.set(*this, value); }
bool OrbStyle::isShadow_dxPresent() const { return shadow_dx.isPresent(*this); }
void OrbStyle::removeShadow_dx() { shadow_dx.remove(*this); }

const XMLCh* OrbStyle::getShadow_dy() const { return shadow_dy.get(*this); }
void OrbStyle::setShadow_dy(const XMLCh* value) { shadow_dy.set(*this, value); }
bool OrbStyle::isShadow_dyPresent() const { return shadow_dy.isPresent(*this); }
void OrbStyle::removeShadow_dy() { shadow_dy.remove(*this); }

// Stroke

const XMLCh* OrbStyle::getStroke_dasharray() const { return stroke_dasharray.get(*this); }
void OrbStyle::setStroke_dasharray(const XMLCh* value) { stroke_dasharray.set(*this, value); }
bool OrbStyle::isStroke_dasharrayPresent() const { return stroke_dasharray.isPresent(*this); }
void OrbStyle::removeStroke_dasharray() { stroke_dasharray.remove(*this); }

const XMLCh* OrbStyle::getStroke_width() const { return stroke_width.get(*this); }
void OrbStyle::setStroke_width(const XMLCh* value) { stroke_width.set(*this, value); }
bool OrbStyle::isStroke_widthPresent() const { return stroke_width.isPresent(*this); }
void OrbStyle::removeStroke_width() { stroke_width.remove(*this); }

OrbStyle::ENUM_stroke_decoration OrbStyle::getStroke_decoration() const { return stroke_decoration.get(*this); }
void OrbStyle::setStroke_decoration(ENUM_stroke_decoration value) { stroke_decoration.set(*this, value); }
bool OrbStyle::isStroke_decorationPresent() const { return stroke_decoration.isPresent(*this); }
void OrbStyle::removeStroke_decoration() { stroke_decoration.remove(*this); }

OrbStyle::ENUM_stroke_linecap OrbStyle::getStroke_linecap() const { return stroke_linecap.get(*this); }
void OrbStyle::setStroke_linecap(ENUM_stroke_linecap value) { stroke_linecap.set(*this, value); }
bool OrbStyle::isStroke_linecapPresent() const { return stroke_linecap.isPresent(*this); }
void OrbStyle::removeStroke_linecap() { stroke_linecap.remove(*this); }

// Glyph

const XMLCh* OrbStyle::getSize() const { return size.get(*this); }
void OrbStyle::getSize(ChartString& preferred, ChartString& minimum, ChartString& maximum) const {
  getPreferredMinMax(size.get(*this), preferred, minimum, maximum);
}
void OrbStyle::setSize(const XMLCh* value) { size.set(*this, value); }
void OrbStyle::setSize(const XMLCh* preferred, const XMLCh* minimum, const XMLCh* maximum) {
  setTriple(*this, size, size.get(*this), {preferred, minimum, maximum});
}
bool OrbStyle::isSizePresent() const { return size.isPresent(*this); }
void OrbStyle::removeSize() { size.remove(*this); }

// Any text may stand there, a keyword or not.
const XMLCh* OrbStyle::getSymbol() const { return GetAttribute(symbol.name); }
OrbStyle::ENUM_symbol OrbStyle::getSymbolEnum() const { return symbol.get(*this); }
void OrbStyle::setSymbol(const XMLCh* value) { SetAttribute(symbol.name, value); }
void OrbStyle::setSymbol(ENUM_symbol value) { symbol.set(*this, value); }
bool OrbStyle::isSymbolPresent() const { return symbol.isPresent(*this); }
void OrbStyle::removeSymbol() { symbol.remove(*this); }

unsigned int OrbStyle::getGlyph_sides() const { return glyph_sides.get(*this); }
void OrbStyle::setGlyph_sides(unsigned int value) {
  if (value >= 2 && value <= 100)
    glyph_sides.set(*this, value);
}
bool OrbStyle::isGlyph_sidesPresent() const { return glyph_sides.isPresent(*this); }
void OrbStyle::removeGlyph_sides() { glyph_sides.remove(*this); }

double OrbStyle::getGlyph_angle() const { return glyph_angle.get(*this); }
void OrbStyle::setGlyph_angle(double value) { glyph_angle.set(*this, value); }
bool OrbStyle::isGlyph_anglePresent() const { return glyph_angle.isPresent(*this); }
void OrbStyle::removeGlyph_angle() { glyph_angle.remove(*this); }

double OrbStyle::getGlyph_aspect() const { return glyph_aspect.get(*this); }
void OrbStyle::setGlyph_aspect(double value) {
  if (value > 0.0)
    glyph_aspect.set(*this, value);
}
bool OrbStyle::isGlyph_aspectPresent() const { return glyph_aspect.isPresent(*this); }
void OrbStyle::removeGlyph_aspect() { glyph_aspect.remove(*this); }

// Background

OrbStyle::ENUM_background_method OrbStyle::getBackground_method() const { return background_method.get(*this); }
void OrbStyle::setBackground_method(ENUM_background_method value) { background_method.set(*this, value); }
bool OrbStyle::isBackground_methodPresent() const { return background_method.isPresent(*this); }
void OrbStyle::removeBackground_method() { background_method.remove(*this); }

const XMLCh* OrbStyle::getBackground_image() const { return background_image.get(*this); }
void OrbStyle::setBackground_image(const XMLCh* value) { background_image.set(*this, value); }
bool OrbStyle::isBackground_imagePresent() const { return background_image.isPresent(*this); }
void OrbStyle::removeBackground_image() { background_image.remove(*this); }

// Box

const XMLCh* OrbStyle::getMargin() const { return margin.get(*this); }
void OrbStyle::setMargin(const XMLCh* value) { margin.set(*this, value); }
bool OrbStyle::isMarginPresent() const { return margin.isPresent(*this); }
void OrbStyle::removeMargin() { margin.remove(*this); }

const XMLCh* OrbStyle::getMargin_left() const { return margin_left.get(*this); }
void OrbStyle::setMargin_left(const XMLCh* value) { margin_left.set(*this, value); }
bool OrbStyle::isMargin_leftPresent() const { return margin_left.isPresent(*this); }
void OrbStyle::removeMargin_left() { margin_left.remove(*this); }

const XMLCh* OrbStyle::getMargin_right() const { return margin_right.get(*this); }
void OrbStyle::setMargin_right(const XMLCh* value) { margin_right.set(*this, value); }
bool OrbStyle::isMargin_rightPresent() const { return margin_right.isPresent(*this); }
void OrbStyle::removeMargin_right() { margin_right.remove(*this); }

const XMLCh* OrbStyle::getMargin_top() const { return margin_top.get(*this); }
void OrbStyle::setMargin_top(const XMLCh* value) { margin_top.set(*this, value); }
bool OrbStyle::isMargin_topPresent() const { return margin_top.isPresent(*this); }
void OrbStyle::removeMargin_top() { margin_top.remove(*this); }

const XMLCh* OrbStyle::getMargin_bottom() const { return margin_bottom.get(*this); }
void OrbStyle::setMargin_bottom(const XMLCh* value) { margin_bottom.set(*this, value); }
bool OrbStyle::isMargin_bottomPresent() const { return margin_bottom.isPresent(*this); }
void OrbStyle::removeMargin_bottom() { margin_bottom.remove(*this); }

const XMLCh* OrbStyle::getPadding() const { return padding.get(*this); }
void OrbStyle::setPadding(const XMLCh* value) { padding.set(*this, value); }
bool OrbStyle::isPaddingPresent() const { return padding.isPresent(*this); }
void OrbStyle::removePadding() { padding.remove(*this); }

const XMLCh* OrbStyle::getPadding_left() const { return padding_left.get(*this); }
void OrbStyle::setPadding_left(const XMLCh* value) { padding_left.set(*this, value); }
bool OrbStyle::isPadding_leftPresent() const { return padding_left.isPresent(*this); }
void OrbStyle::removePadding_left() { padding_left.remove(*this); }

const XMLCh* OrbStyle::getPadding_right() const { return padding_right.get(*this); }
void OrbStyle::setPadding_right(const XMLCh* value) { padding_right.set(*this, value); }
bool OrbStyle::isPadding_rightPresent() const { return padding_right.isPresent(*this); }
void OrbStyle::removePadding_right() { padding_right.remove(*this); }

const XMLCh* OrbStyle::getPadding_top() const { return padding_top.get(*this); }
void OrbStyle::setPadding_top(const XMLCh* value) { padding_top.set(*this, value); }
bool OrbStyle::isPadding_topPresent() const { return padding_top.isPresent(*this); }
void OrbStyle::removePadding_top() { padding_top.remove(*this); }

const XMLCh* OrbStyle::getPadding_bottom() const { return padding_bottom.get(*this); }
void OrbStyle::setPadding_bottom(const XMLCh* value) { padding_bottom.set(*this, value); }
bool OrbStyle::isPadding_bottomPresent() const { return padding_bottom.isPresent(*this); }
void OrbStyle::removePadding_bottom() { padding_bottom.remove(*this); }

void OrbStyle::getWidth(ChartString& preferred, ChartString& minimum, ChartString& maximum) const {
  getPreferredMinMax(width.get(*this), preferred, minimum, maximum);
}
void OrbStyle::setWidth(const XMLCh* preferred, const XMLCh* minimum, const XMLCh* maximum) {
  setTriple(*this, width, width.get(*this), {preferred, minimum, maximum});
}
bool OrbStyle::isWidthPresent() const { return width.isPresent(*this); }
void OrbStyle::removeWidth() { width.remove(*this); }

void OrbStyle::getHeight(ChartString& preferred, ChartString& minimum, ChartString& maximum) const {
  getPreferredMinMax(height.get(*this), preferred, minimum, maximum);
}
void OrbStyle::setHeight(const XMLCh* preferred, const XMLCh* minimum, const XMLCh* maximum) {
  setTriple(*this, height, width.get(*this), {preferred, minimum, maximum});
}
bool OrbStyle::isHeightPresent() const { return height.isPresent(*this); }
void OrbStyle::removeHeight() { height.remove(*this); }

// Border

OrbStyle::ENUM_border_style OrbStyle::getBorder_left() const { return border_left.get(*this); }
void OrbStyle::setBorder_left(const XMLCh* value) { SetAttribute(border_left.name, value); }
void OrbStyle::setBorder_left(ENUM_border_style value) { border_left.set(*this, value); }
bool OrbStyle::isBorder_leftPresent() const { return border_left.isPresent(*this); }
bool OrbStyle::isBorderLeftPresent() const { return isBorder_leftPresent(); }
void OrbStyle::removeBorder_left() { border_left.remove(*this); }

OrbStyle::ENUM_border_style OrbStyle::getBorder_right() const { return border_right.get(*this); }
void OrbStyle::setBorder_right(const XMLCh* value) { SetAttribute(border_right.name, value); }
void OrbStyle::setBorder_right(ENUM_border_style value) { border_right.set(*this, value); }
bool OrbStyle::isBorder_rightPresent() const { return border_right.isPresent(*this); }
bool OrbStyle::isBorderRightPresent() const { return isBorder_rightPresent(); }
void OrbStyle::removeBorder_right() { border_right.remove(*this); }

OrbStyle::ENUM_border_style OrbStyle::getBorder_top() const { return border_top.get(*this); }
void OrbStyle::setBorder_top(const XMLCh* value) { SetAttribute(border_top.name, value); }
void OrbStyle::setBorder_top(ENUM_border_style value) { border_top.set(*this, value); }
bool OrbStyle::isBorder_topPresent() const { return border_top.isPresent(*this); }
bool OrbStyle::isBorderTopPresent() const { return isBorder_topPresent(); }
void OrbStyle::removeBorder_top() { border_top.remove(*this); }

OrbStyle::ENUM_border_style OrbStyle::getBorder_bottom() const { return border_bottom.get(*this); }
void OrbStyle::setBorder_bottom(const XMLCh* value) { SetAttribute(border_bottom.name, value); }
void OrbStyle::setBorder_bottom(ENUM_border_style value) { border_bottom.set(*this, value); }
bool OrbStyle::isBorder_bottomPresent() const { return border_bottom.isPresent(*this); }
bool OrbStyle::isBorderBottomPresent() const { return isBorder_bottomPresent(); }
void OrbStyle::removeBorder_bottom() { border_bottom.remove(*this); }

const XMLCh* OrbStyle::getBorder_left_color() const { return border_left_color.get(*this); }
void OrbStyle::setBorder_left_color(const XMLCh* value) { border_left_color.set(*this, value); }
bool OrbStyle::isBorder_left_colorPresent() const { return border_left_color.isPresent(*this); }
void OrbStyle::removeBorder_left_color() { border_left_color.remove(*this); }

const XMLCh* OrbStyle::getBorder_right_color() const { return border_right_color.get(*this); }
void OrbStyle::setBorder_right_color(const XMLCh* value) { border_right_color.set(*this, value); }
bool OrbStyle::isBorder_right_colorPresent() const { return border_right_color.isPresent(*this); }
void OrbStyle::removeBorder_right_color() { border_right_color.remove(*this); }

const XMLCh* OrbStyle::getBorder_top_color() const { return border_top_color.get(*this); }
void OrbStyle::setBorder_top_color(const XMLCh* value) { border_top_color.set(*this, value); }
bool OrbStyle::isBorder_top_colorPresent() const { return border_top_color.isPresent(*this); }
void OrbStyle::removeBorder_top_color() { border_top_color.remove(*this); }

const XMLCh* OrbStyle::getBorder_bottom_color() const { return border_bottom_color.get(*this); }
void OrbStyle::setBorder_bottom_color(const XMLCh* value) { border_bottom_color.set(*this, value); }
bool OrbStyle::isBorder_bottom_colorPresent() const { return border_bottom_color.isPresent(*this); }
void OrbStyle::removeBorder_bottom_color() { border_bottom_color.remove(*this); }

// Font

const XMLCh* OrbStyle::getFont_family() const { return font_family.get(*this); }
void OrbStyle::setFont_family(const XMLCh* value) { font_family.set(*this, value); }
bool OrbStyle::isFont_familyPresent() const { return font_family.isPresent(*this); }
void OrbStyle::removeFont_family() { font_family.remove(*this); }

void OrbStyle::getFontSize(ChartString& preferred, ChartString& minimum, ChartString& maximum) const {
  getPreferredMinMax(font_size.get(*this), preferred, minimum, maximum);
}
void OrbStyle::setFontSize(const XMLCh* preferred, const XMLCh* minimum, const XMLCh* maximum) {
  setTriple(*this, font_size, font_size.get(*this), {preferred, minimum, maximum});
}
bool OrbStyle::isFont_sizePresent() const { return font_size.isPresent(*this); }
void OrbStyle::removeFont_size() { font_size.remove(*this); }

OrbStyle::ENUM_font_style OrbStyle::getFont_style() const { return font_style.get(*this); }
void OrbStyle::setFont_style(ENUM_font_style value) { font_style.set(*this, value); }
bool OrbStyle::isFont_stylePresent() const { return font_style.isPresent(*this); }
void OrbStyle::removeFont_style() { font_style.remove(*this); }

OrbStyle::ENUM_font_weight OrbStyle::getFont_weight() const { return font_weight.get(*this); }
void OrbStyle::setFont_weight(ENUM_font_weight value) { font_weight.set(*this, value); }
bool OrbStyle::isFont_weightPresent() const { return font_weight.isPresent(*this); }
void OrbStyle::removeFont_weight() { font_weight.remove(*this); }

OrbStyle::ENUM_font_underline OrbStyle::getFont_underline() const { return font_underline.get(*this); }
void OrbStyle::setFont_underline(ENUM_font_underline value) { font_underline.set(*this, value); }
bool OrbStyle::isFont_underlinePresent() const { return font_underline.isPresent(*this); }
void OrbStyle::removeFont_underline() { font_underline.remove(*this); }

// Depth

const XMLCh* OrbStyle::getBevel_size() const { return bevel_size.get(*this); }
void OrbStyle::setBevel_size(const XMLCh* value) { bevel_size.set(*this, value); }
bool OrbStyle::isBevel_sizePresent() const { return bevel_size.isPresent(*this); }
void OrbStyle::removeBevel_size() { bevel_size.remove(*this); }

const XMLCh* OrbStyle::getDepth() const { return depth.get(*this); }
void OrbStyle::setDepth(const XMLCh* value) { depth.set(*this, value); }
bool OrbStyle::isDepthPresent() const { return depth.isPresent(*this); }
void OrbStyle::removeDepth() { depth.remove(*this); }

bool OrbStyle::getDepthRelativeToWidth() const { return depthRelativeToWidth.get(*this); }
void OrbStyle::setDepthRelativeToWidth(bool value) { depthRelativeToWidth.set(*this, value); }
bool OrbStyle::isDepthRelativeToWidthPresent() const { return depthRelativeToWidth.isPresent(*this); }
void OrbStyle::removeDepthRelativeToWidth() { depthRelativeToWidth.remove(*this); }

// Text and labels

double OrbStyle::getLabelAngle() const { return labelAngle.get(*this); }
void OrbStyle::setLabelAngle(double value) { labelAngle.set(*this, value); }
bool OrbStyle::isLabelAnglePresent() const { return labelAngle.isPresent(*this); }
void OrbStyle::removeLabelAngle() { labelAngle.remove(*this); }

OrbStyle::ENUM_labelInside OrbStyle::getLabelInside() const { return labelInside.get(*this); }
void OrbStyle::setLabelInside(ENUM_labelInside value) { labelInside.set(*this, value); }
bool OrbStyle::isLabelInsidePresent() const { return labelInside.isPresent(*this); }
void OrbStyle::removeLabelInside() { labelInside.remove(*this); }

OrbStyle::ENUM_labelLocationHorizontal OrbStyle::getLabelLocationHorizontal() const {
  return labelLocationHorizontal.get(*this);
}
void OrbStyle::setLabelLocationHorizontal(ENUM_labelLocationHorizontal value) {
  labelLocationHorizontal.set(*this, value);
}
bool OrbStyle::isLabelLocationHorizontalPresent() const { return labelLocationHorizontal.isPresent(*this); }
void OrbStyle::removeLabelLocationHorizontal() { labelLocationHorizontal.remove(*this); }

OrbStyle::ENUM_labelLocationVertical OrbStyle::getLabelLocationVertical() const {
  return labelLocationVertical.get(*this);
}
void OrbStyle::setLabelLocationVertical(ENUM_labelLocationVertical value) { labelLocationVertical.set(*this, value); }
bool OrbStyle::isLabelLocationVerticalPresent() const { return labelLocationVertical.isPresent(*this); }
void OrbStyle::removeLabelLocationVertical() { labelLocationVertical.remove(*this); }

OrbStyle::ENUM_textAlignment OrbStyle::getTextAlignment() const { return textAlignment.get(*this); }
void OrbStyle::setTextAlignment(ENUM_textAlignment value) { textAlignment.set(*this, value); }
bool OrbStyle::isTextAlignmentPresent() const { return textAlignment.isPresent(*this); }
void OrbStyle::removeTextAlignment() { textAlignment.remove(*this); }

const XMLCh* OrbStyle::getDecimal_offset() const { return decimal_offset.get(*this); }
void OrbStyle::setDecimal_offset(const XMLCh* value) { decimal_offset.set(*this, value); }
bool OrbStyle::isDecimal_offsetPresent() const { return decimal_offset.isPresent(*this); }
void OrbStyle::removeDecimal_offset() { decimal_offset.remove(*this); }

bool OrbStyle::getIgnoreNewLines() const { return ignoreNewLines.get(*this); }
void OrbStyle::setIgnoreNewLines(bool value) { ignoreNewLines.set(*this, value); }
bool OrbStyle::isIgnoreNewLinesPresent() const { return ignoreNewLines.isPresent(*this); }
void OrbStyle::removeIgnoreNewLines() { ignoreNewLines.remove(*this); }

bool OrbStyle::getTwoCharacterVertical() const { return twoCharacterVertical.get(*this); }
void OrbStyle::setTwoCharacterVertical(bool value) { twoCharacterVertical.set(*this, value); }
bool OrbStyle::isTwoCharacterVerticalPresent() const { return twoCharacterVertical.isPresent(*this); }
void OrbStyle::removeTwoCharacterVertical() { twoCharacterVertical.remove(*this); }

bool OrbStyle::getBaselineRotated() const { return baselineRotated.get(*this); }
void OrbStyle::setBaselineRotated(bool value) { baselineRotated.set(*this, value); }
bool OrbStyle::isBaselineRotatedPresent() const { return baselineRotated.isPresent(*this); }
void OrbStyle::removeBaselineRotated() { baselineRotated.remove(*this); }

const XMLCh* OrbStyle::getMaxAttachedTextWidth() const { return maxAttachedTextWidth.get(*this); }
void OrbStyle::setMaxAttachedTextWidth(const XMLCh* value) { maxAttachedTextWidth.set(*this, value); }
bool OrbStyle::isMaxAttachedTextWidthPresent() const { return maxAttachedTextWidth.isPresent(*this); }
void OrbStyle::removeMaxAttachedTextWidth() { maxAttachedTextWidth.remove(*this); }

const XMLCh* OrbStyle::getMaxAttachedTextHeight() const { return maxAttachedTextHeight.get(*this); }
void OrbStyle::setMaxAttachedTextHeight(const XMLCh* value) { maxAttachedTextHeight.set(*this, value); }
bool OrbStyle::isMaxAttachedTextHeightPresent() const { return maxAttachedTextHeight.isPresent(*this); }
void OrbStyle::removeMaxAttachedTextHeight() { maxAttachedTextHeight.remove(*this); }

bool OrbStyle::getText_fit() const { return text_fit.get(*this); }
void OrbStyle::setText_fit(bool value) { text_fit.set(*this, value); }
bool OrbStyle::isText_fitPresent() const { return text_fit.isPresent(*this); }
void OrbStyle::removeText_fit() { text_fit.remove(*this); }

bool OrbStyle::getText_rotate() const { return text_rotate.get(*this); }
void OrbStyle::setText_rotate(bool value) { text_rotate.set(*this, value); }
bool OrbStyle::isText_rotatePresent() const { return text_rotate.isPresent(*this); }
void OrbStyle::removeText_rotate() { text_rotate.remove(*this); }

bool OrbStyle::getVisible() const { return visible.get(*this); }
void OrbStyle::setVisible(bool value) { visible.set(*this, value); }
bool OrbStyle::isVisiblePresent() const { return visible.isPresent(*this); }
void OrbStyle::removeVisible() { visible.remove(*this); }

// Children

OrbStyle* OrbStyle::addStyle() { return children_->add<OrbStyle>(*this, AfterStyles{}); }
std::vector<OrbStyle*> OrbStyle::getStyles() const { return children_->all<OrbStyle>(); }
unsigned int OrbStyle::removeStyles() { return children_->removeAll<OrbStyle>(*this); }

OrbExtensionStyle* OrbStyle::addExtension() { return children_->add<OrbExtensionStyle>(*this, atEnd); }
OrbExtensionStyle* OrbStyle::getExtension() const { return children_->first<OrbExtensionStyle>(); }
unsigned int OrbStyle::removeExtensions() { return children_->removeAll<OrbExtensionStyle>(*this); }

// Triples

void OrbStyle::getPreferredMinMax(const ChartString& text, ChartString& preferred, ChartString& minimum,
                                  ChartString& maximum) const {
  // A copy: the text may be one of the three that grow.
  const std::u16string fields(text.empty() ? u"" : text.xc_str());
  std::size_t begin = 0;
  for (ChartString* field : {&preferred, &minimum, &maximum}) {
    const std::size_t end = std::min(fields.find(u';', begin), fields.size());
    const std::u16string content = fields.substr(begin, end - begin);
    field->append(content.c_str(), content.c_str());
    begin = std::min(end + 1, fields.size());
  }
}
