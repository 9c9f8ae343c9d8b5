#include "session/recorded_sockets.h"

#include <utility>

#include "base/json_text.h"

namespace quorrin {

namespace {

class RecordedSocket : public Socket {
  public:
    RecordedSocket(std::unique_ptr<Socket> inner, std::string array, int element, FlightRecorder& recorder)
        : inner_(std::move(inner)), array_(std::move(array)), element_(element), recorder_(recorder) {
        inner_->onConnectionRequest = [this](std::int64_t request) { requested(request); };
        inner_->onDataArrival = [this] { arrived(); };
        inner_->onClose = [this] { ended("hangup", onClose); };
        inner_->onError = [this] { ended("socketError", onError); };
    }

    SocketState state() const override { return inner_->state(); }
    std::string remoteHost() const override { return inner_->remoteHost(); }
    std::string remoteHostIP() const override { return inner_->remoteHostIP(); }
    int remotePort() const override { return inner_->remotePort(); }
    int localPort() const override { return inner_->localPort(); }
    void setLocalPort(int port) override { inner_->setLocalPort(port); }
    void listen() override { inner_->listen(); }
    std::string listenError() const override { return inner_->listenError(); }
    void accept(std::int64_t request) override { inner_->accept(request); }
    void close() override {
        unread_.clear();
        inner_->close();
    }
    std::size_t bytesReceived() const override { return unread_.size(); }
    std::string read(std::size_t atMost) override {
        std::string bytes = unread_.substr(0, atMost);
        unread_.erase(0, bytes.size());
        return bytes;
    }
    void send(std::string_view bytes) override { inner_->send(bytes); }

  private:
    // Each handler may destroy this: it is copied, and nothing is touched after it.
    void requested(std::int64_t request) {
        std::string members = member("connect") + ", \"from\": ";
        appendText(members, inner_->remoteHostIP());
        recorder_.line(members + ", \"port\": " + std::to_string(inner_->remotePort()));
        const auto handler = onConnectionRequest;
        if (handler) handler(request);
    }
    void arrived() {
        const std::string bytes = inner_->read(inner_->bytesReceived());
        if (!onDataArrival) return;
        std::string members = member("receive") + element() + ", \"hex\": \"";
        appendHex(members, bytes);
        recorder_.line(members + "\"");
        unread_ += bytes;
        const auto handler = onDataArrival;
        handler();
    }
    void ended(const char* what, const std::function<void()>& own) {
        if (element_ > 0) recorder_.line(member(what) + element());
        const auto handler = own;
        if (handler) handler();
    }

    std::string member(const char* what) const {
        std::string text = std::string("\"") + what + "\": ";
        appendText(text, array_);
        return text;
    }
    std::string element() const { return ", \"element\": " + std::to_string(element_); }

    std::unique_ptr<Socket> inner_;
    std::string array_;
    int element_;
    FlightRecorder& recorder_;
    std::string unread_;
};

}  // namespace

std::unique_ptr<Socket> RecordedSockets::create(const std::string& array, int element) {
    return std::make_unique<RecordedSocket>(inner_.create(array, element), array, element, recorder_);
}

}  // namespace quorrin
