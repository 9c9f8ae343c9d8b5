// A whole station and what callers, clients and its operator do to its remote access, in any order:
// afterwards its elements, its list and its flags are those of a plain model, and nothing leaves by an
// exception, whatever levels a client has sent and however the robot is driven by them.
//
// Input: 'w' for a station whose robot wanders, else one that has only been started; then steps, each a line.
// C is a channel ('0' command, '1' video, '2' sensor, '3' voice, '4' speech, '5' voice to the client), E an
// element ('0' + its number):
//
//   cC     a call          hCE    it hangs up      rEBYTES  bytes on the command channel, as one read
//   y      a call that     fCE    it breaks        tN       300 ms pass, and 100 times N
//          "yes" answers   u      the operator     s        PING has been silent for 30 s
//                                 clicks chkRemote
#include <cstdint>
#include <string>
#include <string_view>

#include "expect.h"
#include "plain_connections.h"
#include "remote/channels.h"
#include "support/station_bench.h"

namespace quorrin::fuzz {
namespace {

constexpr std::size_t kMostSteps = 200;

class Room {
  public:
    explicit Room(bool wandering) {
        if (wandering) {
            bench_.reachWondering();
        } else {
            bench_.station.startAtMainForm();
        }
        judge();
    }

    void step(std::string_view line) {
        const auto number = [line](std::size_t place) {
            return place < line.size() ? static_cast<std::size_t>(static_cast<unsigned char>(line[place]))
                                       : 0;
        };
        const std::size_t channel = (number(1) + kChannels.size() * 8 - '0') % kChannels.size();
        const std::size_t element = (number(2) + 256 - '0') % (PlainConnections::kLast + 1);
        const std::string array = kChannels[channel].name;
        switch (line.empty() ? ' ' : line[0]) {
            case 'c':
                call(channel, false);
                break;
            case 'y':
                call(0, true);
                break;
            case 'h':
                model_.hangUp(channel, element);
                bench_.sockets.hangUp(array, static_cast<int>(element));
                break;
            case 'f':
                model_.fail(channel, element);
                bench_.sockets.fail(array, static_cast<int>(element));
                break;
            case 'r':
                read((number(1) + 256 - '0') % (PlainConnections::kLast + 1),
                     std::string(line.substr(std::min<std::size_t>(2, line.size()))));
                break;
            case 't':
                pass(300 + 100 * static_cast<int>(number(1) % 16));
                break;
            case 's':
                bench_.gui.connCheckTicks = 100;
                bench_.clock.runFor(300);
                model_.silence();
                break;
            case 'u':
                bench_.gui.chkRemote.operatorSet(!model_.enabled);
                model_.toggle();
                break;
            default:
                return;
        }
        judge();
    }

  private:
    void call(std::size_t channel, bool answer) {
        const int port = ++lastPort_;
        if (channel == 0 && !model_.enabled)
            bench_.boxes.prepareAnswer(answer ? BoxAnswer::yes : BoxAnswer::no);
        model_.call(channel, port, answer);
        bench_.sockets.connect(kChannels[channel].name, "10.0.0.5", port);
    }
    void read(std::size_t element, const std::string& bytes) {
        model_.read(element, bytes);
        bench_.sockets.receive(kChannels[0].name, static_cast<int>(element), bytes);
    }
    void pass(int ms) {
        bench_.gui.connCheckTicks = 0;
        model_.look();
        // The links live.
        bench_.sensorFrames(1);
        bench_.powerFrames(1);
        bench_.clock.runFor(ms);
    }

    void judge() {
        const NetworkControls& network = bench_.gui;
        std::vector<std::string> lines;
        for (std::size_t i = 0; i < network.ConnectionList.count(); ++i)
            lines.push_back(network.ConnectionList.line(i));
        expect(lines == model_.lines, "the list names the clients");
        expect(network.chkRemote.checked() == model_.enabled, "chkRemote");
        expect(bench_.values.callAccepted == model_.callAccepted, "callAccepted");
        expect(bench_.gui.sensorClientConnected == model_.sensorThere, "sensorClientConnected");
        expect(bench_.values.videoClientConnected == model_.videoThere, "videoClientConnected");
        for (std::size_t channel = 0; channel < kChannels.size(); ++channel) {
            const std::string array = kChannels[channel].name;
            expect(bench_.sockets.exists(array, 0), "the listener is there");
            for (int i = 1; i <= PlainConnections::kLast; ++i)
                expect(bench_.sockets.exists(array, i) ==
                           (model_.elements[channel][static_cast<std::size_t>(i)] !=
                            PlainConnections::Element::none),
                       "the elements that there are");
        }
    }

    PlainConnections model_;
    StationBench bench_;
    int lastPort_ = 40000;
};

}  // namespace
}  // namespace quorrin::fuzz

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    quorrin::fuzz::Room room(size > 0 && data[0] == 'w');
    std::string_view rest(reinterpret_cast<const char*>(data), size);
    if (!rest.empty()) rest.remove_prefix(1);
    for (std::size_t steps = 0; !rest.empty() && steps < quorrin::fuzz::kMostSteps; ++steps) {
        const std::string_view line = rest.substr(0, rest.find('\n'));
        room.step(line);
        rest.remove_prefix(line.size() < rest.size() ? line.size() + 1 : line.size());
    }
    return 0;
}
