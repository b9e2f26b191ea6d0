// The accessors that differ from the rule of their names, each as Class::X.
#pragma once

#include <map>
#include <set>
#include <string>

namespace test {

/// Accessors whose attribute or element has another name.
inline const std::map<std::string, std::string> otherNames = {
    {"OrbColor::ScaleAttribute", "scale"},
    {"OrbFilter::CategoricalDomain", "domain"},
    {"OrbFilter::IntervalDomain", "domain"},
    {"CTFormatType::HiddenSeparator", "hiddenseparator"},
    {"OrbParagraph::HangingIndentPixels", "hangingIndent"},
    {"OrbStyle::BorderBottom", "border-bottom"},
    {"OrbStyle::BorderLeft", "border-left"},
    {"OrbStyle::BorderRight", "border-right"},
    {"OrbStyle::BorderTop", "border-top"},
};

/// Setters that write nothing for what the test gives them, or write it under a name that they are given.
inline const std::set<std::string> oddSetters = {
    "CTAesthetic::DomainModifier", "OrbAnimation::Source",   "OrbAnimation::Target",
    "OrbExtensionVis::StyleCycle", "OrbReshapeSource::Base",
};

/// Getters that do not read what the setter wrote.
inline const std::set<std::string> oddGetters = {
    "CTAesthetic::DomainModifier",
    "CTVariableType::LabelVariable",
    "OrbAnimation::Source",
    "OrbAnimation::Target",
    "OrbBinStatistic::Method",
    "OrbElementVariableReference::Element",
    "OrbElementVariableReference::Ref",
    "OrbExtensionStyle::ConversionType",
    "OrbFilter::CategoricalDomain",
    "OrbFilter::IntervalDomain",
    "OrbGraphLayoutStatistic::Nodes",
    "OrbLocation::Target",
    "OrbParagraph::HangingIndent",
    "OrbReshapeSource::Base",
    "OrbSwingController::Target",
};

/// Booleans that are true where the attribute is absent.
inline const std::set<std::string> trueWhenAbsent = {
    "OrbStyle::BaselineRotated", "OrbStyle::DepthRelativeToWidth", "OrbStyle::Gradient_isInverted",
    "OrbStyle::IgnoreNewLines",  "OrbStyle::TwoCharacterVertical", "OrbStyle::Visible",
};

/// Removes that leave the elements.
inline const std::set<std::string> oddRemoves = {"OrbDerivedVariable::ValueMapEntry"};

/// Elements whose wrappers are registered under another name than theirs.
inline const std::map<std::string, std::u16string> otherKeys = {{"categories2", u"categories"}};

/// Elements whose wrappers register themselves nowhere.
inline const std::set<std::string> unregistered = {"relabel"};

/// Families whose children lose their ids when they are removed. All others leave them registered.
inline const std::map<std::string, std::set<std::string>> forgottenFamilies = {
    {"OrbBlend", {"Blend", "Cross", "Nest"}},
    {"OrbCoordinates", {"TransposeTransform"}},
    {"OrbCross", {"Blend", "Cross", "Nest"}},
    {"OrbCycle", {"Style"}},
    {"OrbDescriptionGroup", {"Description", "Text"}},
    {"OrbDimension", {"Axis", "Scale"}},
    {"OrbFacetLayout", {"FacetLevel"}},
    {"OrbFacetLevel", {"Axis"}},
    {"OrbGraph",
     {"Area", "Coordinates", "Edge", "FacetLayout", "Faceting", "FrameGuide", "FunctionGuide", "Interval", "Line",
      "LineGuide", "Location", "Path", "PlaneGuide", "Point", "PointGuide", "Polygon", "Schema"}},
    {"OrbLabelFrame", {"Label", "Location"}},
    {"OrbLegend", {"Label", "LegendTarget", "Location"}},
    {"OrbMajorTicks", {"Gridline"}},
    {"OrbMinorTicks", {"Gridline"}},
    {"OrbNest", {"Blend", "Cross", "Nest"}},
    {"OrbStyle", {"Style"}},
    {"OrbStyleCycle", {"Cycle"}},
    {"OrbVisualization",
     {"CategoricalDomain", "Container", "DatabaseSource", "DelimitedFileSource", "DerivedVariable", "DrillDown",
      "EmbeddedSource", "ExpressionVariable", "Graph", "IntervalDomain", "LabelFrame", "Legend", "Location", "Popup",
      "SourceVariable", "StreamingSource", "Style", "StyleCycle", "UserSource"}},
};

} // namespace test
