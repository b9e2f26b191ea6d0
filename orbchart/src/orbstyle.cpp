// A named bundle of visual properties.
#include "orbstyle.h"

#include "attribute.h"
#include "attributevalue.h"
#include "chartstring.h"
#include "family.h"
#include "keyword.h"
#include "orbuni.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <string>

using namespace orbchart;

namespace {

constexpr Keyword<OrbStyle::ENUM_gradient_method> gradientMethods[] = {
    {OrbStyle::gradient_method_linear, OrbUni::_linear},
    {OrbStyle::gradient_method_radial, OrbStyle::ENUM_gradient_method_radial},
};

constexpr Keyword<OrbStyle::ENUM_stroke_decoration> strokeDecorations[] = {
    {OrbStyle::stroke_decoration_etchLowered, OrbStyle::ENUM_stroke_decoration_etchLowered},
    {OrbStyle::stroke_decoration_etchRaised, OrbStyle::ENUM_stroke_decoration_etchRaised},
    {OrbStyle::stroke_decoration_bevel, OrbStyle::ENUM_stroke_decoration_bevel},
};

constexpr Keyword<OrbStyle::ENUM_stroke_linecap> strokeLinecaps[] = {
    {OrbStyle::stroke_linecap_round, OrbStyle::ENUM_stroke_linecap_round},
    {OrbStyle::stroke_linecap_square, OrbUni::_square},
    {OrbStyle::stroke_linecap_butt, OrbStyle::ENUM_stroke_linecap_butt},
};

constexpr Keyword<OrbStyle::ENUM_symbol> symbols[] = {
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
};

constexpr Keyword<OrbStyle::ENUM_background_method> backgroundMethods[] = {
    {OrbStyle::background_method_tile, OrbStyle::ENUM_background_method_tile},
    {OrbStyle::background_method_stretch, OrbStyle::ENUM_background_method_stretch},
    {OrbStyle::background_method_zoom, OrbStyle::ENUM_background_method_zoom},
    {OrbStyle::background_method_center, OrbUni::_center},
    {OrbStyle::background_method_left, OrbUni::_left},
    {OrbStyle::background_method_right, OrbUni::_right},
    {OrbStyle::background_method_top, OrbUni::_top},
    {OrbStyle::background_method_bottom, OrbUni::_bottom},
};

constexpr Keyword<OrbStyle::ENUM_border_style> borderStyles[] = {
    {OrbStyle::border_style_none, OrbUni::_none},
    {OrbStyle::border_style_normal, OrbUni::_normal},
    {OrbStyle::border_style_solid, OrbStyle::ENUM_border_style_solid},
    {OrbStyle::border_style_dashed, OrbStyle::ENUM_border_style_dashed},
    {OrbStyle::border_style_thick, OrbStyle::ENUM_border_style_thick},
    {OrbStyle::border_style_thin, OrbStyle::ENUM_border_style_thin},
    {OrbStyle::border_style_double, OrbStyle::ENUM_border_style_double},
};

constexpr Keyword<OrbStyle::ENUM_font_style> fontStyles[] = {
    {OrbStyle::font_style_regular, OrbUni::_regular},
    {OrbStyle::font_style_italic, OrbUni::_italic},
};

constexpr Keyword<OrbStyle::ENUM_font_weight> fontWeights[] = {
    {OrbStyle::font_weight_regular, OrbUni::_regular},
    {OrbStyle::font_weight_bold, OrbUni::_bold},
};

constexpr Keyword<OrbStyle::ENUM_font_underline> fontUnderlines[] = {
    {OrbStyle::font_underline_none, OrbUni::_none},
    {OrbStyle::font_underline_underline, OrbStyle::ENUM_font_underline_underline},
};

constexpr Keyword<OrbStyle::ENUM_labelInside> labelInsides[] = {
    {OrbStyle::labelInside_true, OrbUni::_true},
    {OrbStyle::labelInside_false, OrbUni::_false},
    {OrbStyle::labelInside_preferred, OrbStyle::ENUM_labelInside_preferred},
};

constexpr Keyword<OrbStyle::ENUM_labelLocationHorizontal> labelLocationsHorizontal[] = {
    {OrbStyle::labelLocationHorizontal_center, OrbUni::_center},
    {OrbStyle::labelLocationHorizontal_positive, OrbStyle::ENUM_labelLocationHorizontal_positive},
    {OrbStyle::labelLocationHorizontal_negative, OrbStyle::ENUM_labelLocationHorizontal_negative},
};

constexpr Keyword<OrbStyle::ENUM_labelLocationVertical> labelLocationsVertical[] = {
    {OrbStyle::labelLocationVertical_center, OrbUni::_center},
    {OrbStyle::labelLocationVertical_positive, OrbStyle::ENUM_labelLocationVertical_positive},
    {OrbStyle::labelLocationVertical_negative, OrbStyle::ENUM_labelLocationVertical_negative},
};

constexpr Keyword<OrbStyle::ENUM_textAlignment> textAlignments[] = {
    {OrbStyle::textAlignment_left, OrbUni::_left},
    {OrbStyle::textAlignment_right, OrbUni::_right},
    {OrbStyle::textAlignment_center, OrbUni::_center},
    {OrbStyle::textAlignment_decimal, OrbStyle::ENUM_textAlignment_decimal},
    {OrbStyle::textAlignment_mixed, OrbStyle::ENUM_textAlignment_mixed},
};

// What the language has after them has no class here.
using AfterStyles = FamilyList<>;

/// Writes a number from 0.0 to 1.0, and no other.
void writeShare(OrbStyle& style, const XMLCh* name, double share) {
  if (share >= 0.0 && share <= 1.0)
    writeDouble(style, name, share);
}

/// Writes the three fields of a triple: those given, and for a null or empty one the field of the old text.
void writeTriple(OrbStyle& style, const XMLCh* name, const XMLCh* oldText, const std::array<const XMLCh*, 3>& given) {
  std::array<ChartString, 3> fields;
  style.getPreferredMinMax(oldText, fields[0], fields[1], fields[2]);
  ChartString text;
  for (std::size_t i = 0; i < fields.size(); ++i) {
    if (i != 0)
      text.append(u';');
    text.append(isEmpty(given[i]) ? fields[i].xc_str() : given[i]);
  }
  style.SetAttribute(name, text.xc_str());
}

} // namespace

