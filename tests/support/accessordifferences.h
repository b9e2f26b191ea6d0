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

/// Removes that leave the elements.
inline const std::set<std::string> oddRemoves = {"OrbDerivedVariable::ValueMapEntry"};

} // namespace test
