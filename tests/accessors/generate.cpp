// Writes the test of the accessors from the public headers: names are the oracle. `getX`, `setX`, `isXPresent` and
// `removeX` belong to the attribute whose name, in capitals, is X; `addX` makes the element of that name.
//
//   generate <directory of the headers> <directory of the tests> <prefix of the output files> <number of files>
#include <algorithm>
#include <cctype>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <map>
#include <regex>
#include <set>
#include <sstream>
#include <string>
#include <vector>

namespace fs = std::filesystem;

namespace {

struct Operation {
  std::string result;
  std::string name;
  std::vector<std::string> arguments; // their types
  bool isConst = false;
};

struct Class {
  std::string name;
  std::string header;
  std::string base;
  bool isConcrete = false; // a host may construct it over an element
  std::set<std::string> enumerations;
  std::vector<Operation> operations;

  const Operation* find(const std::string& name) const {
    const auto found = std::find_if(operations.begin(), operations.end(),
                                    [&](const Operation& operation) { return operation.name == name; });
    return found == operations.end() ? nullptr : &*found;
  }
};

std::string contentsOf(const fs::path& path) {
  std::ostringstream text;
  text << std::ifstream(path).rdbuf();
  return text.str();
}

std::string trimmed(const std::string& text) {
  const std::size_t begin = text.find_first_not_of(" \n");
  return begin == std::string::npos ? "" : text.substr(begin, text.find_last_not_of(" \n") - begin + 1);
}

bool startsWith(const std::string& text, const std::string& prefix) {
  return text.compare(0, prefix.size(), prefix) == 0;
}

/// The types of the arguments of a declaration.
std::vector<std::string> typesOf(const std::string& arguments) {
  std::vector<std::string> types;
  std::stringstream list(arguments);
  for (std::string argument; std::getline(list, argument, ',');) {
    const std::string text = trimmed(argument);
    if (!text.empty())
      types.push_back(trimmed(std::regex_replace(text, std::regex(R"(\w+$)"), "")));
  }
  return types;
}

Class parsed(const fs::path& header) {
  Class result;
  result.header = header.filename().string();
  const std::string text = std::regex_replace(contentsOf(header), std::regex(R"(//[^\n]*)"), "");
  std::smatch match;
  if (!std::regex_search(text, match, std::regex(R"(class ORBCHART_EXPORT (\w+)(?: : public (\w+))? \{)")))
    return result;
  result.name = match[1];
  result.base = match[2];
  std::string body = match.suffix();
  body = body.substr(0, body.find("\n};"));
  std::string access = body.substr(0, body.find("\nprivate:"));
  const std::string open = access.substr(0, access.find("\nprotected:"));
  result.isConcrete = open.find(" " + result.name + "(xercesc::DOMElement* ") != std::string::npos;
  const std::regex enumeration(R"(enum (\w+) : int)");
  for (std::sregex_iterator at(open.begin(), open.end(), enumeration), end; at != end; ++at)
    result.enumerations.insert((*at)[1]);
  const std::regex declaration(
      R"(\n  (?:virtual )?((?:const |unsigned )?[\w:]+(?:<[^>]*>)?[*&]* ?)(\w+)\(([^()]*)\)( const)?(?: override)?;)");
  for (std::sregex_iterator at(open.begin(), open.end(), declaration), end; at != end; ++at) {
    const std::string before = trimmed((*at)[1]);
    if (before != "explicit" && before != "static" && before != result.name)
      result.operations.push_back({before, (*at)[2], typesOf((*at)[3]), (*at)[4].matched});
  }
  return result;
}

class Generator {
public:
  Generator(const fs::path& headers, const fs::path& tests) {
    std::vector<fs::path> paths(fs::directory_iterator(headers), fs::directory_iterator{});
    std::sort(paths.begin(), paths.end());
    for (const fs::path& path : paths) {
      Class one = parsed(path);
      if (!one.name.empty())
        classes_.emplace(one.name, std::move(one));
    }
    for (const fs::path& path : fs::directory_iterator(tests)) {
      if (path.extension() == ".cpp")
        collectWords(contentsOf(path));
    }
  }

  /// The classes that wrap an element.
  std::vector<const Class*> wrappers() const {
    std::vector<const Class*> result;
    for (const auto& [name, one] : classes_) {
      if (derivesFrom(one, "OrbBaseElement") && (one.isConcrete || !standInFor(name).empty()))
        result.push_back(&one);
    }
    return result;
  }