struct OrbStyle::Children : ChildFamilies<FamilyList<OrbStyle>> {};

OrbStyle::OrbStyle(xercesc::DOMElement* element) : OrbBaseElement(element), children_(new Children) {
  children_->load(*this);
  bind(*this);
}
OrbStyle::~OrbStyle() = default;

// Identity

const XMLCh* OrbStyle::getId() const { return GetAttribute(OrbUni::_id); }
void OrbStyle::setId(const XMLCh* id) { writeId(*this, id); }
void OrbStyle::removeId() { removeAttribute(*this, OrbUni::_id); }

// Colour and opacity

const XMLCh* OrbStyle::getColor() const { return GetAttribute(OrbUni::_color); }
void OrbStyle::setColor(const XMLCh* color) { SetAttribute(OrbUni::_color, color); }
bool OrbStyle::isColorPresent() const { return isPresent(*this, OrbUni::_color); }
void OrbStyle::removeColor() { removeAttribute(*this, OrbUni::_color); }

const XMLCh* OrbStyle::getColor2() const { return GetAttribute(OrbUni::_color2); }
void OrbStyle::setColor2(const XMLCh* color2) { SetAttribute(OrbUni::_color2, color2); }
bool OrbStyle::isColor2Present() const { return isPresent(*this, OrbUni::_color2); }
void OrbStyle::removeColor2() { removeAttribute(*this, OrbUni::_color2); }

const XMLCh* OrbStyle::getOpacity() const { return GetAttribute(OrbUni::_opacity); }
void OrbStyle::setOpacity(const XMLCh* opacity) { SetAttribute(OrbUni::_opacity, opacity); }
bool OrbStyle::isOpacityPresent() const { return isPresent(*this, OrbUni::_opacity); }
void OrbStyle::removeOpacity() { removeAttribute(*this, OrbUni::_opacity); }

double OrbStyle::getOpacity2() const { return readDouble(*this, OrbUni::_opacity2); }
void OrbStyle::setOpacity2(double opacity2) { writeShare(*this, OrbUni::_opacity2, opacity2); }
bool OrbStyle::isOpacity2Present() const { return isPresent(*this, OrbUni::_opacity2); }
void OrbStyle::removeOpacity2() { removeAttribute(*this, OrbUni::_opacity2); }

double OrbStyle::getHue() const { return readDouble(*this, _UTF_hue); }
void OrbStyle::setHue(double hue) { writeDouble(*this, _UTF_hue, hue); }
bool OrbStyle::isHuePresent() const { return isPresent(*this, _UTF_hue); }
void OrbStyle::removeHue() { removeAttribute(*this, _UTF_hue); }

double OrbStyle::getSaturation() const { return readDouble(*this, _UTF_saturation); }
void OrbStyle::setSaturation(double saturation) { writeDouble(*this, _UTF_saturation, saturation); }
bool OrbStyle::isSaturationPresent() const { return isPresent(*this, _UTF_saturation); }
void OrbStyle::removeSaturation() { removeAttribute(*this, _UTF_saturation); }

double OrbStyle::getBrightness() const { return readDouble(*this, _UTF_brightness); }
void OrbStyle::setBrightness(double brightness) { writeDouble(*this, _UTF_brightness, brightness); }
bool OrbStyle::isBrightnessPresent() const { return isPresent(*this, _UTF_brightness); }
void OrbStyle::removeBrightness() { removeAttribute(*this, _UTF_brightness); }

double OrbStyle::getHue2() const { return readDouble(*this, _UTF_hue2); }
void OrbStyle::setHue2(double hue2) { writeDouble(*this, _UTF_hue2, hue2); }
bool OrbStyle::isHue2Present() const { return isPresent(*this, _UTF_hue2); }
void OrbStyle::removeHue2() { removeAttribute(*this, _UTF_hue2); }

double OrbStyle::getSaturation2() const { return readDouble(*this, _UTF_saturation2); }
void OrbStyle::setSaturation2(double saturation2) { writeDouble(*this, _UTF_saturation2, saturation2); }
bool OrbStyle::isSaturation2Present() const { return isPresent(*this, _UTF_saturation2); }
void OrbStyle::removeSaturation2() { removeAttribute(*this, _UTF_saturation2); }

double OrbStyle::getBrightness2() const { return readDouble(*this, _UTF_brightness2); }
void OrbStyle::setBrightness2(double brightness2) { writeDouble(*this, _UTF_brightness2, brightness2); }
bool OrbStyle::isBrightness2Present() const { return isPresent(*this, _UTF_brightness2); }
void OrbStyle::removeBrightness2() { removeAttribute(*this, _UTF_brightness2); }

const XMLCh* OrbStyle::getFill() const { return GetAttribute(OrbUni::_fill); }
bool OrbStyle::isFillPresent() const { return isPresent(*this, OrbUni::_fill); }
void OrbStyle::removeFill() { removeAttribute(*this, OrbUni::_fill); }

const XMLCh* OrbStyle::getStroke() const { return GetAttribute(OrbUni::_stroke); }
bool OrbStyle::isStrokePresent() const { return isPresent(*this, OrbUni::_stroke); }
void OrbStyle::removeStroke() { removeAttribute(*this, OrbUni::_stroke); }

const XMLCh* OrbStyle::getFill_opacity() const { return GetAttribute(OrbUni::_fill_opacity); }
bool OrbStyle::isFill_opacityPresent() const { return isPresent(*this, OrbUni::_fill_opacity); }
void OrbStyle::removeFill_opacity() { removeAttribute(*this, OrbUni::_fill_opacity); }

