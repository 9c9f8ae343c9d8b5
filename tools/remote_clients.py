"""Remote clients of a station, in plain Python: many connections on one epoll, and what the machine says of them.

Nothing here is built from the station's code. One thread; times are seconds of time.monotonic(). Whoever uses it calls
Loop.run, which delivers what comes and what is due.
"""
import errno
import heapq
import itertools
import os
import select
import socket
import struct
import time

HOST = "127.0.0.1"
PORTS = {"command": 7060, "sensor": 7070, "video": 7080, "voice": 7090, "hear": 7040, "speech": 7050}
SIDE = [name for name in PORTS if name != "command"]
ESTABLISHED = 1
TCP_REPAIR = 19


def frame(payload):
    return b"^\x02" + payload + b"^\r"


class Connection:
    """One TCP connection to the station. `ended` is None, "closed" (by the station), "reset" or "refused"."""

    def __init__(self, loop, channel, source=None, reads=True, receive_bytes=None):
        self.loop, self.channel, self.reads = loop, channel, reads
        self.ended = None
        self.received = 0
        self.reads_seen = 0
        self.unsent = b""
        self.socket = socket.socket()
        self.socket.setblocking(False)
        self.socket.setsockopt(socket.IPPROTO_TCP, socket.TCP_NODELAY, 1)
        if receive_bytes:
            self.socket.setsockopt(socket.SOL_SOCKET, socket.SO_RCVBUF, receive_bytes)
        self.socket.bind((source or HOST, 0))
        self.port = self.socket.getsockname()[1]
        result = self.socket.connect_ex((HOST, PORTS[channel]))
        if result not in (0, errno.EINPROGRESS):
            raise OSError(result, os.strerror(result))
        loop.watch(self)

    def send(self, data):
        if self.ended:
            return
        self.unsent += data
        self.push()

    def push(self):
        try:
            sent = self.socket.send(self.unsent) if self.unsent else 0
            self.unsent = self.unsent[sent:]
        except BlockingIOError:
            pass
        except OSError:
            self.end("reset")
            return
        self.loop.change(self)

    def take(self, events):
        """What epoll said."""
        if self.reads and events & (select.EPOLLIN | select.EPOLLHUP | select.EPOLLERR):
            try:
                data = self.socket.recv(1 << 20)
            except BlockingIOError:
                data = None
            except OSError as error:
                self.end("refused" if error.errno == errno.ECONNREFUSED else "reset")
                return
            if data == b"":
                self.end("closed")
                return
            if data:
                self.received += len(data)
                self.reads_seen += 1
        elif events & (select.EPOLLHUP | select.EPOLLERR):
            self.end("reset")
            return
        if events & select.EPOLLOUT:
            self.push()

    def interest(self):
        return (select.EPOLLIN if self.reads else 0) | (select.EPOLLOUT if self.unsent else 0)

    def end(self, how):
        if self.ended is None:
            self.ended = how
            self.loop.forget(self)
            self.socket.close()

    def hang_up(self):
        self.end("by us")

    def reset(self):
        if self.ended is None:
            self.socket.setsockopt(socket.SOL_SOCKET, socket.SO_LINGER, struct.pack("ii", 1, 0))
            self.end("by us")


class Loop:
    """epoll and a heap of what is due."""

    def __init__(self):
        self.epoll = select.epoll()
        self.open = {}
        self.due = []
        self.order = itertools.count()

    def watch(self, connection):
        self.open[connection.socket.fileno()] = connection
        # Writable is when it is connected.
        self.epoll.register(connection.socket.fileno(), connection.interest() | select.EPOLLOUT)

    def change(self, connection):
        if connection.ended is None:
            self.epoll.modify(connection.socket.fileno(), connection.interest())

    def forget(self, connection):
        self.epoll.unregister(connection.socket.fileno())
        del self.open[connection.socket.fileno()]

    def at(self, when, function):
        heapq.heappush(self.due, (when, next(self.order), function))

    def every(self, period, function, first=0.0):
        """Until the function returns False."""
        def step(planned):
            if function() is not False:
                later = max(planned + period, time.monotonic())
                self.at(later, lambda: step(later))
        begin = time.monotonic() + first
        self.at(begin, lambda: step(begin))

    def run(self, seconds, until=None):
        """For so long, or until the condition holds, which is what it returns."""
        end = time.monotonic() + seconds
        while True:
            if until is not None and until():
                return True
            now = time.monotonic()
            if now >= end:
                return False
            while self.due and self.due[0][0] <= now:
                heapq.heappop(self.due)[2]()
            wait = min(end, self.due[0][0] if self.due else end) - time.monotonic()
            if until is not None:
                wait = min(wait, 0.01)
            for number, events in self.epoll.poll(max(wait, 0)):
                if number in self.open:
                    self.open[number].take(events)


