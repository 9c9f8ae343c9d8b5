#include "platform/host/host_folders.h"

#include <pwd.h>
#include <unistd.h>

#include <cstdlib>

namespace quorrin {

namespace {

std::string environment(const std::string& variable) {
    const char* value = std::getenv(variable.c_str());
    return value == nullptr ? "" : value;
}

std::string homeFolder() {
    const std::string home = environment("HOME");
    if (!home.empty() && home.front() == '/') return home;
    const passwd* entry = ::getpwuid(::getuid());
    return entry == nullptr || entry->pw_dir == nullptr ? "/" : entry->pw_dir;
}

std::string programFolder() {
    char path[4096];
    const ssize_t length = ::readlink("/proc/self/exe", path, sizeof path);
    if (length <= 0) return ".";
    const std::string whole(path, static_cast<std::size_t>(length));
    return whole.substr(0, whole.find_last_of('/'));
}

}  // namespace

HostFolders hostFoldersFrom(const std::function<std::string(const std::string&)>& variable,
                            const std::string& home, const std::string& programs) {
    const auto base = [&](const std::string& name, const std::string& standard) {
        std::string value = variable(name);
        if (value.empty() || value.front() != '/') value = home + standard;
        while (value.size() > 1 && value.back() == '/') value.pop_back();
        return value + "/quorrin";
    };
    HostFolders host;
    host.folders.application = base("XDG_DATA_HOME", "/.local/share");
    host.folders.windows = base("XDG_CONFIG_HOME", "/.config");
    host.folders.tempVoice = base("XDG_CACHE_HOME", "/.cache") + "/tempVoice";
    host.folders.programs = programs;
    host.state = base("XDG_STATE_HOME", "/.local/state");
    host.run = host.folders.application + "/run";
    host.share = programs.substr(0, programs.find_last_of('/')) + "/share/quorrin";
    return host;
}

HostFolders hostFolders() {
    return hostFoldersFrom(environment, homeFolder(), programFolder());
}

std::string createHostFolders(Files& files, const HostFolders& host) {
    for (const std::string& folder :
         {host.folders.application, host.folders.windows, host.folders.tempVoice, host.state, host.run}) {
        if (!files.createFolder(folder)) return folder;
    }
    return {};
}

}  // namespace quorrin