const XMLCh* OrbStyle::getStroke_opacity() const { return GetAttribute(OrbUni::_stroke_opacity); }
bool OrbStyle::isStroke_opacityPresent() const { return isPresent(*this, OrbUni::_stroke_opacity); }
void OrbStyle::removeStroke_opacity() { removeAttribute(*this, OrbUni::_stroke_opacity); }

unsigned int OrbStyle::getPattern() const { return readUnsigned(*this, OrbUni::_pattern); }
void OrbStyle::setPattern(unsigned int pattern) { writeUnsigned(*this, OrbUni::_pattern, pattern); }
bool OrbStyle::isPatternPresent() const { return isPresent(*this, OrbUni::_pattern); }
void OrbStyle::removePattern() { removeAttribute(*this, OrbUni::_pattern); }

// Gradient

OrbStyle::ENUM_gradient_method OrbStyle::getGradient_method() const {
  return readKeyword(*this, OrbUni::_gradient_method, gradientMethods, gradient_method_unset);
}
void OrbStyle::setGradient_method(ENUM_gradient_method gradientMethod) {
  writeKeyword(*this, OrbUni::_gradient_method, gradientMethods, gradientMethod);
}
bool OrbStyle::isGradient_methodPresent() const { return isPresent(*this, OrbUni::_gradient_method); }
void OrbStyle::removeGradient_method() { removeAttribute(*this, OrbUni::_gradient_method); }

const XMLCh* OrbStyle::getGradient_color() const { return GetAttribute(OrbUni::_gradient_color); }
void OrbStyle::setGradient_color(const XMLCh* gradientColor) { SetAttribute(OrbUni::_gradient_color, gradientColor); }
bool OrbStyle::isGradient_colorPresent() const { return isPresent(*this, OrbUni::_gradient_color); }
void OrbStyle::removeGradient_color() { removeAttribute(*this, OrbUni::_gradient_color); }

double OrbStyle::getGradient_focus() const { return readDouble(*this, OrbUni::_gradient_focus); }
void OrbStyle::setGradient_focus(double gradientFocus) { writeDouble(*this, OrbUni::_gradient_focus, gradientFocus); }
bool OrbStyle::isGradient_focusPresent() const { return isPresent(*this, OrbUni::_gradient_focus); }
void OrbStyle::removeGradient_focus() { removeAttribute(*this, OrbUni::_gradient_focus); }

double OrbStyle::getGradient_angle() const { return readDouble(*this, OrbUni::_gradient_angle); }
void OrbStyle::setGradient_angle(double gradientAngle) { writeDouble(*this, OrbUni::_gradient_angle, gradientAngle); }
bool OrbStyle::isGradient_anglePresent() const { return isPresent(*this, OrbUni::_gradient_angle); }
void OrbStyle::removeGradient_angle() { removeAttribute(*this, OrbUni::_gradient_angle); }

double OrbStyle::getGradient_size() const { return readDouble(*this, OrbUni::_gradient_size); }
void OrbStyle::setGradient_size(double gradientSize) { writeDouble(*this, OrbUni::_gradient_size, gradientSize); }
bool OrbStyle::isGradient_sizePresent() const { return isPresent(*this, OrbUni::_gradient_size); }
void OrbStyle::removeGradient_size() { removeAttribute(*this, OrbUni::_gradient_size); }

double OrbStyle::getGradient_opacity() const { return readDouble(*this, OrbUni::_gradient_opacity); }
void OrbStyle::setGradient_opacity(double gradientOpacity) {
  writeShare(*this, OrbUni::_gradient_opacity, gradientOpacity);
}
bool OrbStyle::isGradient_opacityPresent() const { return isPresent(*this, OrbUni::_gradient_opacity); }
void OrbStyle::removeGradient_opacity() { removeAttribute(*this, OrbUni::_gradient_opacity); }

bool OrbStyle::getGradient_isInverted() const { return readBooleanUnlessFalse(*this, OrbUni::_gradient_isInverted); }
void OrbStyle::setGradient_isInverted(bool gradientIsInverted) {
  writeBoolean(*this, OrbUni::_gradient_isInverted, gradientIsInverted);
}
bool OrbStyle::isGradient_isInvertedPresent() const { return isPresent(*this, OrbUni::_gradient_isInverted); }
void OrbStyle::removeGradient_isInverted() { removeAttribute(*this, OrbUni::_gradient_isInverted); }

// Shadow

const XMLCh* OrbStyle::getShadow_color() const { return GetAttribute(OrbUni::_shadow_color); }
void OrbStyle::setShadow_color(const XMLCh* shadowColor) { SetAttribute(OrbUni::_shadow_color, shadowColor); }
bool OrbStyle::isShadow_colorPresent() const { return isPresent(*this, OrbUni::_shadow_color); }
void OrbStyle::removeShadow_color() { removeAttribute(*this, OrbUni::_shadow_color); }

double OrbStyle::getShadow_opacity() const { return readDouble(*this, OrbUni::_shadow_opacity); }
void OrbStyle::setShadow_opacity(double shadowOpacity) { writeShare(*this, OrbUni::_shadow_opacity, shadowOpacity); }
bool OrbStyle::isShadow_opacityPresent() const { return isPresent(*this, OrbUni::_shadow_opacity); }
void OrbStyle::removeShadow_opacity() { removeAttribute(*this, OrbUni::_shadow_opacity); }

const XMLCh* OrbStyle::getShadow_dx() const { return GetAttribute(OrbUni::_shadow_dx); }
void OrbStyle::setShadow_dx(const XMLCh* shadowDx) { SetAttribute(OrbUni::_shadow_dx, shadowDx); }
bool OrbStyle::isShadow_dxPresent() const { return isPresent(*this, OrbUni::_shadow_dx); }
void OrbStyle::removeShadow_dx() { removeAttribute(*this, OrbUni::_shadow_dx); }

const XMLCh* OrbStyle::getShadow_dy() const { return GetAttribute(OrbUni::_shadow_dy); }
void OrbStyle::setShadow_dy(const XMLCh* shadowDy) { SetAttribute(OrbUni::_shadow_dy, shadowDy); }
bool OrbStyle::isShadow_dyPresent() const { return isPresent(*this, OrbUni::_shadow_dy); }
void OrbStyle::removeShadow_dy() { removeAttribute(*this, OrbUni::_shadow_dy); }