def machine_sockets():
    """The machine's IPv4 connections: (local port, remote port) to state, bytes to send, bytes unread, taken."""
    rows = {}
    with open("/proc/net/tcp") as file:
        for line in file.readlines()[1:]:
            fields = line.split()
            sending, unread = fields[4].split(":")
            ports = tuple(int(fields[i].split(":")[1], 16) for i in (1, 2))
            # A call that no program has taken yet has no inode.
            rows[ports] = {"state": int(fields[3], 16), "sending": int(sending, 16), "unread": int(unread, 16),
                           "taken": fields[9] != "0"}
    return rows


def taken(connection, rows=None):
    """The station has accepted it and holds it."""
    row = (rows or machine_sockets()).get((PORTS[connection.channel], connection.port))
    return connection.ended is None and row is not None and row["state"] == ESTABLISHED and row["taken"]


class Client:
    """One client on its six channels; talks once talk() is called."""

    DRIVE_S, PING_S, WORD_S, VOICE_S = 0.1, 2.0, 0.5, 0.2
    VOICE_BYTES = 325

    def __init__(self, loop, number=0, **options):
        self.loop, self.number, self.options = loop, number, options
        self.counter = 1 + number * 900
        self.commands_sent = 0
        self.connections = {"command": Connection(loop, "command", **options)}

    def connect_side(self):
        for channel in SIDE:
            self.connections[channel] = Connection(self.loop, channel, **self.options)

    def all_taken(self, rows=None):
        rows = rows or machine_sockets()
        return all(taken(connection, rows) for connection in self.connections.values())

    def command(self, payload):
        self.connections["command"].send(frame(payload))

    def ping(self):
        self.command(b"PING")

    def drive(self):
        """The stick nearly straight, the gas where 32 drivers agree on it."""
        self.counter = self.counter % 32000 + 1
        self.commands_sent += 1
        steering = 4900 + 10 * (self.commands_sent % 20)
        self.command(b"%d,6000,9500,2000,2000,3000,1,%d" % (steering, self.counter))

    def talk(self):
        """Everything but speech, each client at its own beat."""
        beat = (self.number % 32) / 32
        words = itertools.cycle((b"OKOK", b"OKFN"))
        self.loop.every(self.DRIVE_S, self.drive, beat * self.DRIVE_S)
        self.loop.every(self.PING_S, self.ping, beat * self.PING_S)
        self.loop.every(self.WORD_S, lambda: self.connections["video"].send(frame(next(words))), beat * self.WORD_S)
        for channel in ("voice", "hear"):
            self.loop.every(self.VOICE_S, lambda c=channel: self.connections[c].send(os.urandom(self.VOICE_BYTES)),
                            beat * self.VOICE_S)

    def hang_up(self):
        for connection in self.connections.values():
            connection.hang_up()


def cpu_seconds(process):
    fields = open(f"/proc/{process}/stat").read().rsplit(")", 1)[1].split()
    return (int(fields[11]) + int(fields[12])) / os.sysconf("SC_CLK_TCK")


def resident_kib(process):
    return int(open(f"/proc/{process}/statm").read().split()[1]) * os.sysconf("SC_PAGE_SIZE") // 1024


def descriptors(process):
    return len(os.listdir(f"/proc/{process}/fd"))
