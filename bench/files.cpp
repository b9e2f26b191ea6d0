// Files: reading, checking, and the program `orbml`, beside plain Xerces doing the like.
#include "support.h"
#include "texts.h"

#include <xercesc/framework/LocalFileFormatTarget.hpp>
#include <xercesc/validators/common/Grammar.hpp>

#include <fcntl.h>
#include <spawn.h>
#include <sys/resource.h>
#include <sys/wait.h>

#include <cstdlib>
#include <cstring>
#include <filesystem>
#include <memory>
#include <optional>

using bench::seconds;

namespace {

constexpr unsigned int manyRows = 200'000;
constexpr unsigned int manyGraphs = 5'000;

/// The files that are read and written, in a folder that goes with the program.
class Files {
public:
  Files() : folder_(std::filesystem::temp_directory_path() / ("orbchart_bench." + std::to_string(getpid()))) {
    std::filesystem::create_directories(folder_);
    const std::string language = " xmlns=\"" + ChartLanguage::namespaceURI() + "\"";
    std::ofstream(rows()) << bench::rowsText(manyRows, language);
    std::ofstream(graphs()) << bench::graphsText(manyGraphs, language);
    std::ofstream(schema()) << ChartLanguage::schema();
  }
  Files(const Files&) = delete;
  Files& operator=(const Files&) = delete;
  ~Files() { std::filesystem::remove_all(folder_); }

  std::string rows() const { return folder_ / "rows.xml"; }
  std::string graphs() const { return folder_ / "graphs.xml"; }
  std::string schema() const { return folder_ / "orbml.xsd"; }
  std::string output() const { return folder_ / "output.xml"; }

private:
  std::filesystem::path folder_;
};

// Reading and writing

double readAndWrite(const std::string& from, const std::string& to) {
  return seconds([&] {
    const std::unique_ptr<OrbDocument> chart = ChartReader::readFile(from);
    std::ofstream(to) << chart->AsUTF8();
  });
}

void serializeToFile(const xercesc::DOMDocument& document, const std::string& to) {
  xercesc::LocalFileFormatTarget target(to.c_str());
  bench::serialize(document, target);
}

double parseAndSerialize(const std::string& from, const std::string& to) {
  return seconds([&] {
    xercesc::XercesDOMParser parser;
    parser.parse(from.c_str());
    serializeToFile(*parser.getDocument(), to);
  });
}

double read(const std::string& file) {
  std::unique_ptr<OrbDocument> chart;
  return seconds([&] { chart = ChartReader::readFile(file); });
}

double parse(const std::string& file) {
  xercesc::XercesDOMParser parser;
  return seconds([&] { parser.parse(file.c_str()); });
}

// Checking

void check(const std::string& file) {
  const ChartChecker::Report report = ChartChecker().checkFile(file);
  if (report.errors() != 0)
    throw std::logic_error("what is checked has errors: " + report[0].text());
}

void validate(const std::string& file, const std::string& schema) {
  xercesc::XercesDOMParser parser;
  parser.setDoNamespaces(true);
  parser.setDoSchema(true);
  parser.setValidationScheme(xercesc::XercesDOMParser::Val_Always);
  parser.loadGrammar(schema.c_str(), xercesc::Grammar::SchemaGrammarType, true);
  parser.useCachedGrammarInParse(true);
  parser.parse(file.c_str());
  if (parser.getErrorCount() != 0)
    throw std::logic_error("what is validated is not valid");
}

/// The most memory that this process has held, in bytes.
double peakMemory() {
  std::ifstream status("/proc/self/status");
  for (std::string word; status >> word;) {
    double kibi = 0;
    if (word == "VmHWM:" && status >> kibi)
      return kibi * 1024;
  }
  throw std::runtime_error("the system does not tell the peak of the memory");
}

/// What a child process is asked to do and to tell the peak of.
int tellPeak(const char* work, const char* file, const char* schema) {
  if (std::strcmp(work, "check") == 0)
    check(file);
  else
    validate(file, schema);
  std::printf("%.0f\n", peakMemory());
  return 0;
}

double peakOf(const std::string& work, const std::string& file, const std::string& schema) {
  const std::string program = std::filesystem::read_symlink("/proc/self/exe");
  const std::string command = "'" + program + "' peak " + work + " '" + file + "' '" + schema + "'";
  FILE* output = popen(command.c_str(), "r");
  double peak = 0;
  const bool isRead = std::fscanf(output, "%lf", &peak) == 1;
  if (pclose(output) != 0 || !isRead)
    throw std::runtime_error("a measured child process failed: " + work);
  return peak;
}

// Programs

double processorTimeOfChildren() {
  rusage usage{};
  getrusage(RUSAGE_CHILDREN, &usage);
  const auto inSeconds = [](const timeval& time) {
    return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_usec) * 1e-6;
  };
  return inSeconds(usage.ru_utime) + inSeconds(usage.ru_stime);
}

/// The time of a program from start to end, with nothing to be seen of what it prints.
double timeOfProgram(std::vector<const char*> arguments) {
  constexpr int starts = 20;
  arguments.push_back(nullptr);
  posix_spawn_file_actions_t actions;
  posix_spawn_file_actions_init(&actions);
  posix_spawn_file_actions_addopen(&actions, STDOUT_FILENO, "/dev/null", O_WRONLY, 0);
  const double before = processorTimeOfChildren();
  for (int start = 0; start < starts; ++start) {
    pid_t child = 0;
    int status = 0;
    if (posix_spawn(&child, arguments[0], &actions, nullptr, const_cast<char**>(arguments.data()), environ) != 0 ||
        waitpid(child, &status, 0) != child || status != 0)
      throw std::runtime_error(std::string("a measured program failed: ") + arguments[0]);
  }
  posix_spawn_file_actions_destroy(&actions);
  return (processorTimeOfChildren() - before) / starts;
}

void compareFile(const std::string& name, const std::string& file, const Files& files) {
  bench::compareTimes(
      "a file of " + name + ": read, wrap, print to a file, end", "parsing, `DOMLSSerializer` to a file, release", 1.05,
      7, [=, &files] { return readAndWrite(file, files.output()); },
      [=, &files] { return parseAndSerialize(file, files.output()); });
  bench::compareTimes(
      "a file of " + name + ": read, ids marked and wrapped", "parsing", 1.35, 7, [=] { return read(file); },
      [=] { return parse(file); });
  bench::compareTimes(
      "a file of " + name + ": check", "parsing with validation against the schema", 1.0, 7,
      [=] { return seconds([&] { check(file); }); },
      [=, &files] { return seconds([&] { validate(file, files.schema()); }); });
  bench::compareSizes(
      "a file of " + name + ": memory of a check at its peak", "that of the validating parse", 1.2,
      [=, &files] { return peakOf("check", file, files.schema()); },
      [=, &files] { return peakOf("validate", file, files.schema()); });
}

} // namespace

int main(int argc, char** argv) {
  const bench::Platform platform;
  if (argc == 5 && std::strcmp(argv[1], "peak") == 0)
    return tellPeak(argv[2], argv[3], argv[4]);

  const Files files;
  compareFile("200,000 rows", files.rows(), files);
  compareFile("5,000 graphs of 40 elements", files.graphs(), files);
  bench::compareTimes(
      "`orbml describe point`, start to end", "a program that starts and stops the XML platform", 1.5, 15,
      [] {
        return timeOfProgram({ORBCHART_PROGRAM_FILE, "describe", "point"});
      },
      [] { return timeOfProgram({ORBCHART_PLATFORM_FILE}); });
  return bench::run(argc, argv);
}