// Stroke

const XMLCh* OrbStyle::getStroke_dasharray() const { return GetAttribute(OrbUni::_stroke_dasharray); }
void OrbStyle::setStroke_dasharray(const XMLCh* strokeDasharray) {
  SetAttribute(OrbUni::_stroke_dasharray, strokeDasharray);
}
bool OrbStyle::isStroke_dasharrayPresent() const { return isPresent(*this, OrbUni::_stroke_dasharray); }
void OrbStyle::removeStroke_dasharray() { removeAttribute(*this, OrbUni::_stroke_dasharray); }

const XMLCh* OrbStyle::getStroke_width() const { return GetAttribute(OrbUni::_stroke_width); }
void OrbStyle::setStroke_width(const XMLCh* strokeWidth) { SetAttribute(OrbUni::_stroke_width, strokeWidth); }
bool OrbStyle::isStroke_widthPresent() const { return isPresent(*this, OrbUni::_stroke_width); }
void OrbStyle::removeStroke_width() { removeAttribute(*this, OrbUni::_stroke_width); }

OrbStyle::ENUM_stroke_decoration OrbStyle::getStroke_decoration() const {
  return readKeyword(*this, OrbUni::_stroke_decoration, strokeDecorations, stroke_decoration_unset);
}
void OrbStyle::setStroke_decoration(ENUM_stroke_decoration strokeDecoration) {
  writeKeyword(*this, OrbUni::_stroke_decoration, strokeDecorations, strokeDecoration);
}
bool OrbStyle::isStroke_decorationPresent() const { return isPresent(*this, OrbUni::_stroke_decoration); }
void OrbStyle::removeStroke_decoration() { removeAttribute(*this, OrbUni::_stroke_decoration); }

OrbStyle::ENUM_stroke_linecap OrbStyle::getStroke_linecap() const {
  return readKeyword(*this, OrbUni::_stroke_linecap, strokeLinecaps, stroke_linecap_unset);
}
void OrbStyle::setStroke_linecap(ENUM_stroke_linecap strokeLinecap) {
  writeKeyword(*this, OrbUni::_stroke_linecap, strokeLinecaps, strokeLinecap);
}
bool OrbStyle::isStroke_linecapPresent() const { return isPresent(*this, OrbUni::_stroke_linecap); }
void OrbStyle::removeStroke_linecap() { removeAttribute(*this, OrbUni::_stroke_linecap); }

// Glyph

const XMLCh* OrbStyle::getSize() const { return GetAttribute(OrbUni::_size); }
void OrbStyle::getSize(ChartString& preferred, ChartString& minimum, ChartString& maximum) const {
  getPreferredMinMax(GetAttribute(OrbUni::_size), preferred, minimum, maximum);
}
void OrbStyle::setSize(const XMLCh* size) { SetAttribute(OrbUni::_size, size); }
void OrbStyle::setSize(const XMLCh* preferred, const XMLCh* minimum, const XMLCh* maximum) {
  writeTriple(*this, OrbUni::_size, GetAttribute(OrbUni::_size), {preferred, minimum, maximum});
}
bool OrbStyle::isSizePresent() const { return isPresent(*this, OrbUni::_size); }
void OrbStyle::removeSize() { removeAttribute(*this, OrbUni::_size); }

const XMLCh* OrbStyle::getSymbol() const { return GetAttribute(OrbUni::_symbol); }
OrbStyle::ENUM_symbol OrbStyle::getSymbolEnum() const {
  return readKeyword(*this, OrbUni::_symbol, symbols, symbol_unset);
}
void OrbStyle::setSymbol(const XMLCh* symbol) { SetAttribute(OrbUni::_symbol, symbol); }
void OrbStyle::setSymbol(ENUM_symbol symbol) { writeKeyword(*this, OrbUni::_symbol, symbols, symbol); }
bool OrbStyle::isSymbolPresent() const { return isPresent(*this, OrbUni::_symbol); }
void OrbStyle::removeSymbol() { removeAttribute(*this, OrbUni::_symbol); }

unsigned int OrbStyle::getGlyph_sides() const { return readUnsigned(*this, OrbUni::_glyph_sides); }
void OrbStyle::setGlyph_sides(unsigned int glyphSides) {
  if (glyphSides >= 2 && glyphSides <= 100)
    writeUnsigned(*this, OrbUni::_glyph_sides, glyphSides);
}
bool OrbStyle::isGlyph_sidesPresent() const { return isPresent(*this, OrbUni::_glyph_sides); }
void OrbStyle::removeGlyph_sides() { removeAttribute(*this, OrbUni::_glyph_sides); }

double OrbStyle::getGlyph_angle() const { return readDouble(*this, OrbUni::_glyph_angle); }
void OrbStyle::setGlyph_angle(double glyphAngle) { writeDouble(*this, OrbUni::_glyph_angle, glyphAngle); }
bool OrbStyle::isGlyph_anglePresent() const { return isPresent(*this, OrbUni::_glyph_angle); }
void OrbStyle::removeGlyph_angle() { removeAttribute(*this, OrbUni::_glyph_angle); }

double OrbStyle::getGlyph_aspect() const { return readDouble(*this, OrbUni::_glyph_aspect); }
void OrbStyle::setGlyph_aspect(double glyphAspect) {
  if (glyphAspect > 0.0)
    writeDouble(*this, OrbUni::_glyph_aspect, glyphAspect);
}
bool OrbStyle::isGlyph_aspectPresent() const { return isPresent(*this, OrbUni::_glyph_aspect); }
void OrbStyle::removeGlyph_aspect() { removeAttribute(*this, OrbUni::_glyph_aspect); }

// Background

