#include "replay/replay_options.h"

#include <cctype>

#include "base/number_text.h"

namespace quorrin {

namespace {

class Arguments {
  public:
    Arguments(const std::vector<std::string>& all, std::string& complaint)
        : all_(all), complaint_(complaint) {}

    bool next(std::string& argument) {
        if (at_ >= all_.size() || !complaint_.empty()) return false;
        argument = all_[at_++];
        return true;
    }
    std::string value(const std::string& option) {
        if (at_ < all_.size()) return all_[at_++];
        complaint_ = option + " needs a value";
        return {};
    }

  private:
    const std::vector<std::string>& all_;
    std::string& complaint_;
    std::size_t at_ = 0;
};

void checkTogether(const ReplayOptions& options, std::string& complaint) {
    if (!complaint.empty() || options.help || options.version || options.names) return;
    if (options.robotSite) {
        if (!(options.minutes > 0)) complaint = "--robot needs --minutes, more than 0";
        if (!options.report) complaint = "--robot needs --report";
    } else {
        if (options.minutes > 0 || options.report || options.scenario)
            complaint = "--minutes, --report and --scenario belong to --robot";
        if (!options.script) complaint = "no script given";
    }
}

}  // namespace

std::optional<CivilTime> parseDate(const std::string& text) {
    const std::string pattern = "dddd-dd-dd dd:dd:dd";
    if (text.size() != pattern.size()) return std::nullopt;
    for (std::size_t i = 0; i < pattern.size(); ++i) {
        const bool digit = std::isdigit(static_cast<unsigned char>(text[i])) != 0;
        if (pattern[i] == 'd' ? !digit : text[i] != pattern[i]) return std::nullopt;
    }
    const auto number = [&](std::size_t at, std::size_t length) {
        return std::stoi(text.substr(at, length));
    };
    const CivilTime time{number(0, 4),  number(5, 2),  number(8, 2),
                         number(11, 2), number(14, 2), number(17, 2)};
    if (time.year < 1 || time.month < 1 || time.month > 12 || time.day < 1 || time.day > 31)
        return std::nullopt;
    if (time.hour > 23 || time.minute > 59 || time.second > 59) return std::nullopt;
    // A day that the month does not have comes back as another date.
    if (!(plusSeconds(time, 0) == time)) return std::nullopt;
    return time;
}

ReplayOptions parseReplayOptions(const std::vector<std::string>& arguments, std::string& complaint) {
    ReplayOptions options;
    Arguments rest(arguments, complaint);
    std::string argument;
    while (rest.next(argument)) {
        if (argument == "--help") {
            options.help = true;
        } else if (argument == "--version") {
            options.version = true;
        } else if (argument == "--names") {
            options.names = true;
        } else if (argument == "--app") {
            options.app = rest.value(argument);
            if (options.app->empty() && complaint.empty()) complaint = "--app needs a folder";
        } else if (argument == "--date") {
            const auto date = parseDate(rest.value(argument));
            if (date) options.date = *date;
            if (!date && complaint.empty()) complaint = "--date wants a date such as \"2026-11-20 09:00:00\"";
        } else if (argument == "--robot") {
            options.robotSite = rest.value(argument);
        } else if (argument == "--seed") {
            const auto seed = parseWhole(rest.value(argument));
            if (seed && *seed >= 0) options.seed = static_cast<std::uint64_t>(*seed);
            if ((!seed || *seed < 0) && complaint.empty())
                complaint = "--seed wants a whole number from 0 up";
        } else if (argument == "--scenario") {
            options.scenario = rest.value(argument);
        } else if (argument == "--minutes") {
            const auto minutes = parseNumber(rest.value(argument));
            options.minutes = minutes.value_or(0);
            if (!(options.minutes > 0 && options.minutes < 1e6) && complaint.empty())
                complaint = "--minutes wants a number above 0";
        } else if (argument == "--report") {
            options.report = true;
        } else if (argument.size() > 1 && argument.front() == '-') {
            complaint = "unknown option " + argument;
        } else if (options.script) {
            complaint = "more than one script: " + *options.script + " and " + argument;
        } else {
            options.script = argument;
        }
    }
    checkTogether(options, complaint);
    return options;
}

const char* replayHelp() {
    return "usage: quorrin-replay [--app DIR] [--date \"2026-11-20 09:00:00\"] SCRIPT\n"
           "       quorrin-replay --robot SITE [--seed N] [--scenario FILE] --minutes M --report [SCRIPT]\n"
           "\n"
           "Runs one whole station in virtual time, without screen, network, gateways or robot, and prints "
           "what\n"
           "it asks of the world. The same script gives the same bytes of output every time.\n"
           "\n"
           "  SCRIPT           what the outside world does, one JSON object a line; '-' reads standard "
           "input\n"
           "  --app DIR        application folder, filled where files are missing; a temporary one when "
           "absent\n"
           "  --date DATE      date and time of day at virtual time 0 (2026-11-20 09:00:00)\n"
           "  --robot SITE     a simulated robot in that site takes the place of frames; name or file\n"
           "  --seed N         seed of the simulated robot's noise (1)\n"
           "  --scenario FILE  faults of the simulated robot, timed\n"
           "  --minutes M      virtual minutes to run\n"
           "  --report         print one JSON object at the end and nothing else\n"
           "  --names          list the controls and fields that a script may name, one JSON object a line\n"
           "  --help, --version\n"
           "\n"
           "Exit status: 0 end of the script, or of the station by its shutdown routine; 2 a script or a "
           "command\n"
           "line that cannot be used; 3 a program error ended the station.\n";
}

}  // namespace quorrin
