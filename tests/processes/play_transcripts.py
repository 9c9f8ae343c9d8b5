#!/usr/bin/env python3
"""Plays the transcripts of docs/remote-protocol.md over real sockets, and judges what comes back.

    play_transcripts.py --truth FILE [--received FILE] [--long] [--pieces SEED] TRANSCRIPTS...

It knows nothing of the station but its ports: reports and closes are what it sees, and what the simulated robot
writes into its truth file. What a transcript says of the station's inner values is judged by the tests in virtual
time; transcripts that need an operator are left to those as well. Those that wait for longer than ten seconds are
played with --long, and then alone. Ends with 1 and the line that did not hold. --received writes what came on each
connection of port 7070, one JSON text a line, in the order of connecting. With --pieces bytes that may reach the
station in any pieces are cut at random places.
"""
import argparse, json, random, re, select, socket, struct, sys, time

DEADLINE_S, PING_EVERY_S = 40, 12
COMMAND, SENSOR = 7060, 7070
ESTABLISHED, BEING_MADE, OVER = "01", "03", "06"  # states in the machine's table
AT_REST = b"0,0,0,4,wondering,0"


class Differs(Exception):
    pass


def wire_bytes(text):
    out = b""
    for quoted, times, pair in re.findall(r'"([^"]*)"(?:\*(\d+))?|([0-9A-F]{2})(?= |$)', text):
        out += bytes([int(pair, 16)]) if pair else quoted.encode("latin-1") * int(times or 1)
    return out


def transcripts(path):
    """(title, flags, lines) of each."""
    found, inside = [], not path.endswith(".md")
    for text in open(path, encoding="utf-8").read().splitlines():
        if path.endswith(".md") and text.startswith("```"):
            inside = text == "```transcript"
        elif inside and text.startswith("# "):
            found.append((text[2:], set(), []))
        elif inside and text in ("fresh", "not live"):
            found[-1][1].add(text)
        elif inside and text:
            found[-1][2].append(text)
    return found


def is_long(lines):
    return any(text.startswith("wait ") and int(text[5:]) > 10_000 for text in lines)


def eventually(condition, what, deadline=DEADLINE_S):
    end = time.monotonic() + deadline
    while not condition():
        if time.monotonic() > end:
            raise Differs(what)
        time.sleep(0.02)


def station_end(own_port, port):
    """(state, unread bytes, inode) of the station's end of a connection, from the machine's table."""
    for row in open("/proc/net/tcp").read().splitlines()[1:]:
        words = row.split()
        if int(words[1][-4:], 16) == port and int(words[2][-4:], 16) == own_port:
            return words[3], int(words[4].split(":")[1], 16), int(words[9])
    return None


class Connection:
    everything = []  # all of port 7070, in the order of connecting

    def __init__(self, port, last):
        self.port, self.received, self.last, self.ended, self.log = port, b"", last, False, b""
        self.line = socket.create_connection(("127.0.0.1", port), timeout=DEADLINE_S)
        self.line.setsockopt(socket.IPPROTO_TCP, socket.TCP_NODELAY, 1)
        self.own = self.line.getsockname()[1]
        # The machine takes it at once; the station has when its end belongs to a program, or is closed again.
        eventually(self.is_taken, "the station takes no call")

    def is_taken(self):
        end = station_end(self.own, self.port)
        return end is None or end[0] not in (ESTABLISHED, BEING_MADE) or end[2] != 0

    def has_read(self):
        end = station_end(self.own, self.port)
        return end is None or end[0] != ESTABLISHED or end[1] == 0

    def is_gone(self):
        end = station_end(self.own, self.port)
        return end is None or end[0] == OVER

    def read(self, seconds=0.0):
        while not self.ended and select.select([self.line], [], [], seconds)[0]:
            try:
                data = self.line.recv(65536)
            except ConnectionResetError:
                data = b""
            self.ended = not data
            self.received, self.log, seconds = self.received + data, self.log + data, 0.0

    def has_ended(self):
        self.read(0.05)
        return self.ended

    def accepted(self):
        """A call that is refused is closed by the handler that took it."""
        if self.port != COMMAND:
            self.read(0.3)
        if not self.ended and self.port == SENSOR:
            Connection.everything.append(self)
        return not self.ended

    def send(self, data):
        self.line.sendall(data)
        eventually(self.has_read, "the station does not read")

    def next_report(self):
        """The next report, but for repeats of the last one; None while there is none."""
        self.read()
        found = re.match(rb"[^,]*,[^,]*,[^,]*,[^,]*,[^,]*,0", self.received)
        return found and found.group(0)

    def hears(self, expected):
        def heard():
            report = self.next_report()
            if report is None:
                return False
            if report != expected and report != self.last:
                raise Differs(f"the station says {report!r}")
            self.received, self.last = self.received[len(report):], report
            return report == expected
        eventually(heard, "the station does not say that")

    def hears_nothing_more(self):
        while self.port == SENSOR and self.next_report() is not None:
            report = self.next_report()
            if report != self.last:
                raise Differs(f"unwritten: {report!r}")
            self.received = self.received[len(report):]

    def close(self, reset=False):
        self.read()
        if reset:
            self.line.setsockopt(socket.SOL_SOCKET, socket.SO_LINGER, struct.pack("ii", 1, 0))
        elif not self.ended:
            self.line.shutdown(socket.SHUT_WR)  # what the station has sent before it hears of it still comes
            eventually(self.has_ended, "the station does not close")
        self.line.close()
        eventually(self.is_gone, "the station does not let go")


