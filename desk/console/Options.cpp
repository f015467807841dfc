// Shared options.
#include "desk/console/Options.h"

#include <charconv>
#include <filesystem>

#include <CLI/CLI.hpp>

#include "desk/console/Print.h"
#include "desk/project/Failure.h"
#include "desk/project/SafeFile.h"
#include "desk/reading/Bars.h"

namespace Desk {

void AddProjectOption(CLI::App& command, std::string& file)
{
    command
        .add_option("--project", file,
                    "Project or drawing (.json, .dxf), - for standard input. Default: the embedded sample")
        ->type_name("FILE")
        ->check([](const std::string& name) { return std::string(name.empty() ? "no file name" : ""); });
}

CLI::Validator Whole(int least, int most)
{
    const std::string range = std::to_string(least) + " to " + std::to_string(most);
    const auto check = [least, most, range](const std::string& text) {
        int number = 0;
        const char* const end = text.data() + text.size();
        const auto [stop, error] = std::from_chars(text.data(), end, number);
        const bool good = error == std::errc() && stop == end && number >= least && number <= most;
        return good ? std::string() : "a whole number from " + range + " is required, not " + Quoted(text);
    };
    return CLI::Validator(check, "");
}

CLI::Validator Decimal(int least, int most)
{
    const std::string range = std::to_string(least) + " to " + std::to_string(most);
    const auto check = [least, most, range](const std::string& text) {
        double number = 0.0;
        const char* const end = text.data() + text.size();
        const auto [stop, error] = std::from_chars(text.data(), end, number);
        const bool good = error == std::errc() && stop == end && number >= least && number <= most;
        return good ? std::string() : "a number from " + range + " is required, not " + Quoted(text);
    };
    return CLI::Validator(check, "");
}

std::string LowerCaseExtension(const std::string& file)
{
    return CLI::detail::to_lower(PathOf(file).extension().string());
}

void RequireBars(const std::string& text)
{
    if (!ReadBars(text)) {
        throw Failure("\"" + text + "\" is no bar annotation; 2B25 or 2B22+1B25 would be");
    }
}

}  // namespace Desk
