// Runs a replay script given as text, in memory: nothing on the disk is touched.
//
// The application folder is /app, with the windows and voice folders inside and neutral servo positions in
// its Quorrinsdk.ini. Files of a test's own go into `files` before the run.
#pragma once

#include <cstdio>
#include <sstream>
#include <string>
#include <vector>

#include "platform/virtual/memory_files.h"
#include "replay/replay_run.h"

namespace quorrin {

struct ScriptOutcome {
    ReplayEnd end = ReplayEnd::scriptEnded;
    std::string output;
    ScriptError error;

    std::vector<std::string> lines() const {
        std::vector<std::string> all;
        std::istringstream stream(output);
        for (std::string line; std::getline(stream, line);) all.push_back(line);
        return all;
    }
    // The lines that contain `part`.
    std::vector<std::string> linesWith(const std::string& part) const {
        std::vector<std::string> some;
        for (const std::string& line : lines()) {
            if (line.find(part) != std::string::npos) some.push_back(line);
        }
        return some;
    }
};

class ScriptRunner {
  public:
    ScriptRunner() {
        files.createFolder("/app/windows");
        files.createFolder("/app/tempVoice");
        files.createFolder("/app/catchdata");
        files.put("/app/Quorrinsdk.ini",
                  "[servo1]\ninit=2100\n[servo2]\ninit=2000\n[servo3]\ninit=2650\n"
                  "[servo5]\ninit=3500\n[servo6]\ninit=2000\n");
    }

    ScriptOutcome run(const std::string& script) {
        // fmemopen knows no empty buffer.
        std::string text = script.empty() ? "\n" : script;
        std::FILE* file = fmemopen(text.data(), text.size(), "rb");
        ScriptOutcome outcome;
        {
            LineReader lines(file);
            const Folders folders{"/app", "/app/windows", "/app/tempVoice", "/programs"};
            ReplayRun replay(ReplaySetup{files, folders, date, "/scripts"}, lines, nullptr);
            outcome.end = replay.run();
            outcome.output = replay.output().text();
            outcome.error = replay.error();
        }
        std::fclose(file);
        return outcome;
    }

    MemoryFiles files;
    CivilTime date{2026, 11, 20, 9, 0, 0};
};

inline ScriptOutcome runScript(const std::string& script) {
    ScriptRunner runner;
    return runner.run(script);
}

}  // namespace quorrin