class Player:
    def __init__(self, truth, pieces):
        self.truth, self.open, self.mode, self.pinged = truth, {}, AT_REST, 0.0
        self.random = None if pieces is None else random.Random(pieces)

    def robot(self, what):
        def last():
            rows = open(self.truth).read().splitlines()[:-1]
            return json.loads(rows[-1]) if rows else {"v": 0, "servos": [0] * 6}
        wanted = {"stands": lambda: abs(last()["v"]) < 0.005, "drives": lambda: last()["v"] > 0.05}
        number = int(what.split()[1]) if " " in what else 0
        eventually(wanted.get(what, lambda: last()["servos"][2] == number), "the robot does not")

    def cut(self, data, one_read):
        if one_read or self.random is None:
            return [data]
        pieces = []
        while data:
            length = self.random.randint(1, 9)
            pieces, data = pieces + [data[:length]], data[length:]
        return pieces

    def visit(self):
        """Somebody who says a PING and goes, so that no transcript meets the drop of a silence before it."""
        line = Connection(COMMAND, b"")
        line.send(b"^\x02PING^\r")
        line.close()
        self.pinged = time.monotonic()

    def connect(self, who, port):
        line = Connection(port, self.mode)
        if not line.accepted():
            line.close()
            return False
        self.open[who, port] = line
        return True

    def client(self, who, port, rest):
        if rest == " connects":
            if not self.connect(who, port):
                raise Differs("refused")
        elif rest == " is refused":
            if self.connect(who, port):
                raise Differs("accepted")
        elif rest in (" hangs up", " resets"):
            self.open.pop((who, port)).close(rest == " resets")
        else:
            data = wire_bytes(rest[rest.index(":") + 1:])
            for piece in self.cut(data, " in one read" in rest):
                self.open[who, port].send(piece)
            if b"PING" in data:
                self.pinged = time.monotonic()

    def station(self, port, rest):
        to = re.match(r" to ([A-Z])", rest)
        line = self.open[to.group(1) if to else "C", port]
        if rest.endswith(" closes"):
            return eventually(line.has_ended, "the station does not close")
        line.hears(wire_bytes(rest[rest.index(":") + 1:]))
        self.mode = line.last
        return None

    def perform(self, text):
        who, rest = text.split(" ", 1)
        if who in ("C", "D"):
            self.client(who, int(rest[:4]), rest[4:])
        elif who == "S":
            self.station(int(rest[:4]), rest[4:])
        elif who == "robot":
            self.robot(rest)
        elif who == "wait":
            time.sleep(int(rest) / 1000)
        elif " more connect " in text:
            for number in range(int(who)):
                if not self.connect(number, int(text[-4:])):
                    raise Differs(f"number {number} is refused")
        elif who != "station":
            raise Differs("no line of a transcript")

    def play(self, title, flags, lines):
        if "fresh" not in flags and time.monotonic() > self.pinged + PING_EVERY_S:
            self.visit()
        for text in lines:
            try:
                self.perform(text)
            except Differs as reason:
                raise Differs(f"{title}\n    {text}\n    {reason}") from None
        try:
            for line in self.open.values():
                line.hears_nothing_more()
        except Differs as reason:
            raise Differs(f"{title}\n    {reason}") from None
        # The command connection last, so that reports have their line till the end.
        for who, port in sorted(self.open, key=lambda key: key[1] == COMMAND):
            self.open.pop((who, port)).close()
        print(f"held: {title}", flush=True)


def main():
    options = argparse.ArgumentParser()
    options.add_argument("--truth", required=True)
    options.add_argument("--received")
    options.add_argument("--long", action="store_true")
    options.add_argument("--pieces", type=int)
    options.add_argument("files", nargs="+")
    chosen = options.parse_args()
    player = Player(chosen.truth, chosen.pieces)
    todo = [one for path in chosen.files for one in transcripts(path)
            if "not live" not in one[1] and is_long(one[2]) == chosen.long]
    fresh = [one for one in todo if "fresh" in one[1]][:1]  # a station is fresh only once
    try:
        for one in fresh + [one for one in todo if "fresh" not in one[1]]:
            player.play(*one)
    except Differs as reason:
        print(f"differs: {reason}", flush=True)
        sys.exit(1)
    finally:
        if chosen.received:
            with open(chosen.received, "w") as out:
                for line in Connection.everything:
                    out.write(json.dumps(line.log.decode("latin-1")) + "\n")


if __name__ == "__main__":
    main()