  std::string testOf(const Class& one) {
    const std::string concrete = one.isConcrete ? one.name : standInFor(one.name);
    std::ostringstream test;
    test << "#include \"" << classes_.at(concrete).header << "\"\n\n";
    for (const char* target : {"OrbSourceVariable", "OrbLine", "OrbDomainExclude"})
      test << "#include \"" << classes_.at(target).header << "\"\n";
    std::ostringstream body;
    std::set<std::string> used;
    writeAttributes(one, body, used);
    writeFamilies(one, body, used);
    for (const std::string& include : includes_)
      test << "#include \"" << include << "\"\n";
    includes_.clear();
    test << "\nTEST(Accessors, Of" << one.name << ") {\n  using Checked = test::Accessors<" << concrete << ", "
         << one.name << ">;\n  Checked accessors(\"" << one.name << "\", {";
    for (const std::string& attribute : attributesOf(one))
      test << '"' << attribute << "\", ";
    test << "});\n" << body.str() << "}\n";
    for (const Operation& operation : one.operations) {
      if (used.count(operation.name) == 0 && testWords_.count(operation.name) == 0)
        untested_.insert(one.name + "::" + operation.name);
    }
    return test.str();
  }

  const std::set<std::string>& untested() const { return untested_; }

private:
  void collectWords(const std::string& text) {
    std::string word;
    for (const char character : text) {
      if (std::isalnum(static_cast<unsigned char>(character)) != 0 || character == '_') {
        word += character;
      } else if (!word.empty()) {
        testWords_.insert(word);
        word.clear();
      }
    }
  }

  bool derivesFrom(const Class& one, const std::string& base) const {
    const auto found = classes_.find(one.base);
    return one.base == base || (found != classes_.end() && derivesFrom(found->second, base));
  }

  /// A class that can be constructed, for a common base.
  std::string standInFor(const std::string& base) const {
    for (const auto& [name, one] : classes_) {
      // A labeling has accessors of its own in the place of its base's.
      if (one.isConcrete && one.base == base && name != "OrbLabeling")
        return name;
    }
    return "";
  }

  /// The X of all accessors: what has a setter, is asked for its presence, or is removed and no family.
  static std::set<std::string> attributesOf(const Class& one) {
    std::set<std::string> result;
    for (const Operation& operation : one.operations) {
      const std::string& name = operation.name;
      if (startsWith(name, "set") && operation.arguments.size() == 1)
        result.insert(name.substr(3));
      else if (startsWith(name, "is") && name.size() > 9 && name.substr(name.size() - 7) == "Present")
        result.insert(name.substr(2, name.size() - 9));
      else if (startsWith(name, "remove") && operation.arguments.empty() && operation.result == "void")
        result.insert(name.substr(6));
    }
    result.erase("Text"); // the text of an element
    result.erase("Comment");
    return result;
  }

  /// An argument for a parameter of a type; empty for one that is tested by hand.
  std::string argumentFor(const Class& one, const std::string& type) {
    static const std::map<std::string, std::string> plain = {
        {"const XMLCh*", "u\"a\""},  {"bool", "true"}, {"double", "0.5"},
        {"unsigned int", "3U"},      {"int", "3"},     {"unsigned long", "3UL"},
        {"CTAesthetic*", "nullptr"},
    };
    if (const auto found = plain.find(type); found != plain.end())
      return found->second;
    std::smatch match;
    if (std::regex_match(type, match, std::regex(R"(const (\w+)&)")) && match[1] != "ChartString") {
      static const std::map<std::string, std::string> standIns = {{"OrbBaseElement", "OrbLine"},
                                                                  {"CTElementType", "OrbLine"},
                                                                  {"CTVariableType", "OrbSourceVariable"},
                                                                  {"CTModifier", "OrbDomainExclude"}};
      const auto standIn = standIns.find(match[1]);
      const std::string target = standIn == standIns.end() ? match[1].str() : standIn->second;
      includes_.insert(classes_.at(target).header);
      return "checked.target<" + target + ">()";
    }
    if (std::regex_match(type, match, std::regex(R"((?:(\w+)::)?(ENUM_\w+))")))
      return "static_cast<" + (match[1].matched ? match[1].str() : one.name) + "::" + match[2].str() + ">(1)";
    return "";
  }

