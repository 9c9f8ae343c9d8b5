#include "session/recorded_link.h"

#include "base/json_text.h"

namespace quorrin {

namespace {

void appendSonar(std::string& out, const std::array<Integer, 4>& sonarCm) {
    out += ", \"SonarCm\": [";
    for (std::size_t i = 0; i < sonarCm.size(); ++i) {
        if (i > 0) out += ", ";
        appendWhole(out, sonarCm[i].value());
    }
    out += ']';
}

// The frame with the properties in which it differs from the one before.
std::string frameMembers(const char* frame, LinkName link, const LinkProperties& before,
                         const LinkProperties& now) {
    std::string out = std::string("\"frame\": \"") + frame + "\"";
    for (const FrameProperty& property : frameProperties()) {
        if (property.link != link) continue;
        if (property.value == nullptr) {
            if (before.sonarCm != now.sonarCm) appendSonar(out, now.sonarCm);
        } else if (before.*property.value != now.*property.value) {
            out += std::string(", \"") + property.name + "\": ";
            appendWhole(out, (now.*property.value).value());
        }
    }
    return out;
}

}  // namespace

RecordedLink::RecordedLink(QuorrinSDK& inner, LinkName name, FlightRecorder& recorder)
    : inner_(inner), name_(name), recorder_(recorder) {
    for (const FrameKind& kind : frameKinds()) {
        if (kind.link == name_) (inner_.*kind.event).handler = [this, &kind] { take(kind); };
    }
}

RecordedLink::~RecordedLink() {
    for (const FrameKind& kind : frameKinds()) {
        if (kind.link == name_) (inner_.*kind.event).handler = nullptr;
    }
}

void RecordedLink::take(const FrameKind& kind) {
    LinkProperties& own = *this;
    std::string members = frameMembers(kind.name, name_, own, inner_);
    own = inner_;
    if (kind.event == &LinkEvents::SoundFrame && soundBuffer_) {
        members += ", \"hex\": \"";
        appendHex(members, soundBuffer_(SoundBufferAddress));
        members += '"';
    }
    recorder_.line(members);
    (this->*kind.event).raise();
}

}  // namespace quorrin
