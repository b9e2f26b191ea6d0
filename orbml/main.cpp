// The program orbml: its arguments, and what becomes of errors.
#include "commands.h"
#include "files.h"
#include "text.h"

#include <CLI/CLI.hpp>
#include <chartlanguage.h>
#include <orbchartversion.h>
#include <xercesc/util/OutOfMemoryException.hpp>
#include <xercesc/util/PlatformUtils.hpp>

#include <fcntl.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <csignal>
#include <cstring>
#include <functional>
#include <iostream>
#include <string>
#include <vector>

namespace {

/// A minus would be taken for a very great number.
std::string requireCount(const std::string& text) {
  const bool isCount = !text.empty() && text.find_first_not_of("0123456789") == std::string::npos;
  return isCount ? "" : "\"" + text + "\" is no number of findings";
}

/// The arguments of the program, and the command that they ask for.
class Arguments {
public:
  Arguments() {
    app_.set_version_flag("--version", "orbml " ORBCHART_VERSION);
    app_.require_subcommand(1);
    app_.failure_message([](const CLI::App* /*app*/, const CLI::Error& error) { return std::string(error.what()); });
    addCheck();
    addFormat();
    addOutline();
    addReferences();
    addDescribe();
    addSchema();
  }

  ExitCode run(int count, char** arguments) {
    try {
      app_.parse(count, arguments);
    } catch (const CLI::Success& asked) { // for help or for the version
      app_.exit(asked, std::cout, std::cerr);
      return nothingToReport;
    } catch (const CLI::ParseError& error) {
      complain(explain(error, count, arguments));
      std::cerr << "\"orbml --help\" tells the commands, \"orbml COMMAND --help\" what one of them takes.\n";
      return cannotBeDone;
    }
    return command_();
  }

private:
  CLI::App* add(const std::string& name, const std::string& description, std::function<ExitCode()> command) {
    CLI::App* added = app_.add_subcommand(name, description);
    added->callback([this, command = std::move(command)] { command_ = command; });
    return added;
  }

  void addCheck() {
    CLI::App* check = add("check", "Tell what is wrong with documents", [this] { return ::check(check_); });
    check->add_option("FILE", check_.files, "Documents; - is standard input")->required()->type_name("");
    check->add_option("--format", check_.format, "How findings are shown: text or json")
        ->check(CLI::IsMember({"text", "json"}))
        ->type_name("FORMAT");
    check->add_option("--limit", check_.limit, "List no more findings of a file than this (1000)")
        ->check(requireCount, "")
        ->type_name("NUMBER");
  }
  void addFormat() {
    CLI::App* format =
        add("format", "Print documents as the library writes them", [this] { return ::format(format_); });
    format->add_option("FILE", format_.files, "Documents; - is standard input")->required()->type_name("");
    CLI::Option* inPlace = format->add_flag("--in-place", format_.inPlace, "Replace the files in one step each");
    format->add_flag("--check", format_.checkOnly, "Only tell which files would change")->excludes(inPlace);
    format->parse_complete_callback([this] {
      if (format_.inPlace && std::any_of(format_.files.begin(), format_.files.end(), isStandardInput))
        throw CLI::ValidationError("--in-place", "standard input cannot be replaced");
    });
  }
  void addOutline() {
    add("outline", "Show the tree of a document", [this] { return ::outline(file_); })
        ->add_option("FILE", file_, "A document; - is standard input")
        ->required()
        ->type_name("");
  }
  void addReferences() {
    CLI::App* refs = add("refs", "Show the ids of a document and who refers to them",
                         [this] { return showReferences(references_); });
    refs->add_option("FILE", references_.file, "A document; - is standard input")->required()->type_name("");
    refs->add_option("ID", references_.id, "Show this id alone")->type_name("");
    refs->add_flag("--dot", references_.asGraph, "Write a graph for Graphviz");
  }
  void addDescribe() {
    add("describe", "Describe an element of the language", [this] { return ::describe(element_); })
        ->add_option("ELEMENT", element_, "The name of an element; without one, an overview")
        ->type_name("");
  }
  void addSchema() { add("schema", "Print the schema of the language", printSchema); }

  /// What is wrong with the arguments, and what was most likely meant.
  std::string explain(const CLI::ParseError& error, int count, char** arguments) const {
    const std::string first = count > 1 ? arguments[1] : "";
    std::vector<std::string> commands;
    const CLI::App* chosen = &app_;
    for (const CLI::App* command : app_.get_subcommands(nullptr)) {
      commands.push_back(command->get_name());
      if (first == command->get_name())
        chosen = command;
    }
    if (chosen == &app_ && !first.empty() && first[0] != '-')
      return "there is no command \"" + printable(first) + "\"" + meant(ChartLanguage::nearest(first, commands));
    return printable(error.what()) + meantOption(optionsOf(*chosen), count, arguments);
  }
  /// What was meant by the first option that is none.
  static std::string meantOption(const std::vector<std::string>& options, int count, char** arguments) {
    for (int i = 1; i < count; ++i) {
      const std::string argument = std::string(arguments[i]).substr(0, std::string(arguments[i]).find('='));
      if (argument.rfind("--", 0) == 0 && std::find(options.begin(), options.end(), argument) == options.end())
        return meant(ChartLanguage::nearest(argument, options));
    }
    return "";
  }
  static std::vector<std::string> optionsOf(const CLI::App& app) {
    std::vector<std::string> names;
    for (const CLI::Option* option : app.get_options(nullptr)) {
      for (const std::string& name : option->get_lnames())
        names.push_back("--" + name);
    }
    return names;
  }

  CLI::App app_{"Looks at chart documents of the language orbml " + ChartLanguage::version() + ".", "orbml"};
  std::function<ExitCode()> command_;
  CheckOptions check_;
  FormatOptions format_;
  ReferencesOptions references_;
  std::string file_;
  std::string element_;
};

/// What was printed may still have to find its place on a disk. What failed before tells no reason any more.
ExitCode finished(ExitCode code) {
  errno = 0;
  std::cout.flush();
  if (std::cout)
    return code;
  complain(std::string("standard output cannot be written") + (errno == 0 ? "" : ": ") +
           (errno == 0 ? "" : std::strerror(errno)));
  return cannotBeDone;
}

ExitCode runProgram(int count, char** arguments) {
  try {
    return finished(Arguments().run(count, arguments));
  } catch (const std::exception& error) {
    complain(printable(error.what()));
  } catch (const xercesc::OutOfMemoryException&) {
    complain("out of memory");
  }
  return cannotBeDone;
}

/// Where a standard stream is closed, the next file that is opened would take its number, and what is printed would go
/// into that file. A descriptor that refuses each use keeps the place.
void occupyStandardStreams() {
  constexpr int refusing[] = {O_WRONLY, O_RDONLY, O_RDONLY};
  for (int number = STDIN_FILENO; number <= STDERR_FILENO; ++number) {
    if (fcntl(number, F_GETFD) < 0)
      open("/dev/null", refusing[number]);
  }
}

} // namespace

int main(int count, char** arguments) {
  // Who closes the pipe wants no more: the program ends without a word, as others do.
  std::signal(SIGPIPE, SIG_DFL);
  occupyStandardStreams();
  std::ios::sync_with_stdio(false);
  return runProgram(count, arguments);
}
