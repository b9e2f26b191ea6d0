// Which variables a reference leads to, as the tests of references ask for it.
#pragma once

#include "dom.h"
#include "orbderivedvariable.h"
#include "orbexpressionvariable.h"
#include "orbmultipleresponsevariable.h"
#include "orbsourcevariable.h"

#include <gtest/gtest.h>

#include <string>

namespace test {

/// A reference is set to a variable of each class in turn. The names of those that the getter gives back; for all
/// others it gives null, and every setter writes the id.
template <class Wrapper, class Target>
std::string variablesFound(const XMLCh* attribute, Target* (Wrapper::*get)() const,
                           void (Wrapper::*set)(const CTVariableType&)) {
  const NewDocument document(Wrapper::elementName);
  Wrapper wrapper(document.root());
  SCOPED_TRACE(utf8(Wrapper::elementName) + " " + utf8(attribute));
  std::string found;
  const auto point = [&](auto& variable) {
    const std::string name = utf8(variable.getImplementation()->getTagName());
    variable.setId(variable.getImplementation()->getTagName());
    (wrapper.*set)(variable);
    EXPECT_EQ(utf8(document.root()->getAttribute(attribute)), name);
    const CTVariableType* target = (wrapper.*get)();
    if (target == &variable)
      found += (found.empty() ? "" : " ") + name;
    else
      EXPECT_EQ(target, nullptr) << name;
  };
  const auto create = [&](const XMLCh* name) { return document.document()->createElement(name); };
  OrbSourceVariable source(create(u"sourceVariable"));
  OrbDerivedVariable derived(create(u"derivedVariable"));
  OrbExpressionVariable expression(create(u"expressionVariable"));
  OrbMultipleResponseVariable multipleResponse(create(u"multipleResponseVariable"));
  point(source);
  point(derived);
  point(expression);
  point(multipleResponse);
  return found;
}

/// What a reference finds that leads to any variable but one of multiple responses.
inline const std::string allVariables = "sourceVariable derivedVariable expressionVariable";

} // namespace test
