#include "client/status_report.h"

namespace quorrin {

namespace {

constexpr std::size_t kStep = 5;  // pieces from one report to the next

std::vector<std::string> piecesOf(std::string_view read) {
    std::vector<std::string> pieces;
    for (;;) {
        const std::size_t comma = read.find(',');
        pieces.emplace_back(read.substr(0, comma));
        if (comma == std::string_view::npos) return pieces;
        read.remove_prefix(comma + 1);
    }
}

}  // namespace

std::optional<std::vector<StatusReport>> reportsIn(std::string_view read) {
    const std::vector<std::string> pieces = piecesOf(read);
    if (pieces.size() < kStep + 1 || pieces.size() % kStep != 1) return std::nullopt;
    std::vector<StatusReport> reports;
    std::string first = pieces[0];
    for (std::size_t at = 0; at + kStep < pieces.size(); at += kStep) {
        std::string tail = pieces[at + kStep];
        std::string next;
        if (at + kStep + 1 < pieces.size()) {
            if (tail.empty() || tail[0] != '0') return std::nullopt;
            next = tail.substr(1);
            tail.resize(1);
        }
        reports.push_back({first, pieces[at + 1], pieces[at + 2], pieces[at + 3], pieces[at + 4], tail});
        first = next;
    }
    return reports;
}

}  // namespace quorrin