OrbStyle::ENUM_background_method OrbStyle::getBackground_method() const {
  return readKeyword(*this, OrbUni::_background_method, backgroundMethods, background_method_unset);
}
void OrbStyle::setBackground_method(ENUM_background_method backgroundMethod) {
  writeKeyword(*this, OrbUni::_background_method, backgroundMethods, backgroundMethod);
}
bool OrbStyle::isBackground_methodPresent() const { return isPresent(*this, OrbUni::_background_method); }
void OrbStyle::removeBackground_method() { removeAttribute(*this, OrbUni::_background_method); }

const XMLCh* OrbStyle::getBackground_image() const { return GetAttribute(OrbUni::_background_image); }
void OrbStyle::setBackground_image(const XMLCh* backgroundImage) {
  SetAttribute(OrbUni::_background_image, backgroundImage);
}
bool OrbStyle::isBackground_imagePresent() const { return isPresent(*this, OrbUni::_background_image); }
void OrbStyle::removeBackground_image() { removeAttribute(*this, OrbUni::_background_image); }

// Box

const XMLCh* OrbStyle::getMargin() const { return GetAttribute(OrbUni::_margin); }
void OrbStyle::setMargin(const XMLCh* margin) { SetAttribute(OrbUni::_margin, margin); }
bool OrbStyle::isMarginPresent() const { return isPresent(*this, OrbUni::_margin); }
void OrbStyle::removeMargin() { removeAttribute(*this, OrbUni::_margin); }

const XMLCh* OrbStyle::getMargin_left() const { return GetAttribute(_UTF_margin_left); }
void OrbStyle::setMargin_left(const XMLCh* marginLeft) { SetAttribute(_UTF_margin_left, marginLeft); }
bool OrbStyle::isMargin_leftPresent() const { return isPresent(*this, _UTF_margin_left); }
void OrbStyle::removeMargin_left() { removeAttribute(*this, _UTF_margin_left); }

const XMLCh* OrbStyle::getMargin_right() const { return GetAttribute(_UTF_margin_right); }
void OrbStyle::setMargin_right(const XMLCh* marginRight) { SetAttribute(_UTF_margin_right, marginRight); }
bool OrbStyle::isMargin_rightPresent() const { return isPresent(*this, _UTF_margin_right); }
void OrbStyle::removeMargin_right() { removeAttribute(*this, _UTF_margin_right); }

const XMLCh* OrbStyle::getMargin_top() const { return GetAttribute(_UTF_margin_top); }
void OrbStyle::setMargin_top(const XMLCh* marginTop) { SetAttribute(_UTF_margin_top, marginTop); }
bool OrbStyle::isMargin_topPresent() const { return isPresent(*this, _UTF_margin_top); }
void OrbStyle::removeMargin_top() { removeAttribute(*this, _UTF_margin_top); }

const XMLCh* OrbStyle::getMargin_bottom() const { return GetAttribute(_UTF_margin_bottom); }
void OrbStyle::setMargin_bottom(const XMLCh* marginBottom) { SetAttribute(_UTF_margin_bottom, marginBottom); }
bool OrbStyle::isMargin_bottomPresent() const { return isPresent(*this, _UTF_margin_bottom); }
void OrbStyle::removeMargin_bottom() { removeAttribute(*this, _UTF_margin_bottom); }

const XMLCh* OrbStyle::getPadding() const { return GetAttribute(OrbUni::_padding); }
void OrbStyle::setPadding(const XMLCh* padding) { SetAttribute(OrbUni::_padding, padding); }
bool OrbStyle::isPaddingPresent() const { return isPresent(*this, OrbUni::_padding); }
void OrbStyle::removePadding() { removeAttribute(*this, OrbUni::_padding); }

const XMLCh* OrbStyle::getPadding_left() const { return GetAttribute(_UTF_padding_left); }
void OrbStyle::setPadding_left(const XMLCh* paddingLeft) { SetAttribute(_UTF_padding_left, paddingLeft); }
bool OrbStyle::isPadding_leftPresent() const { return isPresent(*this, _UTF_padding_left); }
void OrbStyle::removePadding_left() { removeAttribute(*this, _UTF_padding_left); }

const XMLCh* OrbStyle::getPadding_right() const { return GetAttribute(_UTF_padding_right); }
void OrbStyle::setPadding_right(const XMLCh* paddingRight) { SetAttribute(_UTF_padding_right, paddingRight); }
bool OrbStyle::isPadding_rightPresent() const { return isPresent(*this, _UTF_padding_right); }
void OrbStyle::removePadding_right() { removeAttribute(*this, _UTF_padding_right); }

const XMLCh* OrbStyle::getPadding_top() const { return GetAttribute(_UTF_padding_top); }
void OrbStyle::setPadding_top(const XMLCh* paddingTop) { SetAttribute(_UTF_padding_top, paddingTop); }
bool OrbStyle::isPadding_topPresent() const { return isPresent(*this, _UTF_padding_top); }
void OrbStyle::removePadding_top() { removeAttribute(*this, _UTF_padding_top); }

const XMLCh* OrbStyle::getPadding_bottom() const { return GetAttribute(_UTF_padding_bottom); }
void OrbStyle::setPadding_bottom(const XMLCh* paddingBottom) { SetAttribute(_UTF_padding_bottom, paddingBottom); }
bool OrbStyle::isPadding_bottomPresent() const { return isPresent(*this, _UTF_padding_bottom); }
void OrbStyle::removePadding_bottom() { removeAttribute(*this, _UTF_padding_bottom); }

void OrbStyle::getWidth(ChartString& preferred, ChartString& minimum, ChartString& maximum) const {
  getPreferredMinMax(GetAttribute(OrbUni::_width), preferred, minimum, maximum);
}
void OrbStyle::setWidth(const XMLCh* preferred, const XMLCh* minimum, const XMLCh* maximum) {
  writeTriple(*this, OrbUni::_width, GetAttribute(OrbUni::_width), {preferred, minimum, maximum});
}
bool OrbStyle::isWidthPresent() const { return isPresent(*this, OrbUni::_width); }
void OrbStyle::removeWidth() { removeAttribute(*this, OrbUni::_width); }