  void writeAttributes(const Class& one, std::ostream& body, std::set<std::string>& used) {
    for (const std::string& attribute : attributesOf(one)) {
      const auto write = [&](const std::string& name, const std::string& check, const std::string& extra) {
        used.insert(name);
        body << "  accessors." << check << "(\"" << attribute << "\", " << extra << ");\n";
      };
      for (const Operation& operation : one.operations) {
        if (operation.name != "set" + attribute || operation.arguments.size() != 1)
          continue;
        const std::string argument = argumentFor(one, operation.arguments[0]);
        if (argument.empty())
          continue;
        const std::string call = "wrapper.set" + attribute + "(";
        std::string lambdas =
            "[]([[maybe_unused]] Checked& checked, " + one.name + "& wrapper) { " + call + argument + "); }";
        if (operation.arguments[0] == "bool")
          lambdas += ", [](Checked&, " + one.name + "& wrapper) { " + call + "false); }";
        write(operation.name, "sets", lambdas);
      }
      const Operation* get = one.find("get" + attribute);
      if (get != nullptr && get->arguments.empty())
        write(get->name, "gets", "+[](const " + one.name + "& wrapper) { return wrapper.get" + attribute + "(); }");
      if (one.find("is" + attribute + "Present") != nullptr)
        write("is" + attribute + "Present", "isPresent",
              "[](const " + one.name + "& wrapper) { return wrapper.is" + attribute + "Present(); }");
      const Operation* remove = one.find("remove" + attribute);
      if (remove != nullptr && remove->arguments.empty() && remove->result == "void")
        write(remove->name, "removes", "[](" + one.name + "& wrapper) { wrapper.remove" + attribute + "(); }");
    }
  }

  void writeFamilies(const Class& one, std::ostream& body, std::set<std::string>& used) {
    for (const Operation& add : one.operations) {
      if (!startsWith(add.name, "add") || add.result.back() != '*')
        continue;
      std::string arguments;
      bool isPlain = true;
      for (const std::string& type : add.arguments) {
        const std::string argument = argumentFor(one, type);
        isPlain = isPlain && !argument.empty();
        arguments += (arguments.empty() ? "" : ", ") + argument;
      }
      if (!isPlain)
        continue;
      const std::string child = add.name.substr(3);
      const Operation* get = firstOf(one, {"get" + child + "s", "get" + child});
      const Operation* remove = firstOf(one, {"remove" + child + "s", "remove" + child});
      if (get == nullptr || remove == nullptr)
        continue;
      includes_.insert(classes_.at(std::regex_replace(add.result, std::regex(R"(\W)"), "")).header);
      used.insert({add.name, get->name, remove->name});
      body << "  accessors.family(\"" << child << "\", +[]([[maybe_unused]] Checked& checked, " << one.name
           << "& wrapper) { return wrapper." << add.name << "(" << arguments << "); },\n                   +[](const "
           << one.name << "& wrapper) { return wrapper." << get->name << "(); }, [](" << one.name
           << "& wrapper) { return wrapper." << remove->name << "(); });\n";
    }
  }

  static const Operation* firstOf(const Class& one, const std::vector<std::string>& names) {
    for (const std::string& name : names) {
      const Operation* operation = one.find(name);
      if (operation != nullptr && operation->arguments.empty())
        return operation;
    }
    return nullptr;
  }

  std::map<std::string, Class> classes_;
  std::set<std::string> testWords_;
  std::set<std::string> includes_;
  std::set<std::string> untested_;
};

void write(const fs::path& path, const std::string& text) { std::ofstream(path) << text; }

} // namespace

int main(int count, char** arguments) {
  if (count != 5)
    return 2;
  Generator generator(arguments[1], arguments[2]);
  std::vector<std::string> files(std::stoul(arguments[4]),
                                 "// The accessors, as the headers declare them.\n#include \"accessors.h\"\n");
  std::size_t next = 0;
  for (const auto* one : generator.wrappers())
    files[next++ % files.size()] += "\n" + generator.testOf(*one);
  files[0] += "\nTEST(Accessors, AreAllCalledByTests) {\n  EXPECT_EQ(std::string(), std::string(";
  for (const std::string& operation : generator.untested())
    files[0] += "\"" + operation + " \"";
  files[0] += "\"\")) << \"no test calls these\";\n}\n";
  for (std::size_t file = 0; file < files.size(); ++file)
    write(arguments[3] + std::to_string(file) + ".cpp", files[file]);
}
