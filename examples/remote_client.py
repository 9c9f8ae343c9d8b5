#!/usr/bin/env python3
"""A client of a station's remote access, in the standard library only.

    examples/remote_client.py [HOST]

Connects, prints the station's reports, and takes commands on standard input, one a line:

    drive 5000 8000 10000     steering, gas, brake (5000 straight ahead, gas 10000 stands); repeated until the next line
    stand                     neutral, and still held
    mode | rlis | nlis        the words of the protocol
    clos                      neutral, and then let go
    quit                      lets go, ends the session and this program

Ctrl-C and the end of the input let go and leave the station's session to others. The protocol is told in
docs/remote-protocol.md.
"""
import select, socket, sys, time

COMMAND, SENSOR, VIDEO, VOICE, SOUND, SPEECH = 7060, 7070, 7080, 7090, 7040, 7050
NEUTRAL = (5000, 10000, 10000)  # steering straight ahead, no gas, brake released
HEAD = (2000, 2000, 2650)  # ahead, and the mouth shut
REPEAT_S, PING_S, RETRY_S = 0.1, 10, 0.5


def frame(payload):
    """A payload (bytes) as it goes over the wire."""
    return b"^\x02" + payload + b"^\r"


def drive_command(counter, levels=NEUTRAL, head=HEAD, avoid=True):
    return ",".join(map(str, (*levels, *head, int(avoid), counter))).encode("ascii")


def take_report(text):
    """The first report of what has come in (bytes) and the rest; None for the report while it is not whole.

    A report has no end mark. Its sixth field is always one "0", so it ends one byte behind the fifth comma.
    """
    at = -1
    for _ in range(5):
        at = text.find(b",", at + 1)
        if at < 0:
            return None, text
    return (text[:at + 2], text[at + 2:]) if len(text) > at + 1 else (None, text)


def connect(host, port):
    line = socket.create_connection((host, port), timeout=5)
    line.setsockopt(socket.IPPROTO_TCP, socket.TCP_NODELAY, 1)
    return line


class Client:
    def __init__(self, host):
        self.host, self.counter, self.levels, self.received = host, 0, None, b""
        self.command, self.sensor = connect(host, COMMAND), None
        self.sensor_try = time.monotonic() + RETRY_S
        self.say(b"PING")  # a new connection does not put the station's count of silence back

    def say(self, payload):
        self.command.sendall(frame(payload))

    def drive(self, levels):
        self.counter = self.counter % 30000 + 1  # only a new number holds the robot
        self.say(drive_command(self.counter, levels))

    def let_go(self):
        if self.levels:
            self.drive(NEUTRAL)
            time.sleep(REPEAT_S)  # two commands of different lengths go in two reads
            self.levels = None
        self.say(b"Clos")
        time.sleep(REPEAT_S)
        self.say(b"PING")  # a frame that has come in one read with another is handled with the next

    def reports(self):
        """Reads what the station has sent; an empty read is its close."""
        data = self.sensor.recv(65536)
        if not data:
            self.sensor.close()  # not answered yet, or dropped
            self.sensor, self.sensor_try = None, time.monotonic() + RETRY_S
        self.received += data
        while True:
            report, self.received = take_report(self.received)
            if report is None:
                return
            yield report.decode("latin-1")

    def obey(self, words):
        """False at the end."""
        if words[0] == "drive" and len(words) == 4:
            self.levels = tuple(map(int, words[1:]))
        elif words[0] == "stand":
            self.levels = NEUTRAL
        elif words[0] in ("mode", "rlis", "nlis"):
            self.say({"mode": b"Mode", "rlis": b"RLIS", "nlis": b"NLIS"}[words[0]])
        elif words[0] in ("clos", "quit"):
            self.let_go()
            if words[0] == "quit":
                self.say(b"Quit")
                return False
        else:
            print("unknown:", *words, file=sys.stderr)
        return True

    def run(self):
        pinged = driven = time.monotonic()
        while True:
            now = time.monotonic()
            if self.sensor is None and now >= self.sensor_try:
                self.sensor = connect(self.host, SENSOR)
            if now >= pinged + PING_S:
                pinged = now
                self.say(b"PING")
            if self.levels and now >= driven + REPEAT_S:
                driven = now
                self.drive(self.levels)
            lines = [self.command, sys.stdin] + ([self.sensor] if self.sensor else [])
            ready = select.select(lines, [], [], REPEAT_S / 2)[0]
            if self.sensor in ready:
                for report in self.reports():
                    print(report, flush=True)
            if self.command in ready and not self.command.recv(4096):
                return print("the station has closed the connection", flush=True)
            if sys.stdin in ready:
                text = sys.stdin.readline()
                if not text:
                    return self.let_go()
                if text.split() and not self.obey(text.split()):
                    return None


if __name__ == "__main__":
    client = Client(sys.argv[1] if len(sys.argv) > 1 else "127.0.0.1")
    try:
        client.run()
    except KeyboardInterrupt:
        client.let_go()
