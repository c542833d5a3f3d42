// Compares the extension with its model over random nights. A night that goes otherwise than the
// model says is made as short as possible and printed as a phone script.
#include <rapidcheck.h>

#include <cstdlib>
#include <exception>
#include <fstream>
#include <iostream>
#include <string>

#include "tests/model/Generators.h"
#include "tests/model/PhoneFork.h"
#include "tests/model/ScriptWriter.h"

namespace {

struct Options {
  std::string extension;
  std::string package;
  std::string counterexample;  // file; empty: not kept
  std::string nights = "1000";
  std::string seed = "1";
  model::Rules rules;
};

[[noreturn]] void stop(const std::string& why) {
  std::cerr << why << "\nusage: model_nights --tweak FILE --package FOLDER [--nights N] [--seed N] "
            << "[--wrong-rule NAME] [--counterexample FILE]\n";
  std::exit(2);
}

Options parse(int count, char** words) {
  Options options;
  for (int at = 1; at + 1 < count; at += 2) {
    const std::string name = words[at];
    const std::string value = words[at + 1];
    if (name == "--tweak")
      options.extension = value;
    else if (name == "--package")
      options.package = value;
    else if (name == "--counterexample")
      options.counterexample = value;
    else if (name == "--nights")
      options.nights = value;
    else if (name == "--seed")
      options.seed = value;
    else if (name != "--wrong-rule")
      stop("there is no option " + name);
    else if (!model::falsify(options.rules, value))
      stop("there is no rule " + value);
  }
  if (count % 2 == 0 || options.extension.empty() || options.package.empty())
    stop("an option or its value is missing");
  return options;
}

// The same nights every time, unless the environment asks for others.
void configureRapidCheck(const Options& options) {
  const char* nights = std::getenv("DOZEWELL_NIGHTS");
  const std::string parameters = "seed=" + options.seed + " max_size=30 max_success=" +
                                 (nights != nullptr ? nights : options.nights);
  setenv("RC_PARAMS", parameters.c_str(), 0);
  std::cout << "RC_PARAMS=\"" << std::getenv("RC_PARAMS") << "\"\n" << std::flush;
}

}  // namespace

int main(int count, char** words) try {
  const Options options = parse(count, words);
  configureRapidCheck(options);
  model::PhoneFork phone(options.extension, options.package, model::beginning);
  std::string script;
  std::string problem;
  const bool held = rc::check("the extension does what its model says", [&] {
    const auto night = *model::nights();
    const std::string written = model::ScriptWriter(options.rules).write(night);
    const std::string found = phone.play(written);
    if (found.empty()) return;
    script = written;  // the last to fail is the shortest
    problem = found;
    RC_FAIL("see the script below");
  });
  if (held) return 0;
  if (!options.counterexample.empty()) std::ofstream(options.counterexample) << script;
  std::cout << "\nWrong in this night, which `dozewell-simulator play` plays:\n"
            << problem << '\n'
            << script;
  return 1;
} catch (const std::exception& error) {
  std::cerr << error.what() << '\n';
  return 1;
}
