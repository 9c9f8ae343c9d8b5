#include "replay/replay_program.h"

#include <memory>

#include "platform/host/host_folders.h"
#include "platform/host/posix_files.h"
#include "platform/host/temporary_folder.h"
#include "replay/replay_options.h"
#include "replay/replay_run.h"
#include "session/first_start.h"

namespace quorrin {

namespace {

constexpr int kUnusable = 2;

int complain(std::FILE* err, const std::string& what) {
    std::fprintf(err, "quorrin-replay: %s\n", what.c_str());
    return kUnusable;
}

struct CloseFile {
    void operator()(std::FILE* file) const {
        if (file != stdin) std::fclose(file);
    }
};
using OpenFile = std::unique_ptr<std::FILE, CloseFile>;

OpenFile openScript(const std::string& script) {
    return OpenFile(script == "-" ? stdin : std::fopen(script.c_str(), "rb"));
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

int replayScript(const ReplayOptions& options, std::FILE* out, std::FILE* err) {
    const std::string& script = *options.script;
    const OpenFile file = openScript(script);
    if (!file) return complain(err, script + ": cannot be opened");

    PosixFiles files;
    std::unique_ptr<TemporaryFolder> temporary;
    if (!options.app) temporary = std::make_unique<TemporaryFolder>();
    const std::string application = temporary ? temporary->path() : absolutePath(*options.app);
    if (application.empty()) return complain(err, "no temporary folder can be made");
    Folders folders;
    if (!prepareFolders(files, application, folders, err)) return kUnusable;

    LineReader lines(file.get());
    ReplayRun run(ReplaySetup{files, folders, options.date, folderOf(script)}, lines, out);
    const ReplayEnd end = run.run();
    if (end == ReplayEnd::badScript) {
        complain(err, script + ": line " + std::to_string(run.error().line) + ": " + run.error().reason);
    }
    if (!run.output().good()) return complain(err, "the output cannot be written");
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
    if (options.robotSite) return complain(err, "--robot is not built yet");
    return replayScript(options, out, err);
}

}  // namespace quorrin
