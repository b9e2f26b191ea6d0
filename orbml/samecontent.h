// Whether two documents hold the same, however they are laid out.
#pragma once

#include <xercesc/dom/DOM.hpp>

/// Compares elements, attributes, texts, comments and instructions in their order. Texts of white space alone are
/// layout.
bool holdTheSame(const xercesc::DOMDocument& one, const xercesc::DOMDocument& other);
