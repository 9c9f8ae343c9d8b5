#include "remote/transcript_player.h"

#include <gtest/gtest.h>

#include <stdexcept>

namespace quorrin {

namespace {

constexpr int kPatienceMs = 40'000;
constexpr int kManyClients = 1000;  // numbers of those without a letter
constexpr int kNobody = 2048;       // a presence reading at rest

const char* arrayOf(int port) {
    for (const Channel& channel : kChannels) {
        if (channel.port == port) return channel.name;
    }
    throw std::runtime_error("no channel has port " + std::to_string(port));
}

}  // namespace

TranscriptPlayer::TranscriptPlayer(const Transcript& transcript, Cut cut)
    : transcript_(transcript), cut_(std::move(cut)) {
    bench_.sockets.onAccept = [this](const std::string&, int element) { acceptedElement_ = element; };
    bench_.sockets.onShut = [this](const std::string& array, int element) {
        if (Line* line = find(array, element)) line->shut = true;
    };
    bench_.sockets.onSend = [this](const std::string& array, int element, std::string_view bytes) {
        Line* line = find(array, element);
        ASSERT_NE(line, nullptr) << "bytes for nobody on " << array << " " << element;
        line->sent.emplace_back(bytes);
    };
}

TranscriptPlayer::Line* TranscriptPlayer::find(const std::string& array, int element) {
    for (auto& [key, line] : lines_) {
        if (!line.shut && line.element == element && array == arrayOf(key.second)) return &line;
    }
    return nullptr;
}

void TranscriptPlayer::prepare() {
    bench_.myRobot.HumanAdc1 = kNobody;
    bench_.myRobot.HumanAdc2 = kNobody;
    bench_.reachWondering();
    ASSERT_TRUE(waitFor([this] { return bench_.gui.txtRobotStatus.text() == "wondering"; }, kPatienceMs));
    if (transcript_.fresh) return;
    // Somebody was here, said a word and went.
    ASSERT_TRUE(connect('C', kCommandChannel.port));
    bench_.command("PING");
    bench_.sockets.hangUp(kCommandChannel.name, 1);
    lines_.clear();
}

void TranscriptPlayer::play() {
    const ::testing::ScopedTrace title(__FILE__, __LINE__, transcript_.title);
    prepare();
    for (const TranscriptLine& line : transcript_.lines) {
        const ::testing::ScopedTrace place(__FILE__, __LINE__, line.text);
        perform(line);
        if (::testing::Test::HasFailure()) return;
    }
    expectNothingMore();
}

void TranscriptPlayer::perform(const TranscriptLine& line) {
    switch (line.deed) {
        case Deed::connects:
            EXPECT_TRUE(connect(line.client, line.port));
            return;
        case Deed::isRefused:
            EXPECT_FALSE(connect(line.client, line.port));
            return;
        case Deed::moreConnect:
            return connectMore(line.count, line.port);
        case Deed::sends:
            return send(line, cut_(line.bytes));
        case Deed::sendsAtOnce:
            return send(line, {line.bytes});
        case Deed::hangsUp:
            bench_.sockets.hangUp(arrayOf(line.port), lines_.at({line.client, line.port}).element);
            lines_.erase({line.client, line.port});
            return;
        case Deed::resets:
            bench_.sockets.fail(arrayOf(line.port), lines_.at({line.client, line.port}).element);
            lines_.erase({line.client, line.port});
            return;
        case Deed::hears:
            return hear(line);
        case Deed::seesClose:
            return expectClose(line);
        case Deed::waits:
            waitFor([] { return false; }, line.count);
            return;
        case Deed::has:
            return expectValue(line);
        case Deed::operatorSets:
            return operate(line);
        case Deed::robot:
            return;
    }
}

bool TranscriptPlayer::connect(int client, int port) {
    acceptedElement_ = 0;
    bench_.connect(arrayOf(port), ++nextPort_);
    if (acceptedElement_ == 0) return false;
    lines_[{client, port}] = Line{acceptedElement_, {}, false, lastReport_};
    return true;
}

void TranscriptPlayer::connectMore(int count, int port) {
    for (int i = 0; i < count; ++i) EXPECT_TRUE(connect(kManyClients + i, port)) << i;
}

void TranscriptPlayer::send(const TranscriptLine& line, const std::vector<std::string>& pieces) {
    const std::string array = arrayOf(line.port);
    // A connection that the station has closed meanwhile takes nothing more.
    const int element = lines_.at({line.client, line.port}).element;
    for (const std::string& piece : pieces) {
        if (!lines_.at({line.client, line.port}).shut) bench_.sockets.receive(array, element, piece);
    }
}

void TranscriptPlayer::hear(const TranscriptLine& line) {
    Line& connection = lines_.at({line.client, line.port});
    const auto heard = [&] {
        dropRepeats(connection, line.bytes);
        return !connection.sent.empty();
    };
    ASSERT_TRUE(waitFor(heard, kPatienceMs)) << "the station says nothing";
    EXPECT_EQ(connection.sent.front(), line.bytes);
    connection.sent.pop_front();
    connection.last = line.bytes;
    lastReport_ = line.bytes;
}

void TranscriptPlayer::expectClose(const TranscriptLine& line) {
    Line& connection = lines_.at({line.client, line.port});
    EXPECT_TRUE(waitFor([&] { return connection.shut; }, kPatienceMs));
}

void TranscriptPlayer::expectValue(const TranscriptLine& line) {
    const auto printer = fields_.find(line.name);
    ASSERT_TRUE(printer) << "nothing is called " << line.name;
    std::string value;
    (*printer)(value);
    EXPECT_EQ(value, line.value);
}

void TranscriptPlayer::operate(const TranscriptLine& line) {
    if (line.name == "answers") {
        bench_.boxes.prepareAnswer(line.value == "yes" ? BoxAnswer::yes : BoxAnswer::no);
        return;
    }
    Control* control = findControl(bench_.station, line.name);
    if (auto* box = dynamic_cast<TextBox*>(control)) {
        box->operatorEdit(transcriptBytes(line.value));
    } else if (auto* check = dynamic_cast<CheckBox*>(control)) {
        check->operatorSet(line.value == "true");
    } else if (auto* button = dynamic_cast<CommandButton*>(control)) {
        button->operatorClick();
    } else {
        FAIL() << "the operator has no " << line.name;
    }
}

void TranscriptPlayer::dropRepeats(Line& line, const std::string& but) {
    while (!line.sent.empty() && line.sent.front() == line.last && line.last != but) line.sent.pop_front();
}

void TranscriptPlayer::expectNothingMore() {
    for (auto& [key, line] : lines_) {
        dropRepeats(line, "");
        EXPECT_TRUE(line.sent.empty()) << "unwritten on port " << key.second << ": " << line.sent.front();
    }
}

bool TranscriptPlayer::waitFor(const std::function<bool()>& condition, int ms) {
    constexpr int kStepMs = 50;
    for (int passed = 0; !condition(); passed += kStepMs) {
        if (passed >= ms) return false;
        if (passed % 100 == 0) bench_.sensorFrames(1);
        if (passed % 500 == 0) bench_.powerFrames(1);
        bench_.clock.runFor(kStepMs);
    }
    return true;
}

}  // namespace quorrin
