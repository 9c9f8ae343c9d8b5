#include "remote/socket_array.h"

#include <algorithm>

namespace quorrin {

namespace {
constexpr int kPortOfNone = 7040;
}

SocketArray::SocketArray(Sockets& sockets, const Channel& channel) : sockets_(sockets), channel_(channel) {
    make(0);
    listener().onConnectionRequest = [this](std::int64_t request) {
        if (onConnectionRequest) onConnectionRequest(request);
    };
}

void SocketArray::make(int index) {
    auto socket = sockets_.create(channel_.name, index);
    if (onDataArrival) socket->onDataArrival = [this, index] { onDataArrival(index); };
    socket->onClose = [this, index] {
        if (onClose) onClose(index);
    };
    socket->onError = [this, index] {
        if (onError) onError(index);
    };
    elements_[static_cast<std::size_t>(index)] = std::move(socket);
}

Socket* SocketArray::element(int index) const {
    if (index < 0 || index > kLastElement) return nullptr;
    return elements_[static_cast<std::size_t>(index)].get();
}

int SocketArray::highestElement() const {
    int index = kLastElement;
    while (index > 0 && element(index) == nullptr) --index;
    return index;
}

bool SocketArray::anyConnected() const {
    for (int i = 1; i <= kLastElement; ++i) {
        const Socket* socket = element(i);
        if (socket != nullptr && socket->state() == SocketState::connected) return true;
    }
    return false;
}

int SocketArray::openSocketSlot() {
    for (int i = 1; i <= kLastElement; ++i) {
        if (element(i) != nullptr) continue;
        make(i);
        return i;
    }
    return -1;
}

int SocketArray::acceptCall(std::int64_t request) {
    const int index = openSocketSlot();
    if (index > 0) {
        element(index)->setLocalPort(0);
        element(index)->accept(request);
    }
    return index;
}

void SocketArray::startOnPort() {
    listener().setLocalPort(channel_.port);
    startListening(listener());
}

void SocketArray::destroy(int index) {
    if (element(index) != nullptr && index > 0) elements_[static_cast<std::size_t>(index)].reset();
}

void SocketArray::destroyClients() {
    for (int highest = highestElement(); highest > 0; highest = highestElement()) {
        closeSocket(*element(highest));
        destroy(highest);
    }
}

void SocketArray::closeAll() {
    for (const auto& socket : elements_) {
        if (socket) closeSocket(*socket);
    }
}

void startListening(Socket& socket) {
    if (socket.state() == SocketState::listening) return;
    if (socket.localPort() == 0) socket.setLocalPort(kPortOfNone);
    socket.listen();
}

void closeSocket(Socket& socket) {
    if (socket.state() != SocketState::closed) socket.close();
}

std::string callerName(const Socket& listener) {
    std::string name = listener.remoteHost();
    if (name.empty()) name = listener.remoteHostIP();
    std::transform(name.begin(), name.end(), name.begin(),
                   [](char c) { return c >= 'a' && c <= 'z' ? static_cast<char>(c - 'a' + 'A') : c; });
    return name;
}

}  // namespace quorrin
