// What an action raises, as the tests ask for it.
#pragma once

#include "dom.h"
#include "orbexception.h"

#include <string>

namespace test {

/// The message of the exception that an action raises.
template <class Action> std::string messageOf(Action action) {
  try {
    action();
  } catch (const OrbException& exception) {
    return exception.what();
  }
  return "nothing raised";
}

/// Whether a wrapper over an element with some content raises the error of an unknown child.
template <class Wrapper> bool refuses(const std::string& content) {
  const Platform platform;
  const std::string name = utf8(Wrapper::elementName);
  const Parsed parsed("<" + name + ">" + content + "</" + name + ">");
  return messageOf([&] { const Wrapper wrapper(parsed.root()); }).find("Element " + name + " found unknown child ") ==
         0;
}

} // namespace test
