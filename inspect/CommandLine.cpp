#include "CommandLine.h"

#include <CLI/CLI.hpp>
#include <algorithm>
#include <fstream>
#include <iostream>
#include <iterator>
#include <optional>
#include <sstream>
#include <string>
#include <string_view>
#include <vector>

#include "Command.h"
#include "DisplayText.h"
#include "FailureReport.h"
#include "Hints.h"
#include "InputOutput.h"
#include "JsonLines.h"
#include "RenameArguments.h"

namespace inspect {

namespace {

constexpr int analysed = 0;
constexpr int notAnalysed = 1;

// A command with its arguments. The program reads the results of an option as they were typed: the
// parser's conversions to types would give brackets and braces a meaning of their own.
struct Invocation {
  const Command* command;
  CLI::App* app;
  CLI::Option* text;
  CLI::Option* file;
  CLI::Option* json;
  CLI::Option* jsonLines;
  CLI::Option* strict;
  CLI::Option* map;
};

Invocation addCommand(CLI::App& program, const Command& command) {
  const std::string noun = command.textNoun;
  CLI::App* app = program.add_subcommand(command.name, command.description);
  Invocation invocation{&command, app, nullptr, nullptr, nullptr, nullptr, nullptr, nullptr};
  invocation.text = app->add_option("TEXT", CLI::callback_t(),
                                    "The " + noun + " itself, or - to read it from standard input");
  invocation.file = app->add_option("--file", CLI::callback_t(), "Read the " + noun + " from FILE")
                        ->type_name("FILE");
  if (command.takesRenames) {
    invocation.map =
        app->add_option("--map", CLI::callback_t(), "A variable and its new name; may be repeated")
            ->type_name("OLD=NEW")
            ->take_all();
  }
  invocation.json = app->add_flag("--json", "Answer with one JSON object")->disable_flag_override();
  invocation.jsonLines =
      app->add_flag("--jsonl",
                    "Answer each line of standard input or FILE, a JSON object, by another one")
          ->disable_flag_override();
  invocation.strict =
      app->add_flag("--strict", "With --jsonl: exit with status 1 if a request was refused")
          ->disable_flag_override();
  app->footer(
      "Put -- before a TEXT that begins with a dash.\n\nA line for --jsonl, and its answer, in "
      "which an \"id\" is repeated:\n    " +
      std::string(command.example));
  return invocation;
}

void describe(CLI::App& program) {
  // On Windows the parser would otherwise take a text that begins with a slash for an option.
  program.allow_windows_style_options(false);
  program.require_subcommand(1);
  program.set_version_flag("--version", "vorn-inspect " VORN_INSPECT_VERSION,
                           "Print the version and exit");
  program.footer(
      "Examples:\n"
      "    vorn-inspect columns \"MATCH (n)-[r]->() RETURN n, r, count(*)\"\n"
      "    vorn-inspect usages \"n.age > 30 AND n:Person\"\n"
      "    vorn-inspect rename --map n=m \"n.age > 30 AND n:Person\"\n"
      "\n"
      "Exit status: 0 if the text was analysed, 1 if it was not, 2 for wrong usage or a text that\n"
      "cannot be read. With --jsonl 0 once all lines are answered; with --strict as well 1 if one\n"
      "of them was refused.");
}

std::string helpHint(const Invocation* invocation) {
  return invocation == nullptr ? "see vorn-inspect --help."
                               : "see vorn-inspect " + invocation->app->get_name() + " --help.";
}

std::string quotedList(const std::vector<std::string>& arguments) {
  std::string list;
  for (const std::string& argument : arguments) {
    list += (list.empty() ? "'" : ", '") + argument + "'";
  }
  return list;
}

bool beginsWithDash(const std::string& argument) {
  return argument.size() > 1 && argument.front() == '-';
}

std::string adviceOnCommand(const std::vector<std::string>& unexpected) {
  const std::string choice = "say what to do: columns, usages or rename";
  const auto word = std::find_if_not(unexpected.begin(), unexpected.end(), beginsWithDash);
  return word == unexpected.end() ? choice : "'" + *word + "' is no command; " + choice;
}

// A second pair behind one --map is taken for the text, though the user meant another renaming.
std::optional<std::string> pairWithoutMap(const std::vector<std::string>& arguments) {
  for (std::size_t i = 0; i + 2 < arguments.size(); ++i) {
    const std::string& behind = arguments[i + 2];
    if (arguments[i] == "--map" && !beginsWithDash(behind) &&
        behind.find('=') != std::string::npos && behind.find(' ') == std::string::npos) {
      return behind;
    }
  }
  return std::nullopt;
}

std::string adviceOnUnexpected(const std::vector<std::string>& unexpected,
                               const std::vector<std::string>& arguments) {
  const auto endOfOptions = std::find(arguments.begin(), arguments.end(), "--");
  std::vector<std::string> options;
  for (const std::string& argument : unexpected) {
    if (beginsWithDash(argument) &&
        std::find(arguments.begin(), endOfOptions, argument) != endOfOptions) {
      options.push_back(argument);
    }
  }
  if (!options.empty()) {
    return (options.size() == 1 ? "unknown option " : "unknown options ") + quotedList(options) +
           " (put -- before a text that begins with a dash)";
  }
  if (const auto pair = pairWithoutMap(arguments)) {
    return "give each variable a --map of its own, as in --map a=b --map c=d, and not '" + *pair +
           "' alone";
  }
  return (unexpected.size() == 1 ? "unexpected argument " : "unexpected arguments ") +
         quotedList(unexpected) + " (put a text with blanks in it between quotes)";
}

std::string adviceOn(const CLI::ParseError& error, const CLI::App& program,
                     const std::vector<std::string>& arguments) {
  if (!program.get_subcommands().empty() && beginsWithDash(arguments[1])) {
    return "put the option '" + arguments[1] + "' behind the command";
  }
  const std::vector<std::string> unexpected = program.remaining(true);
  if (dynamic_cast<const CLI::RequiredError*>(&error) != nullptr) {
    return adviceOnCommand(unexpected);
  }
  if (dynamic_cast<const CLI::ExtrasError*>(&error) != nullptr) {
    return adviceOnUnexpected(unexpected, arguments);
  }
  if (dynamic_cast<const CLI::ArgumentMismatch*>(&error) != nullptr) {
    return "give --file one FILE and each --map one OLD=NEW, and the other options nothing";
  }
  return error.what();
}

const Invocation* chosen(const std::vector<Invocation>& invocations) {
  for (const Invocation& invocation : invocations) {
    if (invocation.app->parsed()) {
      return &invocation;
    }
  }
  return nullptr;
}

bool given(const CLI::Option* option) { return option != nullptr && option->count() > 0; }

void requireNothingBesideJsonLines(const Invocation& invocation) {
  if (given(invocation.text) || given(invocation.json) || given(invocation.map)) {
    throw UsageError(
        "--jsonl takes everything from standard input or --file: leave out the other arguments.");
  }
}

void requireOneText(const Invocation& invocation) {
  if (given(invocation.strict)) {
    throw UsageError("--strict is for batches: give --jsonl with it; " + helpHint(&invocation));
  }
  if (given(invocation.text) == given(invocation.file)) {
    const std::string noun = invocation.command->textNoun;
    throw UsageError("give the " + noun +
                     " once: as TEXT, in --file FILE or, on standard input, as -; " +
                     helpHint(&invocation));
  }
  if (invocation.map != nullptr && !given(invocation.map)) {
    throw UsageError("say what to rename, as in --map old=new; " + helpHint(&invocation));
  }
}

std::string textOf(const Invocation& invocation) {
  if (given(invocation.file)) {
    const std::string& path = invocation.file->results().front();
    std::string text = readFile(path);
    requireUtf8(text, "'" + path + "'");
    return text;
  }
  const std::string& argument = invocation.text->results().front();
  std::string text = argument == "-" ? readStandardInput() : argument;
  requireUtf8(text, "the " + std::string(invocation.command->textNoun));
  return text;
}

Json requestOf(const Invocation& invocation) {
  Json request;
  if (invocation.map != nullptr) {
    request["renames"] = renamesFrom(invocation.map->results());
  }
  request[invocation.command->textMember] = textOf(invocation);
  return request;
}

int printJson(const Json& request, const Command& command) {
  const JsonAnswer answer = answerTo(request, command);
  writeOut(answer.line);
  return answer.analysed ? analysed : notAnalysed;
}

// The beginning of a text, on one line.
std::string shortened(std::string_view text) {
  constexpr std::size_t longest = 60;
  text.remove_prefix(std::min(text.find_first_not_of(" \t\r\n"), text.size()));
  const std::vector<std::string_view> clusters = graphemeClusters(text);
  std::string start;
  for (std::size_t i = 0; i < std::min(clusters.size(), longest); ++i) {
    start += escapeControls(clusters[i]);
  }
  return clusters.size() > longest ? start + "..." : start;
}

// A filter that is a file's name has an answer, as n.a has one.
void printNotes(std::string_view dropped, const std::string& text) {
  if (!dropped.empty()) {
    std::cerr << "Note: The end of the filter was dropped: " << shortened(dropped) << '\n';
  }
  if (const auto hint = hintForFile(text)) {
    std::cerr << "Note: " << escapeControls(*hint) << '\n';
  }
}

int printReport(const Json& request, const Command& command) {
  const std::string& text = textMember(request, command.textMember);
  const Analysis analysis = command.ask(request);
  if (const auto failure = failureOf(analysis, text)) {
    std::cerr << failureReport(*failure, text, command, [&](const std::string& other) {
      Json changed = request;
      changed[command.textMember] = other;
      return command.ask(changed);
    });
    return notAnalysed;
  }
  writeOut(command.report(analysis));
  printNotes(droppedFrom(text, analysis, command), text);
  return analysed;
}

std::size_t answerBatch(const Invocation& invocation) {
  if (!given(invocation.file)) {
    return answerJsonLines(std::cin, "standard input", *invocation.command);
  }
  const std::string& path = invocation.file->results().front();
  std::ifstream file = openFile(path);
  return answerJsonLines(file, "'" + path + "'", *invocation.command);
}

int run(const Invocation& invocation) {
  if (given(invocation.jsonLines)) {
    requireNothingBesideJsonLines(invocation);
    const std::size_t refused = answerBatch(invocation);
    return refused > 0 && given(invocation.strict) ? notAnalysed : analysed;
  }
  requireOneText(invocation);
  const Json request = requestOf(invocation);
  return given(invocation.json) ? printJson(request, *invocation.command)
                                : printReport(request, *invocation.command);
}

}  // namespace

int runCommandLine(const std::vector<std::string>& arguments) {
  CLI::App program("Shows what VornLib understands of openCypher text.", "vorn-inspect");
  describe(program);
  std::vector<Invocation> invocations;
  for (const Command* command : {&columnsCommand, &usagesCommand, &renameCommand}) {
    invocations.push_back(addCommand(program, *command));
  }
  try {
    // The parser wants the arguments in reverse order and without the name of the program.
    program.parse(std::vector(arguments.rbegin(), std::prev(arguments.rend())));
  } catch (const CLI::Success& success) {
    // Help or the version was asked for.
    std::ostringstream text;
    program.exit(success, text, text);
    writeOut(text.str());
    return analysed;
  } catch (const CLI::ParseError& error) {
    throw UsageError(adviceOn(error, program, arguments) + "; " + helpHint(chosen(invocations)));
  }
  return run(*chosen(invocations));
}

}  // namespace inspect