void OrbStyle::getHeight(ChartString& preferred, ChartString& minimum, ChartString& maximum) const {
  getPreferredMinMax(GetAttribute(OrbUni::_height), preferred, minimum, maximum);
}
void OrbStyle::setHeight(const XMLCh* preferred, const XMLCh* minimum, const XMLCh* maximum) {
  writeTriple(*this, OrbUni::_height, GetAttribute(OrbUni::_width), {preferred, minimum, maximum});
}
bool OrbStyle::isHeightPresent() const { return isPresent(*this, OrbUni::_height); }
void OrbStyle::removeHeight() { removeAttribute(*this, OrbUni::_height); }

// Border

OrbStyle::ENUM_border_style OrbStyle::getBorder_left() const {
  return readKeyword(*this, OrbUni::_border_left, borderStyles, border_style_unset);
}
void OrbStyle::setBorder_left(const XMLCh* style) { SetAttribute(OrbUni::_border_left, style); }
void OrbStyle::setBorder_left(ENUM_border_style style) {
  writeKeyword(*this, OrbUni::_border_left, borderStyles, style);
}
bool OrbStyle::isBorder_leftPresent() const { return isPresent(*this, OrbUni::_border_left); }
bool OrbStyle::isBorderLeftPresent() const { return isBorder_leftPresent(); }
void OrbStyle::removeBorder_left() { removeAttribute(*this, OrbUni::_border_left); }

OrbStyle::ENUM_border_style OrbStyle::getBorder_right() const {
  return readKeyword(*this, OrbUni::_border_right, borderStyles, border_style_unset);
}
void OrbStyle::setBorder_right(const XMLCh* style) { SetAttribute(OrbUni::_border_right, style); }
void OrbStyle::setBorder_right(ENUM_border_style style) {
  writeKeyword(*this, OrbUni::_border_right, borderStyles, style);
}
bool OrbStyle::isBorder_rightPresent() const { return isPresent(*this, OrbUni::_border_right); }
bool OrbStyle::isBorderRightPresent() const { return isBorder_rightPresent(); }
void OrbStyle::removeBorder_right() { removeAttribute(*this, OrbUni::_border_right); }

OrbStyle::ENUM_border_style OrbStyle::getBorder_top() const {
  return readKeyword(*this, OrbUni::_border_top, borderStyles, border_style_unset);
}
void OrbStyle::setBorder_top(const XMLCh* style) { SetAttribute(OrbUni::_border_top, style); }
void OrbStyle::setBorder_top(ENUM_border_style style) { writeKeyword(*this, OrbUni::_border_top, borderStyles, style); }
bool OrbStyle::isBorder_topPresent() const { return isPresent(*this, OrbUni::_border_top); }
bool OrbStyle::isBorderTopPresent() const { return isBorder_topPresent(); }
void OrbStyle::removeBorder_top() { removeAttribute(*this, OrbUni::_border_top); }

OrbStyle::ENUM_border_style OrbStyle::getBorder_bottom() const {
  return readKeyword(*this, OrbUni::_border_bottom, borderStyles, border_style_unset);
}
void OrbStyle::setBorder_bottom(const XMLCh* style) { SetAttribute(OrbUni::_border_bottom, style); }
void OrbStyle::setBorder_bottom(ENUM_border_style style) {
  writeKeyword(*this, OrbUni::_border_bottom, borderStyles, style);
}
bool OrbStyle::isBorder_bottomPresent() const { return isPresent(*this, OrbUni::_border_bottom); }
bool OrbStyle::isBorderBottomPresent() const { return isBorder_bottomPresent(); }
void OrbStyle::removeBorder_bottom() { removeAttribute(*this, OrbUni::_border_bottom); }

const XMLCh* OrbStyle::getBorder_left_color() const { return GetAttribute(_UTF_border_left_color); }
void OrbStyle::setBorder_left_color(const XMLCh* borderLeftColor) {
  SetAttribute(_UTF_border_left_color, borderLeftColor);
}
bool OrbStyle::isBorder_left_colorPresent() const { return isPresent(*this, _UTF_border_left_color); }
void OrbStyle::removeBorder_left_color() { removeAttribute(*this, _UTF_border_left_color); }

const XMLCh* OrbStyle::getBorder_right_color() const { return GetAttribute(_UTF_border_right_color); }
void OrbStyle::setBorder_right_color(const XMLCh* borderRightColor) {
  SetAttribute(_UTF_border_right_color, borderRightColor);
}
bool OrbStyle::isBorder_right_colorPresent() const { return isPresent(*this, _UTF_border_right_color); }
void OrbStyle::removeBorder_right_color() { removeAttribute(*this, _UTF_border_right_color); }

const XMLCh* OrbStyle::getBorder_top_color() const { return GetAttribute(_UTF_border_top_color); }
void OrbStyle::setBorder_top_color(const XMLCh* borderTopColor) { SetAttribute(_UTF_border_top_color, borderTopColor); }
bool OrbStyle::isBorder_top_colorPresent() const { return isPresent(*this, _UTF_border_top_color); }
void OrbStyle::removeBorder_top_color() { removeAttribute(*this, _UTF_border_top_color); }

const XMLCh* OrbStyle::getBorder_bottom_color() const { return GetAttribute(_UTF_border_bottom_color); }
void OrbStyle::setBorder_bottom_color(const XMLCh* borderBottomColor) {
  SetAttribute(_UTF_border_bottom_color, borderBottomColor);
}
bool OrbStyle::isBorder_bottom_colorPresent() const { return isPresent(*this, _UTF_border_bottom_color); }
void OrbStyle::removeBorder_bottom_color() { removeAttribute(*this, _UTF_border_bottom_color); }

// Font

const XMLCh* OrbStyle::getFont_family() const { return GetAttribute(OrbUni::_font_family); }
void OrbStyle::setFont_family(const XMLCh* fontFamily) { SetAttribute(OrbUni::_font_family, fontFamily); }
bool OrbStyle::isFont_familyPresent() const { return isPresent(*this, OrbUni::_font_family); }
void OrbStyle::removeFont_family() { removeAttribute(*this, OrbUni::_font_family); }

