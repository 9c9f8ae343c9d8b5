// The words as rows, one table for each group of controls; read by control_words.cpp alone.
#pragma once

#include <vector>

namespace quorrin {

struct WordsRow {
    const char* control;
    const char* label;
    const char* name;
    const char* tip;
    const char* shortcut = "";
    const char* suffix = "";
};

using WordsRows = std::vector<WordsRow>;

WordsRows loginWords();
WordsRows aboutWords();
WordsRows zoomCameraWords();
WordsRows controlPanelWords();
// Of the main form.
WordsRows sessionWords();
WordsRows powerWords();
WordsRows remoteWords();
WordsRows cameraWords();
WordsRows archiveWords();
WordsRows soundWords();
WordsRows mapWords();
WordsRows engineeringWords();
WordsRows rangeWords();
WordsRows remainsWords();

}  // namespace quorrin
