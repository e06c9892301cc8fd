#include "converter/ConverterArguments.h"

#include "common/Numbers.h"
#include "common/RuntimeError.h"
#include "common/Text.h"

#include <CLI/CLI.hpp>
#include <algorithm>
#include <memory>

namespace {

constexpr const char* kDescription =
    "Converts color libraries (.tnt) and palettes of other programs into each other";

constexpr const char* kExitCodes = R"(Exit codes:
  0  all is well
  1  done, but something was left out or changed; standard error says what
  2  the arguments are wrong; nothing was done
  3  IN cannot be read
  4  OUT cannot be written, or exists
  5  something else failed, such as a lack of memory
)";

constexpr std::int16_t kMostOfMaterial = 100;

std::int16_t MaterialValue(const std::string& text) {
    const std::int16_t value = TextToInt16(text);
    if (value < 0 || value > kMostOfMaterial)
        throw CLI::ValidationError("--values", text + " is not between 0 and 100");
    return value;
}

ColorMaterial ParseValues(const std::string& text) {
    const std::vector<std::string> fields = SplitFields(text, ",");
    ColorMaterial values{};
    if (fields.size() != values.size())
        throw CLI::ValidationError("--values", "six numbers with commas between them are wanted");
    try {
        std::ranges::transform(fields, values.begin(), MaterialValue);
    } catch (const RuntimeError& error) {
        throw CLI::ValidationError("--values", error.Description());
    }
    return values;
}

// Help without the words on which options exclude each other.
class PlainHelp : public CLI::Formatter {
public:
    [[nodiscard]] std::string make_option_opts(const CLI::Option* option) const override {
        return option->get_type_name().empty() ? "" : " " + option->get_type_name();
    }
};

// The arguments as the library for command lines knows them.
class Arguments {
public:
    explicit Arguments(const std::string& version) {
        app_.allow_windows_style_options(false); // "/home" is a path everywhere
        app_.set_help_flag("--help", "Show this help and exit");
        app_.set_version_flag("--version", "tnt-convert " + version, "Show the version and exit");
        app_.footer(kExitCodes);
        app_.formatter(std::make_shared<PlainHelp>());
        AddFiles();
        AddColors();
        AddTasks();
    }

    // Throws CLI::ParseError, for help and version too.
    [[nodiscard]] ConverterArguments Parse(const std::vector<std::string>& arguments) {
        app_.parse(std::vector<std::string>(arguments.rbegin(), arguments.rend()));
        if (*list_)
            line_.task = ConverterArguments::Task::List;
        if (*check_)
            line_.task = ConverterArguments::Task::Check;
        if (line_.task == ConverterArguments::Task::Convert && line_.out.empty())
            throw CLI::RequiredError("OUT");
        return line_;
    }

    [[nodiscard]] std::string Help() const { return app_.help(); }

private:
    void AddFiles() {
        app_.add_option("IN", line_.in, "The file that is read, known by its content")
            ->required()
            ->type_name("");
        out_ = app_.add_option("OUT", line_.out,
                               "The file that is written, as its ending says:\n"
                               ".tnt, .gpl, .ase, .aco, .csv or .txt")
                   ->type_name("");
        force_ = app_.add_flag("--force", line_.force, "Replace OUT when it exists");
    }
    void AddColors() {
        name_ = app_.add_option("--name", line_.name, "Name of the library or palette in OUT")
                    ->type_name("NAME");
        app_.add_option_function<std::string>(
                "--values", [this](const std::string& text) { line_.values = ParseValues(text); },
                "Ambient, diffuse, specular, shininess, transparency,\n"
                "emission of colors that have none, 0 to 100 each;\n"
                "otherwise 100,100,100,30,0,0")
            ->type_name("A,D,S,SH,T,E");
        app_.add_option("--code-page", line_.codePage,
                        "Of libraries, and of texts that are not in Unicode;\n"
                        "otherwise that of Windows, and 1252 where there is none")
            ->type_name("NUMBER");
    }
    void AddTasks() {
        list_ = AddTask("--list", "Write the colors of IN, one a line: group, name and\n"
                                  "nine values, with tabs between them");
        check_ = AddTask("--check", "Say what IN is, and what of it could not be read");
        list_->excludes(check_);
    }
    CLI::Option* AddTask(const std::string& name, const std::string& description) {
        CLI::Option* task = app_.add_flag(name, description);
        for (CLI::Option* ofFiles : {out_, force_, name_})
            task->excludes(ofFiles);
        return task;
    }

    ConverterArguments line_;
    CLI::App app_{kDescription, "tnt-convert"};
    CLI::Option* out_ = nullptr;
    CLI::Option* force_ = nullptr;
    CLI::Option* name_ = nullptr;
    CLI::Option* list_ = nullptr;
    CLI::Option* check_ = nullptr;
};

} // namespace

std::variant<ConverterArguments, ConverterReply>
ParseConverterArguments(const std::vector<std::string>& arguments, const std::string& version) {
    Arguments known(version);
    try {
        return known.Parse(arguments);
    } catch (const CLI::CallForHelp&) {
        return ConverterReply{ExitCode::Done, known.Help()};
    } catch (const CLI::CallForVersion& answer) {
        return ConverterReply{ExitCode::Done, std::string(answer.what()) + "\n"};
    } catch (const CLI::ParseError& error) {
        return ConverterReply{ExitCode::WrongUsage, "tnt-convert: " + std::string(error.what()) +
                                                        "\nSee tnt-convert --help\n"};
    }
}