void OrbStyle::getFontSize(ChartString& preferred, ChartString& minimum, ChartString& maximum) const {
  getPreferredMinMax(GetAttribute(OrbUni::_font_size), preferred, minimum, maximum);
}
void OrbStyle::setFontSize(const XMLCh* preferred, const XMLCh* minimum, const XMLCh* maximum) {
  writeTriple(*this, OrbUni::_font_size, GetAttribute(OrbUni::_font_size), {preferred, minimum, maximum});
}
bool OrbStyle::isFont_sizePresent() const { return isPresent(*this, OrbUni::_font_size); }
void OrbStyle::removeFont_size() { removeAttribute(*this, OrbUni::_font_size); }

OrbStyle::ENUM_font_style OrbStyle::getFont_style() const {
  return readKeyword(*this, OrbUni::_font_style, fontStyles, font_style_unset);
}
void OrbStyle::setFont_style(ENUM_font_style fontStyle) {
  writeKeyword(*this, OrbUni::_font_style, fontStyles, fontStyle);
}
bool OrbStyle::isFont_stylePresent() const { return isPresent(*this, OrbUni::_font_style); }
void OrbStyle::removeFont_style() { removeAttribute(*this, OrbUni::_font_style); }

OrbStyle::ENUM_font_weight OrbStyle::getFont_weight() const {
  return readKeyword(*this, OrbUni::_font_weight, fontWeights, font_weight_unset);
}
void OrbStyle::setFont_weight(ENUM_font_weight fontWeight) {
  writeKeyword(*this, OrbUni::_font_weight, fontWeights, fontWeight);
}
bool OrbStyle::isFont_weightPresent() const { return isPresent(*this, OrbUni::_font_weight); }
void OrbStyle::removeFont_weight() { removeAttribute(*this, OrbUni::_font_weight); }

OrbStyle::ENUM_font_underline OrbStyle::getFont_underline() const {
  return readKeyword(*this, _UTF_font_underline, fontUnderlines, font_underline_unset);
}
void OrbStyle::setFont_underline(ENUM_font_underline fontUnderline) {
  writeKeyword(*this, _UTF_font_underline, fontUnderlines, fontUnderline);
}
bool OrbStyle::isFont_underlinePresent() const { return isPresent(*this, _UTF_font_underline); }
void OrbStyle::removeFont_underline() { removeAttribute(*this, _UTF_font_underline); }

// Depth

const XMLCh* OrbStyle::getBevel_size() const { return GetAttribute(OrbUni::_bevel_size); }
void OrbStyle::setBevel_size(const XMLCh* bevelSize) { SetAttribute(OrbUni::_bevel_size, bevelSize); }
bool OrbStyle::isBevel_sizePresent() const { return isPresent(*this, OrbUni::_bevel_size); }
void OrbStyle::removeBevel_size() { removeAttribute(*this, OrbUni::_bevel_size); }

const XMLCh* OrbStyle::getDepth() const { return GetAttribute(OrbUni::_depth); }
void OrbStyle::setDepth(const XMLCh* depth) { SetAttribute(OrbUni::_depth, depth); }
bool OrbStyle::isDepthPresent() const { return isPresent(*this, OrbUni::_depth); }
void OrbStyle::removeDepth() { removeAttribute(*this, OrbUni::_depth); }

bool OrbStyle::getDepthRelativeToWidth() const { return readBooleanUnlessFalse(*this, OrbUni::_depthRelativeToWidth); }
void OrbStyle::setDepthRelativeToWidth(bool depthRelativeToWidth) {
  writeBoolean(*this, OrbUni::_depthRelativeToWidth, depthRelativeToWidth);
}
bool OrbStyle::isDepthRelativeToWidthPresent() const { return isPresent(*this, OrbUni::_depthRelativeToWidth); }
void OrbStyle::removeDepthRelativeToWidth() { removeAttribute(*this, OrbUni::_depthRelativeToWidth); }

// Text and labels

double OrbStyle::getLabelAngle() const { return readDouble(*this, OrbUni::_labelAngle); }
void OrbStyle::setLabelAngle(double labelAngle) { writeDouble(*this, OrbUni::_labelAngle, labelAngle); }
bool OrbStyle::isLabelAnglePresent() const { return isPresent(*this, OrbUni::_labelAngle); }
void OrbStyle::removeLabelAngle() { removeAttribute(*this, OrbUni::_labelAngle); }

OrbStyle::ENUM_labelInside OrbStyle::getLabelInside() const {
  return readKeyword(*this, OrbUni::_labelInside, labelInsides, labelInside_unset);
}
void OrbStyle::setLabelInside(ENUM_labelInside labelInside) {
  writeKeyword(*this, OrbUni::_labelInside, labelInsides, labelInside);
}
bool OrbStyle::isLabelInsidePresent() const { return isPresent(*this, OrbUni::_labelInside); }
void OrbStyle::removeLabelInside() { removeAttribute(*this, OrbUni::_labelInside); }

OrbStyle::ENUM_labelLocationHorizontal OrbStyle::getLabelLocationHorizontal() const {
  return readKeyword(*this, OrbUni::_labelLocationHorizontal, labelLocationsHorizontal, labelLocationHorizontal_unset);
}
void OrbStyle::setLabelLocationHorizontal(ENUM_labelLocationHorizontal labelLocationHorizontal) {
  writeKeyword(*this, OrbUni::_labelLocationHorizontal, labelLocationsHorizontal, labelLocationHorizontal);
}
bool OrbStyle::isLabelLocationHorizontalPresent() const { return isPresent(*this, OrbUni::_labelLocationHorizontal); }
void OrbStyle::removeLabelLocationHorizontal() { removeAttribute(*this, OrbUni::_labelLocationHorizontal); }

