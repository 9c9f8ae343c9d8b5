// Socket arrays that print what is asked of them, as a replay prints it, and pass it on to others.
#pragma once

#include <memory>
#include <string>
#include <string_view>
#include <utility>

#include "platform/sockets.h"
#include "replay/output.h"

namespace quorrin {

class PrintingSocket : public Socket {
  public:
    PrintingSocket(std::unique_ptr<Socket> inner, std::string array, int element, Output& output)
        : inner_(std::move(inner)), array_(std::move(array)), element_(element), output_(output) {
        inner_->onConnectionRequest = [this](std::int64_t request) {
            const auto handler = onConnectionRequest;
            if (handler) handler(request);
        };
        inner_->onDataArrival = [this] { run(onDataArrival); };
        inner_->onClose = [this] { run(onClose); };
        inner_->onError = [this] { run(onError); };
    }

    SocketState state() const override { return inner_->state(); }
    std::string remoteHost() const override { return inner_->remoteHost(); }
    std::string remoteHostIP() const override { return inner_->remoteHostIP(); }
    int remotePort() const override { return inner_->remotePort(); }
    int localPort() const override { return inner_->localPort(); }
    void setLocalPort(int port) override { inner_->setLocalPort(port); }
    void listen() override {
        inner_->listen();
        if (state() == SocketState::listening) print("listen", "port", localPort());
    }
    std::string listenError() const override { return inner_->listenError(); }
    void accept(std::int64_t request) override {
        inner_->accept(request);
        if (state() == SocketState::connected) print("accept", "element", element_);
    }
    void close() override {
        if (state() != SocketState::closed) print("shut", "element", element_);
        inner_->close();
    }
    std::size_t bytesReceived() const override { return inner_->bytesReceived(); }
    std::string read(std::size_t atMost) override { return inner_->read(atMost); }
    void send(std::string_view bytes) override {
        if (state() != SocketState::connected) return;
        output_.begin();
        output_.addText("send", array_);
        output_.addWhole("element", element_);
        output_.addBytes(bytes);
        output_.end();
        inner_->send(bytes);
    }

  private:
    // The handler may destroy this.
    static void run(const std::function<void()>& own) {
        const auto handler = own;
        if (handler) handler();
    }
    void print(const char* what, const char* key, int number) {
        output_.begin();
        output_.addText(what, array_);
        output_.addWhole(key, number);
        output_.end();
    }

    std::unique_ptr<Socket> inner_;
    std::string array_;
    int element_;
    Output& output_;
};

class PrintingSockets : public Sockets {
  public:
    // Both must outlive it and its sockets.
    PrintingSockets(Sockets& inner, Output& output) : inner_(inner), output_(output) {}
    std::unique_ptr<Socket> create(const std::string& array, int element) override {
        return std::make_unique<PrintingSocket>(inner_.create(array, element), array, element, output_);
    }

  private:
    Sockets& inner_;
    Output& output_;
};

}  // namespace quorrin
