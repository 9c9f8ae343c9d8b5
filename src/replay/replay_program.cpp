#include "replay/replay_program.h"

#include <memory>

#include "platform/host/host_folders.h"
#include "platform/host/posix_files.h"
#include "platform/host/stopwatch.h"
#include "platform/host/temporary_folder.h"
#include "replay/replay_options.h"
#include "replay/replay_run.h"
#include "replay/script_source.h"
#include "session/first_start.h"

namespace quorrin {

namespace {

constexpr int kUnusable = 2;

int complain(std::FILE* err, const std::string& what) {
    std::fprintf(err, "quorrin-replay: %s\n", what.c_str());
    return kUnusable;
}

std::string errorText(const std::string& script, const ScriptError& error) {
    return script + ": line " + std::to_string(error.line) + ": " + error.reason;
}

std::string folderOf(const std::string& script) {
    if (script == "-") return absolutePath(".");
    const std::string whole = absolutePath(script);
    const auto slash = whole.find_last_of('/');
    return slash == 0 ? "" : whole.substr(0, slash);
}

// The application folder with its inner folders, filled as at a first start. False with a complaint printed.
bool prepareFolders(Files& files, const std::string& application, Folders& folders, std::FILE* err) {
    const HostFolders host = hostFolders();
    folders.application = application;
    folders.windows = application + "/windows";
    folders.tempVoice = application + "/tempVoice";
    folders.programs = host.folders.programs;
    for (const std::string& folder : {folders.application, folders.windows, folders.tempVoice}) {
        if (!files.createFolder(folder)) {
            complain(err, "folder " + folder + " cannot be made");
            return false;
        }
    }
    const FirstStart done = fillApplicationFolder(files, application, host.share);
    for (const std::string& line : done.complaints(application, host.share)) complain(err, line);
    return true;
}

// Everything that a script may name, from a station that is built and never started.
int listNames(std::FILE* out) {
    PosixFiles files;
    LineReader noScript(nullptr);
    ReplayRun run(ReplaySetup{files, {}, {}, ""}, noScript, nullptr);
    std::fputs(namesText(run.station()).c_str(), out);
    return 0;
}

struct Application {
    PosixFiles files;
    std::unique_ptr<TemporaryFolder> temporary;
    Folders folders;
};

// The application folder, a temporary one where none is asked for. False with a complaint printed.
bool prepareApplication(const ReplayOptions& options, Application& application, std::FILE* err) {
    if (!options.app) application.temporary = std::make_unique<TemporaryFolder>();
    const std::string folder = options.app ? absolutePath(*options.app) : application.temporary->path();
    if (folder.empty()) {
        complain(err, "no temporary folder can be made");
        return false;
    }
    return prepareFolders(application.files, folder, application.folders, err);
}

int replayScript(const ReplayOptions& options, std::FILE* out, std::FILE* err) {
    const std::string& script = *options.script;
    std::string complaint;
    const OpenFile file = openScript(script, complaint);
    if (!file) return complain(err, script + ": " + complaint);
    Application application;
    if (!prepareApplication(options, application, err)) return kUnusable;

    LineReader lines(file.get());
    const bool nameless = !options.app;
    ReplayRun run(
        {application.files, application.folders, options.date, folderOf(script), nullptr, 0, nameless}, lines,
        out);
    const ReplayEnd end = run.run();
    if (end == ReplayEnd::badScript) complain(err, errorText(script, run.error()));
    if (!run.output().good()) return complain(err, "the output cannot be written");
    return static_cast<int>(end);
}

// Site and scenario as files; false with a complaint printed.
bool readRobot(const ReplayOptions& options, Files& files, RobotSetup& robot, std::FILE* err) {
    try {
        const bool file = options.robotSite->find('/') != std::string::npos;
        robot.site = loadSite(file ? absolutePath(*options.robotSite) : *options.robotSite,
                              hostFolders().share + "/sites", files);
        robot.seed = options.seed;
        if (!options.scenario) return true;
        const auto text = files.read(absolutePath(*options.scenario));
        if (!text) throw SiteError(*options.scenario + ": cannot be read");
        robot.scenario = parseScenario(*text, *options.scenario);
        return true;
    } catch (const SiteError& error) {
        complain(err, error.what());
        return false;
    }
}

int replayRobot(const ReplayOptions& options, std::FILE* out, std::FILE* err) {
    const std::string script = options.script.value_or("(no script)");
    std::string complaint;
    const OpenFile file = openScript(options.script.value_or("/dev/null"), complaint);
    if (!file) return complain(err, script + ": " + complaint);
    Application application;
    RobotSetup robot;
    if (!readRobot(options, application.files, robot, err)) return kUnusable;
    if (!prepareApplication(options, application, err)) return kUnusable;

    LineReader lines(file.get());
    const std::string folder = options.script ? folderOf(script) : absolutePath(".");
    const auto robotMs = static_cast<std::int64_t>(options.minutes * 60'000);
    ReplayRun run({application.files, application.folders, options.date, folder, &robot, robotMs}, lines,
                  nullptr);
    const Stopwatch stopwatch;
    const ReplayEnd end = run.run();
    if (end == ReplayEnd::badScript) return complain(err, errorText(script, run.error()));
    if (end == ReplayEnd::programError)
        complain(err, "the station ended by a program error: " + run.fatalText());
    const std::string report = run.robot()->report(stopwatch.seconds());
    if (std::fputs(report.c_str(), out) < 0 || std::fflush(out) != 0)
        return complain(err, "the output cannot be written");
    return static_cast<int>(end);
}

}  // namespace

int replayProgram(const std::vector<std::string>& arguments, std::FILE* out, std::FILE* err) {
    std::string complaint;
    const ReplayOptions options = parseReplayOptions(arguments, complaint);
    if (!complaint.empty()) return complain(err, complaint + " (--help tells the rest)");
    if (options.help) {
        std::fputs(replayHelp(), out);
        return 0;
    }
    if (options.version) {
        std::fprintf(out, "quorrin-replay %s\n", QUORRIN_VERSION);
        return 0;
    }
    if (options.names) return listNames(out);
    if (options.robotSite) return replayRobot(options, out, err);
    return replayScript(options, out, err);
}

}  // namespace quorrin