OrbStyle::ENUM_labelLocationVertical OrbStyle::getLabelLocationVertical() const {
  return readKeyword(*this, OrbUni::_labelLocationVertical, labelLocationsVertical, labelLocationVertical_unset);
}
void OrbStyle::setLabelLocationVertical(ENUM_labelLocationVertical labelLocationVertical) {
  writeKeyword(*this, OrbUni::_labelLocationVertical, labelLocationsVertical, labelLocationVertical);
}
bool OrbStyle::isLabelLocationVerticalPresent() const { return isPresent(*this, OrbUni::_labelLocationVertical); }
void OrbStyle::removeLabelLocationVertical() { removeAttribute(*this, OrbUni::_labelLocationVertical); }

OrbStyle::ENUM_textAlignment OrbStyle::getTextAlignment() const {
  return readKeyword(*this, _UTF_textAlignment, textAlignments, textAlignment_unset);
}
void OrbStyle::setTextAlignment(ENUM_textAlignment textAlignment) {
  writeKeyword(*this, _UTF_textAlignment, textAlignments, textAlignment);
}
bool OrbStyle::isTextAlignmentPresent() const { return isPresent(*this, _UTF_textAlignment); }
void OrbStyle::removeTextAlignment() { removeAttribute(*this, _UTF_textAlignment); }

const XMLCh* OrbStyle::getDecimal_offset() const { return GetAttribute(_UTF_decimal_offset); }
void OrbStyle::setDecimal_offset(const XMLCh* decimalOffset) { SetAttribute(_UTF_decimal_offset, decimalOffset); }
bool OrbStyle::isDecimal_offsetPresent() const { return isPresent(*this, _UTF_decimal_offset); }
void OrbStyle::removeDecimal_offset() { removeAttribute(*this, _UTF_decimal_offset); }

bool OrbStyle::getIgnoreNewLines() const { return readBooleanUnlessFalse(*this, _UTF_ignoreNewLines); }
void OrbStyle::setIgnoreNewLines(bool ignoreNewLines) { writeBoolean(*this, _UTF_ignoreNewLines, ignoreNewLines); }
bool OrbStyle::isIgnoreNewLinesPresent() const { return isPresent(*this, _UTF_ignoreNewLines); }
void OrbStyle::removeIgnoreNewLines() { removeAttribute(*this, _UTF_ignoreNewLines); }

bool OrbStyle::getTwoCharacterVertical() const { return readBooleanUnlessFalse(*this, _UTF_twoCharacterVertical); }
void OrbStyle::setTwoCharacterVertical(bool twoCharacterVertical) {
  writeBoolean(*this, _UTF_twoCharacterVertical, twoCharacterVertical);
}
bool OrbStyle::isTwoCharacterVerticalPresent() const { return isPresent(*this, _UTF_twoCharacterVertical); }
void OrbStyle::removeTwoCharacterVertical() { removeAttribute(*this, _UTF_twoCharacterVertical); }

bool OrbStyle::getBaselineRotated() const { return readBooleanUnlessFalse(*this, _UTF_baselineRotated); }
void OrbStyle::setBaselineRotated(bool baselineRotated) { writeBoolean(*this, _UTF_baselineRotated, baselineRotated); }
bool OrbStyle::isBaselineRotatedPresent() const { return isPresent(*this, _UTF_baselineRotated); }
void OrbStyle::removeBaselineRotated() { removeAttribute(*this, _UTF_baselineRotated); }

const XMLCh* OrbStyle::getMaxAttachedTextWidth() const { return GetAttribute(_UTF_maxAttachedTextWidth); }
void OrbStyle::setMaxAttachedTextWidth(const XMLCh* maxAttachedTextWidth) {
  SetAttribute(_UTF_maxAttachedTextWidth, maxAttachedTextWidth);
}
bool OrbStyle::isMaxAttachedTextWidthPresent() const { return isPresent(*this, _UTF_maxAttachedTextWidth); }
void OrbStyle::removeMaxAttachedTextWidth() { removeAttribute(*this, _UTF_maxAttachedTextWidth); }

const XMLCh* OrbStyle::getMaxAttachedTextHeight() const { return GetAttribute(_UTF_maxAttachedTextHeight); }
void OrbStyle::setMaxAttachedTextHeight(const XMLCh* maxAttachedTextHeight) {
  SetAttribute(_UTF_maxAttachedTextHeight, maxAttachedTextHeight);
}
bool OrbStyle::isMaxAttachedTextHeightPresent() const { return isPresent(*this, _UTF_maxAttachedTextHeight); }
void OrbStyle::removeMaxAttachedTextHeight() { removeAttribute(*this, _UTF_maxAttachedTextHeight); }

bool OrbStyle::getText_fit() const { return readBoolean(*this, OrbUni::_text_fit); }
void OrbStyle::setText_fit(bool textFit) { writeBoolean(*this, OrbUni::_text_fit, textFit); }
bool OrbStyle::isText_fitPresent() const { return isPresent(*this, OrbUni::_text_fit); }
void OrbStyle::removeText_fit() { removeAttribute(*this, OrbUni::_text_fit); }

bool OrbStyle::getText_rotate() const { return readBoolean(*this, _UTF_text_rotate); }
void OrbStyle::setText_rotate(bool textRotate) { writeBoolean(*this, _UTF_text_rotate, textRotate); }
bool OrbStyle::isText_rotatePresent() const { return isPresent(*this, _UTF_text_rotate); }
void OrbStyle::removeText_rotate() { removeAttribute(*this, _UTF_text_rotate); }

bool OrbStyle::getVisible() const { return readBooleanUnlessFalse(*this, OrbUni::_visible); }
void OrbStyle::setVisible(bool visible) { writeBoolean(*this, OrbUni::_visible, visible); }
bool OrbStyle::isVisiblePresent() const { return isPresent(*this, OrbUni::_visible); }
void OrbStyle::removeVisible() { removeAttribute(*this, OrbUni::_visible); }

// Children

OrbStyle* OrbStyle::addStyle() { return children_->add<OrbStyle>(*this, AfterStyles{}); }
std::vector<OrbStyle*> OrbStyle::getStyles() const { return children_->all<OrbStyle>(); }
unsigned int OrbStyle::removeStyles() { return children_->removeAll<OrbStyle>(*this, Ids::strip); }

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
